#include <algorithm>

#include "platform/portable/PaintWindow.h"

namespace {
constexpr int CaptionButton = 16;

class TFontChoice {
public:
    TFontChoice(HDC Dc, int Weight) : FDc(Dc)
    {
        LOGFONTA Font{};
        GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof Font, &Font);
        Font.lfWeight = Weight;
        FFont = CreateFontIndirectA(&Font);
        FOld = SelectObject(Dc, FFont);
    }
    ~TFontChoice()
    {
        SelectObject(FDc, FOld);
        DeleteObject(FFont);
    }
    TFontChoice(const TFontChoice&) = delete;
    TFontChoice& operator=(const TFontChoice&) = delete;

private:
    HDC FDc;
    HFONT FFont;
    HGDIOBJ FOld;
};

bool RightToLeft(const TWindow& Window)
{
    return (Window.ExStyle & (WS_EX_RTLREADING | WS_EX_LAYOUTRTL)) != 0;
}

bool LooksActive(const TWindow& Window)
{
    const HWND Active = GetActiveWindow();
    return !Active || Active == Window.Handle || !Window.Parent || Window.Parent->Parent;
}

void FillCaption(HDC Dc, const RECT& Rect, bool Active)
{
    const TDrawing Draw(Dc);
    if (!Draw)
        return;
    const auto From = ColorOf(GetSysColor(Active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    const auto To =
        ColorOf(GetSysColor(Active ? COLOR_GRADIENTACTIVECAPTION : COLOR_GRADIENTINACTIVECAPTION));
    cairo_pattern_t* const Blend = cairo_pattern_create_linear(Rect.left, 0, Rect.right, 0);
    cairo_pattern_add_color_stop_rgb(Blend, 0, From.Red, From.Green, From.Blue);
    cairo_pattern_add_color_stop_rgb(Blend, 1, To.Red, To.Green, To.Blue);
    cairo_set_source(Draw, Blend);
    cairo_rectangle(Draw, Rect.left, Rect.top, Rect.right - Rect.left, Rect.bottom - Rect.top);
    cairo_fill(Draw);
    cairo_pattern_destroy(Blend);
}

// Buttons at the end of the caption, which shrinks by them.
void PaintCaptionButtons(HDC Dc, const TWindow& Window, RECT& Rect)
{
    const auto Button = [&](UINT Kind, int Gap) {
        RECT Place = {Rect.right - CaptionButton - 2, Rect.top + 2, Rect.right - 2, Rect.bottom - 2};
        DrawFrameControl(Dc, &Place, DFC_CAPTION, Kind);
        Rect.right = Place.left - Gap + 2;
    };
    if (!Window.Has(WS_SYSMENU))
        return;
    Button(DFCS_CAPTIONCLOSE, 2);
    if (Window.Style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) {
        Button((Window.Has(WS_MAXIMIZE) ? DFCS_CAPTIONRESTORE : DFCS_CAPTIONMAX) |
                   (Window.Has(WS_MAXIMIZEBOX) ? 0u : DFCS_INACTIVE),
               0);
        Button(DFCS_CAPTIONMIN | (Window.Has(WS_MINIMIZEBOX) ? 0u : DFCS_INACTIVE), 0);
    } else if (Window.ExStyle & WS_EX_CONTEXTHELP) {
        Button(DFCS_CAPTIONHELP, 0);
    }
}

void PaintCaption(HDC Dc, const TWindow& Window, RECT Rect)
{
    const bool Active = LooksActive(Window);
    FillCaption(Dc, Rect, Active);
    PaintCaptionButtons(Dc, Window, Rect);
    InflateRect(&Rect, -4, 0);
    const TFontChoice Font(Dc, FW_BOLD);
    SetBkMode(Dc, TRANSPARENT);
    SetTextColor(Dc, GetSysColor(Active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    const UINT Reading = RightToLeft(Window) ? DT_RTLREADING | DT_RIGHT : 0u;
    DrawTextA(Dc, Window.Text.c_str(), -1, &Rect,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | Reading);
}

std::string MenuText(HMENU Menu, int Position)
{
    char Buffer[512] = "";
    GetMenuStringA(Menu, static_cast<UINT>(Position), Buffer, sizeof Buffer, MF_BYPOSITION);
    std::string Text = Buffer;
    return Text.substr(0, Text.find('\t'));
}

void PaintMenuBar(HDC Dc, const TWindow& Window, RECT Rect)
{
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_MENU));
    const TFontChoice Font(Dc, FW_NORMAL);
    SetBkMode(Dc, TRANSPARENT);
    const bool FromRight = RightToLeft(Window);
    constexpr int Padding = 7;
    for (int Position = 0; Position < GetMenuItemCount(Window.Menu); ++Position) {
        const std::string Text = MenuText(Window.Menu, Position);
        RECT Size{};
        DrawTextA(Dc, Text.c_str(), -1, &Size, DT_SINGLELINE | DT_CALCRECT);
        const int Width = Size.right + 2 * Padding;
        RECT Item = Rect;
        if (FromRight)
            Rect.right = Item.left = Item.right - Width;
        else
            Rect.left = Item.right = Item.left + Width;
        const UINT State = GetMenuState(Window.Menu, static_cast<UINT>(Position), MF_BYPOSITION);
        SetTextColor(Dc, GetSysColor(State & (MF_GRAYED | MF_DISABLED) ? COLOR_GRAYTEXT : COLOR_MENUTEXT));
        DrawTextA(Dc, Text.c_str(), -1, &Item,
                  DT_SINGLELINE | DT_CENTER | DT_VCENTER | (FromRight ? DT_RTLREADING : 0u));
    }
}

void PaintScrollBars(HDC Dc, const TWindow& Window, const RECT& Client)
{
    const int Width = GetSystemMetrics(SM_CXVSCROLL), Height = GetSystemMetrics(SM_CYHSCROLL);
    const bool Left = (Window.ExStyle & WS_EX_LEFTSCROLLBAR) != 0;
    const RECT Standing = {Left ? Client.left - Width : Client.right, Client.top,
                           Left ? Client.left : Client.right + Width, Client.bottom};
    const RECT Lying = {Client.left, Client.bottom, Client.right, Client.bottom + Height};
    if (Window.Has(WS_VSCROLL))
        PaintScrollBar(Dc, Standing, true, Window.Scroll[SB_VERT], !Window.Has(WS_DISABLED));
    if (Window.Has(WS_HSCROLL))
        PaintScrollBar(Dc, Lying, false, Window.Scroll[SB_HORZ], !Window.Has(WS_DISABLED));
    if (Window.Has(WS_VSCROLL | WS_HSCROLL)) {
        const RECT Corner = {Standing.left, Lying.top, Standing.right, Lying.bottom};
        FillRect(Dc, &Corner, GetSysColorBrush(COLOR_BTNFACE));
    }
}

// The lines around the window; Rect shrinks by them.
void PaintBorder(HDC Dc, const TWindow& Window, RECT& Rect)
{
    const auto Face = [&](int Width) {
        for (int Line = 0; Line < Width; ++Line) {
            FrameRect(Dc, &Rect, GetSysColorBrush(COLOR_BTNFACE));
            InflateRect(&Rect, -1, -1);
        }
    };
    const bool Modal = (Window.ExStyle & WS_EX_DLGMODALFRAME) != 0;
    if (Window.Has(WS_THICKFRAME)) {
        DrawEdge(Dc, &Rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
        Face(GetSystemMetrics(SM_CXFRAME) - 2);
    } else if (Modal || Window.Has(WS_DLGFRAME)) {
        DrawEdge(Dc, &Rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
        Face(GetSystemMetrics(SM_CXDLGFRAME) - 2);
    } else {
        if (Window.ExStyle & WS_EX_STATICEDGE)
            DrawEdge(Dc, &Rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
        if (Window.Has(WS_BORDER)) {
            FrameRect(Dc, &Rect, GetSysColorBrush(COLOR_WINDOWFRAME));
            InflateRect(&Rect, -1, -1);
        }
    }
}

int ThumbLength(int Room, const TWindowScrollBar& Bar)
{
    const long long Span = static_cast<long long>(Bar.Maximum) - Bar.Minimum + 1;
    if (Bar.Page == 0 || Span <= 0)
        return std::min(Room, 17);
    return static_cast<int>(
        std::clamp<long long>(Room * static_cast<long long>(Bar.Page) / Span, 8, std::max(Room, 8)));
}
} // namespace

void PaintScrollBar(HDC Dc, const RECT& Rect, bool Vertical, const TWindowScrollBar& Bar, bool Enabled)
{
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_SCROLLBAR));
    const int Thick = Vertical ? Rect.right - Rect.left : Rect.bottom - Rect.top;
    const int Length = Vertical ? Rect.bottom - Rect.top : Rect.right - Rect.left;
    const int Arrow = std::min(Thick, Length / 2);
    const auto Part = [&](int From, int To) {
        return Vertical ? RECT{Rect.left, Rect.top + From, Rect.right, Rect.top + To}
                        : RECT{Rect.left + From, Rect.top, Rect.left + To, Rect.bottom};
    };
    const long long Range = static_cast<long long>(Bar.Maximum) - Bar.Minimum -
                            (Bar.Page ? static_cast<long long>(Bar.Page) - 1 : 0);
    const bool Usable = Enabled && Range > 0 && !(Bar.Arrows & ESB_DISABLE_BOTH);
    const UINT Dull = Usable ? 0u : DFCS_INACTIVE;
    RECT First = Part(0, Arrow), Last = Part(Length - Arrow, Length);
    DrawFrameControl(Dc, &First, DFC_SCROLL, (Vertical ? DFCS_SCROLLUP : DFCS_SCROLLLEFT) | Dull);
    DrawFrameControl(Dc, &Last, DFC_SCROLL, (Vertical ? DFCS_SCROLLDOWN : DFCS_SCROLLRIGHT) | Dull);
    const int Room = Length - 2 * Arrow;
    const int Thumb = ThumbLength(Room, Bar);
    if (!Usable || Room <= Thumb)
        return;
    const auto Offset =
        static_cast<int>((static_cast<long long>(Bar.Position) - Bar.Minimum) * (Room - Thumb) / Range);
    RECT Handle = Part(Arrow + std::clamp(Offset, 0, Room - Thumb),
                       Arrow + std::clamp(Offset, 0, Room - Thumb) + Thumb);
    DrawEdge(Dc, &Handle, EDGE_RAISED, BF_RECT | BF_MIDDLE);
}

void PaintFrame(const TWindow& Window, HDC Dc)
{
    const RECT Outer = ScreenRect(Window);
    RECT Client = ScreenClientRect(Window);
    OffsetRect(&Client, -Outer.left, -Outer.top);
    RECT Rect = {0, 0, Outer.right - Outer.left, Outer.bottom - Outer.top};
    PaintBorder(Dc, Window, Rect);
    if (Window.Has(WS_CAPTION)) {
        const int Height =
            GetSystemMetrics(Window.ExStyle & WS_EX_TOOLWINDOW ? SM_CYSMCAPTION : SM_CYCAPTION);
        const RECT Caption = {Rect.left, Rect.top, Rect.right, Rect.top + Height - 1};
        PaintCaption(Dc, Window, Caption);
        const RECT Line = {Rect.left, Caption.bottom, Rect.right, Rect.top + Height};
        FillRect(Dc, &Line, GetSysColorBrush(COLOR_BTNFACE));
        Rect.top += Height;
    }
    if (const int Height = MenuBarHeight(Window)) {
        PaintMenuBar(Dc, Window, {Rect.left, Rect.top, Rect.right, Rect.top + Height});
        Rect.top += Height;
    }
    if (Window.ExStyle & WS_EX_CLIENTEDGE)
        DrawEdge(Dc, &Rect, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    PaintScrollBars(Dc, Window, Client);
}
