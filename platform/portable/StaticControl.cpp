#include <algorithm>
#include <utility>

#include "platform/portable/Control.h"

// Static texts, images, frames and filled rectangles.
namespace {
class TStatic final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    DWORD Kind() const { return Style() & SS_TYPEMASK; }
    void PaintText(HDC Dc, RECT Rect, UINT Format);
    void PaintImage(HDC Dc, const RECT& Rect) const;

    HANDLE FImage = nullptr;
};

LRESULT TStatic::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_NCHITTEST:
        return Style() & SS_NOTIFY ? HTCLIENT : HTTRANSPARENT;
    case WM_LBUTTONDOWN:
        if (Style() & SS_NOTIFY)
            Command(STN_CLICKED);
        return 0;
    case WM_LBUTTONDBLCLK:
        if (Style() & SS_NOTIFY)
            Command(STN_DBLCLK);
        return 0;
    case STM_SETIMAGE:
    case STM_SETICON:
        Invalidate();
        return reinterpret_cast<LRESULT>(std::exchange(
            FImage, reinterpret_cast<HANDLE>(Message == STM_SETICON ? static_cast<LPARAM>(WParam) : LParam)));
    case STM_GETIMAGE:
    case STM_GETICON:
        return reinterpret_cast<LRESULT>(FImage);
    case WM_ERASEBKGND:
        return TRUE;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void TStatic::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    const HBRUSH Back = ParentColors(Dc, WM_CTLCOLORSTATIC);
    FillRect(Dc, &Rect, Back);
    const auto Fill = [&](int Color) { FillRect(Dc, &Rect, GetSysColorBrush(Color)); };
    const auto Frame = [&](int Color) { FrameRect(Dc, &Rect, GetSysColorBrush(Color)); };
    const UINT Vertical = Style() & SS_CENTERIMAGE ? DT_SINGLELINE | DT_VCENTER : 0u;
    switch (Kind()) {
    case SS_LEFT:
        return PaintText(Dc, Rect, DT_LEFT | (Vertical ? Vertical : DT_WORDBREAK));
    case SS_CENTER:
        return PaintText(Dc, Rect, DT_CENTER | (Vertical ? Vertical : DT_WORDBREAK));
    case SS_RIGHT:
        return PaintText(Dc, Rect, DT_RIGHT | (Vertical ? Vertical : DT_WORDBREAK));
    case SS_SIMPLE:
        return PaintText(Dc, Rect, DT_LEFT | DT_SINGLELINE);
    case SS_LEFTNOWORDWRAP:
        return PaintText(Dc, Rect, DT_LEFT | Vertical);
    case SS_BLACKRECT:
        return static_cast<void>(Fill(COLOR_3DDKSHADOW));
    case SS_GRAYRECT:
        return static_cast<void>(Fill(COLOR_3DSHADOW));
    case SS_WHITERECT:
        return static_cast<void>(Fill(COLOR_3DHIGHLIGHT));
    case SS_BLACKFRAME:
        return static_cast<void>(Frame(COLOR_3DDKSHADOW));
    case SS_GRAYFRAME:
        return static_cast<void>(Frame(COLOR_3DSHADOW));
    case SS_WHITEFRAME:
        return static_cast<void>(Frame(COLOR_3DHIGHLIGHT));
    case SS_ETCHEDHORZ:
        DrawEdge(Dc, &Rect, EDGE_ETCHED, BF_TOP);
        return;
    case SS_ETCHEDVERT:
        DrawEdge(Dc, &Rect, EDGE_ETCHED, BF_LEFT);
        return;
    case SS_ETCHEDFRAME:
        DrawEdge(Dc, &Rect, EDGE_ETCHED, BF_RECT);
        return;
    case SS_ICON:
    case SS_BITMAP:
        return PaintImage(Dc, Rect);
    case SS_OWNERDRAW: {
        DRAWITEMSTRUCT Item{};
        Item.CtlType = ODT_STATIC;
        Item.CtlID = static_cast<UINT>(Id());
        Item.itemAction = ODA_DRAWENTIRE;
        Item.hwndItem = Window();
        Item.hDC = Dc;
        Item.rcItem = Rect;
        SendMessageA(GetParent(Window()), WM_DRAWITEM, Item.CtlID, reinterpret_cast<LPARAM>(&Item));
        return;
    }
    default:
        return;
    }
}

void TStatic::PaintText(HDC Dc, RECT Rect, UINT Format)
{
    if (Style() & SS_NOPREFIX)
        Format |= DT_NOPREFIX;
    if ((Style() & SS_ELLIPSISMASK) != 0)
        Format = (Format & ~UINT{DT_WORDBREAK}) | DT_SINGLELINE | DT_END_ELLIPSIS;
    if (!Enabled())
        SetTextColor(Dc, GetSysColor(COLOR_GRAYTEXT));
    DrawItemText(Dc, Text(), Rect, Format | DT_EXPANDTABS);
}

void TStatic::PaintImage(HDC Dc, const RECT& Rect) const
{
    if (!FImage)
        return;
    if (Kind() == SS_ICON) {
        DrawIcon(Dc, Rect.left, Rect.top, static_cast<HICON>(FImage));
        return;
    }
    BITMAP Info{};
    if (!GetObjectA(FImage, sizeof Info, &Info))
        return;
    const HDC Source = CreateCompatibleDC(Dc);
    const HGDIOBJ Old = SelectObject(Source, FImage);
    BitBlt(Dc, Rect.left, Rect.top, Info.bmWidth, Info.bmHeight, Source, 0, 0, SRCCOPY);
    SelectObject(Source, Old);
    DeleteDC(Source);
}
} // namespace

void RegisterSystemStatics()
{
    RegisterControl<TStatic>("Static");
}
