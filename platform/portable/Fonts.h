// Fonts as Pango draws them. A face is shared by all fonts of equal description.
// Widths depend on the installed typefaces only: hinting, kerning and the user's
// font settings are out of play.
#pragma once

// First: it defines TRUE and FALSE, which the library then leaves alone.
#include "platform/portable/Gdi.h"

#include <memory>
#include <pango/pangocairo.h>
#include <string>
#include <string_view>

struct TFontFace {
    ~TFontFace();
    PangoFontDescription* Description = nullptr;
    PangoAttrList* Attributes = nullptr;
    int Em = 0; // all in pixels
    int Ascent = 0;
    int Descent = 0;
    int AverageWidth = 0;
    int MaximumWidth = 0;
    int AsciiWidths[128] = {}; // -1: not measured yet
    bool FixedPitch = false;

    int Height() const { return Ascent + Descent; }
};

// The face of the font that the context holds; never null.
std::shared_ptr<TFontFace> FaceOf(HDC Dc);
std::shared_ptr<TFontFace> FaceOf(HFONT Font);

enum class TDirection { LeftToRight, RightToLeft };

struct TLayoutDeleter {
    void operator()(PangoLayout* Layout) const { g_object_unref(Layout); }
};
using TLayout = std::unique_ptr<PangoLayout, TLayoutDeleter>;

// One paragraph of valid UTF-8 ready to measure or draw.
TLayout MakeLayout(const TFontFace& Face, std::string_view Text, TDirection Direction);

// Pixels of one line of text, which need not be valid UTF-8.
int TextWidth(TFontFace& Face, std::string_view Text);

// Text without control characters and with every wrong byte replaced.
std::string DrawableText(std::string_view Text);
