#include "framework/rtl/Eras.h"

#include <iterator>
#include <span>
#include <tuple>

#include "framework/rtl/FormatVars.h"

namespace {

struct TEra {
    std::string_view Name;
    std::string_view Abbreviation;
    int Year, Month, Day; // its first day
    int FirstNumber;      // of the year in which it begins
};

// The latest first.
constexpr TEra JapaneseEras[] = {
    {"令和", "令", 2019, 5, 1, 1},  {"平成", "平", 1989, 1, 8, 1}, {"昭和", "昭", 1926, 12, 25, 1},
    {"大正", "大", 1912, 7, 30, 1}, {"明治", "明", 1868, 9, 8, 1},
};
constexpr TEra TaiwaneseEras[] = {{"中華民國", "民國", 1912, 1, 1, 1}};
constexpr TEra KoreanEras[] = {{"단기", "단기", 1, 1, 1, 2334}};

constexpr int Taiwan = 0x0404;
constexpr int Japanese = 0x11;
constexpr int Korean = 0x12;

std::span<const TEra> CurrentEras()
{
    if (SysLocale.PriLangID == Japanese)
        return JapaneseEras;
    if (SysLocale.PriLangID == Korean)
        return KoreanEras;
    if ((SysLocale.DefaultLCID & 0xFFFF) == Taiwan)
        return TaiwaneseEras;
    return {};
}

} // namespace

TYearInEra YearInEra(int Year, int Month, int Day)
{
    for (const TEra& Era : CurrentEras())
        if (std::tie(Year, Month, Day) >= std::tie(Era.Year, Era.Month, Era.Day))
            return {Era.Name, Era.Abbreviation, Year - Era.Year + Era.FirstNumber};
    return {"", "", Year};
}

std::optional<int> GregorianYear(std::string_view EraName, int Year)
{
    for (const TEra& Era : CurrentEras())
        if (EraName.empty() || EraName == Era.Name || EraName == Era.Abbreviation)
            return Year - Era.FirstNumber + Era.Year;
    return std::nullopt;
}
