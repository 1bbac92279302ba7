// Menus and captions of multiple-document windows, which the window system draws
// and does not redraw by itself.
#pragma once

class TComponent;

// Makes changed texts of Owner visible when it is a form that frames documents or
// a maximized document; nothing otherwise, nor before the form has a window.
void RefreshMDI(const TComponent* Owner);
