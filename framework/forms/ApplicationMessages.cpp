// The program's message loop and the messages of its own window.
#include "framework/forms/Application.h"
#include "framework/forms/Hints.h"
#include "framework/rtl/SysUtils.h"

namespace {

bool IsKeyMessage(UINT Msg)
{
    return Msg >= WM_KEYFIRST && Msg <= WM_KEYLAST;
}

} // namespace

LRESULT CALLBACK TApplication::WindowProc(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    if (!Application || Application->FHandle != Window)
        return DefWindowProcA(Window, Msg, WParam, LParam);
    TMessage Message{Msg, WParam, LParam, 0};
    try {
        Application->WndProc(Message);
    } catch (...) {
        Application->HandleException(Application);
    }
    return Message.Result;
}

void TApplication::WndProc(TMessage& Message)
{
    const auto Hooks = FHooks;
    for (const auto& [Cookie, Hook] : Hooks)
        if (Hook(Message))
            return;
    switch (Message.Msg) {
    case WM_CLOSE:
        if (FMainForm)
            FMainForm->Close();
        return;
    case WM_ACTIVATEAPP:
        FActive = Message.WParam != 0;
        CancelHint();
        if (FActive && OnActivate)
            OnActivate(this);
        else if (!FActive && OnDeactivate)
            OnDeactivate(this);
        break;
    case WM_QUERYENDSESSION:
        Message.Result = 1;
        for (int Index = 0; Index < Screen->CustomFormCount(); ++Index)
            if (!Screen->CustomForms(Index)->CloseQuery())
                Message.Result = 0;
        return;
    case WM_SETTINGCHANGE:
        for (int Index = 0; Index < Screen->CustomFormCount(); ++Index)
            Screen->CustomForms(Index)->Perform(CM_WININICHANGE, Message.WParam, Message.LParam);
        if (OnSettingChange)
            OnSettingChange(this);
        break;
    default:
        break;
    }
    Message.Result = DefWindowProcA(FHandle, Message.Msg, Message.WParam, Message.LParam);
}

bool TApplication::ProcessMessage()
{
    MSG Msg{};
    if (!PeekMessageA(&Msg, nullptr, 0, 0, PM_REMOVE))
        return false;
    if (Msg.message == WM_QUIT) {
        FTerminated = true;
        return true;
    }
    if (!Dispatch(Msg)) {
        TranslateMessage(&Msg);
        DispatchMessageA(&Msg);
    }
    return true;
}

// True when the message is done with before it reaches its window.
bool TApplication::Dispatch(MSG& Msg)
{
    bool Handled = false;
    if (OnMessage)
        OnMessage(Msg, Handled);
    if (Handled)
        return true;
    FollowMouse(Msg);
    return IsMDIMsg(Msg) || IsDlgMsg(Msg) || IsKeyMsg(Msg);
}

void TApplication::ProcessMessages()
{
    while (ProcessMessage()) {
    }
}

void TApplication::HandleMessage()
{
    if (!ProcessMessage())
        DoIdle();
}

void TApplication::DoIdle()
{
    bool Done = true;
    try {
        if (OnIdle)
            OnIdle(this, Done);
        if (Done)
            for (int Index = 0; Index < Screen->CustomFormCount(); ++Index)
                if (TCustomForm* const Form = Screen->CustomForms(Index); Form->Showing() && Form->Enabled())
                    Form->UpdateActions();
    } catch (...) {
        HandleException(this);
    }
    MSG Msg{};
    if (Done && !FTerminated && !PeekMessageA(&Msg, nullptr, 0, 0, PM_NOREMOVE))
        WaitMessage();
}

bool TApplication::IsMDIMsg(MSG& Msg)
{
    return FMainForm && FMainForm->FormStyle() == fsMDIForm && FMainForm->ClientHandle() &&
           Screen->ActiveForm() && Screen->ActiveForm()->FormStyle() == fsMDIChild &&
           TranslateMDISysAccel(FMainForm->ClientHandle(), &Msg);
}

// Keys are offered to the nearest control's form before the window has them.
bool TApplication::IsKeyMsg(MSG& Msg)
{
    if (!IsKeyMessage(Msg.message))
        return false;
    HWND Window = GetCapture();
    if (!Window) {
        Window = Msg.hwnd;
        if (FMainForm && FMainForm->ClientHandle() && Window == FMainForm->ClientHandle())
            Window = FMainForm->Handle();
        else
            while (Window && !FindControl(Window))
                Window = GetParent(Window);
    } else if (!FindControl(Window)) {
        return false;
    }
    return Window && SendMessageA(Window, CN_BASE + Msg.message, Msg.wParam, Msg.lParam) != 0;
}

// Dialogs that are not forms, such as those for finding and replacing.
bool TApplication::IsDlgMsg(MSG& Msg)
{
    return DialogHandle && IsWindow(DialogHandle) && IsDialogMessageA(DialogHandle, &Msg);
}

void TApplication::ActivateHint(const TPoint& CursorPos)
{
    FHints->ShowAt(FindDragTarget(CursorPos, true), CursorPos);
}

void TApplication::CancelHint()
{
    if (FHints)
        FHints->Cancel();
}

// Keys and clicks end a hint.
void TApplication::FollowMouse(const MSG& Msg)
{
    if (Msg.message == WM_MOUSEMOVE) {
        POINT Point{static_cast<short>(LOWORD(Msg.lParam)), static_cast<short>(HIWORD(Msg.lParam))};
        ClientToScreen(Msg.hwnd, &Point);
        TControl* const Control = FindDragTarget(Point, true);
        MouseMoved(Control);
        FHints->MouseMove(Control, Point);
    } else if ((Msg.message >= WM_KEYFIRST && Msg.message <= WM_KEYLAST) ||
               (Msg.message > WM_MOUSEMOVE && Msg.message <= WM_MOUSELAST) ||
               Msg.message == WM_NCLBUTTONDOWN) {
        CancelHint();
    }
}

void TApplication::MouseMoved(TControl* Control)
{
    if (Control == FMouseControl)
        return;
    if (FMouseControl) {
        TControl* const Left = FMouseControl;
        FMouseControl = nullptr;
        Left->Perform(CM_MOUSELEAVE);
    }
    FMouseControl = Control;
    if (!Control)
        return;
    Control->FreeNotification(this);
    Control->Perform(CM_MOUSEENTER);
    std::string Hint;
    for (TControl* Source = Control; Source && Hint.empty(); Source = Source->Parent())
        Hint = Source->Hint();
    SetHint(GetLongHint(Hint));
}
