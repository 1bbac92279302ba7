// Opening the editor of a form's translations, and taking up properties in it.
#include <benchmark/benchmark.h>

#include <functional>

#include "BenchForms.h"
#include "Obxc3/Obxc3.h"
#include "editors/Editors.h"
#include "editors/Qftedit.h"
#include "framework/forms/Forms.h"
#include "tests/RegistryScope.h"

namespace {

// A form with about as many properties as wanted, and what is done in its editor.
class TScene : public TObject {
public:
    explicit TScene(int64_t Properties) : FForm(new TForm(Application))
    {
        FForm->SetName("Form1");
        constexpr int64_t EachHas = 28;
        for (int64_t I = 0; I < Properties / EachHas; ++I) {
            auto* const Button = new TBenchButton(FForm);
            Button->SetName("Button" + std::to_string(I));
            Button->SetCaption("Caption " + std::to_string(I));
            Button->SetHint("What this does, number " + std::to_string(I));
        }
        FTranslator = new TFormTranslator(FForm);
        FTranslator->SetName("Swedish");
        Application->OnIdle = {this, &TScene::Idle};
    }

    // Lines that the translator has before the editor opens.
    void Translate()
    {
        TSortList List;
        FTranslator->TranslateForm(&List, true);
        FTranslator->SetTranslations(&List);
    }
    // Acts once everything is shown and painted; closes the editor then.
    void Open(std::function<void(TFormEditor&)> Act = nullptr)
    {
        FAct = std::move(Act);
        FTranslator->ShowEditor();
    }

private:
    void Idle(TObject*, bool& Done)
    {
        auto* const Editor = dynamic_cast<TFormEditor*>(Screen->ActiveForm());
        if (!Editor || Editor->ModalResult() != mrNone)
            return;
        // Waits for no further message.
        Done = false;
        if (const auto Act = std::exchange(FAct, nullptr))
            Act(*Editor);
        else
            Editor->BtnOKClick(Editor); // without a question
    }

    const TRegistryScope FRegistry;
    const TApplicationScope FScope;
    const TPackageScope FPackage;
    const TEditorsScope FEditors;
    TForm* FForm;
    TFormTranslator* FTranslator = nullptr;
    std::function<void(TFormEditor&)> FAct;
};

void Open(benchmark::State& State)
{
    TScene Scene(State.range(0));
    for (auto _ : State)
        Scene.Open();
}
BENCHMARK(Open)->Arg(2000)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond);

void OpenWithTranslations(benchmark::State& State)
{
    TScene Scene(State.range(0));
    Scene.Translate();
    for (auto _ : State)
        Scene.Open();
}
BENCHMARK(OpenWithTranslations)->Arg(2000)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond);

// A click on "Select", after which captions and hints are selected.
void SelectCommon(benchmark::State& State)
{
    TScene Scene(State.range(0));
    Scene.Open([&State](TFormEditor& Editor) {
        for (auto _ : State)
            Editor.BtnSelectClick(nullptr);
        State.counters["selected"] = Editor.ListAvail->SelCount();
    });
}
BENCHMARK(SelectCommon)->Arg(2000)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond);

// A click on "Include" after everything was selected.
void IncludeAll(benchmark::State& State)
{
    for (auto _ : State) {
        State.PauseTiming();
        TScene Scene(State.range(0));
        Scene.Open([&State](TFormEditor& Editor) {
            Editor.ListAvail->SelectAll();
            State.ResumeTiming();
            Editor.BtnIncludePropClick(nullptr);
            State.PauseTiming();
        });
        State.ResumeTiming();
    }
}
BENCHMARK(IncludeAll)->Arg(2000)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond)->Iterations(3);

// Including one of all properties.
void IncludeOne(benchmark::State& State)
{
    TScene Scene(State.range(0));
    Scene.Open([&State](TFormEditor& Editor) {
        for (auto _ : State) {
            Editor.ListAvail->SetSelected(0, true);
            Editor.BtnIncludePropClick(nullptr);
        }
    });
}
BENCHMARK(IncludeOne)->Arg(2000)->Arg(20000)->Arg(50000)->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

BENCHMARK_MAIN();
