// Format variables: how numbers and currency are written. Programs and the
// package set them when the language changes; conversions read them at each
// call. User-interface thread only.
#pragma once

#include <string>

// A separator is one character, which in UTF-8 may be several bytes (a French
// thousand separator has three). Empty: none.
inline std::string DecimalSeparator = ".";
inline std::string ThousandSeparator = ",";
inline std::string ListSeparator = ",";

inline std::string CurrencyString = "$";
inline int CurrencyDecimals = 2; // digits after the decimal separator
inline int CurrencyFormat = 0;   // 0 $1, 1 1$, 2 $ 1, 3 1 $
inline int NegCurrFormat = 0;    // 0 ($1), 1 -$1, 2 $-1, 3 $1-, 4 (1$), ... 15 (1 $), as Windows numbers them
