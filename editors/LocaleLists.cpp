#include "editors/LocaleLists.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "Qlt/LocaleEntries.h"
#include "Qlt/LocaleValues.h"
#include "core/KeyLines.h"
#include "platform/winapi.h"

namespace {

constexpr size_t PrefixLength = 8;

std::vector<TSortList::TLine> TakeLocale(TSortList& List, int Lcid)
{
    std::vector<TSortList::TLine> Lines = List.Take();
    const auto IsOther = [Prefix = EntryPrefix(Lcid)](const TSortList::TLine& Line) {
        return !Line.Text.starts_with(Prefix);
    };
    const auto First = std::stable_partition(Lines.begin(), Lines.end(), IsOther);
    std::vector<TSortList::TLine> Result(std::make_move_iterator(First),
                                         std::make_move_iterator(Lines.end()));
    Lines.erase(First, Lines.end());
    List.Give(std::move(Lines));
    return Result;
}

std::set<int> SystemLocales()
{
    static std::set<int> Found; // the callback is handed nothing but the number
    Found.clear();
    EnumSystemLocalesA(
        [](LPSTR Number) -> BOOL {
            Found.insert(HexToInt(Number));
            return TRUE;
        },
        LCID_SUPPORTED);
    // What locales without a number of their own report.
    Found.erase(LOCALE_CUSTOM_UNSPECIFIED);
    return std::exchange(Found, {});
}

} // namespace

std::vector<TNamedLocale> NamedLocales(const TStrings& Entries)
{
    std::vector<TNamedLocale> Result;
    std::string_view Country;
    for (int I = 0; I < Entries.Count(); ++I) {
        const std::string_view Key = KeyOf(Entries.Get(I));
        const std::string_view Prefix = Key.substr(0, PrefixLength);
        const std::string_view Name = Key.substr(Prefix.size());
        if (Name == EnglishCountryKey)
            Country = ValueOf(Entries.Get(I));
        if (const int Lcid = HexToInt(Prefix);
            Name == EnglishNameKey && (Result.empty() || Result.back().Lcid != Lcid))
            Result.push_back({std::string(ValueOf(Entries.Get(I))) + ", " + std::string(Country), Lcid});
    }
    return Result;
}

void MoveLocale(TSortList& From, TSortList& To, int Lcid)
{
    TakeLocale(To, Lcid);
    To.SortInsertAll(TakeLocale(From, Lcid));
}

void ReadSystemLocales(TSortList& Entries)
{
    std::vector<TSortList::TLine> Lines;
    for (const int Lcid : SystemLocales())
        for (std::string& Entry : ReadLocaleEntries(Lcid))
            Lines.push_back({std::move(Entry), IntegerObject(Lcid)});
    Entries.Clear();
    Entries.SortInsertAll(std::move(Lines));
}
