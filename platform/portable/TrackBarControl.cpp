#include <algorithm>
#include <utility>

#include "platform/portable/Control.h"

namespace {
constexpr int ThumbLength = 21;
constexpr int ThumbWidth = 11;
constexpr int Indent = 8;

class TTrackBar final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    bool Vertical() const { return (Style() & TBS_VERT) != 0; }
    void SetRange(int Low, int High);
    void Move(int To, int Code);
    void Key(WPARAM Key);
    void Scroll(int Code);
    int PageSize() const { return FPage >= 0 ? FPage : std::max(1, (FHigh - FLow) / 5); }
    int PixelOf(int Position) const;
    int PositionAt(POINT Point) const;

    int FLow = 0;
    int FHigh = 100;
    int FPosition = 0;
    int FLine = 1;
    int FPage = -1; // -1: a fifth of the range
    int FFrequency = 1;
    int FSelectionStart = 0;
    int FSelectionEnd = 0;
    int FThumb = ThumbLength;
    bool FDragging = false;
};

LRESULT TTrackBar::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Value = static_cast<int>(LParam);
    switch (Message) {
    case WM_ERASEBKGND:
        return TRUE;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case TBM_GETPOS:
        return FPosition;
    case TBM_GETRANGEMIN:
        return FLow;
    case TBM_GETRANGEMAX:
        return FHigh;
    case TBM_SETPOS:
        FPosition = std::clamp(Value, FLow, FHigh);
        Invalidate();
        return 0;
    case TBM_SETRANGE:
        SetRange(static_cast<short>(LOWORD(LParam)), static_cast<short>(HIWORD(LParam)));
        return 0;
    case TBM_SETRANGEMIN:
        SetRange(Value, FHigh);
        return 0;
    case TBM_SETRANGEMAX:
        SetRange(FLow, Value);
        return 0;
    case TBM_SETPAGESIZE:
        return std::exchange(FPage, Value);
    case TBM_GETPAGESIZE:
        return PageSize();
    case TBM_SETLINESIZE:
        return std::exchange(FLine, Value);
    case TBM_GETLINESIZE:
        return FLine;
    case TBM_SETTICFREQ:
        FFrequency = std::max(1, static_cast<int>(WParam));
        Invalidate();
        return 0;
    case TBM_SETSEL:
        FSelectionStart = static_cast<short>(LOWORD(LParam));
        FSelectionEnd = static_cast<short>(HIWORD(LParam));
        return 0;
    case TBM_SETSELSTART:
        FSelectionStart = Value;
        return 0;
    case TBM_SETSELEND:
        FSelectionEnd = Value;
        return 0;
    case TBM_GETSELSTART:
        return FSelectionStart;
    case TBM_GETSELEND:
        return FSelectionEnd;
    case TBM_SETTHUMBLENGTH:
        FThumb = static_cast<int>(WParam);
        Invalidate();
        return 0;
    case TBM_GETTHUMBLENGTH:
        return FThumb;
    case WM_KEYDOWN:
        Key(WParam);
        return TRUE;
    case WM_KEYUP:
        Scroll(TB_ENDTRACK);
        return TRUE;
    case WM_LBUTTONDOWN: {
        SetFocus(Window());
        const int At = PositionAt(PointOf(LParam));
        FDragging = true;
        SetCapture(Window());
        Move(At, TB_THUMBTRACK);
        return 0;
    }
    case WM_MOUSEMOVE:
        if (FDragging)
            Move(PositionAt(PointOf(LParam)), TB_THUMBTRACK);
        return 0;
    case WM_LBUTTONUP:
        if (std::exchange(FDragging, false)) {
            ReleaseCapture();
            Scroll(TB_THUMBPOSITION);
            Scroll(TB_ENDTRACK);
        }
        return 0;
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

void TTrackBar::SetRange(int Low, int High)
{
    FLow = Low;
    FHigh = std::max(Low, High);
    FPosition = std::clamp(FPosition, FLow, FHigh);
    Invalidate();
}

void TTrackBar::Scroll(int Code)
{
    if (!Alive())
        return;
    const bool WithPosition = Code == TB_THUMBPOSITION || Code == TB_THUMBTRACK;
    SendMessageA(GetParent(Window()), Vertical() ? WM_VSCROLL : WM_HSCROLL,
                 static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(Code, WithPosition ? FPosition : 0))),
                 reinterpret_cast<LPARAM>(Window()));
}

void TTrackBar::Move(int To, int Code)
{
    To = std::clamp(To, FLow, FHigh);
    if (To == FPosition)
        return;
    FPosition = To;
    Invalidate();
    Scroll(Code);
}

void TTrackBar::Key(WPARAM Key)
{
    switch (Key) {
    case VK_LEFT:
    case VK_UP:
        return Move(FPosition - FLine, TB_LINEUP);
    case VK_RIGHT:
    case VK_DOWN:
        return Move(FPosition + FLine, TB_LINEDOWN);
    case VK_PRIOR:
        return Move(FPosition - PageSize(), TB_PAGEUP);
    case VK_NEXT:
        return Move(FPosition + PageSize(), TB_PAGEDOWN);
    case VK_HOME:
        return Move(FLow, TB_TOP);
    case VK_END:
        return Move(FHigh, TB_BOTTOM);
    default:
        return;
    }
}

int TTrackBar::PixelOf(int Position) const
{
    const RECT Rect = ClientRect();
    const int Length = (Vertical() ? Rect.bottom : Rect.right) - 2 * Indent - ThumbWidth;
    const long long Span = std::max(1, FHigh - FLow);
    return Indent + ThumbWidth / 2 +
           static_cast<int>((static_cast<long long>(Position) - FLow) * Length / Span);
}

int TTrackBar::PositionAt(POINT Point) const
{
    const int Start = PixelOf(FLow), Length = std::max(1, PixelOf(FHigh) - Start);
    const long long Offset = (Vertical() ? Point.y : Point.x) - Start;
    return FLow + static_cast<int>((Offset * (FHigh - FLow) + Length / 2) / Length);
}

void TTrackBar::Paint(HDC Dc)
{
    const RECT Rect = ClientRect();
    FillRect(Dc, &Rect, ParentColors(Dc, WM_CTLCOLORSTATIC));
    const int Middle = Indent + FThumb / 2 - 4;
    const auto Turn = [&](RECT Part) {
        return Vertical() ? RECT{Part.top, Part.left, Part.bottom, Part.right} : Part;
    };
    const int Length = Vertical() ? Rect.bottom : Rect.right;
    RECT Channel = Turn({Indent, Middle - 2, Length - Indent, Middle + 2});
    DrawEdge(Dc, &Channel, EDGE_SUNKEN, BF_RECT);
    if (!(Style() & TBS_NOTICKS)) {
        const int TickTop = Middle + FThumb / 2 + 3;
        const int Step = std::max(FFrequency, (FHigh - FLow) / std::max(1, Length / 3));
        for (int At = FLow; At <= FHigh; At += Style() & TBS_AUTOTICKS ? Step : std::max(1, FHigh - FLow)) {
            const int X = PixelOf(At);
            const RECT Tick = Turn({X, TickTop, X + 1, TickTop + (At == FLow || At == FHigh ? 4 : 3)});
            FillRect(Dc, &Tick, GetSysColorBrush(COLOR_BTNTEXT));
        }
    }
    const int X = PixelOf(FPosition);
    RECT Thumb = Turn({X - ThumbWidth / 2, Middle - FThumb / 2, X + ThumbWidth / 2 + 1, Middle + FThumb / 2});
    DrawFrameControl(Dc, &Thumb, DFC_BUTTON, DFCS_BUTTONPUSH | (Enabled() ? 0u : DFCS_INACTIVE));
    if (Focused())
        DrawFocusRect(Dc, &Rect);
}
} // namespace

void RegisterSystemTrackBars()
{
    RegisterControl<TTrackBar>(TRACKBAR_CLASSA);
}
