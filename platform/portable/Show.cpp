// Showing, hiding, minimizing and maximizing.
#include <algorithm>

#include "platform/portable/Focus.h"
#include "platform/portable/Lifetime.h"
#include "platform/portable/Position.h"
#include "platform/portable/Thread.h"

namespace {

bool Minimizes(int Command)
{
    return Command == SW_MINIMIZE || Command == SW_SHOWMINIMIZED || Command == SW_SHOWMINNOACTIVE ||
           Command == SW_FORCEMINIMIZE;
}

RECT IconRect(const TWindow& Window)
{
    const int Width = GetSystemMetrics(SM_CXMINIMIZED);
    const int Height = GetSystemMetrics(SM_CYMINIMIZED);
    const int Bottom = Window.Parent ? Window.Parent->ClientHeight() : 0;
    if (!Window.IsChild())
        return {-32000, -32000, -32000 + Width, -32000 + Height};
    return {0, Bottom - Height, Width, Bottom};
}

RECT MaximizedRect(HWND Handle)
{
    const MINMAXINFO Info = AskMinMax(Handle);
    const POINT Place = Info.ptMaxPosition;
    return {Place.x, Place.y, Place.x + Info.ptMaxSize.x, Place.y + Info.ptMaxSize.y};
}

} // namespace

UINT MinMaximize(HWND Handle, int Command, RECT& Rect)
{
    TWindow* Window = WindowOf(Handle);
    const DWORD Old = Window->Style;
    if (!(Old & (WS_MINIMIZE | WS_MAXIMIZE)))
        Window->Normal = Window->Rect;
    const bool WasMinimized = (Old & WS_MINIMIZE) != 0;
    if (Minimizes(Command)) {
        Window->RestoreToMaximized = (Old & WS_MAXIMIZE) != 0 || (WasMinimized && Window->RestoreToMaximized);
        Window->Style = (Old | WS_MINIMIZE) & ~static_cast<DWORD>(WS_MAXIMIZE);
        Rect = IconRect(*Window);
    } else if (Command == SW_MAXIMIZE || (WasMinimized && Window->RestoreToMaximized)) {
        Rect = MaximizedRect(Handle);
        Window = WindowOf(Handle);
        Window->Style = (Window->Style | WS_MAXIMIZE) & ~static_cast<DWORD>(WS_MINIMIZE);
    } else {
        Window->Style &= ~static_cast<DWORD>(WS_MAXIMIZE | WS_MINIMIZE);
        Rect = Window->Normal;
    }
    return Window->Style != Old ? SWP_FRAMECHANGED | SWP_STATECHANGED : SWP_NOSIZE | SWP_NOMOVE;
}

void SendSizeAndMove(HWND Handle)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return;
    const WPARAM Kind = Window->Has(WS_MAXIMIZE)   ? SIZE_MAXIMIZED
                        : Window->Has(WS_MINIMIZE) ? SIZE_MINIMIZED
                                                   : SIZE_RESTORED;
    const LPARAM Place = MAKELPARAM(Window->Client.left, Window->Client.top);
    SendMessageA(Handle, WM_SIZE, Kind, MAKELPARAM(Window->ClientWidth(), Window->ClientHeight()));
    SendMessageA(Handle, WM_MOVE, 0, Place);
}

namespace {

struct TShowing {
    UINT Flags = 0;
    RECT Rect{};
    bool Done = false; // there is nothing to change
};

void AddMinMax(HWND Handle, int Command, TShowing& Showing)
{
    Showing.Flags |= MinMaximize(Handle, Command, Showing.Rect);
}

TShowing PlanShowing(HWND Handle, int Command, DWORD Style, bool Visible)
{
    const bool Child = (Style & WS_CHILD) != 0;
    const UINT ForChild = Child ? SWP_NOACTIVATE | SWP_NOZORDER : 0u;
    TShowing Plan;
    switch (Command) {
    case SW_HIDE:
        Plan.Done = !Visible;
        Plan.Flags = SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | ForChild;
        break;
    case SW_SHOWMINNOACTIVE:
    case SW_MINIMIZE:
    case SW_FORCEMINIMIZE:
    case SW_SHOWMINIMIZED:
        Plan.Flags = SWP_SHOWWINDOW | (Command == SW_SHOWMINIMIZED ? 0u : SWP_NOACTIVATE | SWP_NOZORDER);
        Plan.Done = Visible && (Style & WS_MINIMIZE);
        if (!Plan.Done)
            AddMinMax(Handle, Command, Plan);
        break;
    case SW_SHOWMAXIMIZED:
        Plan.Flags = Visible ? 0u : SWP_SHOWWINDOW;
        Plan.Done = Visible && (Style & WS_MAXIMIZE);
        if (!Plan.Done)
            AddMinMax(Handle, SW_MAXIMIZE, Plan);
        break;
    case SW_SHOWNA:
        Plan.Flags = SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOSIZE | SWP_NOMOVE | (Child ? SWP_NOZORDER : 0u);
        break;
    case SW_SHOW:
        Plan.Done = Visible;
        Plan.Flags = SWP_SHOWWINDOW | SWP_NOSIZE | SWP_NOMOVE | ForChild;
        break;
    default: // SW_RESTORE, SW_SHOWNORMAL, SW_SHOWDEFAULT, SW_SHOWNOACTIVATE
        Plan.Flags = (Visible ? 0u : SWP_SHOWWINDOW) | (Command == SW_SHOWNOACTIVATE ? SWP_NOACTIVATE : 0u);
        if (Style & (WS_MINIMIZE | WS_MAXIMIZE)) {
            AddMinMax(Handle, Command, Plan);
        } else {
            Plan.Done = Visible;
            Plan.Flags |= SWP_NOSIZE | SWP_NOMOVE;
        }
        if (!(Plan.Flags & SWP_STATECHANGED))
            Plan.Flags |= ForChild;
    }
    return Plan;
}

void AfterHiding(HWND Handle)
{
    if (Handle == GetActiveWindow())
        ActivateOther(Handle);
    if (Handle == GetFocus()) {
        const HWND Parent = GetAncestor(Handle, GA_PARENT);
        SetFocus(Parent == GetDesktopWindow() ? nullptr : Parent);
    }
}

} // namespace

BOOL ShowWindow(HWND Handle, int Command)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Window->Parent)
        return FALSE;
    if (Window->Thread != CurrentThread())
        return ShowWindowAsync(Handle, Command);
    const DWORD Style = Window->Style;
    const bool Visible = (Style & WS_VISIBLE) != 0;
    const bool Show = Command != SW_HIDE;
    const TShowing Plan = PlanShowing(Handle, Command, Style, Visible);
    if (Plan.Done)
        return Visible;
    if ((Show != Visible || Command == SW_SHOWNA) && Command != SW_SHOWMAXIMIZED &&
        !(Plan.Flags & SWP_STATECHANGED)) {
        SendMessageA(Handle, WM_SHOWWINDOW, Show, 0);
        if (!IsWindow(Handle))
            return Visible;
    }
    const HWND Parent = GetAncestor(Handle, GA_PARENT);
    if (Parent && !IsWindowVisible(Parent) && !(Plan.Flags & SWP_STATECHANGED)) {
        TStateLock Lock;
        DWORD& Current = WindowOf(Handle)->Style;
        Current = Show ? Current | WS_VISIBLE : Current & ~static_cast<DWORD>(WS_VISIBLE);
    } else {
        SetWindowPos(Handle, HWND_TOP, Plan.Rect.left, Plan.Rect.top, Plan.Rect.right - Plan.Rect.left,
                     Plan.Rect.bottom - Plan.Rect.top, Plan.Flags);
    }
    if (Command == SW_HIDE) {
        AfterHiding(Handle);
        return Visible;
    }
    if (TWindow* const Shown = WindowOf(Handle)) {
        if (Shown->NeedSize) {
            Shown->NeedSize = false;
            SendSizeAndMove(Handle);
        }
        if (Style & WS_MINIMIZE)
            SetFocus(Handle);
    }
    return Visible;
}

BOOL ShowWindowAsync(HWND Handle, int Command)
{
    const DWORD Thread = GetWindowThreadProcessId(Handle, nullptr);
    if (!Thread)
        return FALSE;
    if (Thread == GetCurrentThreadId())
        return ShowWindow(Handle, Command);
    return PostMessageA(Handle, ShowFromOtherThread(), static_cast<WPARAM>(Command), 0);
}

UINT ShowFromOtherThread()
{
    static const UINT Message = RegisterWindowMessageA("Show window");
    return Message;
}

BOOL ShowOwnedPopups(HWND Owner, BOOL Show)
{
    for (const HWND Handle : ChildrenOf(Desktop())) {
        if (GetWindow(Handle, GW_OWNER) != Owner)
            continue;
        const bool Visible = IsWindowVisible(Handle);
        if (Visible == (Show != FALSE))
            continue;
        SendMessageA(Handle, WM_SHOWWINDOW, static_cast<WPARAM>(Show),
                     Show ? SW_PARENTOPENING : SW_PARENTCLOSING);
    }
    return TRUE;
}

BOOL CloseWindow(HWND Handle)
{
    ShowWindow(Handle, SW_SHOWMINIMIZED);
    return IsWindow(Handle);
}

BOOL OpenIcon(HWND Handle)
{
    return IsIconic(Handle) ? (ShowWindow(Handle, SW_SHOWNORMAL), TRUE) : FALSE;
}

BOOL IsWindowVisible(HWND Handle)
{
    TStateLock Lock;
    const TWindow* Window = WindowOf(Handle);
    if (!Window || IsChild(MessageRoot().Handle, Handle))
        return FALSE;
    for (; Window; Window = Window->Parent)
        if (!Window->Has(WS_VISIBLE))
            return FALSE;
    return TRUE;
}

BOOL IsWindowEnabled(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window && !Window->Has(WS_DISABLED);
}

BOOL EnableWindow(HWND Handle, BOOL Enable)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    const bool WasDisabled = Window->Has(WS_DISABLED);
    if (Enable && WasDisabled) {
        WindowOf(Handle)->Style &= ~static_cast<DWORD>(WS_DISABLED);
        SendMessageA(Handle, WM_ENABLE, TRUE, 0);
    } else if (!Enable && !WasDisabled) {
        SendMessageA(Handle, WM_CANCELMODE, 0, 0);
        if (TWindow* const Disabled = WindowOf(Handle))
            Disabled->Style |= WS_DISABLED;
        if (Handle == GetFocus())
            SetFocus(nullptr);
        SendMessageA(Handle, WM_ENABLE, FALSE, 0);
    }
    return WasDisabled;
}

BOOL IsIconic(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window && Window->Has(WS_MINIMIZE);
}

BOOL IsZoomed(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window && Window->Has(WS_MAXIMIZE);
}

BOOL GetWindowPlacement(HWND Handle, WINDOWPLACEMENT* Placement)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Placement)
        return FALSE;
    Placement->length = sizeof(WINDOWPLACEMENT);
    Placement->flags = Window->RestoreToMaximized && Window->Has(WS_MINIMIZE) ? 2u : 0u;
    Placement->showCmd = Window->Has(WS_MINIMIZE)   ? SW_SHOWMINIMIZED
                         : Window->Has(WS_MAXIMIZE) ? SW_SHOWMAXIMIZED
                                                    : SW_SHOWNORMAL;
    Placement->ptMinPosition = {-1, -1};
    Placement->ptMaxPosition = {-1, -1};
    Placement->rcNormalPosition = Window->Style & (WS_MINIMIZE | WS_MAXIMIZE) ? Window->Normal : Window->Rect;
    return TRUE;
}

BOOL SetWindowPlacement(HWND Handle, const WINDOWPLACEMENT* Placement)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window || !Placement)
        return FALSE;
    const RECT& Rect = Placement->rcNormalPosition;
    Window->Normal = Rect;
    if (!(Window->Style & (WS_MINIMIZE | WS_MAXIMIZE)))
        SetWindowPos(Handle, nullptr, Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    ShowWindow(Handle, static_cast<int>(Placement->showCmd));
    return IsWindow(Handle);
}
