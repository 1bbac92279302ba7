// Makes code pages from what a platform tells about single characters. For the
// platforms' CodePage.cpp; everybody else includes CodePage.h.
#pragma once

#include <map>
#include <memory>
#include <mutex>

#include "platform/CodePage.h"

struct TCodePageLoader {
    // IsLead(Byte) tells lead bytes; Convert(Bytes) gives the character of one or
    // two bytes, or TCodePage::None. Systems differ in passing undefined codes on
    // as control or private characters; they are undefined here.
    template<class TIsLead, class TConvert>
    static std::unique_ptr<const TCodePage> Build(int Number, TIsLead IsLead, TConvert Convert)
    {
        std::unique_ptr<TCodePage> Result(new TCodePage);
        bool HasPairs = false;
        for (unsigned Byte = 0; Byte < 256; ++Byte) {
            const char Bytes[] = {static_cast<char>(Byte)};
            Result->LeadBytes[Byte] = IsLead(static_cast<unsigned char>(Byte));
            HasPairs |= Result->LeadBytes[Byte];
            Result->Singles[Byte] =
                Result->LeadBytes[Byte] ? TCodePage::None : Checked(Number, Convert({Bytes, 1}));
            if (Result->Singles[Byte] != TCodePage::None)
                Result->Codes.emplace(Result->Singles[Byte], static_cast<std::uint16_t>(Byte));
        }
        if (HasPairs)
            AddPairs(Number, Convert, *Result);
        return Result;
    }

    // Calls Load at the first use of a code page.
    template<class TLoad>
    static const TCodePage* FindLoaded(int Number, TLoad Load)
    {
        static std::mutex Mutex;
        static std::map<int, std::unique_ptr<const TCodePage>> Loaded;
        const std::lock_guard Lock(Mutex);
        const auto [Place, IsNew] = Loaded.try_emplace(Number);
        if (IsNew && Number > 0 && Number < 65000)
            Place->second = Load(Number);
        return Place->second.get();
    }

private:
    // ISO code pages define the control characters from 128 on, and code page 932
    // has a place for characters of one's own in rows F0 to F9.
    static char32_t Checked(int Number, char32_t Character)
    {
        const bool IsIso = Number >= 28591 && Number <= 28606;
        const bool IsControl = Character >= 0x80 && Character < 0xA0 && !IsIso;
        const bool IsPrivate = Character >= 0xE000 && Character <= 0xF8FF;
        const bool HasPrivate = Number == 932 && Character <= 0xE757;
        return IsControl || (IsPrivate && !HasPrivate) ? TCodePage::None : Character;
    }

    template<class TConvert>
    static void AddPairs(int Number, TConvert Convert, TCodePage& Result)
    {
        Result.Pairs.assign(65536, TCodePage::None);
        for (unsigned Code = 0x8140; Code < 0x10000; ++Code) {
            const char Bytes[] = {static_cast<char>(Code >> 8), static_cast<char>(Code)};
            if (Result.LeadBytes[Code >> 8] && (Code & 0xFF) >= 0x40)
                Result.Pairs[Code] = Checked(Number, Convert({Bytes, 2}));
        }
        const auto AddCodes = [&](unsigned First, unsigned Last) {
            for (unsigned Code = First; Code <= Last; ++Code)
                if (Result.Pairs[Code] != TCodePage::None)
                    Result.Codes.emplace(Result.Pairs[Code], static_cast<std::uint16_t>(Code));
        };
        // Rows ED and EE of code page 932 repeat characters whose usual code is
        // in rows FA to FC; elsewhere the lower of two codes is the usual one.
        if (Number == 932) {
            AddCodes(0x8140, 0xECFF);
            AddCodes(0xEF00, 0xFFFF);
        }
        AddCodes(0x8140, 0xFFFF);
    }
};
