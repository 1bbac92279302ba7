// What waits for painting. Nothing is drawn here: a window gets WM_PAINT when
// its thread finds nothing else to do, or at once from UpdateWindow.
#include <utility>

#include "platform/portable/Lifetime.h"
#include "platform/portable/Thread.h"

namespace {

RECT WholeClient(const TWindow& Window)
{
    return {0, 0, Window.ClientWidth(), Window.ClientHeight()};
}

void AddUpdate(TWindow& Window, const RECT* Rect, bool Erase)
{
    RECT Area = WholeClient(Window);
    if (Rect && !IntersectRect(&Area, &Area, Rect))
        return;
    if (Window.Update.Pending)
        UnionRect(&Area, &Area, &Window.Update.Rect);
    Window.Update.Pending = !IsRectEmpty(&Area);
    Window.Update.Rect = Area;
    Window.Update.Erase |= Erase;
    StateChanged().notify_all();
}

void Invalidate(TWindow& Window, const RECT* Rect, bool Erase, bool Children)
{
    if (!Window.Has(WS_VISIBLE) || !Window.Redraw)
        return;
    AddUpdate(Window, Rect, Erase);
    if (!Children)
        return;
    for (TWindow* const Child : Window.Children) {
        RECT Part = Rect ? *Rect : WholeClient(Window);
        OffsetRect(&Part, -Child->Client.left, -Child->Client.top);
        Invalidate(*Child, &Part, Erase, true);
    }
}

void Validate(TWindow& Window, const RECT* Rect, bool Children)
{
    RECT Rest = Window.Update.Rect;
    if (!Rect || !SubtractRect(&Rest, &Window.Update.Rect, Rect))
        Window.Update = {};
    else
        Window.Update.Rect = Rest;
    if (Children)
        for (TWindow* const Child : Window.Children)
            Validate(*Child, nullptr, true);
}

void PaintNow(HWND Handle, bool Children)
{
    const TWindow* Window = WindowOf(Handle);
    if (!Window)
        return;
    if (Window->Update.Pending && IsWindowVisible(Handle))
        SendMessageA(Handle, WM_PAINT, 0, 0);
    Window = Children ? WindowOf(Handle) : nullptr;
    if (Window)
        for (const HWND Child : ChildrenOf(*Window))
            PaintNow(Child, true);
}

} // namespace

TUpdate TakeUpdate(HWND Handle)
{
    TStateLock Lock;
    TWindow* const Window = WindowOf(Handle);
    return Window ? std::exchange(Window->Update, {}) : TUpdate{};
}

BOOL RedrawWindow(HWND Handle, const RECT* Rect, HRGN Region, UINT Flags)
{
    TWindow* const Window = Handle ? WindowOf(Handle) : &Desktop();
    if (!Window)
        return FALSE;
    RECT Box;
    if (Region && GetRgnBox(Region, &Box))
        Rect = &Box;
    const bool Children =
        (Flags & RDW_ALLCHILDREN) || (!(Flags & RDW_NOCHILDREN) && !Window->Has(WS_CLIPCHILDREN));
    {
        TStateLock Lock;
        if ((Flags & RDW_INVALIDATE) && (!Window->Parent || IsWindowVisible(Handle)))
            Invalidate(*Window, Rect, (Flags & RDW_ERASE) != 0, Children);
        if (Flags & RDW_VALIDATE)
            Validate(*Window, Rect, Children);
        if (Flags & RDW_NOERASE)
            Window->Update.Erase = false;
    }
    if (Flags & RDW_UPDATENOW)
        PaintNow(Window->Handle, !(Flags & RDW_NOCHILDREN));
    return TRUE;
}

BOOL InvalidateRect(HWND Handle, const RECT* Rect, BOOL Erase)
{
    return RedrawWindow(Handle, Rect, nullptr, RDW_INVALIDATE | (Erase ? RDW_ERASE : 0u));
}

BOOL InvalidateRgn(HWND Handle, HRGN Region, BOOL Erase)
{
    return RedrawWindow(Handle, nullptr, Region, RDW_INVALIDATE | (Erase ? RDW_ERASE : 0u));
}

BOOL ValidateRect(HWND Handle, const RECT* Rect)
{
    return RedrawWindow(Handle, Rect, nullptr, RDW_VALIDATE | RDW_NOCHILDREN);
}

BOOL ValidateRgn(HWND Handle, HRGN Region)
{
    return RedrawWindow(Handle, nullptr, Region, RDW_VALIDATE | RDW_NOCHILDREN);
}

BOOL UpdateWindow(HWND Handle)
{
    return RedrawWindow(Handle, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

BOOL GetUpdateRect(HWND Handle, LPRECT Rect, BOOL)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    if (Rect)
        *Rect = Window->Update.Pending ? Window->Update.Rect : RECT{};
    return Window->Update.Pending;
}

int GetUpdateRgn(HWND Handle, HRGN Region, BOOL Erase)
{
    RECT Rect{};
    const BOOL Pending = GetUpdateRect(Handle, &Rect, Erase);
    SetRectRgn(Region, Rect.left, Rect.top, Rect.right, Rect.bottom);
    return Pending ? SIMPLEREGION : NULLREGION;
}

BOOL LockWindowUpdate(HWND)
{
    return TRUE;
}
