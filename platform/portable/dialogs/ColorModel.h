// Colours as hue, luminance and saturation, in the numbers that the system shows.
#pragma once

#include "platform/portable/wingdi.h"

struct THls {
    static constexpr int Range = 240; // hue 0 to 239, the others 0 to 240
    static constexpr int NoHue = 160; // of a grey
    int Hue = 0, Lum = 0, Sat = 0;
};

THls ToHls(COLORREF Color);
COLORREF ToColor(const THls& Hls);
