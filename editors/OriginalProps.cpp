#include "editors/OriginalProps.h"

#include <algorithm>

#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/SysUtils.h"

bool IsStringLiteral(std::string_view Value)
{
    return Value.starts_with('\'') || Value.starts_with('#');
}

std::string ShownText(std::string_view Value)
{
    try {
        return FromLiterals(Value);
    } catch (const EConvertError&) {
        return std::string(Value);
    }
}

std::string StoredText(const std::string& Text, std::string_view FormerValue)
{
    const bool CanStandBare = std::none_of(Text.begin(), Text.end(), [](char Each) {
        return Each == '\'' || Each == '#' || static_cast<unsigned char>(Each) < ' ';
    });
    return IsStringLiteral(FormerValue) || !CanStandBare ? ToLiterals(Text) : Text;
}

std::string_view WholeValueOf(std::string_view Line)
{
    return ValueOf(Line, Line.size());
}

void TOriginalProps::Assign(const TStrings& Lines)
{
    Clear();
    FLines.Assign(&Lines);
    for (int I = 0; I < Lines.Count(); ++I)
        FValues.try_emplace(std::string(KeyOf(Lines.Get(I))), WholeValueOf(Lines.Get(I)));
}

void TOriginalProps::AddNew(const TStrings& Lines)
{
    for (int I = 0; I < Lines.Count(); ++I)
        if (FValues.try_emplace(std::string(KeyOf(Lines.Get(I))), WholeValueOf(Lines.Get(I))).second)
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
    return Value ? ShownText(*Value) : "";
}

std::string TOriginalProps::FirstLine(const std::string& Key) const
{
    const std::string* const Value = Find(Key);
    if (!Value)
        return Key + "=";
    return Key + "=" + (IsStringLiteral(*Value) ? "''" : *Value);
}
