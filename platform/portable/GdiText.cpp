#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/portable/Control.h"
#include "platform/portable/Fonts.h"

namespace {
constexpr const char* Ellipsis = "...";

std::string_view View(LPCSTR Text, int Count)
{
    if (!Text)
        return {};
    return Count < 0 ? std::string_view(Text) : std::string_view(Text, static_cast<std::size_t>(Count));
}

// A text whose mnemonic marks were taken out; Underline is the byte that the
// first lone mark stood before, or -1.
struct TMarkedText {
    std::string Text;
    int Underline = -1;
};

TMarkedText TakeMarks(std::string_view Source, UINT Format)
{
    if (Format & DT_NOPREFIX)
        return {std::string(Source)};
    TMarkedText Result;
    for (std::size_t Index = 0; Index < Source.size(); ++Index) {
        if (Source[Index] == '&') {
            if (++Index == Source.size())
                break;
            if (Source[Index] != '&')
                Result.Underline = static_cast<int>(Result.Text.size());
        }
        Result.Text += Source[Index];
    }
    if (Format & DT_HIDEPREFIX)
        Result.Underline = -1;
    return Result;
}

std::size_t CharLength(std::string_view Text, std::size_t At)
{
    std::size_t End = At + 1;
    while (End < Text.size() && (static_cast<unsigned char>(Text[End]) & 0xC0) == 0x80)
        ++End;
    return End - At;
}

void UnderlineCharacter(PangoLayout* Layout, std::string_view Text, int At)
{
    if (At < 0 || At >= static_cast<int>(Text.size()))
        return;
    PangoAttrList* const List = pango_attr_list_copy(pango_layout_get_attributes(Layout));
    PangoAttribute* const Line = pango_attr_underline_new(PANGO_UNDERLINE_SINGLE);
    Line->start_index = static_cast<guint>(At);
    Line->end_index =
        static_cast<guint>(At) + static_cast<guint>(CharLength(Text, static_cast<std::size_t>(At)));
    pango_attr_list_insert(List, Line);
    pango_layout_set_attributes(Layout, List);
    pango_attr_list_unref(List);
}

std::string NarrowCount(LPCWSTR Text, int Count)
{
    if (!Text)
        return {};
    return Narrow(Count < 0 ? std::u16string(Text) : std::u16string(Text, static_cast<std::size_t>(Count)));
}

struct TLine {
    std::string Text;
    int Underline = -1;
};

// Splits one paragraph where it gets wider than Width; Pango knows where each
// script may be broken.
void WrapParagraph(const TFontFace& Face, const std::string& Text, int From, int Underline, int Width,
                   TDirection Direction, std::vector<TLine>& Lines)
{
    const auto Layout = MakeLayout(Face, Text, Direction);
    pango_layout_set_width(Layout.get(), std::max(Width, 1) * PANGO_SCALE);
    pango_layout_set_wrap(Layout.get(), PANGO_WRAP_WORD);
    const int Count = std::max(pango_layout_get_line_count(Layout.get()), 1);
    for (int Index = 0; Index < Count; ++Index) {
        const auto* const Line = pango_layout_get_line_readonly(Layout.get(), Index);
        std::string Part =
            Text.substr(static_cast<std::size_t>(Line->start_index), static_cast<std::size_t>(Line->length));
        const int Mark = Underline - From - Line->start_index;
        if (Index + 1 < Count)
            while (!Part.empty() && Part.back() == ' ')
                Part.pop_back();
        Lines.push_back({Part, Underline >= 0 && Mark >= 0 && Mark < Line->length ? Mark : -1});
    }
}

std::vector<TLine> SplitLines(const TFontFace& Face, const TMarkedText& Marked, UINT Format, int Width,
                              TDirection Direction)
{
    std::vector<TLine> Lines;
    const auto& Text = Marked.Text;
    if (Format & DT_SINGLELINE) {
        Lines.push_back({Text, Marked.Underline});
        return Lines;
    }
    std::size_t Start = 0;
    for (;;) {
        const std::size_t End = std::min(Text.find_first_of("\r\n", Start), Text.size());
        const std::string Paragraph = Text.substr(Start, End - Start);
        const int From = static_cast<int>(Start), Mark = Marked.Underline;
        const bool Inside = Mark >= From && Mark < static_cast<int>(End);
        if ((Format & DT_WORDBREAK) && !Paragraph.empty())
            WrapParagraph(Face, Paragraph, From, Inside ? Mark : -1, Width, Direction, Lines);
        else
            Lines.push_back({Paragraph, Inside ? Mark - From : -1});
        if (End == Text.size())
            break;
        Start = End + (Text[End] == '\r' && End + 1 < Text.size() && Text[End + 1] == '\n' ? 2 : 1);
        if (Start == Text.size()) // a final line break opens no line of its own
            break;
    }
    return Lines;
}

void Shorten(TFontFace& Face, TLine& Line, int Width)
{
    if (TextWidth(Face, Line.Text) <= Width)
        return;
    while (!Line.Text.empty() && TextWidth(Face, Line.Text + Ellipsis) > Width) {
        std::size_t Last = Line.Text.size() - 1;
        while (Last > 0 && (static_cast<unsigned char>(Line.Text[Last]) & 0xC0) == 0x80)
            --Last;
        Line.Text.resize(Last);
    }
    Line.Text += Ellipsis;
    if (Line.Underline >= static_cast<int>(Line.Text.size() - std::strlen(Ellipsis)))
        Line.Underline = -1;
}

void PaintBack(const TDrawing& Draw, int X, int Y, int Width, int Height)
{
    Draw.SetColor(Draw.Context().State.BkColor);
    cairo_rectangle(Draw, X, Y, Width, Height);
    cairo_fill(Draw);
}

// X and Y are the upper left corner of the line.
void DrawLine(HDC Dc, const TFontFace& Face, const TLine& Line, int X, int Y, TDirection Direction,
              bool Opaque, int Escapement = 0)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const std::string Text = DrawableText(Line.Text);
    const auto Layout = MakeLayout(Face, Text, Direction);
    UnderlineCharacter(Layout.get(), Text, Line.Underline);
    cairo_save(Draw);
    cairo_translate(Draw, X, Y);
    if (Escapement)
        cairo_rotate(Draw, -Escapement / 10.0 * M_PI / 180);
    if (Opaque) {
        int Width = 0;
        pango_layout_get_pixel_size(Layout.get(), &Width, nullptr);
        PaintBack(Draw, 0, 0, Width, Face.Height());
    }
    Draw.SetColor(Draw.Context().State.TextColor);
    cairo_move_to(Draw, 0, Face.Ascent);
    pango_cairo_show_layout_line(Draw, pango_layout_get_line_readonly(Layout.get(), 0));
    cairo_restore(Draw);
}

int Escapement(const TGdiContext& Context)
{
    const auto* const Font = FindGdi<TGdiFont>(Context.State.Font);
    return Font ? Font->Font.lfEscapement : 0;
}

BOOL DrawOut(HDC Dc, int X, int Y, std::string_view Text, bool RightToLeft, bool Opaque)
{
    auto* const Context = FindGdi<TGdiContext>(Dc);
    if (!Context)
        return FALSE;
    const auto Face = FaceOf(Dc);
    const UINT Align = Context->State.TextAlign;
    const int Width = TextWidth(*Face, Text);
    if (Align & TA_UPDATECP)
        X = Context->State.Position.x, Y = Context->State.Position.y;
    const int Start = X;
    if ((Align & TA_CENTER) == TA_CENTER)
        X -= Width / 2;
    else if (Align & TA_RIGHT)
        X -= Width;
    if ((Align & TA_BASELINE) == TA_BASELINE)
        Y -= Face->Ascent;
    else if (Align & TA_BOTTOM)
        Y -= Face->Height();
    const bool FromRight = RightToLeft || (Align & TA_RTLREADING);
    DrawLine(Dc, *Face, {std::string(Text)}, X, Y,
             FromRight ? TDirection::RightToLeft : TDirection::LeftToRight, Opaque, Escapement(*Context));
    if (Align & TA_UPDATECP)
        Context->State.Position.x = Start + Width;
    return TRUE;
}
} // namespace

BOOL GetTextExtentPoint32A(HDC Dc, LPCSTR Text, int Count, SIZE* Size)
{
    if (!FindGdi<TGdiContext>(Dc) || !Size || Count < 0 || (!Text && Count > 0))
        return FALSE;
    const auto Face = FaceOf(Dc);
    *Size = {TextWidth(*Face, View(Text, Count)), Face->Height()};
    return TRUE;
}

BOOL GetTextExtentPoint32W(HDC Dc, LPCWSTR Text, int Count, SIZE* Size)
{
    if (Count < 0 || (!Text && Count > 0))
        return FALSE;
    const std::string Bytes = NarrowCount(Text, Count);
    return GetTextExtentPoint32A(Dc, Bytes.c_str(), static_cast<int>(Bytes.size()), Size);
}

BOOL TextOutW(HDC Dc, int X, int Y, LPCWSTR Text, int Count)
{
    const std::string Bytes = NarrowCount(Text, Count);
    return TextOutA(Dc, X, Y, Bytes.c_str(), static_cast<int>(Bytes.size()));
}

BOOL ExtTextOutW(HDC Dc, int X, int Y, UINT Options, const RECT* Rect, LPCWSTR Text, UINT Count,
                 const int* Widths)
{
    const std::string Bytes = NarrowCount(Text, static_cast<int>(Count));
    return ExtTextOutA(Dc, X, Y, Options, Rect, Bytes.c_str(), static_cast<UINT>(Bytes.size()), Widths);
}

int DrawTextW(HDC Dc, LPCWSTR Text, int Count, RECT* Rect, UINT Format)
{
    const std::string Bytes = NarrowCount(Text, Count);
    return Text ? DrawTextA(Dc, Bytes.c_str(), static_cast<int>(Bytes.size()), Rect, Format) : 0;
}

BOOL GetTextExtentPointA(HDC Dc, LPCSTR Text, int Count, SIZE* Size)
{
    return GetTextExtentPoint32A(Dc, Text, Count, Size);
}

BOOL GetTextExtentExPointA(HDC Dc, LPCSTR Text, int Count, int MaxExtent, int* Fit, int* Widths, SIZE* Size)
{
    if (!GetTextExtentPoint32A(Dc, Text, Count, Size))
        return FALSE;
    const auto Face = FaceOf(Dc);
    const auto All = View(Text, Count);
    int Fitting = 0;
    for (std::size_t At = 0; At < All.size();) {
        const std::size_t Length = CharLength(All, At);
        const int Width = TextWidth(*Face, All.substr(0, At + Length));
        if (Fit && Width > MaxExtent)
            break;
        for (std::size_t Byte = At; Widths && Byte < At + Length; ++Byte)
            Widths[Byte] = Width;
        At += Length;
        Fitting = static_cast<int>(At);
    }
    if (Fit)
        *Fit = Fitting;
    return TRUE;
}

BOOL TextOutA(HDC Dc, int X, int Y, LPCSTR Text, int Count)
{
    return DrawOut(Dc, X, Y, View(Text, Count), false, GetBkMode(Dc) == OPAQUE);
}

BOOL ExtTextOutA(HDC Dc, int X, int Y, UINT Options, const RECT* Rect, LPCSTR Text, UINT Count, const int*)
{
    if (!FindGdi<TGdiContext>(Dc))
        return FALSE;
    if (Rect && (Options & ETO_OPAQUE)) {
        const TDrawing Draw(Dc);
        if (Draw)
            PaintBack(Draw, Rect->left, Rect->top, Rect->right - Rect->left, Rect->bottom - Rect->top);
    }
    if (!Text || Count == 0)
        return TRUE;
    const bool Clip = Rect && (Options & ETO_CLIPPED);
    if (Clip) {
        SaveDC(Dc);
        IntersectClipRect(Dc, Rect->left, Rect->top, Rect->right, Rect->bottom);
    }
    const bool Opaque = GetBkMode(Dc) == OPAQUE && !(Options & ETO_OPAQUE);
    DrawOut(Dc, X, Y, View(Text, static_cast<int>(Count)), (Options & ETO_RTLREADING) != 0, Opaque);
    if (Clip)
        RestoreDC(Dc, -1);
    return TRUE;
}

int DrawTextA(HDC Dc, LPCSTR Text, int Count, RECT* Rect, UINT Format)
{
    if (!FindGdi<TGdiContext>(Dc) || !Text || !Rect)
        return 0;
    const auto Face = FaceOf(Dc);
    const auto Direction = Format & DT_RTLREADING ? TDirection::RightToLeft : TDirection::LeftToRight;
    auto Marked = TakeMarks(View(Text, Count), Format);
    if (Marked.Text.empty()) {
        if (Format & DT_CALCRECT)
            *Rect = {Rect->left, Rect->top, Rect->left, Rect->top};
        return 0;
    }
    if (!(Format & DT_EXPANDTABS) && Marked.Text.find('\t') != std::string::npos)
        std::replace(Marked.Text.begin(), Marked.Text.end(), '\t', ' ');
    const int Width = Rect->right - Rect->left;
    auto Lines = SplitLines(*Face, Marked, Format, Width, Direction);
    const int LineHeight = Face->Height();
    const int Height = static_cast<int>(Lines.size()) * LineHeight;
    if (Format & DT_CALCRECT) {
        int Widest = 0;
        for (const auto& Line : Lines)
            Widest = std::max(Widest, TextWidth(*Face, Line.Text));
        Rect->right = Rect->left + Widest;
        Rect->bottom = Rect->top + Height;
        return Height;
    }
    int Y = Rect->top;
    if (Format & DT_SINGLELINE) {
        if (Format & DT_VCENTER)
            Y += (Rect->bottom - Rect->top - Height) / 2;
        else if (Format & DT_BOTTOM)
            Y = Rect->bottom - Height;
    }
    SaveDC(Dc);
    if (!(Format & DT_NOCLIP))
        IntersectClipRect(Dc, Rect->left, Rect->top, Rect->right, Rect->bottom);
    const int Top = Y;
    const bool Opaque = GetBkMode(Dc) == OPAQUE;
    for (auto& Line : Lines) {
        if (Format & (DT_END_ELLIPSIS | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS))
            Shorten(*Face, Line, Width);
        const int LineWidth = TextWidth(*Face, Line.Text);
        int X = Rect->left;
        if (Format & DT_CENTER)
            X += (Width - LineWidth) / 2;
        else if (Format & DT_RIGHT)
            X = Rect->right - LineWidth;
        DrawLine(Dc, *Face, Line, X, Y, Direction, Opaque);
        Y += LineHeight;
    }
    RestoreDC(Dc, -1);
    return Top - Rect->top + Height;
}

int DrawTextExA(HDC Dc, LPSTR Text, int Count, RECT* Rect, UINT Format, DRAWTEXTPARAMS* Params)
{
    if (!Rect)
        return 0;
    if (!Params)
        return DrawTextA(Dc, Text, Count, Rect, Format);
    RECT Inner = *Rect;
    Inner.left += Params->iLeftMargin;
    Inner.right -= Params->iRightMargin;
    const int Height = DrawTextA(Dc, Text, Count, &Inner, Format);
    Params->uiLengthDrawn = static_cast<UINT>(View(Text, Count).size());
    if (Format & DT_CALCRECT)
        *Rect = {Rect->left, Inner.top, Inner.right + Params->iRightMargin, Inner.bottom};
    return Height;
}

LONG TabbedTextOutA(HDC Dc, int X, int Y, LPCSTR Text, int Count, int Tabs, const int* Positions, int)
{
    TextOutA(Dc, X, Y, Text, Count);
    return static_cast<LONG>(GetTabbedTextExtentA(Dc, Text, Count, Tabs, Positions));
}

DWORD GetTabbedTextExtentA(HDC Dc, LPCSTR Text, int Count, int, const int*)
{
    SIZE Size{};
    GetTextExtentPoint32A(Dc, Text, static_cast<int>(View(Text, Count).size()), &Size);
    return static_cast<DWORD>(MAKELONG(Size.cx, Size.cy));
}
