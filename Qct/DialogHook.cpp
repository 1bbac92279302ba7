#include "Qct/DialogHook.h"

#include <algorithm>
#include <utility>

#include "framework/forms/Application.h"
#include "framework/forms/ColorDialog.h"
#include "framework/forms/FindDialogs.h"

WNDPROC OldWndProc = nullptr;
std::string OwnerClassName;
bool DebugDlg = false;
bool Closing = false;
std::vector<const TMetaClass*> ClassRegs;
std::vector<TDialogMessageHook> OrgDlgProc;

namespace {

constexpr UINT SwallowedMessage = 1324;
constexpr WORD FirstPushButton = 0x400;  // psh1
constexpr WORD SecondPushButton = 0x401; // psh2

TDialogWork Work;
HWND Taken = nullptr;     // the window with ComDlgProc
HWND LeftAlone = nullptr; // a dialog whose translation failed
HWND Working = nullptr;   // innermost, handlers may show another dialog

void Take(HWND Dialog, const TCommonDialog& Component)
{
    OwnerClassName = Component.ClassName();
    LeftAlone = nullptr;
    OldWndProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(Dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ComDlgProc)));
    if (!OldWndProc)
        return;
    Taken = Dialog;
    // It may be active and painted already: painting it again tells ComDlgProc.
    InvalidateRect(Dialog, nullptr, TRUE);
}

// Until the dialog is there, the active window is one of the application's forms;
// later it may be a message box of a handler.
bool TakeActive(const TCommonDialog& Component)
{
    Closing = false;
    const HWND Active = GetActiveWindow();
    const bool IsOther = Component.Handle() && Active != Component.Handle();
    if (!Active || IsOther || FindControl(Active) || Active == Application->Handle())
        return false;
    Take(Active, Component);
    return OldWndProc != nullptr;
}

void GiveBack()
{
    Closing = true;
    const HWND Dialog = std::exchange(Taken, nullptr);
    SetWindowLongPtrA(Dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(std::exchange(OldWndProc, nullptr)));
}

// Listing and translating send messages that lead here again.
void Apply(void (*Step)(HWND), HWND Dialog)
{
    if (!Step || Dialog == Working || Dialog == LeftAlone)
        return;
    const HWND Outer = std::exchange(Working, Dialog);
    try {
        Step(Dialog);
    } catch (...) {
        // No exception may pass through the system's code, and the error would
        // come again with each painting.
        LeftAlone = Dialog;
        Application->HandleException(nullptr);
    }
    Working = Outer;
}

void Show(HWND Dialog)
{
    if (!DebugDlg)
        return Apply(Work.Translate, Dialog);
    Apply(Work.List, Dialog);
    PostMessageA(Dialog, WM_CLOSE, 0, 0);
}

} // namespace

void SetDialogWork(const TDialogWork& NewWork)
{
    Work = NewWork;
}

bool RegisterDialogClass(const TMetaClass* Class)
{
    const bool Possible = Class && Class->InheritsFrom(TCommonDialog::MetaClass());
    if (!Possible || std::find(ClassRegs.begin(), ClassRegs.end(), Class) != ClassRegs.end())
        return false;
    ClassRegs.push_back(Class);
    OrgDlgProc.push_back(DialogMessageHook(*Class));
    const bool Finds = Class->InheritsFrom(TFindDialog::MetaClass());
    SetDialogMessageHook(*Class, Finds ? &TFindDlgHook::MessageHook : &TCommonDlgHook::MessageHook);
    return true;
}

bool UnRegisterDialogClass(const TMetaClass* Class)
{
    const auto Found = std::find(ClassRegs.begin(), ClassRegs.end(), Class);
    if (Found == ClassRegs.end())
        return false;
    const auto Former = OrgDlgProc.begin() + (Found - ClassRegs.begin());
    SetDialogMessageHook(*Class, *Former);
    OrgDlgProc.erase(Former);
    ClassRegs.erase(Found);
    return true;
}

void EndDialogHooks()
{
    if (Taken)
        GiveBack();
    while (!ClassRegs.empty())
        UnRegisterDialogClass(ClassRegs.front());
}

bool TFindDlgHook::MessageHook(TCommonDialog& Self, TMessage& Msg)
{
    // Handlers of the find message may destroy the dialog.
    const UINT Kind = Msg.Msg;
    const auto Receiver = reinterpret_cast<HWND>(Msg.WParam);
    if (Kind == WM_CREATE)
        Closing = false;
    else if (Kind == WM_KILLFOCUS && !OldWndProc && !Closing && Receiver)
        Take(Receiver, Self);
    return static_cast<TFindDialog&>(Self).TFindDialog::MessageHook(Msg);
}

bool TCommonDlgHook::MessageHook(TCommonDialog& Self, TMessage& Msg)
{
    const bool Result = Self.TCommonDialog::MessageHook(Msg);
    if (OldWndProc)
        return Result;
    if (Msg.Msg == WM_WINDOWPOSCHANGED)
        TakeActive(Self);
    else if (Msg.Msg == WM_ENTERIDLE && Self.InheritsFrom(TColorDialog::MetaClass()) && TakeActive(Self))
        SendMessageA(Taken, WM_ACTIVATE, 0, 0);
    return Result;
}

LRESULT CALLBACK ComDlgProc(HWND Dialog, UINT Msg, WPARAM WParam, LPARAM LParam)
{
    LRESULT Result = 1;
    if (Msg != SwallowedMessage && OldWndProc)
        Result = CallWindowProcA(OldWndProc, Dialog, Msg, WParam, LParam);
    // The dialog may have gone, and another one been taken, meanwhile.
    if (Dialog != Taken)
        return Result;
    switch (Msg) {
    case WM_CLOSE:
    case WM_DESTROY:
        GiveBack();
        break;
    case WM_ACTIVATE:
    case WM_CTLCOLORDLG:
        Show(Dialog);
        break;
    case WM_COMMAND:
        if (LOWORD(WParam) == FirstPushButton || LOWORD(WParam) == SecondPushButton)
            Apply(Work.Translate, Dialog);
        break;
    default:
        break;
    }
    return Result;
}
