// Arranging windows: in steps, side by side, and icons in rows.
#include <algorithm>
#include <cmath>

#include "platform/portable/Lifetime.h"

namespace {

// The windows to arrange, topmost first: those given, or the visible children
// that are not minimized.
std::vector<HWND> Chosen(HWND Parent, UINT How, UINT Count, const HWND* Kids)
{
    if (Kids)
        return {Kids, Kids + Count};
    const TWindow* const Window = Parent ? WindowOf(Parent) : &Desktop();
    std::vector<HWND> Result = Window ? ChildrenOf(*Window) : std::vector<HWND>();
    std::erase_if(Result, [&](HWND Child) {
        const LONG Style = GetWindowLongA(Child, GWL_STYLE);
        return !(Style & WS_VISIBLE) || (Style & WS_MINIMIZE) || GetWindow(Child, GW_OWNER) ||
               ((How & MDITILE_SKIPDISABLED) && (Style & WS_DISABLED));
    });
    return Result;
}

RECT SpaceOf(HWND Parent, const RECT* Rect)
{
    RECT Space{};
    if (Rect)
        return *Rect;
    GetClientRect(Parent ? Parent : GetDesktopWindow(), &Space);
    return Space;
}

void Restore(HWND Window)
{
    if (IsZoomed(Window))
        ShowWindow(Window, SW_SHOWNORMAL);
}

} // namespace

WORD CascadeWindows(HWND Parent, UINT How, const RECT* Rect, UINT Count, const HWND* Kids)
{
    const std::vector<HWND> Windows = Chosen(Parent, How, Count, Kids);
    const RECT Space = SpaceOf(Parent, Rect);
    const int Step = GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION);
    const int Width = (Space.right - Space.left) * 3 / 4;
    const int Height = (Space.bottom - Space.top) * 3 / 4;
    int Offset = 0;
    for (auto Each = Windows.rbegin(); Each != Windows.rend(); ++Each) {
        Restore(*Each);
        SetWindowPos(*Each, HWND_TOP, Space.left + Offset, Space.top + Offset, Width, Height, SWP_NOACTIVATE);
        Offset += Step;
        if (Offset + Height > Space.bottom - Space.top)
            Offset = 0;
    }
    return static_cast<WORD>(Windows.size());
}

WORD TileWindows(HWND Parent, UINT How, const RECT* Rect, UINT Count, const HWND* Kids)
{
    const std::vector<HWND> Windows = Chosen(Parent, How, Count, Kids);
    const RECT Space = SpaceOf(Parent, Rect);
    const auto Total = static_cast<int>(Windows.size());
    if (Total == 0)
        return 0;
    int Columns = static_cast<int>(std::sqrt(Total));
    if (!(How & MDITILE_HORIZONTAL))
        Columns = Total / Columns;
    const int Width = (Space.right - Space.left) / Columns;
    int Index = 0;
    for (int Column = 0; Column < Columns; ++Column) {
        const int Here = Total / Columns + (Column >= Columns - Total % Columns ? 1 : 0);
        const int Height = (Space.bottom - Space.top) / std::max(Here, 1);
        for (int Row = 0; Row < Here && Index < Total; ++Row, ++Index) {
            Restore(Windows[static_cast<std::size_t>(Index)]);
            SetWindowPos(Windows[static_cast<std::size_t>(Index)], nullptr, Space.left + Column * Width,
                         Space.top + Row * Height, Width, Height, SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    return static_cast<WORD>(Total);
}

UINT ArrangeIconicWindows(HWND Parent)
{
    const TWindow* const Window = WindowOf(Parent);
    if (!Window)
        return 0;
    const int Width = GetSystemMetrics(SM_CXMINIMIZED);
    const int Height = GetSystemMetrics(SM_CYMINIMIZED);
    int X = 0;
    int Y = Window->ClientHeight() - Height;
    const int Right = Window->ClientWidth();
    for (const HWND Child : ChildrenOf(*Window)) {
        if (!IsIconic(Child))
            continue;
        SetWindowPos(Child, nullptr, X, Y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        X += Width;
        if (X + Width > Right) {
            X = 0;
            Y -= Height;
        }
    }
    return static_cast<UINT>(Height);
}
