// Fields for text of one line and of several.
#pragma once

#include "framework/forms/WinControl.h"
#include "framework/rtl/Strings.h"

OBX_ENUM(TEditCharCase, ecNormal, ecUpperCase, ecLowerCase)
OBX_ENUM(TScrollStyle, ssNone, ssHorizontal, ssVertical, ssBoth)

// Positions and lengths of the selection are counted as the system's edit window
// counts them, from 0; they can be asked for only with a window.
class TCustomEdit : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCustomEdit(TComponent* Owner);

    virtual void Clear() { SetText(""); }
    virtual void SelectAll();
    void ClearSelection();
    void CopyToClipboard();
    void CutToClipboard();
    void PasteFromClipboard();
    void Undo();
    virtual int SelStart();
    virtual void SetSelStart(int Value);
    virtual int SelLength();
    virtual void SetSelLength(int Value);
    void SetSelText(const std::string& Value);
    // The user has changed the text since it was last set to false.
    bool Modified() const;
    void SetModified(bool Value);

    // Published by those that want it.
    TAlignment Alignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    OBX_PROPERTY(bool, AutoSelect, true)
public:
    void SetAutoSize(bool Value) override;
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    TEditCharCase CharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    bool HideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value);
    // Characters; 0 for no limit.
    int MaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    bool NumbersOnly() const { return FNumbersOnly; }
    void SetNumbersOnly(bool Value);
    bool OEMConvert() const { return FOEMConvert; }
    void SetOEMConvert(bool Value);
    // Shown instead of every character; 0 for none.
    char16_t PasswordChar() const { return FPasswordChar; }
    void SetPasswordChar(char16_t Value);
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value);
    // Shown in grey while there is no text.
    const std::string& TextHint() const { return FTextHint; }
    void SetTextHint(const std::string& Value);

    TNotifyEvent OnChange;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    void Dispatch(TMessage& Message) override;
    virtual void Change();
    virtual bool IsMultiLine() const { return false; }

private:
    void AdjustHeight();

    TAlignment FAlignment = taLeftJustify;
    TBorderStyle FBorderStyle = bsSingle;
    TEditCharCase FCharCase = ecNormal;
    bool FHideSelection = true;
    int FMaxLength = 0;
    bool FNumbersOnly = false;
    bool FOEMConvert = false;
    char16_t FPasswordChar = 0;
    bool FReadOnly = false;
    std::string FTextHint;
    bool FModified = false;
    bool FCreatingWnd = false;
};

class TEdit : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    using TCustomEdit::TCustomEdit;
};

// An edit with the events of a button at either end. The buttons' own properties
// stay as the form file has them; the buttons are not shown.
class TButtonedEdit : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    using TCustomEdit::TCustomEdit;

    TNotifyEvent OnLeftButtonClick;
    TNotifyEvent OnRightButtonClick;
};

// Lines are what line breaks separate; where the window wraps long ones makes no
// difference.
class TCustomMemo : public TCustomEdit {
    OBX_CLASS(TCustomEdit)
public:
    explicit TCustomMemo(TComponent* Owner);
    ~TCustomMemo() override;

    TStrings* Lines() const;
    void SetLines(TStrings* Value) { Lines()->Assign(Value); }
    TScrollStyle ScrollBars() const { return FScrollBars; }
    void SetScrollBars(TScrollStyle Value);
    OBX_PROPERTY(bool, WantReturns, true)
    OBX_PROPERTY(bool, WantTabs, false)
public:
    bool WordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value);

protected:
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    bool IsMultiLine() const override { return true; }

private:
    class TMemoLines;

    std::unique_ptr<TMemoLines> FLines;
    TScrollStyle FScrollBars = ssNone;
    bool FWordWrap = true;
};

class TMemo : public TCustomMemo {
    OBX_CLASS(TCustomMemo)
public:
    using TCustomMemo::TCustomMemo;
};
