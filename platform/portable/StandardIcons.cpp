#include "platform/portable/StandardIcons.h"

#include <numbers>

#include "platform/portable/Gdi.h"
#include "platform/portable/winuser.h"

namespace {

struct TSign {
    LPCSTR Icon;
    COLORREF Ground;
    COLORREF Ink;
    void (*Shape)(cairo_t*);
    void (*Mark)(cairo_t*);
};

// All of these draw in a square of 32 by 32.

void Disc(cairo_t* Cairo)
{
    cairo_arc(Cairo, 16, 16, 15, 0, 2 * std::numbers::pi);
}

void Triangle(cairo_t* Cairo)
{
    cairo_move_to(Cairo, 16, 2);
    cairo_line_to(Cairo, 31, 30);
    cairo_line_to(Cairo, 1, 30);
    cairo_close_path(Cairo);
}

void Line(cairo_t* Cairo, double X1, double Y1, double X2, double Y2)
{
    cairo_move_to(Cairo, X1, Y1);
    cairo_line_to(Cairo, X2, Y2);
}

void Cross(cairo_t* Cairo)
{
    Line(Cairo, 10, 10, 22, 22);
    Line(Cairo, 22, 10, 10, 22);
}

void Exclamation(cairo_t* Cairo)
{
    Line(Cairo, 16, 12, 16, 20);
    Line(Cairo, 16, 25, 16, 25.2);
}

void LetterI(cairo_t* Cairo)
{
    Line(Cairo, 16, 8, 16, 8.2);
    Line(Cairo, 16, 14, 16, 24);
}

void QuestionMark(cairo_t* Cairo)
{
    cairo_arc(Cairo, 16, 12, 5, -std::numbers::pi, std::numbers::pi / 4);
    cairo_line_to(Cairo, 16, 19);
    Line(Cairo, 16, 25, 16, 25.2);
}

constexpr COLORREF White = RGB(255, 255, 255);

const TSign* FindSign(HICON Icon)
{
    static const TSign Signs[] = {
        {IDI_HAND, RGB(200, 30, 30), White, Disc, Cross},
        {IDI_QUESTION, RGB(30, 90, 200), White, Disc, QuestionMark},
        {IDI_EXCLAMATION, RGB(250, 200, 30), RGB(0, 0, 0), Triangle, Exclamation},
        {IDI_ASTERISK, RGB(30, 90, 200), White, Disc, LetterI},
    };
    for (const TSign& Sign : Signs)
        if (Icon && Icon == LoadIconA(nullptr, Sign.Icon))
            return &Sign;
    return nullptr;
}

} // namespace

bool DrawStandardIcon(HDC Dc, int X, int Y, HICON Icon, int Width, int Height)
{
    const TSign* const Sign = FindSign(Icon);
    if (!Sign)
        return false;
    const TDrawing Draw(Dc);
    if (!Draw)
        return true;
    cairo_translate(Draw, X, Y);
    cairo_scale(Draw, Width > 0 ? Width / 32.0 : 1, Height > 0 ? Height / 32.0 : 1);
    Draw.SetColor(Sign->Ground);
    Sign->Shape(Draw);
    cairo_fill(Draw);
    Draw.SetColor(Sign->Ink);
    cairo_set_line_width(Draw, 3.5);
    cairo_set_line_cap(Draw, CAIRO_LINE_CAP_ROUND);
    Sign->Mark(Draw);
    cairo_stroke(Draw);
    return true;
}
