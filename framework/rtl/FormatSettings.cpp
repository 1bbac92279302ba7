#include "framework/rtl/FormatSettings.h"

#include <algorithm>
#include <cstdlib>

#include "framework/rtl/Convert.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/Utf8.h"

namespace {

// The system's numbers of calendars with eras, and of languages.
constexpr int JapaneseCalendar = 3;
constexpr int TaiwaneseCalendar = 4;
constexpr int KoreanCalendar = 5;
constexpr int EastAsianLanguages[] = {0x04, 0x11, 0x12};
constexpr int RightToLeft = 1; // of LOCALE_IREADINGLAYOUT

// Answers of the system for one locale.
class TLocaleInfo {
public:
    explicit TLocaleInfo(LCID Locale) : FLocale(Locale) {}

    std::string Text(LCTYPE Item, const char* Default) const
    {
        char Buffer[256];
        const int Size = GetLocaleInfoA(FLocale, Item | LOCALE_USE_CP_ACP, Buffer, sizeof Buffer);
        return Size > 0 ? std::string(Buffer, static_cast<std::size_t>(Size - 1)) : Default;
    }
    std::string Character(LCTYPE Item, const char* Default) const
    {
        return SeparatorCharacter(Text(Item, Default), Default);
    }
    int Number(LCTYPE Item, int Default) const { return StrToIntDef(Text(Item, ""), Default); }

private:
    LCID FLocale;
};

void SetSysLocale(const TLocaleInfo& Info, LCID Locale)
{
    SysLocale.DefaultLCID = static_cast<int>(Locale);
    SysLocale.PriLangID = PRIMARYLANGID(Locale);
    SysLocale.SubLangID = SUBLANGID(Locale);
    SysLocale.FarEast = std::ranges::count(EastAsianLanguages, SysLocale.PriLangID) != 0;
    SysLocale.MiddleEast = Info.Number(LOCALE_IREADINGLAYOUT, 0) == RightToLeft;
}

// The system numbers its items without gaps and its days from Monday on.
void SetNames(const TLocaleInfo& Info)
{
    for (int Month = 1; Month <= 12; ++Month) {
        const auto Offset = static_cast<LCTYPE>(Month - 1);
        ShortMonthNames[Month] = Info.Text(LOCALE_SABBREVMONTHNAME1 + Offset, ShortMonthNames[Month].c_str());
        LongMonthNames[Month] = Info.Text(LOCALE_SMONTHNAME1 + Offset, LongMonthNames[Month].c_str());
    }
    for (int Day = 1; Day <= 7; ++Day) {
        const auto Offset = static_cast<LCTYPE>((Day + 5) % 7);
        ShortDayNames[Day] = Info.Text(LOCALE_SABBREVDAYNAME1 + Offset, ShortDayNames[Day].c_str());
        LongDayNames[Day] = Info.Text(LOCALE_SDAYNAME1 + Offset, LongDayNames[Day].c_str());
    }
}

void SetNumbers(const TLocaleInfo& Info)
{
    CurrencyString = Info.Text(LOCALE_SCURRENCY, "");
    CurrencyFormat = Info.Number(LOCALE_ICURRENCY, 0);
    NegCurrFormat = Info.Number(LOCALE_INEGCURR, 0);
    CurrencyDecimals = Info.Number(LOCALE_ICURRDIGITS, 0);
    ThousandSeparator = Info.Character(LOCALE_STHOUSAND, ",");
    DecimalSeparator = Info.Character(LOCALE_SDECIMAL, ".");
}

void SetDates(const TLocaleInfo& Info)
{
    TPictureYears Years = SysLocale.FarEast ? TPictureYears::NoEras : TPictureYears::Gregorian;
    const int Calendar = Info.Number(LOCALE_ICALENDARTYPE, 1);
    if (Calendar == JapaneseCalendar || Calendar == TaiwaneseCalendar || Calendar == KoreanCalendar)
        Years = TPictureYears::InEras;
    DateSeparator = Info.Character(LOCALE_SDATE, "/");
    ShortDateFormat = TranslateDateFormat(Info.Text(LOCALE_SSHORTDATE, "m/d/yy"), Years);
    LongDateFormat = TranslateDateFormat(Info.Text(LOCALE_SLONGDATE, "mmmm d, yyyy"), Years);
}

void SetTimes(const TLocaleInfo& Info)
{
    TimeSeparator = Info.Character(LOCALE_STIME, ":");
    TimeAMString = Info.Text(LOCALE_S1159, "am");
    TimePMString = Info.Text(LOCALE_S2359, "pm");
    const std::string Hour = Info.Number(LOCALE_ITLZERO, 0) == 0 ? "h" : "hh";
    const bool HalfDays = Info.Number(LOCALE_ITIME, 0) == 0;
    const bool MarkBehind = Info.Number(LOCALE_ITIMEMARKPOSN, 0) == 0;
    const std::string Before = HalfDays && !MarkBehind ? "AMPM " : "";
    const std::string Behind = HalfDays && MarkBehind ? " AMPM" : "";
    ShortTimeFormat = Before + Hour + ":mm" + Behind;
    LongTimeFormat = Before + Hour + ":mm:ss" + Behind;
}

char Lower(char Letter)
{
    return Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter - 'A' + 'a') : Letter;
}

bool IsDirectionalMark(std::string_view Character)
{
    return Character == "\u200E" || Character == "\u200F" || Character == "\u061C";
}

} // namespace

std::string SeparatorCharacter(std::string_view SystemText, std::string_view Default)
{
    while (!SystemText.empty()) {
        const std::string_view Character = FirstCharacters(SystemText, 1);
        if (!IsDirectionalMark(Character))
            return std::string(Character);
        SystemText.remove_prefix(Character.size());
    }
    return std::string(Default);
}

void GetFormatSettings()
{
    GetFormatSettings(GetThreadLocale());
}

void GetFormatSettings(LCID Locale)
{
    const TLocaleInfo Info(Locale);
    SetSysLocale(Info, Locale);
    SetNames(Info);
    SetNumbers(Info);
    SetDates(Info);
    SetTimes(Info);
}

std::string TranslateDateFormat(std::string_view SystemPicture, TPictureYears Years)
{
    std::string Result;
    bool Quoted = false;
    for (std::size_t Index = 0; Index < SystemPicture.size(); ++Index) {
        const char Letter = SystemPicture[Index];
        if (Letter == '\'') {
            const bool Doubled = SystemPicture.substr(Index + 1).starts_with('\'');
            if (Doubled)
                ++Index;
            else
                Quoted = !Quoted;
            Result += !Doubled ? "'" : Quoted ? "'\"'\"'" : "\"'\"";
            continue;
        }
        if (Quoted) {
            Result += Letter;
            continue;
        }
        const char Small = Lower(Letter);
        if (Small == 'y' && Years == TPictureYears::InEras) {
            const std::size_t Run =
                std::min(SystemPicture.find_first_not_of(Letter, Index), SystemPicture.size()) - Index;
            Result += Run == 1 ? "e" : "ee";
            Index += Run - 1;
        } else if (Small != 'g' || Years != TPictureYears::NoEras) {
            Result += Small;
        }
    }
    return Result;
}
