#include "framework/forms/Actions.h"

#include <algorithm>

#include "framework/forms/ImageLists.h"
#include "framework/forms/ShortCuts.h"
#include "framework/forms/StandardActions.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TCustomActionList::MetaClass()
{
    static const TMetaClass Class("TCustomActionList", &TComponent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TActionList::MetaClass()
{
    static const TMetaClass Class("TActionList", &TCustomActionList::MetaClass(),
                                  CreateComponent<TActionList>,
                                  {
                                      OBX_ROW(TActionList, Images),
                                      OBX_ROW(TActionList, State).Default(asNormal),
                                      Prop<&TActionList::OnChange>("OnChange"),
                                      Prop<&TActionList::OnExecute>("OnExecute"),
                                      Prop<&TActionList::OnUpdate>("OnUpdate"),
                                  });
    return Class;
}

TCustomActionList::~TCustomActionList()
{
    SetStateFlag(csDestroying, true);
    while (!FActions.empty())
        delete FActions.back();
}

TContainedAction* TCustomActionList::Actions(int Index) const
{
    if (Index < 0 || Index >= ActionCount())
        throw EListError(Format(SListIndexError, {Index}));
    return FActions[static_cast<size_t>(Index)];
}

void TCustomActionList::AddAction(TContainedAction* Action)
{
    FActions.push_back(Action);
    Action->FActionList = this;
    Action->FreeNotification(this);
}

void TCustomActionList::RemoveAction(TContainedAction* Action)
{
    if (std::erase(FActions, Action) > 0)
        Action->FActionList = nullptr;
}

bool TCustomActionList::IsShortCut(TMessage& Message)
{
    const TShortCut Pressed = ShortCutFromMessage(Message);
    if (Pressed == scNone)
        return false;
    const std::vector<TContainedAction*> Actions = FActions;
    for (TContainedAction* const Contained : Actions) {
        auto* const Action = dynamic_cast<TCustomAction*>(Contained);
        if (!Action || !Action->HasShortCut(Pressed))
            continue;
        Action->Update();
        if (Action->Enabled())
            return Action->Execute();
    }
    return false;
}

bool TCustomActionList::ExecuteAction(TBasicAction* Action)
{
    bool Handled = false;
    if (OnExecute)
        OnExecute(Action, Handled);
    return Handled;
}

bool TCustomActionList::UpdateAction(TBasicAction* Action)
{
    bool Handled = false;
    if (OnUpdate)
        OnUpdate(Action, Handled);
    return Handled;
}

void TCustomActionList::Change()
{
    if (OnChange && !HasState(csLoading) && !HasState(csDestroying))
        OnChange(this);
}

void TCustomActionList::SetImages(TCustomImageList* Value)
{
    FImages = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TCustomActionList::SetState(TActionListState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    if (Value == asSuspended)
        return;
    for (TContainedAction* const Contained : FActions)
        if (auto* const Action = dynamic_cast<TCustomAction*>(Contained)) {
            if (Value == asSuspendedEnabled)
                Action->SetEnabled(true);
            else
                Action->Update();
        }
}

void TCustomActionList::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FImages)
        FImages = nullptr;
    const auto Found = std::find(FActions.begin(), FActions.end(), Component);
    if (Found != FActions.end())
        FActions.erase(Found);
}

void TCustomActionList::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent*)
{
    const std::vector<TContainedAction*> Children = FActions;
    for (TContainedAction* const Action : Children)
        Visit(Action);
}

void TCustomActionList::SetChildOrder(TComponent* Child, int Order)
{
    if (auto* const Action = dynamic_cast<TContainedAction*>(Child))
        Action->SetIndex(Order);
}

const TMetaClass& TContainedAction::MetaClass()
{
    static const TMetaClass Class("TContainedAction", &TBasicAction::MetaClass(), nullptr,
                                  {OBX_ROW(TContainedAction, Category)});
    return Class;
}

TContainedAction::~TContainedAction()
{
    if (FActionList)
        FActionList->RemoveAction(this);
}

void TContainedAction::SetActionList(TCustomActionList* Value)
{
    if (FActionList)
        FActionList->RemoveAction(this);
    if (Value)
        Value->AddAction(this);
}

int TContainedAction::Index() const
{
    if (!FActionList)
        return -1;
    const auto& All = FActionList->FActions;
    return static_cast<int>(std::find(All.begin(), All.end(), this) - All.begin());
}

void TContainedAction::SetIndex(int Value)
{
    if (!FActionList)
        return;
    auto& All = FActionList->FActions;
    std::erase(All, this);
    All.insert(All.begin() + std::clamp(Value, 0, static_cast<int>(All.size())), this);
}

void TContainedAction::SetParentComponent(TComponent* Value)
{
    if (auto* const List = dynamic_cast<TCustomActionList*>(Value))
        SetActionList(List);
}

// The list first, then the action's own handler, then what has the focus.
bool TContainedAction::Execute()
{
    if (FActionList && FActionList->ExecuteAction(this))
        return true;
    if (TBasicAction::Execute())
        return true;
    return Application && Application->ExecuteAction(this);
}

bool TContainedAction::Update()
{
    if (FActionList && FActionList->UpdateAction(this))
        return true;
    if (TBasicAction::Update())
        return true;
    return Application && Application->UpdateAction(this);
}

const TMetaClass& TShortCutList::MetaClass()
{
    static const TMetaClass Class("TShortCutList", &TStringList::MetaClass(), nullptr);
    return Class;
}

TShortCut TShortCutList::ShortCuts(int Index) const
{
    return TextToShortCut(Get(Index));
}

int TShortCutList::IndexOfShortCut(TShortCut Value) const
{
    for (int I = 0; I < Count(); ++I)
        if (ShortCuts(I) == Value)
            return I;
    return -1;
}

const TMetaClass& TCustomAction::MetaClass()
{
    static const TMetaClass Class("TCustomAction", &TContainedAction::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TAction::MetaClass()
{
    static const TMetaClass Class("TAction", &TCustomAction::MetaClass(), CreateComponent<TAction>,
                                  {
                                      OBX_ROW(TAction, AutoCheck).Default(false),
                                      OBX_ROW(TAction, Caption),
                                      OBX_ROW(TAction, Checked).Default(false),
                                      OBX_ROW(TAction, DisableIfNoHandler).Default(true),
                                      OBX_ROW(TAction, Enabled).Default(true),
                                      OBX_ROW(TAction, GroupIndex).Default(0),
                                      OBX_ROW(TAction, HelpContext).Default(0),
                                      OBX_ROW(TAction, HelpKeyword),
                                      OBX_ROW(TAction, HelpType).Default(htKeyword),
                                      OBX_ROW(TAction, Hint),
                                      OBX_ROW(TAction, ImageIndex).Default(-1),
                                      OBX_ROW(TAction, ShortCut).Default(scNone),
                                      OBX_ROW(TAction, SecondaryShortCuts),
                                      OBX_ROW(TAction, Visible).Default(true),
                                      Prop<&TAction::OnExecute, &TAction::SetOnExecute>("OnExecute"),
                                      Prop<&TAction::OnHint>("OnHint"),
                                      Prop<&TAction::OnUpdate>("OnUpdate"),
                                  });
    return Class;
}

TAction::TAction(TComponent* Owner) : TCustomAction(Owner)
{
    FDisableIfNoHandler = true;
}

void TCustomAction::SetName(const std::string& Value)
{
    // A new action's caption is its name until it gets another one.
    const bool TakeName = !HasState(csLoading) && FValues.Caption == Name() && HasState(csDesigning);
    TContainedAction::SetName(Value);
    if (TakeName)
        SetCaption(Value);
}

bool TCustomAction::Execute()
{
    if (ActionList() && ActionList()->State() != asNormal)
        return false;
    Update();
    if (Enabled() && AutoCheck() && !(Checked() && GroupIndex() > 0))
        SetChecked(!Checked());
    return Enabled() && TContainedAction::Execute();
}

bool TCustomAction::Update()
{
    if (ActionList() && ActionList()->State() != asNormal)
        return false;
    const bool Handled = TContainedAction::Update();
    if (!Handled && FDisableIfNoHandler && !OnExecute() && !HasState(csDesigning) && !HasState(csLoading))
        SetEnabled(false);
    return Handled;
}

bool TCustomAction::DoHint(std::string& HintText)
{
    bool CanShow = true;
    if (OnHint)
        OnHint(HintText, CanShow);
    return CanShow;
}

bool TCustomAction::HasShortCut(TShortCut Value) const
{
    return ShortCut() == Value || FSecondaryShortCuts.IndexOfShortCut(Value) >= 0;
}

void TCustomAction::SetChecked(bool Value)
{
    if (FValues.Checked == Value)
        return;
    SetValue(&TActionValues::Checked, Value, &TActionLink::SetChecked);
    if (Value)
        UncheckGroup();
}

void TCustomAction::SetGroupIndex(int Value)
{
    if (FValues.GroupIndex == Value)
        return;
    SetValue(&TActionValues::GroupIndex, Value, &TActionLink::SetGroupIndex);
    if (Checked())
        UncheckGroup();
}

// The links have been told of the one value already.
void TCustomAction::ValueChanged()
{
    if (OnChange)
        OnChange(this);
    if (ActionList())
        ActionList()->Change();
}

void TCustomAction::UncheckGroup()
{
    if (GroupIndex() == 0 || !ActionList())
        return;
    for (int I = 0; I < ActionList()->ActionCount(); ++I) {
        auto* const Other = dynamic_cast<TCustomAction*>(ActionList()->Actions(I));
        if (Other && Other != this && Other->GroupIndex() == GroupIndex())
            Other->SetChecked(false);
    }
}

void RegisterActionClasses()
{
    RegisterClass(TActionList::MetaClass());
    RegisterClass(TAction::MetaClass());
    RegisterStandardActionClasses();
}
