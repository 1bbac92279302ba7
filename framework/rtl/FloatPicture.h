// Numbers by pictures, such as "#,##0.00;(#,##0.00)".
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/Currency.h"
#include "framework/rtl/FloatText.h"

// A picture's signs:
//   0        a digit, or 0 where the number has none
//   #        a digit, or nothing
//   .        the first one: where DecimalSeparator stands when decimals follow
//   ,        anywhere: ThousandSeparator between groups of three digits
//   E+ e+    scientific; as many 0 as follow are the least digits of the exponent
//   E- e-    the same, with a sign of negative exponents only
//   'x' "x"  x itself; the end of the picture also ends it
//   ;        up to three sections: positive, negative, zero
// Everything else stands for itself. The number is rounded, halves away from zero,
// to the decimals that there are signs for; digits before the point without a sign
// of their own stand before the first. A negative number has a minus in front
// unless the second section is its own. What is rounded to zero takes the third
// section, and an empty or absent section is replaced by the first. When that is
// empty, or the number has more than 18 digits before the point and the section is
// not scientific, the number is written in general format with 15 digits.
std::string FormatFloat(std::string_view Picture, TExtended Value);
std::string FormatCurr(std::string_view Picture, TCurrency Value);
