// Locale identifiers as texts.
#pragma once

#include <string>
#include <string_view>

// The pseudo-locales, and how their values begin.
inline constexpr int UserDefaultLocale = 0x400;
inline constexpr int SystemDefaultLocale = 0x800;
inline constexpr const char* UserDefaultName = "User default";
inline constexpr const char* SystemDefaultName = "System default";

// The number that the hexadecimal digits of S, of either case, make; other
// characters are passed over, and of more than eight digits the last eight
// count. Only the first Length(S) modulo 256 bytes are looked at.
int HexToInt(std::string_view S);

// A locale value string: "Swedish, Sweden 0000041D". Its last eight characters
// are the locale identifier in hexadecimal digits.
std::string LocaleValue(std::string_view Name, int Locale);

// Whether Value is long enough and its eighth character from the end is a
// hexadecimal digit.
bool IsLocaleValue(std::string_view Value);

// The locale identifier at the end of a locale value string.
int LocaleOfValue(std::string_view Value);
