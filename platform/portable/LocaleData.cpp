#include "platform/portable/LocaleData.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <vector>

namespace {

struct TEntry {
    std::once_flag Made;
    TLocaleItems Items;
};

std::size_t PlaceOf(const TLocaleRow& Row)
{
    return static_cast<std::size_t>(&Row - LocaleRows().data());
}

} // namespace

const TLocaleItems& LocaleItems(const TLocaleRow& Row)
{
    // Never destroyed: other threads may still ask while the program ends.
    static auto& Entries = *new std::vector<TEntry>(LocaleRows().size() + 1);
    TEntry& Entry = Row.Id == LOCALE_INVARIANT ? Entries.back() : Entries[PlaceOf(Row)];
    std::call_once(Entry.Made, [&] {
        const icu::Locale Locale(IcuName(Row).c_str());
        AddLocaleNames(Entry.Items, Row, Locale);
        AddLocaleDates(Entry.Items, Locale);
        AddLocaleNumbers(Entry.Items, Locale);
        if (Row.Id == LOCALE_INVARIANT)
            MakeInvariant(Entry.Items);
    });
    return Entry.Items;
}

bool IsNumber(LCTYPE Item)
{
    static constexpr LCTYPE Ranges[][2] = {
        {LOCALE_ILANGUAGE, LOCALE_ILANGUAGE},
        {LOCALE_IDEFAULTLANGUAGE, LOCALE_IDEFAULTLANGUAGE},
        {LOCALE_IDEFAULTCODEPAGE, LOCALE_IDEFAULTCODEPAGE},
        {LOCALE_IMEASURE, LOCALE_IMEASURE},
        {LOCALE_IDIGITS, LOCALE_ILZERO},
        {LOCALE_ICURRDIGITS, LOCALE_INEGCURR},
        {LOCALE_IDATE, LOCALE_IMONLZERO},
        {LOCALE_IPOSSIGNPOSN, LOCALE_INEGSEPBYSPACE},
        {LOCALE_IREADINGLAYOUT, LOCALE_INEUTRAL},
        {LOCALE_INEGATIVEPERCENT, LOCALE_IPOSITIVEPERCENT},
        {LOCALE_IDEFAULTANSICODEPAGE, LOCALE_ITIMEMARKPOSN},
        {LOCALE_ICALENDARTYPE, LOCALE_IPAPERSIZE},
        {LOCALE_IFIRSTDAYOFWEEK, LOCALE_IFIRSTWEEKOFYEAR},
        {LOCALE_INEGNUMBER, LOCALE_INEGNUMBER},
        {LOCALE_IDIGITSUBSTITUTION, LOCALE_IDIGITSUBSTITUTION},
    };
    return std::any_of(std::begin(Ranges), std::end(Ranges),
                       [&](const auto& Range) { return Item >= Range[0] && Item <= Range[1]; });
}
