#include "platform/portable/Gdi.h"

namespace {
int Complexity(const cairo_region_t* Region)
{
    if (cairo_region_is_empty(Region))
        return NULLREGION;
    return cairo_region_num_rectangles(Region) == 1 ? SIMPLEREGION : COMPLEXREGION;
}

void Combine(cairo_region_t* Target, const cairo_region_t* Other, int Mode)
{
    switch (Mode) {
    case RGN_AND:
        cairo_region_intersect(Target, Other);
        break;
    case RGN_OR:
        cairo_region_union(Target, Other);
        break;
    case RGN_XOR:
        cairo_region_xor(Target, Other);
        break;
    case RGN_DIFF:
        cairo_region_subtract(Target, Other);
        break;
    default:
        break;
    }
}

RECT BoxOf(const cairo_region_t* Region)
{
    cairo_rectangle_int_t Box;
    cairo_region_get_extents(Region, &Box);
    return {Box.x, Box.y, Box.x + Box.width, Box.y + Box.height};
}

// What the context shows now, in device coordinates.
cairo_region_t* WholeClip(const TGdiContext& Context)
{
    cairo_region_t* const Whole = RectRegion(0, 0, Context.Size.cx, Context.Size.cy);
    if (Context.Visible)
        cairo_region_intersect(Whole, Context.Visible.get());
    if (Context.State.Clip)
        cairo_region_intersect(Whole, Context.State.Clip.get());
    return Whole;
}

// Saved states share a clip, so a change starts from a copy.
cairo_region_t* ChangeClip(TGdiContext& Context)
{
    auto* const Copy = Context.State.Clip ? cairo_region_copy(Context.State.Clip.get())
                                          : RectRegion(0, 0, Context.Size.cx, Context.Size.cy);
    Context.State.Clip = MakeRegion(Copy);
    return Copy;
}

int ChangeClipRect(HDC Dc, int Mode, POINT Start, POINT End)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return ERROR;
    LPtoDP(Dc, &Start, 1);
    LPtoDP(Dc, &End, 1);
    auto* const Clip = ChangeClip(*Context);
    const auto Rect = MakeRegion(RectRegion(Start.x, Start.y, End.x, End.y));
    Combine(Clip, Rect.get(), Mode);
    return Complexity(Clip);
}
} // namespace

TGdiRegion::TGdiRegion() : Region(cairo_region_create()) {}

TGdiRegion::~TGdiRegion()
{
    cairo_region_destroy(Region);
}

std::shared_ptr<cairo_region_t> MakeRegion(cairo_region_t* Region)
{
    return {Region, cairo_region_destroy};
}

cairo_region_t* RectRegion(int Left, int Top, int Right, int Bottom)
{
    if (Left > Right)
        std::swap(Left, Right);
    if (Top > Bottom)
        std::swap(Top, Bottom);
    const cairo_rectangle_int_t Rect = {Left, Top, Right - Left, Bottom - Top};
    return cairo_region_create_rectangle(&Rect);
}

HRGN CreateRectRgn(int Left, int Top, int Right, int Bottom)
{
    const auto Handle = static_cast<HRGN>(AddGdiObject(std::make_unique<TGdiRegion>()));
    SetRectRgn(Handle, Left, Top, Right, Bottom);
    return Handle;
}

HRGN CreateRectRgnIndirect(const RECT* Rect)
{
    return CreateRectRgn(Rect->left, Rect->top, Rect->right, Rect->bottom);
}

BOOL SetRectRgn(HRGN Handle, int Left, int Top, int Right, int Bottom)
{
    auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region)
        return FALSE;
    cairo_region_destroy(Region->Region);
    Region->Region = RectRegion(Left, Top, Right, Bottom);
    return TRUE;
}

int CombineRgn(HRGN Target, HRGN First, HRGN Second, int Mode)
{
    auto* const To = FindGdi<TGdiRegion>(Target);
    const auto* const A = FindGdi<TGdiRegion>(First);
    const auto* const B = FindGdi<TGdiRegion>(Second);
    if (!To || !A || (Mode != RGN_COPY && !B))
        return ERROR;
    cairo_region_t* const Result = cairo_region_copy(A->Region);
    if (Mode != RGN_COPY)
        Combine(Result, B->Region, Mode);
    cairo_region_destroy(To->Region);
    To->Region = Result;
    return Complexity(Result);
}

int OffsetRgn(HRGN Handle, int X, int Y)
{
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region)
        return ERROR;
    cairo_region_translate(Region->Region, X, Y);
    return Complexity(Region->Region);
}

int GetRgnBox(HRGN Handle, RECT* Rect)
{
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region || !Rect)
        return ERROR;
    *Rect = BoxOf(Region->Region);
    return Complexity(Region->Region);
}

BOOL PtInRegion(HRGN Handle, int X, int Y)
{
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    return Region && cairo_region_contains_point(Region->Region, X, Y);
}

BOOL RectInRegion(HRGN Handle, const RECT* Rect)
{
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region || !Rect)
        return FALSE;
    const cairo_rectangle_int_t Box = {Rect->left, Rect->top, Rect->right - Rect->left,
                                       Rect->bottom - Rect->top};
    return cairo_region_contains_rectangle(Region->Region, &Box) != CAIRO_REGION_OVERLAP_OUT;
}

BOOL EqualRgn(HRGN First, HRGN Second)
{
    const auto* const A = FindGdi<TGdiRegion>(First);
    const auto* const B = FindGdi<TGdiRegion>(Second);
    return A && B && cairo_region_equal(A->Region, B->Region);
}

BOOL FillRgn(HDC Dc, HRGN Handle, HBRUSH Brush)
{
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region)
        return FALSE;
    for (int Index = 0; Index < cairo_region_num_rectangles(Region->Region); ++Index) {
        cairo_rectangle_int_t Part;
        cairo_region_get_rectangle(Region->Region, Index, &Part);
        const RECT Rect = {Part.x, Part.y, Part.x + Part.width, Part.y + Part.height};
        FillRect(Dc, &Rect, Brush);
    }
    return TRUE;
}

int SelectClipRgn(HDC Dc, HRGN Region)
{
    return ExtSelectClipRgn(Dc, Region, RGN_COPY);
}

int ExtSelectClipRgn(HDC Dc, HRGN Handle, int Mode)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return ERROR;
    if (!Handle) {
        Context->State.Clip.reset();
        return Mode == RGN_COPY ? SIMPLEREGION : ERROR;
    }
    const auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Region)
        return ERROR;
    if (Mode == RGN_COPY)
        Context->State.Clip = MakeRegion(cairo_region_copy(Region->Region));
    else
        Combine(ChangeClip(*Context), Region->Region, Mode);
    return Complexity(Context->State.Clip.get());
}

int GetClipRgn(HDC Dc, HRGN Handle)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    auto* const Region = FindGdi<TGdiRegion>(Handle);
    if (!Context || !Region)
        return -1;
    if (!Context->State.Clip)
        return 0;
    cairo_region_destroy(Region->Region);
    Region->Region = cairo_region_copy(Context->State.Clip.get());
    return 1;
}

int GetClipBox(HDC Dc, RECT* Rect)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !Rect)
        return ERROR;
    const auto Whole = MakeRegion(WholeClip(*Context));
    *Rect = BoxOf(Whole.get());
    DPtoLP(Dc, reinterpret_cast<POINT*>(Rect), 2);
    return Complexity(Whole.get());
}

int IntersectClipRect(HDC Dc, int Left, int Top, int Right, int Bottom)
{
    return ChangeClipRect(Dc, RGN_AND, {Left, Top}, {Right, Bottom});
}

int ExcludeClipRect(HDC Dc, int Left, int Top, int Right, int Bottom)
{
    return ChangeClipRect(Dc, RGN_DIFF, {Left, Top}, {Right, Bottom});
}

BOOL RectVisible(HDC Dc, const RECT* Rect)
{
    const auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context || !Rect)
        return FALSE;
    RECT Box = *Rect;
    LPtoDP(Dc, reinterpret_cast<POINT*>(&Box), 2);
    const auto Whole = MakeRegion(WholeClip(*Context));
    const cairo_rectangle_int_t Part = {Box.left, Box.top, Box.right - Box.left, Box.bottom - Box.top};
    return cairo_region_contains_rectangle(Whole.get(), &Part) != CAIRO_REGION_OVERLAP_OUT;
}

BOOL PtVisible(HDC Dc, int X, int Y)
{
    const RECT Rect = {X, Y, X + 1, Y + 1};
    return RectVisible(Dc, &Rect);
}
