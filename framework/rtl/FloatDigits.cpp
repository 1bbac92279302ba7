#include "framework/rtl/FloatDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "framework/rtl/FormatVars.h"

namespace {

// Keeps Count digits. Count below 0 leaves none.
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

// First digit, then Count - 1 digits behind the separator.
std::string Mantissa(const TDecimal& Value, int Count)
{
    std::string Result(1, Value[0]);
    if (Count > 1)
        Result += DecimalSeparator;
    for (int Index = 1; Index < Count; ++Index)
        Result += Value[Index];
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
        Result += Value[Index];
    }
    if (DigitsAfterPoint > 0)
        Result += DecimalSeparator;
    for (int Index = 0; Index < DigitsAfterPoint; ++Index)
        Result += Value[Value.Exponent + Index];
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

} // namespace

char TDecimal::operator[](int Index) const
{
    const bool Inside = Index >= 0 && Index < static_cast<int>(Digits.size());
    return Inside ? Digits[static_cast<std::size_t>(Index)] : '0';
}

TDecimal FloatToDecimal(TExtended Value)
{
    char Buffer[48];
    const auto Stop = std::to_chars(Buffer, std::end(Buffer), std::fabs(Value), std::chars_format::scientific,
                                    MaxFloatDigits - 1)
                          .ptr;
    TDecimal Result;
    Result.Negative = std::signbit(Value);
    Result.Digits = Buffer[0] + std::string(Buffer + 2, MaxFloatDigits - 1);
    const char* ExponentStart = Buffer + MaxFloatDigits + 2; // behind "d.ddd...e"
    ExponentStart += *ExponentStart == '+';
    std::from_chars(ExponentStart, Stop, Result.Exponent);
    ++Result.Exponent;
    RoundTo(Result, MaxFloatDigits);
    return Result;
}

TDecimal TenThousandthsToDecimal(std::int64_t Value)
{
    constexpr int Decimals = 4;
    TDecimal Result;
    Result.Negative = Value < 0;
    const auto Bits = static_cast<std::uint64_t>(Value);
    Result.Digits = std::to_string(Value < 0 ? 0 - Bits : Bits);
    Result.Exponent = static_cast<int>(Result.Digits.size()) - Decimals;
    // Only 0 begins with a zero here, and it has no digits at all.
    RoundTo(Result, AllDigits);
    return Result;
}

// The digits at hand have been rounded once before, on purpose: a TExtended 1.005,
// which is a little less in binary, still counts as the half that people see.
TDecimal Rounded(TDecimal Value, int Precision, int DigitsAfterPoint)
{
    RoundTo(Value, std::min(Precision, Value.Exponent + DigitsAfterPoint));
    return Value;
}

std::string ExponentText(const TDecimal& Value, const char* Plus, int LeastDigits)
{
    const int Exponent = Value.IsZero() ? 0 : Value.Exponent - 1;
    std::string Digits = std::to_string(std::abs(Exponent));
    const auto Least = static_cast<std::size_t>(LeastDigits < 0 || LeastDigits > 4 ? 0 : LeastDigits);
    if (Digits.size() < Least)
        Digits.insert(0, Least - Digits.size(), '0');
    return std::string("E") + (Exponent < 0 ? "-" : Plus) + Digits;
}

std::string NotFiniteText(TExtended Value)
{
    if (std::isnan(Value))
        return "NAN";
    if (std::isinf(Value))
        return Value < 0 ? "-INF" : "INF";
    return "";
}

std::string DecimalToStrF(const TDecimal& Exact, TFloatFormat Format, int Precision, int Digits)
{
    const bool Scientific = Format == TFloatFormat::ffGeneral || Format == TFloatFormat::ffExponent;
    if (!Scientific)
        Digits = std::clamp(Digits, 0, MaxFloatDigits);
    const TDecimal Value = Rounded(Exact, Precision, Scientific ? AllDigits : Digits);
    if (!Scientific && Value.Exponent > Precision)
        Format = TFloatFormat::ffGeneral;

    const std::string Sign = Value.Negative ? "-" : "";
    switch (Format) {
    case TFloatFormat::ffGeneral:
        break;
    case TFloatFormat::ffExponent:
        return Sign + Mantissa(Value, Precision) + ExponentText(Value, "+", Digits);
    case TFloatFormat::ffFixed:
        return Sign + Fixed(Value, Digits, "");
    case TFloatFormat::ffNumber:
        return Sign + Fixed(Value, Digits, ThousandSeparator);
    case TFloatFormat::ffCurrency: {
        const std::string Amount = Fixed(Value, Digits, ThousandSeparator);
        return Value.Negative ? CurrencyText(Amount, NegativePatterns, NegCurrFormat)
                              : CurrencyText(Amount, PositivePatterns, CurrencyFormat);
    }
    }
    return Sign + General(Value, Precision, Digits);
}
