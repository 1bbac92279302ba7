#include "platform/portable/Focus.h"

#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

namespace {

HWND& Foreground()
{
    static HWND Window = nullptr;
    return Window;
}

bool CanActivate(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window && Window->Has(WS_VISIBLE) && !Window->Has(WS_DISABLED) && !Window->IsChild();
}

void SendActivateApp(HWND Previous, HWND Next)
{
    const DWORD OldThread = Previous ? GetWindowThreadProcessId(Previous, nullptr) : 0;
    const DWORD NewThread = Next ? GetWindowThreadProcessId(Next, nullptr) : 0;
    if (OldThread == NewThread)
        return;
    const auto Tell = [](DWORD Thread, BOOL Active, DWORD Other) {
        if (Thread)
            for (const HWND Handle : ChildrenOf(Desktop()))
                if (GetWindowThreadProcessId(Handle, nullptr) == Thread)
                    SendMessageA(Handle, WM_ACTIVATEAPP, static_cast<WPARAM>(Active), Other);
    };
    Tell(OldThread, FALSE, NewThread);
    Tell(NewThread, TRUE, OldThread);
}

HWND MoveFocus(HWND Handle)
{
    TThread& Thread = *CurrentThread();
    const HWND Previous = Thread.Focus;
    if (Previous == Handle)
        return Previous;
    Thread.Focus = Handle;
    if (Previous) {
        SendMessageA(Previous, WM_KILLFOCUS, reinterpret_cast<WPARAM>(Handle), 0);
        if (Thread.Focus != Handle)
            return Previous;
    }
    if (Handle && IsWindow(Handle))
        SendMessageA(Handle, WM_SETFOCUS, reinterpret_cast<WPARAM>(Previous), 0);
    return Previous;
}

void SendInactive(HWND Previous, HWND Next)
{
    if (!IsWindow(Previous))
        return;
    SendMessageA(Previous, WM_NCACTIVATE, FALSE, reinterpret_cast<LPARAM>(Next));
    SendMessageA(Previous, WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, IsIconic(Previous)),
                 reinterpret_cast<LPARAM>(Next));
}

void SendActive(HWND Handle, HWND Previous, TByMouse Mouse)
{
    if (!IsWindow(Handle))
        return;
    SendMessageA(Handle, WM_NCACTIVATE, Handle == Foreground(), reinterpret_cast<LPARAM>(Previous));
    SendMessageA(Handle, WM_ACTIVATE,
                 MAKEWPARAM(Mouse == TByMouse::Yes ? WA_CLICKACTIVE : WA_ACTIVE, IsIconic(Handle)),
                 reinterpret_cast<LPARAM>(Previous));
}

} // namespace

bool ActivateWindow(HWND Handle, TByMouse Mouse, bool Focus)
{
    TThread& Thread = *CurrentThread();
    const HWND Previous = Thread.Active;
    if (Previous == Handle)
        return true;
    CBTACTIVATESTRUCT Hook{Mouse == TByMouse::Yes, Previous};
    if (Handle &&
        CallHooks(WH_CBT, HCBT_ACTIVATE, reinterpret_cast<WPARAM>(Handle), reinterpret_cast<LPARAM>(&Hook)))
        return false;
    if (Previous)
        SendInactive(Previous, Handle);
    if (Handle && !IsWindow(Handle))
        return false;
    {
        TStateLock Lock;
        Thread.Active = Handle;
        Foreground() = Handle;
        if (TWindow* const Window = Handle ? WindowOf(Handle) : nullptr) {
            Window->LastActive = Handle;
            for (TWindow* Owner = Window->Owner; Owner; Owner = Owner->Owner)
                Owner->LastActive = Handle;
        }
    }
    SendActivateApp(IsWindow(Previous) ? Previous : nullptr, Handle);
    SendActive(Handle, Previous, Mouse);
    if (Focus && Thread.Active == Handle &&
        (!Thread.Focus || !Handle || GetAncestor(Thread.Focus, GA_ROOT) != Handle))
        MoveFocus(Handle);
    return true;
}

void ActivateOther(HWND Leaving)
{
    HWND Next = nullptr;
    if (GetWindowLongPtrA(Leaving, GWL_STYLE) & WS_POPUP) {
        const HWND Owner = GetWindow(Leaving, GW_OWNER);
        const HWND Root = Owner ? GetAncestor(Owner, GA_ROOT) : nullptr;
        if (Root && CanActivate(Root))
            Next = Root;
    }
    for (HWND Lower = GetWindow(Leaving, GW_HWNDNEXT); !Next && Lower; Lower = GetWindow(Lower, GW_HWNDNEXT))
        if (CanActivate(Lower))
            Next = Lower;
    if (!Next)
        for (const HWND Handle : ChildrenOf(Desktop()))
            if (Handle != Leaving && CanActivate(Handle)) {
                Next = Handle;
                break;
            }
    if (Next && GetWindowThreadProcessId(Next, nullptr) != GetCurrentThreadId())
        Next = nullptr;
    if (!ActivateWindow(Next, TByMouse::No, true))
        ActivateWindow(nullptr, TByMouse::No, true);
}

HWND SetActiveWindow(HWND Handle)
{
    const HWND Previous = GetActiveWindow();
    if (Handle) {
        TStateLock Lock;
        const TWindow* const Window = WindowOf(Handle);
        if (!Window || Window->Thread != CurrentThread())
            return nullptr;
        if (Window->Has(WS_DISABLED) || Window->IsChild())
            return Previous;
    }
    return ActivateWindow(Handle, TByMouse::No, true) ? Previous : nullptr;
}

BOOL SetForegroundWindow(HWND Handle)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    const HWND Root = GetAncestor(Handle, GA_ROOT);
    if (Window->Thread != CurrentThread()) {
        TStateLock Lock;
        Foreground() = Root;
        return TRUE;
    }
    Foreground() = Root;
    return ActivateWindow(Root, TByMouse::No, true);
}

HWND GetActiveWindow()
{
    return CurrentThread()->Active;
}

HWND GetForegroundWindow()
{
    TStateLock Lock;
    return Foreground() && IsWindow(Foreground()) ? Foreground() : nullptr;
}

HWND GetFocus()
{
    return CurrentThread()->Focus;
}

namespace {

// The top-level window to activate for a focus; null when a window on the way
// is disabled, minimized, or belongs to nobody.
HWND FocusRoot(HWND Handle)
{
    TStateLock Lock;
    for (const TWindow* Window = WindowOf(Handle); Window; Window = Window->Parent) {
        if (Window->Style & (WS_MINIMIZE | WS_DISABLED))
            return nullptr;
        if (!Window->Has(WS_CHILD) || Window->Parent == &Desktop())
            return Window->IsChild() ? nullptr : Window->Handle;
        if (Window->Parent == &MessageRoot())
            return nullptr;
    }
    return nullptr;
}

} // namespace

HWND SetFocus(HWND Handle)
{
    TThread& Thread = *CurrentThread();
    const HWND Previous = Thread.Focus;
    if (Handle) {
        const TWindow* const Window = WindowOf(Handle);
        if (!Window || Window->Thread != CurrentThread())
            return nullptr;
        if (Handle == Previous)
            return Previous;
        const HWND Root = FocusRoot(Handle);
        if (!Root || CallHooks(WH_CBT, HCBT_SETFOCUS, reinterpret_cast<WPARAM>(Handle),
                               reinterpret_cast<LPARAM>(Previous)) != 0)
            return nullptr;
        if (Root != Thread.Active) {
            Foreground() = Root;
            if (!ActivateWindow(Root, TByMouse::No, false) || !IsWindow(Handle) || Thread.Active != Root)
                return nullptr;
        }
    } else if (!Previous || CallHooks(WH_CBT, HCBT_SETFOCUS, 0, reinterpret_cast<LPARAM>(Previous)) != 0) {
        return nullptr;
    }
    return MoveFocus(Handle);
}

HWND SetCapture(HWND Handle)
{
    TThread& Thread = *CurrentThread();
    const HWND Previous = Thread.Capture;
    if (Handle && !IsWindow(Handle))
        return nullptr;
    Thread.Capture = Handle;
    if (Previous && Previous != Handle)
        SendMessageA(Previous, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(Handle));
    return Previous;
}

HWND GetCapture()
{
    return CurrentThread()->Capture;
}

BOOL ReleaseCapture()
{
    SetCapture(nullptr);
    return TRUE;
}

BOOL FlashWindow(HWND Handle, BOOL Invert)
{
    if (!IsWindow(Handle))
        return FALSE;
    const bool Active = Handle == GetActiveWindow();
    SendMessageA(Handle, WM_NCACTIVATE, Invert ? !Active : Active, 0);
    return Active;
}

BOOL AttachThreadInput(DWORD Thread, DWORD To, BOOL)
{
    return Thread != To && FindThread(Thread) && FindThread(To);
}

BOOL GetGUIThreadInfo(DWORD Id, GUITHREADINFO* Info)
{
    const auto Thread = Id ? FindThread(Id) : CurrentThread();
    if (!Thread || !Info) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    TStateLock Lock;
    Info->flags = Thread->MenuOwner ? GUI_INMENUMODE : 0;
    Info->hwndActive = Thread->Active;
    Info->hwndFocus = Thread->Focus;
    Info->hwndCapture = Thread->Capture;
    Info->hwndMenuOwner = Thread->MenuOwner;
    Info->hwndMoveSize = nullptr;
    Info->hwndCaret = nullptr;
    Info->rcCaret = {};
    return TRUE;
}
