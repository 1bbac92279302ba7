#include "framework/rtl/FloatText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FloatDigits.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/RtlConsts.h"

namespace {

// 10^Exponent for 0 to 300; exact up to 27 with 64 bits of mantissa.
TExtended PowerOfTen(int Exponent)
{
    TExtended Result = 1;
    TExtended Square = 10;
    for (; Exponent > 0; Exponent /= 2, Square *= Square)
        if (Exponent % 2 != 0)
            Result *= Square;
    return Result;
}

// Mantissa * 10^Exponent, in steps so that no power overflows before its time.
TExtended Scale(std::uint64_t Mantissa, int Exponent)
{
    constexpr int Step = 300;
    auto Result = static_cast<TExtended>(Mantissa);
    while (Exponent != 0 && Result != 0 && std::isfinite(Result)) {
        const int Part = std::clamp(Exponent, -Step, Step);
        if (Part < 0)
            Result /= PowerOfTen(-Part);
        else
            Result *= PowerOfTen(Part);
        Exponent -= Part;
    }
    return Result;
}

// Reads the number that a text holds. The standard library's from_chars is no
// help: its long double has the range of double on Windows.
class TFloatReader {
public:
    explicit TFloatReader(std::string_view Text) : FText(Text) {}

    // The number times 10^Shift.
    std::optional<TExtended> Read(int Shift)
    {
        SkipBlanks();
        const bool Negative = ReadSign();
        ReadDigits(0);
        if (!DecimalSeparator.empty() && Take(DecimalSeparator))
            ReadDigits(-1);
        if (!FAnyDigit || !ReadExponent())
            return std::nullopt;
        SkipBlanks();
        const TExtended Result = Scale(FMantissa, std::clamp(FExponent + Shift, -10000, 10000));
        if (!FText.empty() || !std::isfinite(Result))
            return std::nullopt;
        return Negative ? -Result : Result;
    }

private:
    bool Take(std::string_view Token)
    {
        if (!FText.starts_with(Token))
            return false;
        FText.remove_prefix(Token.size());
        return true;
    }
    void SkipBlanks()
    {
        while (Take(" ")) {
        }
    }
    bool ReadSign() { return Take("-") || (Take("+"), false); }

    // PerDigit is what each digit adds to the exponent. Digits beyond the 19
    // that the mantissa holds only move the point.
    void ReadDigits(int PerDigit)
    {
        for (; !FText.empty() && FText[0] >= '0' && FText[0] <= '9'; FText.remove_prefix(1)) {
            FAnyDigit = true;
            if (FMantissa < 1000000000000000000u) {
                FMantissa = FMantissa * 10 + static_cast<std::uint64_t>(FText[0] - '0');
                FExponent += PerDigit;
            } else {
                FExponent += PerDigit + 1;
            }
        }
    }

    bool ReadExponent()
    {
        if (!Take("E") && !Take("e"))
            return true;
        const bool Negative = ReadSign();
        if (FText.empty() || FText[0] < '0' || FText[0] > '9')
            return false;
        int Value = 0;
        for (; !FText.empty() && FText[0] >= '0' && FText[0] <= '9'; FText.remove_prefix(1))
            Value = std::min(Value * 10 + (FText[0] - '0'), 100000000);
        FExponent += Negative ? -Value : Value;
        return true;
    }

    std::string_view FText;
    std::uint64_t FMantissa = 0;
    int FExponent = 0;
    bool FAnyDigit = false;
};

} // namespace

std::optional<TExtended> ReadScaled(std::string_view Text, int Shift)
{
    return TFloatReader(Text).Read(Shift);
}

bool TryStrToFloat(std::string_view Text, TExtended& Value)
{
    const auto Result = ReadScaled(Text, 0);
    if (Result)
        Value = *Result;
    return Result.has_value();
}

TExtended StrToFloat(std::string_view Text)
{
    TExtended Result = 0;
    if (!TryStrToFloat(Text, Result))
        throw EConvertError(Format(SInvalidFloat, {Text}));
    return Result;
}

TExtended StrToFloatDef(std::string_view Text, TExtended Default)
{
    TryStrToFloat(Text, Default);
    return Default;
}

std::string FloatToStr(TExtended Value)
{
    return FloatToStrF(Value, TFloatFormat::ffGeneral, 15, 0);
}

std::string FloatToStrF(TExtended Value, TFloatFormat Format, int Precision, int Digits)
{
    std::string NotFinite = NotFiniteText(Value);
    if (!NotFinite.empty())
        return NotFinite;
    Precision = std::clamp(Precision, 2, MaxFloatDigits);
    return DecimalToStrF(FloatToDecimal(Value), Format, Precision, Digits);
}
