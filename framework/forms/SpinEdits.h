// Numbers to enter or to step through.
#pragma once

#include "framework/forms/CustomControl.h"
#include "framework/forms/Edits.h"
#include "framework/forms/Timers.h"

// Two arrows, one above the other.
class TSpinButton : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TSpinButton(TComponent* Owner);

    TWinControl* FocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    void Notification(TComponent* Component, TOperation Operation) override;

    TNotifyEvent OnDownClick;
    TNotifyEvent OnUpClick;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    enum class THalf { None, Upper, Lower };
    void DrawHalf(THalf Half, TRect Area);
    void Press();
    void Repeat(TObject*);

    TWinControl* FFocusControl = nullptr;
    THalf FPressed = THalf::None;
    std::unique_ptr<TTimer> FRepeat;
};

// An edit for a number with a spin button inside. The range is in force when
// MaxValue and MinValue differ.
class TSpinEdit : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    explicit TSpinEdit(TComponent* Owner);

    OBX_PROPERTY(bool, EditorEnabled, true)
    OBX_PROPERTY(int, Increment, 1)
    OBX_PROPERTY(int, MaxValue, 0)
    OBX_PROPERTY(int, MinValue, 0)
public:
    // MinValue where the text is no number.
    int Value() const;
    void SetValue(int NewValue);
    TSpinButton* Button() const { return FButton; }
    void GetChildren(const std::function<void(TComponent*)>&, TComponent*) override {}
    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void KeyDown(uint16_t& Key, TShiftState Shift) override;
    void KeyPress(char& Key) override;

private:
    int InRange(int Candidate) const;
    void PlaceButton();
    void UpClick(TObject*) { Step(FIncrement); }
    void DownClick(TObject*) { Step(-FIncrement); }
    void Step(int Change);

    TSpinButton* FButton;
};
