// Keeps a test's changes of the format variables from the next test.
#pragma once

#include <tuple>

#include "framework/rtl/FormatVars.h"

inline auto AllFormatVars()
{
    return std::tie(DecimalSeparator, ThousandSeparator, CurrencyString, CurrencyDecimals, CurrencyFormat,
                    NegCurrFormat, DateSeparator, ShortDateFormat, LongDateFormat, TimeSeparator,
                    TimeAMString, TimePMString, ShortTimeFormat, LongTimeFormat, ShortDayNames, LongDayNames,
                    ShortMonthNames, LongMonthNames, SysLocale);
}

template<typename... TVariables>
std::tuple<TVariables...> CopyOf(std::tuple<TVariables&...> Variables)
{
    return Variables;
}

class TFormatVarsScope {
public:
    TFormatVarsScope() = default;
    TFormatVarsScope(const TFormatVarsScope&) = delete;
    TFormatVarsScope& operator=(const TFormatVarsScope&) = delete;
    ~TFormatVarsScope() { AllFormatVars() = FSaved; }

private:
    decltype(CopyOf(AllFormatVars())) FSaved = CopyOf(AllFormatVars());
};
