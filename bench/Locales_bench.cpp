// Switching the locale of an application.
#include <benchmark/benchmark.h>

#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "framework/forms/Forms.h"
#include "framework/forms/Menus.h"
#include "platform/winapi.h"

namespace {

std::vector<int> Locales;

BOOL CALLBACK AddLocale(char* Hexadecimal)
{
    Locales.push_back(HexToInt(Hexadecimal));
    return TRUE;
}

// A translator with all the locales of the system, on the only form.
class TScene {
public:
    TScene() : Translator(new TLocaleTranslator(new TForm(Application)))
    {
        Locales.clear();
        EnumSystemLocalesA(AddLocale, LCID_SUPPORTED);
        TSortList List;
        for (const int Each : Locales)
            Translator->AddOrgProps(Each, List);
        Translator->SetTranslations(&List);
    }

    TApplicationScope Scope;
    TLocaleTranslator* Translator;
};

void TranslateLocale(benchmark::State& State)
{
    const TScene Scene;
    size_t Next = 0;
    for (auto _ : State)
        if (!Scene.Translator->TranslateLocale(Locales[Next++ % Locales.size()]))
            State.SkipWithError("a locale has no entries");
    State.counters["locales"] = static_cast<double>(Locales.size());
}
BENCHMARK(TranslateLocale)->Unit(benchmark::kMicrosecond);

// Yardstick: every entry of the list is looked at.
void TranslateLocaleBySearch(benchmark::State& State)
{
    const TScene Scene;
    size_t Next = 0;
    for (auto _ : State) {
        const std::string Prefix = EntryPrefix(Locales[Next++ % Locales.size()]);
        const TStrings& List = *Scene.Translator->Translations();
        for (int I = 0; I < List.Count(); ++I)
            if (const std::string_view Entry = List.Get(I); Entry.starts_with(Prefix)) {
                const size_t Equals = Entry.find('=');
                ApplyLocaleEntry(Entry.substr(8, Equals - 8), Entry.substr(Equals + 1));
            }
    }
}
BENCHMARK(TranslateLocaleBySearch)->Unit(benchmark::kMicrosecond);

void ReadLocaleFromSystem(benchmark::State& State)
{
    const TScene Scene;
    size_t Next = 0;
    for (auto _ : State)
        benchmark::DoNotOptimize(ReadLocaleEntries(Locales[Next++ % Locales.size()]));
}
BENCHMARK(ReadLocaleFromSystem)->Unit(benchmark::kMicrosecond);

// 100 forms of 200 components, four of them translators without texts.
void SwitchTranslators(benchmark::State& State)
{
    const TScene Scene;
    for (int I = 0; I < 100; ++I) {
        auto* const Form = new TForm(Application);
        for (const int Locale : {0x41D, 0x407, 0x411, 0x401})
            (new TFormTranslator(Form))->SetLocale(Locale);
        for (int J = 4; J < 200; ++J)
            new TMenuItem(Form);
    }
    bool Swedish = false;
    for (auto _ : State)
        Scene.Translator->SetLocales((Swedish = !Swedish) ? 0x41D : 0x407);
}
BENCHMARK(SwitchTranslators)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
