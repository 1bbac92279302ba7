// The answers of GetLocaleInfoA to all items of all locales, and the text form
// in which data/locales.txt keeps those of Windows, as Wine 8.0 gives them:
//   [001F]                      an item, four hexadecimal digits
//   dd.MM.yyyy<TAB>0407 0C07    a value and the locales that answer it
// Items and locales are in the order of their numbers, values in that of their
// first locale. The languages and old identifiers that stand for another locale
// are listed under item 0001 alone, which tells that locale.
#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/winapi.h"

using TLocaleAnswers = std::map<LCTYPE, std::map<LCID, std::string>>;

// The items of the list.
inline const std::vector<LCTYPE>& ListedItems()
{
    static const std::vector<LCTYPE> Items = [] {
        const struct {
            LCTYPE First, Last;
        } Ranges[] = {{0x01, 0x04}, {0x06, 0x08}, {0x0B, 0x57},     {0x59, 0x5A},     {0x5C, 0x5C},
                      {0x60, 0x68}, {0x6F, 0x78}, {0x1001, 0x100A}, {0x100C, 0x1010}, {0x1014, 0x1014}};
        std::vector<LCTYPE> All;
        for (const auto& Range : Ranges)
            for (LCTYPE Item = Range.First; Item <= Range.Last; ++Item)
                All.push_back(Item);
        return All;
    }();
    return Items;
}

// The answer to an item; false when there is none.
inline bool AskLocale(LCID Locale, LCTYPE Item, std::string& Answer)
{
    char Buffer[256];
    const int Size =
        GetLocaleInfoA(Locale, Item | LOCALE_USE_CP_ACP | LOCALE_NOUSEROVERRIDE, Buffer, sizeof Buffer);
    if (Size > 0)
        Answer.assign(Buffer, static_cast<std::size_t>(Size) - 1);
    return Size > 0;
}

// The locales that EnumSystemLocalesA reports, in the order of their numbers.
inline std::vector<LCID> EnumeratedLocales(DWORD Flags)
{
    static std::vector<LCID> Found;
    Found.clear();
    EnumSystemLocalesA(
        [](LPSTR Number) -> BOOL {
            Found.push_back(static_cast<LCID>(std::stoul(Number, nullptr, 16)));
            return TRUE;
        },
        Flags);
    std::sort(Found.begin(), Found.end());
    return Found;
}

inline TLocaleAnswers AskAllLocales()
{
    TLocaleAnswers Answers;
    std::string Answer;
    std::vector<LCID> Locales = EnumeratedLocales(LCID_SUPPORTED);
    Locales.push_back(LOCALE_INVARIANT);
    for (const LCID Locale : EnumeratedLocales(LCID_ALTERNATE_SORTS))
        Locales.push_back(Locale);
    for (const LCTYPE Item : ListedItems())
        for (const LCID Locale : Locales)
            if (AskLocale(Locale, Item, Answer))
                Answers[Item][Locale] = Answer;
    for (LCID Locale = 1; Locale < 0x10000; ++Locale)
        if (IsValidLocale(Locale, LCID_SUPPORTED) && AskLocale(Locale, LOCALE_ILANGUAGE, Answer))
            Answers[LOCALE_ILANGUAGE][Locale] = Answer;
    // These three stand for the user's own locale.
    for (const LCID Locale : {0x0C00u, 0x1000u, 0x1400u})
        Answers[LOCALE_ILANGUAGE].erase(Locale);
    return Answers;
}

inline std::string Hexadecimal(unsigned Number)
{
    char Digits[16];
    std::snprintf(Digits, sizeof Digits, "%04X", Number);
    return Digits;
}

inline std::string WriteAnswers(const TLocaleAnswers& Answers)
{
    std::string Text;
    for (const auto& [Item, Values] : Answers) {
        Text += "[" + Hexadecimal(Item) + "]\n";
        std::vector<std::pair<std::string, std::string>> Lines; // value, locales
        std::map<std::string, std::size_t> Places;
        for (const auto& [Locale, Value] : Values) {
            const auto [Place, IsNew] = Places.emplace(Value, Lines.size());
            if (IsNew)
                Lines.emplace_back(Value, "");
            std::string& Locales = Lines[Place->second].second;
            Locales += (Locales.empty() ? "" : " ") + Hexadecimal(Locale);
        }
        for (const auto& [Value, Locales] : Lines)
            Text += Value + "\t" + Locales + "\n";
    }
    return Text;
}

inline TLocaleAnswers ReadAnswers(std::istream& Input)
{
    TLocaleAnswers Answers;
    LCTYPE Item = 0;
    for (std::string Line; std::getline(Input, Line);) {
        const std::size_t Tab = Line.find('\t');
        if (Tab == Line.npos) {
            Item = static_cast<LCTYPE>(std::stoul(Line.substr(1), nullptr, 16));
            continue;
        }
        std::istringstream Locales(Line.substr(Tab + 1));
        for (std::string Number; Locales >> Number;)
            Answers[Item][static_cast<LCID>(std::stoul(Number, nullptr, 16))] = Line.substr(0, Tab);
    }
    return Answers;
}
