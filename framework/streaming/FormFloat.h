// Floating point numbers of form files, exact to the last of their 80 bits on
// every platform, whatever its `long double` is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// An 80-bit extended number as binary form files store it: 64 bits of
// mantissa with an explicit leading one, then sign and exponent (bias 16383).
struct TFormExtended {
    std::uint64_t Mantissa = 0;
    std::uint16_t SignExponent = 0;

    friend bool operator==(const TFormExtended&, const TFormExtended&) = default;
};

TFormExtended ExtendedFromDouble(double Value);
// The nearest double; infinite when it is out of range.
double ExtendedToDouble(TFormExtended Value);

// Reads `-12.5`, `1e-3`, `41411.34989893519`: the nearest extended number.
// Nothing when Text is not a number or has more than 5,000 characters.
std::optional<TFormExtended> ExtendedFromText(std::string_view Text);

// `Inf` and `NaN`, which look like identifiers, without regard to case.
std::optional<TFormExtended> ExtendedFromName(std::string_view Name);

// The number with Digits significant digits (from 1), in plain notation with
// as few decimals as that needs: `0.0684693287039408`, `15`.
// Numbers from 1e15 up and below 1e-5 get an exponent: `1E20`, `2.5E-7`.
std::string ExtendedToText(TFormExtended Value, int Digits);

// The number rounded to Digits significant digits and written with exactly
// Decimals decimals: `15.000000000000000000`.
std::string ExtendedToFixed(TFormExtended Value, int Digits, int Decimals);
