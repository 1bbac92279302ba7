// What all of the system's dialogs have in common as components.
#pragma once

#include <functional>
#include <span>

#include "framework/forms/Form.h"

class TDialogSession;

// A dialog of the system: its properties set it up, Execute shows it, and then its
// properties tell what the user chose. When the user gives up they are as before.
//
// OnShow comes when the dialog is about to appear, OnClose when it is being
// destroyed. A handler may destroy the component: its dialog closes, and no event
// follows.
class TCommonDialog : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TCommonDialog(TComponent* Owner) : TComponent(Owner) {}
    ~TCommonDialog() override;

    // The dialog's window while it is shown, else null.
    HWND Handle() const { return FHandle; }

    // True when the user has chosen something. The program's other windows are
    // disabled meanwhile and the dialog stands over the active one. Throws
    // EInvalidOperation while it is shown already, and with the reason when the
    // system cannot show it.
    virtual bool Execute() = 0;

    // Sees the messages that belong to the dialog; true swallows one, Result is its
    // answer then. Of a modal dialog these are what the system gives to the dialog's
    // hook procedure, and those of the application's window (WM_ENTERIDLE among
    // them). WM_WINDOWPOSCHANGED comes only once the dialog is initialised and its
    // window the active one, and then at least once; after that its background is
    // painted again. Answers the message of the help button.
    virtual bool MessageHook(TMessage& Msg);

    // Published by all dialogs.
    OBX_PROPERTY(bool, Ctl3D, true)
    // What the dialog's help button asks the application for.
    OBX_PROPERTY(THelpContext, HelpContext, 0)
public:
    TNotifyEvent OnClose;
    TNotifyEvent OnShow;

protected:
    friend class TDialogSession;
    friend class TFindSession;

    enum class TDialogEnd { Chosen, Cancelled, Destroyed };
    // Runs Show, a call of the system's modal dialog with HookProc as its hook
    // procedure. After Destroyed the component is gone.
    TDialogEnd RunModal(const std::function<bool()>& Show);
    static UINT_PTR CALLBACK HookProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam);
    // Throws EInvalidOperation when the system could not show its last dialog.
    static void CheckError();
    // The window that owns the dialog.
    static HWND OwnerWindow();

    // The dialog's window, by the one that the hook procedure is called for.
    virtual HWND DialogWindow(HWND HookWindow) const { return HookWindow; }
    // Whether this message says that the dialog is complete but not shown yet.
    virtual bool IsInitialised(const TMessage& Msg) const { return Msg.Msg == WM_INITDIALOG; }
    // What the dialog of this class tells its hook procedure; true when answered.
    virtual bool HookMessage(HWND, TMessage&) { return false; }
    virtual void DoShow();
    virtual void DoClose();

    // Hands a message to the entry of the dialog's class.
    bool RouteMessage(TMessage& Msg);
    // Asks the application for HelpContext; false without one.
    bool Help();

    HWND FHandle = nullptr;

private:
    TDialogSession* FSession = nullptr;
};

// How messages reach the dialogs of exactly that class, not those of its
// descendants: by default through a function that calls the virtual MessageHook.
// The entry is looked up for every message; null brings the default back.
using TDialogMessageHook = bool (*)(TCommonDialog& Dialog, TMessage& Msg);
TDialogMessageHook DialogMessageHook(const TMetaClass& Class);
void SetDialogMessageHook(const TMetaClass& Class, TDialogMessageHook Hook);

// Options of a dialog as the system's flags; Flags has one for each option.
template<class TOption>
DWORD FlagsOf(TSet<TOption> Options, std::span<const DWORD> Flags)
{
    DWORD Result = 0;
    for (size_t Index = 0; Index < Flags.size(); ++Index)
        if (Options.Contains(static_cast<TOption>(Index)))
            Result |= Flags[Index];
    return Result;
}

// Moves a window over the middle of another one, of the main form or of the
// screen; all of it stays visible.
void CentreWindow(HWND Window, HWND Over);
