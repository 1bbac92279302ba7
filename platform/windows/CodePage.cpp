#include "platform/CodePage.h"

#include <windows.h>

#include "platform/CodePageLoader.h"

namespace {

// The single character that Bytes stand for, or TCodePage::None.
char32_t Convert(int Number, std::string_view Bytes)
{
    wchar_t Output[4];
    const int Length = MultiByteToWideChar(static_cast<UINT>(Number), MB_ERR_INVALID_CHARS, Bytes.data(),
                                           static_cast<int>(Bytes.size()), Output, 4);
    return Length == 1 ? Output[0] : TCodePage::None;
}

std::unique_ptr<const TCodePage> Load(int Number)
{
    CPINFO Info;
    if (!GetCPInfo(static_cast<UINT>(Number), &Info) || Info.MaxCharSize > 2)
        return nullptr;
    return TCodePageLoader::Build(
        Number, [&](unsigned char Byte) { return IsDBCSLeadByteEx(static_cast<UINT>(Number), Byte) != 0; },
        [&](std::string_view Bytes) { return Convert(Number, Bytes); });
}

} // namespace

const TCodePage* TCodePage::Find(int Number)
{
    return TCodePageLoader::FindLoaded(Number, Load);
}
