#include "framework/forms/Panels.h"

#include <algorithm>

#include "framework/forms/ControlRows.h"

namespace {

void DrawBevel(TCanvas& Canvas, TRect& Area, TBevelCut Cut, int Width)
{
    if (Cut == bvNone || Cut == bvSpace) {
        if (Cut == bvSpace)
            InflateRect(&Area, -Width, -Width);
        return;
    }
    const TColor TopLeft = Cut == bvLowered ? clBtnShadow : clBtnHighlight;
    const TColor BottomRight = Cut == bvLowered ? clBtnHighlight : clBtnShadow;
    for (int I = 0; I < Width; ++I) {
        Canvas.Brush()->SetColor(TopLeft);
        Canvas.FillRect({Area.left, Area.top, Area.right - 1, Area.top + 1});
        Canvas.FillRect({Area.left, Area.top, Area.left + 1, Area.bottom - 1});
        Canvas.Brush()->SetColor(BottomRight);
        Canvas.FillRect({Area.right - 1, Area.top, Area.right, Area.bottom});
        Canvas.FillRect({Area.left, Area.bottom - 1, Area.right, Area.bottom});
        InflateRect(&Area, -1, -1);
    }
}

template<class TPublisher>
ControlRows::TRows PanelRows()
{
    using namespace ControlRows;
    TRows Result = Joined(
        Look(), Drag(), Mouse(), Focus(false), Dock(), ControlRows::Resize(), ControlRows::Ctl3D(), Buffer(),
        ControlRows::Caption(), ControlRows::AutoSize(false),
        OBX_ROW(TPublisher, Color).Default(clBtnFace).template Stored<&TPublisher::IsColorStored>(),
        OBX_ROW(TPublisher, ParentColor).Default(false), OBX_ROW(TPublisher, Alignment).Default(taCenter),
        OBX_ROW(TPublisher, BevelEdges).Default(TBevelEdges{beLeft, beTop, beRight, beBottom}),
        OBX_ROW(TPublisher, BevelInner).Default(bvNone), OBX_ROW(TPublisher, BevelKind).Default(bkNone),
        OBX_ROW(TPublisher, BevelOuter).Default(bvRaised), OBX_ROW(TPublisher, BevelWidth).Default(1));
    return Joined(std::move(Result), OBX_ROW(TPublisher, BorderStyle).Default(bsNone),
                  OBX_ROW(TPublisher, BorderWidth).Default(0), OBX_ROW(TPublisher, FullRepaint).Default(true),
                  OBX_ROW(TPublisher, Locked).Default(false), OBX_ROW(TPublisher, Padding),
                  OBX_ROW(TPublisher, ParentBackground).Default(true),
                  OBX_ROW(TPublisher, ShowCaption).Default(true),
                  OBX_ROW(TPublisher, VerticalAlignment).Default(taVerticalCenter));
}

} // namespace

const TMetaClass& TCustomPanel::MetaClass()
{
    static const TMetaClass Class("TCustomPanel", &TCustomControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TPanel::MetaClass()
{
    static const TMetaClass Class("TPanel", &TCustomPanel::MetaClass(), CreateComponent<TPanel>,
                                  ControlRows::Sorted(PanelRows<TPanel>()));
    return Class;
}

const TMetaClass& TFlowPanel::MetaClass()
{
    static const TMetaClass Class(
        "TFlowPanel", &TCustomPanel::MetaClass(), CreateComponent<TFlowPanel>,
        ControlRows::Sorted(PanelRows<TFlowPanel>(), OBX_ROW(TFlowPanel, AutoWrap).Default(true),
                            OBX_ROW(TFlowPanel, FlowStyle).Default(fsLeftRightTopBottom)));
    return Class;
}

const TMetaClass& TControlBar::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TControlBar", &TCustomControl::MetaClass(), CreateComponent<TControlBar>,
        Sorted(Look(), Drag(), Mouse(), Focus(false), Dock(), ControlRows::Resize(),
               ControlRows::AutoSize(false), OBX_ROW(TControlBar, AutoDock).Default(true),
               OBX_ROW(TControlBar, AutoDrag).Default(true),
               OBX_ROW(TControlBar, BevelEdges).Default(TBevelEdges{beLeft, beTop, beRight, beBottom}),
               OBX_ROW(TControlBar, BevelInner).Default(bvRaised),
               OBX_ROW(TControlBar, BevelKind).Default(bkTile),
               OBX_ROW(TControlBar, BevelOuter).Default(bvLowered),
               OBX_ROW(TControlBar, BevelWidth).Default(1), OBX_ROW(TControlBar, BorderWidth).Default(0),
               OBX_ROW(TControlBar, DockSite).Default(true), OBX_ROW(TControlBar, Picture),
               OBX_ROW(TControlBar, RowSize).Default(26), OBX_ROW(TControlBar, RowSnap).Default(true),
               Prop<&TControlBar::OnBandDrag>("OnBandDrag"), Prop<&TControlBar::OnBandInfo>("OnBandInfo"),
               Prop<&TControlBar::OnBandMove>("OnBandMove"), Prop<&TControlBar::OnBandPaint>("OnBandPaint"),
               Prop<&TControlBar::OnPaint>("OnPaint")));
    return Class;
}

const TMetaClass& TScrollBox::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TScrollBox", &TScrollingWinControl::MetaClass(), CreateComponent<TScrollBox>,
        Sorted(Look(), Drag(), Mouse(), Wheel(), Focus(false), Dock(), ControlRows::Resize(), Bevel(),
               ControlRows::Ctl3D(), Buffer(), ControlRows::AutoSize(false),
               OBX_ROW(TScrollBox, AutoScroll).Default(true),
               OBX_ROW(TScrollBox, BorderStyle).Default(bsSingle), OBX_ROW(TScrollBox, HorzScrollBar),
               OBX_ROW(TScrollBox, Padding), OBX_ROW(TScrollBox, ParentBackground).Default(true),
               OBX_ROW(TScrollBox, VertScrollBar)));
    return Class;
}

TCustomPanel::TCustomPanel(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption,
                     csOpaque,          csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 41);
    SetColor(clBtnFace);
    SetParentColor(false);
}

int TCustomPanel::BevelSize() const
{
    return (FPanelInner != bvNone ? FPanelBevelWidth : 0) + (FPanelOuter != bvNone ? FPanelBevelWidth : 0);
}

void TCustomPanel::LayoutChanged()
{
    Realign();
    Invalidate();
}

void TCustomPanel::SetBevelInner(TBevelCut Value)
{
    FPanelInner = Value;
    LayoutChanged();
}

void TCustomPanel::SetBevelOuter(TBevelCut Value)
{
    FPanelOuter = Value;
    LayoutChanged();
}

void TCustomPanel::SetBevelWidth(TBevelWidth Value)
{
    FPanelBevelWidth = std::max(Value, 1);
    LayoutChanged();
}

void TCustomPanel::SetBorderWidth(TBorderWidth Value)
{
    FPanelBorderWidth = std::max(Value, 0);
    LayoutChanged();
}

void TCustomPanel::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomPanel::AdjustClientRect(TRect& Rect) const
{
    TCustomControl::AdjustClientRect(Rect);
    const int Size = FPanelBorderWidth + BevelSize();
    InflateRect(&Rect, -Size, -Size);
}

void TCustomPanel::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomPanel::Paint()
{
    static constexpr UINT Alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
    static constexpr UINT Vertical[] = {DT_TOP, DT_BOTTOM, DT_VCENTER};
    TRect Area = ClientRect();
    TCanvas& Target = *Canvas();
    Target.Brush()->SetStyle(bsSolid);
    DrawBevel(Target, Area, FPanelOuter, FPanelBevelWidth);
    InflateRect(&Area, -FPanelBorderWidth, -FPanelBorderWidth);
    DrawBevel(Target, Area, FPanelInner, FPanelBevelWidth);
    Target.Brush()->SetColor(Color());
    Target.FillRect(Area);
    if (!ShowCaption() || Caption().empty())
        return;
    Target.Font()->Assign(Font());
    if (!Enabled())
        Target.Font()->SetColor(clGrayText);
    Target.Brush()->SetStyle(bsClear);
    Target.DrawText(Caption(), Area,
                    DrawTextBiDiModeFlags(DT_EXPANDTABS | DT_SINGLELINE | Vertical[VerticalAlignment()] |
                                          Alignments[Alignment()]));
}

void TCustomPanel::Dispatch(TMessage& Message)
{
    TCustomControl::Dispatch(Message);
    switch (Message.Msg) {
    case CM_BORDERCHANGED:
    case CM_CTL3DCHANGED:
    case CM_TEXTCHANGED:
    case CM_ENABLEDCHANGED:
    case WM_SIZE:
        Invalidate();
        break;
    default:
        break;
    }
}

void TFlowPanel::SetAutoWrap(bool Value)
{
    FAutoWrap = Value;
    Realign();
}

void TFlowPanel::SetFlowStyle(TFlowStyle Value)
{
    FFlowStyle = Value;
    Realign();
}

void TFlowPanel::AlignControls(TControl*, TRect& Rect)
{
    const bool InColumns = FFlowStyle >= fsTopBottomLeftRight;
    const bool FromRight = FFlowStyle == fsRightLeftTopBottom || FFlowStyle == fsRightLeftBottomTop ||
                           FFlowStyle == fsTopBottomRightLeft || FFlowStyle == fsBottomTopRightLeft;
    const bool FromBottom = FFlowStyle == fsLeftRightBottomTop || FFlowStyle == fsRightLeftBottomTop ||
                            FFlowStyle == fsBottomTopLeftRight || FFlowStyle == fsBottomTopRightLeft;
    AdjustClientRect(Rect);
    const int Room = InColumns ? RectHeight(Rect) : RectWidth(Rect);
    int Along = 0;
    int Across = 0;
    int Thickness = 0;
    for (int I = 0; I < ControlCount(); ++I) {
        TControl& Control = *Controls(I);
        if (!Control.Visible())
            continue;
        const int Length = InColumns ? Control.Height() : Control.Width();
        if (FAutoWrap && Along > 0 && Along + Length > Room) {
            Across += Thickness;
            Along = Thickness = 0;
        }
        const int X = InColumns ? Across : Along;
        const int Y = InColumns ? Along : Across;
        const auto Left = static_cast<int>(FromRight ? Rect.right - X - Control.Width() : Rect.left + X);
        const auto Top = static_cast<int>(FromBottom ? Rect.bottom - Y - Control.Height() : Rect.top + Y);
        Control.SetBounds(Left, Top, Control.Width(), Control.Height());
        Along += Length;
        Thickness = std::max(Thickness, InColumns ? Control.Width() : Control.Height());
    }
}

TControlBar::TControlBar(TComponent* Owner) : TCustomControl(Owner), FPicture(std::make_unique<TPicture>())
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks, csMenuEvents};
    FDockSite = true;
    SetBounds(0, 0, 100, 50);
    FPicture->OnChange = {this, &TControlBar::PictureChanged};
}

TControlBar::~TControlBar() = default;

void TControlBar::SetBevelEdges(TBevelEdges Value)
{
    FBandEdges = Value;
    Invalidate();
}

void TControlBar::SetBevelKind(TBevelKind Value)
{
    FBandBevel = Value;
    Invalidate();
}

void TControlBar::Paint()
{
    TRect Area = ClientRect();
    if (FBandBevel != bkNone)
        DrawEdge(Canvas()->Handle(), &Area, EDGE_ETCHED, BF_RECT);
    if (TGraphic* const Graphic = FPicture->Graphic())
        Graphic->Draw(*Canvas(), Area);
    for (int I = 0; I < ControlCount(); ++I) {
        const TControl& Band = *Controls(I);
        if (!Band.Visible())
            continue;
        TRect Frame{Band.Left() - 11, Band.Top() - 2, Band.Left() + Band.Width() + 2,
                    Band.Top() + Band.Height() + 2};
        DrawEdge(Canvas()->Handle(), &Frame, BDR_RAISEDINNER, BF_RECT);
        TRect Grip{Frame.left + 3, Frame.top + 2, Frame.left + 6, Frame.bottom - 2};
        DrawEdge(Canvas()->Handle(), &Grip, BDR_RAISEDINNER, BF_RECT);
    }
    if (OnPaint)
        OnPaint(this);
}

TScrollBox::TScrollBox(TComponent* Owner) : TScrollingWinControl(Owner)
{
    FControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 185, 41);
}

void TScrollBox::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TScrollBox::CreateParams(TCreateParams& Params)
{
    TScrollingWinControl::CreateParams(Params);
    if (FBorderStyle == bsSingle && Ctl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}
