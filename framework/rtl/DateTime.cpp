#include "framework/rtl/DateTime.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SystemTime.h"

namespace {

constexpr int MillisecondsPerDay = 86400000;
constexpr int DateDelta = 693594; // 30 December 1899 as a TTimeStamp's date
constexpr int LastDay = 3652059;  // 31 December 9999
constexpr int FirstYear = 1;
constexpr int LastYear = 9999;

// Days before the first of March of a year; years begin in March, so that the
// leap day is the last.
constexpr int DaysBeforeYear(int Year)
{
    return 365 * Year + Year / 4 - Year / 100 + Year / 400;
}

// The day before day 1 of a TTimeStamp, counted by the rule above.
constexpr int MarchDelta = 305;

// The time of day counts away from zero on both sides.
TDateTime Joined(double Day, double TimeOfDay)
{
    return Day < 0 ? Day - TimeOfDay : Day + TimeOfDay;
}

double TimePart(TDateTime Value)
{
    return std::fabs(Value - std::trunc(Value));
}

} // namespace

TTimeStamp DateTimeToTimeStamp(TDateTime Value)
{
    // Written so that NAN, too, is out of range.
    if (!(Value > MinDateTime - 1 && Value < LastDay - DateDelta + 1))
        return {};
    TTimeStamp Result;
    Result.Date = static_cast<int>(std::trunc(Value)) + DateDelta;
    Result.Time = static_cast<int>(std::lround(TimePart(Value) * MillisecondsPerDay));
    if (Result.Time == MillisecondsPerDay && Result.Date == LastDay)
        --Result.Time;
    if (Result.Time == MillisecondsPerDay) {
        Result.Time = 0;
        ++Result.Date;
    }
    return Result;
}

bool TryEncodeDate(int Year, int Month, int Day, TDateTime& Date)
{
    if (Year < FirstYear || Year > LastYear || Month < 1 || Month > 12 || Day < 1 ||
        Day > DaysInMonth(Year, Month))
        return false;
    const int MonthFromMarch = (Month + 9) % 12;
    const int YearFromMarch = Year - MonthFromMarch / 10;
    const int DaysBeforeMonth = (MonthFromMarch * 306 + 5) / 10;
    Date = DaysBeforeYear(YearFromMarch) + DaysBeforeMonth + Day - 1 - MarchDelta - DateDelta;
    return true;
}

bool TryEncodeTime(int Hour, int Minute, int Second, int Millisecond, TDateTime& Time)
{
    if (Hour < 0 || Hour > 23 || Minute < 0 || Minute > 59 || Second < 0 || Second > 59 || Millisecond < 0 ||
        Millisecond > 999)
        return false;
    Time = (Hour * 3600000 + Minute * 60000 + Second * 1000 + Millisecond) /
           static_cast<double>(MillisecondsPerDay);
    return true;
}

TDateTime EncodeDate(int Year, int Month, int Day)
{
    TDateTime Result = 0;
    if (!TryEncodeDate(Year, Month, Day, Result))
        throw EConvertError(SDateEncodeError);
    return Result;
}

TDateTime EncodeTime(int Hour, int Minute, int Second, int Millisecond)
{
    TDateTime Result = 0;
    if (!TryEncodeTime(Hour, Minute, Second, Millisecond, Result))
        throw EConvertError(STimeEncodeError);
    return Result;
}

void DecodeDate(TDateTime Value, int& Year, int& Month, int& Day)
{
    Year = Month = Day = 0;
    const int Date = DateTimeToTimeStamp(Value).Date;
    if (Date <= 0)
        return;
    const int Days = Date + MarchDelta;
    int YearFromMarch = static_cast<int>((std::int64_t{10000} * Days + 14780) / 3652425);
    if (DaysBeforeYear(YearFromMarch) > Days)
        --YearFromMarch;
    const int DayOfYear = Days - DaysBeforeYear(YearFromMarch);
    const int MonthFromMarch = (100 * DayOfYear + 52) / 3060;
    Month = (MonthFromMarch + 2) % 12 + 1;
    Year = YearFromMarch + MonthFromMarch / 10;
    Day = DayOfYear - (MonthFromMarch * 306 + 5) / 10 + 1;
}

void DecodeTime(TDateTime Value, int& Hour, int& Minute, int& Second, int& Millisecond)
{
    const int Time = DateTimeToTimeStamp(Value).Time;
    Hour = Time / 3600000;
    Minute = Time / 60000 % 60;
    Second = Time / 1000 % 60;
    Millisecond = Time % 1000;
}

bool IsLeapYear(int Year)
{
    return Year % 4 == 0 && (Year % 100 != 0 || Year % 400 == 0);
}

int DaysInMonth(int Year, int Month)
{
    if (Month == 2)
        return IsLeapYear(Year) ? 29 : 28;
    return Month == 4 || Month == 6 || Month == 9 || Month == 11 ? 30 : 31;
}

int DayOfWeek(TDateTime Value)
{
    return DateTimeToTimeStamp(Value).Date % 7 + 1;
}

TDateTime IncMonth(TDateTime Value, int Months)
{
    int Year = 0, Month = 0, Day = 0;
    DecodeDate(Value, Year, Month, Day);
    constexpr std::int64_t MonthsPerYear = 12;
    const std::int64_t Total = Year * MonthsPerYear + Month - 1 + Months;
    if (Month == 0 || Total < FirstYear * MonthsPerYear || Total >= (LastYear + 1) * MonthsPerYear)
        throw EConvertError(SDateEncodeError);
    Year = static_cast<int>(Total / MonthsPerYear);
    Month = static_cast<int>(Total % MonthsPerYear) + 1;
    return ReplaceDate(Value, EncodeDate(Year, Month, std::min(Day, DaysInMonth(Year, Month))));
}

TDateTime ReplaceDate(TDateTime Value, TDateTime NewDate)
{
    return Joined(std::trunc(NewDate), TimePart(Value));
}

TDateTime ReplaceTime(TDateTime Value, TDateTime NewTime)
{
    return Joined(std::trunc(Value), TimePart(NewTime));
}

TDateTime Date()
{
    return std::trunc(Now());
}

TDateTime Time()
{
    return TimePart(Now());
}

TDateTime Now()
{
    SYSTEMTIME Clock{};
    GetLocalTime(&Clock);
    return SystemTimeToDateTime(Clock);
}
