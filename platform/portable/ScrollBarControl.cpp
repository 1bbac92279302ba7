#include <algorithm>
#include <utility>

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
    // Where the thumb is, along the bar, and how far it can go.
    struct TThumb {
        int Arrow, At, Size, Travel;
    };
    TThumb Thumb() const;
    int Along(POINT Point) const { return Vertical() ? Point.y : Point.x; }
    int LastPosition() const { return std::max(FBar.Minimum, FBar.Maximum - PageLess()); }
    int PageLess() const { return FBar.Page ? static_cast<int>(FBar.Page) - 1 : 0; }
    void Scroll(int Code, int Position = 0);
    bool IsFar(POINT Point) const;
    void Press(POINT Point);
    void Drag(POINT Point);
    void Release();

    TWindowScrollBar FBar;
    bool FPressed = false;
    bool FDragging = false;
    int FGrip = 0; // from the thumb's start to where it is held
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
    case WM_LBUTTONDBLCLK:
        Press(PointOf(LParam));
        return 0;
    case WM_MOUSEMOVE:
        Drag(PointOf(LParam));
        return 0;
    case WM_LBUTTONUP:
        Release();
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
    const int Old = FBar.Position;
    FBar.Position = std::clamp(Position, FBar.Minimum, LastPosition());
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
    FBar.Page = std::min(FBar.Page, static_cast<UINT>(FBar.Maximum - FBar.Minimum + 1));
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
        Info.nTrackPos = FDragging ? FBar.TrackPosition : FBar.Position;
    return TRUE;
}

void TScrollBarControl::Scroll(int Code, int Position)
{
    SendMessageA(GetParent(Window()), Vertical() ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(Code, Position),
                 reinterpret_cast<LPARAM>(Window()));
}

TScrollBarControl::TThumb TScrollBarControl::Thumb() const
{
    constexpr int SmallestThumb = 6;
    const RECT Rect = ClientRect();
    const int Length = Vertical() ? Rect.bottom : Rect.right, Arrow = std::min(17, Length / 2);
    const int Room = Length - 2 * Arrow, Range = FBar.Maximum - FBar.Minimum + 1;
    const int Size =
        FBar.Page ? std::max(SmallestThumb, MulDiv(Room, static_cast<int>(FBar.Page), Range)) : 17;
    const int Travel = std::max(0, Room - Size), Steps = LastPosition() - FBar.Minimum;
    const int At = Steps > 0 ? MulDiv(Travel, FBar.Position - FBar.Minimum, Steps) : 0;
    return {Arrow, Arrow + At, Size, Travel};
}

void TScrollBarControl::Press(POINT Point)
{
    const RECT Rect = ClientRect();
    const int Length = Vertical() ? Rect.bottom : Rect.right, At = Along(Point);
    const TThumb Bar = Thumb();
    SetCapture(Window());
    FPressed = true;
    if (At < Bar.Arrow)
        return Scroll(SB_LINEUP);
    if (At >= Length - Bar.Arrow)
        return Scroll(SB_LINEDOWN);
    if (At < Bar.At || At >= Bar.At + Bar.Size)
        return Scroll(At < Bar.At ? SB_PAGEUP : SB_PAGEDOWN);
    FDragging = true;
    FGrip = At - Bar.At;
    FBar.TrackPosition = FBar.Position;
    Scroll(SB_THUMBTRACK, FBar.Position);
}

// A thumb that is drawn so far away goes back to where it was.
bool TScrollBarControl::IsFar(POINT Point) const
{
    RECT Near = ClientRect();
    const int Width = Vertical() ? Near.right : Near.bottom;
    InflateRect(&Near, Width * (Vertical() ? 8 : 2), Width * (Vertical() ? 2 : 8));
    return !PtInRect(&Near, Point);
}

void TScrollBarControl::Drag(POINT Point)
{
    if (!FDragging)
        return;
    const TThumb Bar = Thumb();
    const int At = std::clamp(Along(Point) - FGrip - Bar.Arrow, 0, Bar.Travel);
    const int Steps = LastPosition() - FBar.Minimum;
    const int Position =
        IsFar(Point) ? FBar.Position : FBar.Minimum + (Bar.Travel > 0 ? MulDiv(Steps, At, Bar.Travel) : 0);
    if (Position == FBar.TrackPosition)
        return;
    FBar.TrackPosition = Position;
    Scroll(SB_THUMBTRACK, Position);
}

void TScrollBarControl::Release()
{
    if (!std::exchange(FPressed, false))
        return;
    ReleaseCapture();
    if (FDragging)
        Scroll(SB_THUMBPOSITION, FBar.TrackPosition);
    FDragging = false;
    if (Alive())
        Scroll(SB_ENDSCROLL);
}

void TScrollBarControl::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    if (!(Style() & (SBS_SIZEBOX | SBS_SIZEGRIP)))
        return PaintScrollBar(Dc, Rect, Vertical(), FBar, Enabled());
    FillRect(Dc, &Rect, GetSysColorBrush(COLOR_BTNFACE));
    DrawFrameControl(Dc, &Rect, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
}
} // namespace

void RegisterSystemScrollBars()
{
    RegisterControl<TScrollBarControl>("ScrollBar");
}
