// The system's dialog for choosing a colour.
#pragma once

#include "framework/forms/CommonDialog.h"
#include "framework/rtl/Strings.h"

OBX_ENUM(TColorDialogOption, cdFullOpen, cdPreventFullOpen, cdShowHelp, cdSolidColor, cdAnyColor)
OBX_SET(TColorDialogOptions, TColorDialogOption)

class TColorDialog : public TCommonDialog {
    OBX_CLASS(TCommonDialog)
public:
    explicit TColorDialog(TComponent* Owner) : TCommonDialog(Owner) {}

    // Throws EConvertError for a custom colour that is no number.
    bool Execute() override;

    OBX_PROPERTY(TColor, Color, clBlack)
    OBX_PROPERTY(TColorDialogOptions, Options, {})
public:
    // Lines such as ColorA=FFFFFF, up to ColorP: hexadecimal blue, green and red.
    // Those that are missing are white; after a choice all are there.
    TStrings* CustomColors() const { return FCustomColors.get(); }
    void SetCustomColors(TStrings* Value) { FCustomColors->Assign(Value); }

private:
    std::unique_ptr<TStringList> FCustomColors = std::make_unique<TStringList>();
};
