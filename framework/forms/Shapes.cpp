#include "framework/forms/Shapes.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

namespace {

// What a control without keyboard and font publishes.
ControlRows::TRows PlainRows()
{
    return {
        OBX_ROW(TControl, Align).Default(alNone),
        OBX_ROW(TControl, Anchors).Default(TAnchors{akLeft, akTop}),
        OBX_ROW(TControl, Constraints),
        OBX_ROW(TControl, ParentShowHint).Default(true),
        OBX_ROW(TControl, ShowHint).Stored<&TControl::IsShowHintStored>(),
        OBX_ROW(TControl, Visible).Default(true).Stored<&TControl::IsVisibleStored>(),
    };
}

} // namespace

const TMetaClass& TBevel::MetaClass()
{
    static const TMetaClass Class("TBevel", &TGraphicControl::MetaClass(), CreateComponent<TBevel>,
                                  ControlRows::Sorted(PlainRows(), OBX_ROW(TBevel, Shape).Default(bsBox),
                                                      OBX_ROW(TBevel, Style).Default(bsLowered)));
    return Class;
}

const TMetaClass& TShape::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TShape", &TGraphicControl::MetaClass(), CreateComponent<TShape>,
        Sorted(PlainRows(), Drag(), OBX_ROW(TShape, Brush),
               OBX_ROW(TShape, Enabled).Default(true).Stored<&TShape::IsEnabledStored>(),
               OBX_ROW(TShape, Pen), OBX_ROW(TShape, Shape).Default(stRectangle),
               Prop<&TShape::OnContextPopup>("OnContextPopup"),
               Prop<&TShape::OnMouseActivate>("OnMouseActivate"), Prop<&TShape::OnMouseDown>("OnMouseDown"),
               Prop<&TShape::OnMouseEnter>("OnMouseEnter"), Prop<&TShape::OnMouseLeave>("OnMouseLeave"),
               Prop<&TShape::OnMouseMove>("OnMouseMove"), Prop<&TShape::OnMouseUp>("OnMouseUp")));
    return Class;
}

TBevel::TBevel(TComponent* Owner) : TGraphicControl(Owner)
{
    FControlStyle.Include(csReplicatable);
    SetBounds(0, 0, 50, 50);
}

void TBevel::Paint()
{
    const TColor First = Style() == bsLowered ? clBtnShadow : clBtnHighlight;
    const TColor Second = Style() == bsLowered ? clBtnHighlight : clBtnShadow;
    TCanvas& Target = *Canvas();
    Target.Brush()->SetStyle(bsSolid);
    const auto Fill = [&](TColor Color, int Left, int Top, int Right, int Bottom) {
        Target.Brush()->SetColor(Color);
        Target.FillRect({Left, Top, Right, Bottom});
    };
    const int W = Width();
    const int H = Height();
    switch (Shape()) {
    case bsBox:
        Fill(First, 0, 0, W, 1);
        Fill(First, 0, 0, 1, H);
        Fill(Second, W - 1, 0, W, H);
        Fill(Second, 0, H - 1, W, H);
        break;
    case bsFrame:
        Target.Brush()->SetColor(Second);
        Target.FrameRect({1, 1, W, H});
        Target.Brush()->SetColor(First);
        Target.FrameRect({0, 0, W - 1, H - 1});
        break;
    case bsTopLine:
        Fill(First, 0, 0, W, 1);
        Fill(Second, 0, 1, W, 2);
        break;
    case bsBottomLine:
        Fill(First, 0, H - 2, W, H - 1);
        Fill(Second, 0, H - 1, W, H);
        break;
    case bsLeftLine:
        Fill(First, 0, 0, 1, H);
        Fill(Second, 1, 0, 2, H);
        break;
    case bsRightLine:
        Fill(First, W - 2, 0, W - 1, H);
        Fill(Second, W - 1, 0, W, H);
        break;
    case bsSpacer:
        break;
    }
}

TShape::TShape(TComponent* Owner)
    : TGraphicControl(Owner), FPen(std::make_unique<TPen>()), FBrush(std::make_unique<TBrush>())
{
    FControlStyle.Include(csReplicatable);
    SetBounds(0, 0, 65, 65);
    FPen->OnChange = {this, &TShape::StyleChanged};
    FBrush->OnChange = {this, &TShape::StyleChanged};
}

void TShape::Paint()
{
    TCanvas& Target = *Canvas();
    Target.Pen()->Assign(FPen.get());
    Target.Brush()->Assign(FBrush.get());
    int X = FPen->Width() / 2;
    int Y = X;
    int W = Width() - FPen->Width() + 1;
    int H = Height() - FPen->Width() + 1;
    if (FPen->Width() == 0) {
        --W;
        --H;
    }
    const int Side = std::min(W, H);
    if (Shape() == stSquare || Shape() == stRoundSquare || Shape() == stCircle) {
        X += (W - Side) / 2;
        Y += (H - Side) / 2;
        W = H = Side;
    }
    switch (Shape()) {
    case stRectangle:
    case stSquare:
        Target.Rectangle(X, Y, X + W, Y + H);
        break;
    case stRoundRect:
    case stRoundSquare:
        Target.RoundRect(X, Y, X + W, Y + H, Side / 4, Side / 4);
        break;
    case stEllipse:
    case stCircle:
        Target.Ellipse(X, Y, X + W, Y + H);
        break;
    }
}
