#include "platform/CodePage.h"

#include <windows.h>

#include <map>
#include <memory>
#include <mutex>

namespace {

// The single character that Bytes stand for, or TCodePage::None. The system
// passes bytes that the code page leaves undefined through as C1 controls or
// private characters; those are undefined here too.
char32_t Convert(int Number, std::string_view Bytes)
{
    wchar_t Output[4];
    const int Length = MultiByteToWideChar(static_cast<UINT>(Number), MB_ERR_INVALID_CHARS, Bytes.data(),
                                           static_cast<int>(Bytes.size()), Output, 4);
    if (Length != 1)
        return TCodePage::None;
    const char32_t Result = Output[0];
    const bool IsIso = Number >= 28591 && Number <= 28606;
    if (Bytes.size() == 1 && !IsIso && Result >= 0x80 && Result < 0xA0)
        return TCodePage::None;
    if (Bytes.size() == 1 && Result >= 0xE000 && Result <= 0xF8FF)
        return TCodePage::None;
    return Result;
}

} // namespace

struct TCodePageLoader {
    static std::unique_ptr<const TCodePage> Load(int Number)
    {
        CPINFO Info;
        if (Number <= 0 || Number >= 65000 || !GetCPInfo(static_cast<UINT>(Number), &Info) ||
            Info.MaxCharSize > 2)
            return nullptr;
        std::unique_ptr<TCodePage> Result(new TCodePage);
        for (int Byte = 0; Byte < 256; ++Byte) {
            const char Bytes[] = {static_cast<char>(Byte)};
            Result->LeadBytes[Byte] = IsDBCSLeadByteEx(static_cast<UINT>(Number), static_cast<BYTE>(Byte));
            Result->Singles[Byte] = Result->LeadBytes[Byte] ? TCodePage::None : Convert(Number, {Bytes, 1});
            if (Result->Singles[Byte] != TCodePage::None)
                Result->Codes.emplace(Result->Singles[Byte], static_cast<std::uint16_t>(Byte));
        }
        if (Info.MaxCharSize == 2)
            LoadPairs(Number, *Result);
        return Result;
    }

private:
    static void LoadPairs(int Number, TCodePage& Result)
    {
        Result.Pairs.assign(65536, TCodePage::None);
        for (int Code = 0x8140; Code < 0x10000; ++Code) {
            if (!Result.LeadBytes[Code >> 8] || (Code & 0xFF) < 0x40)
                continue;
            const char Bytes[] = {static_cast<char>(Code >> 8), static_cast<char>(Code)};
            Result.Pairs[Code] = Convert(Number, {Bytes, 2});
        }
        // Rows ED and EE of code page 932 repeat characters whose usual code is
        // in rows FA to FC; elsewhere the lower of two codes is the usual one.
        const auto Add = [&](int First, int Last) {
            for (int Code = First; Code <= Last; ++Code)
                if (Result.Pairs[Code] != TCodePage::None)
                    Result.Codes.emplace(Result.Pairs[Code], static_cast<std::uint16_t>(Code));
        };
        if (Number == 932) {
            Add(0x8140, 0xECFF);
            Add(0xEF00, 0xFFFF);
        }
        Add(0x8140, 0xFFFF);
    }
};

const TCodePage* TCodePage::Find(int Number)
{
    static std::mutex Mutex;
    static std::map<int, std::unique_ptr<const TCodePage>> Loaded;
    const std::lock_guard Lock(Mutex);
    const auto [Place, IsNew] = Loaded.try_emplace(Number);
    if (IsNew)
        Place->second = TCodePageLoader::Load(Number);
    return Place->second.get();
}
