// Eras: years counted anew from an event, as East Asia writes them beside the
// Gregorian ones. Which eras there are follows from SysLocale: Japan's since Meiji
// (each from its first day on), Taiwan's Minguo and Korea's Dangi. Anywhere else,
// and before the first era, a year is a Gregorian one without an era's name.
#pragma once

#include <optional>
#include <string_view>

struct TYearInEra {
    std::string_view Name;         // empty: no era
    std::string_view Abbreviation; // of one or two characters
    int Year;
};
TYearInEra YearInEra(int Year, int Month, int Day);

// The Gregorian year of a year in the era of that name or abbreviation; no name
// means the latest era. Nothing when SysLocale has no such era.
std::optional<int> GregorianYear(std::string_view EraName, int Year);
