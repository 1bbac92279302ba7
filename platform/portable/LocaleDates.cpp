// Names of days and months, dates and times.
#include <algorithm>
#include <cstring>
#include <memory>

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>

#include "platform/portable/LocaleData.h"
#include "platform/portable/LocalePictures.h"
#include "platform/portable/LocaleResource.h"

namespace {

using TSymbols = icu::DateFormatSymbols;

// Windows' days begin with Monday, ICU's with Sunday at index 1.
void AddDays(TLocaleItems& Items, LCTYPE First, const TSymbols& Symbols, TSymbols::DtWidthType Width)
{
    std::int32_t Count = 0;
    const auto* const Names = Symbols.getWeekdays(Count, TSymbols::FORMAT, Width);
    for (unsigned Day = 0; Day < 7; ++Day)
        Items[First + Day] = Utf8(Names[1 + (Day + 1) % 7]);
}

void AddMonths(TLocaleItems& Items, LCTYPE First, const TSymbols& Symbols, TSymbols::DtWidthType Width)
{
    std::int32_t Count = 0;
    const auto* const Names = Symbols.getMonths(Count, TSymbols::STANDALONE, Width);
    for (unsigned Month = 0; Month < 12; ++Month)
        Items[First + Month] = Utf8(Names[Month]);
}

// The short words; English ones where a language has none. Windows keeps their
// parts together with narrow spaces that do not break.
std::string DayHalf(const icu::Locale& Locale, const char* Place, const char16_t* English)
{
    auto Text =
        FindResource(Locale.getName(), {"calendar", "gregorian", "AmPmMarkersAbbr", Place}, TRoot::Without)
            .value_or(English);
    for (const char16_t Space : {u' ', u'\u00A0'})
        Text.findAndReplace(icu::UnicodeString(Space), icu::UnicodeString(u'\u202F'));
    return Utf8(Text);
}

// A pattern for chosen fields, such as "yMd".
std::string FieldsPicture(const icu::Locale& Locale, const char* Fields)
{
    return WindowsPicture(
        FindResource(Locale.getName(), {"calendar", "gregorian", "availableFormats", Fields}).value_or(u""));
}

// A whole pattern by its place among them: times from full (0) to short (3),
// then dates.
icu::UnicodeString WholePattern(const icu::Locale& Locale, const char* Place)
{
    return FindResource(Locale.getName(), {"calendar", "gregorian", "DateTimePatterns", Place}).value_or(u"");
}

// Windows has plain spaces in times where ICU has narrow ones.
std::string TimePicture(const icu::Locale& Locale, const char* Place)
{
    return WindowsPicture(
        WholePattern(Locale, Place).findAndReplace(icu::UnicodeString(u'\u202F'), icu::UnicodeString(u' ')));
}

const char* Flag(bool Value)
{
    return Value ? "1" : "0";
}

void AddDate(TLocaleItems& Items, const std::string& Short, const std::string& Long)
{
    Items[LOCALE_SSHORTDATE] = Short;
    Items[LOCALE_SLONGDATE] = Long;
    Items[LOCALE_SDATE] = PictureSeparator(Short);
    Items[LOCALE_IDATE] = std::to_string(PictureOrder(Short));
    Items[LOCALE_ILDATE] = std::to_string(PictureOrder(Long));
    Items[LOCALE_ICENTURY] = Flag(HasField(Short, 'y', 4));
    Items[LOCALE_IDAYLZERO] = Flag(HasField(Short, 'd', 2));
    Items[LOCALE_IMONLZERO] = Flag(HasField(Short, 'M', 2));
}

void AddTime(TLocaleItems& Items, const std::string& Time)
{
    const std::size_t Mark = Time.find('t');
    Items[LOCALE_STIMEFORMAT] = Time;
    Items[LOCALE_STIME] = PictureSeparator(Time.substr(std::min(Time.find_first_of("hH"), Time.size())));
    Items[LOCALE_ITIME] = Flag(HasField(Time, 'H', 1));
    Items[LOCALE_ITLZERO] = Flag(HasField(Time, 'H', 2) || HasField(Time, 'h', 2));
    Items[LOCALE_ITIMEMARKPOSN] = Flag(Mark < Time.find_first_of("hH"));
}

void AddWeek(TLocaleItems& Items, const icu::Calendar& Calendar)
{
    UErrorCode Error = U_ZERO_ERROR;
    const int First = Calendar.getFirstDayOfWeek(Error);
    Items[LOCALE_IFIRSTDAYOFWEEK] = std::to_string((First + 5) % 7);
    Items[LOCALE_IFIRSTWEEKOFYEAR] = Calendar.getMinimalDaysInFirstWeek() == 4 ? "2" : "0";
}

const char* CalendarNumber(const char* Type)
{
    static constexpr const char* Numbers[][2] = {
        {"buddhist", "7"}, {"persian", "22"}, {"islamic-umalqura", "23"}};
    for (const auto& [Name, Number] : Numbers)
        if (std::strcmp(Name, Type) == 0)
            return Number;
    return "1";
}

} // namespace

void AddLocaleDates(TLocaleItems& Items, const icu::Locale& Locale)
{
    UErrorCode Error = U_ZERO_ERROR;
    icu::Locale Gregorian(Locale);
    const std::unique_ptr<icu::Calendar> Own(icu::Calendar::createInstance(Locale, Error));
    Items[LOCALE_ICALENDARTYPE] = CalendarNumber(Own->getType());
    AddWeek(Items, *Own);
    Gregorian.setKeywordValue("calendar", "gregorian", Error);

    const TSymbols Symbols(Gregorian, Error);
    AddDays(Items, LOCALE_SDAYNAME1, Symbols, TSymbols::WIDE);
    AddDays(Items, LOCALE_SABBREVDAYNAME1, Symbols, TSymbols::ABBREVIATED);
    AddDays(Items, LOCALE_SSHORTESTDAYNAME1, Symbols, TSymbols::SHORT);
    AddMonths(Items, LOCALE_SMONTHNAME1, Symbols, TSymbols::WIDE);
    AddMonths(Items, LOCALE_SABBREVMONTHNAME1, Symbols, TSymbols::ABBREVIATED);
    Items[LOCALE_SMONTHNAME13] = Items[LOCALE_SABBREVMONTHNAME13] = "";
    Items[LOCALE_S1159] = DayHalf(Locale, "#0", u"AM");
    Items[LOCALE_S2359] = DayHalf(Locale, "#1", u"PM");
    AddDate(Items, FieldsPicture(Locale, "yMd"), WindowsPicture(WholePattern(Locale, "#4")));
    AddTime(Items, TimePicture(Locale, "#2"));
    Items[LOCALE_SSHORTTIME] = TimePicture(Locale, "#3");
    Items[LOCALE_SYEARMONTH] = FieldsPicture(Locale, "yMMMM");
    Items[LOCALE_SMONTHDAY] = FieldsPicture(Locale, "MMMMd");
}
