#include "core/TextFile.h"

#include <string_view>

#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

std::string ReadTextFile(const std::string& FileName)
{
    constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
    std::string Result = ReadWholeFile(FileName);
    if (Result.starts_with("\xFF\xFE") || Result.starts_with("\xFE\xFF"))
        throw EConvertError(Format("%s:1: the text is UTF-16, not UTF-8", {FileName}));
    if (Result.starts_with(Utf8Mark))
        Result.erase(0, Utf8Mark.size());
    return Result;
}
