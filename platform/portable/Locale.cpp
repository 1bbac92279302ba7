// Answers of locales, and which there are.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "platform/portable/LocaleData.h"
#include "platform/portable/winbase.h"

namespace {

const TLocaleRow* RowOf(LCID Locale)
{
    return FindLocale(ConvertDefaultLocale(Locale));
}

std::string Identifier(LCID Locale)
{
    char Text[9];
    std::snprintf(Text, sizeof Text, "%04x", Locale & 0xFFFF);
    return Text;
}

// The answer; false for an item that is not known.
bool Answer(LCID Locale, const TLocaleRow& Row, LCTYPE Item, std::string& Text)
{
    if (Item == LOCALE_ILANGUAGE || Item == LOCALE_IDEFAULTLANGUAGE) {
        Text = Identifier(Row.Id);
        return true;
    }
    if (Item == LOCALE_SNAME) {
        Text = Row.Name;
        for (const TLocaleSort& Sort : LocaleSorts())
            if (Sort.Id == Locale)
                Text = Sort.Name;
        return true;
    }
    const TLocaleItems& Items = LocaleItems(Row);
    const auto Found = Items.find(Item);
    if (Found == Items.end())
        return false;
    Text = Found->second;
    return true;
}

int Fail(DWORD Error)
{
    SetLastError(Error);
    return 0;
}

int Give(const void* Data, std::size_t Length, LPSTR Buffer, int Size)
{
    if (Size > 0 && static_cast<std::size_t>(Size) < Length)
        return Fail(ERROR_INSUFFICIENT_BUFFER);
    if (Size > 0)
        std::memcpy(Buffer, Data, Length);
    return static_cast<int>(Length);
}

} // namespace

int GetLocaleInfoA(LCID Locale, LCTYPE Item, LPSTR Buffer, int Size)
{
    if (Size < 0 || (Size > 0 && !Buffer))
        return Fail(ERROR_INVALID_PARAMETER);
    const TLocaleRow* const Row = RowOf(Locale);
    if (!Row)
        return Fail(ERROR_INVALID_PARAMETER);
    std::string Text;
    const LCTYPE Number = LOWORD(Item); // without the flags
    if ((Item & LOCALE_RETURN_GENITIVE_NAMES) || !Answer(Locale, *Row, Number, Text))
        return Fail(ERROR_INVALID_FLAGS);
    if (!(Item & LOCALE_RETURN_NUMBER))
        return Give(Text.c_str(), Text.size() + 1, Buffer, Size);
    if (!IsNumber(Number))
        return Fail(ERROR_INVALID_FLAGS);
    const int Base = Number == LOCALE_ILANGUAGE || Number == LOCALE_IDEFAULTLANGUAGE ? 16 : 10;
    const auto Value = static_cast<DWORD>(std::stoul(Text, nullptr, Base));
    return Give(&Value, sizeof Value, Buffer, Size);
}

BOOL EnumSystemLocalesA(LOCALE_ENUMPROCA Proc, DWORD Flags)
{
    if (!Proc) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const auto Report = [&](const auto& Each) {
        char Number[9];
        std::snprintf(Number, sizeof Number, "%08x", Each.Id);
        return Proc(Number) != FALSE;
    };
    const auto ReportAll = [&](const auto& Locales) {
        static_cast<void>(std::all_of(Locales.begin(), Locales.end(), Report));
    };
    if (Flags & LCID_ALTERNATE_SORTS)
        ReportAll(LocaleSorts());
    else
        ReportAll(LocaleRows());
    return TRUE;
}

BOOL IsValidLocale(LCID Locale, DWORD)
{
    return Locale != LOCALE_NEUTRAL && Locale != LOCALE_USER_DEFAULT && Locale != LOCALE_SYSTEM_DEFAULT &&
           RowOf(Locale);
}
