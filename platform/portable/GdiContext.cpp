#include "platform/portable/Gdi.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int ScreenWidth = 1280;
constexpr int ScreenHeight = 1024;

template<class T>
T Exchange(HDC Dc, T TDcState::*Field, T Value, T Failed)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return Failed;
    return std::exchange(Context->State.*Field, Value);
}

template<class T>
T Ask(HDC Dc, T TDcState::*Field, T Failed)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    return Context ? Context->State.*Field : Failed;
}

void HoldObjects(const TDcState& State)
{
    SelectGdiObject(State.Font);
    SelectGdiObject(State.Brush);
    SelectGdiObject(State.Pen);
}

void DropObjects(const TDcState& State)
{
    DeselectGdiObject(State.Font);
    DeselectGdiObject(State.Brush);
    DeselectGdiObject(State.Pen);
}

template<class T>
HGDIOBJ ExchangeObject(T& Field, HGDIOBJ Handle)
{
    const T Old = Field;
    SelectGdiObject(Handle);
    Field = static_cast<T>(Handle);
    DeselectGdiObject(Old);
    return Old;
}

HGDIOBJ SelectBitmap(TGdiContext& Context, TGdiBitmap& Bitmap, HGDIOBJ Handle)
{
    if (!Context.Memory || (Bitmap.Selected > 0 && Context.Bitmap != Handle))
        return nullptr;
    cairo_surface_reference(Bitmap.Surface);
    if (Context.Surface)
        cairo_surface_destroy(Context.Surface);
    Context.Surface = Bitmap.Surface;
    Context.Size = {Bitmap.Info.bmWidth, Bitmap.Info.bmHeight};
    return ExchangeObject(Context.Bitmap, Handle);
}

// The bitmap that every new memory context holds; shared, never drawn on.
HBITMAP EmptyBitmap()
{
    static HBITMAP const Only = [] {
        const auto Bitmap = CreateBitmap(1, 1, 1, 1, nullptr);
        KeepAsStock(Bitmap);
        return Bitmap;
    }();
    return Only;
}
} // namespace

TGdiContext::~TGdiContext()
{
    DropObjects(State);
    for (const auto& Old : Saved)
        DropObjects(Old);
    DeselectGdiObject(Bitmap);
    if (Surface)
        cairo_surface_destroy(Surface);
}

HDC NewContext(HWND Window, cairo_surface_t* Surface, POINT Origin, SIZE Size)
{
    auto Context = std::make_unique<TGdiContext>();
    Context->Window = Window;
    Context->Surface = Surface ? cairo_surface_reference(Surface) : nullptr;
    Context->Origin = Origin;
    Context->Size = Size;
    Context->State.Font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    Context->State.Brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    Context->State.Pen = static_cast<HPEN>(GetStockObject(BLACK_PEN));
    HoldObjects(Context->State);
    return static_cast<HDC>(AddGdiObject(std::move(Context)));
}

HDC CreateCompatibleDC(HDC Dc)
{
    if (Dc && !FindGdi<TGdiContext>(Dc))
        return nullptr;
    const HDC Result = NewContext(nullptr, nullptr, {}, {1, 1});
    auto& Context = *FindGdi<TGdiContext>(Result);
    Context.Memory = true;
    Context.Bitmap = EmptyBitmap();
    return Result;
}

BOOL DeleteDC(HDC Dc)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    FreeContext(Dc);
    return TRUE;
}

HWND WindowFromDC(HDC Dc)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    return Context ? Context->Window : nullptr;
}

int SaveDC(HDC Dc)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return 0;
    HoldObjects(Context->State);
    Context->Saved.push_back(Context->State);
    return static_cast<int>(Context->Saved.size());
}

BOOL RestoreDC(HDC Dc, int Saved)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    const int Count = static_cast<int>(Context->Saved.size());
    const int Level = Saved < 0 ? Count + Saved : Saved - 1;
    if (Level < 0 || Level >= Count)
        return FALSE;
    while (static_cast<int>(Context->Saved.size()) > Level) {
        DropObjects(Context->State);
        Context->State = Context->Saved.back();
        Context->Saved.pop_back();
    }
    return TRUE;
}

int GetDeviceCaps(HDC Dc, int Index)
{
    if (!FindGdi<TGdiContext>(Dc))
        return 0;
    constexpr double MillimetresPerPixel = 25.4 / 96;
    switch (Index) {
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    case HORZRES:
        return ScreenWidth;
    case VERTRES:
        return ScreenHeight;
    case HORZSIZE:
        return static_cast<int>(ScreenWidth * MillimetresPerPixel);
    case VERTSIZE:
        return static_cast<int>(ScreenHeight * MillimetresPerPixel);
    case BITSPIXEL:
        return 32;
    case PLANES:
        return 1;
    case NUMCOLORS:
        return -1;
    case TECHNOLOGY:
        return DT_RASDISPLAY;
    default:
        return 0;
    }
}

BOOL SetViewportOrgEx(HDC Dc, int X, int Y, POINT* Old)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    if (Old)
        *Old = Context->State.Viewport;
    Context->State.Viewport = {X, Y};
    return TRUE;
}

BOOL OffsetViewportOrgEx(HDC Dc, int X, int Y, POINT* Old)
{
    POINT Now{};
    return GetViewportOrgEx(Dc, &Now) && SetViewportOrgEx(Dc, Now.x + X, Now.y + Y, Old);
}

BOOL GetViewportOrgEx(HDC Dc, POINT* Point)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !Point)
        return FALSE;
    *Point = Context->State.Viewport;
    return TRUE;
}

BOOL SetWindowOrgEx(HDC Dc, int X, int Y, POINT* Old)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    if (Old)
        *Old = Context->State.WindowOrg;
    Context->State.WindowOrg = {X, Y};
    return TRUE;
}

BOOL GetWindowOrgEx(HDC Dc, POINT* Point)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !Point)
        return FALSE;
    *Point = Context->State.WindowOrg;
    return TRUE;
}

BOOL LPtoDP(HDC Dc, POINT* Points, int Count)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    const auto& State = Context->State;
    for (int Index = 0; Index < Count; ++Index)
        Points[Index] = {Points[Index].x - State.WindowOrg.x + State.Viewport.x,
                         Points[Index].y - State.WindowOrg.y + State.Viewport.y};
    return TRUE;
}

BOOL DPtoLP(HDC Dc, POINT* Points, int Count)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    const auto& State = Context->State;
    for (int Index = 0; Index < Count; ++Index)
        Points[Index] = {Points[Index].x + State.WindowOrg.x - State.Viewport.x,
                         Points[Index].y + State.WindowOrg.y - State.Viewport.y};
    return TRUE;
}

int SetMapMode(HDC Dc, int Mode)
{
    return FindGdi<TGdiContext>(Dc) && Mode == MM_TEXT ? MM_TEXT : 0;
}

DWORD SetLayout(HDC Dc, DWORD Layout)
{
    return Exchange<DWORD>(Dc, &TDcState::Layout, Layout, GDI_ERROR);
}

DWORD GetLayout(HDC Dc)
{
    return Ask<DWORD>(Dc, &TDcState::Layout, GDI_ERROR);
}

HGDIOBJ SelectObject(HDC Dc, HGDIOBJ Handle)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    auto* const Object = FindGdiObject(Handle);
    if (!Context || !Object)
        return nullptr;
    if (dynamic_cast<TGdiFont*>(Object))
        return ExchangeObject(Context->State.Font, Handle);
    if (dynamic_cast<TGdiBrush*>(Object))
        return ExchangeObject(Context->State.Brush, Handle);
    if (dynamic_cast<TGdiPen*>(Object))
        return ExchangeObject(Context->State.Pen, Handle);
    if (auto* const Bitmap = dynamic_cast<TGdiBitmap*>(Object))
        return Bitmap->Stock ? ExchangeObject(Context->Bitmap, Handle)
                             : SelectBitmap(*Context, *Bitmap, Handle);
    if (dynamic_cast<TGdiRegion*>(Object))
        return reinterpret_cast<HGDIOBJ>(static_cast<INT_PTR>(SelectClipRgn(Dc, static_cast<HRGN>(Handle))));
    return nullptr;
}

HGDIOBJ GetCurrentObject(HDC Dc, UINT Kind)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return nullptr;
    switch (Kind) {
    case OBJ_FONT:
        return Context->State.Font;
    case OBJ_BRUSH:
        return Context->State.Brush;
    case OBJ_PEN:
        return Context->State.Pen;
    case OBJ_BITMAP:
        return Context->Bitmap;
    default:
        return nullptr;
    }
}

COLORREF SetTextColor(HDC Dc, COLORREF Color)
{
    return Exchange<COLORREF>(Dc, &TDcState::TextColor, Color, CLR_INVALID);
}

COLORREF GetTextColor(HDC Dc)
{
    return Ask<COLORREF>(Dc, &TDcState::TextColor, CLR_INVALID);
}

COLORREF SetBkColor(HDC Dc, COLORREF Color)
{
    return Exchange<COLORREF>(Dc, &TDcState::BkColor, Color, CLR_INVALID);
}

COLORREF GetBkColor(HDC Dc)
{
    return Ask<COLORREF>(Dc, &TDcState::BkColor, CLR_INVALID);
}

COLORREF SetDCBrushColor(HDC Dc, COLORREF Color)
{
    return Exchange<COLORREF>(Dc, &TDcState::BrushColor, Color, CLR_INVALID);
}

COLORREF SetDCPenColor(HDC Dc, COLORREF Color)
{
    return Exchange<COLORREF>(Dc, &TDcState::PenColor, Color, CLR_INVALID);
}

int SetBkMode(HDC Dc, int Mode)
{
    return Mode == OPAQUE || Mode == TRANSPARENT ? Exchange(Dc, &TDcState::BkMode, Mode, 0) : 0;
}

int GetBkMode(HDC Dc)
{
    return Ask(Dc, &TDcState::BkMode, 0);
}

UINT SetTextAlign(HDC Dc, UINT Align)
{
    return Exchange<UINT>(Dc, &TDcState::TextAlign, Align, GDI_ERROR);
}

UINT GetTextAlign(HDC Dc)
{
    return Ask<UINT>(Dc, &TDcState::TextAlign, GDI_ERROR);
}

int SetROP2(HDC Dc, int Mode)
{
    return Exchange(Dc, &TDcState::Rop2, Mode, 0);
}

int SetStretchBltMode(HDC Dc, int Mode)
{
    return Exchange(Dc, &TDcState::StretchMode, Mode, 0);
}

BOOL GdiFlush()
{
    return TRUE;
}
