// Texts on forms: labels that the parent draws, and labels with a window.
#pragma once

#include "framework/forms/GraphicControl.h"
#include "framework/forms/WinControl.h"

OBX_ENUM(TEllipsisPosition, epNone, epPathEllipsis, epEndEllipsis, epWordEllipsis)
OBX_ENUM(TStaticBorderStyle, sbsNone, sbsSingle, sbsSunken)

// With AutoSize the label takes the size of its text, as soon as and as long as
// its parent has a window; while a form is only loaded, sizes stay as they are.
class TCustomLabel : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TCustomLabel(TComponent* Owner);

    OBX_PROPERTY(bool, ShowAccelChar, true)
    OBX_PROPERTY(TTextLayout, Layout, tlTop)
    OBX_PROPERTY(TEllipsisPosition, EllipsisPosition, epNone)
public:
    TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    void SetAutoSize(bool Value) override;
    // The control that gets the focus when the label's mnemonic is pressed.
    TWinControl* FocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    // Written once it has been set.
    bool Transparent() const { return FTransparent; }
    void SetTransparent(bool Value);
    bool IsTransparentStored() const { return FTransparentSet; }
    bool WordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value);

    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;

protected:
    void Dispatch(TMessage& Message) override;
    void PropertyChanged() override;
    void Paint() override;
    // Takes the size of the text, where that is asked for and can be measured.
    virtual void AdjustBounds();

private:
    UINT TextFlags() const;
    void DrawLabelText(TRect& Area, UINT Flags);
    void DialogChar(TMessage& Message);

    TAlignment FAlignment = taLeftJustify;
    TWinControl* FFocusControl = nullptr;
    bool FTransparent = false;
    bool FTransparentSet = false;
    bool FWordWrap = false;
    bool FMeasured = false;
};

class TLabel : public TCustomLabel {
    OBX_CLASS(TCustomLabel)
public:
    using TCustomLabel::TCustomLabel;
};

class TCustomStaticText : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomStaticText(TComponent* Owner);

    TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    void SetAutoSize(bool Value) override;
    TStaticBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TStaticBorderStyle Value);
    TWinControl* FocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    bool ShowAccelChar() const { return FShowAccelChar; }
    void SetShowAccelChar(bool Value);
    OBX_PROPERTY(bool, Transparent, true)

public:
    void Notification(TComponent* Component, TOperation Operation) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void Dispatch(TMessage& Message) override;

private:
    void AdjustBounds();

    TAlignment FAlignment = taLeftJustify;
    TStaticBorderStyle FBorderStyle = sbsNone;
    TWinControl* FFocusControl = nullptr;
    bool FShowAccelChar = true;
};

class TStaticText : public TCustomStaticText {
    OBX_CLASS(TCustomStaticText)
public:
    using TCustomStaticText::TCustomStaticText;
};
