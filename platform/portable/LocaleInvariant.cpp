// The invariant locale: English words with dates, times and money of no country.
#include "platform/portable/LocaleData.h"

void MakeInvariant(TLocaleItems& Items)
{
    static constexpr struct {
        LCTYPE Item;
        const char* Answer;
    } Own[] = {
        {LOCALE_SLANGUAGE, "Invariant Language (Invariant Country)"},
        {LOCALE_SENGLISHDISPLAYNAME, "Invariant Language (Invariant Country)"},
        {LOCALE_SNATIVEDISPLAYNAME, "Invariant Language (Invariant Region)"},
        {LOCALE_SENGLANGUAGE, "Invariant Language"},
        {LOCALE_SNATIVELANGNAME, "Invariant Language"},
        {LOCALE_SLOCALIZEDLANGUAGENAME, "Invariant Language"},
        {LOCALE_SCOUNTRY, "Invariant Country"},
        {LOCALE_SENGCOUNTRY, "Invariant Country"},
        {LOCALE_SNATIVECTRYNAME, "Invariant Country"},
        {LOCALE_SABBREVCTRYNAME, ""},
        {LOCALE_SISO639LANGNAME, "iv"},
        {LOCALE_SISO639LANGNAME2, "ivl"},
        {LOCALE_SISO3166CTRYNAME, "IV"},
        {LOCALE_SISO3166CTRYNAME2, ""},
        {LOCALE_SENGCURRNAME, "International Monetary Fund"},
        {LOCALE_SNATIVECURRNAME, "International Monetary Fund"},
        {LOCALE_SCURRENCY, "\u00A4"},
        {LOCALE_SINTLSYMBOL, "XDR"},
        {LOCALE_SPOSITIVESIGN, "+"},
        {LOCALE_INEGATIVEPERCENT, "0"},
        {LOCALE_IPOSITIVEPERCENT, "0"},
        {LOCALE_IMEASURE, "0"},
        {LOCALE_IPAPERSIZE, "9"},
        {LOCALE_SSHORTDATE, "MM/dd/yyyy"},
        {LOCALE_SLONGDATE, "dddd, dd MMMM yyyy"},
        {LOCALE_SMONTHDAY, "MMMM dd"},
        {LOCALE_SYEARMONTH, "yyyy MMMM"},
        {LOCALE_STIMEFORMAT, "HH:mm:ss"},
        {LOCALE_SSHORTTIME, "HH:mm"},
        {LOCALE_ILDATE, "1"},
        {LOCALE_ITIME, "1"},
        {LOCALE_ITLZERO, "1"},
        {LOCALE_IDAYLZERO, "1"},
        {LOCALE_IMONLZERO, "1"},
    };
    for (const auto& [Item, Answer] : Own)
        Items[Item] = Answer;
}
