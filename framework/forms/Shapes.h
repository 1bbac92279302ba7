// Lines, frames and simple shapes.
#pragma once

#include "framework/forms/GraphicControl.h"

OBX_ENUM(TBevelStyle, bsLowered, bsRaised)
OBX_ENUM(TBevelShape, bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer)

class TBevel : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TBevel(TComponent* Owner);

    OBX_PROPERTY(TBevelShape, Shape, bsBox)
    OBX_PROPERTY(TBevelStyle, Style, bsLowered)

protected:
    void Paint() override;
};

OBX_ENUM(TShapeType, stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle)

class TShape : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TShape(TComponent* Owner);

    TBrush* Brush() const { return FBrush.get(); }
    void SetBrush(TBrush* Value) { FBrush->Assign(Value); }
    TPen* Pen() const { return FPen.get(); }
    void SetPen(TPen* Value) { FPen->Assign(Value); }
    OBX_PROPERTY(TShapeType, Shape, stRectangle)

protected:
    void Paint() override;

private:
    void StyleChanged(TObject*) { Invalidate(); }

    std::unique_ptr<TPen> FPen;
    std::unique_ptr<TBrush> FBrush;
};
