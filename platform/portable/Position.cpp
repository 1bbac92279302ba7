// Moving, sizing, ordering and showing windows.
#include "platform/portable/Position.h"

#include <algorithm>

#include "platform/portable/Focus.h"
#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

namespace {

constexpr UINT StatusFlags =
    SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED | SWP_HIDEWINDOW | SWP_SHOWWINDOW;
constexpr UINT NothingMoves = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER;

bool IsSpecial(HWND After)
{
    return After == HWND_TOP || After == HWND_BOTTOM || After == HWND_TOPMOST || After == HWND_NOTOPMOST;
}

// Flags for what would not change. False when After is no sibling.
bool Simplify(const TWindow& Window, WINDOWPOS& Pos)
{
    Pos.cx = std::clamp(Pos.cx, 0, 32767);
    Pos.cy = std::clamp(Pos.cy, 0, 32767);
    if (Window.Has(WS_VISIBLE)) {
        Pos.flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
    } else {
        Pos.flags &= ~static_cast<UINT>(SWP_HIDEWINDOW);
        if (!(Pos.flags & SWP_SHOWWINDOW))
            Pos.flags |= SWP_NOREDRAW;
    }
    if (Window.Width() == Pos.cx && Window.Height() == Pos.cy)
        Pos.flags |= SWP_NOSIZE;
    if (Window.Rect.left == Pos.x && Window.Rect.top == Pos.y)
        Pos.flags |= SWP_NOMOVE;
    if (!Window.IsChild() && !(Pos.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) &&
        ((Pos.flags & SWP_NOZORDER) || IsSpecial(Pos.hwndInsertAfter))) {
        Pos.flags &= ~static_cast<UINT>(SWP_NOZORDER);
        if (Pos.hwndInsertAfter != HWND_TOPMOST && Pos.hwndInsertAfter != HWND_NOTOPMOST)
            Pos.hwndInsertAfter = HWND_TOP;
    }
    if (Pos.flags & SWP_NOZORDER)
        return true;
    const auto& Siblings = Window.Parent->Children;
    const bool Topmost = (Window.ExStyle & WS_EX_TOPMOST) != 0;
    if (Pos.hwndInsertAfter == HWND_TOP) {
        const auto First = std::find_if(Siblings.begin(), Siblings.end(), [&](const TWindow* Other) {
            return ((Other->ExStyle & WS_EX_TOPMOST) != 0) == Topmost;
        });
        if (First != Siblings.end() && *First == &Window)
            Pos.flags |= SWP_NOZORDER;
    } else if (Pos.hwndInsertAfter == HWND_BOTTOM) {
        if (Siblings.back() == &Window && !Topmost)
            Pos.flags |= SWP_NOZORDER;
    } else if (Pos.hwndInsertAfter == HWND_TOPMOST) {
        if (Topmost && Siblings.front() == &Window)
            Pos.flags |= SWP_NOZORDER;
    } else if (Pos.hwndInsertAfter == HWND_NOTOPMOST) {
        if (!Topmost)
            Pos.flags |= SWP_NOZORDER;
    } else {
        const TWindow* const After = WindowOf(Pos.hwndInsertAfter);
        if (!After || After->Parent != Window.Parent)
            return false;
        if (After == &Window || GetWindow(Window.Handle, GW_HWNDPREV) == After->Handle)
            Pos.flags |= SWP_NOZORDER;
    }
    return true;
}

void Reorder(TWindow& Window, HWND After)
{
    if (After == HWND_TOPMOST)
        Window.ExStyle |= WS_EX_TOPMOST;
    if (After == HWND_NOTOPMOST || (After == HWND_BOTTOM && !Window.IsChild()))
        Window.ExStyle &= ~static_cast<DWORD>(WS_EX_TOPMOST);
    if (After == HWND_BOTTOM)
        PlaceWindow(Window, TPlace::Back);
    else if (IsSpecial(After))
        PlaceWindow(Window, TPlace::Front);
    else
        PlaceWindow(Window, TPlace::Behind, After);
}

// Owned windows stay in front of their owners.
void LiftOwned(const TWindow& Window)
{
    if (Window.Parent != &Desktop())
        return;
    const auto Order = ChildrenOf(Desktop());
    for (auto Each = Order.rbegin(); Each != Order.rend(); ++Each) {
        TWindow* const Other = WindowOf(*Each);
        if (Other && Other->Owner == &Window) {
            PlaceWindow(*Other, TPlace::Front);
            LiftOwned(*Other);
        }
    }
}

void Place(TWindow& Window, WINDOWPOS& Pos, const RECT& Rect, const RECT& Client)
{
    TStateLock Lock;
    const RECT OldClient = Window.Client;
    Window.Rect = Rect;
    Window.Client = Client;
    if (!(Window.Style & (WS_MINIMIZE | WS_MAXIMIZE)))
        Window.Normal = Rect;
    if (Client.left == OldClient.left && Client.top == OldClient.top)
        Pos.flags |= SWP_NOCLIENTMOVE;
    if (Client.right - Client.left == OldClient.right - OldClient.left &&
        Client.bottom - Client.top == OldClient.bottom - OldClient.top)
        Pos.flags |= SWP_NOCLIENTSIZE;
    if (!(Pos.flags & SWP_NOZORDER)) {
        Reorder(Window, Pos.hwndInsertAfter);
        LiftOwned(Window);
    }
    if (Pos.flags & SWP_SHOWWINDOW)
        Window.Style |= WS_VISIBLE;
    if (Pos.flags & SWP_HIDEWINDOW)
        Window.Style &= ~static_cast<DWORD>(WS_VISIBLE);
}

} // namespace

BOOL SetWindowPos(HWND Handle, HWND After, int X, int Y, int Width, int Height, UINT Flags)
{
    const TWindow* Window = WindowOf(Handle);
    if (!Window || !Window->Parent)
        return FALSE;
    WINDOWPOS Pos{Handle, After, X, Y, Width, Height, Flags};
    if (Flags & SWP_NOMOVE) {
        Pos.x = Window->Rect.left;
        Pos.y = Window->Rect.top;
    }
    if (Flags & SWP_NOSIZE) {
        Pos.cx = Window->Width();
        Pos.cy = Window->Height();
    }
    if (!Simplify(*Window, Pos))
        return FALSE;
    if (!(Pos.flags & SWP_NOSENDCHANGING)) {
        SendMessageA(Handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&Pos));
        Window = WindowOf(Handle);
        if (!Window)
            return FALSE;
        Pos.hwnd = Handle;
    }
    RECT Rect = Window->Rect;
    if (!(Pos.flags & SWP_NOMOVE))
        Rect = {Pos.x, Pos.y, Pos.x + Window->Width(), Pos.y + Window->Height()};
    if (!(Pos.flags & SWP_NOSIZE)) {
        Rect.right = Rect.left + Pos.cx;
        Rect.bottom = Rect.top + Pos.cy;
    }
    RECT Client = Window->Client;
    OffsetRect(&Client, Rect.left - Window->Rect.left, Rect.top - Window->Rect.top);
    if ((Pos.flags & (SWP_FRAMECHANGED | SWP_NOSIZE)) != SWP_NOSIZE) {
        NCCALCSIZE_PARAMS Params{{Rect, Window->Rect, Window->Client}, &Pos};
        SendMessageA(Handle, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&Params));
        Client = Params.rgrc[0];
        Pos.hwnd = Handle;
    }
    TWindow* const Moved = WindowOf(Handle);
    if (!Moved)
        return FALSE;
    Place(*Moved, Pos, Rect, Client);
    if (((Pos.flags & (SWP_NOCLIENTSIZE | SWP_FRAMECHANGED)) != SWP_NOCLIENTSIZE ||
         (Pos.flags & SWP_SHOWWINDOW)) &&
        !(Pos.flags & SWP_NOREDRAW) && Moved->Has(WS_VISIBLE))
        RedrawWindow(Handle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    if (!(Pos.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))) {
        if (Moved->IsChild())
            SendMessageA(Handle, WM_CHILDACTIVATE, 0, 0);
        else
            SetForegroundWindow(Handle);
    }
    if ((Pos.flags & StatusFlags) != NothingMoves && IsWindow(Handle))
        SendMessageA(Handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&Pos));
    return TRUE;
}

BOOL MoveWindow(HWND Handle, int X, int Y, int Width, int Height, BOOL Repaint)
{
    return SetWindowPos(Handle, nullptr, X, Y, Width, Height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (Repaint ? 0u : SWP_NOREDRAW));
}

BOOL BringWindowToTop(HWND Handle)
{
    return SetWindowPos(Handle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

MINMAXINFO AskMinMax(HWND Handle)
{
    MINMAXINFO Info{};
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return Info;
    const RECT Frame =
        FrameMargins(Window->Style & ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL), Window->ExStyle);
    const int BorderX = Window->Has(WS_THICKFRAME) || Window->Has(WS_CAPTION) ? Frame.left : 0;
    RECT Space{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    if (Window->IsChild())
        Space = {0, 0, Window->Parent->ClientWidth(), Window->Parent->ClientHeight()};
    Info.ptMaxSize = {Space.right + 2 * BorderX, Space.bottom + 2 * BorderX};
    Info.ptMaxPosition = {-BorderX, -BorderX};
    Info.ptMinTrackSize = {2 * BorderX, 2 * BorderX};
    if (Window->Has(WS_CAPTION))
        Info.ptMinTrackSize = {GetSystemMetrics(SM_CXMINTRACK), GetSystemMetrics(SM_CYMINTRACK)};
    Info.ptMaxTrackSize = {GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    SendMessageA(Handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&Info));
    Info.ptMaxTrackSize.x = std::max(Info.ptMaxTrackSize.x, Info.ptMinTrackSize.x);
    Info.ptMaxTrackSize.y = std::max(Info.ptMaxTrackSize.y, Info.ptMinTrackSize.y);
    return Info;
}

HDWP BeginDeferWindowPos(int)
{
    return reinterpret_cast<HDWP>(new std::vector<WINDOWPOS>);
}

HDWP DeferWindowPos(HDWP List, HWND Handle, HWND After, int X, int Y, int Width, int Height, UINT Flags)
{
    if (!IsWindow(Handle))
        return nullptr;
    reinterpret_cast<std::vector<WINDOWPOS>*>(List)->push_back({Handle, After, X, Y, Width, Height, Flags});
    return List;
}

BOOL EndDeferWindowPos(HDWP List)
{
    const std::unique_ptr<std::vector<WINDOWPOS>> Moves(reinterpret_cast<std::vector<WINDOWPOS>*>(List));
    BOOL Done = TRUE;
    for (const WINDOWPOS& Pos : *Moves)
        Done &= SetWindowPos(Pos.hwnd, Pos.hwndInsertAfter, Pos.x, Pos.y, Pos.cx, Pos.cy, Pos.flags);
    return Done;
}
