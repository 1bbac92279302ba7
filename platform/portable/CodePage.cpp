#include "platform/CodePage.h"

#include <iconv.h>

#include "platform/CodePageLoader.h"

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

std::unique_ptr<const TCodePage> Load(int Number)
{
    TConverter Converter(Number);
    if (!Converter.IsOpen() || Converter.Convert("A") != U'A')
        return nullptr;
    return TCodePageLoader::Build(
        Number, [&](unsigned char Byte) { return IsLead(Number, Byte); },
        [&](std::string_view Bytes) { return Converter.Convert(Bytes); });
}

} // namespace

const TCodePage* TCodePage::Find(int Number)
{
    return TCodePageLoader::FindLoaded(Number, Load);
}
