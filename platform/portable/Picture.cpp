#include "platform/Picture.h"

#include "platform/portable/PaintWindow.h"

namespace {
constexpr int LargestSide = 16000;

// A parent first, then its children from the lowest to the topmost.
void PaintTree(HWND Handle)
{
    const TWindow* Window = WindowOf(Handle);
    if (!Window || !Window->Has(WS_VISIBLE))
        return;
    const HDC Dc = WindowContext(*Window, TPaintArea::Whole);
    PaintFrame(*Window, Dc);
    ReleaseDC(Handle, Dc);
    SendMessageA(Handle, WM_PAINT, 0, 0);
    Window = WindowOf(Handle);
    if (!Window)
        return;
    std::vector<HWND> Children;
    for (const TWindow* const Child : Window->Children)
        Children.insert(Children.begin(), Child->Handle);
    for (const HWND Child : Children)
        if (IsWindow(Child))
            PaintTree(Child);
}
} // namespace

bool SaveWindowPicture(HWND Handle, const std::string& FileName)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || Window->Width() <= 0 || Window->Height() <= 0 || Window->Width() > LargestSide ||
        Window->Height() > LargestSide)
        return false;
    cairo_surface_t* const Surface =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, Window->Width(), Window->Height());
    {
        const TPictureScope Scope(*Window, Surface);
        PaintTree(Handle);
    }
    const bool Written = cairo_surface_write_to_png(Surface, FileName.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(Surface);
    return Written;
}
