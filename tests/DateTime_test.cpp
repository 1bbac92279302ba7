#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "framework/rtl/FormatSettings.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/SystemTime.h"
#include "framework/rtl/Utf8.h"
#include "tests/FormatVarsScope.h"

namespace {

template<typename TAction>
std::string ErrorOf(TAction Action)
{
    try {
        Action();
    } catch (const EConvertError& Error) {
        return Error.Message();
    }
    return "no error";
}

TDateTime At(int Year, int Month, int Day, int Hour = 0, int Minute = 0, int Second = 0, int Millisecond = 0)
{
    return ReplaceTime(EncodeDate(Year, Month, Day), EncodeTime(Hour, Minute, Second, Millisecond));
}

std::string Plain(TDateTime Value)
{
    return FormatDateTime("yyyy-mm-dd hh\":\"nn\":\"ss.zzz", Value);
}

// Thursday, with a number of its own in every part.
const TDateTime Sample = At(2024, 2, 29, 15, 4, 5, 67);

struct TPicture {
    const char* Picture;
    const char* Expected;
};

void ExpectPictures(TDateTime Value, std::initializer_list<TPicture> Cases)
{
    for (const auto& [Picture, Expected] : Cases)
        EXPECT_EQ(FormatDateTime(Picture, Value), Expected) << Picture;
}

} // namespace

TEST(DateTime, CountsDaysOnBothSidesOfItsFirst)
{
    const struct {
        int Year, Month, Day;
        double Number;
        int Weekday;
    } Cases[] = {
        {1899, 12, 30, 0, 7},     {1899, 12, 29, -1, 6},      {1900, 1, 1, 2, 2},
        {1900, 3, 1, 61, 5},      {2000, 2, 29, 36585, 3},    {2024, 2, 29, 45351, 5},
        {1, 1, 1, -693593, 2},    {9999, 12, 31, 2958465, 6}, {1600, 2, 29, -109512, 3},
        {1601, 1, 1, -109205, 2}, {1582, 10, 10, -115863, 1},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Number);
        EXPECT_EQ(EncodeDate(Case.Year, Case.Month, Case.Day), Case.Number);
        EXPECT_EQ(DayOfWeek(Case.Number), Case.Weekday);
    }
    // Every day of the calendar, there and back.
    int Year = 0, Month = 0, Day = 0;
    for (TDateTime Date = MinDateTime; Date <= MaxDateTime; Date += 1) {
        DecodeDate(Date, Year, Month, Day);
        ASSERT_EQ(EncodeDate(Year, Month, Day), Date);
    }
    EXPECT_EQ(Year * 10000 + Month * 100 + Day, 99991231);
}

TEST(DateTime, CountsTheTimeAwayFromZero)
{
    EXPECT_EQ(At(1899, 12, 29, 6), -1.25);
    const struct {
        TDateTime Value;
        const char* Expected;
    } Cases[] = {
        {-1.25, "1899-12-29 06:00:00.000"},
        {-0.25, "1899-12-30 06:00:00.000"},
        {1.5, "1899-12-31 12:00:00.000"},
        {-0.9999999999, "1899-12-31 00:00:00.000"}, // rounded up to the next day
        {-1.9999999999, "1899-12-30 00:00:00.000"},
        {MaxDateTime, "9999-12-31 23:59:59.999"},
        {2958465.999999995, "9999-12-31 23:59:59.999"},
        {MinDateTime - 0.75, "0001-01-01 18:00:00.000"},
        {2958466, "0000-00-00 00:00:00.000"},
        {-693594, "0000-00-00 00:00:00.000"},
        {1e300, "0000-00-00 00:00:00.000"},
        {std::numeric_limits<double>::quiet_NaN(), "0000-00-00 00:00:00.000"},
        {-std::numeric_limits<double>::infinity(), "0000-00-00 00:00:00.000"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(Plain(Case.Value), Case.Expected) << Case.Value;
    EXPECT_EQ(FormatDateTime("dddd mmmm", 1e300), " ");
}

TEST(DateTime, RefusesWhatIsNoDateOrTime)
{
    for (const auto& [Year, Month, Day] : {std::tuple{2023, 2, 29},
                                           {1900, 2, 29},
                                           {2024, 4, 31},
                                           {2024, 0, 1},
                                           {2024, 13, 1},
                                           {2024, 1, 0},
                                           {0, 1, 1},
                                           {10000, 1, 1},
                                           {-1, 1, 1}})
        EXPECT_EQ(ErrorOf([&, Y = Year, M = Month, D = Day] { EncodeDate(Y, M, D); }),
                  "Invalid argument to date encode");
    for (const auto& [Hour, Minute, Second, Millisecond] :
         {std::tuple{24, 0, 0, 0}, {0, 60, 0, 0}, {0, 0, 60, 0}, {0, 0, 0, 1000}, {-1, 0, 0, 0}})
        EXPECT_EQ(ErrorOf([&, H = Hour, M = Minute, S = Second, Z = Millisecond] { EncodeTime(H, M, S, Z); }),
                  "Invalid argument to time encode");
}

TEST(DateTime, MovesByMonths)
{
    EXPECT_EQ(Plain(IncMonth(Sample, 12)), "2025-02-28 15:04:05.067");
    EXPECT_EQ(Plain(IncMonth(At(2024, 1, 31))), "2024-02-29 00:00:00.000");
    EXPECT_EQ(Plain(IncMonth(At(2024, 1, 31), -1)), "2023-12-31 00:00:00.000");
    EXPECT_EQ(Plain(IncMonth(At(1900, 1, 5, 6), -1)), "1899-12-05 06:00:00.000"); // across day 0
    for (const int Months : {INT_MAX, INT_MIN, 96000})
        EXPECT_EQ(ErrorOf([&] { IncMonth(Sample, Months); }), "Invalid argument to date encode");
    EXPECT_EQ(ErrorOf([] { IncMonth(1e9); }), "Invalid argument to date encode");
}

TEST(DateTime, TakesTheFormOfTheSystem)
{
    const struct {
        double Value;
        int Year, Month, Day, DayOfWeek;
    } Cases[] = {
        {2, 1900, 1, 1, 1},       {36526, 2000, 1, 1, 6},    {36585, 2000, 2, 29, 2},
        {38353.5, 2005, 1, 1, 6}, {46022, 2025, 12, 31, 3},  {73050, 2099, 12, 31, 4},
        {-109205, 1601, 1, 1, 1}, {401768, 2999, 12, 31, 2},
    };
    for (const auto& Case : Cases) {
        const SYSTEMTIME Time = DateTimeToSystemTime(Case.Value);
        SCOPED_TRACE(Case.Value);
        EXPECT_EQ(Time.wYear, Case.Year);
        EXPECT_EQ(Time.wMonth, Case.Month);
        EXPECT_EQ(Time.wDay, Case.Day);
        EXPECT_EQ(Time.wDayOfWeek, Case.DayOfWeek);
        EXPECT_EQ(SystemTimeToDateTime(Time), Case.Value);
    }
    for (const TDateTime Value : {Sample, At(1601, 1, 1), At(1899, 12, 29, 23, 59, 59, 999), MaxDateTime})
        EXPECT_EQ(Plain(SystemTimeToDateTime(DateTimeToSystemTime(Value))), Plain(Value));
    EXPECT_EQ(DateTimeToSystemTime(Sample).wDayOfWeek, 4);
    EXPECT_EQ(Plain(SystemTimeToDateTime(DateTimeToSystemTime(At(1066, 10, 14, 9)))),
              "1601-01-01 09:00:00.000");
    EXPECT_EQ(ErrorOf([] { SystemTimeToDateTime(SYSTEMTIME{}); }), "Invalid argument to date encode");
    const TDateTime Before = Now(), Today = Date(), After = Now();
    EXPECT_TRUE(Today == std::trunc(Before) || Today == std::trunc(After));
    EXPECT_GT(After, 45000);
}

TEST(DatePicture, KnowsEveryLetter)
{
    const TFormatVarsScope Scope;
    ExpectPictures(Sample, {
                               {"d|dd|ddd|dddd", "29|29|Thu|Thursday"},
                               {"ddddd|dddddd|ddddddd", "2/29/24|February 29, 2024|February 29, 2024"},
                               {"m|mm|mmm|mmmm|mmmmm", "2|02|Feb|February|February"},
                               {"y|yy|yyy|yyyy", "24|24|2024|2024"},
                               {"h|hh|hhh", "15|15|15"},
                               {"n|nn|nnn|s|ss", "4|04|04|5|05"},
                               {"z|zz|zzz|zzzz", "67|67|067|067"},
                               {"t|tt", "3:04 pm|3:04:05 pm"},
                               {"c", "2/29/24 3:04:05 pm"},
                               {"", "2/29/24 3:04:05 pm"},
                               {"aaa|aaaa", "Thu|Thursday"},
                               {"h am/pm|h Am/Pm|h a/p|h AMPM", "3 pm|3 Pm|3 p|3 pm"},
                               {"am/pm hh", "pm 03"},
                               {"hh hh a/p", "15 03 p"}, // the mark belongs to the hour next to it
                               {"h 'a/p' nn", "15 a/p 04"},
                               {"h'am/pm", "15am/pm"},
                               {"dd/mm/yyyy hh:mm:ss", "29/02/2024 15:04:05"},
                               {"h\xE6\x99\x82m\xE5\x88\x86", "15\xE6\x99\x82"
                                                              "4\xE5\x88\x86"},
                               {"mm hh mm mm", "02 15 04 02"}, // minutes once, directly after hours
                               {"hh ss mm", "15 05 02"},
                               {"h 'of' m", "15 of 4"},
                               {"DD/MM/YYYY HH:NN:SS.ZZZ", "29/02/2024 15:04:05.067"},
                               {"Dd Mm", "2929 22"}, // a run is of one case
                               {"'d''d'\"d'd\"", "ddd'd"},
                               {"d 'day", "29 day"},
                               {"'", ""},
                               {"q x u %s", "q x u %5"},
                               {"g|gg|e|ee", "||2024|2024"},
                           });
    ExpectPictures(At(2009, 3, 1), {{"c", "3/1/09"}, {"yy", "09"}, {"h:nn ampm", "12:00 am"}});
    ExpectPictures(At(2009, 3, 1, 12, 30), {{"h:nn ampm", "12:30 pm"}, {"hh", "12"}});
    std::string Text;
    DateTimeToString(Text, "yyyy", Sample);
    EXPECT_EQ(Text, "2024");
}

TEST(DatePicture, FollowsTheFormatVariables)
{
    const TFormatVarsScope Scope;
    LongDayNames[5] = "\xD1\x87\xD0\xB5\xD1\x82\xD0\xB2\xD0\xB5\xD1\x80\xD0\xB3"; // Cyrillic
    ShortDayNames[5] = "\xE6\x9C\xA8";                                            // Japanese
    ShortMonthNames[2] = "f\xC3\xA9vr.";
    LongMonthNames[2] = "\xD9\x81\xD8\xA8\xD8\xB1\xD8\xA7\xD9\x8A\xD8\xB1"; // Arabic
    DateSeparator = "\xC2\xA0";
    TimeSeparator = "\xE2\x80\xAF";
    TimePMString = "\xE5\x8D\x88\xE5\xBE\x8C";
    ShortDateFormat = "yyyy/mm/dd";
    LongTimeFormat = "AMPM h:mm";
    EXPECT_EQ(FormatDateTime("dddd ddd mmm mmmm", Sample),
              LongDayNames[5] + " " + ShortDayNames[5] + " " + ShortMonthNames[2] + " " + LongMonthNames[2]);
    EXPECT_EQ(DateToStr(Sample), "2024\xC2\xA0"
                                 "02\xC2\xA0"
                                 "29");
    EXPECT_EQ(TimeToStr(Sample), TimePMString + " 3\xE2\x80\xAF"
                                                "04");
    EXPECT_EQ(DateTimeToStr(Sample), DateToStr(Sample) + " " + TimeToStr(Sample));
    DateSeparator = "";
    EXPECT_EQ(DateToStr(Sample), "20240229");
    // A damaged file's format that names itself must come to an end.
    ShortDateFormat = "[ddddd c t]";
    EXPECT_EQ(DateToStr(Sample), "[   ]");
    EXPECT_THROW(LongDayNames[0], ERangeError);
    EXPECT_THROW(LongMonthNames[13], ERangeError);
}

TEST(DatePicture, EndsLongTextsAtACharacter)
{
    const std::string Long = "'" + std::string(254, 'x') + "\xE6\x9C\xA8'd";
    EXPECT_EQ(FormatDateTime(Long, Sample), std::string(254, 'x'));
    EXPECT_EQ(FormatDateTime(std::string(300, '-'), Sample).size(), 256u);
    std::string Signs;
    for (int Count = 0; Count < 200; ++Count)
        Signs += "\xE2\x80\xAF";
    EXPECT_EQ(FormatDateTime(Signs, Sample).size(), 255u);
    EXPECT_EQ(FormatDateTime("\xFF\xE2\x80", Sample), "\xFF\xE2\x80"); // no UTF-8, left as it is
}

TEST(DatePicture, CountsYearsInEras)
{
    const TFormatVarsScope Scope;
    SysLocale.PriLangID = 0x11;
    SysLocale.DefaultLCID = 0x411;
    ExpectPictures(At(2024, 1, 2), {{"gge/m", "\xE4\xBB\xA4\xE5\x92\x8C"
                                              "6/1"},
                                    {"gee", "\xE4\xBB\xA4"
                                            "06"}});
    ExpectPictures(At(2019, 4, 30), {{"gge", "\xE5\xB9\xB3\xE6\x88\x90"
                                             "31"}});
    ExpectPictures(At(1989, 1, 8), {{"gge", "\xE5\xB9\xB3\xE6\x88\x90"
                                            "1"}});
    ExpectPictures(At(1860, 1, 1), {{"gge", "1860"}});
    ShortDateFormat = "gge/m/d";
    for (const TDateTime Day : {At(2024, 1, 2), At(1989, 1, 7), At(1868, 9, 8)})
        EXPECT_EQ(StrToDate(DateToStr(Day)), Day) << DateToStr(Day);
    EXPECT_EQ(ErrorOf([] { StrToDate("abc6/1/2"); }), "'abc6/1/2' is not a valid date");
    SysLocale.PriLangID = 0x04;
    SysLocale.DefaultLCID = 0x404;
    ExpectPictures(At(2024, 1, 2), {{"ee/mm", "113/01"}});
    ShortDateFormat = "e/m/d";
    EXPECT_EQ(StrToDate("113/1/2"), At(2024, 1, 2));
    SysLocale.PriLangID = 0x12;
    ExpectPictures(At(2024, 1, 2), {{"e", "4357"}});
}

TEST(DateText, ReadsWhatItWrote)
{
    const TFormatVarsScope Scope;
    const struct {
        const char *Picture, *Separator, *Time, *TimeSign;
    } Cases[] = {
        {"m/d/yyyy", "/", "h:mm:ss AMPM", ":"},
        {"dd/mm/yyyy", ".", "hh:mm:ss", ":"},
        {"yyyy/mm/dd", "-", "AMPM h:mm:ss", "."},
        {"d/m/yyyy", "\xC2\xA0", "hh:nn:ss", "\xE2\x80\xAF"},
        {"yyyy/ mm/ dd/", ".", "h:mm:ss.zzz am/pm", ":"},
        {"d/m/yyyy", " ", "hh:mm:ss", ":"},
        {"'d:' yyyy/mm/dd", "/", "hh:mm:ss", ":"},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(Case.Picture);
        DateSeparator = Case.Separator;
        TimeSeparator = Case.TimeSign;
        ShortDateFormat = Case.Picture;
        LongTimeFormat = Case.Time;
        for (const TDateTime Value : {At(2024, 2, 29, 15, 4, 5), At(1812, 12, 31, 0, 30, 59), At(1, 1, 1, 12),
                                      At(9999, 12, 31), At(1899, 12, 29, 23, 59, 1)}) {
            std::string Text = DateTimeToStr(Value);
            if (Case.Picture[0] == '\'')
                Text.erase(0, 2); // a format's texts are no part of a date as text
            EXPECT_EQ(Plain(StrToDateTime(Text)), Plain(Value)) << Text;
        }
    }
}

TEST(DateText, ReadsDatesAndTimes)
{
    const TFormatVarsScope Scope;
    int ThisYear = 0, Month = 0, Day = 0;
    DecodeDate(Date(), ThisYear, Month, Day);
    EXPECT_EQ(StrToDate(" 3 / 1 "), EncodeDate(ThisYear, 3, 1));
    EXPECT_EQ(StrToDate("3/1/2024 / "), At(2024, 3, 1));
    EXPECT_EQ(StrToDate("2/29/2024"), At(2024, 2, 29));
    EXPECT_EQ(StrToDate("1/2/007"), At(7, 1, 2)); // three digits are a year as it is
    // Two digits: from 50 years back to 49 ahead.
    for (int Year = ThisYear - 50; Year < ThisYear + 50; ++Year)
        EXPECT_EQ(StrToDate(Format("1/2/%.2d", {Year % 100})), EncodeDate(Year, 1, 2));
    ShortDateFormat = "dd/mm/yy";
    EXPECT_EQ(StrToDate("3/1"), EncodeDate(ThisYear, 1, 3));

    const struct {
        const char* Text;
        TDateTime Expected;
    } Times[] = {
        {"0:00", 0},
        {"15", 0.625},
        {"3pm", 0.625},
        {"PM 3:00", 0.625},
        {" 12 : 00 AM ", 0},
        {"12:00 pm", 0.5},
        {"23:59:59.999", EncodeTime(23, 59, 59, 999)},
        {"1:2:3.4", EncodeTime(1, 2, 3, 4)},
    };
    for (const auto& Case : Times)
        EXPECT_EQ(StrToTime(Case.Text), Case.Expected) << Case.Text;
    EXPECT_EQ(StrToDateTime("1/2/2024 3:00 pm"), At(2024, 2, 1, 15));
    EXPECT_EQ(StrToDateTime("1/2/2024"), At(2024, 2, 1));
}

TEST(DateText, RefusesWhatIsNoDate)
{
    for (const char* Text : {"",
                             " ",
                             "1",
                             "1/",
                             "/1/2",
                             "13/1/2024",
                             "2/30/2024",
                             "2/29/2023",
                             "1/2/20245",
                             "1/2/2024x",
                             "1-2-2024",
                             "Jan 2, 2024",
                             "1/2/2024 3:00",
                             "1//2",
                             "1/2/2024//",
                             "99999999999999/1/1",
                             "-1/2/2024",
                             "\xC2\xA0",
                             "3/1/",
                             "0/1/2024"})
        EXPECT_EQ(ErrorOf([&] { StrToDate(Text); }), "'" + std::string(Text) + "' is not a valid date");
    for (const char* Text : {"", "24:00", "1:60", "1:2:60", "1:", "1:2:", "0 am", "13 pm", "1:2 xm", "1.5",
                             "1:2:3.", "1:2:3.1000", "am", "1:2:3:4", "-1:00"})
        EXPECT_EQ(ErrorOf([&] { StrToTime(Text); }), "'" + std::string(Text) + "' is not a valid time");
    for (const char* Text : {"", "1/2/2024 24:00", "1/2/2024 x", "3:00", "1/2/2024 3:00 4"}) {
        EXPECT_EQ(ErrorOf([&] { StrToDateTime(Text); }),
                  "'" + std::string(Text) + "' is not a valid date and time");
        EXPECT_EQ(StrToDateTimeDef(Text, 7), 7);
    }
}

TEST(FormatSettings, TranslatesDatePictures)
{
    const struct {
        const char* Picture;
        TPictureYears Years;
        const char* Expected;
    } Cases[] = {
        {"dd.MM.yyyy", TPictureYears::Gregorian, "dd.mm.yyyy"},
        {"dddd, d 'de' MMMM 'DE' yyyy", TPictureYears::Gregorian, "dddd, d 'de' mmmm 'DE' yyyy"},
        {"d MMMM yyyy gg", TPictureYears::NoEras, "d mmmm yyyy "},
        {"gg y/M/d 'gy'", TPictureYears::InEras, "gg e/m/d 'gy'"},
        {"ggyyyy'\xE5\xB9\xB4'M", TPictureYears::InEras, "ggee'\xE5\xB9\xB4'm"},
        {"d 'o''clock' M", TPictureYears::Gregorian, "d 'o'\"'\"'clock' m"},
        {"d '' M", TPictureYears::Gregorian, "d \"'\" m"},
        {"d 'open M", TPictureYears::Gregorian, "d 'open M"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(TranslateDateFormat(Case.Picture, Case.Years), Case.Expected);
    EXPECT_EQ(FormatDateTime(TranslateDateFormat("d 'o''clock' M", TPictureYears::Gregorian), Sample),
              "29 o'clock 2");
}

// What the data of both systems agree on.
TEST(FormatSettings, TakesThoseOfALocale)
{
    const TFormatVarsScope Scope;
    GetFormatSettings(0x407); // German
    EXPECT_EQ(LongDayNames[1], "Sonntag");
    EXPECT_EQ(LongDayNames[2], "Montag");
    EXPECT_EQ(LongMonthNames[3], "M\xC3\xA4rz");
    EXPECT_EQ(DecimalSeparator + ThousandSeparator + DateSeparator + TimeSeparator, ",..:");
    EXPECT_EQ(FormatDateTime("ddddd t", At(2024, 11, 29, 15, 4)), "29.11.2024 15:04");
    EXPECT_EQ(Format("%m", {1234.5}), "1.234,50 \xE2\x82\xAC");
    EXPECT_EQ(SysLocale.PriLangID * 100 + SysLocale.SubLangID, 0x07 * 100 + 1);
    EXPECT_FALSE(SysLocale.FarEast);
    EXPECT_EQ(StrToDateTime(DateTimeToStr(At(2024, 3, 9, 8, 7, 6))), At(2024, 3, 9, 8, 7, 6));

    GetFormatSettings(0x411); // Japanese
    EXPECT_EQ(LongDayNames[1], "\xE6\x97\xA5\xE6\x9B\x9C\xE6\x97\xA5");
    EXPECT_EQ(CurrencyDecimals, 0);
    EXPECT_TRUE(SysLocale.FarEast);
    EXPECT_EQ(DateToStr(At(2024, 11, 29)), "2024/11/29");

    GetFormatSettings(0x401); // Arabic
    EXPECT_TRUE(SysLocale.MiddleEast);

    // Whatever the user's locale is, its dates can be read back.
    GetFormatSettings();
    EXPECT_EQ(SysLocale.DefaultLCID, static_cast<int>(GetThreadLocale()));
    for (const int Lcid : {0x409, 0x809, 0x40C, 0x410, 0x416, 0x419, 0x41D, 0x804}) {
        GetFormatSettings(static_cast<LCID>(Lcid));
        const TDateTime Value = At(2024, 11, 3, 20, 7, 6);
        EXPECT_EQ(Plain(StrToDateTime(DateTimeToStr(Value))), Plain(Value)) << Lcid << DateTimeToStr(Value);
    }
}
