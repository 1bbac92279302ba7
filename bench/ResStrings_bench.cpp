// Loading of resource strings: plain, and with one to a hundred translators, of which
// the oldest has the text, none has it, or all are off. The translating step alone
// stands beside message catalogs and a hash map of the same texts.
#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <benchmark/benchmark.h>
#include <boost/locale/generator.hpp>
#include <boost/locale/message.hpp>
#include <libintl.h>

#include "Qrt/Qrt.h"
#include "bench/Catalogs.h"
#include "framework/rtl/SysUtils.h"

namespace {

enum TWhere { InTheOldest, Nowhere, AllAreOff };

// Sources and translations.
std::map<std::string, std::string> Texts(int64_t Count)
{
    std::map<std::string, std::string> Result;
    for (int I = 0; I < Count; ++I) {
        const std::string Number = IntToStr(I * 7919);
        Result["The file number " + Number + " cannot be opened."] =
            "Die Datei mit der Nummer " + Number + " lässt sich nicht öffnen.";
    }
    return Result;
}

std::unique_ptr<TResourceTranslator> New(std::map<std::string, std::string> Pairs)
{
    std::vector<TSortList::TLine> Sources;
    TStringList Translations;
    for (const auto& [Source, Translation] : Pairs)
        Sources.push_back({Source, IntegerObject(Translations.Add(Translation))});
    TSortList List;
    List.GiveInOrder(std::move(Sources));
    auto Result = std::make_unique<TResourceTranslator>(nullptr);
    Result->SetResStrings(List);
    Result->SetTranslations(&Translations);
    return Result;
}

// Loading.

void PlainLoadString(benchmark::State& State)
{
    char Buffer[ResStringBufferBytes];
    for (auto _ : State)
        benchmark::DoNotOptimize(LoadStringA(HInstance, static_cast<UINT>(SListIndexError.Identifier), Buffer,
                                             ResStringBufferBytes));
}
BENCHMARK(PlainLoadString);

void PlainLoadResString(benchmark::State& State)
{
    for (auto _ : State)
        benchmark::DoNotOptimize(LoadResString(&SListIndexError));
}
BENCHMARK(PlainLoadResString);

void LoadTranslated(benchmark::State& State)
{
    const auto Where = static_cast<TWhere>(State.range(2));
    const std::string Text = SListIndexError;
    std::vector<std::unique_ptr<TResourceTranslator>> Translators;
    for (int64_t I = 0; I < State.range(0); ++I) {
        auto Pairs = Texts(State.range(1));
        if (I == 0 && Where == InTheOldest)
            Pairs[Text] = "Listenindex überschreitet das Maximum (%d)";
        Translators.push_back(New(std::move(Pairs)));
        Translators.back()->InternalTranslate(Where != AllAreOff);
    }
    StartQrt();
    for (int64_t I = 0; I < State.range(1); ++I) // until the indexes are made
        benchmark::DoNotOptimize(LoadResString(&SListIndexError));
    if ((LoadResString(&SListIndexError) != Text) != (Where == InTheOldest))
        State.SkipWithError("not what was to be measured");
    for (auto _ : State)
        benchmark::DoNotOptimize(LoadResString(&SListIndexError));
    StopQrt();
}
// A hundred translators of 100,000 texts each would take gigabytes.
const std::vector<int64_t> Places = {InTheOldest, Nowhere, AllAreOff};
BENCHMARK(LoadTranslated)
    ->ArgNames({"translators", "texts", "where"})
    ->ArgsProduct({{1, 10}, {100, 1000, 10000, 100000}, Places})
    ->ArgsProduct({{100}, {100, 1000, 10000}, Places});

// The translating step: LookUp(Buffer) replaces the text in Buffer by its translation;
// false when there is none. A text is put there some time before it is looked up: what
// reads it at once, in other pieces than those it was written in, waits for the writing.
template<class TLookUp>
void LookUpAll(benchmark::State& State, const TLookUp& LookUp)
{
    const bool Hits = State.range(1);
    std::vector<std::string> Sources;
    for (const auto& [Source, Translation] : Texts(State.range(0)))
        Sources.push_back(Hits ? Source : "Die" + Source.substr(3));
    // So that the processor cannot learn the order of the texts.
    std::shuffle(Sources.begin(), Sources.end(), std::mt19937(3));
    char Buffers[32][256];
    size_t Next = 0;
    int64_t Found = 0;
    while (State.KeepRunningBatch(std::size(Buffers))) {
        for (char* const Buffer : Buffers) {
            std::memcpy(Buffer, Sources[Next].c_str(), Sources[Next].size() + 1);
            if (++Next == Sources.size())
                Next = 0;
        }
        for (char* const Buffer : Buffers)
            Found += LookUp(Buffer) ? 1 : 0;
        benchmark::DoNotOptimize(Buffers);
    }
    if (Found != (Hits ? static_cast<int64_t>(State.iterations()) : 0))
        State.SkipWithError("not what was to be measured");
}

void TranslateBuffer(benchmark::State& State)
{
    const auto Translator = New(Texts(State.range(0)));
    int Length = 0;
    for (int64_t I = 0; I < State.range(0); ++I) { // until the index is made
        char Other[] = "other";
        Translator->TranslateBuffer(Other, Length);
    }
    LookUpAll(State, [&](char* Buffer) { return Translator->TranslateBuffer(Buffer, 256, Length); });
}

void HashMap(benchmark::State& State)
{
    const auto Pairs = Texts(State.range(0));
    const std::unordered_map<std::string, std::string> Map(Pairs.begin(), Pairs.end());
    LookUpAll(State, [&](char* Buffer) {
        const auto Place = Map.find(Buffer);
        if (Place == Map.end())
            return false;
        std::memcpy(Buffer, Place->second.c_str(), Place->second.size() + 1);
        return true;
    });
}

void Dgettext(benchmark::State& State)
{
    const TCatalogFolder Folder;
    const std::string Domain = "texts" + IntToStr(State.range(0));
    Folder.Add(Domain, Texts(State.range(0)));
    setenv("LANGUAGE", "de", 1);
    std::setlocale(LC_ALL, "C.UTF-8");
    bindtextdomain(Domain.c_str(), Folder.Path().c_str());
    LookUpAll(State, [&](char* Buffer) {
        const char* const Translation = dgettext(Domain.c_str(), Buffer);
        if (Translation == Buffer)
            return false;
        std::strcpy(Buffer, Translation);
        return true;
    });
}

void BoostLocale(benchmark::State& State)
{
    const TCatalogFolder Folder;
    Folder.Add("texts", Texts(State.range(0)));
    boost::locale::generator Generator;
    Generator.add_messages_path(Folder.Path());
    Generator.add_messages_domain("texts");
    const std::locale Locale = Generator("de_DE.UTF-8");
    const auto& Catalog = std::use_facet<boost::locale::message_format<char>>(Locale);
    const int Domain = Catalog.domain("texts");
    LookUpAll(State, [&](char* Buffer) {
        const char* const Translation = Catalog.get(Domain, nullptr, Buffer);
        if (!Translation)
            return false;
        std::strcpy(Buffer, Translation);
        return true;
    });
}

const std::vector<std::vector<int64_t>> Sizes = {{100, 1000, 10000, 100000}, {0, 1}};
BENCHMARK(TranslateBuffer)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);
BENCHMARK(HashMap)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);
BENCHMARK(Dgettext)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);
BENCHMARK(BoostLocale)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);

} // namespace

BENCHMARK_MAIN();
