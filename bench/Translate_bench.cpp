// Switching the language of an application.
#include <algorithm>

#include <benchmark/benchmark.h>

#include "bench/BenchForms.h"
#include "core/Literals.h"

namespace {

// Both ways: translate all forms, keep their own values, and put them back.
void TranslateAndRestore(benchmark::State& State)
{
    const TBenchApplication Application(static_cast<int>(State.range(0)));
    for (auto _ : State) {
        for (TFormTranslator* const Each : Application.Translators)
            Each->TranslateForm(Each->Translations(), false);
        for (TFormTranslator* const Each : Application.Translators)
            Each->RestoreForm();
    }
    State.SetItemsProcessed(State.iterations() * State.range(0) * 2);
}
BENCHMARK(TranslateAndRestore)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);

// The same through a list of another class, which is searched key by key.
void PlainWalk(benchmark::State& State)
{
    const TBenchApplication Application(static_cast<int>(State.range(0)));
    std::vector<std::unique_ptr<TStringList>> Lists;
    for (TFormTranslator* const Each : Application.Translators) {
        Lists.push_back(std::make_unique<TStringList>());
        Lists.back()->Assign(Each->Translations());
    }
    for (auto _ : State) {
        for (size_t I = 0; I < Lists.size(); ++I)
            Application.Translators[I]->TranslateForm(Lists[I].get(), false);
        for (TFormTranslator* const Each : Application.Translators)
            Each->RestoreForm();
    }
    State.SetItemsProcessed(State.iterations() * State.range(0) * 2);
}
BENCHMARK(PlainWalk)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);

// Yardstick: the least that a program with its own table would do. Each text is
// found by its key with std::lower_bound and assigned, the former one kept; then
// the former ones are found and assigned the same way.
void LowerBoundAndAssign(benchmark::State& State)
{
    const TBenchApplication Application(static_cast<int>(State.range(0)));
    const int PerForm = static_cast<int>(State.range(0)) / BenchForms;
    using TTexts = std::vector<std::pair<std::string, std::string>>;
    TTexts Texts;
    for (int I = 0; I < PerForm; ++I)
        Texts.emplace_back(TBenchApplication::Key(I), FromLiterals(TBenchApplication::Value(I)));
    std::sort(Texts.begin(), Texts.end());
    const std::vector<TTexts> Tables(BenchForms, Texts); // each form has its own
    using TReader = const std::string& (TBenchButton::*)() const;
    using TWriter = void (TBenchButton::*)(const std::string&);
    constexpr std::pair<TReader, TWriter> Props[] = {
        {&TBenchButton::Caption, &TBenchButton::SetCaption},
        {&TBenchButton::Hint, &TBenchButton::SetHint},
        {&TBenchButton::HelpKeyword, &TBenchButton::SetHelpKeyword}};
    constexpr const char* Names[] = {".Caption", ".Hint", ".HelpKeyword"};
    const auto Apply = [&](TBenchButton& Form, const TTexts& From, TTexts* Former) {
        for (int I = 0; I < PerForm; ++I) {
            auto& Button = static_cast<TBenchButton&>(*Form.Components(I % BenchComponents + 1));
            const auto& [Reader, Writer] = Props[I / BenchComponents];
            std::string Key = Button.Name() + Names[I / BenchComponents];
            const auto Found =
                std::lower_bound(From.begin(), From.end(), Key,
                                 [](const auto& Text, const auto& Wanted) { return Text.first < Wanted; });
            if (Former)
                Former->emplace_back(std::move(Key), (Button.*Reader)());
            (Button.*Writer)(Found->second);
        }
    };
    for (auto _ : State) {
        std::vector<TTexts> Former(BenchForms);
        for (size_t I = 0; I < BenchForms; ++I) {
            Apply(*Application.Forms[I], Tables[I], &Former[I]);
            std::sort(Former[I].begin(), Former[I].end());
        }
        for (size_t I = 0; I < BenchForms; ++I)
            Apply(*Application.Forms[I], Former[I], nullptr);
    }
    State.SetItemsProcessed(State.iterations() * State.range(0) * 2);
}
BENCHMARK(LowerBoundAndAssign)->Arg(1000)->Arg(20000)->Arg(60000)->Unit(benchmark::kMillisecond);

// Half of it: the texts are found and assigned once, nothing is kept.
void LowerBoundAndAssignOnce(benchmark::State& State)
{
    const TBenchApplication Application(static_cast<int>(State.range(0)));
    std::vector<std::pair<std::string, std::string>> Texts;
    for (size_t Form = 0; Form < BenchForms; ++Form)
        for (int I = 0; I < BenchComponents; ++I)
            Texts.emplace_back("Form" + std::to_string(Form) + "." + TBenchApplication::Key(I),
                               FromLiterals(TBenchApplication::Value(I)));
    std::sort(Texts.begin(), Texts.end());
    for (auto _ : State)
        for (const auto& Form : Application.Forms)
            for (int I = 1; I <= BenchComponents; ++I) {
                auto& Button = static_cast<TBenchButton&>(*Form->Components(I));
                const std::string Key = Form->Name() + "." + Button.Name() + ".Caption";
                const auto Found = std::lower_bound(
                    Texts.begin(), Texts.end(), Key,
                    [](const auto& Text, const auto& Wanted) { return Text.first < Wanted; });
                Button.SetCaption(Found->second);
            }
    State.SetItemsProcessed(State.iterations() * BenchForms * BenchComponents);
}
BENCHMARK(LowerBoundAndAssignOnce)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
