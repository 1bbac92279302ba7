// A modal dialog of the system while it runs. For TCommonDialog.
#pragma once

#include <functional>

#include "framework/forms/CommonDialog.h"

// Leads the dialog's messages to its component, as long as that lives. Sessions
// nest: a handler of one dialog may show another.
class TDialogSession {
public:
    explicit TDialogSession(TCommonDialog& Dialog);
    ~TDialogSession();
    TDialogSession(const TDialogSession&) = delete;
    TDialogSession& operator=(const TDialogSession&) = delete;

    // Whether the user has chosen something. Throws when the system could not show
    // the dialog.
    bool Run(const std::function<bool()>& Show);
    // Null once the component has been destroyed.
    TCommonDialog* Dialog() const { return FDialog; }
    void DialogDestroyed();

    // What the hook procedures of all dialogs do.
    static UINT_PTR Hook(HWND Window, TMessage& Msg);

private:
    static TDialogSession* Of(HWND HookWindow);
    bool HandleHook(TMessage& Msg);
    bool HandleOwner(TMessage& Msg);
    void Initialised();
    void Destroyed();
    void AnnouncePosition();
    bool Route(TMessage& Msg);

    TCommonDialog* FDialog;
    HWND FOver = nullptr;       // was active before
    HWND FHookWindow = nullptr; // what the hook procedure is called for
    HWND FWindow = nullptr;
    bool FInitialised = false; // and not destroyed yet
    bool FShown = false;
    bool FAnnounced = false;
    int FOwnerHook = 0;
};
