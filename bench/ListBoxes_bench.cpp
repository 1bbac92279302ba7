// A list box of as many lines as a large translations file has.
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "framework/forms/Forms.h"
#include "framework/forms/StdCtrls.h"

namespace {

constexpr int Count = 50000;

std::vector<std::string> Lines()
{
    std::mt19937 Random(7);
    std::vector<std::string> Result;
    for (int I = 0; I < Count; ++I)
        Result.push_back("MainForm.Panel" + std::to_string(Random() % 400) + ".Label" +
                         std::to_string(Random() % 4000) + ".Caption%1053='Text " + std::to_string(I) + "'");
    return Result;
}

// A sorted list with multiple choice; with a window when the benchmark's argument says so.
struct TScene {
    TApplicationScope Scope;
    TForm* Form = new TForm(Application);
    TListBox* List = new TListBox(Form);

    explicit TScene(const benchmark::State& State)
    {
        List->SetParent(Form);
        List->SetSorted(true);
        List->SetMultiSelect(true);
        if (State.range(0))
            Form->Show();
    }
    void Fill(const std::vector<std::string>& Texts) const
    {
        List->Items()->BeginUpdate();
        List->Items()->Clear();
        for (const std::string& Text : Texts)
            List->Items()->Add(Text);
        List->Items()->EndUpdate();
    }
};

void FillSorted(benchmark::State& State)
{
    const TScene Scene(State);
    const auto Texts = Lines();
    for (auto _ : State)
        Scene.Fill(Texts);
}

void Select(benchmark::State& State)
{
    const TScene Scene(State);
    Scene.Fill(Lines());
    bool Selected = false;
    for (auto _ : State) {
        Selected = !Selected;
        Scene.List->Items()->BeginUpdate();
        for (int I = 0; I < Count; I += 10)
            Scene.List->SetSelected(I, Selected);
        Scene.List->Items()->EndUpdate();
        benchmark::DoNotOptimize(Scene.List->SelCount());
    }
}

void DeleteSelected(benchmark::State& State)
{
    const TScene Scene(State);
    const auto Texts = Lines();
    for (auto _ : State) {
        State.PauseTiming();
        Scene.Fill(Texts);
        Scene.List->SelectAll();
        State.ResumeTiming();
        Scene.List->Items()->BeginUpdate();
        for (int I = Count - 1; I >= 0; I -= 2)
            if (Scene.List->Selected(I))
                Scene.List->Items()->Delete(I);
        Scene.List->Items()->EndUpdate();
    }
}

} // namespace

BENCHMARK(FillSorted)->ArgName("window")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Select)->ArgName("window")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteSelected)->ArgName("window")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
