// Panels and other plain containers.
#pragma once

#include "framework/forms/CustomControl.h"
#include "framework/forms/ScrollControls.h"

// A rectangle with a bevel, a caption in the middle and controls on it.
class TCustomPanel : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TCustomPanel(TComponent* Owner);

    OBX_PROPERTY(TAlignment, Alignment, taCenter)
    OBX_PROPERTY(TVerticalAlignment, VerticalAlignment, taVerticalCenter)
    OBX_PROPERTY(bool, ShowCaption, true)
    OBX_PROPERTY(bool, FullRepaint, true)
    OBX_PROPERTY(bool, Locked, false)
public:
    // These two shadow the bevel of other windowed controls: a panel draws its own.
    TBevelCut BevelInner() const { return FPanelInner; }
    void SetBevelInner(TBevelCut Value);
    TBevelCut BevelOuter() const { return FPanelOuter; }
    void SetBevelOuter(TBevelCut Value);
    TBevelWidth BevelWidth() const { return FPanelBevelWidth; }
    void SetBevelWidth(TBevelWidth Value);
    // Pixels between the two bevels.
    TBorderWidth BorderWidth() const { return FPanelBorderWidth; }
    void SetBorderWidth(TBorderWidth Value);
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);

protected:
    void AdjustClientRect(TRect& Rect) const override;
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void Paint() override;

private:
    int BevelSize() const;
    void LayoutChanged();

    TBevelCut FPanelInner = bvNone;
    TBevelCut FPanelOuter = bvRaised;
    TBevelWidth FPanelBevelWidth = 1;
    TBorderWidth FPanelBorderWidth = 0;
    TBorderStyle FBorderStyle = bsNone;
};

class TPanel : public TCustomPanel {
    OBX_CLASS(TCustomPanel)
public:
    using TCustomPanel::TCustomPanel;
};

OBX_ENUM(TFlowStyle, fsLeftRightTopBottom, fsRightLeftTopBottom, fsLeftRightBottomTop, fsRightLeftBottomTop,
         fsTopBottomLeftRight, fsBottomTopLeftRight, fsTopBottomRightLeft, fsBottomTopRightLeft)

// Places its controls one after the other, in rows or columns, in the order that
// they came.
class TFlowPanel : public TCustomPanel {
    OBX_CLASS(TCustomPanel)
public:
    using TCustomPanel::TCustomPanel;

    bool AutoWrap() const { return FAutoWrap; }
    void SetAutoWrap(bool Value);
    TFlowStyle FlowStyle() const { return FFlowStyle; }
    void SetFlowStyle(TFlowStyle Value);

protected:
    void AlignControls(TControl* AControl, TRect& Rect) override;

private:
    bool FAutoWrap = true;
    TFlowStyle FFlowStyle = fsLeftRightTopBottom;
};

OBX_EVENT(TBandMoveEvent, TObject*, TControl*, TRect&)
OBX_EVENT(TBandDragEvent, TObject*, TControl*, bool&)
OBX_EVENT(TBandInfoEvent, TObject*, TControl*, TRect&, int&, int&)
OBX_EVENT(TBandPaintEvent, TObject*, TControl*, TCanvas*, TRect&, int&)

// A place for tool bars. Bands are drawn around the controls; they are not
// dragged by the user.
class TControlBar : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TControlBar(TComponent* Owner);
    ~TControlBar() override;

    OBX_PROPERTY(bool, AutoDock, true)
    OBX_PROPERTY(bool, AutoDrag, true)
    OBX_PROPERTY(int, RowSize, 26)
    OBX_PROPERTY(bool, RowSnap, true)
public:
    TBevelEdges BevelEdges() const { return FBandEdges; }
    void SetBevelEdges(TBevelEdges Value);
    TBevelKind BevelKind() const { return FBandBevel; }
    void SetBevelKind(TBevelKind Value);
    TPicture* Picture() const { return FPicture.get(); }
    void SetPicture(TPicture* Value) { FPicture->Assign(Value); }

    TBandDragEvent OnBandDrag;
    TBandInfoEvent OnBandInfo;
    TBandMoveEvent OnBandMove;
    TBandPaintEvent OnBandPaint;
    TNotifyEvent OnPaint;

protected:
    void Paint() override;

private:
    void PictureChanged(TObject*) { Invalidate(); }

    TBevelEdges FBandEdges{beLeft, beTop, beRight, beBottom};
    TBevelKind FBandBevel = bkTile;
    std::unique_ptr<TPicture> FPicture;
};

// A container whose controls may lie beyond its edges.
class TScrollBox : public TScrollingWinControl {
    OBX_CLASS(TScrollingWinControl)
public:
    explicit TScrollBox(TComponent* Owner);

    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);

protected:
    void CreateParams(TCreateParams& Params) override;

private:
    TBorderStyle FBorderStyle = bsSingle;
};
