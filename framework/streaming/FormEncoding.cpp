#include "framework/streaming/FormEncoding.h"

#include <algorithm>

#include "framework/streaming/FormValue.h"

namespace {

bool IsHigh(char32_t Unit)
{
    return Unit >= 0xD800 && Unit < 0xDC00;
}
bool IsLow(char32_t Unit)
{
    return Unit >= 0xDC00 && Unit < 0xE000;
}

struct TDecoded {
    char32_t Character;
    std::size_t Length; // 0: malformed
};

// One character of UTF-8; surrogates are let through.
TDecoded DecodeOne(std::string_view Bytes, std::size_t Pos)
{
    const auto Byte = [&](std::size_t Index) { return static_cast<unsigned char>(Bytes[Pos + Index]); };
    const unsigned char First = Byte(0);
    if (First < 0x80)
        return {First, 1};
    const std::size_t Length = First >= 0xF0 ? 4 : First >= 0xE0 ? 3 : 2;
    if (First < 0xC2 || First > 0xF4 || Pos + Length > Bytes.size())
        return {0, 0};
    char32_t Result = First & (0xFF >> (Length + 1));
    for (std::size_t Index = 1; Index < Length; ++Index) {
        if ((Byte(Index) & 0xC0) != 0x80)
            return {0, 0};
        Result = Result << 6 | (Byte(Index) & 0x3F);
    }
    const char32_t Least = Length == 4 ? 0x10000 : Length == 3 ? 0x800 : 0x80;
    if (Result < Least || Result > 0x10FFFF)
        return {0, 0};
    return {Result, Length};
}

char32_t EscapeByte(char Byte)
{
    return EscapeBase + static_cast<unsigned char>(Byte);
}

} // namespace

std::optional<unsigned char> EscapedByte(char32_t Character)
{
    if (Character < EscapeBase + 0x80 || Character > EscapeBase + 0xFF)
        return std::nullopt;
    return static_cast<unsigned char>(Character - EscapeBase);
}

bool IsAscii(std::string_view Bytes)
{
    unsigned char All = 0;
    for (const char Byte : Bytes)
        All |= static_cast<unsigned char>(Byte);
    return All < 0x80;
}

char32_t NextChar(std::string_view Utf8, std::size_t& Pos)
{
    const TDecoded One = DecodeOne(Utf8, Pos);
    if (One.Length == 0)
        return EscapeByte(Utf8[Pos++]);
    Pos += One.Length;
    return One.Character;
}

void AppendChar(char32_t Character, std::string& Utf8)
{
    const auto Put = [&](char32_t Byte) { Utf8 += static_cast<char>(Byte); };
    if (Character < 0x80) {
        Put(Character);
    } else if (Character < 0x800) {
        Put(0xC0 | Character >> 6);
        Put(0x80 | (Character & 0x3F));
    } else if (Character < 0x10000) {
        Put(0xE0 | Character >> 12);
        Put(0x80 | (Character >> 6 & 0x3F));
        Put(0x80 | (Character & 0x3F));
    } else {
        Put(0xF0 | Character >> 18);
        Put(0x80 | (Character >> 12 & 0x3F));
        Put(0x80 | (Character >> 6 & 0x3F));
        Put(0x80 | (Character & 0x3F));
    }
}

void TUnitJoiner::Add(char16_t Unit)
{
    if (FHigh != 0 && IsLow(Unit)) {
        AppendChar(0x10000 + ((FHigh - 0xD800U) << 10) + (Unit - 0xDC00U), FUtf8);
        FHigh = 0;
        return;
    }
    Flush();
    if (IsHigh(Unit))
        FHigh = Unit;
    else
        AppendChar(Unit, FUtf8);
}

void TUnitJoiner::Flush()
{
    if (FHigh != 0)
        AppendChar(FHigh, FUtf8);
    FHigh = 0;
}

std::string Utf16ToUtf8(std::string_view Bytes, bool BigEndian)
{
    std::string Result;
    Result.reserve(Bytes.size() / 2);
    TUnitJoiner Joiner(Result);
    for (std::size_t Pos = 0; Pos + 1 < Bytes.size(); Pos += 2) {
        const auto First = static_cast<unsigned char>(Bytes[Pos]);
        const auto Second = static_cast<unsigned char>(Bytes[Pos + 1]);
        Joiner.Add(static_cast<char16_t>(BigEndian ? First << 8 | Second : Second << 8 | First));
    }
    Joiner.Flush();
    return Result;
}

std::string Utf8ToUtf16(std::string_view Utf8, bool BigEndian)
{
    std::string Result;
    Result.reserve(Utf8.size() * 2);
    for (std::size_t Pos = 0; Pos < Utf8.size();)
        ForEachUnit(NextChar(Utf8, Pos), [&](char16_t Unit) {
            const char High = static_cast<char>(Unit >> 8), Low = static_cast<char>(Unit);
            Result += BigEndian ? High : Low;
            Result += BigEndian ? Low : High;
        });
    return Result;
}

std::optional<TFormCodec> TFormCodec::Find(TFormEncoding Encoding, int CodePage)
{
    if (Encoding != TFormEncoding::CodePage || CodePage == 65001)
        return TFormCodec(nullptr);
    const TCodePage* const Found = TCodePage::Find(CodePage);
    if (!Found)
        return std::nullopt;
    return TFormCodec(Found);
}

void TFormCodec::Decode(std::string_view Bytes, std::string& Utf8) const
{
    for (std::size_t Pos = 0; Pos < Bytes.size();) {
        if (static_cast<unsigned char>(Bytes[Pos]) < 0x80) {
            Utf8 += Bytes[Pos++];
            continue;
        }
        std::size_t Length;
        char32_t Character;
        if (FCodePage) {
            Length = FCodePage->CharLength(Bytes.substr(Pos));
            Character = FCodePage->Decode(Bytes.substr(Pos));
        } else {
            const TDecoded One = DecodeOne(Bytes, Pos);
            Length = std::max<std::size_t>(One.Length, 1);
            Character = One.Length == 0 || EscapedByte(One.Character) ? TCodePage::None : One.Character;
        }
        if (Character != TCodePage::None)
            AppendChar(Character, Utf8);
        else
            for (std::size_t Index = 0; Index < Length; ++Index)
                AppendChar(EscapeByte(Bytes[Pos + Index]), Utf8);
        Pos += Length;
    }
}

bool TFormCodec::Encode(char32_t Character, std::string& Bytes) const
{
    if (const auto Byte = EscapedByte(Character)) {
        // A lead byte could join with the character after it.
        const char Raw = static_cast<char>(*Byte);
        if (!FCodePage || FCodePage->IsLeadByte(*Byte) || FCodePage->Decode({&Raw, 1}) != TCodePage::None)
            return false;
        Bytes += Raw;
        return true;
    }
    if (!FCodePage) {
        if (IsHigh(Character) || IsLow(Character))
            return false;
        AppendChar(Character, Bytes);
        return true;
    }
    const auto Code = FCodePage->Encode(Character);
    if (!Code)
        return false;
    if (*Code > 0xFF)
        Bytes += static_cast<char>(*Code >> 8);
    Bytes += static_cast<char>(*Code);
    return true;
}

std::size_t TFormCodec::CharLength(std::string_view Bytes) const
{
    if (FCodePage)
        return FCodePage->CharLength(Bytes);
    return std::max<std::size_t>(DecodeOne(Bytes, 0).Length, 1);
}
