#include <algorithm>
#include <utility>

#include "platform/portable/Control.h"

namespace {
class TProgress final : public TSystemControl {
public:
    using TSystemControl::TSystemControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override;

protected:
    void Paint(HDC Dc) override;

private:
    LRESULT SetRange(int Low, int High);
    int Move(int To);

    int FLow = 0;
    int FHigh = 100;
    int FPosition = 0;
    int FStep = 10;
    COLORREF FBar = CLR_DEFAULT;
    COLORREF FBack = CLR_DEFAULT;
};

LRESULT TProgress::Handle(UINT Message, WPARAM WParam, LPARAM LParam)
{
    const int Value = static_cast<int>(WParam);
    switch (Message) {
    case WM_ERASEBKGND:
        return TRUE;
    case PBM_SETRANGE:
        return SetRange(LOWORD(LParam), HIWORD(LParam));
    case PBM_SETRANGE32:
        return SetRange(Value, static_cast<int>(LParam));
    case PBM_GETRANGE:
        if (LParam)
            Structure<PBRANGE>(LParam) = {FLow, FHigh};
        return WParam ? FLow : FHigh;
    case PBM_SETPOS:
        return Move(Value);
    case PBM_DELTAPOS:
        return Move(FPosition + Value);
    case PBM_STEPIT: {
        // Past the end it starts anew.
        const int Next = FPosition + FStep;
        return Move(Next > FHigh ? FLow + FStep : Next < FLow ? FHigh + FStep : Next);
    }
    case PBM_SETSTEP:
        return std::exchange(FStep, Value);
    case PBM_GETPOS:
        return FPosition;
    case PBM_SETBARCOLOR:
        Invalidate();
        return static_cast<LRESULT>(std::exchange(FBar, static_cast<COLORREF>(LParam)));
    case PBM_SETBKCOLOR:
        Invalidate();
        return static_cast<LRESULT>(std::exchange(FBack, static_cast<COLORREF>(LParam)));
    default:
        return TSystemControl::Handle(Message, WParam, LParam);
    }
}

LRESULT TProgress::SetRange(int Low, int High)
{
    const LRESULT Old = static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(FLow, FHigh)));
    FLow = Low;
    FHigh = std::max(Low, High);
    Move(FPosition);
    return Old;
}

int TProgress::Move(int To)
{
    Invalidate();
    return std::exchange(FPosition, std::clamp(To, FLow, FHigh));
}

void TProgress::Paint(HDC Dc)
{
    RECT Rect = ClientRect();
    const HBRUSH Back = CreateSolidBrush(FBack == CLR_DEFAULT ? GetSysColor(COLOR_BTNFACE) : FBack);
    const HBRUSH Bar = CreateSolidBrush(FBar == CLR_DEFAULT ? GetSysColor(COLOR_HIGHLIGHT) : FBar);
    FillRect(Dc, &Rect, Back);
    DrawEdge(Dc, &Rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    InflateRect(&Rect, -1, -1);
    const bool Vertical = (Style() & PBS_VERTICAL) != 0;
    const int Length = Vertical ? Rect.bottom - Rect.top : Rect.right - Rect.left;
    const long long Span = std::max(1, FHigh - FLow);
    const int Filled = static_cast<int>((static_cast<long long>(FPosition) - FLow) * Length / Span);
    const int Block = Style() & PBS_SMOOTH ? std::max(1, Filled)
                                           : std::max(4, (Vertical ? Rect.right : Rect.bottom) * 2 / 3);
    const int Gap = Style() & PBS_SMOOTH ? 0 : 2;
    for (int At = 0; At < Filled; At += Block + Gap) {
        const int End = std::min(At + Block, Length);
        const RECT Part = Vertical ? RECT{Rect.left, Rect.bottom - End, Rect.right, Rect.bottom - At}
                                   : RECT{Rect.left + At, Rect.top, Rect.left + End, Rect.bottom};
        FillRect(Dc, &Part, Bar);
    }
    DeleteObject(Bar);
    DeleteObject(Back);
}
} // namespace

void RegisterSystemProgressBars()
{
    RegisterControl<TProgress>(PROGRESS_CLASSA);
}
