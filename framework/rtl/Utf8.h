// UTF-8: decoding, encoding, counting and cutting. All functions take arbitrary
// bytes and never read beyond them; a byte that is no part of a valid sequence
// counts as one character of its own.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Stands for what cannot be decoded or encoded (U+FFFD).
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

// One character at the start of a text.
struct TUtf8Character {
    char32_t Code;    // ReplacementCharacter when not valid
    std::size_t Size; // in bytes, 1 to 4; 1 when not valid
    bool Valid;
};

// The first character of Text. Overlong forms, surrogates and codes beyond
// U+10FFFF are not valid. Requires: Text is not empty.
TUtf8Character DecodeCharacter(std::string_view Text);

// Appends Code; a code that is no character appends ReplacementCharacter.
void AppendCharacter(std::string& Text, char32_t Code);

bool IsValidUtf8(std::string_view Text);

// In characters.
std::size_t CharacterCount(std::string_view Text);

// The longest beginning of Text that has at most MaxBytes bytes and does not end
// within a character. Refers to Text's bytes.
std::string_view CutAtCharacter(std::string_view Text, std::size_t MaxBytes);

// The first Count characters of Text (all when it has fewer).
std::string_view FirstCharacters(std::string_view Text, std::size_t Count);

// Conversions. What is not valid becomes ReplacementCharacter.
std::u16string Utf8ToUtf16(std::string_view Text);
std::string Utf16ToUtf8(std::u16string_view Text);
