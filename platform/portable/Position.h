// Sizes, positions and visibility, as the sources of this folder share them.
#pragma once

#include "platform/portable/Window.h"

// Not in winuser.h: what SetWindowPos found out about the client area.
#define SWP_NOCLIENTSIZE 0x0800
#define SWP_NOCLIENTMOVE 0x1000
#define SWP_STATECHANGED 0x8000

// Asks the window with WM_GETMINMAXINFO for its limits.
MINMAXINFO AskMinMax(HWND Window);

// Sets the WS_MINIMIZE and WS_MAXIMIZE bits for a ShowWindow command, stores or
// fetches the normal position, and returns the SetWindowPos flags and, in Rect,
// the new position.
UINT MinMaximize(HWND Window, int Command, RECT& Rect);

// Sends WM_SIZE and WM_MOVE as they stand.
void SendSizeAndMove(HWND Window);

// What DefWindowProcA answers to WM_NCCALCSIZE.
void CalculateClient(const TWindow& Window, RECT& Rect);

// How far the frame with these styles reaches out of the client area, without
// a menu.
RECT FrameMargins(DWORD Style, DWORD ExStyle);

// Posted by ShowWindow to a window of another thread; DefWindowProcA shows it.
UINT ShowFromOtherThread();
