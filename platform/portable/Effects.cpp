// Regions, transparency, animation and tracking of the mouse: remembered or
// answered, without anything to see.
#include <utility>

#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

int SetWindowRgn(HWND Handle, HRGN Region, BOOL)
{
    TWindow* const Window = WindowOf(Handle);
    if (!Window)
        return 0;
    const HRGN Old = std::exchange(Window->Region, Region);
    if (Old && Old != Region)
        DeleteObject(Old);
    return 1;
}

int GetWindowRgn(HWND Handle, HRGN Region)
{
    const TWindow* const Window = WindowOf(Handle);
    return Window && Window->Region ? CombineRgn(Region, Window->Region, nullptr, RGN_COPY) : 0;
}

BOOL AnimateWindow(HWND Window, DWORD, DWORD Flags)
{
    if (!IsWindow(Window))
        return FALSE;
    ShowWindow(Window, Flags & AW_HIDE ? SW_HIDE : Flags & AW_ACTIVATE ? SW_SHOW : SW_SHOWNA);
    return TRUE;
}

BOOL SetLayeredWindowAttributes(HWND Window, COLORREF, BYTE, DWORD)
{
    return (GetWindowLongA(Window, GWL_EXSTYLE) & WS_EX_LAYERED) != 0;
}

// No mouse moves by itself here, so nothing is left or hovered over.
BOOL TrackMouseEvent(TRACKMOUSEEVENT* Event)
{
    if (!Event || Event->cbSize != sizeof(TRACKMOUSEEVENT)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    return IsWindow(Event->hwndTrack);
}

BOOL DragDetect(HWND, POINT)
{
    return FALSE;
}

BOOL RegisterHotKey(HWND Window, int, UINT, UINT)
{
    return !Window || IsWindow(Window);
}

BOOL UnregisterHotKey(HWND Window, int)
{
    return !Window || IsWindow(Window);
}
