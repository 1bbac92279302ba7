#include "framework/rtl/FloatText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <optional>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/RtlConsts.h"

namespace {

constexpr int MaxDigits = 18; // what a decimal conversion works with

// 0.DIGITS * 10^Exponent. Digits has no zeros at either end; empty is 0, which
// is never negative.
struct TDecimal {
    std::string Digits;
    int Exponent = 0;
    bool Negative = false;
};

// Keeps Count digits, rounding a half away from zero. Count below 0 leaves none.
void RoundTo(TDecimal& Value, int Count)
{
    if (Count < static_cast<int>(Value.Digits.size())) {
        const bool Up = Count >= 0 && Value.Digits[static_cast<std::size_t>(Count)] >= '5';
        Value.Digits.resize(static_cast<std::size_t>(std::max(Count, 0)));
        if (Up) {
            while (!Value.Digits.empty() && Value.Digits.back() == '9')
                Value.Digits.pop_back();
            if (!Value.Digits.empty()) {
                ++Value.Digits.back();
            } else {
                Value.Digits = "1";
                ++Value.Exponent;
            }
        }
    }
    while (!Value.Digits.empty() && Value.Digits.back() == '0')
        Value.Digits.pop_back();
    if (Value.Digits.empty())
        Value = {};
}

// Two steps on purpose: 18 digits first, so that a TExtended 1.005, which is a
// little less in binary, still counts as the half that people see.
TDecimal ToDecimal(TExtended Value, int Precision, int DigitsAfterPoint)
{
    char Buffer[48];
    const auto Stop = std::to_chars(Buffer, std::end(Buffer), std::fabs(Value), std::chars_format::scientific,
                                    MaxDigits - 1)
                          .ptr;
    TDecimal Result;
    Result.Negative = std::signbit(Value);
    Result.Digits = Buffer[0] + std::string(Buffer + 2, MaxDigits - 1);
    const char* ExponentText = Buffer + MaxDigits + 2; // behind "d.ddd...e"
    ExponentText += *ExponentText == '+';
    std::from_chars(ExponentText, Stop, Result.Exponent);
    ++Result.Exponent;
    RoundTo(Result, MaxDigits);
    RoundTo(Result, std::min(Precision, Result.Exponent + DigitsAfterPoint));
    return Result;
}

// The digit at Index, with zeros on both sides of what there is.
char DigitAt(const TDecimal& Value, int Index)
{
    const bool Inside = Index >= 0 && Index < static_cast<int>(Value.Digits.size());
    return Inside ? Value.Digits[static_cast<std::size_t>(Index)] : '0';
}

std::string ExponentText(const TDecimal& Value, const char* Plus, int LeastDigits)
{
    const int Exponent = Value.Digits.empty() ? 0 : Value.Exponent - 1;
    std::string Digits = std::to_string(std::abs(Exponent));
    const auto Least = static_cast<std::size_t>(LeastDigits < 0 || LeastDigits > 4 ? 0 : LeastDigits);
    if (Digits.size() < Least)
        Digits.insert(0, Least - Digits.size(), '0');
    return std::string("E") + (Exponent < 0 ? "-" : Plus) + Digits;
}

// First digit, then Count - 1 digits behind the separator.
std::string Mantissa(const TDecimal& Value, int Count)
{
    std::string Result(1, DigitAt(Value, 0));
    if (Count > 1)
        Result += DecimalSeparator;
    for (int Index = 1; Index < Count; ++Index)
        Result += DigitAt(Value, Index);
    return Result;
}

std::string Fixed(const TDecimal& Value, int DigitsAfterPoint, const std::string& Thousand)
{
    std::string Result;
    if (Value.Exponent <= 0)
        Result = "0";
    for (int Index = 0; Index < Value.Exponent; ++Index) {
        if (Index > 0 && (Value.Exponent - Index) % 3 == 0)
            Result += Thousand;
        Result += DigitAt(Value, Index);
    }
    if (DigitsAfterPoint > 0)
        Result += DecimalSeparator;
    for (int Index = 0; Index < DigitsAfterPoint; ++Index)
        Result += DigitAt(Value, Value.Exponent + Index);
    return Result;
}

std::string General(const TDecimal& Value, int Precision, int Digits)
{
    const int Count = static_cast<int>(Value.Digits.size());
    if (Value.Exponent > Precision || Value.Exponent < -3)
        return Mantissa(Value, Count) + ExponentText(Value, "", Digits);
    return Fixed(Value, std::max(Count - Value.Exponent, 0), "");
}

// "$" stands for the currency, "1" for the amount; the rows of Windows' settings
// LOCALE_ICURRENCY and LOCALE_INEGCURR.
constexpr const char* PositivePatterns[] = {"$1", "1$", "$ 1", "1 $"};
constexpr const char* NegativePatterns[] = {"($1)", "-$1",  "$-1",  "$1-",  "(1$)", "-1$",  "1-$",   "1$-",
                                            "-1 $", "-$ 1", "1 $-", "$ 1-", "$ -1", "1- $", "($ 1)", "(1 $)"};

template<std::size_t Count>
std::string CurrencyText(const std::string& Amount, const char* const (&Patterns)[Count], int Index)
{
    std::string Result;
    for (const char* Next = Patterns[Index >= 0 && Index < static_cast<int>(Count) ? Index : 0]; *Next;
         ++Next)
        if (*Next == '$')
            Result += CurrencyString;
        else if (*Next == '1')
            Result += Amount;
        else
            Result += *Next;
    return Result;
}

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

// Reads a number from the front of a text. The standard library's from_chars is
// no help: its long double has the range of double on Windows.
class TFloatReader {
public:
    explicit TFloatReader(std::string_view Text) : FText(Text) {}

    std::optional<TExtended> Read()
    {
        SkipBlanks();
        const bool Negative = ReadSign();
        ReadDigits(0);
        if (!DecimalSeparator.empty() && Take(DecimalSeparator))
            ReadDigits(-1);
        if (!FAnyDigit || !ReadExponent())
            return std::nullopt;
        SkipBlanks();
        const TExtended Result = Scale(FMantissa, std::clamp(FExponent, -10000, 10000));
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

bool TryStrToFloat(std::string_view Text, TExtended& Value)
{
    const auto Result = TFloatReader(Text).Read();
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
    if (std::isnan(Value))
        return "NAN";
    if (std::isinf(Value))
        return Value < 0 ? "-INF" : "INF";
    Precision = std::clamp(Precision, 2, MaxDigits);
    const bool Scientific = Format == TFloatFormat::ffGeneral || Format == TFloatFormat::ffExponent;
    if (!Scientific)
        Digits = std::clamp(Digits, 0, MaxDigits);
    constexpr int Unlimited = 9999;
    const TDecimal Decimal = ToDecimal(Value, Precision, Scientific ? Unlimited : Digits);
    if (!Scientific && Decimal.Exponent > Precision)
        Format = TFloatFormat::ffGeneral;

    const std::string Sign = Decimal.Negative ? "-" : "";
    switch (Format) {
    case TFloatFormat::ffGeneral:
        break;
    case TFloatFormat::ffExponent:
        return Sign + Mantissa(Decimal, Precision) + ExponentText(Decimal, "+", Digits);
    case TFloatFormat::ffFixed:
        return Sign + Fixed(Decimal, Digits, "");
    case TFloatFormat::ffNumber:
        return Sign + Fixed(Decimal, Digits, ThousandSeparator);
    case TFloatFormat::ffCurrency: {
        const std::string Amount = Fixed(Decimal, Digits, ThousandSeparator);
        return Decimal.Negative ? CurrencyText(Amount, NegativePatterns, NegCurrFormat)
                                : CurrencyText(Amount, PositivePatterns, CurrencyFormat);
    }
    }
    return Sign + General(Decimal, Precision, Digits);
}
