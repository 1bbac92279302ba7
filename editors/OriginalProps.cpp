#include "editors/OriginalProps.h"

#include "core/KeyLines.h"
#include "core/Literals.h"

bool IsStringLiteral(std::string_view Value)
{
    return Value.starts_with('\'') || Value.starts_with('#');
}

void TOriginalProps::Assign(const TStrings& Lines)
{
    Clear();
    FLines.Assign(&Lines);
    for (int I = 0; I < Lines.Count(); ++I)
        FValues.try_emplace(std::string(KeyOf(Lines.Get(I))), ValueOf(Lines.Get(I)));
}

void TOriginalProps::AddNew(const TStrings& Lines)
{
    for (int I = 0; I < Lines.Count(); ++I)
        if (FValues.try_emplace(std::string(KeyOf(Lines.Get(I))), ValueOf(Lines.Get(I))).second)
            FLines.Add(Lines.Get(I));
}

void TOriginalProps::Clear()
{
    FLines.Clear();
    FValues.clear();
}

const std::string* TOriginalProps::Find(const std::string& Key) const
{
    const auto Found = FValues.find(Key);
    return Found == FValues.end() ? nullptr : &Found->second;
}

std::string TOriginalProps::Text(const std::string& Key) const
{
    const std::string* const Value = Find(Key);
    return Value ? FromLiterals(*Value) : "";
}

std::string TOriginalProps::FirstLine(const std::string& Key) const
{
    const std::string* const Value = Find(Key);
    if (!Value)
        return Key + "=";
    return Key + "=" + (IsStringLiteral(*Value) ? "''" : *Value);
}
