// Exchange of a form's translations with dictionaries.
#include <utility>
#include <vector>

#include "Qft/Qft.h"
#include "core/DictionaryFile.h"
#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

namespace {

// The line that a search for "Key=" lands on, if it is of that key.
const std::string* FindLine(const TSortList& List, const std::string& KeyEq)
{
    int Index = -1;
    List.SortFind(KeyEq, Index);
    const bool Found = Index < List.Count() && List.Get(Index).starts_with(KeyEq);
    return Found ? &List.Get(Index) : nullptr;
}

// "Key=" of a line Key=Value; empty for others.
std::string KeyEqOf(const std::string& Line)
{
    const size_t Equals = Line.find('=');
    return Equals == Line.npos ? std::string() : Line.substr(0, Equals + 1);
}

} // namespace

void TFormTranslator::TranslateTo(const std::string& FileName)
{
    const TLife Life(*this);
    TSortList Present;
    ReadPresentValues(Present);
    if (Life.IsOver())
        return;
    FLookup = nullptr;
    const TFileLock Lock(FileName);
    TDictionary Dictionary;
    Dictionary.Load(FileName);
    for (int I = 0; I < FTranslations->Count(); ++I) {
        const std::string& Line = FTranslations->Get(I);
        const std::string KeyEq = KeyEqOf(Line);
        const std::string* const Shown = KeyEq.empty() ? nullptr : FindLine(Present, KeyEq);
        if (!Shown)
            continue;
        Dictionary.Put(FromLiterals(std::string_view(*Shown).substr(KeyEq.size())),
                       ValueOf(FromLiterals(Line), std::string::npos));
    }
    Dictionary.Save(FileName);
}

bool TFormTranslator::TranslateFrom(const std::string& FileName)
{
    if (!FileExists(FileName))
        return false;
    const TLife Life(*this);
    std::vector<std::pair<std::string, std::string>> Pairs;
    ForEachDictionaryPair(FileName, [&](const std::string& Source, const std::string& Translation) {
        Pairs.emplace_back(Source, Translation);
    });
    TSortList Present;
    ReadPresentValues(Present);
    if (Life.IsOver())
        return true;
    FLookup = nullptr;
    // The texts shown, each with the index of its property's translation.
    std::vector<TSortList::TLine> Shown;
    for (int I = 0; I < FTranslations->Count(); ++I) {
        const std::string KeyEq = KeyEqOf(FTranslations->Get(I));
        if (const std::string* const Line = KeyEq.empty() ? nullptr : FindLine(Present, KeyEq))
            Shown.push_back({FromLiterals(std::string_view(*Line).substr(KeyEq.size())), IntegerObject(I)});
    }
    TSortList Sources;
    Sources.SortInsertAll(std::move(Shown));
    for (const auto& [Source, Translation] : Pairs) {
        int Position = -1;
        if (!Sources.SortFind(Source, Position))
            continue;
        const int Index = ObjectInteger(Sources.Objects(Position));
        const std::string& Line = FTranslations->Get(Index);
        const std::string KeyEq = KeyEqOf(Line);
        const bool IsLiteral =
            Line.size() > KeyEq.size() && (Line[KeyEq.size()] == '\'' || Line[KeyEq.size()] == '#');
        FTranslations->Put(Index, KeyEq + (IsLiteral ? ToLiterals(Translation) : Translation));
    }
    return true;
}
