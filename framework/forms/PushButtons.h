// Buttons with a window: push buttons, check boxes, radio buttons.
#pragma once

#include "framework/forms/WinControl.h"

// What all of them share: a notification of the window is a click, a mnemonic
// pressed with Alt is one too, and Checked follows the action.
class TButtonControl : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TButtonControl(TComponent* Owner);

    virtual bool Checked() const { return FChecked; }
    virtual void SetChecked(bool Value) { FChecked = Value; }
    bool IsCheckedStored() const;
    OBX_PROPERTY(bool, WordWrap, false)

public:
    void ActionChange(TBasicAction* Sender, bool CheckDefaults) override;

protected:
    friend class TButtonActionLink;

    std::unique_ptr<TControlActionLink> CreateActionLink() override;
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void PropertyChanged() override;
    // The window says that it was clicked.
    virtual void Clicked() { Click(); }

    bool FChecked = false;
};

class TButtonActionLink : public TWinControlActionLink {
    OBX_CLASS(TWinControlActionLink)
public:
    explicit TButtonActionLink(TButtonControl* Client);

    bool IsCheckedLinked() const override;
    void SetChecked(bool Value) override;

private:
    TButtonControl* FButton;
};

OBX_ENUM(TCustomButtonStyle, bsPushButton, bsCommandLink, bsSplitButton)

// A click sets the form's ModalResult to the button's before OnClick is called.
class TCustomButton : public TButtonControl {
    OBX_CLASS(TButtonControl)
public:
    explicit TCustomButton(TComponent* Owner);

    void Click() override;

    // Clicked by Esc.
    OBX_PROPERTY(bool, Cancel, false)
    OBX_PROPERTY(TModalResult, ModalResult, mrNone)
    // The second line of a command link.
    OBX_PROPERTY(std::string, CommandLinkHint, {})
    OBX_PROPERTY(int, ImageIndex, -1)
    OBX_PROPERTY(int, DisabledImageIndex, -1)
    OBX_PROPERTY(int, HotImageIndex, -1)
    OBX_PROPERTY(int, PressedImageIndex, -1)
    OBX_PROPERTY(int, SelectedImageIndex, -1)
    OBX_PROPERTY(bool, ElevationRequired, false)
    OBX_PROPERTY(TCustomButtonStyle, Style, bsPushButton)
public:
    // Clicked by Enter while no other button has the focus.
    bool Default() const { return FDefault; }
    void SetDefault(bool Value);

    TNotifyEvent OnDropDownClick;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    // Draws the button as the one that Enter clicks, or not.
    virtual void SetButtonStyle(bool IsDefault);

    bool FActive = false;

private:
    void DialogKey(TMessage& Message);
    void FocusChanged(const TMessage& Message);

    bool FDefault = false;
};

class TButton : public TCustomButton {
    OBX_CLASS(TCustomButton)
public:
    using TCustomButton::TCustomButton;
};

OBX_ENUM(TCheckBoxState, cbUnchecked, cbChecked, cbGrayed)

class TCustomCheckBox : public TButtonControl {
    OBX_CLASS(TButtonControl)
public:
    explicit TCustomCheckBox(TComponent* Owner);

    // Where the text stands: at the right of the box, or at the left.
    TLeftRight Alignment() const { return FAlignment; }
    void SetAlignment(TLeftRight Value);
    OBX_PROPERTY(bool, AllowGrayed, false)
public:
    bool Checked() const override { return FState == cbChecked; }
    void SetChecked(bool Value) override { SetState(Value ? cbChecked : cbUnchecked); }
    TCheckBoxState State() const { return FState; }
    // A change is a click.
    void SetState(TCheckBoxState Value);

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Clicked() override { Toggle(); }
    virtual void Toggle();

private:
    TLeftRight FAlignment = taRightJustify;
    TCheckBoxState FState = cbUnchecked;
};

class TCheckBox : public TCustomCheckBox {
    OBX_CLASS(TCustomCheckBox)
public:
    using TCustomCheckBox::TCustomCheckBox;
};

// Of the radio buttons in one container at most one is checked.
class TRadioButton : public TButtonControl {
    OBX_CLASS(TButtonControl)
public:
    explicit TRadioButton(TComponent* Owner);

    TLeftRight Alignment() const { return FAlignment; }
    void SetAlignment(TLeftRight Value);
    void SetChecked(bool Value) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;
    void Clicked() override;

private:
    void UncheckOthers();

    TLeftRight FAlignment = taRightJustify;
};
