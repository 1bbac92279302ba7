// The locale of the user, of the system and of each thread.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/portable/LocaleTable.h"
#include "platform/portable/winbase.h"
#include "platform/portable/winnls.h"

namespace {

thread_local LCID ThreadLocale = 0; // 0 until it is set

constexpr LCID EnglishUnitedStates = 0x0409;

struct TEnvironmentName {
    std::string Language, Country, Script; // "sr", "-RS", "-Latn"; the last two may be empty
};

// "sr_RS.UTF-8@latin"
TEnvironmentName Split(const std::string& Name)
{
    const std::size_t At = std::min(Name.find('@'), Name.size());
    const std::string Place = Name.substr(0, std::min(Name.find('.'), At));
    const std::size_t Line = std::min(Place.find('_'), Place.size());
    TEnvironmentName Result{Place.substr(0, Line), Place.substr(Line), ""};
    std::replace(Result.Country.begin(), Result.Country.end(), '_', '-');
    const std::string_view Modifier = std::string_view(Name).substr(At);
    if (Modifier == "@latin")
        Result.Script = "-Latn";
    if (Modifier == "@cyrillic")
        Result.Script = "-Cyrl";
    return Result;
}

// The locale of a language in its chief country; 0 for a language that no locale has.
LCID ChiefLocale(const std::string& Language)
{
    const std::string Prefix = Language + "-";
    const auto IsOfLanguage = [&](const TLocaleRow& Row) {
        return std::string_view(Row.Name).starts_with(Prefix);
    };
    const auto Rows = LocaleRows();
    const auto Row = std::find_if(Rows.begin(), Rows.end(), IsOfLanguage);
    if (Row == Rows.end())
        return 0;
    // Languages that share a primary number, such as Bosnian and Serbian, have
    // numbers without a country of these forms.
    for (const LCID Form : {0x0000u, 0x7000u, 0x7800u, 0x7C00u})
        if (const TLocaleRow* const Chief = FindLocale(LocaleAlias(Form | PRIMARYLANGID(Row->Id)));
            Chief && IsOfLanguage(*Chief))
            return Chief->Id;
    return Row->Id;
}

// 0 for a name that no locale has.
LCID LocaleOfEnvironment(const std::string& Name)
{
    const auto [Language, Country, Script] = Split(Name);
    // Windows names the script of some languages always, the environment seldom.
    if (!Country.empty())
        for (const std::string& Each : {Script, std::string(), std::string("-Cyrl"), std::string("-Latn"),
                                        std::string("-Arab"), std::string("-Deva"), std::string("-Cher")})
            if (const TLocaleRow* const Row = FindLocaleName(Language + Each + Country))
                return Row->Id;
    return ChiefLocale(Language);
}

LCID EnvironmentLocale()
{
    for (const char* const Variable : {"LC_ALL", "LC_TIME", "LANG"})
        if (const char* const Value = std::getenv(Variable); Value && *Value) {
            const LCID Found = LocaleOfEnvironment(Value);
            return Found ? Found : EnglishUnitedStates;
        }
    return EnglishUnitedStates;
}

// The numbers that stand for a locale of the user or the system.
bool IsDefault(LCID Locale)
{
    return Locale <= LOCALE_CUSTOM_UI_DEFAULT && PRIMARYLANGID(Locale) == LANG_NEUTRAL;
}

} // namespace

LCID GetUserDefaultLCID()
{
    return EnvironmentLocale();
}

LCID GetSystemDefaultLCID()
{
    return EnvironmentLocale();
}

LANGID GetUserDefaultLangID()
{
    return LANGIDFROMLCID(GetUserDefaultLCID());
}

LANGID GetSystemDefaultLangID()
{
    return LANGIDFROMLCID(GetSystemDefaultLCID());
}

LCID GetThreadLocale()
{
    return ThreadLocale ? ThreadLocale : GetUserDefaultLCID();
}

BOOL SetThreadLocale(LCID Locale)
{
    const LCID Target = ConvertDefaultLocale(Locale);
    if (!FindLocale(Target)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    ThreadLocale = Target;
    return TRUE;
}

LCID ConvertDefaultLocale(LCID Locale)
{
    if (IsDefault(Locale))
        return GetUserDefaultLCID();
    const LCID Target = LocaleAlias(Locale);
    return Target ? Target : Locale;
}
