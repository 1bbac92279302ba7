#include "framework/forms/Idents.h"

#include <algorithm>

#include "framework/rtl/SysUtils.h"

bool IdentToValue(const TIdentMapEntry* Begin, const TIdentMapEntry* End, std::string_view Ident, int& Value)
{
    const auto* const Found =
        std::find_if(Begin, End, [&](const TIdentMapEntry& Entry) { return SameText(Entry.Name, Ident); });
    if (Found == End)
        return false;
    Value = Found->Value;
    return true;
}

bool ValueToIdent(const TIdentMapEntry* Begin, const TIdentMapEntry* End, int Value, std::string& Ident)
{
    const auto* const Found =
        std::find_if(Begin, End, [&](const TIdentMapEntry& Entry) { return Entry.Value == Value; });
    if (Found == End)
        return false;
    Ident = Found->Name;
    return true;
}
