#include <algorithm>
#include <cmath>

#include "platform/portable/Gdi.h"
#include "platform/portable/winuser.h"

namespace {
void FillColor(HDC Dc, int Left, int Top, int Right, int Bottom, int Color)
{
    const RECT Rect = {Left, Top, Right, Bottom};
    FillRect(Dc, &Rect, GetSysColorBrush(Color));
}

// One line of an edge around Rect, which shrinks by it.
void DrawBevel(HDC Dc, RECT& Rect, UINT Flags, int LeftTop, int RightBottom)
{
    if (Flags & BF_TOP)
        FillColor(Dc, Rect.left, Rect.top, Rect.right, Rect.top + 1, LeftTop);
    if (Flags & BF_LEFT)
        FillColor(Dc, Rect.left, Rect.top, Rect.left + 1, Rect.bottom, LeftTop);
    if (Flags & BF_BOTTOM)
        FillColor(Dc, Rect.left, Rect.bottom - 1, Rect.right, Rect.bottom, RightBottom);
    if (Flags & BF_RIGHT)
        FillColor(Dc, Rect.right - 1, Rect.top, Rect.right, Rect.bottom, RightBottom);
    Rect.left += Flags & BF_LEFT ? 1 : 0;
    Rect.top += Flags & BF_TOP ? 1 : 0;
    Rect.right -= Flags & BF_RIGHT ? 1 : 0;
    Rect.bottom -= Flags & BF_BOTTOM ? 1 : 0;
}

RECT SquareIn(const RECT& Rect)
{
    const int Side = std::min(Rect.right - Rect.left, Rect.bottom - Rect.top);
    const int Left = Rect.left + (Rect.right - Rect.left - Side) / 2;
    const int Top = Rect.top + (Rect.bottom - Rect.top - Side) / 2;
    return {Left, Top, Left + Side, Top + Side};
}

void DrawCheckMark(HDC Dc, const RECT& Box, int Color)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const double Side = Box.right - Box.left;
    cairo_set_antialias(Draw, CAIRO_ANTIALIAS_GRAY);
    cairo_set_line_width(Draw, std::max(1.6, Side * 0.15));
    cairo_move_to(Draw, Box.left + Side * 0.24, Box.top + Side * 0.50);
    cairo_line_to(Draw, Box.left + Side * 0.43, Box.top + Side * 0.70);
    cairo_line_to(Draw, Box.left + Side * 0.78, Box.top + Side * 0.30);
    Draw.SetColor(GetSysColor(Color));
    cairo_stroke(Draw);
}

void DrawRadio(HDC Dc, const RECT& Box, UINT State)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const bool Dull = (State & (DFCS_INACTIVE | DFCS_PUSHED)) != 0;
    const double X = (Box.left + Box.right) / 2.0, Y = (Box.top + Box.bottom) / 2.0;
    const double Radius = (Box.right - Box.left) / 2.0 - 0.5;
    cairo_set_antialias(Draw, CAIRO_ANTIALIAS_GRAY);
    const auto Half = [&](double Size, int Color, double From) {
        cairo_new_path(Draw);
        cairo_arc(Draw, X, Y, Size, From, From + M_PI);
        Draw.SetColor(GetSysColor(Color));
        cairo_set_line_width(Draw, 1);
        cairo_stroke(Draw);
    };
    cairo_arc(Draw, X, Y, Radius, 0, 2 * M_PI);
    Draw.SetColor(GetSysColor(Dull ? COLOR_BTNFACE : COLOR_WINDOW));
    cairo_fill(Draw);
    Half(Radius, COLOR_BTNSHADOW, M_PI * 0.75);
    Half(Radius, COLOR_BTNHIGHLIGHT, -M_PI * 0.25);
    Half(Radius - 1, COLOR_3DDKSHADOW, M_PI * 0.75);
    Half(Radius - 1, COLOR_3DLIGHT, -M_PI * 0.25);
    if (State & DFCS_CHECKED) {
        cairo_arc(Draw, X, Y, Radius * 0.38, 0, 2 * M_PI);
        Draw.SetColor(GetSysColor(State & DFCS_INACTIVE ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT));
        cairo_fill(Draw);
    }
}

void DrawArrow(HDC Dc, const RECT& Rect, int DirectionX, int DirectionY, int Color)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const int Side = std::min(Rect.right - Rect.left, Rect.bottom - Rect.top);
    const int Half = std::max(2, Side / 4);
    const int X = (Rect.left + Rect.right) / 2, Y = (Rect.top + Rect.bottom) / 2;
    Draw.SetColor(GetSysColor(Color));
    for (int Row = 0; Row < Half; ++Row) {
        const int Long = 2 * (Half - 1 - Row) + 1;
        const int Along = Row - Half / 2;
        const int Reach = Long / 2 + 1;
        if (DirectionY)
            cairo_rectangle(Draw, X - Reach, Y + DirectionY * Along - (DirectionY < 0 ? 1 : 0), Long, 1);
        else
            cairo_rectangle(Draw, X + DirectionX * Along - (DirectionX < 0 ? 1 : 0), Y - Reach, 1, Long);
    }
    cairo_fill(Draw);
}

void DrawButtonFrame(HDC Dc, RECT& Rect, UINT State)
{
    if (State & DFCS_FLAT) {
        FrameRect(Dc, &Rect, GetSysColorBrush(COLOR_BTNSHADOW));
        InflateRect(&Rect, -1, -1);
    } else {
        DrawEdge(Dc, &Rect, State & (DFCS_PUSHED | DFCS_CHECKED) ? EDGE_SUNKEN : EDGE_RAISED,
                 BF_RECT | BF_ADJUST | BF_SOFT);
    }
    FillRect(Dc, &Rect, GetSysColorBrush(State & DFCS_CHECKED ? COLOR_3DLIGHT : COLOR_BTNFACE));
}

void DrawBox(HDC Dc, RECT Box, UINT State)
{
    if (State & (DFCS_FLAT | DFCS_MONO))
        FrameRect(Dc, &Box, GetSysColorBrush(COLOR_WINDOWFRAME));
    else
        DrawEdge(Dc, &Box, EDGE_SUNKEN, BF_RECT);
    RECT Inner = Box;
    const int Edge = State & (DFCS_FLAT | DFCS_MONO) ? -1 : -2;
    InflateRect(&Inner, Edge, Edge);
    const bool Third = (State & DFCS_BUTTON3STATE) == DFCS_BUTTON3STATE && (State & DFCS_CHECKED);
    const bool Dull = Third || (State & (DFCS_INACTIVE | DFCS_PUSHED));
    FillRect(Dc, &Inner, GetSysColorBrush(Dull ? COLOR_BTNFACE : COLOR_WINDOW));
    if (State & DFCS_CHECKED)
        DrawCheckMark(Dc, Box, Third || (State & DFCS_INACTIVE) ? COLOR_BTNSHADOW : COLOR_WINDOWTEXT);
}

void DrawCaptionSign(HDC Dc, const RECT& Rect, UINT Kind, int Color)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const int Width = Rect.right - Rect.left, Height = Rect.bottom - Rect.top;
    const int Side = std::max(5, std::min(Width, Height) / 2);
    const int X = Rect.left + (Width - Side) / 2, Y = Rect.top + (Height - Side) / 2;
    Draw.SetColor(GetSysColor(Color));
    cairo_set_line_width(Draw, 1);
    switch (Kind) {
    case DFCS_CAPTIONMIN:
        cairo_rectangle(Draw, X, Y + Side - 2, Side - 1, 2);
        cairo_fill(Draw);
        break;
    case DFCS_CAPTIONMAX:
        cairo_rectangle(Draw, X + 0.5, Y + 0.5, Side, Side - 1);
        cairo_rectangle(Draw, X + 0.5, Y + 1.5, Side, 0);
        cairo_stroke(Draw);
        break;
    case DFCS_CAPTIONRESTORE:
        cairo_rectangle(Draw, X + 2.5, Y + 0.5, Side - 2, Side - 3);
        cairo_rectangle(Draw, X + 0.5, Y + 3.5, Side - 2, Side - 3);
        cairo_stroke(Draw);
        break;
    case DFCS_CAPTIONHELP:
        cairo_move_to(Draw, X + 1.5, Y + 1.5);
        cairo_line_to(Draw, X + Side - 1.5, Y + 1.5);
        cairo_line_to(Draw, X + Side - 1.5, Y + Side / 2.0);
        cairo_line_to(Draw, X + Side / 2.0, Y + Side / 2.0 + 1);
        cairo_line_to(Draw, X + Side / 2.0, Y + Side - 1.0);
        cairo_stroke(Draw);
        break;
    default:
        cairo_set_antialias(Draw, CAIRO_ANTIALIAS_GRAY);
        cairo_set_line_width(Draw, 1.6);
        cairo_move_to(Draw, X + 0.5, Y + 0.5);
        cairo_line_to(Draw, X + Side - 0.5, Y + Side - 0.5);
        cairo_move_to(Draw, X + Side - 0.5, Y + 0.5);
        cairo_line_to(Draw, X + 0.5, Y + Side - 0.5);
        cairo_stroke(Draw);
    }
}

void DrawScrollPart(HDC Dc, RECT Rect, UINT State)
{
    const UINT Kind = State & 0xFF;
    if (Kind == DFCS_SCROLLSIZEGRIP) {
        for (int Step = 2; Step <= 10; Step += 4)
            for (int Dot = 0; Dot <= Step; Dot += 4) {
                const int X = Rect.right - 2 - Step + Dot, Y = Rect.bottom - 4 - Dot;
                FillColor(Dc, X - 1, Y + 1, X + 1, Y + 3, COLOR_BTNHIGHLIGHT);
                FillColor(Dc, X - 2, Y, X, Y + 2, COLOR_BTNSHADOW);
            }
        return;
    }
    DrawButtonFrame(Dc, Rect, State & (DFCS_PUSHED | DFCS_FLAT));
    const int Color = State & DFCS_INACTIVE ? COLOR_BTNSHADOW : COLOR_BTNTEXT;
    switch (Kind) {
    case DFCS_SCROLLUP:
        return DrawArrow(Dc, Rect, 0, -1, Color);
    case DFCS_SCROLLLEFT:
        return DrawArrow(Dc, Rect, -1, 0, Color);
    case DFCS_SCROLLRIGHT:
        return DrawArrow(Dc, Rect, 1, 0, Color);
    default:
        return DrawArrow(Dc, Rect, 0, 1, Color);
    }
}

void DrawMenuSign(HDC Dc, const RECT& Rect, UINT Kind)
{
    if (Kind == DFCS_MENUCHECK)
        return DrawCheckMark(Dc, SquareIn(Rect), COLOR_MENUTEXT);
    if (Kind == DFCS_MENUARROW)
        return DrawArrow(Dc, Rect, 1, 0, COLOR_MENUTEXT);
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const RECT Box = SquareIn(Rect);
    cairo_set_antialias(Draw, CAIRO_ANTIALIAS_GRAY);
    cairo_arc(Draw, (Box.left + Box.right) / 2.0, (Box.top + Box.bottom) / 2.0, (Box.right - Box.left) / 5.0,
              0, 2 * M_PI);
    Draw.SetColor(GetSysColor(COLOR_MENUTEXT));
    cairo_fill(Draw);
}
} // namespace

BOOL DrawEdge(HDC Dc, RECT* Rect, UINT Edge, UINT Flags)
{
    if (!Rect || !FindGdi<TGdiContext>(Dc))
        return FALSE;
    RECT Inner = *Rect;
    if (Flags & (BF_FLAT | BF_MONO)) {
        const int Outer = Flags & BF_MONO ? COLOR_WINDOWFRAME : COLOR_BTNSHADOW;
        if (Edge & BDR_OUTER)
            DrawBevel(Dc, Inner, Flags, Outer, Outer);
        if (Edge & BDR_INNER)
            DrawBevel(Dc, Inner, Flags, Flags & BF_MONO ? COLOR_WINDOW : COLOR_BTNFACE,
                      Flags & BF_MONO ? COLOR_WINDOW : COLOR_BTNFACE);
    } else {
        const bool Soft = (Flags & BF_SOFT) != 0;
        if (Edge & BDR_RAISEDOUTER)
            DrawBevel(Dc, Inner, Flags, Soft ? COLOR_BTNHIGHLIGHT : COLOR_3DLIGHT, COLOR_3DDKSHADOW);
        else if (Edge & BDR_SUNKENOUTER)
            DrawBevel(Dc, Inner, Flags, Soft ? COLOR_3DDKSHADOW : COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT);
        if (Edge & BDR_RAISEDINNER)
            DrawBevel(Dc, Inner, Flags, Soft ? COLOR_3DLIGHT : COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW);
        else if (Edge & BDR_SUNKENINNER)
            DrawBevel(Dc, Inner, Flags, Soft ? COLOR_BTNSHADOW : COLOR_3DDKSHADOW, COLOR_3DLIGHT);
    }
    if (Flags & BF_MIDDLE)
        FillRect(Dc, &Inner, GetSysColorBrush(Flags & BF_MONO ? COLOR_WINDOW : COLOR_BTNFACE));
    if (Flags & BF_ADJUST)
        *Rect = Inner;
    return TRUE;
}

BOOL DrawFrameControl(HDC Dc, RECT* Rect, UINT Kind, UINT State)
{
    if (!Rect || !FindGdi<TGdiContext>(Dc))
        return FALSE;
    RECT Inner = *Rect;
    switch (Kind) {
    case DFC_CAPTION:
        DrawButtonFrame(Dc, Inner, State & (DFCS_PUSHED | DFCS_FLAT));
        DrawCaptionSign(Dc, Inner, State & 0xFF, State & DFCS_INACTIVE ? COLOR_BTNSHADOW : COLOR_BTNTEXT);
        return TRUE;
    case DFC_MENU:
        DrawMenuSign(Dc, Inner, State & 0xFF);
        return TRUE;
    case DFC_SCROLL:
        DrawScrollPart(Dc, Inner, State);
        return TRUE;
    case DFC_BUTTON:
        break;
    default:
        return FALSE;
    }
    if ((State & DFCS_BUTTONPUSH) == DFCS_BUTTONPUSH)
        DrawButtonFrame(Dc, Inner, State);
    else if (State & DFCS_BUTTONRADIO)
        DrawRadio(Dc, SquareIn(Inner), State);
    else
        DrawBox(Dc, SquareIn(Inner), State);
    if (State & DFCS_ADJUSTRECT)
        *Rect = Inner;
    return TRUE;
}

// Drawing it twice restores what was there.
BOOL DrawFocusRect(HDC Dc, const RECT* Rect)
{
    if (!Rect || !FindGdi<TGdiContext>(Dc))
        return FALSE;
    const TDrawing Draw(Dc);
    if (!Draw)
        return TRUE;
    const auto Dot = [&](int X, int Y) {
        if ((X + Y) % 2 == 0)
            cairo_rectangle(Draw, X, Y, 1, 1);
    };
    for (int X = Rect->left; X < Rect->right; ++X) {
        Dot(X, Rect->top);
        Dot(X, Rect->bottom - 1);
    }
    for (int Y = Rect->top + 1; Y < Rect->bottom - 1; ++Y) {
        Dot(Rect->left, Y);
        Dot(Rect->right - 1, Y);
    }
    cairo_set_operator(Draw, CAIRO_OPERATOR_DIFFERENCE);
    cairo_set_source_rgb(Draw, 1, 1, 1);
    cairo_fill(Draw);
    return TRUE;
}
