// Colours: 0x00BBGGRR, or 0xFF0000NN for the system's colour number NN, which
// follows the user's settings.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "framework/forms/Messages.h"
#include "framework/rtl/TypInfo.h"

enum TColor : int32_t {
    clBlack = 0x000000,
    clMaroon = 0x000080,
    clGreen = 0x008000,
    clOlive = 0x008080,
    clNavy = 0x800000,
    clPurple = 0x800080,
    clTeal = 0x808000,
    clGray = 0x808080,
    clSilver = 0xC0C0C0,
    clRed = 0x0000FF,
    clLime = 0x00FF00,
    clYellow = 0x00FFFF,
    clBlue = 0xFF0000,
    clFuchsia = 0xFF00FF,
    clAqua = 0xFFFF00,
    clLtGray = 0xC0C0C0,
    clDkGray = 0x808080,
    clWhite = 0xFFFFFF,
    clMoneyGreen = 0xC0DCC0,
    clSkyBlue = 0xF0CAA6,
    clCream = 0xF0FBFF,
    clMedGray = 0xA4A0A0,
    clNone = 0x1FFFFFFF,
    clDefault = 0x20000000,

    clSystemColor = static_cast<int32_t>(0xFF000000),
    clScrollBar = clSystemColor + COLOR_SCROLLBAR,
    clBackground = clSystemColor + COLOR_BACKGROUND,
    clActiveCaption = clSystemColor + COLOR_ACTIVECAPTION,
    clInactiveCaption = clSystemColor + COLOR_INACTIVECAPTION,
    clMenu = clSystemColor + COLOR_MENU,
    clWindow = clSystemColor + COLOR_WINDOW,
    clWindowFrame = clSystemColor + COLOR_WINDOWFRAME,
    clMenuText = clSystemColor + COLOR_MENUTEXT,
    clWindowText = clSystemColor + COLOR_WINDOWTEXT,
    clCaptionText = clSystemColor + COLOR_CAPTIONTEXT,
    clActiveBorder = clSystemColor + COLOR_ACTIVEBORDER,
    clInactiveBorder = clSystemColor + COLOR_INACTIVEBORDER,
    clAppWorkSpace = clSystemColor + COLOR_APPWORKSPACE,
    clHighlight = clSystemColor + COLOR_HIGHLIGHT,
    clHighlightText = clSystemColor + COLOR_HIGHLIGHTTEXT,
    clBtnFace = clSystemColor + COLOR_BTNFACE,
    clBtnShadow = clSystemColor + COLOR_BTNSHADOW,
    clGrayText = clSystemColor + COLOR_GRAYTEXT,
    clBtnText = clSystemColor + COLOR_BTNTEXT,
    clInactiveCaptionText = clSystemColor + COLOR_INACTIVECAPTIONTEXT,
    clBtnHighlight = clSystemColor + COLOR_BTNHIGHLIGHT,
    cl3DDkShadow = clSystemColor + COLOR_3DDKSHADOW,
    cl3DLight = clSystemColor + COLOR_3DLIGHT,
    clInfoText = clSystemColor + COLOR_INFOTEXT,
    clInfoBk = clSystemColor + COLOR_INFOBK,
    clHotLight = clSystemColor + 26,
    clGradientActiveCaption = clSystemColor + 27,
    clGradientInactiveCaption = clSystemColor + 28,
    clMenuHighlight = clSystemColor + 29,
    clMenuBar = clSystemColor + 30
};

// The name of a colour, "clRed"; false when it has none.
bool ColorToIdent(int Color, std::string& Ident);
// Letter case ignored; false for other texts.
bool IdentToColor(std::string_view Ident, int& Color);

// The name, or hexadecimal digits: "$00112233".
std::string ColorToString(TColor Color);
// A name or a number; EConvertError otherwise.
TColor StringToColor(std::string_view Text);
// The system's colours looked up.
COLORREF ColorToRGB(TColor Color);
// Calls Visit with the name of every colour, plain colours first.
void GetColorValues(const std::function<void(const std::string&)>& Visit);

extern const TIntegerIdents ColorIdents;
OBX_INTEGER(TColor, INT32_MIN, INT32_MAX, &ColorIdents)
