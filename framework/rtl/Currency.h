// Amounts of money: exact to four decimals, and their texts.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "framework/rtl/FloatText.h"

// A number of ten-thousandths in 64 bits: up to 922,337,203,685,477.5807. What does
// not fit throws EIntOverflow.
class TCurrency {
public:
    constexpr TCurrency() = default;
    template<std::integral TValue>
    TCurrency(TValue Value) : FTenThousandths(Scaled(static_cast<std::int64_t>(Value)))
    {
        if constexpr (std::unsigned_integral<TValue>)
            RequireFit(Value <= static_cast<std::uint64_t>(INT64_MAX));
    }
    // Rounded; a half goes to the even ten-thousandth.
    template<std::floating_point TValue>
    TCurrency(TValue Value) : FTenThousandths(Rounded(static_cast<TExtended>(Value) * Scale))
    {
    }

    static constexpr TCurrency FromTenThousandths(std::int64_t Value)
    {
        TCurrency Result;
        Result.FTenThousandths = Value;
        return Result;
    }
    // Value is a number of ten-thousandths already, with a fraction to be rounded.
    static TCurrency FromTenThousandths(TExtended Value) { return FromTenThousandths(Rounded(Value)); }

    constexpr std::int64_t TenThousandths() const { return FTenThousandths; }
    TExtended AsExtended() const { return static_cast<TExtended>(FTenThousandths) / Scale; }

    friend TCurrency operator+(TCurrency A, TCurrency B);
    friend TCurrency operator-(TCurrency A, TCurrency B);
    friend constexpr auto operator<=>(TCurrency, TCurrency) = default;

private:
    static constexpr int Scale = 10000;

    static void RequireFit(bool Fits);
    static std::int64_t Scaled(std::int64_t Value);
    static std::int64_t Rounded(TExtended TenThousandths);

    std::int64_t FTenThousandths = 0;
};

// As the functions for floating-point numbers do (FloatText.h), with all digits.
// An amount as text may have a sign and an exponent, but neither currency nor
// thousand separators. Throw EConvertError: 'Text' is not a valid floating point
// value, also when it does not fit.
std::string CurrToStr(TCurrency Value);
std::string CurrToStrF(TCurrency Value, TFloatFormat Format, int Digits);
TCurrency StrToCurr(std::string_view Text);
TCurrency StrToCurrDef(std::string_view Text, TCurrency Default);
bool TryStrToCurr(std::string_view Text, TCurrency& Value);
