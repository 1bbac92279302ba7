// The scroll bars of a window's frame. Those that are controls of their own
// answer messages.
#include <algorithm>

#include "platform/portable/Window.h"

namespace {

TWindowScrollBar* BarOf(HWND Handle, int Bar)
{
    TWindow* const Window = WindowOf(Handle);
    return Window && (Bar == SB_HORZ || Bar == SB_VERT) ? &Window->Scroll[static_cast<std::size_t>(Bar)]
                                                        : nullptr;
}

void Clamp(TWindowScrollBar& Bar)
{
    const int Range = Bar.Maximum - Bar.Minimum + 1;
    Bar.Page = std::min(Bar.Page, static_cast<UINT>(std::max(Range, 0)));
    const int Last = Bar.Maximum - std::max(static_cast<int>(Bar.Page) - 1, 0);
    Bar.Position = std::clamp(Bar.Position, Bar.Minimum, std::max(Last, Bar.Minimum));
}

} // namespace

int SetScrollInfo(HWND Handle, int Kind, const SCROLLINFO* Info, BOOL Redraw)
{
    if (Kind == SB_CTL)
        return static_cast<int>(SendMessageA(Handle, SBM_SETSCROLLINFO, static_cast<WPARAM>(Redraw),
                                             reinterpret_cast<LPARAM>(Info)));
    TWindowScrollBar* const Bar = BarOf(Handle, Kind);
    if (!Bar || !Info)
        return 0;
    if (Info->fMask & SIF_PAGE)
        Bar->Page = Info->nPage;
    if (Info->fMask & SIF_POS)
        Bar->Position = Info->nPos;
    if (Info->fMask & SIF_RANGE) {
        Bar->Minimum = Info->nMin;
        Bar->Maximum = std::max(Info->nMin, Info->nMax);
    }
    Clamp(*Bar);
    const int Result = Bar->Position;
    if ((Info->fMask & (SIF_RANGE | SIF_PAGE)) && !(Info->fMask & SIF_DISABLENOSCROLL)) {
        const int Last = Bar->Maximum - std::max(static_cast<int>(Bar->Page) - 1, 0);
        ShowScrollBar(Handle, Kind, Bar->Minimum < Last);
    }
    return Result;
}

BOOL GetScrollInfo(HWND Handle, int Kind, SCROLLINFO* Info)
{
    if (Kind == SB_CTL) {
        SendMessageA(Handle, SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(Info));
        return TRUE;
    }
    const TWindowScrollBar* const Bar = BarOf(Handle, Kind);
    if (!Bar || !Info)
        return FALSE;
    if (Info->fMask & SIF_PAGE)
        Info->nPage = Bar->Page;
    if (Info->fMask & SIF_POS)
        Info->nPos = Bar->Position;
    if (Info->fMask & SIF_TRACKPOS)
        Info->nTrackPos = Bar->TrackPosition;
    if (Info->fMask & SIF_RANGE) {
        Info->nMin = Bar->Minimum;
        Info->nMax = Bar->Maximum;
    }
    return TRUE;
}

int SetScrollPos(HWND Handle, int Kind, int Position, BOOL Redraw)
{
    if (Kind == SB_CTL)
        return static_cast<int>(SendMessageA(Handle, SBM_SETPOS, static_cast<WPARAM>(Position), Redraw));
    TWindowScrollBar* const Bar = BarOf(Handle, Kind);
    if (!Bar)
        return 0;
    const int Old = Bar->Position;
    Bar->Position = Position;
    Clamp(*Bar);
    return Old;
}

int GetScrollPos(HWND Handle, int Kind)
{
    if (Kind == SB_CTL)
        return static_cast<int>(SendMessageA(Handle, SBM_GETPOS, 0, 0));
    const TWindowScrollBar* const Bar = BarOf(Handle, Kind);
    return Bar ? Bar->Position : 0;
}

BOOL SetScrollRange(HWND Handle, int Kind, int Minimum, int Maximum, BOOL Redraw)
{
    SCROLLINFO Info{sizeof(SCROLLINFO), SIF_RANGE, Minimum, Maximum, 0, 0, 0};
    SetScrollInfo(Handle, Kind, &Info, Redraw);
    return IsWindow(Handle);
}

BOOL GetScrollRange(HWND Handle, int Kind, LPINT Minimum, LPINT Maximum)
{
    SCROLLINFO Info{sizeof(SCROLLINFO), SIF_RANGE, 0, 0, 0, 0, 0};
    const BOOL Done = GetScrollInfo(Handle, Kind, &Info);
    *Minimum = Info.nMin;
    *Maximum = Info.nMax;
    return Done;
}

BOOL ShowScrollBar(HWND Handle, int Bar, BOOL Show)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return FALSE;
    if (Bar == SB_CTL)
        return ShowWindow(Handle, Show ? SW_SHOW : SW_HIDE), TRUE;
    DWORD Bits = 0;
    if (Bar == SB_HORZ || Bar == SB_BOTH)
        Bits |= WS_HSCROLL;
    if (Bar == SB_VERT || Bar == SB_BOTH)
        Bits |= WS_VSCROLL;
    const DWORD New = Show ? Window->Style | Bits : Window->Style & ~Bits;
    if (New != Window->Style) {
        Window->Style = New;
        SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                     SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
    return TRUE;
}

BOOL EnableScrollBar(HWND Handle, UINT Bar, UINT Arrows)
{
    BOOL Changed = FALSE;
    for (const int Kind : {SB_HORZ, SB_VERT}) {
        TWindowScrollBar* const Each = BarOf(Handle, Kind);
        if (!Each || (Bar != SB_BOTH && static_cast<int>(Bar) != Kind))
            continue;
        Changed |= Each->Arrows != Arrows;
        Each->Arrows = Arrows;
    }
    return Changed;
}

int ScrollWindowEx(HWND Handle, int X, int Y, const RECT* Rect, const RECT*, HRGN Update, LPRECT UpdateRect,
                   UINT Flags)
{
    constexpr UINT MoveChildren = 1; // SW_SCROLLCHILDREN
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    if ((Flags & MoveChildren) || !Rect) {
        std::vector<HWND> Children;
        for (const TWindow* const Child : Window->Children)
            Children.push_back(Child->Handle);
        for (const HWND Child : Children)
            if (const TWindow* const Moved = WindowOf(Child))
                SetWindowPos(Child, nullptr, Moved->Rect.left + X, Moved->Rect.top + Y, 0, 0,
                             SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    RECT All;
    GetClientRect(Handle, &All);
    if (UpdateRect)
        *UpdateRect = All;
    if (Update)
        SetRectRgn(Update, All.left, All.top, All.right, All.bottom);
    InvalidateRect(Handle, nullptr, TRUE);
    return SIMPLEREGION;
}

BOOL ScrollWindow(HWND Handle, int X, int Y, const RECT* Rect, const RECT* Clip)
{
    return ScrollWindowEx(Handle, X, Y, Rect, Clip, nullptr, nullptr, Rect ? 0u : 1u) != 0;
}
