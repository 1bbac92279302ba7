#include <algorithm>

#include "platform/portable/Gdi.h"

namespace {
using TPixel = std::uint32_t;

bool NeedsSource(DWORD Operation)
{
    return Operation != PATCOPY && Operation != PATINVERT && Operation != DSTINVERT &&
           Operation != BLACKNESS && Operation != WHITENESS;
}

TPixel Combine(DWORD Operation, TPixel Target, TPixel Source, TPixel Pattern)
{
    switch (Operation) {
    case SRCPAINT:
        return Target | Source;
    case SRCAND:
        return Target & Source;
    case SRCINVERT:
        return Target ^ Source;
    case SRCERASE:
        return Source & ~Target;
    case NOTSRCCOPY:
        return ~Source;
    case PATCOPY:
        return Pattern;
    case PATINVERT:
        return Target ^ Pattern;
    case DSTINVERT:
        return ~Target;
    case BLACKNESS:
        return 0;
    case WHITENESS:
        return 0xFFFFFF;
    default:
        return Source;
    }
}

struct TArea {
    int X, Y, Width, Height;
};

// Draws into a surface of its own what the operation gives and lays that over
// the target, so that clipping is the one of every other drawing.
BOOL Blit(HDC Dc, const TArea& To, cairo_surface_t* Source, POINT SourceOrigin, const TArea& From,
          DWORD Operation)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    const int Width = std::abs(To.Width), Height = std::abs(To.Height);
    const TDrawing Draw(Dc);
    if (!Draw || Width == 0 || Height == 0)
        return TRUE;
    const auto MakePart = [&] { return cairo_image_surface_create(CAIRO_FORMAT_RGB24, Width, Height); };
    cairo_surface_t* const Result = MakePart();
    if (Source) {
        cairo_t* const Part = cairo_create(Result);
        if (To.Width < 0 || To.Height < 0) {
            cairo_translate(Part, To.Width < 0 ? Width : 0, To.Height < 0 ? Height : 0);
            cairo_scale(Part, To.Width < 0 ? -1 : 1, To.Height < 0 ? -1 : 1);
        }
        if (From.Width && From.Height)
            cairo_scale(Part, double(Width) / From.Width, double(Height) / From.Height);
        cairo_set_source_surface(Part, Source, -From.X - SourceOrigin.x, -From.Y - SourceOrigin.y);
        const bool Same = Width == From.Width && Height == From.Height;
        cairo_pattern_set_filter(cairo_get_source(Part), Same || Context->State.StretchMode != HALFTONE
                                                             ? CAIRO_FILTER_NEAREST
                                                             : CAIRO_FILTER_GOOD);
        cairo_paint(Part);
        cairo_destroy(Part);
    }
    const int Left = std::min(To.X, To.X + To.Width), Top = std::min(To.Y, To.Y + To.Height);
    if (Operation != SRCCOPY) {
        cairo_surface_t* const Old = MakePart();
        const auto& State = Context->State;
        cairo_t* const Copy = cairo_create(Old);
        cairo_set_source_surface(Copy, Context->Surface,
                                 -(Left - State.WindowOrg.x + State.Viewport.x + Context->Origin.x),
                                 -(Top - State.WindowOrg.y + State.Viewport.y + Context->Origin.y));
        cairo_paint(Copy);
        cairo_destroy(Copy);
        const auto* const Brush = FindGdi<TGdiBrush>(State.Brush);
        const COLORREF Color = Brush ? Brush->Brush.lbColor : 0;
        const TPixel Pattern =
            TPixel{GetRValue(Color)} << 16 | TPixel{GetGValue(Color)} << 8 | GetBValue(Color);
        cairo_surface_flush(Old);
        cairo_surface_flush(Result);
        auto* const Pixels = reinterpret_cast<TPixel*>(cairo_image_surface_get_data(Result));
        const auto* const Targets = reinterpret_cast<const TPixel*>(cairo_image_surface_get_data(Old));
        const int Count = cairo_image_surface_get_stride(Result) / 4 * Height;
        for (int Index = 0; Index < Count; ++Index)
            Pixels[Index] = Combine(Operation, Targets[Index], Pixels[Index], Pattern) | 0xFF000000;
        cairo_surface_mark_dirty(Result);
        cairo_surface_destroy(Old);
    }
    cairo_set_operator(Draw, CAIRO_OPERATOR_OVER);
    cairo_set_source_surface(Draw, Result, Left, Top);
    cairo_rectangle(Draw, Left, Top, Width, Height);
    cairo_fill(Draw);
    cairo_surface_destroy(Result);
    return TRUE;
}
} // namespace

BOOL StretchBlt(HDC Dc, int X, int Y, int Width, int Height, HDC Source, int SourceX, int SourceY,
                int SourceWidth, int SourceHeight, DWORD Operation)
{
    const TArea To{X, Y, Width, Height};
    if (!NeedsSource(Operation))
        return Blit(Dc, To, nullptr, {}, {}, Operation);
    const auto* const From = FindGdi<TGdiContext>(Source);
    if (!From)
        return FALSE;
    if (auto* const Bitmap = FindGdi<TGdiBitmap>(From->Bitmap))
        ReadBitmapBits(*Bitmap);
    const auto& State = From->State;
    const POINT Origin = {From->Origin.x + State.Viewport.x - State.WindowOrg.x,
                          From->Origin.y + State.Viewport.y - State.WindowOrg.y};
    return Blit(Dc, To, From->Surface, Origin, {SourceX, SourceY, SourceWidth, SourceHeight}, Operation);
}

BOOL BitBlt(HDC Dc, int X, int Y, int Width, int Height, HDC Source, int SourceX, int SourceY,
            DWORD Operation)
{
    return StretchBlt(Dc, X, Y, Width, Height, Source, SourceX, SourceY, Width, Height, Operation);
}

BOOL PatBlt(HDC Dc, int X, int Y, int Width, int Height, DWORD Operation)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (Context && Operation == PATCOPY) {
        const RECT Rect = {X, Y, X + Width, Y + Height};
        return FillRect(Dc, &Rect, Context->State.Brush);
    }
    return Blit(Dc, {X, Y, Width, Height}, nullptr, {}, {}, Operation);
}

int StretchDIBits(HDC Dc, int X, int Y, int Width, int Height, int SourceX, int SourceY, int SourceWidth,
                  int SourceHeight, const void* Bits, const BITMAPINFO* Info, UINT, DWORD Operation)
{
    if (!Info)
        return 0;
    cairo_surface_t* const Source = SurfaceOfDib(*Info, Bits);
    if (!Source)
        return 0;
    // SourceY counts from the bottom of a bitmap that stands on its head.
    const int BitmapHeight = cairo_image_surface_get_height(Source);
    const int Top = Info->bmiHeader.biHeight > 0 ? BitmapHeight - SourceY - SourceHeight : SourceY;
    const BOOL Done =
        Blit(Dc, {X, Y, Width, Height}, Source, {}, {SourceX, Top, SourceWidth, SourceHeight}, Operation);
    cairo_surface_destroy(Source);
    return Done ? BitmapHeight : 0;
}

int SetDIBitsToDevice(HDC Dc, int X, int Y, DWORD Width, DWORD Height, int SourceX, int SourceY, UINT, UINT,
                      const void* Bits, const BITMAPINFO* Info, UINT Usage)
{
    return StretchDIBits(Dc, X, Y, static_cast<int>(Width), static_cast<int>(Height), SourceX, SourceY,
                         static_cast<int>(Width), static_cast<int>(Height), Bits, Info, Usage, SRCCOPY);
}
