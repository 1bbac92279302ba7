// A bar, pie or text that shows how far something is.
#pragma once

#include "framework/forms/GraphicControl.h"

OBX_ENUM(TGaugeKind, gkText, gkHorizontalBar, gkVerticalBar, gkPie, gkNeedle)

class TGauge : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TGauge(TComponent* Owner);

    OBX_PROPERTY(TColor, BackColor, clWhite)
    OBX_PROPERTY(TBorderStyle, BorderStyle, bsSingle)
    OBX_PROPERTY(TColor, ForeColor, clBlack)
    OBX_PROPERTY(TGaugeKind, Kind, gkHorizontalBar)
    OBX_PROPERTY(int, MaxValue, 100)
    OBX_PROPERTY(int, MinValue, 0)
    OBX_PROPERTY(bool, ShowText, true)
public:
    int Progress() const { return FProgress; }
    // Kept between MinValue and MaxValue.
    void SetProgress(int Value);
    void AddProgress(int Value) { SetProgress(FProgress + Value); }
    // From 0 to 100.
    int PercentDone() const;

protected:
    void Paint() override;

private:
    void PaintBar(TRect Area);

    int FProgress = 0;
};
