#include "framework/forms/CommonDialog.h"

#include <algorithm>
#include <unordered_map>

#include "framework/forms/Application.h"
#include "framework/forms/DialogSession.h"
#include "framework/rtl/SysUtils.h"

namespace {

std::unordered_map<const TMetaClass*, TDialogMessageHook>& MessageHooks()
{
    static std::unordered_map<const TMetaClass*, TDialogMessageHook> Hooks;
    return Hooks;
}

bool CallMessageHook(TCommonDialog& Dialog, TMessage& Msg)
{
    return Dialog.MessageHook(Msg);
}

} // namespace

const TMetaClass& TCommonDialog::MetaClass()
{
    static const TMetaClass Class("TCommonDialog", &TComponent::MetaClass(), nullptr,
                                  {
                                      OBX_ROW(TCommonDialog, Ctl3D).Default(true),
                                      OBX_ROW(TCommonDialog, HelpContext).Default(0),
                                      Prop<&TCommonDialog::OnClose>("OnClose"),
                                      Prop<&TCommonDialog::OnShow>("OnShow"),
                                  });
    return Class;
}

TDialogMessageHook DialogMessageHook(const TMetaClass& Class)
{
    const auto Found = MessageHooks().find(&Class);
    return Found == MessageHooks().end() ? &CallMessageHook : Found->second;
}

void SetDialogMessageHook(const TMetaClass& Class, TDialogMessageHook Hook)
{
    if (Hook && Hook != &CallMessageHook)
        MessageHooks()[&Class] = Hook;
    else
        MessageHooks().erase(&Class);
}

void CentreWindow(HWND Window, HWND Over)
{
    TRect Area = Screen->WorkAreaRect();
    if (!IsWindowVisible(Over) && Application->MainForm() && Application->MainForm()->HandleAllocated())
        Over = Application->MainForm()->Handle();
    if (IsWindowVisible(Over) && !IsIconic(Over))
        GetWindowRect(Over, &Area);
    MONITORINFO Monitor{};
    Monitor.cbSize = sizeof Monitor;
    if (!GetMonitorInfoA(MonitorFromWindow(Over, MONITOR_DEFAULTTOPRIMARY), &Monitor))
        Monitor.rcWork = Screen->WorkAreaRect();
    TRect Place{};
    GetWindowRect(Window, &Place);
    const auto Middle = [](LONG From, LONG To, LONG Size, LONG Least, LONG Most) {
        return static_cast<int>(std::max(std::min(From + (To - From - Size) / 2, Most - Size), Least));
    };
    SetWindowPos(Window, nullptr,
                 Middle(Area.left, Area.right, RectWidth(Place), Monitor.rcWork.left, Monitor.rcWork.right),
                 Middle(Area.top, Area.bottom, RectHeight(Place), Monitor.rcWork.top, Monitor.rcWork.bottom),
                 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

TCommonDialog::~TCommonDialog()
{
    if (FSession)
        FSession->DialogDestroyed();
}

TCommonDialog::TDialogEnd TCommonDialog::RunModal(const std::function<bool()>& Show)
{
    if (FSession)
        throw EInvalidOperation(SCannotShowModal);
    TDialogSession Session(*this);
    const bool Chosen = Session.Run(Show);
    if (!Session.Dialog())
        return TDialogEnd::Destroyed;
    return Chosen ? TDialogEnd::Chosen : TDialogEnd::Cancelled;
}

UINT_PTR CALLBACK TCommonDialog::HookProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    TMessage Message{Msg, WParam, LParam, 0};
    return TDialogSession::Hook(Window, Message);
}

void TCommonDialog::CheckError()
{
    switch (const DWORD Error = CommDlgExtendedError()) {
    case 0:
    // The system itself has told the user.
    case PDERR_NODEFAULTPRN:
    case PDERR_PRINTERNOTFOUND:
    case PDERR_NODEVICES:
        return;
    case FNERR_INVALIDFILENAME:
        throw EInvalidOperation(SInvalidDialogFileName);
    default:
        throw EInvalidOperation(Format(SDialogError, {static_cast<int>(Error)}));
    }
}

HWND TCommonDialog::OwnerWindow()
{
    return Application->Handle();
}

bool TCommonDialog::RouteMessage(TMessage& Msg)
{
    return DialogMessageHook(ClassType())(*this, Msg);
}

bool TCommonDialog::MessageHook(TMessage& Msg)
{
    static const UINT HelpMessage = RegisterWindowMessageA(HELPMSGSTRINGA);
    return Msg.Msg == HelpMessage && Help();
}

bool TCommonDialog::Help()
{
    if (FHelpContext == 0)
        return false;
    Application->HelpContext(FHelpContext);
    return true;
}

void TCommonDialog::DoShow()
{
    if (OnShow)
        OnShow(this);
}

void TCommonDialog::DoClose()
{
    if (OnClose)
        OnClose(this);
}
