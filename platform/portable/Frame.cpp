// The frame around a client area.
#include <algorithm>

#include "platform/portable/Position.h"

RECT FrameMargins(DWORD Style, DWORD ExStyle)
{
    const bool Modal = (ExStyle & WS_EX_DLGMODALFRAME) != 0;
    int Width = 0;
    if ((ExStyle & WS_EX_STATICEDGE) && !Modal)
        Width = 1;
    else if (Modal || (Style & (WS_THICKFRAME | WS_DLGFRAME)))
        Width = 2;
    if (Style & WS_THICKFRAME)
        Width += GetSystemMetrics(SM_CXFRAME) - GetSystemMetrics(SM_CXDLGFRAME);
    if (Modal || (Style & (WS_BORDER | WS_DLGFRAME)))
        ++Width;
    int Top = Width;
    if ((Style & WS_CAPTION) == WS_CAPTION)
        Top += GetSystemMetrics(ExStyle & WS_EX_TOOLWINDOW ? SM_CYSMCAPTION : SM_CYCAPTION);
    if (ExStyle & WS_EX_CLIENTEDGE) {
        Width += GetSystemMetrics(SM_CXEDGE);
        Top += GetSystemMetrics(SM_CYEDGE);
    }
    return {Width, Top, Width, Width};
}

BOOL AdjustWindowRectEx(LPRECT Rect, DWORD Style, BOOL Menu, DWORD ExStyle)
{
    const RECT Frame = FrameMargins(Style, ExStyle);
    const int MenuHeight = Menu ? GetSystemMetrics(SM_CYMENU) : 0;
    *Rect = {Rect->left - Frame.left, Rect->top - Frame.top - MenuHeight, Rect->right + Frame.right,
             Rect->bottom + Frame.bottom};
    return TRUE;
}

BOOL AdjustWindowRect(LPRECT Rect, DWORD Style, BOOL Menu)
{
    return AdjustWindowRectEx(Rect, Style, Menu, 0);
}

int MenuBarHeight(const TWindow& Window)
{
    return !Window.IsChild() && GetMenuItemCount(Window.Menu) > 0 ? GetSystemMetrics(SM_CYMENU) : 0;
}

void CalculateClient(const TWindow& Window, RECT& Rect)
{
    if (Window.Has(WS_MINIMIZE)) {
        Rect.right = Rect.left;
        Rect.bottom = Rect.top;
        return;
    }
    const RECT Frame = FrameMargins(Window.Style, Window.ExStyle);
    Rect = {Rect.left + Frame.left, Rect.top + Frame.top + MenuBarHeight(Window), Rect.right - Frame.right,
            Rect.bottom - Frame.bottom};
    if (Window.Has(WS_VSCROLL) && Rect.right - Rect.left >= GetSystemMetrics(SM_CXVSCROLL)) {
        if (Window.ExStyle & WS_EX_LEFTSCROLLBAR)
            Rect.left += GetSystemMetrics(SM_CXVSCROLL);
        else
            Rect.right -= GetSystemMetrics(SM_CXVSCROLL);
    }
    if (Window.Has(WS_HSCROLL) && Rect.bottom - Rect.top > GetSystemMetrics(SM_CYHSCROLL))
        Rect.bottom -= GetSystemMetrics(SM_CYHSCROLL);
    Rect.right = std::max(Rect.right, Rect.left);
    Rect.bottom = std::max(Rect.bottom, Rect.top);
}
