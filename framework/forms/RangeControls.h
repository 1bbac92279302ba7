// Controls for a number in a range, and the field for a shortcut.
#pragma once

#include "framework/forms/CommonControls.h"

OBX_ENUM(TProgressBarOrientation, pbHorizontal, pbVertical)
OBX_ENUM(TProgressBarStyle, pbstNormal, pbstMarquee)
OBX_ENUM(TTrackBarOrientation, trHorizontal, trVertical)
OBX_ENUM(TTickMark, tmBottomRight, tmTopLeft, tmBoth)
OBX_ENUM(TTickStyle, tsNone, tsAuto, tsManual)
OBX_ENUM(TPositionToolTip, ptNone, ptTop, ptLeft, ptBottom, ptRight)
OBX_ENUM(TUDAlignButton, udLeft, udRight)
OBX_ENUM(TUDOrientation, udHorizontal, udVertical)
OBX_ENUM(THKModifier, hkShift, hkCtrl, hkAlt, hkExt)
OBX_SET(THKModifiers, THKModifier)
OBX_ENUM(THKInvalidKey, hcNone, hcShift, hcCtrl, hcAlt, hcShiftCtrl, hcShiftAlt, hcCtrlAlt, hcShiftCtrlAlt)
OBX_SET(THKInvalidKeys, THKInvalidKey)
OBX_ENUM(TUpDownDirection, updNone, updUp, updDown)

OBX_EVENT(TUDChangingEvent, TObject*, bool&)
OBX_EVENT(TUDChangingEventEx, TObject*, bool&, int, TUpDownDirection)
OBX_EVENT(TUDClickEvent, TObject*, TUpDownDirection)

class TProgressBar : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TProgressBar(TComponent* Owner);

    void StepIt() { StepBy(FStep); }
    void StepBy(int Delta) { SetPosition(FPosition + Delta); }

    // Published. Position is kept inside the range.
    int Min() const { return FMin; }
    void SetMin(int Value);
    int Max() const { return FMax; }
    void SetMax(int Value);
    int Position() const { return FPosition; }
    void SetPosition(int Value);
    OBX_PROPERTY(TColor, BarColor, clDefault)
    OBX_PROPERTY(TColor, BackgroundColor, clDefault)
    OBX_PROPERTY(int, MarqueeInterval, 10)
    OBX_PROPERTY(int, Step, 10)
public:
    TProgressBarOrientation Orientation() const { return FOrientation; }
    void SetOrientation(TProgressBarOrientation Value);
    bool Smooth() const { return FSmooth; }
    void SetSmooth(bool Value);
    TProgressBarStyle Style() const { return FStyle; }
    void SetStyle(TProgressBarStyle Value);

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;

private:
    void UpdateWindow();

    int FMin = 0;
    int FMax = 100;
    int FPosition = 0;
    TProgressBarOrientation FOrientation = pbHorizontal;
    bool FSmooth = false;
    TProgressBarStyle FStyle = pbstNormal;
};

class TTrackBar : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TTrackBar(TComponent* Owner);

    // Published.
    int Frequency() const { return FFrequency; }
    void SetFrequency(int Value) { SetNumber(FFrequency, Value); }
    int LineSize() const { return FLineSize; }
    void SetLineSize(int Value) { SetNumber(FLineSize, Value); }
    int Max() const { return FMax; }
    void SetMax(int Value);
    int Min() const { return FMin; }
    void SetMin(int Value);
    TTrackBarOrientation Orientation() const { return FOrientation; }
    void SetOrientation(TTrackBarOrientation Value);
    int PageSize() const { return FPageSize; }
    void SetPageSize(int Value) { SetNumber(FPageSize, Value); }
    int Position() const { return FPosition; }
    void SetPosition(int Value);
    int SelEnd() const { return FSelEnd; }
    void SetSelEnd(int Value) { SetNumber(FSelEnd, Value); }
    int SelStart() const { return FSelStart; }
    void SetSelStart(int Value) { SetNumber(FSelStart, Value); }
    bool ShowSelRange() const { return FShowSelRange; }
    void SetShowSelRange(bool Value) { SetFlag(FShowSelRange, Value); }
    bool SliderVisible() const { return FSliderVisible; }
    void SetSliderVisible(bool Value) { SetFlag(FSliderVisible, Value); }
    int ThumbLength() const { return FThumbLength; }
    void SetThumbLength(int Value) { SetNumber(FThumbLength, Value); }
    TTickMark TickMarks() const { return FTickMarks; }
    void SetTickMarks(TTickMark Value) { SetFlag(FTickMarks, Value); }
    TTickStyle TickStyle() const { return FTickStyle; }
    void SetTickStyle(TTickStyle Value) { SetFlag(FTickStyle, Value); }
    OBX_PROPERTY(TPositionToolTip, PositionToolTip, ptNone)
public:
    TNotifyEvent OnChange;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    virtual void Changed();

private:
    template<class T>
    void SetFlag(T& Flag, T Value)
    {
        if (Flag == Value)
            return;
        Flag = Value;
        RecreateWnd();
    }
    void SetNumber(int& Number, int Value);
    void UpdateWindow();

    int FFrequency = 1;
    int FLineSize = 1;
    int FMax = 10;
    int FMin = 0;
    TTrackBarOrientation FOrientation = trHorizontal;
    int FPageSize = 2;
    int FPosition = 0;
    int FSelEnd = 0;
    int FSelStart = 0;
    bool FShowSelRange = true;
    bool FSliderVisible = true;
    int FThumbLength = 20;
    TTickMark FTickMarks = tmBottomRight;
    TTickStyle FTickStyle = tsAuto;
};

// Arrows that change a number, which the associated control shows.
class TCustomUpDown : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomUpDown(TComponent* Owner);

    // Published by up-down controls.
    TUDAlignButton AlignButton() const { return FAlignButton; }
    void SetAlignButton(TUDAlignButton Value) { SetFlag(FAlignButton, Value); }
    bool ArrowKeys() const { return FArrowKeys; }
    void SetArrowKeys(bool Value) { SetFlag(FArrowKeys, Value); }
    TWinControl* Associate() const { return FAssociate; }
    void SetAssociate(TWinControl* Value);
    OBX_PROPERTY(int, Increment, 1)
public:
    int Max() const { return FMax; }
    void SetMax(int Value);
    int Min() const { return FMin; }
    void SetMin(int Value);
    TUDOrientation Orientation() const { return FOrientation; }
    void SetOrientation(TUDOrientation Value) { SetFlag(FOrientation, Value); }
    int Position() const { return FPosition; }
    void SetPosition(int Value);
    bool Thousands() const { return FThousands; }
    void SetThousands(bool Value) { SetFlag(FThousands, Value); }
    // The position goes on at the other end.
    bool Wrap() const { return FWrap; }
    void SetWrap(bool Value) { SetFlag(FWrap, Value); }
    TUDChangingEvent OnChanging;
    TUDChangingEventEx OnChangingEx;
    TUDClickEvent OnClick;

    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    template<class T>
    void SetFlag(T& Flag, T Value)
    {
        if (Flag == Value)
            return;
        Flag = Value;
        RecreateWnd();
    }
    void UpdateWindow();
    void ShowPosition();
    void Moved(int Delta);

    TUDAlignButton FAlignButton = udRight;
    bool FArrowKeys = true;
    TWinControl* FAssociate = nullptr;
    int FMax = 100;
    int FMin = 0;
    TUDOrientation FOrientation = udVertical;
    int FPosition = 0;
    bool FThousands = true;
    bool FWrap = false;
};

class TUpDown : public TCustomUpDown {
    OBX_CLASS(TCustomUpDown)
public:
    using TCustomUpDown::TCustomUpDown;
};

// A field in which the user presses a shortcut.
class TCustomHotKey : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomHotKey(TComponent* Owner);

    // Published by hot keys.
    TShortCut HotKey() const { return FHotKey; }
    void SetHotKey(TShortCut Value);
    OBX_PROPERTY(THKInvalidKeys, InvalidKeys, (THKInvalidKeys{hcNone, hcShift}))
    OBX_PROPERTY(THKModifiers, Modifiers, (THKModifiers{hkAlt}))
public:
    TNotifyEvent OnChange;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    void UpdateWindow();
    TShortCut Allowed(TShortCut Value) const;

    TShortCut FHotKey;
};

class THotKey : public TCustomHotKey {
    OBX_CLASS(TCustomHotKey)
public:
    using TCustomHotKey::TCustomHotKey;
};

void RegisterRangeControlClasses();
