#include <algorithm>
#include <cmath>

#include "platform/portable/Gdi.h"
#include "platform/portable/winuser.h"

namespace {
struct TDash {
    int Count;
    double Lengths[6];
};

TDash DashOf(UINT Style)
{
    switch (Style) {
    case PS_DASH:
        return {2, {18, 6}};
    case PS_DOT:
        return {2, {3, 3}};
    case PS_DASHDOT:
        return {4, {9, 6, 3, 6}};
    case PS_DASHDOTDOT:
        return {6, {9, 3, 3, 3, 3, 3}};
    default:
        return {0, {}};
    }
}

void AddHatch(cairo_t* Cairo, ULONG_PTR Hatch)
{
    double Left, Top, Right, Bottom;
    cairo_clip_extents(Cairo, &Left, &Top, &Right, &Bottom);
    constexpr int Step = 8;
    const double Height = Bottom - Top;
    for (double Y = std::floor(Top / Step) * Step + 0.5; Y < Bottom; Y += Step)
        if (Hatch == HS_HORIZONTAL || Hatch == HS_CROSS) {
            cairo_move_to(Cairo, Left, Y);
            cairo_line_to(Cairo, Right, Y);
        }
    for (double X = std::floor((Left - Height) / Step) * Step + 0.5; X < Right; X += Step) {
        if (Hatch == HS_VERTICAL || Hatch == HS_CROSS) {
            cairo_move_to(Cairo, X, Top);
            cairo_line_to(Cairo, X, Bottom);
        }
        if (Hatch == HS_FDIAGONAL || Hatch == HS_DIAGCROSS) {
            cairo_move_to(Cairo, X, Top);
            cairo_line_to(Cairo, X + Height, Bottom);
        }
        if (Hatch == HS_BDIAGONAL || Hatch == HS_DIAGCROSS) {
            cairo_move_to(Cairo, X, Bottom);
            cairo_line_to(Cairo, X + Height, Top);
        }
    }
}

BOOL DrawPolygon(HDC Dc, const POINT* Points, int Count, bool Closed)
{
    if (!Points || Count < 2 || !FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw)
        return TRUE;
    const auto Path = [&](double Shift) {
        cairo_new_path(Draw);
        for (int Index = 0; Index < Count; ++Index)
            cairo_line_to(Draw, Points[Index].x + Shift, Points[Index].y + Shift);
        if (Closed)
            cairo_close_path(Draw);
    };
    if (Closed) {
        Path(0.5);
        Draw.FillWith(Draw.Context().State.Brush);
    }
    Path(0.5);
    Draw.StrokeWithPen();
    return TRUE;
}

void RoundPath(cairo_t* Cairo, double Left, double Top, double Right, double Bottom, double RadiusX,
               double RadiusY)
{
    RadiusX = std::min(RadiusX, (Right - Left) / 2);
    RadiusY = std::min(RadiusY, (Bottom - Top) / 2);
    const auto Corner = [&](double X, double Y, double From) {
        cairo_save(Cairo);
        cairo_translate(Cairo, X, Y);
        cairo_scale(Cairo, std::max(RadiusX, 0.01), std::max(RadiusY, 0.01));
        cairo_arc(Cairo, 0, 0, 1, From, From + M_PI / 2);
        cairo_restore(Cairo);
    };
    cairo_new_path(Cairo);
    Corner(Right - RadiusX, Top + RadiusY, -M_PI / 2);
    Corner(Right - RadiusX, Bottom - RadiusY, 0);
    Corner(Left + RadiusX, Bottom - RadiusY, M_PI / 2);
    Corner(Left + RadiusX, Top + RadiusY, M_PI);
    cairo_close_path(Cairo);
}

BOOL DrawRounded(HDC Dc, int Left, int Top, int Right, int Bottom, double RadiusX, double RadiusY)
{
    if (!FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw)
        return TRUE;
    RoundPath(Draw, Left + 0.5, Top + 0.5, Right - 0.5, Bottom - 0.5, RadiusX, RadiusY);
    cairo_path_t* const Path = cairo_copy_path(Draw);
    Draw.FillWith(Draw.Context().State.Brush);
    cairo_new_path(Draw);
    cairo_append_path(Draw, Path);
    cairo_path_destroy(Path);
    Draw.StrokeWithPen();
    return TRUE;
}

BOOL DrawSector(HDC Dc, RECT Box, POINT From, POINT To, bool Closed)
{
    if (!FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw || Box.right <= Box.left || Box.bottom <= Box.top)
        return TRUE;
    const double X = (Box.left + Box.right) / 2.0, Y = (Box.top + Box.bottom) / 2.0;
    cairo_new_path(Draw);
    if (Closed)
        cairo_move_to(Draw, X, Y);
    cairo_save(Draw);
    cairo_translate(Draw, X, Y);
    cairo_scale(Draw, (Box.right - Box.left) / 2.0, (Box.bottom - Box.top) / 2.0);
    cairo_arc_negative(Draw, 0, 0, 1, std::atan2(From.y - Y, From.x - X), std::atan2(To.y - Y, To.x - X));
    cairo_restore(Draw);
    if (Closed) {
        cairo_close_path(Draw);
        cairo_path_t* const Path = cairo_copy_path(Draw);
        Draw.FillWith(Draw.Context().State.Brush);
        cairo_new_path(Draw);
        cairo_append_path(Draw, Path);
        cairo_path_destroy(Path);
    }
    Draw.StrokeWithPen();
    return TRUE;
}

// Device coordinates on the surface when the point can be drawn on.
bool SurfacePoint(const TGdiContext& Context, int X, int Y, POINT& Point)
{
    const auto& State = Context.State;
    const int DeviceX = X - State.WindowOrg.x + State.Viewport.x;
    const int DeviceY = Y - State.WindowOrg.y + State.Viewport.y;
    Point = {DeviceX + Context.Origin.x, DeviceY + Context.Origin.y};
    return Context.Surface && Point.x >= 0 && Point.y >= 0 && DeviceX >= 0 && DeviceY >= 0 &&
           DeviceX < Context.Size.cx && DeviceY < Context.Size.cy &&
           Point.x < cairo_image_surface_get_width(Context.Surface) &&
           Point.y < cairo_image_surface_get_height(Context.Surface);
}
} // namespace

TGdiColor ColorOf(COLORREF Color)
{
    return {GetRValue(Color) / 255.0, GetGValue(Color) / 255.0, GetBValue(Color) / 255.0};
}

TDrawing::TDrawing(HDC Dc) : FContext(FindGdi<TGdiContext>(Dc))
{
    if (!FContext || !FContext->Surface)
        return;
    if (auto* const Bitmap = FindGdi<TGdiBitmap>(FContext->Bitmap))
        ReadBitmapBits(*Bitmap);
    FCairo = cairo_create(FContext->Surface);
    const auto& State = FContext->State;
    cairo_translate(FCairo, FContext->Origin.x, FContext->Origin.y);
    cairo_rectangle(FCairo, 0, 0, FContext->Size.cx, FContext->Size.cy);
    cairo_clip(FCairo);
    for (const auto* const Region : {FContext->Visible.get(), State.Clip.get()}) {
        if (!Region)
            continue;
        for (int Index = 0; Index < cairo_region_num_rectangles(Region); ++Index) {
            cairo_rectangle_int_t Part;
            cairo_region_get_rectangle(Region, Index, &Part);
            cairo_rectangle(FCairo, Part.x, Part.y, Part.width, Part.height);
        }
        cairo_clip(FCairo);
    }
    cairo_translate(FCairo, State.Viewport.x - State.WindowOrg.x, State.Viewport.y - State.WindowOrg.y);
    cairo_set_antialias(FCairo, CAIRO_ANTIALIAS_NONE);
    if (State.Rop2 == R2_NOT || State.Rop2 == R2_XORPEN)
        cairo_set_operator(FCairo, CAIRO_OPERATOR_DIFFERENCE);
}

TDrawing::~TDrawing()
{
    if (!FCairo)
        return;
    cairo_destroy(FCairo);
    cairo_surface_flush(FContext->Surface);
    if (auto* const Bitmap = FindGdi<TGdiBitmap>(FContext->Bitmap))
        WriteBitmapBits(*Bitmap);
}

void TDrawing::SetColor(COLORREF Color) const
{
    const auto Parts = ColorOf(FContext->State.Rop2 == R2_NOT ? 0xFFFFFF : Color);
    cairo_set_source_rgb(FCairo, Parts.Red, Parts.Green, Parts.Blue);
}

bool TDrawing::FillWith(HBRUSH Handle) const
{
    const auto* const Brush = FindGdi<TGdiBrush>(Handle);
    if (!Brush || Brush->Brush.lbStyle == BS_NULL) {
        cairo_new_path(FCairo);
        return false;
    }
    if (Brush->Pattern) {
        cairo_set_source_surface(FCairo, Brush->Pattern, 0, 0);
        cairo_pattern_set_extend(cairo_get_source(FCairo), CAIRO_EXTEND_REPEAT);
        cairo_fill(FCairo);
    } else if (Brush->Brush.lbStyle == BS_HATCHED) {
        cairo_save(FCairo);
        cairo_clip(FCairo);
        if (FContext->State.BkMode == OPAQUE) {
            SetColor(FContext->State.BkColor);
            cairo_paint(FCairo);
        }
        SetColor(Brush->Brush.lbColor);
        cairo_set_line_width(FCairo, 1);
        AddHatch(FCairo, Brush->Brush.lbHatch);
        cairo_stroke(FCairo);
        cairo_restore(FCairo);
    } else {
        SetColor(Handle == GetStockObject(DC_BRUSH) ? FContext->State.BrushColor : Brush->Brush.lbColor);
        cairo_fill(FCairo);
    }
    return true;
}

void TDrawing::StrokeWithPen() const
{
    const auto Handle = FContext->State.Pen;
    const auto* const Pen = FindGdi<TGdiPen>(Handle);
    if (!Pen || Pen->Pen.lopnStyle == PS_NULL) {
        cairo_new_path(FCairo);
        return;
    }
    const TDash Dash = DashOf(Pen->Pen.lopnStyle);
    cairo_set_line_width(FCairo, std::max(Pen->Pen.lopnWidth.x, 1));
    cairo_set_dash(FCairo, Dash.Lengths, Dash.Count, 0);
    cairo_set_line_cap(FCairo, Dash.Count ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_SQUARE);
    SetColor(Handle == GetStockObject(DC_PEN) ? FContext->State.PenColor : Pen->Pen.lopnColor);
    cairo_stroke(FCairo);
}

BOOL MoveToEx(HDC Dc, int X, int Y, POINT* Old)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    if (Old)
        *Old = Context->State.Position;
    Context->State.Position = {X, Y};
    return TRUE;
}

// The last point is left out, as always in this interface.
BOOL LineTo(HDC Dc, int X, int Y)
{
    POINT From{};
    if (!MoveToEx(Dc, X, Y, &From))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw || (From.x == X && From.y == Y))
        return TRUE;
    const auto* const Pen = FindGdi<TGdiPen>(Draw.Context().State.Pen);
    const bool Thin = Pen && Pen->Pen.lopnWidth.x <= 1 && Pen->Pen.lopnStyle == PS_SOLID;
    if (Thin && (From.x == X || From.y == Y)) {
        const int StepX = X == From.x ? 0 : X > From.x ? 1 : -1;
        const int StepY = Y == From.y ? 0 : Y > From.y ? 1 : -1;
        const int LastX = X - StepX, LastY = Y - StepY;
        cairo_rectangle(Draw, std::min(From.x, LastX), std::min(From.y, LastY), std::abs(LastX - From.x) + 1,
                        std::abs(LastY - From.y) + 1);
        Draw.SetColor(Draw.Context().State.Pen == GetStockObject(DC_PEN) ? Draw.Context().State.PenColor
                                                                         : Pen->Pen.lopnColor);
        cairo_fill(Draw);
        return TRUE;
    }
    const double Length = std::hypot(X - From.x, Y - From.y);
    cairo_move_to(Draw, From.x + 0.5, From.y + 0.5);
    cairo_line_to(Draw, X + 0.5 - (X - From.x) / Length, Y + 0.5 - (Y - From.y) / Length);
    Draw.StrokeWithPen();
    return TRUE;
}

BOOL Polyline(HDC Dc, const POINT* Points, int Count)
{
    return DrawPolygon(Dc, Points, Count, false);
}

BOOL Polygon(HDC Dc, const POINT* Points, int Count)
{
    return DrawPolygon(Dc, Points, Count, true);
}

BOOL Rectangle(HDC Dc, int Left, int Top, int Right, int Bottom)
{
    if (!FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw)
        return TRUE;
    cairo_rectangle(Draw, Left, Top, Right - Left, Bottom - Top);
    Draw.FillWith(Draw.Context().State.Brush);
    cairo_rectangle(Draw, Left + 0.5, Top + 0.5, Right - Left - 1, Bottom - Top - 1);
    Draw.StrokeWithPen();
    return TRUE;
}

BOOL RoundRect(HDC Dc, int Left, int Top, int Right, int Bottom, int Width, int Height)
{
    return DrawRounded(Dc, Left, Top, Right, Bottom, Width / 2.0, Height / 2.0);
}

BOOL Ellipse(HDC Dc, int Left, int Top, int Right, int Bottom)
{
    return DrawRounded(Dc, Left, Top, Right, Bottom, (Right - Left) / 2.0, (Bottom - Top) / 2.0);
}

BOOL Arc(HDC Dc, int Left, int Top, int Right, int Bottom, int X1, int Y1, int X2, int Y2)
{
    return DrawSector(Dc, {Left, Top, Right, Bottom}, {X1, Y1}, {X2, Y2}, false);
}

BOOL Pie(HDC Dc, int Left, int Top, int Right, int Bottom, int X1, int Y1, int X2, int Y2)
{
    return DrawSector(Dc, {Left, Top, Right, Bottom}, {X1, Y1}, {X2, Y2}, true);
}

int FillRect(HDC Dc, const RECT* Rect, HBRUSH Brush)
{
    if (!Rect || !FindGdi<TGdiContext>(Dc))
        return 0;
    // A small number stands for a system colour plus one.
    const auto Number = reinterpret_cast<std::uintptr_t>(Brush);
    if (Number > 0 && Number <= 64)
        Brush = GetSysColorBrush(static_cast<int>(Number) - 1);
    const TDrawing Draw(Dc);
    if (!Draw)
        return 1;
    cairo_set_operator(Draw, CAIRO_OPERATOR_OVER);
    cairo_rectangle(Draw, Rect->left, Rect->top, Rect->right - Rect->left, Rect->bottom - Rect->top);
    Draw.FillWith(Brush);
    return 1;
}

int FrameRect(HDC Dc, const RECT* Rect, HBRUSH Brush)
{
    if (!Rect || Rect->right <= Rect->left || Rect->bottom <= Rect->top)
        return 0;
    const RECT Sides[] = {{Rect->left, Rect->top, Rect->right, Rect->top + 1},
                          {Rect->left, Rect->bottom - 1, Rect->right, Rect->bottom},
                          {Rect->left, Rect->top, Rect->left + 1, Rect->bottom},
                          {Rect->right - 1, Rect->top, Rect->right, Rect->bottom}};
    for (const auto& Side : Sides)
        FillRect(Dc, &Side, Brush);
    return 1;
}

BOOL InvertRect(HDC Dc, const RECT* Rect)
{
    return Rect &&
           PatBlt(Dc, Rect->left, Rect->top, Rect->right - Rect->left, Rect->bottom - Rect->top, DSTINVERT);
}

COLORREF SetPixel(HDC Dc, int X, int Y, COLORREF Color)
{
    return SetPixelV(Dc, X, Y, Color) ? Color & 0xFFFFFF : CLR_INVALID;
}

BOOL SetPixelV(HDC Dc, int X, int Y, COLORREF Color)
{
    POINT Point;
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !SurfacePoint(*Context, X, Y, Point))
        return FALSE;
    const TDrawing Draw(Dc);
    Draw.SetColor(Color);
    cairo_rectangle(Draw, X, Y, 1, 1);
    cairo_fill(Draw);
    return TRUE;
}

COLORREF GetPixel(HDC Dc, int X, int Y)
{
    POINT Point;
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !SurfacePoint(*Context, X, Y, Point))
        return CLR_INVALID;
    if (auto* const Bitmap = FindGdi<TGdiBitmap>(Context->Bitmap))
        ReadBitmapBits(*Bitmap);
    const auto* const Row = cairo_image_surface_get_data(Context->Surface) +
                            std::ptrdiff_t{Point.y} * cairo_image_surface_get_stride(Context->Surface);
    const auto Pixel = reinterpret_cast<const std::uint32_t*>(Row)[Point.x];
    return RGB(Pixel >> 16, Pixel >> 8, Pixel);
}
