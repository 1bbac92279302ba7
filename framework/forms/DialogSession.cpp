#include "framework/forms/DialogSession.h"

#include <algorithm>
#include <vector>

#include "framework/forms/Application.h"

namespace {

// Those under way, the innermost last.
std::vector<TDialogSession*> Sessions;

} // namespace

TDialogSession::TDialogSession(TCommonDialog& Dialog) : FDialog(&Dialog), FOver(GetActiveWindow())
{
    Dialog.FSession = this;
    Sessions.push_back(this);
}

TDialogSession::~TDialogSession()
{
    std::erase(Sessions, this);
    Application->UnhookMainWindow(FOwnerHook);
    if (FDialog) {
        FDialog->FSession = nullptr;
        FDialog->FHandle = nullptr;
    }
}

bool TDialogSession::Run(const std::function<bool()>& Show)
{
    bool Chosen = false;
    Application->RunModally([&] {
        if (!FDialog)
            return;
        FOwnerHook = Application->HookMainWindow([this](TMessage& Msg) { return HandleOwner(Msg); });
        Chosen = Show();
    });
    // A dialog that was shown has been cancelled: not all of them set the error back.
    if (!Chosen && FDialog && !FShown)
        TCommonDialog::CheckError();
    return Chosen;
}

void TDialogSession::DialogDestroyed()
{
    FDialog = nullptr;
    if (FWindow)
        PostMessageA(FWindow, WM_CLOSE, 0, 0);
}

// A window that is not known yet belongs to the dialog that is being made.
TDialogSession* TDialogSession::Of(HWND HookWindow)
{
    const auto Found = std::find_if(Sessions.begin(), Sessions.end(), [HookWindow](const auto* Session) {
        return Session->FHookWindow == HookWindow;
    });
    if (Found != Sessions.end())
        return *Found;
    return Sessions.empty() || Sessions.back()->FHookWindow ? nullptr : Sessions.back();
}

UINT_PTR TDialogSession::Hook(HWND Window, TMessage& Msg)
{
    bool Handled = false;
    if (TDialogSession* const Session = Of(Window); Session && Session->FDialog) {
        try {
            if (!Session->FHookWindow) {
                Session->FHookWindow = Window;
                Session->FWindow = Session->FDialog->DialogWindow(Window);
            }
            Handled = Session->HandleHook(Msg);
        } catch (...) {
            Application->HandleException(Session->FDialog);
        }
    }
    if (Msg.Msg == WM_INITDIALOG)
        return TRUE; // the focus goes where the dialog wants it
    if (!Handled)
        return FALSE;
    // Some messages are answered by the return value, the others in this place.
    SetWindowLongPtrA(Window, DWLP_MSGRESULT, Msg.Result);
    return Msg.Result ? static_cast<UINT_PTR>(Msg.Result) : TRUE;
}

bool TDialogSession::HandleHook(TMessage& Msg)
{
    const bool Ends = Msg.Msg == WM_DESTROY;
    if (!FInitialised && FDialog->IsInitialised(Msg))
        Initialised();
    if (!Ends)
        AnnouncePosition();
    const bool Handled = Route(Msg) || (FDialog && FDialog->HookMessage(FHookWindow, Msg));
    if (Ends)
        Destroyed();
    return Handled;
}

// The messages of the owner belong to the innermost dialog.
bool TDialogSession::HandleOwner(TMessage& Msg)
{
    if (Sessions.back() != this)
        return false;
    AnnouncePosition();
    return Route(Msg);
}

void TDialogSession::Initialised()
{
    FInitialised = true;
    FShown = true;
    FDialog->FHandle = FWindow;
    CentreWindow(FWindow, FOver);
    FDialog->DoShow();
}

void TDialogSession::Destroyed()
{
    if (!FInitialised || !FDialog)
        return;
    FInitialised = false;
    FDialog->DoClose();
    if (FDialog)
        FDialog->FHandle = nullptr;
}

// Not every dialog of the system tells its hook procedure where it is: those for
// files have a hook window that is never moved.
void TDialogSession::AnnouncePosition()
{
    if (!FInitialised || FAnnounced || GetActiveWindow() != FWindow)
        return;
    FAnnounced = true;
    SetWindowPos(FHookWindow, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    InvalidateRect(FWindow, nullptr, TRUE);
}

bool TDialogSession::Route(TMessage& Msg)
{
    if (!FDialog)
        return false;
    if (Msg.Msg == WM_WINDOWPOSCHANGED && (!FInitialised || GetActiveWindow() != FWindow))
        return false;
    return FDialog->RouteMessage(Msg);
}
