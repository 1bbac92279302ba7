#include <algorithm>

#include "platform/portable/Control.h"
#include "platform/portable/PaintWindow.h"

namespace {
class TScrollBarControl final : public TSystemControl {
public:
    explicit TScrollBarControl(HWND Handle) : TSystemControl(Handle) { FBar.Maximum = 0; }
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    bool Vertical() const { return (Style() & SBS_VERT) != 0; }
    int SetPosition(int Position);
    int SetInfo(const SCROLLINFO& Info);
    BOOL GetInfo(SCROLLINFO& Info) const;
    void Scroll(int Code);
    void Click(POINT Point);

    TWindowScrollBar FBar;
};

LRESULT TScrollBarControl::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    switch (Message) {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_ERASEBKGND:
        return TRUE;
    case SBM_SETPOS:
        return SetPosition(static_cast<int>(WParam));
    case SBM_GETPOS:
        return FBar.Position;
    case SBM_SETRANGE:
    case SBM_SETRANGEREDRAW: {
        const int Old = FBar.Position;
        FBar.Minimum = static_cast<int>(WParam);
        FBar.Maximum = static_cast<int>(LParam);
        SetPosition(FBar.Position);
        return Old == FBar.Position ? 0 : Old;
    }
    case SBM_GETRANGE:
        if (WParam)
            *reinterpret_cast<int*>(WParam) = FBar.Minimum;
        if (LParam)
            *reinterpret_cast<int*>(LParam) = FBar.Maximum;
        return TRUE;
    case SBM_SETSCROLLINFO:
        return SetInfo(Structure<SCROLLINFO>(LParam));
    case SBM_GETSCROLLINFO:
        return GetInfo(Structure<SCROLLINFO>(LParam));
    case SBM_ENABLE_ARROWS:
        FBar.Arrows = static_cast<UINT>(WParam);
        Invalidate();
        return TRUE;
    case WM_LBUTTONDOWN:
        Click(PointOf(LParam));
        return 0;
    case WM_LBUTTONUP:
        Scroll(SB_ENDSCROLL);
        return 0;
    case WM_KEYDOWN:
        switch (WParam) {
        case VK_UP:
        case VK_LEFT:
            Scroll(SB_LINEUP);
            break;
        case VK_DOWN:
        case VK_RIGHT:
            Scroll(SB_LINEDOWN);
            break;
        case VK_PRIOR:
            Scroll(SB_PAGEUP);
            break;
        case VK_NEXT:
            Scroll(SB_PAGEDOWN);
            break;
        case VK_HOME:
            Scroll(SB_TOP);
            break;
        case VK_END:
            Scroll(SB_BOTTOM);
            break;
        default:
            break;
        }
        return 0;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

int TScrollBarControl::SetPosition(int Position)
{
    const int Page = FBar.Page ? static_cast<int>(FBar.Page) - 1 : 0;
    const int Old = FBar.Position;
    FBar.Position = std::clamp(Position, FBar.Minimum, std::max(FBar.Minimum, FBar.Maximum - Page));
    Invalidate();
    return Old;
}

int TScrollBarControl::SetInfo(const SCROLLINFO& Info)
{
    if (Info.fMask & SIF_RANGE) {
        FBar.Minimum = Info.nMin;
        FBar.Maximum = std::max(Info.nMin, Info.nMax);
    }
    if (Info.fMask & SIF_PAGE)
        FBar.Page = Info.nPage;
    SetPosition(Info.fMask & SIF_POS ? Info.nPos : FBar.Position);
    return FBar.Position;
}

BOOL TScrollBarControl::GetInfo(SCROLLINFO& Info) const
{
    if (Info.fMask & SIF_RANGE) {
        Info.nMin = FBar.Minimum;
        Info.nMax = FBar.Maximum;
    }
    if (Info.fMask & SIF_PAGE)
        Info.nPage = FBar.Page;
    if (Info.fMask & SIF_POS)
        Info.nPos = FBar.Position;
    if (Info.fMask & SIF_TRACKPOS)
        Info.nTrackPos = FBar.Position;
    return TRUE;
}

void TScrollBarControl::Scroll(int Code)
{
    SendMessageA(GetParent(Window()), Vertical() ? WM_VSCROLL : WM_HSCROLL, static_cast<WPARAM>(Code),
                 reinterpret_cast<LPARAM>(Window()));
}

void TScrollBarControl::Click(POINT Point)
{
    const RECT Rect = ClientRect();
    const int Length = Vertical() ? Rect.bottom : Rect.right, Arrow = std::min(17, Length / 2);
    const int At = Vertical() ? Point.y : Point.x;
    if (At < Arrow)
        Scroll(SB_LINEUP);
    else if (At >= Length - Arrow)
        Scroll(SB_LINEDOWN);
    else
        Scroll(At < Length / 2 ? SB_PAGEUP : SB_PAGEDOWN);
}

void TScrollBarControl::Paint(HDC Dc)
{
    PaintScrollBar(Dc, ClientRect(), Vertical(), FBar, Enabled());
}
} // namespace

void RegisterSystemScrollBars()
{
    RegisterControl<TScrollBarControl>("ScrollBar");
}
