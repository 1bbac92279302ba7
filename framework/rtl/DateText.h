// Dates and times to and from text, as the format variables say.
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/DateTime.h"

// ShortDateFormat; LongTimeFormat; the first and, unless it is midnight, the second.
std::string DateToStr(TDateTime Value);
std::string TimeToStr(TDateTime Value);
std::string DateTimeToStr(TDateTime Value);

// A year of one or two digits means the year from 50 years ago to 49 years ahead.
inline constexpr int TwoDigitYearWindow = 50;

// A date is two or three numbers of at most four digits with DateSeparator between
// them and perhaps behind the third, in the order in which day, month and year first stand
// in ShortDateFormat: the letter that comes first decides between month-day-year,
// day-month-year and year-month-day. Two numbers are a day and a month of this
// year. When the format begins with an era (g), so does the text; with e in it
// the year is one of that or of the latest era.
// A time is an hour and, each after TimeSeparator, minutes and seconds, after
// DecimalSeparator milliseconds. TimeAMString, TimePMString, AM or PM, of either
// case, stands in front or behind; the hour is 1 to 12 then.
// A date and time is a date, or a date, a blank and a time.
// Blanks may stand between all these; nothing else may follow.
// Throw EConvertError: 'Text' is not a valid date, ... time, ... date and time.
// The Try versions leave Value alone then.
TDateTime StrToDate(std::string_view Text);
TDateTime StrToTime(std::string_view Text);
TDateTime StrToDateTime(std::string_view Text);
TDateTime StrToDateDef(std::string_view Text, TDateTime Default);
TDateTime StrToTimeDef(std::string_view Text, TDateTime Default);
TDateTime StrToDateTimeDef(std::string_view Text, TDateTime Default);
bool TryStrToDate(std::string_view Text, TDateTime& Value);
bool TryStrToTime(std::string_view Text, TDateTime& Value);
bool TryStrToDateTime(std::string_view Text, TDateTime& Value);
