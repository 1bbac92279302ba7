// The system's dialog for choosing a font.
#pragma once

#include "framework/forms/CommonDialog.h"

OBX_ENUM(TFontDialogDevice, fdScreen, fdPrinter, fdBoth)
OBX_ENUM(TFontDialogOption, fdAnsiOnly, fdTrueTypeOnly, fdEffects, fdFixedPitchOnly, fdForceFontExist,
         fdNoFaceSel, fdNoOEMFonts, fdNoSimulations, fdNoSizeSel, fdNoStyleSel, fdNoVectorFonts, fdShowHelp,
         fdWysiwyg, fdLimitSize, fdScalableOnly, fdApplyButton)
OBX_SET(TFontDialogOptions, TFontDialogOption)
OBX_EVENT(TFDApplyEvent, TObject*, HWND)

class TFontDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TFontDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    bool Execute() override;

    // Its colour is chosen with fdEffects only.
    TFont* Font() const { return FFont.get(); }
    void SetFont(TFont* Value) { FFont->Assign(Value); }
    // Without a printer the screen's fonts are offered.
    OBX_PROPERTY(TFontDialogDevice, Device, fdScreen)
    // Points; 0 for no limit. With fdLimitSize.
    OBX_PROPERTY(int, MinFontSize, 0)
    OBX_PROPERTY(int, MaxFontSize, 0)
    OBX_PROPERTY(TFontDialogOptions, Options, (TFontDialogOptions{fdEffects}))

public:
    // The user wants to see the font, which is in Font by then and stays there.
    // Comes with fdApplyButton; the window is the dialog's.
    TFDApplyEvent OnApply;

protected:
    bool HookMessage(HWND HookWindow, TMessage& Msg) override;
    virtual void DoApply(HWND Window);

private:
    void TakeFont(const LOGFONTA& Chosen, COLORREF Color);

    std::unique_ptr<TFont> FFont = std::make_unique<TFont>();
};
