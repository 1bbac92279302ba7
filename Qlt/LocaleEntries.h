// The format entries of a locale: where each comes from in the operating system
// and which format variable it sets. An entry is a line
//
//     LCID "_" NAME "=" Value        00000409_LONGDAYNAMES[1]=Monday
//
// with the locale identifier as eight upper-case hexadecimal digits. Day 1 of the
// entries is the system's, Monday; day 1 of the format variables is Sunday. The
// entries go by number all the same.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What stands between the fields of a list in the locale applied last; empty
// until one with such an entry was applied.
inline std::string ListSeparator;
// How many years before the present one a two-digit year may lie; 0 until a
// locale with such an entry was applied.
inline uint16_t TwoDigitYearCenturyWindow = 0;

// The names behind "_" that make up an entry of the language list.
inline constexpr std::string_view EnglishNameKey = "_ENGLISHNAME";
inline constexpr std::string_view EnglishCountryKey = "_ENGLISHCOUNTRYNAME";
inline constexpr std::string_view NativeNameKey = "_NATIVENAME";
inline constexpr std::string_view NativeCountryKey = "_NATIVECOUNTRYNAME";

// How the entries of a locale begin.
std::string EntryPrefix(int Locale);

// All 58 entries of a locale as the operating system has them, or English ones
// where it has none.
std::vector<std::string> ReadLocaleEntries(int Locale);

// Sets the format variable of an entry. Key is what stands before "=" without
// the locale; a key without a variable changes nothing. Of a separator the first
// character is used.
// Throws EConvertError when a number is none or a separator is empty; the
// variable is unchanged then.
void ApplyLocaleEntry(std::string_view Key, std::string_view Value);
