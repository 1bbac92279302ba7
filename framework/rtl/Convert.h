// Integers to and from text. The same grammar wherever a program, a form or a
// translations file holds a number as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Text is: blanks (code 32), an optional sign, then decimal digits, or "$",
// "0x", "x" and hexadecimal digits of either case. Nothing may follow, not even
// a blank. Decimal values must fit the signed type; hexadecimal digits give its
// bits, so that "$FFFFFFFF" is -1 with 32 bits.
// Throws EConvertError: 'Text' is not a valid integer value.
int StrToInt(std::string_view Text);
std::int64_t StrToInt64(std::string_view Text);

// The same, with Default instead of an exception.
int StrToIntDef(std::string_view Text, int Default);
std::int64_t StrToInt64Def(std::string_view Text, std::int64_t Default);

// The same as a question; Value is left alone when the answer is false.
bool TryStrToInt(std::string_view Text, int& Value);
bool TryStrToInt64(std::string_view Text, std::int64_t& Value);

std::string IntToStr(std::int64_t Value);

// Hexadecimal, upper case, at least Digits digits (at most 32 are asked for). A
// negative int has eight digits, a negative 64-bit value sixteen.
std::string IntToHex(int Value, int Digits);
std::string IntToHex(std::int64_t Value, int Digits);
std::string IntToHex(unsigned Value, int Digits);
std::string IntToHex(std::uint64_t Value, int Digits);
