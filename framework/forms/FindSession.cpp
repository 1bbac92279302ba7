#include "framework/forms/FindSession.h"

#include "framework/forms/Application.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr char OwnerClassName[] = "TFindDialogOwner";

// Bytes for a text with its zero, the most that the system takes.
constexpr WORD TextSize = 0xFFFF;

std::string TextBuffer(const std::string& Text)
{
    std::string Result(CutAtCharacter(Text, TextSize - 1));
    Result.resize(TextSize);
    return Result;
}

HWND ActiveFormWindow()
{
    TCustomForm* const Form = Screen->ActiveCustomForm();
    return Form ? GetAncestor(Form->Handle(), GA_ROOT) : Application->Handle();
}

} // namespace

// Keeps the session while a message is answered.
class TFindSession::TBusy {
public:
    explicit TBusy(TFindSession& Session) : FSession(Session) { ++FSession.FDepth; }
    ~TBusy()
    {
        if (--FSession.FDepth == 0 && !FSession.FDialog && !FSession.FOwner)
            delete &FSession;
    }
    TBusy(const TBusy&) = delete;
    TBusy& operator=(const TBusy&) = delete;

private:
    TFindSession& FSession;
};

TFindSession::TFindSession(TFindDialog& Dialog)
    : FDialog(&Dialog), FFindText(TextBuffer(Dialog.FindText())),
      FReplaceText(TextBuffer(Dialog.ReplaceText())), FForm(ActiveFormWindow())
{
    FData.lStructSize = sizeof FData;
    FData.lpstrFindWhat = FFindText.data();
    FData.lpstrReplaceWith = FReplaceText.data();
    FData.wFindWhatLen = TextSize;
    FData.wReplaceWithLen = TextSize;
    FData.lpfnHook = &HookProc;
}

bool TFindSession::Show(TFindDialog::TShowFunction Function, DWORD Flags)
{
    const TBusy Busy(*this);
    WNDCLASSA Class{};
    Class.lpfnWndProc = &OwnerProc;
    Class.hInstance = ModuleInstance();
    Class.lpszClassName = OwnerClassName;
    RegisterClassA(&Class);
    FOwner =
        CreateWindowExA(0, OwnerClassName, "", WS_POPUP, 0, 0, 0, 0, FForm, nullptr, ModuleInstance(), this);
    FData.hwndOwner = FOwner;
    FData.Flags = Flags | FR_ENABLEHOOK;
    if (!FOwner || !FDialog)
        return false;
    // One that was shown has gone again, with its form.
    if (!Function(&FData) && !FShown)
        TCommonDialog::CheckError();
    return FWindow && FDialog;
}

// Does what the dialog's own button does.
void TFindSession::Close()
{
    if (FDepth > 0)
        PostMessageA(FWindow, WM_COMMAND, IDCANCEL, 0);
    else
        SendMessageA(FWindow, WM_COMMAND, IDCANCEL, 0);
}

bool TFindSession::IsFindMessage(const TMessage& Msg) const
{
    static const UINT FindMessage = RegisterWindowMessageA(FINDMSGSTRINGA);
    return Msg.Msg == FindMessage && Msg.LParam == reinterpret_cast<LPARAM>(&FData);
}

void TFindSession::Release(std::unique_ptr<TFindSession> Session)
{
    if (!Session)
        return;
    Session->FDialog = nullptr;
    TFindSession& Last = *Session.release();
    const TBusy Busy(Last);
    if (Last.FDepth > 1) {
        ShowWindow(Last.FWindow, SW_HIDE);
        PostMessageA(Last.FWindow, WM_CLOSE, 0, 0);
        PostMessageA(Last.FOwner, WM_CLOSE, 0, 0);
        return;
    }
    if (Last.FWindow)
        DestroyWindow(Last.FWindow);
    if (Last.FOwner)
        DestroyWindow(Last.FOwner);
}

LRESULT CALLBACK TFindSession::OwnerProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    if (Msg == WM_NCCREATE) {
        const auto* const Create = reinterpret_cast<const CREATESTRUCTA*>(LParam);
        SetWindowLongPtrA(Window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(Create->lpCreateParams));
        // Handlers of WM_CREATE may already destroy the component.
        static_cast<TFindSession*>(Create->lpCreateParams)->FOwner = Window;
    }
    auto* const Session = reinterpret_cast<TFindSession*>(GetWindowLongPtrA(Window, GWLP_USERDATA));
    if (!Session || Msg == WM_NCCREATE)
        return DefWindowProcA(Window, Msg, WParam, LParam);
    TMessage Message{Msg, WParam, LParam, 0};
    return Session->HandleOwner(Window, Message);
}

LRESULT TFindSession::HandleOwner(HWND Window, TMessage& Msg)
{
    const TBusy Busy(*this);
    try {
        if (FDialog && FDialog->RouteMessage(Msg))
            return Msg.Result;
    } catch (...) {
        Application->HandleException(FDialog);
    }
    if (Msg.Msg == WM_NCDESTROY) {
        FOwner = nullptr;
        SetWindowLongPtrA(Window, GWLP_USERDATA, 0);
    }
    return DefWindowProcA(Window, Msg.Msg, Msg.WParam, Msg.LParam);
}

UINT_PTR CALLBACK TFindSession::HookProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    const HWND Owner = GetWindow(Window, GW_OWNER);
    if (auto* const Session = reinterpret_cast<TFindSession*>(GetWindowLongPtrA(Owner, GWLP_USERDATA)))
        Session->HandleDialog(Window, {Msg, WParam, LParam, 0});
    return Msg == WM_INITDIALOG;
}

void TFindSession::HandleDialog(HWND Window, const TMessage& Msg)
{
    const TBusy Busy(*this);
    try {
        if (Msg.Msg == WM_INITDIALOG)
            Initialised(Window);
        else if (Msg.Msg == WM_ACTIVATE)
            SetWantsKeys(Msg.Id() != WA_INACTIVE);
        else if (Msg.Msg == WM_DESTROY)
            Destroyed();
    } catch (...) {
        Application->HandleException(FDialog);
    }
}

void TFindSession::Initialised(HWND Window)
{
    FWindow = Window;
    FShown = true;
    CentreWindow(Window, FForm);
    if (FDialog)
        FDialog->Shown(Window);
    if (FDialog)
        SendMessageA(FOwner, WM_KILLFOCUS, reinterpret_cast<WPARAM>(Window), 0);
}

void TFindSession::Destroyed()
{
    SetWantsKeys(false);
    FWindow = nullptr;
    if (FDialog)
        FDialog->Closed();
}

void TFindSession::SetWantsKeys(bool Value)
{
    if (Value)
        Application->DialogHandle = FWindow;
    else if (Application->DialogHandle == FWindow)
        Application->DialogHandle = nullptr;
}
