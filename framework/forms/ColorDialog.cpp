#include "framework/forms/ColorDialog.h"

#include <array>

#include "framework/rtl/Convert.h"

namespace {

// In the order of TColorDialogOption.
constexpr DWORD ColorFlags[] = {CC_FULLOPEN, CC_PREVENTFULLOPEN, CC_SHOWHELP, CC_SOLIDCOLOR, CC_ANYCOLOR};

constexpr COLORREF White = 0xFFFFFF;
using TCustomColors = std::array<COLORREF, 16>;

std::string CustomName(size_t Index)
{
    return std::string("Color") + static_cast<char>('A' + Index);
}

TCustomColors ReadColors(const TStrings& Lines)
{
    TCustomColors Result;
    for (size_t Index = 0; Index < Result.size(); ++Index) {
        const std::string Value = Lines.Values(CustomName(Index));
        Result[Index] = Value.empty() ? White : static_cast<COLORREF>(StrToInt("$" + Value)) & White;
    }
    return Result;
}

} // namespace

const TMetaClass& TColorDialog::MetaClass()
{
    static const TMetaClass Class("TColorDialog", &TCommonDialog::MetaClass(), CreateComponent<TColorDialog>,
                                  {
                                      OBX_ROW(TColorDialog, Color).Default(clBlack),
                                      OBX_ROW(TColorDialog, CustomColors),
                                      OBX_ROW(TColorDialog, Options).Default(TColorDialogOptions{}),
                                  });
    return Class;
}

bool TColorDialog::Execute()
{
    TCustomColors Custom = ReadColors(*FCustomColors);
    CHOOSECOLORA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = OwnerWindow();
    Data.rgbResult = ColorToRGB(FColor);
    Data.lpCustColors = Custom.data();
    Data.Flags = FlagsOf(FOptions, ColorFlags) | CC_RGBINIT | CC_ENABLEHOOK;
    Data.lpfnHook = &HookProc;
    if (RunModal([&] { return ChooseColorA(&Data) != FALSE; }) != TDialogEnd::Chosen)
        return false;
    // A colour of the system stays one when it has not been changed.
    if (Data.rgbResult != ColorToRGB(FColor))
        FColor = static_cast<TColor>(Data.rgbResult);
    for (size_t Index = 0; Index < Custom.size(); ++Index)
        FCustomColors->SetValue(CustomName(Index), IntToHex(static_cast<unsigned>(Custom[Index] & White), 6));
    return true;
}
