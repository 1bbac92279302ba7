#include "framework/streaming/FormFloat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "framework/streaming/FormNames.h"

namespace {

constexpr int Bias = 16383;
constexpr int MaxExponent = 0x7FFF; // infinities and not-a-number
constexpr std::size_t MaxTextLength = 5000;
constexpr long MaxDecimalExponent = 5000;

// An unsigned whole number of any size, least significant 32 bits first.
class TBigNumber {
public:
    explicit TBigNumber(std::uint64_t Value = 0)
    {
        for (; Value != 0; Value >>= 32)
            FLimbs.push_back(static_cast<std::uint32_t>(Value));
    }

    bool IsZero() const { return FLimbs.empty(); }
    int Bits() const
    {
        if (FLimbs.empty())
            return 0;
        int Result = static_cast<int>(FLimbs.size() - 1) * 32;
        for (std::uint32_t Top = FLimbs.back(); Top != 0; Top >>= 1)
            ++Result;
        return Result;
    }

    void MultiplyAdd(std::uint32_t Factor, std::uint32_t Addend)
    {
        std::uint64_t Carry = Addend;
        for (auto& Limb : FLimbs) {
            Carry += static_cast<std::uint64_t>(Limb) * Factor;
            Limb = static_cast<std::uint32_t>(Carry);
            Carry >>= 32;
        }
        if (Carry != 0)
            FLimbs.push_back(static_cast<std::uint32_t>(Carry));
    }

    void MultiplyPowerOfTen(long Exponent)
    {
        for (; Exponent >= 9; Exponent -= 9)
            MultiplyAdd(1000000000, 0);
        for (; Exponent > 0; --Exponent)
            MultiplyAdd(10, 0);
    }

    void ShiftLeft(int Count)
    {
        if (IsZero())
            return;
        if (Count % 32 != 0)
            MultiplyAdd(1U << Count % 32, 0);
        FLimbs.insert(FLimbs.begin(), static_cast<std::size_t>(Count / 32), 0);
    }

    // Requires: Other is not greater.
    void Subtract(const TBigNumber& Other)
    {
        std::int64_t Borrow = 0;
        for (std::size_t Index = 0; Index < FLimbs.size(); ++Index) {
            Borrow += FLimbs[Index];
            if (Index < Other.FLimbs.size())
                Borrow -= Other.FLimbs[Index];
            FLimbs[Index] = static_cast<std::uint32_t>(Borrow);
            Borrow >>= 32;
        }
        while (!FLimbs.empty() && FLimbs.back() == 0)
            FLimbs.pop_back();
    }

    // Negative, 0 or positive, as this number is less, equal or greater.
    int Compare(const TBigNumber& Other) const
    {
        if (FLimbs.size() != Other.FLimbs.size())
            return FLimbs.size() < Other.FLimbs.size() ? -1 : 1;
        for (std::size_t Index = FLimbs.size(); Index-- > 0;)
            if (FLimbs[Index] != Other.FLimbs[Index])
                return FLimbs[Index] < Other.FLimbs[Index] ? -1 : 1;
        return 0;
    }

private:
    std::vector<std::uint32_t> FLimbs;
};

struct TFraction {
    TBigNumber Numerator, Denominator;
};

// Numerator / Denominator to the nearest 64-bit mantissa.
std::optional<TFormExtended> RoundToExtended(TFraction Value, bool Negative)
{
    int Exponent = Value.Numerator.Bits() - Value.Denominator.Bits();
    if (Exponent > 0)
        Value.Denominator.ShiftLeft(Exponent);
    else
        Value.Numerator.ShiftLeft(-Exponent);
    if (Value.Numerator.Compare(Value.Denominator) < 0) {
        Value.Numerator.ShiftLeft(1);
        --Exponent;
    }
    std::uint64_t Mantissa = 0;
    for (int Bit = 0; Bit < 64; ++Bit) {
        Mantissa <<= 1;
        if (Value.Numerator.Compare(Value.Denominator) >= 0) {
            Value.Numerator.Subtract(Value.Denominator);
            Mantissa |= 1;
        }
        Value.Numerator.ShiftLeft(1);
    }
    const int Rest = Value.Numerator.Compare(Value.Denominator);
    if ((Rest > 0 || (Rest == 0 && (Mantissa & 1) != 0)) && ++Mantissa == 0) {
        Mantissa = std::uint64_t{1} << 63;
        ++Exponent;
    }
    if (Exponent + Bias >= MaxExponent)
        return std::nullopt;
    const auto Sign = static_cast<std::uint16_t>(Negative ? 0x8000 : 0);
    if (Exponent + Bias <= 0)
        return TFormExtended{0, Sign};
    return TFormExtended{Mantissa, static_cast<std::uint16_t>(Sign | (Exponent + Bias))};
}

struct TDecimal {
    std::string Digits; // without trailing zeros; empty for 0
    int Exponent = 0;   // of the first digit: 0 for 1 to 9
};

// Adds one to the last digit.
void RoundUp(TDecimal& Value)
{
    std::size_t Index = Value.Digits.size();
    while (Index > 0 && Value.Digits[Index - 1] == '9')
        Value.Digits[--Index] = '0';
    if (Index > 0) {
        ++Value.Digits[Index - 1];
    } else {
        Value.Digits.insert(0, 1, '1');
        ++Value.Exponent;
    }
}

// Rounds to Digits significant digits, halves upward.
TDecimal ToDecimal(TFormExtended Value, int Digits)
{
    TDecimal Result;
    if (Value.Mantissa == 0)
        return Result;
    const int Biased = std::max(Value.SignExponent & 0x7FFF, 1);
    const int Exponent = Biased - Bias - 63;
    TFraction Rest{TBigNumber(Value.Mantissa), TBigNumber(1)};
    (Exponent > 0 ? Rest.Numerator : Rest.Denominator).ShiftLeft(std::abs(Exponent));

    const double Bits = Exponent + TBigNumber(Value.Mantissa).Bits() - 1;
    Result.Exponent = static_cast<int>(std::floor(Bits * 0.30102999566398119521));
    if (Result.Exponent > 0)
        Rest.Denominator.MultiplyPowerOfTen(Result.Exponent);
    else
        Rest.Numerator.MultiplyPowerOfTen(-Result.Exponent);
    TBigNumber Tenfold = Rest.Denominator;
    Tenfold.MultiplyAdd(10, 0);
    if (Rest.Numerator.Compare(Tenfold) >= 0) {
        Rest.Denominator = Tenfold;
        ++Result.Exponent;
    }
    for (int Index = 0; Index < Digits; ++Index) {
        char Digit = '0';
        for (; Rest.Numerator.Compare(Rest.Denominator) >= 0; ++Digit)
            Rest.Numerator.Subtract(Rest.Denominator);
        Result.Digits += Digit;
        Rest.Numerator.MultiplyAdd(10, 0);
    }
    Rest.Denominator.MultiplyAdd(5, 0);
    if (Rest.Numerator.Compare(Rest.Denominator) >= 0)
        RoundUp(Result);
    Result.Digits.erase(Result.Digits.find_last_not_of('0') + 1);
    return Result;
}

bool IsNegative(TFormExtended Value)
{
    return (Value.SignExponent & 0x8000) != 0;
}

// `Inf`, `-Inf` or `NaN`; empty for a finite number.
std::string SpecialText(TFormExtended Value)
{
    if ((Value.SignExponent & 0x7FFF) != MaxExponent)
        return {};
    if ((Value.Mantissa << 1) != 0)
        return "NaN";
    return IsNegative(Value) ? "-Inf" : "Inf";
}

// Digits with the decimal point where Value.Exponent says, Decimals after it.
std::string Plain(const TDecimal& Value, std::size_t Decimals)
{
    std::string Digits = Value.Digits;
    std::size_t Whole = 1;
    if (Value.Exponent < 0)
        Digits.insert(0, static_cast<std::size_t>(-Value.Exponent), '0');
    else
        Whole = static_cast<std::size_t>(Value.Exponent) + 1;
    Digits.resize(Whole + Decimals, '0');
    if (Decimals != 0)
        Digits.insert(Whole, 1, '.');
    return Digits;
}

std::string Scientific(const TDecimal& Value)
{
    std::string Result = Value.Digits;
    if (Result.size() > 1)
        Result.insert(1, 1, '.');
    return Result + "E" + std::to_string(Value.Exponent);
}

} // namespace

TFormExtended ExtendedFromDouble(double Value)
{
    const auto Sign = static_cast<std::uint16_t>(std::signbit(Value) ? 0x8000 : 0);
    if (std::isnan(Value))
        return {0xC000000000000000, static_cast<std::uint16_t>(Sign | MaxExponent)};
    if (std::isinf(Value))
        return {0x8000000000000000, static_cast<std::uint16_t>(Sign | MaxExponent)};
    if (Value == 0)
        return {0, Sign};
    int Exponent;
    const double Fraction = std::frexp(std::fabs(Value), &Exponent);
    return {static_cast<std::uint64_t>(std::ldexp(Fraction, 64)),
            static_cast<std::uint16_t>(Sign | (Exponent - 1 + Bias))};
}

double ExtendedToDouble(TFormExtended Value)
{
    const int Biased = Value.SignExponent & 0x7FFF;
    double Result;
    if (Biased == MaxExponent)
        Result = (Value.Mantissa << 1) != 0 ? std::numeric_limits<double>::quiet_NaN()
                                            : std::numeric_limits<double>::infinity();
    else
        Result = std::ldexp(static_cast<double>(Value.Mantissa), std::max(Biased, 1) - Bias - 63);
    return IsNegative(Value) ? -Result : Result;
}

std::optional<TFormExtended> ExtendedFromText(std::string_view Text)
{
    if (Text.size() > MaxTextLength)
        return std::nullopt;
    std::size_t Pos = 0;
    const bool Negative = !Text.empty() && Text[0] == '-';
    if (Negative)
        ++Pos;
    TFraction Value{TBigNumber(), TBigNumber(1)};
    long Exponent = 0;
    bool AnyDigit = false, AfterPoint = false;
    for (; Pos < Text.size(); ++Pos) {
        if (Text[Pos] == '.' && !AfterPoint) {
            AfterPoint = true;
            continue;
        }
        if (Text[Pos] < '0' || Text[Pos] > '9')
            break;
        AnyDigit = true;
        if (Value.Numerator.IsZero())
            Value.Numerator = TBigNumber(static_cast<std::uint64_t>(Text[Pos] - '0'));
        else
            Value.Numerator.MultiplyAdd(10, static_cast<std::uint32_t>(Text[Pos] - '0'));
        if (AfterPoint)
            --Exponent;
    }
    if (!AnyDigit)
        return std::nullopt;
    if (Pos < Text.size()) {
        if (Text[Pos] != 'e' && Text[Pos] != 'E')
            return std::nullopt;
        ++Pos;
        const bool Down = Pos < Text.size() && Text[Pos] == '-';
        if (Pos < Text.size() && (Text[Pos] == '-' || Text[Pos] == '+'))
            ++Pos;
        if (Pos == Text.size())
            return std::nullopt;
        long Power = 0;
        for (; Pos < Text.size(); ++Pos) {
            if (Text[Pos] < '0' || Text[Pos] > '9')
                return std::nullopt;
            Power = std::min(Power * 10 + (Text[Pos] - '0'), 4 * MaxDecimalExponent);
        }
        Exponent += Down ? -Power : Power;
    }
    if (Value.Numerator.IsZero())
        return TFormExtended{0, static_cast<std::uint16_t>(Negative ? 0x8000 : 0)};
    if (Exponent > MaxDecimalExponent)
        return std::nullopt;
    if (Exponent < -2 * MaxDecimalExponent)
        return TFormExtended{0, static_cast<std::uint16_t>(Negative ? 0x8000 : 0)};
    if (Exponent > 0)
        Value.Numerator.MultiplyPowerOfTen(Exponent);
    else
        Value.Denominator.MultiplyPowerOfTen(-Exponent);
    return RoundToExtended(std::move(Value), Negative);
}

std::optional<TFormExtended> ExtendedFromName(std::string_view Name)
{
    if (SameName(Name, "Inf"))
        return ExtendedFromDouble(std::numeric_limits<double>::infinity());
    if (SameName(Name, "NaN"))
        return ExtendedFromDouble(std::numeric_limits<double>::quiet_NaN());
    return std::nullopt;
}

std::string ExtendedToText(TFormExtended Value, int Digits)
{
    if (auto Special = SpecialText(Value); !Special.empty())
        return Special;
    const TDecimal Decimal = ToDecimal(Value, Digits);
    if (Decimal.Digits.empty())
        return "0";
    const std::string Sign = IsNegative(Value) ? "-" : "";
    if (Decimal.Exponent >= 15 || Decimal.Exponent < -5)
        return Sign + Scientific(Decimal);
    const int Decimals = static_cast<int>(Decimal.Digits.size()) - 1 - Decimal.Exponent;
    return Sign + Plain(Decimal, static_cast<std::size_t>(std::max(Decimals, 0)));
}

std::string ExtendedToFixed(TFormExtended Value, int Digits, int Decimals)
{
    if (auto Special = SpecialText(Value); !Special.empty())
        return Special;
    TDecimal Decimal = ToDecimal(Value, Digits);
    if (const int Room = Decimal.Exponent + 1 + Decimals; Room < Digits)
        Decimal = Room > 0 ? ToDecimal(Value, Room) : TDecimal{};
    const std::string Sign = IsNegative(Value) && !Decimal.Digits.empty() ? "-" : "";
    if (Decimal.Exponent >= Digits)
        return Sign + Scientific(Decimal);
    return Sign + Plain(Decimal, static_cast<std::size_t>(Decimals));
}
