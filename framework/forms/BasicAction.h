// Actions: one command that several controls and menu items offer. The chain:
// a client (control, menu item) has an action link, the link has an action.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Types.h"

class TBasicAction;

// Carries the changes of an action to one client. Owned by the client.
class TBasicActionLink : public TObject {
    OBX_CLASS(TObject)
public:
    explicit TBasicActionLink(TObject* Client);
    // Leaves the action.
    ~TBasicActionLink() override;

    TBasicAction* Action() const { return FAction; }
    virtual void SetAction(TBasicAction* Value);

    // Carries out the action for the client; true when it was handled.
    virtual bool Execute(TComponent* Component = nullptr);
    virtual bool Update();

    // Calls OnChange; the action has changed.
    virtual void Change();
    TNotifyEvent OnChange;

protected:
    friend class TBasicAction;
    // Keeps the client in mind in the type that the link needs.
    virtual void AssignClient(TObject*) {}
    virtual bool IsOnExecuteLinked() const { return true; }
    virtual void SetOnExecute(const TNotifyEvent&) {}

private:
    TBasicAction* FAction = nullptr;
};

// What an action shows through its clients.
struct TActionValues {
    std::string Caption;
    std::string Hint;
    std::string HelpKeyword;
    THelpContext HelpContext = 0;
    THelpType HelpType = htKeyword;
    bool Enabled = true;
    bool Checked = false;
    bool Visible = true;
    bool AutoCheck = false;
    int GroupIndex = 0;
    int ImageIndex = -1;
    TShortCut ShortCut = scNone;
};

class TBasicAction : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TBasicAction(TComponent* Owner);
    ~TBasicAction() override;

    // Calls OnExecute; true when there was a handler.
    virtual bool Execute();
    virtual bool Update();
    bool ChangesOthers() const override { return true; }
    // For actions that act on a target, such as the control with the focus.
    virtual bool HandlesTarget(TObject*) { return false; }
    virtual void UpdateTarget(TObject*) {}
    virtual void ExecuteTarget(TObject*) {}

    void RegisterChanges(TBasicActionLink* Link);
    void UnRegisterChanges(TBasicActionLink* Link);

    // Null for actions that have nothing to show.
    virtual const TActionValues* Values() const { return nullptr; }

    // What caused the execution (a button, a menu item); null when unknown.
    TComponent* ActionComponent() const { return FActionComponent; }
    void SetActionComponent(TComponent* Value);

    const TNotifyEvent& OnExecute() const { return FOnExecute; }
    void SetOnExecute(const TNotifyEvent& Value);
    TNotifyEvent OnUpdate;
    TNotifyEvent OnChange;

    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    // Tells OnChange and every link.
    virtual void Change();

    std::vector<TBasicActionLink*> FClients;
    TNotifyEvent FOnExecute;

private:
    TComponent* FActionComponent = nullptr;
};
