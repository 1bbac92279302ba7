#include "platform/CodePage.h"

#include <iconv.h>

#include <map>
#include <memory>
#include <mutex>

namespace {

// The C library's name of a code page.
std::string ConverterName(int Number)
{
    if (Number >= 28591 && Number <= 28606)
        return "ISO-8859-" + std::to_string(Number - 28590);
    switch (Number) {
    case 10000:
        return "MACINTOSH";
    case 20866:
        return "KOI8-R";
    case 21866:
        return "KOI8-U";
    default:
        return "CP" + std::to_string(Number);
    }
}

bool IsLead(int Number, int Byte)
{
    switch (Number) {
    case 932:
        return (Byte >= 0x81 && Byte <= 0x9F) || (Byte >= 0xE0 && Byte <= 0xFC);
    case 936:
    case 949:
    case 950:
        return Byte >= 0x81 && Byte <= 0xFE;
    default:
        return false;
    }
}

class TConverter {
public:
    explicit TConverter(int Number) : FHandle(iconv_open("UTF-32LE", ConverterName(Number).c_str())) {}
    ~TConverter()
    {
        if (IsOpen())
            iconv_close(FHandle);
    }
    TConverter(const TConverter&) = delete;
    TConverter& operator=(const TConverter&) = delete;

    bool IsOpen() const { return FHandle != reinterpret_cast<iconv_t>(-1); }

    // The single character that Bytes stand for, or TCodePage::None.
    char32_t Convert(std::string_view Bytes)
    {
        char Input[2] = {Bytes[0], Bytes.size() > 1 ? Bytes[1] : '\0'};
        unsigned char Output[16];
        char* In = Input;
        char* Out = reinterpret_cast<char*>(Output);
        std::size_t InLeft = Bytes.size(), OutLeft = sizeof Output;
        iconv(FHandle, nullptr, nullptr, nullptr, nullptr);
        if (iconv(FHandle, &In, &InLeft, &Out, &OutLeft) != 0 || InLeft != 0)
            return TCodePage::None;
        // Some converters hold a character back until they are flushed.
        iconv(FHandle, nullptr, nullptr, &Out, &OutLeft);
        if (sizeof Output - OutLeft != 4)
            return TCodePage::None;
        return Output[0] | Output[1] << 8 | Output[2] << 16;
    }

private:
    iconv_t FHandle;
};

} // namespace

struct TCodePageLoader {
    static std::unique_ptr<const TCodePage> Load(int Number)
    {
        TConverter Converter(Number);
        if (Number <= 0 || Number >= 65000 || !Converter.IsOpen() || Converter.Convert("A") != U'A')
            return nullptr;
        std::unique_ptr<TCodePage> Result(new TCodePage);
        for (int Byte = 0; Byte < 256; ++Byte) {
            const char Bytes[] = {static_cast<char>(Byte)};
            Result->LeadBytes[Byte] = IsLead(Number, Byte);
            Result->Singles[Byte] = Result->LeadBytes[Byte] ? TCodePage::None : Converter.Convert({Bytes, 1});
            if (Result->Singles[Byte] != TCodePage::None)
                Result->Codes.emplace(Result->Singles[Byte], static_cast<std::uint16_t>(Byte));
        }
        if (IsLead(Number, 0x81))
            LoadPairs(Number, Converter, *Result);
        return Result;
    }

private:
    static void LoadPairs(int Number, TConverter& Converter, TCodePage& Result)
    {
        Result.Pairs.assign(65536, TCodePage::None);
        for (int Code = 0x8140; Code < 0x10000; ++Code) {
            if (!Result.LeadBytes[Code >> 8] || (Code & 0xFF) < 0x40)
                continue;
            const char Bytes[] = {static_cast<char>(Code >> 8), static_cast<char>(Code)};
            Result.Pairs[Code] = Converter.Convert({Bytes, 2});
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
