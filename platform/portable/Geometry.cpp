// Rectangles and points of windows, on the screen and inside one another.
#include <algorithm>

#include "platform/portable/Lifetime.h"
#include "platform/portable/Position.h"

namespace {

// Where the client area of Window begins on the screen.
POINT Origin(const TWindow* Window)
{
    POINT Point{0, 0};
    for (; Window && Window->Parent; Window = Window->Parent) {
        Point.x += Window->Client.left;
        Point.y += Window->Client.top;
    }
    return Point;
}

RECT Moved(RECT Rect, POINT By)
{
    OffsetRect(&Rect, By.x, By.y);
    return Rect;
}

bool Contains(const RECT& Rect, POINT Point)
{
    return PtInRect(&Rect, Point) != FALSE;
}

} // namespace

RECT ScreenRect(const TWindow& Window)
{
    TStateLock Lock;
    return Moved(Window.Rect, Origin(Window.Parent));
}

RECT ScreenClientRect(const TWindow& Window)
{
    TStateLock Lock;
    return Moved(Window.Client, Origin(Window.Parent));
}

BOOL GetWindowRect(HWND Handle, LPRECT Rect)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Rect)
        return FALSE;
    *Rect = ScreenRect(*Window);
    return TRUE;
}

BOOL GetClientRect(HWND Handle, LPRECT Rect)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Rect)
        return FALSE;
    *Rect = {0, 0, Window->ClientWidth(), Window->ClientHeight()};
    return TRUE;
}

BOOL ClientToScreen(HWND Handle, LPPOINT Point)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    const POINT By = Origin(Window);
    Point->x += By.x;
    Point->y += By.y;
    return TRUE;
}

BOOL ScreenToClient(HWND Handle, LPPOINT Point)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    const POINT By = Origin(Window);
    Point->x -= By.x;
    Point->y -= By.y;
    return TRUE;
}

int MapWindowPoints(HWND From, HWND To, LPPOINT Points, UINT Count)
{
    TStateLock Lock;
    const TWindow* const Source = From ? WindowOf(From) : &Desktop();
    const TWindow* const Target = To ? WindowOf(To) : &Desktop();
    if (!Source || !Target)
        return 0;
    const POINT Start = Origin(Source);
    const POINT End = Origin(Target);
    const int X = Start.x - End.x;
    const int Y = Start.y - End.y;
    for (UINT Index = 0; Index < Count; ++Index) {
        Points[Index].x += X;
        Points[Index].y += Y;
    }
    return MAKELONG(X, Y);
}

namespace {

bool Skipped(const TWindow& Window, UINT Flags)
{
    return ((Flags & CWP_SKIPINVISIBLE) && !Window.Has(WS_VISIBLE)) ||
           ((Flags & CWP_SKIPDISABLED) && Window.Has(WS_DISABLED)) ||
           ((Flags & CWP_SKIPTRANSPARENT) && (Window.ExStyle & WS_EX_TRANSPARENT));
}

// The innermost visible enabled window at a point of the parent's client area.
// A static text lets the point through to its parent by answering WM_NCHITTEST.
HWND InnermostAt(const TWindow& Parent, POINT Point, POINT Screen)
{
    for (const TWindow* const Child : Parent.Children) {
        if (!Child->Has(WS_VISIBLE) || !Contains(Child->Rect, Point))
            continue;
        if (Child->Has(WS_DISABLED) && Child->IsChild())
            continue;
        const HWND Handle = Child->Handle;
        if (!Child->Has(WS_DISABLED) && !Child->Has(WS_MINIMIZE) && Contains(Child->Client, Point)) {
            const POINT Inside{Point.x - Child->Client.left, Point.y - Child->Client.top};
            if (const HWND Inner = InnermostAt(*Child, Inside, Screen))
                return Inner;
        }
        if (SendMessageA(Handle, WM_NCHITTEST, 0, MAKELPARAM(Screen.x, Screen.y)) != HTTRANSPARENT)
            return Handle;
    }
    return nullptr;
}

} // namespace

HWND WindowFromPoint(POINT Point)
{
    const HWND Found = InnermostAt(Desktop(), Point, Point);
    return Found ? Found : GetDesktopWindow();
}

HWND ChildWindowFromPointEx(HWND Handle, POINT Point, UINT Flags)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Contains({0, 0, Window->ClientWidth(), Window->ClientHeight()}, Point))
        return nullptr;
    for (const TWindow* const Child : Window->Children)
        if (!Skipped(*Child, Flags) && Contains(Child->Rect, Point))
            return Child->Handle;
    return Handle;
}

HWND ChildWindowFromPoint(HWND Handle, POINT Point)
{
    return ChildWindowFromPointEx(Handle, Point, CWP_ALL);
}

HWND RealChildWindowFromPoint(HWND Handle, POINT Point)
{
    return ChildWindowFromPointEx(Handle, Point, CWP_SKIPTRANSPARENT | CWP_SKIPINVISIBLE);
}
