// The encodings of form files, one character at a time.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "framework/rtl/Utf8.h"
#include "framework/streaming/FormProfile.h"
#include "platform/CodePage.h"

// A byte that cannot be decoded is this private character plus the byte.
constexpr char32_t EscapeBase = 0x10FE00;

bool IsAscii(std::string_view Bytes);

// The character at Pos, which moves behind it. Halves of surrogate pairs are
// read as such; any other malformed byte as its private character.
// Requires: Pos < Utf8.size().
char32_t NextChar(std::string_view Utf8, std::size_t& Pos);
// Appends a character; half of a surrogate pair as the three bytes it would have.
void AppendChar(char32_t Character, std::string& Utf8);
// Calls Action with each UTF-16 code unit of a character.
template<class TAction>
void ForEachUnit(char32_t Character, TAction Action)
{
    if (Character < 0x10000) {
        Action(static_cast<char16_t>(Character));
        return;
    }
    Action(static_cast<char16_t>(0xD7C0 + (Character >> 10)));
    Action(static_cast<char16_t>(0xDC00 + (Character & 0x3FF)));
}

// Joins UTF-16 code units into characters and appends these to a text.
class TUnitJoiner {
public:
    explicit TUnitJoiner(std::string& Utf8) : FUtf8(Utf8) {}
    void Add(char16_t Unit);
    void Flush(); // before the text is used or appended to in another way

private:
    std::string& FUtf8;
    char16_t FHigh = 0;
};

// UTF-16 in bytes, which must be even in number, to UTF-8 and back. Lone halves
// of surrogate pairs survive both ways.
std::string Utf16ToUtf8(std::string_view Bytes, bool BigEndian);
std::string Utf8ToUtf16(std::string_view Utf8, bool BigEndian);

// Converts between the bytes of a form file and UTF-8. What a file in UTF-16
// holds counts as UTF-8 here: its source has been converted as a whole.
class TFormCodec {
public:
    // Nothing when the code page is unknown. 65001 is UTF-8.
    static std::optional<TFormCodec> Find(TFormEncoding Encoding, int CodePage);

    bool IsUtf8() const { return FCodePage == nullptr; }

    // Appends the decoded bytes; undefined ones become private characters, and so
    // do the bytes of a private character of that range in the file itself.
    void Decode(std::string_view Bytes, std::string& Utf8) const;
    // Appends a character; false, and nothing appended, when it has no code here.
    bool Encode(char32_t Character, std::string& Bytes) const;
    // Bytes of the first character. Requires: Bytes is not empty.
    std::size_t CharLength(std::string_view Bytes) const;

private:
    explicit TFormCodec(const TCodePage* CodePage) : FCodePage(CodePage) {}

    const TCodePage* FCodePage; // null: UTF-8
};
