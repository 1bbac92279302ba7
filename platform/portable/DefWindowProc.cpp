// What every window does by itself.
#include <algorithm>
#include <cstring>

#include "platform/portable/Focus.h"
#include "platform/portable/MenuBar.h"
#include "platform/portable/Position.h"
#include "platform/portable/Thread.h"

namespace {

LRESULT GetText(HWND Handle, WPARAM Size, LPARAM Buffer)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? CopyText(Window->Text, reinterpret_cast<LPSTR>(Buffer), static_cast<int>(Size)) : 0;
}

LRESULT SetText(HWND Handle, LPCSTR Text)
{
    TStateLock Lock;
    if (TWindow* const Window = WindowOf(Handle))
        Window->Text = Text && !IS_INTRESOURCE(Text) ? Text : "";
    return TRUE;
}

LRESULT TextLength(HWND Handle)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    return Window ? static_cast<LRESULT>(Window->Text.size()) : 0;
}

void LimitSize(HWND Handle, WINDOWPOS& Pos)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || (Pos.flags & SWP_NOSIZE))
        return;
    if (!Window->Has(WS_THICKFRAME) && (Window->Style & (WS_POPUP | WS_CHILD)))
        return;
    const bool Minimized = Window->Has(WS_MINIMIZE);
    const MINMAXINFO Limits = AskMinMax(Handle);
    Pos.cx = std::min(Pos.cx, Limits.ptMaxTrackSize.x);
    Pos.cy = std::min(Pos.cy, Limits.ptMaxTrackSize.y);
    if (!Minimized) {
        Pos.cx = std::max(Pos.cx, Limits.ptMinTrackSize.x);
        Pos.cy = std::max(Pos.cy, Limits.ptMinTrackSize.y);
    }
}

void TellMoved(HWND Handle, const WINDOWPOS& Pos)
{
    const UINT Flags = Pos.flags;
    const TWindow* Window = WindowOf(Handle);
    if (!Window)
        return;
    if (!(Flags & SWP_NOCLIENTMOVE))
        SendMessageA(Handle, WM_MOVE, 0, MAKELPARAM(Window->Client.left, Window->Client.top));
    Window = WindowOf(Handle);
    if (!Window || ((Flags & SWP_NOCLIENTSIZE) && !(Flags & SWP_STATECHANGED)))
        return;
    const WPARAM Kind = Window->Has(WS_MINIMIZE)   ? SIZE_MINIMIZED
                        : Window->Has(WS_MAXIMIZE) ? SIZE_MAXIMIZED
                                                   : SIZE_RESTORED;
    SendMessageA(Handle, WM_SIZE, Kind, MAKELPARAM(Window->ClientWidth(), Window->ClientHeight()));
}

LRESULT SetRedraw(HWND Handle, bool On)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    if (!On) {
        RedrawWindow(Handle, nullptr, nullptr, RDW_ALLCHILDREN | RDW_VALIDATE);
        Window->Style &= ~static_cast<DWORD>(WS_VISIBLE);
    } else {
        Window->Style |= WS_VISIBLE;
    }
    return 0;
}

LRESULT EraseBackground(HWND Handle, HDC Dc)
{
    const auto Brush = reinterpret_cast<HBRUSH>(GetClassLongPtrA(Handle, GCLP_HBRBACKGROUND));
    if (!Brush)
        return 0;
    RECT Rect;
    GetClipBox(Dc, &Rect);
    FillRect(Dc, &Rect, Brush);
    return 1;
}

LRESULT ControlColor(HDC Dc, int Background)
{
    SetTextColor(Dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(Dc, GetSysColor(Background));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(Background));
}

LRESULT Print(HWND Handle, WPARAM Dc, LPARAM Flags)
{
    if ((Flags & PRF_CHECKVISIBLE) && !IsWindowVisible(Handle))
        return 0;
    if (Flags & PRF_NONCLIENT)
        SendMessageA(Handle, WM_NCPAINT, 1, 0);
    if (Flags & PRF_ERASEBKGND)
        SendMessageA(Handle, WM_ERASEBKGND, Dc, 0);
    if (Flags & PRF_CLIENT)
        SendMessageA(Handle, WM_PRINTCLIENT, Dc, Flags);
    return 0;
}

LRESULT HitTest(HWND Handle, LPARAM Where)
{
    TStateLock Lock;
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return HTERROR;
    const POINT Point{static_cast<SHORT>(LOWORD(Where)), static_cast<SHORT>(HIWORD(Where))};
    const RECT Outer = ScreenRect(*Window);
    const RECT Client = ScreenClientRect(*Window);
    if (!PtInRect(&Outer, Point))
        return HTNOWHERE;
    if (PtInRect(&Client, Point))
        return HTCLIENT;
    if (Window->Has(WS_CAPTION) && Point.y < Client.top - MenuBarHeight(*Window))
        return Point.y < Outer.top + GetSystemMetrics(SM_CYDLGFRAME) && Window->Has(WS_THICKFRAME)
                   ? HTTOP
                   : HTCAPTION;
    if (Point.y < Client.top && MenuBarHeight(*Window) > 0)
        return HTMENU;
    if (Window->Has(WS_VSCROLL) && Point.x >= Client.right && Point.y < Client.bottom)
        return HTVSCROLL;
    if (Window->Has(WS_HSCROLL) && Point.y >= Client.bottom)
        return HTHSCROLL;
    return HTBORDER;
}

LRESULT SetClassCursor(HWND Handle, WPARAM From, LPARAM Where)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    if (Window->IsChild() && SendMessageA(Window->Parent->Handle, WM_SETCURSOR, From, Where))
        return TRUE;
    HCURSOR Cursor = LoadCursorA(nullptr, IDC_ARROW);
    if (static_cast<SHORT>(LOWORD(Where)) == HTCLIENT)
        Cursor = reinterpret_cast<HCURSOR>(GetClassLongPtrA(Handle, GCLP_HCURSOR));
    if (!Cursor)
        return FALSE;
    SetCursor(Cursor);
    return TRUE;
}

LRESULT SystemCommand(HWND Handle, WPARAM WParam, LPARAM LParam)
{
    if (CallHooks(WH_CBT, HCBT_SYSCOMMAND, WParam, LParam) != 0)
        return 0;
    switch (WParam & 0xFFF0) {
    case SC_CLOSE:
        return SendMessageA(Handle, WM_CLOSE, 0, 0);
    case SC_MINIMIZE:
        ShowOwnedPopups(Handle, FALSE);
        ShowWindow(Handle, SW_MINIMIZE);
        return 0;
    case SC_MAXIMIZE:
        if (IsIconic(Handle))
            ShowOwnedPopups(Handle, TRUE);
        ShowWindow(Handle, SW_MAXIMIZE);
        return 0;
    case SC_RESTORE:
        if (IsIconic(Handle))
            ShowOwnedPopups(Handle, TRUE);
        ShowWindow(Handle, SW_RESTORE);
        return 0;
    case SC_KEYMENU:
        TrackMenuBarByKey(Handle, static_cast<char>(LParam));
        return 0;
    default:
        return 0;
    }
}

LRESULT SystemKey(HWND Handle, WPARAM Key, LPARAM Flags)
{
    constexpr LPARAM AltIsDown = 1 << 29;
    if (Key == VK_F4 && (Flags & AltIsDown)) {
        const HWND Root = GetAncestor(Handle, GA_ROOT);
        if (!(GetClassLongA(Root, GCL_STYLE) & CS_NOCLOSE))
            PostMessageA(Root, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
    return 0;
}

LRESULT SystemChar(HWND Handle, WPARAM Char, LPARAM Flags)
{
    constexpr LPARAM AltIsDown = 1 << 29;
    if (!(Flags & AltIsDown) || Char == VK_TAB || Char == VK_ESCAPE || Char == VK_RETURN)
        return 0;
    const HWND Root = GetAncestor(Handle, GA_ROOT);
    SendMessageA(Char == VK_SPACE ? Handle : Root, WM_SYSCOMMAND, SC_KEYMENU, static_cast<LPARAM>(Char));
    return 0;
}

// To the parent of a child, as the system passes on what a child leaves alone.
LRESULT PassToParent(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Window->IsChild())
        return 0;
    return SendMessageA(Window->Parent->Handle, Message, WParam, LParam);
}

LRESULT ChangeIcon(HWND Handle, WPARAM Which, LPARAM Icon, bool Set)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    HICON& Slot = Which == ICON_BIG ? Window->BigIcon : Window->SmallIcon;
    const auto Old = reinterpret_cast<LRESULT>(Slot);
    if (Set)
        Slot = reinterpret_cast<HICON>(Icon);
    return Old;
}

LRESULT UiState(HWND Handle, UINT Message, WPARAM WParam)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    const UINT Flags = HIWORD(WParam);
    if (Message == WM_QUERYUISTATE)
        return static_cast<LRESULT>(Window->UiState);
    if (Message == WM_UPDATEUISTATE) {
        if (LOWORD(WParam) == UIS_SET)
            Window->UiState |= Flags;
        else if (LOWORD(WParam) == UIS_CLEAR)
            Window->UiState &= ~Flags;
        return 0;
    }
    SendMessageA(GetAncestor(Handle, GA_ROOT), WM_UPDATEUISTATE, WParam, 0);
    return 0;
}

LRESULT MouseActivate(HWND Handle, WPARAM WParam, LPARAM LParam)
{
    const TWindow* const Window = WindowOf(Handle);
    if (Window && Window->IsChild()) {
        const LRESULT Answer = SendMessageA(Window->Parent->Handle, WM_MOUSEACTIVATE, WParam, LParam);
        if (Answer)
            return Answer;
    }
    return LOWORD(LParam) == HTCAPTION && HIWORD(LParam) == WM_LBUTTONDOWN ? MA_NOACTIVATE : MA_ACTIVATE;
}

LRESULT ContextMenu(HWND Handle, LPARAM Where)
{
    POINT Point{static_cast<SHORT>(LOWORD(Where)), static_cast<SHORT>(HIWORD(Where))};
    ClientToScreen(Handle, &Point);
    return SendMessageA(Handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Handle),
                        MAKELPARAM(Point.x, Point.y));
}

LRESULT NcCreate(HWND Handle, const CREATESTRUCTA* Data)
{
    if (Data)
        SetText(Handle, Data->lpszName);
    return TRUE;
}

LRESULT PaintNothing(HWND Handle)
{
    PAINTSTRUCT Paint;
    BeginPaint(Handle, &Paint);
    EndPaint(Handle, &Paint);
    return 0;
}

} // namespace

LRESULT DefWindowProcA(HWND Handle, UINT Message, WPARAM WParam, LPARAM LParam)
{
    const auto Dc = reinterpret_cast<HDC>(WParam);
    switch (Message) {
    case WM_NCCREATE:
        return NcCreate(Handle, reinterpret_cast<const CREATESTRUCTA*>(LParam));
    case WM_NCCALCSIZE:
        if (const TWindow* const Window = WindowOf(Handle))
            CalculateClient(*Window, *reinterpret_cast<RECT*>(LParam));
        return 0;
    case WM_NCDESTROY:
        return 0;
    case WM_NCHITTEST:
        return HitTest(Handle, LParam);
    case WM_NCACTIVATE:
        return TRUE;
    case WM_WINDOWPOSCHANGING:
        LimitSize(Handle, *reinterpret_cast<WINDOWPOS*>(LParam));
        return 0;
    case WM_WINDOWPOSCHANGED:
        TellMoved(Handle, *reinterpret_cast<const WINDOWPOS*>(LParam));
        return 0;
    case WM_SHOWWINDOW:
        if (LParam)
            ShowWindow(Handle, WParam ? SW_SHOWNOACTIVATE : SW_HIDE);
        return 0;
    case WM_SETTEXT:
        return SetText(Handle, reinterpret_cast<LPCSTR>(LParam));
    case WM_GETTEXT:
        return GetText(Handle, WParam, LParam);
    case WM_GETTEXTLENGTH:
        return TextLength(Handle);
    case WM_SETICON:
        return ChangeIcon(Handle, WParam, LParam, true);
    case WM_GETICON:
        return ChangeIcon(Handle, WParam, 0, false);
    case WM_SETREDRAW:
        return SetRedraw(Handle, WParam != 0);
    case WM_PAINT:
        return PaintNothing(Handle);
    case WM_PRINT:
        return Print(Handle, WParam, LParam);
    case WM_ERASEBKGND:
    case WM_ICONERASEBKGND:
        return EraseBackground(Handle, Dc);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        return ControlColor(Dc, COLOR_WINDOW);
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return ControlColor(Dc, COLOR_BTNFACE);
    case WM_CTLCOLORSCROLLBAR:
        return ControlColor(Dc, COLOR_SCROLLBAR);
    case WM_CLOSE:
        DestroyWindow(Handle);
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(WParam) != WA_INACTIVE && !IsIconic(Handle))
            SetFocus(Handle);
        return 0;
    case WM_MOUSEACTIVATE:
        return MouseActivate(Handle, WParam, LParam);
    case WM_SETCURSOR:
        return SetClassCursor(Handle, WParam, LParam);
    case WM_SYSCOMMAND:
        return SystemCommand(Handle, WParam, LParam);
    case WM_SYSKEYDOWN:
        return SystemKey(Handle, WParam, LParam);
    case WM_SYSCHAR:
        return SystemChar(Handle, WParam, LParam);
    case WM_RBUTTONUP:
        return ContextMenu(Handle, LParam);
    case WM_CONTEXTMENU:
    case WM_MOUSEWHEEL:
    case WM_HELP:
        return PassToParent(Handle, Message, WParam, LParam);
    case WM_CANCELMODE:
        if (CurrentThread()->MenuOwner == Handle)
            EndMenu();
        if (GetCapture() == Handle)
            ReleaseCapture();
        return 0;
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return -1;
    case WM_QUERYOPEN:
    case WM_QUERYENDSESSION:
        return TRUE;
    case WM_NOTIFYFORMAT:
        return 1; // NFR_ANSI
    case WM_QUERYUISTATE:
    case WM_UPDATEUISTATE:
    case WM_CHANGEUISTATE:
        return UiState(Handle, Message, WParam);
    default:
        if (Message == ShowFromOtherThread())
            ShowWindow(Handle, static_cast<int>(WParam));
        return 0;
    }
}
