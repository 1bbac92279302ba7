#include "framework/rtl/Utf8.h"

#include <algorithm>

namespace {

constexpr TUtf8Character Invalid{ReplacementCharacter, 1, false};

// What the first byte says: length of the sequence (0: none starts so), its
// bits of the code, and the least code that needs this length.
struct TLead {
    std::size_t Size;
    char32_t Bits;
    char32_t Least;
};

TLead ReadLead(unsigned char Byte)
{
    if (Byte < 0x80)
        return {1, Byte, 0};
    if (Byte >= 0xC2 && Byte < 0xE0)
        return {2, Byte & 0x1Fu, 0x80};
    if (Byte >= 0xE0 && Byte < 0xF0)
        return {3, Byte & 0x0Fu, 0x800};
    if (Byte >= 0xF0 && Byte < 0xF5)
        return {4, Byte & 0x07u, 0x10000};
    return {0, 0, 0};
}

bool IsCharacter(char32_t Code)
{
    return Code <= 0x10FFFF && (Code < 0xD800 || Code > 0xDFFF);
}

} // namespace

TUtf8Character DecodeCharacter(std::string_view Text)
{
    const TLead Lead = ReadLead(static_cast<unsigned char>(Text[0]));
    if (Lead.Size == 0 || Lead.Size > Text.size())
        return Invalid;
    char32_t Code = Lead.Bits;
    for (std::size_t Index = 1; Index < Lead.Size; ++Index) {
        const auto Byte = static_cast<unsigned char>(Text[Index]);
        if ((Byte & 0xC0) != 0x80)
            return Invalid;
        Code = Code << 6 | (Byte & 0x3Fu);
    }
    if (Code < Lead.Least || !IsCharacter(Code))
        return Invalid;
    return {Code, Lead.Size, true};
}

void AppendCharacter(std::string& Text, char32_t Code)
{
    if (!IsCharacter(Code))
        Code = ReplacementCharacter;
    const auto Tail = [Code](int Shift) { return static_cast<char>(0x80 | (Code >> Shift & 0x3F)); };
    if (Code < 0x80)
        Text += static_cast<char>(Code);
    else if (Code < 0x800)
        Text += {static_cast<char>(0xC0 | Code >> 6), Tail(0)};
    else if (Code < 0x10000)
        Text += {static_cast<char>(0xE0 | Code >> 12), Tail(6), Tail(0)};
    else
        Text += {static_cast<char>(0xF0 | Code >> 18), Tail(12), Tail(6), Tail(0)};
}

bool IsValidUtf8(std::string_view Text)
{
    while (!Text.empty()) {
        const auto Next = DecodeCharacter(Text);
        if (!Next.Valid)
            return false;
        Text.remove_prefix(Next.Size);
    }
    return true;
}

std::size_t CharacterCount(std::string_view Text)
{
    std::size_t Result = 0;
    for (; !Text.empty(); ++Result)
        Text.remove_prefix(DecodeCharacter(Text).Size);
    return Result;
}

// Only the last three bytes before the cut can begin a sequence that crosses it.
std::string_view CutAtCharacter(std::string_view Text, std::size_t MaxBytes)
{
    if (Text.size() <= MaxBytes)
        return Text;
    for (std::size_t Back = 1; Back <= std::min<std::size_t>(3, MaxBytes); ++Back) {
        const auto Next = DecodeCharacter(Text.substr(MaxBytes - Back));
        if (Next.Valid && Next.Size > Back)
            return Text.substr(0, MaxBytes - Back);
    }
    return Text.substr(0, MaxBytes);
}

std::string_view FirstCharacters(std::string_view Text, std::size_t Count)
{
    std::size_t Size = 0;
    for (; Count > 0 && Size < Text.size(); --Count)
        Size += DecodeCharacter(Text.substr(Size)).Size;
    return Text.substr(0, Size);
}

std::u16string Utf8ToUtf16(std::string_view Text)
{
    std::u16string Result;
    Result.reserve(Text.size());
    while (!Text.empty()) {
        const auto Next = DecodeCharacter(Text);
        Text.remove_prefix(Next.Size);
        if (Next.Code < 0x10000) {
            Result += static_cast<char16_t>(Next.Code);
        } else {
            Result += static_cast<char16_t>(0xD800 + ((Next.Code - 0x10000) >> 10));
            Result += static_cast<char16_t>(0xDC00 + (Next.Code & 0x3FF));
        }
    }
    return Result;
}

std::string Utf16ToUtf8(std::u16string_view Text)
{
    std::string Result;
    Result.reserve(Text.size());
    for (std::size_t Index = 0; Index < Text.size(); ++Index) {
        char32_t Code = Text[Index];
        const bool High = Code >= 0xD800 && Code < 0xDC00;
        if (High && Index + 1 < Text.size() && Text[Index + 1] >= 0xDC00 && Text[Index + 1] < 0xE000)
            Code = 0x10000 + ((Code - 0xD800) << 10) + (Text[++Index] - 0xDC00u);
        AppendCharacter(Result, Code); // a lone surrogate is replaced there
    }
    return Result;
}
