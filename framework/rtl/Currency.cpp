#include "framework/rtl/Currency.h"

#include <cmath>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FloatDigits.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/RtlConsts.h"

namespace {

constexpr int Decimals = 4;
constexpr TExtended Limit = 9223372036854775808.0L; // 2^63

// The even neighbour for a half, whatever the processor's rounding mode.
TExtended RoundHalfEven(TExtended Value)
{
    const TExtended Whole = std::trunc(Value);
    const TExtended Rest = std::fabs(Value - Whole);
    const bool Away = Rest > 0.5L || (Rest == 0.5L && std::fmod(Whole, 2.0L) != 0);
    return Away ? Whole + std::copysign(1.0L, Value) : Whole;
}

// Written so that NAN does not fit.
bool Fits(TExtended Value)
{
    return Value >= -Limit && Value < Limit;
}

} // namespace

void TCurrency::RequireFit(bool Fits)
{
    if (!Fits)
        throw EIntOverflow(SIntOverflow);
}

std::int64_t TCurrency::Scaled(std::int64_t Value)
{
    RequireFit(Value >= INT64_MIN / Scale && Value <= INT64_MAX / Scale);
    return Value * Scale;
}

std::int64_t TCurrency::Rounded(TExtended TenThousandths)
{
    const TExtended Value = RoundHalfEven(TenThousandths);
    RequireFit(Fits(Value));
    return static_cast<std::int64_t>(Value);
}

TCurrency operator+(TCurrency A, TCurrency B)
{
    const std::int64_t X = A.FTenThousandths, Y = B.FTenThousandths;
    TCurrency::RequireFit(Y >= 0 ? X <= INT64_MAX - Y : X >= INT64_MIN - Y);
    return TCurrency::FromTenThousandths(X + Y);
}

TCurrency operator-(TCurrency A, TCurrency B)
{
    const std::int64_t X = A.FTenThousandths, Y = B.FTenThousandths;
    TCurrency::RequireFit(Y >= 0 ? X >= INT64_MIN + Y : X <= INT64_MAX + Y);
    return TCurrency::FromTenThousandths(X - Y);
}

std::string CurrToStr(TCurrency Value)
{
    return CurrToStrF(Value, TFloatFormat::ffGeneral, 0);
}

std::string CurrToStrF(TCurrency Value, TFloatFormat Format, int Digits)
{
    return DecimalToStrF(TenThousandthsToDecimal(Value.TenThousandths()), Format, MaxCurrencyDigits, Digits);
}

bool TryStrToCurr(std::string_view Text, TCurrency& Value)
{
    const auto TenThousandths = ReadScaled(Text, Decimals);
    if (!TenThousandths || !Fits(RoundHalfEven(*TenThousandths)))
        return false;
    Value = TCurrency::FromTenThousandths(*TenThousandths);
    return true;
}

TCurrency StrToCurr(std::string_view Text)
{
    TCurrency Result;
    if (!TryStrToCurr(Text, Result))
        throw EConvertError(Format(SInvalidFloat, {Text}));
    return Result;
}

TCurrency StrToCurrDef(std::string_view Text, TCurrency Default)
{
    TryStrToCurr(Text, Default);
    return Default;
}
