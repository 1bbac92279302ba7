#include "designer/FormModel.h"

#include <algorithm>

#include "framework/forms/FormRoots.h"
#include "framework/forms/StandInControls.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/Strings.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormFile.h"
#include "framework/streaming/Snapshot.h"

namespace {

constexpr size_t MostSteps = 100;

void ForEachComponent(TComponent& Owner, const std::function<void(TComponent&)>& Visit)
{
    for (int I = 0; I < Owner.ComponentCount(); ++I) {
        Visit(*Owner.Components(I));
        ForEachComponent(*Owner.Components(I), Visit);
    }
}

bool IsInside(const TComponent* Component, const TComponent& Container)
{
    for (; Component; Component = Component->GetParentComponent())
        if (Component == &Container)
            return true;
    return false;
}

TWinControl* ContainerFor(TComponent* Parent)
{
    for (; Parent; Parent = Parent->GetParentComponent()) {
        auto* const Container = dynamic_cast<TWinControl*>(Parent);
        if (Container && Container->ControlStyle().Contains(csAcceptsControls))
            return Container;
    }
    return nullptr;
}

} // namespace

TFormModel::TFormModel(const std::string& FileName) : TFormModel(FileName, ReadFormFile(FileName))
{
    FSaved = FPresent;
}

TFormModel::TFormModel(const std::string& FileName, TFormDocument Document)
    : FFileName(FileName), FForm(Load(Document))
{
    FSelection = {&Root()};
    TState First{std::move(Document), {}, OutsideTexts()};
    First.Bytes = WriteForm(First.Document);
    FPresent = std::make_shared<const TState>(std::move(First));
}

TFormModel::~TFormModel() = default;

std::unique_ptr<TLoadedForm> TFormModel::Load(const TFormDocument& Document) const
{
    const TSnapshotScope Snapshot;
    return std::make_unique<TLoadedForm>(Document, TUnknownClasses::Accept, MakeDesignedRoot,
                                         MakeStandInControl);
}

// The translations files come last: the form that names them is there by then.
void TFormModel::Save()
{
    Modified();
    WriteFormFile(FFileName, FPresent->Document);
    FForm->Save();
    FSaved = FPresent;
    Tell(OnChanged);
}

void TFormModel::Modified()
{
    const auto Now = TakeState();
    if (Now->Bytes == FPresent->Bytes && Now->Texts == FPresent->Texts)
        return;
    Remember();
    FPresent = Now;
    Tell(OnChanged);
}

// The present state becomes one to which undoing goes back.
void TFormModel::Remember()
{
    FUndo.push_back(FPresent);
    if (FUndo.size() > MostSteps)
        FUndo.pop_front();
    FRedo.clear();
}

std::shared_ptr<const TFormModel::TState> TFormModel::TakeState()
{
    const TSnapshotScope Snapshot;
    TState Result{FForm->Save(), {}, OutsideTexts()};
    Result.Bytes = WriteForm(Result.Document);
    return std::make_shared<const TState>(std::move(Result));
}

std::map<std::string, std::string> TFormModel::OutsideTexts()
{
    std::map<std::string, std::string> Result;
    ForEachComponent(Root(), [&](TComponent& Component) {
        for (const TPropInfo* const Prop : GetPropList(Component)) {
            if (Prop->Kind() != tkClass || IsStoredProp(Component, *Prop))
                continue;
            if (const auto* const Lines = dynamic_cast<const TStrings*>(GetObjectProp(Component, *Prop)))
                Result.emplace(GetComponentName(&Component) + "." + Prop->Name, Lines->Text());
        }
    });
    return Result;
}

void TFormModel::RestoreTexts(const std::map<std::string, std::string>& Texts)
{
    const auto Present = OutsideTexts();
    for (const auto& [Key, Text] : Texts) {
        const size_t Dot = Key.rfind('.');
        TComponent* const Component = GetComponent(Key.substr(0, Dot));
        const auto Same = Present.find(Key);
        if (!Component || (Same != Present.end() && Same->second == Text))
            continue;
        TStringList Lines;
        Lines.SetText(Text);
        SetObjectProp(*Component, *GetPropInfo(*Component, Key.substr(Dot + 1)), &Lines);
    }
}

void TFormModel::Undo()
{
    Step(FUndo, FRedo);
}

void TFormModel::Redo()
{
    Step(FRedo, FUndo);
}

void TFormModel::Step(TStates& From, TStates& To)
{
    if (From.empty())
        return;
    const auto Wanted = From.back();
    std::unique_ptr<TLoadedForm> Form = Load(Wanted->Document);
    To.push_back(FPresent);
    From.pop_back();
    TakeOver(std::move(Form), Wanted, SelectedNames());
}

void TFormModel::Rewrite(TFormDocument Document, const std::vector<std::string>& Selected)
{
    Modified();
    std::unique_ptr<TLoadedForm> Form = Load(Document);
    const auto Wanted = std::make_shared<TState>(TState{std::move(Document), {}, FPresent->Texts});
    Wanted->Bytes = WriteForm(Wanted->Document);
    Remember();
    TakeOver(std::move(Form), Wanted, Selected);
    Wanted->Texts = OutsideTexts(); // with those of new translators
}

std::vector<std::string> TFormModel::SelectedNames()
{
    std::vector<std::string> Result;
    for (const TComponent* const Each : FSelection)
        Result.push_back(GetComponentName(Each));
    return Result;
}

void TFormModel::TakeOver(std::unique_ptr<TLoadedForm> Form, std::shared_ptr<const TState> State,
                          const std::vector<std::string>& Selected)
{
    Tell(BeforeReload);
    FForm = std::move(Form);
    FPresent = std::move(State);
    RestoreTexts(FPresent->Texts);
    FSelection.clear();
    for (const std::string& Each : Selected)
        if (TComponent* const Component = GetComponent(Each))
            FSelection.push_back(Component);
    if (FSelection.empty())
        FSelection = {&Root()};
    Tell(AfterReload);
    Tell(OnChanged);
    Tell(OnSelection);
}

void TFormModel::Settle()
{
    const TSnapshotScope Snapshot;
    FForm->Settle();
}

TComponent* TFormModel::GetComponent(const std::string& Name)
{
    if (SameText(Name, Root().Name()))
        return &Root();
    TComponent* Scope = &Root();
    for (size_t Begin = 0; Scope && Begin <= Name.size();) {
        const size_t Dot = std::min(Name.find('.', Begin), Name.size());
        Scope = Scope->FindComponent(Name.substr(Begin, Dot - Begin));
        Begin = Dot + 1;
    }
    return Scope;
}

std::string TFormModel::GetComponentName(const TComponent* Component)
{
    if (!Component)
        return {};
    const TComponent* const Owner = Component->Owner();
    if (Component == &Root() || !Owner || Owner == &Root())
        return Component->Name();
    return GetComponentName(Owner) + "." + Component->Name();
}

void TFormModel::GetComponentNames(const TMetaClass& Class,
                                   const std::function<void(const std::string&)>& Visit)
{
    if (Root().InheritsFrom(Class))
        Visit(Root().Name());
    ForEachComponent(Root(), [&](TComponent& Each) {
        if (Each.InheritsFrom(Class) && !Each.Name().empty())
            Visit(GetComponentName(&Each));
    });
}

bool TFormModel::IsSelected(const TComponent* Component) const
{
    return std::ranges::find(FSelection, Component) != FSelection.end();
}

void TFormModel::Select(std::vector<TComponent*> Components)
{
    std::erase(Components, nullptr);
    if (Components.empty())
        Components = {&Root()};
    if (Components == FSelection)
        return;
    FSelection = std::move(Components);
    Tell(OnSelection);
}

// The form itself is selected alone.
void TFormModel::ToggleSelected(TComponent* Component)
{
    auto Wanted = FSelection;
    if (std::erase(Wanted, Component) == 0)
        Wanted.push_back(Component);
    if (Wanted.size() > 1)
        std::erase(Wanted, &Root());
    Select(std::move(Wanted));
}

void TFormModel::SelectAll()
{
    std::vector<TComponent*> All;
    for (int I = 0; I < Root().ComponentCount(); ++I)
        All.push_back(Root().Components(I));
    Select(std::move(All));
}

bool TFormModel::IsOwn(const TComponent* Component) const
{
    return Component && Component->Owner() == &FForm->Root() && !Component->IsSubComponent();
}

// Stand-ins tell their parent, which does not always know of them.
std::vector<TComponent*> TFormModel::ChildrenOf(TComponent& Parent) const
{
    std::vector<TComponent*> Result;
    TComponent& Top = FForm->Root();
    ForEachWrittenChild(Parent, Top, [&](TComponent* Child) { Result.push_back(Child); });
    for (int I = 0; I < Top.ComponentCount(); ++I) {
        TComponent* const Each = Top.Components(I);
        if (Each->GetParentComponent() == &Parent && std::ranges::find(Result, Each) == Result.end())
            Result.push_back(Each);
    }
    return Result;
}

// What is inside goes first.
void TFormModel::DestroyWithContents(TComponent& Component)
{
    for (TComponent* const Each : ChildrenOf(Component))
        DestroyWithContents(*Each);
    delete &Component;
}

std::string TFormModel::NewName(const TMetaClass& Class) const
{
    const std::string& Name = Class.ClassName();
    const std::string Stem = Name.starts_with('T') ? Name.substr(1) : Name;
    for (int Number = 1;; ++Number)
        if (const std::string Result = Stem + IntToStr(Number); !FForm->Root().FindComponent(Result))
            return Result;
}

TComponent& TFormModel::Add(const TMetaClass& Class, TComponent& Parent, const TRect& Place)
{
    TWinControl* const Container = ContainerFor(&Parent);
    if (Class.InheritsFrom(TControl::MetaClass()) && !Container)
        throw EComponentError(Class.ClassName() + " needs a form or frame to stand on");
    auto* const Component = static_cast<TComponent*>(Class.Create(&Root()));
    try {
        Component->SetName(NewName(Class));
        if (auto* const Control = dynamic_cast<TControl*>(Component))
            Control->SetParentComponent(Container);
    } catch (...) {
        delete Component;
        throw;
    }
    const TRect Usual = PlaceOf(*Component);
    const bool HasSize = Place.right > Place.left && Place.bottom > Place.top;
    SetPlace(*Component, Bounds(Place.left, Place.top, RectWidth(HasSize ? Place : Usual),
                                RectHeight(HasSize ? Place : Usual)));
    FSelection = {Component};
    Modified();
    Tell(OnSelection);
    return *Component;
}

std::vector<TComponent*> TFormModel::OutermostSelected() const
{
    std::vector<TComponent*> Result;
    for (TComponent* const Each : FSelection)
        if (IsOwn(Each) && std::ranges::none_of(FSelection, [&](const TComponent* Other) {
                return Other != Each && IsOwn(Other) && IsInside(Each, *Other);
            }))
            Result.push_back(Each);
    return Result;
}

void TFormModel::DeleteSelected()
{
    const std::vector<TComponent*> Outermost = OutermostSelected();
    if (Outermost.empty())
        return;
    FSelection = {&Root()};
    Tell(OnSelection);
    for (TComponent* const Each : Outermost)
        DestroyWithContents(*Each);
    Modified();
}

void TFormModel::ShiftSelected(int DeltaX, int DeltaY, int DeltaWidth, int DeltaHeight)
{
    for (TComponent* const Each : FSelection) {
        if (!IsOwn(Each))
            continue;
        const TRect Old = PlaceOf(*Each);
        SetPlace(*Each, Bounds(Old.left + DeltaX, Old.top + DeltaY, std::max(RectWidth(Old) + DeltaWidth, 0),
                               std::max(RectHeight(Old) + DeltaHeight, 0)));
    }
    Modified();
}

void TFormModel::OrderSelected(bool ToFront)
{
    for (TComponent* const Each : FSelection)
        if (auto* const Control = dynamic_cast<TControl*>(Each); Control && IsOwn(Each))
            ToFront ? Control->BringToFront() : Control->SendToBack();
    Modified();
}

TRect TFormModel::PlaceOf(const TComponent& Component)
{
    if (const auto* const Control = dynamic_cast<const TControl*>(&Component))
        return Bounds(Control->Left(), Control->Top(), Control->Width(), Control->Height());
    return Bounds(Component.DesignLeft, Component.DesignTop, IconSize, IconSize);
}

void TFormModel::SetPlace(TComponent& Component, const TRect& Place)
{
    if (auto* const Control = dynamic_cast<TControl*>(&Component)) {
        Control->SetBounds(Place.left, Place.top, RectWidth(Place), RectHeight(Place));
        return;
    }
    Component.DesignLeft = Place.left;
    Component.DesignTop = Place.top;
}

void TFormModel::Tell(const std::function<void()>& Event) const
{
    if (Event)
        Event();
}
