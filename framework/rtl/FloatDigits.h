// Decimal digits of a number, and the steps that all ways of writing one share.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "framework/rtl/FloatText.h"

inline constexpr int MaxFloatDigits = 18;    // what a conversion of TExtended works with
inline constexpr int MaxCurrencyDigits = 19; // a TCurrency has them all
inline constexpr int AllDigits = 9999;

// 0.DIGITS * 10^Exponent. Digits has no zeros at either end; empty is 0, which
// is never negative.
struct TDecimal {
    std::string Digits;
    int Exponent = 0;
    bool Negative = false;

    bool IsZero() const { return Digits.empty(); }
    // The digit at Index, with zeros on both sides of what there is.
    char operator[](int Index) const;
};

// Requires: Value is a finite number.
TDecimal FloatToDecimal(TExtended Value);

// A number of ten-thousandths, without a loss.
TDecimal TenThousandthsToDecimal(std::int64_t Value);

// At most Precision digits in all and DigitsAfterPoint behind the point, which may
// be negative. A half is rounded away from zero.
TDecimal Rounded(TDecimal Value, int Precision, int DigitsAfterPoint);

// As FloatToStrF, with any positive Precision.
std::string DecimalToStrF(const TDecimal& Exact, TFloatFormat Format, int Precision, int Digits);

// "E", a sign (Plus for none) and at least LeastDigits digits, 0 to 4, for a
// number with one digit before the point.
std::string ExponentText(const TDecimal& Value, const char* Plus, int LeastDigits);

// "NAN", "INF" or "-INF"; empty for a finite number.
std::string NotFiniteText(TExtended Value);

// The number that Text holds, as StrToFloat reads it, times 10^Shift: multiplied
// before anything is rounded.
std::optional<TExtended> ReadScaled(std::string_view Text, int Shift);
