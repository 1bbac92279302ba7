// Points in time: taking dates and times apart and putting them together.
// Their texts are in DateText.h, the operating system's form in SystemTime.h.
#pragma once

// Days since 30 December 1899, 0:00; the fraction is the time of day. Before
// that date the fraction still counts forward, away from zero: -1.25 is 6 o'clock
// on 29 December 1899. Gregorian calendar throughout; years 1 to 9999.
using TDateTime = double;

inline constexpr TDateTime MinDateTime = -693593.0;            // 1 January 1
inline constexpr TDateTime MaxDateTime = 2958465.999999988426; // 31 December 9999, 23:59:59.999

// The same as whole numbers. Rounded to milliseconds; a value beyond the years
// above, or none at all (NAN), is day 0.
struct TTimeStamp {
    int Time = 0; // milliseconds since midnight
    int Date = 0; // days; 1 January of the year 1 is day 1
};
TTimeStamp DateTimeToTimeStamp(TDateTime Value);

// Months and days from 1. Throw EConvertError ("Invalid argument to date
// encode", "... time encode") when there is no such date or time; 24:00 and
// leap seconds are none. The Try versions leave the result alone then.
TDateTime EncodeDate(int Year, int Month, int Day);
TDateTime EncodeTime(int Hour, int Minute, int Second, int Millisecond);
bool TryEncodeDate(int Year, int Month, int Day, TDateTime& Date);
bool TryEncodeTime(int Hour, int Minute, int Second, int Millisecond, TDateTime& Time);

// All three are 0 for a date out of range.
void DecodeDate(TDateTime Value, int& Year, int& Month, int& Day);
void DecodeTime(TDateTime Value, int& Hour, int& Minute, int& Second, int& Millisecond);

bool IsLeapYear(int Year);
// 28 to 31. Requires: Month is 1 to 12.
int DaysInMonth(int Year, int Month);
// 1 for Sunday to 7 for Saturday.
int DayOfWeek(TDateTime Value);

// The date some months later, or earlier when negative, at the same time of day.
// A day that the month does not have becomes its last one. Throws EConvertError
// when the years are left.
TDateTime IncMonth(TDateTime Value, int Months = 1);

// Value with another date or time of day.
TDateTime ReplaceDate(TDateTime Value, TDateTime NewDate);
TDateTime ReplaceTime(TDateTime Value, TDateTime NewTime);

// The local clock.
TDateTime Date();
TDateTime Time();
TDateTime Now();
