#include "platform/portable/PaintWindow.h"

#include <utility>

namespace {
TPictureScope* Innermost = nullptr;

bool InPicture(const TWindow& Window)
{
    const TWindow* Root = &Window;
    while (Root->Parent && Root->Parent->Parent)
        Root = Root->Parent;
    return Innermost && Root->Handle == Innermost->Root;
}

// What of the area its ancestors let through, in its own coordinates.
std::shared_ptr<cairo_region_t> VisibleRegion(const TWindow& Window, const RECT& Area, TPaintArea Kind)
{
    RECT Shown = Area;
    for (const TWindow* Each = Kind == TPaintArea::Whole ? Window.Parent : &Window; Each && Each->Parent;
         Each = Each->Parent) {
        const RECT Client = ScreenClientRect(*Each);
        if (!IntersectRect(&Shown, &Shown, &Client))
            Shown = {Area.left, Area.top, Area.left, Area.top};
    }
    OffsetRect(&Shown, -Area.left, -Area.top);
    cairo_region_t* const Region = RectRegion(Shown.left, Shown.top, Shown.right, Shown.bottom);
    if (Kind == TPaintArea::Client && Window.Has(WS_CLIPCHILDREN))
        for (const TWindow* const Child : Window.Children) {
            if (!Child->Has(WS_VISIBLE))
                continue;
            RECT Hole = ScreenRect(*Child);
            OffsetRect(&Hole, -Area.left, -Area.top);
            const auto Part = MakeRegion(RectRegion(Hole.left, Hole.top, Hole.right, Hole.bottom));
            cairo_region_subtract(Region, Part.get());
        }
    return MakeRegion(Region);
}
} // namespace

TPictureScope::TPictureScope(const TWindow& Window, cairo_surface_t* Target)
    : Root(Window.Handle), Corner{ScreenRect(Window).left, ScreenRect(Window).top}, Surface(Target),
      FOuter(std::exchange(Innermost, this))
{
}

TPictureScope::~TPictureScope()
{
    Innermost = FOuter;
}

HDC WindowContext(const TWindow& Window, TPaintArea Kind)
{
    const RECT Area = Kind == TPaintArea::Client ? ScreenClientRect(Window) : ScreenRect(Window);
    const SIZE Size = {Area.right - Area.left, Area.bottom - Area.top};
    if (!InPicture(Window))
        return NewContext(Window.Handle, nullptr, {}, Size);
    const HDC Dc = NewContext(Window.Handle, Innermost->Surface,
                              {Area.left - Innermost->Corner.x, Area.top - Innermost->Corner.y}, Size);
    FindGdi<TGdiContext>(Dc)->Visible = VisibleRegion(Window, Area, Kind);
    return Dc;
}

HDC GetDC(HWND Handle)
{
    if (!Handle)
        return NewContext(nullptr, nullptr, {},
                          {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    const TWindow* const Window = WindowOf(Handle);
    return Window ? WindowContext(*Window, TPaintArea::Client) : nullptr;
}

HDC GetWindowDC(HWND Handle)
{
    if (!Handle)
        return GetDC(nullptr);
    const TWindow* const Window = WindowOf(Handle);
    return Window ? WindowContext(*Window, TPaintArea::Whole) : nullptr;
}

int ReleaseDC(HWND, HDC Dc)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || Context->Memory)
        return 0;
    FreeContext(Dc);
    return 1;
}

HDC BeginPaint(HWND Handle, PAINTSTRUCT* Paint)
{
    const TWindow* const Window = WindowOf(Handle);
    if (!Window || !Paint)
        return nullptr;
    const bool Picture = InPicture(*Window);
    const TUpdate Update = TakeUpdate(Handle);
    const HDC Dc = WindowContext(*Window, TPaintArea::Client);
    *Paint = {};
    Paint->hdc = Dc;
    Paint->rcPaint = Update.Rect;
    if (Picture)
        Paint->rcPaint = {0, 0, Window->ClientWidth(), Window->ClientHeight()};
    Paint->fErase = Picture || Update.Erase;
    if (Paint->fErase)
        Paint->fErase = !SendMessageA(Handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(Dc), 0);
    return Dc;
}

BOOL EndPaint(HWND Handle, const PAINTSTRUCT* Paint)
{
    if (Paint && FindGdi<TGdiContext>(Paint->hdc))
        ReleaseDC(Handle, Paint->hdc);
    return TRUE;
}
