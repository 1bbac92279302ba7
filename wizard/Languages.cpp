#include "wizard/Languages.h"

#include <algorithm>

#include "Qlt/LocaleEntries.h"
#include "core/KeyLines.h"
#include "platform/winapi.h"

namespace {

constexpr int DaysInWeek = 7;

std::string EntryOf(int Locale, std::string_view Name)
{
    const std::string Key = EntryPrefix(Locale) + std::string(Name);
    for (const std::string& Entry : ReadLocaleEntries(Locale))
        if (KeyOf(Entry) == Key)
            return std::string(ValueOf(Entry));
    return "";
}

// What may stand in the name of a component.
std::string LettersOf(const std::string& Text)
{
    std::string Result;
    std::copy_if(Text.begin(), Text.end(), std::back_inserter(Result),
                 [](char Sign) { return (Sign >= 'A' && Sign <= 'Z') || (Sign >= 'a' && Sign <= 'z'); });
    return Result;
}

// By primary language.
constexpr struct {
    int Language;
    TLangName Name;
} ButtonLanguages[] = {{0x01, lnArabic},  {0x03, lnCatalan}, {0x04, lnChinese}, {0x05, lnCzech},
                       {0x06, lnDanish},  {0x07, lnGerman},  {0x08, lnGreek},   {0x09, lnEnglish},
                       {0x0A, lnSpanish}, {0x0B, lnFinnish}, {0x0C, lnFrench},  {0x0D, lnHebrew},
                       {0x0E, lnHungary}, {0x10, lnItalian}, {0x11, lnJapan},   {0x12, lnKorean},
                       {0x13, lnDutch},   {0x14, lnNorway},  {0x15, lnPolish},  {0x19, lnRussian},
                       {0x1B, lnSlovak},  {0x1D, lnSwedish}, {0x1F, lnTurkish}, {0x24, lnSlovenia}};

} // namespace

bool IsKnownLocale(int Locale)
{
    return Locale > 0 && IsValidLocale(static_cast<LCID>(Locale), LCID_SUPPORTED);
}

std::string LanguageName(int Locale)
{
    return EntryOf(Locale, EnglishNameKey);
}

std::string LanguageAndCountry(int Locale)
{
    return LanguageName(Locale) + ", " + EntryOf(Locale, EnglishCountryKey);
}

std::vector<std::string> NamesWithLanguage(const std::string& Start, int Locale)
{
    return {Start + LettersOf(LanguageName(Locale)), Start + LettersOf(LanguageAndCountry(Locale)),
            Start + std::to_string(Locale)};
}

std::vector<std::string> LocaleTranslatorEntries(int Locale)
{
    std::vector<std::string> Entries = ReadLocaleEntries(Locale);
    for (const char* const Names : {"_LONGDAYNAMES[", "_SHORTDAYNAMES["}) {
        const std::string Start = EntryPrefix(Locale) + Names;
        const auto First = std::find_if(Entries.begin(), Entries.end(),
                                        [&](const std::string& Entry) { return Entry.starts_with(Start); });
        if (Entries.end() - First < DaysInWeek)
            continue;
        // The system's days begin on Monday.
        std::vector<std::string> Days;
        for (auto Day = First; Day != First + DaysInWeek; ++Day)
            Days.emplace_back(ValueOf(*Day));
        std::rotate(Days.begin(), Days.end() - 1, Days.end());
        for (int Day = 0; Day < DaysInWeek; ++Day)
            First[Day] = Start + std::to_string(Day + 1) + "]=" + Days[static_cast<size_t>(Day)];
    }
    return Entries;
}

TLangName ButtonLanguage(int Locale)
{
    constexpr int PrimaryLanguage = 0x3FF;
    constexpr int Taiwan = 0x404;
    if (Locale == Taiwan)
        return lnTaiwanese;
    const auto* const Found =
        std::find_if(std::begin(ButtonLanguages), std::end(ButtonLanguages),
                     [&](const auto& Each) { return Each.Language == (Locale & PrimaryLanguage); });
    return Found == std::end(ButtonLanguages) ? lnUser : Found->Name;
}
