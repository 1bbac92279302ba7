// Containers that scroll: forms, frames and scroll boxes.
#pragma once

#include <memory>

#include "framework/forms/CustomControl.h"

class TScrollingWinControl;

// One scroll bar of a container; its range is that of the controls inside when
// AutoScroll is on.
class TControlScrollBar : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    TControlScrollBar(TScrollingWinControl* Control, TScrollBarKind Kind) : FControl(Control), FKind(Kind) {}

    void Assign(const TPersistent* Source) override;
    TPersistent* GetOwner() const override;
    TScrollBarKind Kind() const { return FKind; }
    bool IsScrollBarVisible() const;
    // The greatest Position.
    int ScrollPos() const { return Visible() ? FPosition : 0; }
    bool IsRangeStored() const;
    bool IsIncrementStored() const { return !FSmooth; }

    // Published. Pixels.
    int ButtonSize() const { return FButtonSize; }
    void SetButtonSize(int Value) { FButtonSize = Value; }
    TColor Color() const { return FColor; }
    void SetColor(TColor Value) { FColor = Value; }
    int16_t Increment() const { return FIncrement; }
    void SetIncrement(int16_t Value) { FIncrement = Value; }
    uint16_t Margin() const { return FMargin; }
    void SetMargin(uint16_t Value) { FMargin = Value; }
    bool ParentColor() const { return FParentColor; }
    void SetParentColor(bool Value) { FParentColor = Value; }
    int Position() const { return FPosition; }
    void SetPosition(int Value);
    int Range() const { return FRange; }
    void SetRange(int Value);
    bool Smooth() const { return FSmooth; }
    void SetSmooth(bool Value) { FSmooth = Value; }
    int Size() const { return FSize; }
    void SetSize(int Value) { FSize = Value; }
    TScrollBarStyle Style() const { return FStyle; }
    void SetStyle(TScrollBarStyle Value) { FStyle = Value; }
    int ThumbSize() const { return FThumbSize; }
    void SetThumbSize(int Value) { FThumbSize = Value; }
    bool Tracking() const { return FTracking; }
    void SetTracking(bool Value) { FTracking = Value; }
    bool Visible() const { return FVisible; }
    void SetVisible(bool Value);

private:
    friend class TScrollingWinControl;
    void CalcAutoRange();
    void ScrollMessage(const TMessage& Message);
    void Update(bool ControlHorz, bool ControlVert);
    int ControlSize(bool ControlHorz, bool ControlVert) const;
    void DoSetRange(int Value);

    TScrollingWinControl* FControl;
    TScrollBarKind FKind;
    int FButtonSize = 0;
    TColor FColor = clBtnHighlight;
    int16_t FIncrement = 8;
    int16_t FPageIncrement = 80;
    uint16_t FMargin = 0;
    bool FParentColor = true;
    int FPosition = 0;
    int FRange = 0;
    int FCalcRange = 0;
    bool FSmooth = false;
    int FSize = 0;
    TScrollBarStyle FStyle = ssRegular;
    int FThumbSize = 0;
    bool FTracking = false;
    bool FVisible = true;
};

class TScrollingWinControl : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TScrollingWinControl(TComponent* Owner);
    ~TScrollingWinControl() override;

    void ScrollInView(TControl* AControl);

    // Published by those that want it.
    bool AutoScroll() const { return FAutoScroll; }
    void SetAutoScroll(bool Value);
    TControlScrollBar* HorzScrollBar() const { return FHorzScrollBar.get(); }
    void SetHorzScrollBar(TControlScrollBar* Value) { FHorzScrollBar->Assign(Value); }
    TControlScrollBar* VertScrollBar() const { return FVertScrollBar.get(); }
    void SetVertScrollBar(TControlScrollBar* Value) { FVertScrollBar->Assign(Value); }

protected:
    friend class TControlScrollBar;
    virtual bool AutoScrollEnabled() const { return !AutoSize(); }
    virtual void AutoScrollInView(TControl* AControl);
    void AdjustClientRect(TRect& Rect) const override;
    void AlignControls(TControl* AControl, TRect& Rect) override;
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void ChangeScale(int M, int D) override;
    void Dispatch(TMessage& Message) override;
    virtual void Resizing(TWindowState) {}
    void CalcAutoRange();
    void UpdateScrollBars();

private:
    bool FAutoScroll = true;
    bool FUpdatingScrollBars = false;
    bool FSizing = false;
    int FAutoRangeCount = 0;
    std::unique_ptr<TControlScrollBar> FHorzScrollBar;
    std::unique_ptr<TControlScrollBar> FVertScrollBar;
};
