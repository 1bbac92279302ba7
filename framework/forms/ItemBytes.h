// Reading and writing the bytes that lists and trees keep their items in.
#pragma once

#include <cstdint>
#include <string>

#include "framework/rtl/Utf8.h"

// Takes numbers, lowest byte first, and counted texts from the front of Bytes.
// Reading past the end gives 0 or an empty text and makes Ok false for good.
class TItemBytesReader {
public:
    explicit TItemBytesReader(const std::string& Bytes) : FBytes(Bytes) {}

    bool Ok() const { return FOk; }
    size_t Left() const { return FBytes.size() - FPosition; }
    size_t Position() const { return FPosition; }
    void Seek(size_t Position)
    {
        FOk = FOk && Position <= FBytes.size();
        FPosition = FOk ? Position : FBytes.size();
    }
    int32_t Byte() { return static_cast<int32_t>(Number(1)); }
    int32_t Integer() { return static_cast<int32_t>(Number(4)); }
    // A length byte and that many bytes of the author's code page, or, when Wide,
    // that many 16-bit characters. The result is UTF-8.
    std::string Text(bool Wide)
    {
        const auto Length = static_cast<size_t>(Byte()) * (Wide ? 2 : 1);
        if (!Need(Length))
            return "";
        std::string Raw = FBytes.substr(FPosition, Length);
        FPosition += Length;
        std::u16string Characters;
        if (!Wide) {
            if (IsValidUtf8(Raw))
                return Raw;
            // Nothing says which code page it is; Latin letters are the likeliest.
            for (const char Byte : Raw)
                Characters += static_cast<char16_t>(static_cast<unsigned char>(Byte));
            return Utf16ToUtf8(Characters);
        }
        for (size_t I = 0; I < Raw.size(); I += 2)
            Characters += static_cast<char16_t>(static_cast<unsigned char>(Raw[I]) |
                                                static_cast<unsigned char>(Raw[I + 1]) << 8);
        return Utf16ToUtf8(Characters);
    }

private:
    bool Need(size_t Count)
    {
        if (FOk && Count <= Left())
            return true;
        FOk = false;
        FPosition = FBytes.size();
        return false;
    }
    uint32_t Number(size_t Count)
    {
        if (!Need(Count))
            return 0;
        uint32_t Result = 0;
        for (size_t I = 0; I < Count; ++I)
            Result |= static_cast<uint32_t>(static_cast<unsigned char>(FBytes[FPosition + I])) << (8 * I);
        FPosition += Count;
        return Result;
    }

    const std::string& FBytes;
    size_t FPosition = 0;
    bool FOk = true;
};

inline void PutInteger(std::string& Bytes, int32_t Value)
{
    for (int I = 0; I < 4; ++I)
        Bytes += static_cast<char>(static_cast<uint32_t>(Value) >> (8 * I) & 0xFF);
}

// At most 255 characters.
inline void PutWideText(std::string& Bytes, const std::string& Text)
{
    const std::u16string Wide = Utf8ToUtf16(Text).substr(0, 255);
    Bytes += static_cast<char>(Wide.size());
    for (const char16_t Character : Wide) {
        Bytes += static_cast<char>(Character & 0xFF);
        Bytes += static_cast<char>(Character >> 8);
    }
}
