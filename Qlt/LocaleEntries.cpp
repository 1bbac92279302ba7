#include "Qlt/LocaleEntries.h"

#include <array>
#include <unordered_map>

#include "framework/rtl/FormatSettings.h"
#include "framework/rtl/SysUtils.h"
#include "platform/winapi.h"

namespace {

struct TEntryKind;

// Takes a value into the format variable.
using TApply = void (*)(const TEntryKind& Kind, const std::string& Value);

struct TEntryKind {
    std::string Key; // "_LONGDAYNAMES[1]"
    LCTYPE Item;     // of GetLocaleInfo; 0: not read from there
    std::string Fallback;
    TApply Apply;  // null: no variable
    int Index = 0; // of a day or month, from 1
};

constexpr std::array EnglishDays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                    "Friday", "Saturday", "Sunday"};
constexpr std::array EnglishMonths = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};
constexpr size_t ShortNameLength = 3;

template<std::string& Variable>
void SetText(const TEntryKind&, const std::string& Value)
{
    Variable = Value;
}

template<std::string& Variable>
void SetSeparator(const TEntryKind& Kind, const std::string& Value)
{
    if (Value.empty())
        throw EConvertError("'" + Kind.Key + "' needs a character");
    Variable = SeparatorCharacter(Value, Kind.Fallback);
}

template<int& Variable>
void SetByte(const TEntryKind&, const std::string& Value)
{
    Variable = static_cast<uint8_t>(StrToInt(Value));
}

template<auto& Names>
void SetName(const TEntryKind& Kind, const std::string& Value)
{
    Names[Kind.Index] = Value;
}

void SetCenturyWindow(const TEntryKind&, const std::string& Value)
{
    TwoDigitYearCenturyWindow = static_cast<uint16_t>(StrToInt(Value));
}

// A row for each name; the system numbers the items without gaps.
template<size_t Count>
void AddNames(std::vector<TEntryKind>& Kinds, const std::string& Key, LCTYPE FirstItem,
              const std::array<const char*, Count>& English, bool Short, TApply Apply)
{
    for (size_t I = 0; I < Count; ++I) {
        const std::string Name = English[I];
        Kinds.push_back({Key + "[" + std::to_string(I + 1) + "]", FirstItem + static_cast<LCTYPE>(I),
                         Short ? Name.substr(0, ShortNameLength) : Name, Apply, static_cast<int>(I) + 1});
    }
}

std::vector<TEntryKind> MakeEntryKinds()
{
    std::vector<TEntryKind> Kinds;
    AddNames(Kinds, "_LONGDAYNAMES", LOCALE_SDAYNAME1, EnglishDays, false, SetName<LongDayNames>);
    AddNames(Kinds, "_SHORTDAYNAMES", LOCALE_SABBREVDAYNAME1, EnglishDays, true, SetName<ShortDayNames>);
    AddNames(Kinds, "_LONGMONTHNAMES", LOCALE_SMONTHNAME1, EnglishMonths, false, SetName<LongMonthNames>);
    AddNames(Kinds, "_SHORTMONTHNAMES", LOCALE_SABBREVMONTHNAME1, EnglishMonths, true,
             SetName<ShortMonthNames>);
    const std::vector<TEntryKind> Others = {
        {"_SHORTTIMEFORMAT", 0, "", SetText<ShortTimeFormat>},
        {"_LONGTIMEFORMAT", 0, "", SetText<LongTimeFormat>},
        {"_TIMESEPARATOR", LOCALE_STIME, ":", SetSeparator<TimeSeparator>},
        {"_TIMEAMSTRING", LOCALE_S1159, "am", SetText<TimeAMString>},
        {"_TIMEPMSTRING", LOCALE_S2359, "pm", SetText<TimePMString>},
        {"_DATESEPARATOR", LOCALE_SDATE, "/", SetSeparator<DateSeparator>},
        {"_SHORTDATEFORMAT", LOCALE_SSHORTDATE, "m/d/yy", SetText<ShortDateFormat>},
        {"_LONGDATEFORMAT", LOCALE_SLONGDATE, "mmmm d, yyyy", SetText<LongDateFormat>},
        {"_CURRENCYFORMAT", LOCALE_ICURRENCY, "0", nullptr},
        {"_NEGCURRFORMAT", LOCALE_INEGCURR, "0", SetByte<NegCurrFormat>},
        {"_CURRENCYDECIMALS", LOCALE_ICURRDIGITS, "2", SetByte<CurrencyDecimals>},
        {"_CURRENCYSTRING", LOCALE_SCURRENCY, "", SetText<CurrencyString>},
        {"_THOUSANDSEPARATOR", LOCALE_STHOUSAND, ",", SetSeparator<ThousandSeparator>},
        {"_DECIMALSEPARATOR", LOCALE_SDECIMAL, ".", SetSeparator<DecimalSeparator>},
        {std::string(EnglishNameKey), LOCALE_SENGLANGUAGE, "Unknown", nullptr},
        {std::string(NativeNameKey), LOCALE_SNATIVELANGNAME, "Unknown", nullptr},
        {std::string(EnglishCountryKey), LOCALE_SENGCOUNTRY, "Unknown", nullptr},
        {std::string(NativeCountryKey), LOCALE_SNATIVECTRYNAME, "Unknown", nullptr},
        {"_LISTSEPARATOR", LOCALE_SLIST, ";", SetSeparator<ListSeparator>},
        {"_TWODIGITYEARCENTURYWINDOW", 0, "0", SetCenturyWindow},
    };
    Kinds.insert(Kinds.end(), Others.begin(), Others.end());
    return Kinds;
}

const std::vector<TEntryKind>& EntryKinds()
{
    static const std::vector<TEntryKind> Kinds = MakeEntryKinds();
    return Kinds;
}

const TEntryKind* FindEntryKind(std::string_view Key)
{
    static const auto ByKey = [] {
        std::unordered_map<std::string_view, const TEntryKind*> Result;
        for (const TEntryKind& Kind : EntryKinds())
            Result.emplace(Kind.Key, &Kind);
        return Result;
    }();
    const auto Found = ByKey.find(Key);
    return Found == ByKey.end() ? nullptr : Found->second;
}

std::string ReadItem(int Locale, LCTYPE Item, const std::string& Fallback)
{
    char Buffer[256];
    const int Size = GetLocaleInfoA(static_cast<LCID>(Locale), Item | LOCALE_USE_CP_ACP, Buffer, 255);
    return Size == 0 ? Fallback : Buffer;
}

struct TTimeFormats {
    std::string Short;
    std::string Long;
};

// The leading zero of numbers, not that of times, decides between "h" and "hh".
TTimeFormats ReadTimeFormats(int Locale)
{
    std::string Before = ReadItem(Locale, LOCALE_ILZERO, "0") == "0" ? "h" : "hh";
    std::string After;
    if (ReadItem(Locale, LOCALE_ITIME, "0") == "0") {
        if (ReadItem(Locale, LOCALE_ITIMEMARKPOSN, " AMPM") == "0")
            After = " AMPM";
        else
            Before = "AMPM " + Before;
    }
    return {Before + ":mm" + After, Before + ":mm:ss" + After};
}

} // namespace

std::string EntryPrefix(int Locale)
{
    return IntToHex(Locale, 8);
}

std::vector<std::string> ReadLocaleEntries(int Locale)
{
    const std::string Prefix = EntryPrefix(Locale);
    const TTimeFormats Times = ReadTimeFormats(Locale);
    std::vector<std::string> Result;
    for (const TEntryKind& Kind : EntryKinds()) {
        std::string Value = Kind.Item ? ReadItem(Locale, Kind.Item, Kind.Fallback) : Kind.Fallback;
        if (Kind.Key == "_SHORTTIMEFORMAT")
            Value = Times.Short;
        else if (Kind.Key == "_LONGTIMEFORMAT")
            Value = Times.Long;
        Result.push_back(Prefix + Kind.Key + "=" + Value);
    }
    return Result;
}

void ApplyLocaleEntry(std::string_view Key, std::string_view Value)
{
    const TEntryKind* const Kind = FindEntryKind(Key);
    if (Kind && Kind->Apply)
        Kind->Apply(*Kind, std::string(Value));
}
