// Floating-point numbers to and from text, with the separators of FormatVars.h.
#pragma once

#include <string>
#include <string_view>

// The widest floating type: 80 bits where the compiler has them.
using TExtended = long double;

enum class TFloatFormat { ffGeneral, ffExponent, ffFixed, ffNumber, ffCurrency };

// Text is: blanks, an optional sign, digits, optionally DecimalSeparator and
// digits, optionally "E", a sign and digits, blanks. One digit before the
// exponent is enough. Thousand separators, INF and NAN are not accepted.
// Throws EConvertError: 'Text' is not a valid floating point value, also when
// the value is beyond TExtended.
TExtended StrToFloat(std::string_view Text);
TExtended StrToFloatDef(std::string_view Text, TExtended Default);
bool TryStrToFloat(std::string_view Text, TExtended& Value);

// General format with 15 significant digits: "0.1", "1234.5", "1E20", "-1E-5".
// Also "INF", "-INF" and "NAN".
std::string FloatToStr(TExtended Value);

// Precision: significant digits, held within 2 and 18. Digits: for ffFixed,
// ffNumber and ffCurrency the digits after the separator (at most 18); for
// ffGeneral and ffExponent the least digits of the exponent (0 to 4).
// A decimal half is rounded away from zero: 0.125 with two digits is "0.13".
// ffFixed, ffNumber and ffCurrency fall back to ffGeneral when the value has
// more digits before the separator than Precision.
//   ffGeneral   1234.5        1E20
//   ffExponent  1.2345E+003   Precision digits in all
//   ffFixed     1234.50
//   ffNumber    1,234.50
//   ffCurrency  $1,234.50     by CurrencyFormat and NegCurrFormat; outside of the
//               sixteen formats as by 0
std::string FloatToStrF(TExtended Value, TFloatFormat Format, int Precision, int Digits);
