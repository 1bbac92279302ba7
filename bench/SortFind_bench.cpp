// Searching a translation list.
#include <algorithm>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <benchmark/benchmark.h>

#include "core/SortList.h"

namespace {

std::vector<std::string> Keys(int Count)
{
    std::vector<std::string> Result;
    for (int I = 0; I < Count; ++I)
        Result.push_back("Panel" + std::to_string(I % 97) + "Button" + std::to_string(I) + ".Caption");
    std::sort(Result.begin(), Result.end());
    return Result;
}

std::vector<std::string> Shuffled(std::vector<std::string> Wanted)
{
    std::shuffle(Wanted.begin(), Wanted.end(), std::mt19937(1));
    return Wanted;
}

void SortFind(benchmark::State& State)
{
    const auto Lines = Keys(static_cast<int>(State.range(0)));
    const auto Wanted = Shuffled(Lines);
    TSortList List;
    for (const std::string& Line : Lines)
        List.Add(Line);
    size_t Next = 0;
    for (auto _ : State) {
        int Index = -1;
        benchmark::DoNotOptimize(List.SortFind(Wanted[Next], Index));
        benchmark::DoNotOptimize(Index);
        Next = Next + 1 == Wanted.size() ? 0 : Next + 1;
    }
}

void LowerBound(benchmark::State& State)
{
    const auto Lines = Keys(static_cast<int>(State.range(0)));
    const auto Wanted = Shuffled(Lines);
    size_t Next = 0;
    for (auto _ : State) {
        benchmark::DoNotOptimize(std::lower_bound(Lines.begin(), Lines.end(), Wanted[Next]));
        Next = Next + 1 == Wanted.size() ? 0 : Next + 1;
    }
}

void UnorderedMap(benchmark::State& State)
{
    const auto Lines = Keys(static_cast<int>(State.range(0)));
    const auto Wanted = Shuffled(Lines);
    std::unordered_map<std::string, int> Map;
    for (const std::string& Line : Lines)
        Map.emplace(Line, static_cast<int>(Map.size()));
    size_t Next = 0;
    for (auto _ : State) {
        benchmark::DoNotOptimize(Map.find(Wanted[Next]));
        Next = Next + 1 == Wanted.size() ? 0 : Next + 1;
    }
}

void Sizes(benchmark::internal::Benchmark* Bench)
{
    for (const int Size : {1000, 20000, 60000, 100000, 1000000})
        Bench->Arg(Size);
}
BENCHMARK(SortFind)->Apply(Sizes);
BENCHMARK(LowerBound)->Apply(Sizes);
BENCHMARK(UnorderedMap)->Apply(Sizes);

// A list filled with what comes in order, in reverse, and in no order.
void SortInsertAll(benchmark::State& State)
{
    auto Lines = Keys(static_cast<int>(State.range(0)));
    if (State.range(1) == 1)
        std::reverse(Lines.begin(), Lines.end());
    else if (State.range(1) == 2)
        Lines = Shuffled(std::move(Lines));
    for (auto _ : State) {
        std::vector<TSortList::TLine> Batch;
        for (const std::string& Line : Lines)
            Batch.push_back({Line, nullptr});
        TSortList List;
        List.SortInsertAll(std::move(Batch));
        benchmark::DoNotOptimize(List.Count());
    }
    State.SetItemsProcessed(State.iterations() * State.range(0));
}
BENCHMARK(SortInsertAll)->ArgsProduct({{1000, 100000}, {0, 1, 2}})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
