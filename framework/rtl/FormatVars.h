// Format variables: how numbers, currency, dates and times are written. Programs
// and the package set them when the language changes; conversions read them at
// each call. They begin with English values; GetFormatSettings (FormatSettings.h)
// takes the user's. User-interface thread only.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/RtlConsts.h"

// Names with indexes from 1 to Count.
template<int Count>
class TNameTable {
public:
    // Takes exactly Count names.
    template<typename... TName>
    requires(sizeof...(TName) == Count) explicit TNameTable(const TName&... Names) : FNames{Names...} {}

    static constexpr int Low() { return 1; }
    static constexpr int High() { return Count; }

    // Throws ERangeError when Index is not within 1 and Count.
    std::string& operator[](int Index) { return FNames[Checked(Index)]; }
    const std::string& operator[](int Index) const { return FNames[Checked(Index)]; }

    auto begin() const { return FNames.begin(); }
    auto end() const { return FNames.end(); }
    bool operator==(const TNameTable&) const = default;

private:
    static std::size_t Checked(int Index)
    {
        if (Index < Low() || Index > High())
            throw ERangeError(SRangeError);
        return static_cast<std::size_t>(Index - 1);
    }

    std::array<std::string, Count> FNames;
};

// A separator is one character, which in UTF-8 may be several bytes (a French
// thousand separator has three). Empty: none.
extern std::string DecimalSeparator;
extern std::string ThousandSeparator;

extern std::string CurrencyString;
extern int CurrencyDecimals; // digits after the decimal separator
extern int CurrencyFormat;   // 0 $1, 1 1$, 2 $ 1, 3 1 $
extern int NegCurrFormat;    // 0 ($1), 1 -$1, 2 $-1, 3 $1-, 4 (1$), ... 15 (1 $), as Windows numbers them

// Pictures are made of the letters that DatePicture.h explains.
extern std::string DateSeparator; // "/" in a picture
extern std::string ShortDateFormat;
extern std::string LongDateFormat;
extern std::string TimeSeparator; // ":" in a picture
extern std::string TimeAMString;  // "ampm" in a picture
extern std::string TimePMString;
extern std::string ShortTimeFormat;
extern std::string LongTimeFormat;

// Days from 1, Sunday, to 7, Saturday.
extern TNameTable<7> ShortDayNames;
extern TNameTable<7> LongDayNames;
extern TNameTable<12> ShortMonthNames;
extern TNameTable<12> LongMonthNames;

// The locale that the variables above belong to.
struct TSysLocale {
    int DefaultLCID = 0x409; // language and sort order, as Windows numbers them
    int PriLangID = 0x09;    // lower 10 bits: the language
    int SubLangID = 0x01;    // upper bits: the country or script
    bool FarEast = false;    // Chinese, Japanese or Korean
    bool MiddleEast = false; // written from right to left
};
extern TSysLocale SysLocale;
