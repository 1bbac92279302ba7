#include "core/LineDictionary.h"

#include <vector>

#include "core/KeyLines.h"
#include "core/Literals.h"
#include "framework/rtl/Files.h"

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

// The source texts, each with the index of its key's line in Translations.
void CollectSources(const TSortList& Translations, const TSortList& Shown, TSortList& Sources)
{
    std::vector<TSortList::TLine> Lines;
    for (int I = 0; I < Translations.Count(); ++I) {
        const std::string KeyEq = KeyEqOf(Translations.Get(I));
        if (const std::string* const Line = KeyEq.empty() ? nullptr : FindLine(Shown, KeyEq))
            Lines.push_back({FromLiterals(std::string_view(*Line).substr(KeyEq.size())), IntegerObject(I)});
    }
    Sources.SortInsertAll(std::move(Lines));
}

} // namespace

void ExportLines(const std::string& FileName, const TSortList& Translations, const TSortList& Shown)
{
    const TFileLock Lock(FileName);
    TDictionary Dictionary;
    Dictionary.Load(FileName);
    for (int I = 0; I < Translations.Count(); ++I) {
        const std::string& Line = Translations.Get(I);
        const std::string KeyEq = KeyEqOf(Line);
        const std::string* const Source = KeyEq.empty() ? nullptr : FindLine(Shown, KeyEq);
        if (Source)
            Dictionary.Put(FromLiterals(std::string_view(*Source).substr(KeyEq.size())),
                           ValueOf(FromLiterals(Line), std::string::npos));
    }
    Dictionary.Save(FileName);
}

void ImportPairs(const TDictionaryPairs& Pairs, TSortList& Translations, const TSortList& Shown)
{
    TSortList Sources(Translations.Kind());
    CollectSources(Translations, Shown, Sources);
    for (const auto& [Source, Translation] : Pairs) {
        int Position = -1;
        if (!Sources.SortFind(Source, Position))
            continue;
        const int Index = ObjectInteger(Sources.Objects(Position));
        const std::string& Line = Translations.Get(Index);
        const std::string KeyEq = KeyEqOf(Line);
        const bool IsLiteral =
            Line.size() > KeyEq.size() && (Line[KeyEq.size()] == '\'' || Line[KeyEq.size()] == '#');
        Translations.Put(Index, KeyEq + (IsLiteral ? ToLiterals(Translation) : Translation));
    }
}
