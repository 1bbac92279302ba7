// Code pages: which character each byte or pair of bytes stands for.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// A code page of one or two bytes a character, by its Windows number (437,
// 1250, 932 ...; 28592 for ISO 8859-2). Strict: what the code page does not
// define is reported, never replaced. Immutable; one instance a code page,
// which lives until the program ends. Any thread.
class TCodePage {
public:
    static constexpr char32_t None = 0xFFFFFFFF;

    // Null for a number that the system does not know, and for code pages that
    // are not of one or two bytes a character (UTF-8 among them).
    static const TCodePage* Find(int Number);

    bool IsLeadByte(unsigned char Byte) const { return !Pairs.empty() && LeadBytes[Byte]; }

    // The bytes of the first character: 1 or 2. Requires: Bytes is not empty.
    std::size_t CharLength(std::string_view Bytes) const
    {
        return Bytes.size() > 1 && IsLeadByte(static_cast<unsigned char>(Bytes[0])) &&
                       Pair(Bytes[0], Bytes[1]) != None
                   ? 2
                   : 1;
    }

    // The first character, whose length CharLength tells; None when it is undefined.
    char32_t Decode(std::string_view Bytes) const
    {
        return CharLength(Bytes) == 2 ? Pair(Bytes[0], Bytes[1])
                                      : Singles[static_cast<unsigned char>(Bytes[0])];
    }

    // The one or two bytes of a character, lead byte high; nothing when it has none.
    std::optional<std::uint16_t> Encode(char32_t Character) const
    {
        const auto Found = Codes.find(Character);
        return Found == Codes.end() ? std::nullopt : std::optional(Found->second);
    }

private:
    TCodePage() = default;
    char32_t Pair(char Lead, char Trail) const
    {
        return Pairs[static_cast<unsigned char>(Lead) * 256U + static_cast<unsigned char>(Trail)];
    }

    std::array<char32_t, 256> Singles{};
    std::array<bool, 256> LeadBytes{};
    std::vector<char32_t> Pairs; // by lead byte * 256 + trail byte; empty for one-byte code pages
    std::unordered_map<char32_t, std::uint16_t> Codes;

    friend struct TCodePageLoader;
};
