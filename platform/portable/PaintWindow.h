// Painting of windows. A window has nothing to draw on except while a picture
// of its tree is being taken: its contexts then draw on the picture.
#pragma once

#include "platform/portable/Gdi.h"
#include "platform/portable/Window.h"

// The picture of one top-level window, taken while the object lives. Pictures
// may nest (a paint handler that takes a picture); the innermost counts.
class TPictureScope {
public:
    TPictureScope(const TWindow& Root, cairo_surface_t* Surface);
    ~TPictureScope();
    TPictureScope(const TPictureScope&) = delete;
    TPictureScope& operator=(const TPictureScope&) = delete;

    HWND Root;
    POINT Corner; // of the root on the screen
    cairo_surface_t* Surface;

private:
    TPictureScope* FOuter;
};

enum class TPaintArea { Client, Whole };

// A context for the client area or the whole of a window, as GetDC and
// GetWindowDC give it.
HDC WindowContext(const TWindow& Window, TPaintArea Area);

// Frame, caption, menu bar and scroll bars.
void PaintFrame(const TWindow& Window, HDC Dc);

// A scroll bar, standing or lying, inside Rect.
void PaintScrollBar(HDC Dc, const RECT& Rect, bool Vertical, const TWindowScrollBar& Bar, bool Enabled);
