// Names of languages, countries and currencies, and identifiers.
#include <cstring>
#include <memory>
#include <string_view>

#include <unicode/locdspnm.h>
#include <unicode/ulocdata.h>

#include "platform/portable/LocaleData.h"
#include "platform/portable/LocalePictures.h"

namespace {

// Names of a locale in the language of another one.
struct TNames {
    std::string Language, Script, Country;

    // "Serbian (Latin)"
    std::string WithScript() const { return Script.empty() ? Language : Language + " (" + Script + ")"; }
    // "Serbian (Latin, Serbia)"
    std::string Whole() const
    {
        return Language + " (" + (Script.empty() ? "" : Script + ", ") + Country + ")";
    }
};

TNames NamesOf(const icu::Locale& Locale, const std::string& Script, const icu::Locale& In)
{
    const std::unique_ptr<icu::LocaleDisplayNames> Names(
        icu::LocaleDisplayNames::createInstance(In, ULDN_STANDARD_NAMES));
    icu::UnicodeString Text;
    TNames Result;
    Result.Language = Utf8(Names->languageDisplayName(Locale.getLanguage(), Text));
    Result.Country = Utf8(Names->regionDisplayName(Locale.getCountry(), Text));
    if (!Script.empty())
        Result.Script = Utf8(Names->scriptDisplayName(Script.c_str(), Text));
    if (Result.Script == Script)
        Result.Script.clear();
    return Result;
}

// Windows has names of its own for few places.
std::string EnglishCountry(const icu::Locale& Locale, const std::string& Name)
{
    return std::strcmp(Locale.getCountry(), "KR") == 0 ? "Korea" : Name;
}

// Chinese, Japanese and Korean can be written in columns too.
bool IsIdeographic(const icu::Locale& Locale)
{
    const std::string_view Language = Locale.getLanguage();
    return Language == "zh" || Language == "ja" || Language == "ko";
}

// The locale as Windows names it; es-ES_tradnl is no language tag.
icu::Locale WindowsLocale(const TLocaleRow& Row, const icu::Locale& Otherwise)
{
    UErrorCode Error = U_ZERO_ERROR;
    const icu::Locale Named = icu::Locale::forLanguageTag(Row.Name, Error);
    return U_SUCCESS(Error) && *Named.getLanguage() ? Named : Otherwise;
}

std::string Or(const std::string& First, const std::string& Second)
{
    return First.empty() ? Second : First;
}

} // namespace

void AddLocaleNames(TLocaleItems& Items, const TLocaleRow& Row, const icu::Locale& Locale)
{
    const icu::Locale& English = icu::Locale::getEnglish();
    const icu::Locale Windows = WindowsLocale(Row, Locale);
    const std::string Script = Or(Locale.getScript(), Windows.getScript());
    TNames InEnglish = NamesOf(Locale, Script, English);
    InEnglish.Country = EnglishCountry(Locale, InEnglish.Country);
    const TNames Native = NamesOf(Locale, Script, Locale);
    Items[LOCALE_SLANGUAGE] = Items[LOCALE_SENGLISHDISPLAYNAME] = InEnglish.Whole();
    Items[LOCALE_SNATIVEDISPLAYNAME] = Native.Whole();
    Items[LOCALE_SENGLANGUAGE] = Items[LOCALE_SLOCALIZEDLANGUAGENAME] = InEnglish.WithScript();
    Items[LOCALE_SNATIVELANGNAME] = Native.WithScript();
    Items[LOCALE_SCOUNTRY] = Items[LOCALE_SENGCOUNTRY] = InEnglish.Country;
    Items[LOCALE_SNATIVECTRYNAME] = Native.Country;
    Items[LOCALE_SABBREVCTRYNAME] = Items[LOCALE_SISO3166CTRYNAME2] =
        Or(Locale.getISO3Country(), Locale.getCountry());
    Items[LOCALE_SISO3166CTRYNAME] = Locale.getCountry();
    Items[LOCALE_SISO639LANGNAME] = Windows.getLanguage();
    Items[LOCALE_SISO639LANGNAME2] = Or(Windows.getISO3Language(), Windows.getLanguage());
    const std::string Currency = CurrencyOf(Locale);
    const std::string EnglishCurrency = CurrencyText(Currency, English, UCURR_LONG_NAME);
    const std::string NativeCurrency = CurrencyText(Currency, Locale, UCURR_LONG_NAME);
    Items[LOCALE_SENGCURRNAME] = EnglishCurrency;
    Items[LOCALE_SNATIVECURRNAME] = NativeCurrency == Currency ? EnglishCurrency : NativeCurrency;

    Items[LOCALE_SABBREVLANGNAME] = Row.Abbreviation;
    Items[LOCALE_SLIST] = Row.List;
    Items[LOCALE_IDEFAULTANSICODEPAGE] = std::to_string(Row.AnsiCodePage);
    Items[LOCALE_IDEFAULTCODEPAGE] = std::to_string(Row.OemCodePage);
    Items[LOCALE_INEUTRAL] = "0";

    UErrorCode Error = U_ZERO_ERROR;
    const bool IsMetric = ulocdata_getMeasurementSystem(Locale.getName(), &Error) != UMS_US;
    std::int32_t Height = 0, Width = 0;
    ulocdata_getPaperSize(Locale.getName(), &Height, &Width, &Error);
    Items[LOCALE_IMEASURE] = IsMetric ? "0" : "1";
    Items[LOCALE_IPAPERSIZE] = Width == 216 ? "1" : "9";
    Items[LOCALE_IREADINGLAYOUT] = Locale.isRightToLeft() ? "1" : IsIdeographic(Locale) ? "2" : "0";
}
