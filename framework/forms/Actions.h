// Actions and the lists that hold them. What links them to controls and menu
// items is in BasicAction.h, ActionLinks.h and MenuItems.h; standard commands
// are in StandardActions.h.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/Application.h"
#include "framework/rtl/Strings.h"

class TContainedAction;
class TCustomImageList;

OBX_ENUM(TActionListState, asNormal, asSuspended, asSuspendedEnabled)

OBX_EVENT(THintEvent, std::string&, bool&)

// Holds actions, in the order of the form file; they are its children there and
// are owned by the form.
class TCustomActionList : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TCustomActionList(TComponent* Owner) : TComponent(Owner) {}
    ~TCustomActionList() override;

    int ActionCount() const { return static_cast<int>(FActions.size()); }
    // An index outside raises EListError.
    TContainedAction* Actions(int Index) const;
    void AddAction(TContainedAction* Action);
    void RemoveAction(TContainedAction* Action);

    // Carries out the action with the shortcut of a key message; true if one did.
    bool IsShortCut(TMessage& Message);
    // OnExecute and OnUpdate: true when the handler took the action.
    bool ExecuteAction(TBasicAction* Action);
    bool UpdateAction(TBasicAction* Action);
    void Change();

    // Published by action lists.
    TCustomImageList* Images() const { return FImages; }
    void SetImages(TCustomImageList* Value);
    TActionListState State() const { return FState; }
    // asSuspended: actions do nothing; asSuspendedEnabled: and look enabled.
    void SetState(TActionListState Value);
    TNotifyEvent OnChange;
    TActionEvent OnExecute;
    TActionEvent OnUpdate;

    void Notification(TComponent* Component, TOperation Operation) override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

private:
    friend class TContainedAction;
    std::vector<TContainedAction*> FActions;
    TCustomImageList* FImages = nullptr;
    TActionListState FState = asNormal;
};

class TActionList : public TCustomActionList {
    OBX_CLASS(TCustomActionList)
public:
    explicit TActionList(TComponent* Owner) : TCustomActionList(Owner) {}
};

class TContainedAction : public TBasicAction {
    OBX_CLASS(TBasicAction)
public:
    explicit TContainedAction(TComponent* Owner) : TBasicAction(Owner) {}
    ~TContainedAction() override;

    TCustomActionList* ActionList() const { return FActionList; }
    void SetActionList(TCustomActionList* Value);
    // The position in the list; -1 without one.
    int Index() const;
    void SetIndex(int Value);

    // Published. Groups actions where the user arranges menus.
    OBX_PROPERTY(std::string, Category, {})
public:
    bool Execute() override;
    bool Update() override;
    TComponent* GetParentComponent() const override { return FActionList; }
    bool HasParent() const override { return FActionList != nullptr; }
    void SetParentComponent(TComponent* Value) override;

private:
    friend class TCustomActionList;
    TCustomActionList* FActionList = nullptr;
};

// Further shortcuts of an action, one text a line.
class TShortCutList : public TStringList {
    OBX_CLASS(TStringList)
public:
    TShortCut ShortCuts(int Index) const;
    int IndexOfShortCut(TShortCut Value) const;
};

// An action with a caption and a state. A change reaches every linked control
// and menu item that still shows what the action had before.
class TCustomAction : public TContainedAction {
    OBX_CLASS(TContainedAction)
public:
    explicit TCustomAction(TComponent* Owner) : TContainedAction(Owner) {}

    const TActionValues* Values() const override { return &FValues; }

    // Does what the action does if it is enabled; true when something did it.
    bool Execute() override;
    bool Update() override;
    // The text of a hint window; false for none.
    bool DoHint(std::string& HintText);
    bool HasShortCut(TShortCut Value) const;

    // Published by actions.
    bool AutoCheck() const { return FValues.AutoCheck; }
    void SetAutoCheck(bool Value) { SetValue(&TActionValues::AutoCheck, Value, &TActionLink::SetAutoCheck); }
    const std::string& Caption() const { return FValues.Caption; }
    void SetCaption(const std::string& Value)
    {
        SetValue(&TActionValues::Caption, Value, &TActionLink::SetCaption);
    }
    bool Checked() const { return FValues.Checked; }
    // Actions of the same group above 0 are unchecked by one that gets checked.
    void SetChecked(bool Value);
    bool Enabled() const { return FValues.Enabled; }
    void SetEnabled(bool Value) { SetValue(&TActionValues::Enabled, Value, &TActionLink::SetEnabled); }
    int GroupIndex() const { return FValues.GroupIndex; }
    void SetGroupIndex(int Value);
    THelpContext HelpContext() const { return FValues.HelpContext; }
    void SetHelpContext(THelpContext Value)
    {
        SetValue(&TActionValues::HelpContext, Value, &TActionLink::SetHelpContext);
    }
    const std::string& HelpKeyword() const { return FValues.HelpKeyword; }
    void SetHelpKeyword(const std::string& Value)
    {
        SetValue(&TActionValues::HelpKeyword, Value, &TActionLink::SetHelpKeyword);
    }
    THelpType HelpType() const { return FValues.HelpType; }
    void SetHelpType(THelpType Value)
    {
        SetValue(&TActionValues::HelpType, Value, &TActionLink::SetHelpType);
    }
    const std::string& Hint() const { return FValues.Hint; }
    void SetHint(const std::string& Value) { SetValue(&TActionValues::Hint, Value, &TActionLink::SetHint); }
    int ImageIndex() const { return FValues.ImageIndex; }
    void SetImageIndex(int Value)
    {
        SetValue(&TActionValues::ImageIndex, Value, &TActionLink::SetImageIndex);
    }
    TShortCut ShortCut() const { return FValues.ShortCut; }
    void SetShortCut(TShortCut Value)
    {
        SetValue(&TActionValues::ShortCut, Value, &TActionLink::SetShortCut);
    }
    bool Visible() const { return FValues.Visible; }
    void SetVisible(bool Value) { SetValue(&TActionValues::Visible, Value, &TActionLink::SetVisible); }
    TShortCutList* SecondaryShortCuts() const { return const_cast<TShortCutList*>(&FSecondaryShortCuts); }
    void SetSecondaryShortCuts(TShortCutList* Value) { FSecondaryShortCuts.Assign(Value); }
    // While nothing handles OnExecute, updating disables the action.
    OBX_PROPERTY(bool, DisableIfNoHandler, false)
public:
    THintEvent OnHint;

    void SetName(const std::string& Value) override;

private:
    template<class T, class TParam>
    void SetValue(T TActionValues::*Member, const T& Value, void (TActionLink::*Setter)(TParam));
    void ValueChanged();
    void UncheckGroup();

    TActionValues FValues;
    TShortCutList FSecondaryShortCuts;
};

class TAction : public TCustomAction {
    OBX_CLASS(TCustomAction)
public:
    explicit TAction(TComponent* Owner);
};

template<class T, class TParam>
void TCustomAction::SetValue(T TActionValues::*Member, const T& Value, void (TActionLink::*Setter)(TParam))
{
    if (FValues.*Member == Value)
        return;
    const std::vector<TBasicActionLink*> Clients = FClients;
    for (TBasicActionLink* const Client : Clients)
        if (auto* const Link = dynamic_cast<TActionLink*>(Client))
            (Link->*Setter)(Value);
    FValues.*Member = Value;
    ValueChanged();
}

// Registers actions, action lists and the standard actions.
void RegisterActionClasses();
