// Reading and writing translations files of 1,000 to 1,000,000 lines.
#include <cstdio>
#include <string>
#include <unordered_map>

#include <benchmark/benchmark.h>

#include "core/KeyLines.h"
#include "core/LineSplitter.h"
#include "core/TranslationsFile.h"
#include "framework/rtl/Files.h"

namespace {

constexpr const char* FileName = "translations_bench.tmp";
const TTranslationsOwner Owner{"MainForm", 1053};

// Lines of about 75 bytes, in the order of a list.
void Fill(TSortList& List, int64_t Count)
{
    std::vector<TSortList::TLine> Lines;
    for (int64_t I = 0; I < Count; ++I)
        Lines.push_back({"Panel" + std::to_string(I % 97) + "Button" + std::to_string(I) +
                             ".Caption='\xC3\x96vers\xC3\xA4ttning nummer " + std::to_string(I) + "'",
                         nullptr});
    List.SortInsertAll(std::move(Lines));
}

size_t FileSize()
{
    return ReadWholeFile(FileName).size();
}

class TFixture {
public:
    explicit TFixture(int64_t Count)
    {
        std::remove(FileName);
        Fill(List, Count);
        SaveTranslations(FileName, Owner, List, TSortList());
        Size = FileSize();
    }
    ~TFixture() { std::remove(FileName); }
    TSortList List;
    size_t Size;
};

void Load(benchmark::State& State)
{
    const TFixture File(State.range(0));
    for (auto _ : State) {
        TSortList List;
        LoadTranslations(FileName, Owner, List);
        if (List.Count() != State.range(0))
            State.SkipWithError("lines are missing");
    }
    State.SetBytesProcessed(State.iterations() * static_cast<int64_t>(File.Size));
}

// Over lines that are there already.
void Reload(benchmark::State& State)
{
    TFixture File(State.range(0));
    for (auto _ : State)
        LoadTranslations(FileName, Owner, File.List);
    State.SetBytesProcessed(State.iterations() * static_cast<int64_t>(File.Size));
}

// Another language into the file: all lines read, kept, merged and written. With
// the time that the disk takes.
void SaveMerged(benchmark::State& State)
{
    const TFixture File(State.range(0));
    for (auto _ : State)
        SaveTranslations(FileName, {"MainForm", 1033}, File.List, TSortList());
    State.SetBytesProcessed(State.iterations() * static_cast<int64_t>(FileSize()));
}

// Yardstick: the same bytes through the same replacement of the file, nothing
// else done. What SaveMerged takes beyond it is its own.
void WriteOnly(benchmark::State& State)
{
    const TFixture File(State.range(0));
    SaveTranslations(FileName, {"MainForm", 1033}, File.List, TSortList());
    const std::string Text = ReadWholeFile(FileName);
    for (auto _ : State)
        ReplaceWholeFile(FileName, Text);
    State.SetBytesProcessed(State.iterations() * static_cast<int64_t>(Text.size()));
}

// Yardstick: the file read into a hash table of its keys.
void ParseIntoHash(benchmark::State& State)
{
    const TFixture File(State.range(0));
    for (auto _ : State) {
        const std::string Text = ReadWholeFile(FileName);
        std::unordered_map<std::string, std::string> Map;
        TLineSplitter Lines(Text);
        std::string_view Line;
        while (Lines.Next(Line))
            Map.emplace(KeyOf(Line), ValueOf(Line));
        benchmark::DoNotOptimize(Map.size());
    }
    State.SetBytesProcessed(State.iterations() * static_cast<int64_t>(File.Size));
}

void Sizes(benchmark::internal::Benchmark* Bench)
{
    for (const int Size : {1000, 10000, 100000, 1000000})
        Bench->Arg(Size);
    Bench->Unit(benchmark::kMillisecond)->UseRealTime();
}
BENCHMARK(Load)->Apply(Sizes);
BENCHMARK(Reload)->Apply(Sizes);
BENCHMARK(SaveMerged)->Apply(Sizes);
BENCHMARK(WriteOnly)->Apply(Sizes);
BENCHMARK(ParseIntoHash)->Apply(Sizes);

} // namespace

BENCHMARK_MAIN();
