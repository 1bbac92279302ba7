#include "framework/forms/Colors.h"

#include "framework/forms/Idents.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Where two names have one value, the one that is written comes first.
constexpr TIdentMapEntry ColorNames[] = {
    {clBlack, "clBlack"},
    {clMaroon, "clMaroon"},
    {clGreen, "clGreen"},
    {clOlive, "clOlive"},
    {clNavy, "clNavy"},
    {clPurple, "clPurple"},
    {clTeal, "clTeal"},
    {clGray, "clGray"},
    {clSilver, "clSilver"},
    {clRed, "clRed"},
    {clLime, "clLime"},
    {clYellow, "clYellow"},
    {clBlue, "clBlue"},
    {clFuchsia, "clFuchsia"},
    {clAqua, "clAqua"},
    {clWhite, "clWhite"},
    {clMoneyGreen, "clMoneyGreen"},
    {clSkyBlue, "clSkyBlue"},
    {clCream, "clCream"},
    {clMedGray, "clMedGray"},
    {clActiveBorder, "clActiveBorder"},
    {clActiveCaption, "clActiveCaption"},
    {clAppWorkSpace, "clAppWorkSpace"},
    {clBackground, "clBackground"},
    {clBtnFace, "clBtnFace"},
    {clBtnHighlight, "clBtnHighlight"},
    {clBtnShadow, "clBtnShadow"},
    {clBtnText, "clBtnText"},
    {clCaptionText, "clCaptionText"},
    {clDefault, "clDefault"},
    {clGradientActiveCaption, "clGradientActiveCaption"},
    {clGradientInactiveCaption, "clGradientInactiveCaption"},
    {clGrayText, "clGrayText"},
    {clHighlight, "clHighlight"},
    {clHighlightText, "clHighlightText"},
    {clHotLight, "clHotLight"},
    {clInactiveBorder, "clInactiveBorder"},
    {clInactiveCaption, "clInactiveCaption"},
    {clInactiveCaptionText, "clInactiveCaptionText"},
    {clInfoBk, "clInfoBk"},
    {clInfoText, "clInfoText"},
    {clMenu, "clMenu"},
    {clMenuBar, "clMenuBar"},
    {clMenuHighlight, "clMenuHighlight"},
    {clMenuText, "clMenuText"},
    {clNone, "clNone"},
    {clScrollBar, "clScrollBar"},
    {cl3DDkShadow, "cl3DDkShadow"},
    {cl3DLight, "cl3DLight"},
    {clWindow, "clWindow"},
    {clWindowFrame, "clWindowFrame"},
    {clWindowText, "clWindowText"},
    {clLtGray, "clLtGray"},
    {clDkGray, "clDkGray"},
    {clBtnFace, "cl3DFace"},
    {clBtnHighlight, "cl3DHilight"},
    {clBtnShadow, "cl3DShadow"},
    {clBtnHighlight, "clBtnHilight"},
};

} // namespace

const TIntegerIdents ColorIdents{&IdentToColor, &ColorToIdent};

bool ColorToIdent(int Color, std::string& Ident)
{
    return ValueToIdent(std::begin(ColorNames), std::end(ColorNames), Color, Ident);
}

bool IdentToColor(std::string_view Ident, int& Color)
{
    return IdentToValue(std::begin(ColorNames), std::end(ColorNames), Ident, Color);
}

std::string ColorToString(TColor Color)
{
    std::string Result;
    if (ColorToIdent(Color, Result))
        return Result;
    static constexpr char Digits[] = "0123456789ABCDEF";
    Result = "$";
    for (int Shift = 28; Shift >= 0; Shift -= 4)
        Result += Digits[static_cast<uint32_t>(Color) >> Shift & 15];
    return Result;
}

TColor StringToColor(std::string_view Text)
{
    int Color = 0;
    if (!IdentToColor(Text, Color))
        Color = static_cast<int>(static_cast<uint32_t>(StrToInt64(std::string(Text))));
    return static_cast<TColor>(Color);
}

COLORREF ColorToRGB(TColor Color)
{
    if ((static_cast<uint32_t>(Color) & 0xFF000000) == 0xFF000000)
        return GetSysColor(Color & 0xFF);
    return static_cast<COLORREF>(Color & 0xFFFFFF);
}

void GetColorValues(const std::function<void(const std::string&)>& Visit)
{
    for (const TIdentMapEntry& Entry : ColorNames) {
        if (Entry.Value == clLtGray && std::string_view(Entry.Name) == "clLtGray")
            break;
        Visit(Entry.Name);
    }
}
