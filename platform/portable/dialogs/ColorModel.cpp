#include "platform/portable/dialogs/ColorModel.h"

#include <algorithm>

namespace {

constexpr int Full = 255;
constexpr int Range = THls::Range;

// One part of a colour from two bounds of its parts and the hue seen from that part.
int Part(int Low, int High, int Hue)
{
    Hue = (Hue + Range) % Range;
    const auto Between = [&](int Share) { return Low + ((High - Low) * Share + Range / 12) / (Range / 6); };
    if (Hue < Range / 6)
        return Between(Hue);
    if (Hue < Range / 2)
        return High;
    if (Hue < Range * 2 / 3)
        return Between(Range * 2 / 3 - Hue);
    return Low;
}

} // namespace

THls ToHls(COLORREF Color)
{
    const int Red = GetRValue(Color), Green = GetGValue(Color), Blue = GetBValue(Color);
    const int High = std::max({Red, Green, Blue}), Low = std::min({Red, Green, Blue});
    const int Sum = High + Low, Span = High - Low;
    THls Hls;
    Hls.Lum = (Sum * Range + Full) / (2 * Full);
    if (Span == 0) {
        Hls.Hue = THls::NoHue;
        return Hls;
    }
    const int Room = Hls.Lum <= Range / 2 ? Sum : 2 * Full - Sum;
    Hls.Sat = (Span * Range + Room / 2) / Room;
    const auto Distance = [&](int Value) { return ((High - Value) * (Range / 6) + Span / 2) / Span; };
    if (Red == High)
        Hls.Hue = Distance(Blue) - Distance(Green);
    else if (Green == High)
        Hls.Hue = Range / 3 + Distance(Red) - Distance(Blue);
    else
        Hls.Hue = Range * 2 / 3 + Distance(Green) - Distance(Red);
    Hls.Hue = (Hls.Hue + Range) % Range;
    return Hls;
}

COLORREF ToColor(const THls& Hls)
{
    if (Hls.Sat == 0) {
        const auto Grey = static_cast<BYTE>(Hls.Lum * Full / Range);
        return RGB(Grey, Grey, Grey);
    }
    const int High = Hls.Lum <= Range / 2 ? (Hls.Lum * (Range + Hls.Sat) + Range / 2) / Range
                                          : Hls.Lum + Hls.Sat - (Hls.Lum * Hls.Sat + Range / 2) / Range;
    const int Low = 2 * Hls.Lum - High;
    const auto Byte = [&](int Hue) {
        return static_cast<BYTE>(std::clamp((Part(Low, High, Hue) * Full + Range / 2) / Range, 0, Full));
    };
    return RGB(Byte(Hls.Hue + Range / 3), Byte(Hls.Hue), Byte(Hls.Hue - Range / 3));
}
