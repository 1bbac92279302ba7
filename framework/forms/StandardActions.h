// Commands that work without a handler: editing, windows, help, files.
#pragma once

#include "framework/forms/Actions.h"

class TCustomEdit;

// An action that never is disabled for want of a handler.
class TStandardAction : public TAction {
    OBX_CLASS(TAction)
public:
    explicit TStandardAction(TComponent* Owner) : TAction(Owner) { FDisableIfNoHandler = false; }
};

// Acts on the edit that has the focus.
class TEditAction : public TStandardAction {
    OBX_CLASS(TStandardAction)
public:
    using TStandardAction::TStandardAction;
    bool HandlesTarget(TObject* Target) override;
    void UpdateTarget(TObject* Target) override;
    void ExecuteTarget(TObject* Target) override;

protected:
    virtual bool CanAct(TCustomEdit& Edit);
    virtual void Act(TCustomEdit&) {}
};

#define OBX_EDIT_ACTION(Name)                                                                                \
    class Name : public TEditAction {                                                                        \
        OBX_CLASS(TEditAction)                                                                               \
    public:                                                                                                  \
        using TEditAction::TEditAction;                                                                      \
                                                                                                             \
    protected:                                                                                               \
        bool CanAct(TCustomEdit& Edit) override;                                                             \
        void Act(TCustomEdit& Edit) override;                                                                \
    };

OBX_EDIT_ACTION(TEditCut)
OBX_EDIT_ACTION(TEditCopy)
OBX_EDIT_ACTION(TEditPaste)
OBX_EDIT_ACTION(TEditSelectAll)
OBX_EDIT_ACTION(TEditUndo)
OBX_EDIT_ACTION(TEditDelete)
#undef OBX_EDIT_ACTION

// Acts on the documents of a form of style fsMDIForm.
class TWindowAction : public TStandardAction {
    OBX_CLASS(TStandardAction)
public:
    using TStandardAction::TStandardAction;
    bool HandlesTarget(TObject* Target) override;
    void UpdateTarget(TObject* Target) override;
    void ExecuteTarget(TObject* Target) override;

protected:
    virtual void Act(TCustomForm&) {}
};

#define OBX_WINDOW_ACTION(Name)                                                                              \
    class Name : public TWindowAction {                                                                      \
        OBX_CLASS(TWindowAction)                                                                             \
    public:                                                                                                  \
        using TWindowAction::TWindowAction;                                                                  \
                                                                                                             \
    protected:                                                                                               \
        void Act(TCustomForm& Form) override;                                                                \
    };

OBX_WINDOW_ACTION(TWindowClose)
OBX_WINDOW_ACTION(TWindowCascade)
OBX_WINDOW_ACTION(TWindowTileHorizontal)
OBX_WINDOW_ACTION(TWindowTileVertical)
OBX_WINDOW_ACTION(TWindowMinimizeAll)
OBX_WINDOW_ACTION(TWindowArrange)
#undef OBX_WINDOW_ACTION

// Opens the program's help.
class THelpAction : public TStandardAction {
    OBX_CLASS(TStandardAction)
public:
    using TStandardAction::TStandardAction;
    bool HandlesTarget(TObject*) override { return true; }
    void UpdateTarget(TObject* Target) override;
    void ExecuteTarget(TObject* Target) override;

protected:
    virtual int HelpCommand() const { return HELP_FINDER; }
};

class THelpContents : public THelpAction {
    OBX_CLASS(THelpAction)
public:
    using THelpAction::THelpAction;
};

class THelpTopicSearch : public THelpAction {
    OBX_CLASS(THelpAction)
public:
    using THelpAction::THelpAction;

protected:
    int HelpCommand() const override { return HELP_PARTIALKEY; }
};

class THelpOnHelp : public THelpAction {
    OBX_CLASS(THelpAction)
public:
    using THelpAction::THelpAction;

protected:
    int HelpCommand() const override { return HELP_HELPONHELP; }
};

// Closes the main form.
class TFileExit : public TStandardAction {
    OBX_CLASS(TStandardAction)
public:
    using TStandardAction::TStandardAction;
    bool HandlesTarget(TObject*) override { return true; }
    void ExecuteTarget(TObject* Target) override;
};

// Published for form files; the dialogs' own properties stay as the file has them.
class TCommonDialogAction : public TStandardAction {
    OBX_CLASS(TStandardAction)
public:
    using TStandardAction::TStandardAction;
    TNotifyEvent BeforeExecute;
    TNotifyEvent OnAccept;
    TNotifyEvent OnCancel;
};

class TFileOpen : public TCommonDialogAction {
    OBX_CLASS(TCommonDialogAction)
public:
    using TCommonDialogAction::TCommonDialogAction;
};

class TFileSaveAs : public TCommonDialogAction {
    OBX_CLASS(TCommonDialogAction)
public:
    using TCommonDialogAction::TCommonDialogAction;
};

void RegisterStandardActionClasses();
