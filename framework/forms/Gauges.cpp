#include "framework/forms/Gauges.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TGauge::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TGauge", &TGraphicControl::MetaClass(), CreateComponent<TGauge>,
        Sorted(Look(), OBX_ROW(TGauge, BackColor).Default(clWhite),
               OBX_ROW(TGauge, BorderStyle).Default(bsSingle), OBX_ROW(TGauge, ForeColor).Default(clBlack),
               OBX_ROW(TGauge, Kind).Default(gkHorizontalBar), OBX_ROW(TGauge, MaxValue).Default(100),
               OBX_ROW(TGauge, MinValue).Default(0), OBX_ROW(TGauge, Progress),
               OBX_ROW(TGauge, ShowText).Default(true)));
    return Class;
}

TGauge::TGauge(TComponent* Owner) : TGraphicControl(Owner)
{
    FControlStyle.Include(csOpaque);
    SetBounds(0, 0, 100, 100);
}

void TGauge::SetProgress(int Value)
{
    if (!IsLoading())
        Value = std::clamp(Value, FMinValue, std::max(FMinValue, FMaxValue));
    if (FProgress == Value)
        return;
    FProgress = Value;
    Invalidate();
}

int TGauge::PercentDone() const
{
    const int Range = FMaxValue - FMinValue;
    return Range <= 0 ? 0 : static_cast<int>(int64_t{100} * (FProgress - FMinValue) / Range);
}

void TGauge::PaintBar(TRect Area)
{
    const int Percent = std::clamp(PercentDone(), 0, 100);
    if (Kind() == gkVerticalBar)
        Area.top = Area.bottom - RectHeight(Area) * Percent / 100;
    else
        Area.right = Area.left + RectWidth(Area) * Percent / 100;
    Canvas()->Brush()->SetColor(ForeColor());
    Canvas()->FillRect(Area);
}

// Pie and needle are shown as a bar.
void TGauge::Paint()
{
    TRect Area = ClientRect();
    Canvas()->Brush()->SetStyle(bsSolid);
    if (BorderStyle() == bsSingle) {
        Canvas()->Brush()->SetColor(clWindowFrame);
        Canvas()->FrameRect(Area);
        InflateRect(&Area, -1, -1);
    }
    Canvas()->Brush()->SetColor(BackColor());
    Canvas()->FillRect(Area);
    if (Kind() != gkText)
        PaintBar(Area);
    if (!ShowText())
        return;
    Canvas()->Font()->Assign(Font());
    Canvas()->Brush()->SetStyle(bsClear);
    Canvas()->DrawText(IntToStr(PercentDone()) + "%", Area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
