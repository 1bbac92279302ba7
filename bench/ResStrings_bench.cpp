// Loading of resource strings: plain, and with translators of 10,000 entries each,
// of which the oldest has the text, none has it, or all are off. The translating
// step alone stands beside a hash map of the same texts.
#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <benchmark/benchmark.h>

#include "Qrt/Qrt.h"
#include "framework/rtl/SysUtils.h"

namespace {

enum TWhere { InTheOldest, Nowhere, AllAreOff };

std::vector<std::string> Sources(int Count)
{
    std::vector<std::string> Result;
    for (int I = 0; I < Count; ++I)
        Result.push_back("The file number " + IntToStr(I * 7919) + " cannot be opened.");
    return Result;
}

std::unique_ptr<TResourceTranslator> New(int Count)
{
    auto Result = std::make_unique<TResourceTranslator>(nullptr);
    for (const std::string& Source : Sources(Count))
        Result->SetTranslation(Source, "Die Datei kann nicht geöffnet werden: " + Source.substr(9, 12));
    return Result;
}

// So that the processor cannot learn the order of the texts.
std::vector<std::string> Shuffled(int Count, const char* Front)
{
    std::vector<std::string> Result = Sources(Count);
    for (std::string& Each : Result)
        Each.replace(0, 3, Front);
    std::shuffle(Result.begin(), Result.end(), std::mt19937(3));
    return Result;
}

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
    const auto Where = static_cast<TWhere>(State.range(1));
    std::vector<std::unique_ptr<TResourceTranslator>> Translators;
    for (int I = 0; I < State.range(0); ++I) {
        Translators.push_back(New(10000));
        Translators.back()->InternalTranslate(Where != AllAreOff);
    }
    if (Where == InTheOldest && !Translators.empty())
        Translators.front()->SetTranslation(std::string(SListIndexError),
                                            "Listenindex überschreitet das Maximum (%d)");
    StartQrt();
    for (int I = 0; I < 2000; ++I)
        benchmark::DoNotOptimize(LoadResString(&SListIndexError));
    for (auto _ : State)
        benchmark::DoNotOptimize(LoadResString(&SListIndexError));
    StopQrt();
}
BENCHMARK(LoadTranslated)
    ->ArgNames({"translators", "where"})
    ->Args({0, Nowhere})
    ->Args({1, InTheOldest})
    ->Args({1, Nowhere})
    ->Args({1, AllAreOff})
    ->Args({5, InTheOldest})
    ->Args({5, Nowhere})
    ->Args({5, AllAreOff});

// The lookups of both copy the text to look for into a buffer first.
template<class TLookUp>
void LookUpAll(benchmark::State& State, const std::vector<std::string>& Texts, const TLookUp& LookUp)
{
    char Buffer[256];
    size_t Next = 0;
    for (auto _ : State) {
        const std::string& Text = Texts[Next];
        std::memcpy(Buffer, Text.c_str(), Text.size() + 1);
        benchmark::DoNotOptimize(LookUp(Buffer));
        if (++Next == Texts.size())
            Next = 0;
    }
}

void TranslateBuffer(benchmark::State& State)
{
    const int Count = static_cast<int>(State.range(0));
    const auto Translator = New(Count);
    const auto Texts = Shuffled(Count, State.range(1) ? "The" : "Die");
    int Length = 0;
    const auto LookUp = [&](char* Buffer) { return Translator->TranslateBuffer(Buffer, 256, Length); };
    for (int I = 0; I < Count; ++I) {
        char Other[] = "other";
        LookUp(Other); // until the index is made
    }
    LookUpAll(State, Texts, LookUp);
}

void HashMap(benchmark::State& State)
{
    const int Count = static_cast<int>(State.range(0));
    std::unordered_map<std::string, std::string> Map;
    for (const std::string& Source : Sources(Count))
        Map.emplace(Source, "Die Datei kann nicht geöffnet werden: " + Source.substr(9, 12));
    const auto Texts = Shuffled(Count, State.range(1) ? "The" : "Die");
    LookUpAll(State, Texts, [&](char* Buffer) {
        const auto Place = Map.find(Buffer);
        if (Place == Map.end())
            return false;
        std::memcpy(Buffer, Place->second.c_str(), Place->second.size() + 1);
        return true;
    });
}

const std::vector<std::vector<int64_t>> Sizes = {{100, 1000, 10000, 100000}, {0, 1}};
BENCHMARK(TranslateBuffer)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);
BENCHMARK(HashMap)->ArgNames({"texts", "hit"})->ArgsProduct(Sizes);

} // namespace

BENCHMARK_MAIN();
