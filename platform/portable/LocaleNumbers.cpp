// Separators, groups, digits and currencies.
#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

#include <unicode/dcfmtsym.h>
#include <unicode/numsys.h>

#include "platform/portable/LocaleData.h"
#include "platform/portable/LocalePictures.h"
#include "platform/portable/LocaleResource.h"

namespace {

// The pattern of a kind of numbers written with European digits.
icu::UnicodeString Pattern(const icu::Locale& Locale, const char* Kind)
{
    return FindResource(Locale.getName(), {"NumberElements", "latn", "patterns", Kind}).value_or(u"");
}

// Windows' amounts are written as in accounts, where a language has such a form.
icu::UnicodeString MoneyPattern(const icu::Locale& Locale)
{
    const auto Accounts = FindResource(
        Locale.getName(), {"NumberElements", "latn", "patterns", "accountingFormat"}, TRoot::Without);
    return Accounts ? *Accounts : Pattern(Locale, "currencyFormat");
}

// "3;0", or "3;2;0" when all groups but the first have two digits ("#,##,##0").
std::string Grouping(const icu::UnicodeString& Pattern)
{
    const int End = Pattern.indexOf(u'0') + 1;
    const int Last = Pattern.lastIndexOf(u',', 0, End);
    const int Before = Pattern.lastIndexOf(u',', 0, std::max(Last, 0));
    if (Last < 0)
        return "0";
    const std::string First = std::to_string(End - Last - 1);
    return Before < 0 ? First + ";0" : First + ";" + std::to_string(Last - Before - 1) + ";0";
}

void AddNativeDigits(TLocaleItems& Items, const icu::Locale& Locale)
{
    UErrorCode Error = U_ZERO_ERROR;
    icu::Locale Native(Locale);
    Native.setKeywordValue("numbers", "native", Error);
    const std::unique_ptr<icu::NumberingSystem> System(icu::NumberingSystem::createInstance(Native, Error));
    const std::string_view Name = System->getName();
    // Ideographs are no digits to Windows, and Arabic ones depend on the context.
    const bool AreDigits = Name != "hanidec";
    Items[LOCALE_SNATIVEDIGITS] = AreDigits ? Utf8(System->getDescription()) : "0123456789";
    Items[LOCALE_IDIGITSUBSTITUTION] = Name == "arab" || Name == "arabext" ? "0" : "1";
}

// What follows from the numbers of the currency formats: where the sign stands,
// whether the symbol precedes, whether a space separates.
void AddSignPlaces(TLocaleItems& Items, const TCurrencyShape& Shape)
{
    // By INEGCURR.
    static constexpr const char* SignPlaces[] = {"0", "3", "4", "2", "0", "1", "3", "4",
                                                 "1", "3", "4", "2", "4", "3", "0", "0"};
    const int Negative = Shape.Negative();
    const bool AfterSymbol = Shape.SymbolFirst && Shape.Minus == TCurrencyShape::AfterSymbol;
    Items[LOCALE_INEGSIGNPOSN] = SignPlaces[Negative];
    Items[LOCALE_IPOSSIGNPOSN] = AfterSymbol ? "4" : Shape.SymbolFirst ? "3" : "1";
    Items[LOCALE_IPOSSYMPRECEDES] = Items[LOCALE_INEGSYMPRECEDES] = Shape.SymbolFirst ? "1" : "0";
    Items[LOCALE_IPOSSEPBYSPACE] = Items[LOCALE_INEGSEPBYSPACE] = Shape.Space ? "1" : "0";
}

// "#,##0 %" and its kin.
void AddPercent(TLocaleItems& Items, const icu::UnicodeString& Percent)
{
    const bool SignFirst = Percent.indexOf(u'%') < Percent.indexOf(u'0');
    const bool Space = Percent.indexOf(u' ') >= 0 || Percent.indexOf(u'\u00A0') >= 0;
    Items[LOCALE_IPOSITIVEPERCENT] = SignFirst ? (Space ? "3" : "2") : Space ? "0" : "1";
    Items[LOCALE_INEGATIVEPERCENT] = SignFirst ? (Space ? "7" : "2") : Space ? "0" : "1";
}

// Windows has no narrow space between thousands.
std::string Group(const std::string& Separator)
{
    return Separator == "\u202F" ? "\u00A0" : Separator;
}

} // namespace

std::string CurrencyOf(const icu::Locale& Locale)
{
    // Those of the regions that are no countries.
    static constexpr const char* Regions[][2] = {{"001", "XDR"}, {"419", "XDR"}, {"029", "XCD"}};
    for (const auto& [Region, Code] : Regions)
        if (std::strcmp(Region, Locale.getCountry()) == 0)
            return Code;
    UErrorCode Error = U_ZERO_ERROR;
    char16_t Code[4] = {};
    ucurr_forLocale(Locale.getName(), Code, 4, &Error);
    return Utf8(icu::UnicodeString(Code));
}

std::string CurrencyText(const std::string& Code, const icu::Locale& In, UCurrNameStyle Style)
{
    UErrorCode Error = U_ZERO_ERROR;
    std::int32_t Length = 0;
    auto Letters = icu::UnicodeString::fromUTF8(Code); // which ICU returns when it knows no more
    const char16_t* const Text =
        ucurr_getName(Letters.getTerminatedBuffer(), In.getName(), Style, nullptr, &Length, &Error);
    return U_SUCCESS(Error) ? Utf8(icu::UnicodeString(Text, Length)) : Code;
}

void AddLocaleNumbers(TLocaleItems& Items, const icu::Locale& Locale)
{
    UErrorCode Error = U_ZERO_ERROR;
    icu::Locale Latin(Locale);
    Latin.setKeywordValue("numbers", "latn", Error);
    const icu::DecimalFormatSymbols Symbols(Latin, Error);
    const auto Symbol = [&](icu::DecimalFormatSymbols::ENumberFormatSymbol Which) {
        return Utf8(Symbols.getConstSymbol(Which));
    };
    using S = icu::DecimalFormatSymbols;
    Items[LOCALE_SDECIMAL] = Symbol(S::kDecimalSeparatorSymbol);
    Items[LOCALE_STHOUSAND] = Group(Symbol(S::kGroupingSeparatorSymbol));
    Items[LOCALE_SMONDECIMALSEP] = Symbol(S::kMonetarySeparatorSymbol);
    Items[LOCALE_SMONTHOUSANDSEP] = Group(Symbol(S::kMonetaryGroupingSeparatorSymbol));
    Items[LOCALE_SPERCENT] = Symbol(S::kPercentSymbol);
    Items[LOCALE_SPERMILLE] = Symbol(S::kPerMillSymbol);
    Items[LOCALE_SNEGATIVESIGN] = "-";
    Items[LOCALE_SPOSITIVESIGN] = "";
    Items[LOCALE_IDIGITS] = "2";
    Items[LOCALE_ILZERO] = "1";
    Items[LOCALE_INEGNUMBER] = "1";
    AddNativeDigits(Items, Locale);

    const icu::UnicodeString Money = MoneyPattern(Locale);
    Items[LOCALE_SGROUPING] = Grouping(Pattern(Locale, "decimalFormat"));
    Items[LOCALE_SMONGROUPING] = Grouping(Money);
    const TCurrencyShape Shape = CurrencyShape(Money);
    Items[LOCALE_ICURRENCY] = std::to_string(Shape.Positive());
    Items[LOCALE_INEGCURR] = std::to_string(Shape.Negative());
    AddSignPlaces(Items, Shape);
    AddPercent(Items, Pattern(Locale, "percentFormat"));

    const std::string Currency = CurrencyOf(Locale);
    auto Letters = icu::UnicodeString::fromUTF8(Currency);
    const int Digits = ucurr_getDefaultFractionDigits(Letters.getTerminatedBuffer(), &Error);
    Items[LOCALE_SINTLSYMBOL] = Currency;
    Items[LOCALE_ICURRDIGITS] = Items[LOCALE_IINTLCURRDIGITS] = std::to_string(Digits);
    Items[LOCALE_SCURRENCY] = CurrencyText(Currency, Locale, UCURR_NARROW_SYMBOL_NAME);
}
