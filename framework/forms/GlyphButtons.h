// Buttons with a picture beside their text.
#pragma once

#include "framework/forms/GraphicControl.h"
#include "framework/forms/PushButtons.h"

OBX_ENUM(TButtonLayout, blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom)
OBX_ENUM(TButtonState, bsUp, bsDisabled, bsDown, bsExclusive)
OBX_ENUM(TButtonStyle, bsAutoDetect, bsWin31, bsNew)
OBX_ENUM(TBitBtnKind, bkCustom, bkOK, bkCancel, bkHelp, bkYes, bkNo, bkClose, bkAbort, bkRetry, bkIgnore,
         bkAll)

using TNumGlyphs = int8_t;

// Where picture and text go. A margin of -1 centres both, a spacing of -1 puts
// the text in the middle of what the picture leaves. Pixels.
struct TGlyphLayout {
    TButtonLayout Layout = blGlyphLeft;
    int Margin = -1;
    int Spacing = 4;
};

// Draws picture and text into Client. The picture holds NumGlyphs pictures side
// by side: normal, disabled, pressed, stuck; its lower left pixel's colour is
// transparent.
void DrawButtonGlyph(TCanvas& Canvas, const TRect& Client, const TPoint& Offset, TBitmap& Glyph,
                     int NumGlyphs, const std::string& Caption, const TGlyphLayout& Layout,
                     TButtonState State, UINT BiDiFlags);

// Kinds other than bkCustom bring a caption and a modal result of their own,
// which form files need not name.
class TBitBtn : public TCustomButton {
    OBX_CLASS(TCustomButton)
public:
    explicit TBitBtn(TComponent* Owner);
    ~TBitBtn() override;

    void Click() override;

    TBitmap* Glyph() const { return FGlyph.get(); }
    void SetGlyph(TBitmap* Value) { FGlyph->Assign(Value); }
    TBitBtnKind Kind() const;
    void SetKind(TBitBtnKind Value);
    OBX_PROPERTY(TButtonLayout, Layout, blGlyphLeft)
    OBX_PROPERTY(int, Margin, -1)
    OBX_PROPERTY(TNumGlyphs, NumGlyphs, 1)
    OBX_PROPERTY(int, Spacing, 4)
    OBX_PROPERTY(TButtonStyle, Style, bsAutoDetect)

public:
    bool IsCustom() const { return Kind() == bkCustom; }
    bool IsCustomCaption() const;

protected:
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void PropertyChanged() override { Invalidate(); }
    void SetButtonStyle(bool IsDefault) override;

private:
    void DrawItem(const DRAWITEMSTRUCT& Item);
    void GlyphChanged(TObject*) { Invalidate(); }

    std::unique_ptr<TBitmap> FGlyph;
    std::unique_ptr<TCanvas> FCanvas;
    TBitBtnKind FKind = bkCustom;
    bool FIsDefault = false;
};

// A button without a window and focus. Buttons of one group in one container
// stay down by turns.
class TSpeedButton : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TSpeedButton(TComponent* Owner);
    ~TSpeedButton() override;

    TBitmap* Glyph() const { return FGlyph.get(); }
    void SetGlyph(TBitmap* Value) { FGlyph->Assign(Value); }
    bool AllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool Value);
    bool Down() const { return FDown; }
    void SetDown(bool Value);
    int GroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);
    OBX_PROPERTY(bool, Flat, false)
    OBX_PROPERTY(TButtonLayout, Layout, blGlyphLeft)
    OBX_PROPERTY(int, Margin, -1)
    OBX_PROPERTY(TNumGlyphs, NumGlyphs, 1)
    OBX_PROPERTY(int, Spacing, 4)
    OBX_PROPERTY(bool, Transparent, true)
    OBX_PROPERTY(int, ImageIndex, -1)

public:
    void Loaded() override;

protected:
    void ActionChange(TBasicAction* Sender, bool CheckDefaults) override;
    void Dispatch(TMessage& Message) override;
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    void UpdateExclusive();
    void ButtonPressed(const TMessage& Message);
    void GlyphChanged(TObject*) { Invalidate(); }
    void SetState(TButtonState Value);

    std::unique_ptr<TBitmap> FGlyph;
    int FGroupIndex = 0;
    bool FAllowAllUp = false;
    bool FDown = false;
    bool FDragging = false;
    bool FMouseInControl = false;
    TButtonState FState = bsUp;
};
