// Dates and times by pictures, such as "dddd, d mmmm yyyy" or "hh:nn:ss".
#pragma once

#include <string>
#include <string_view>

#include "framework/rtl/DateTime.h"

// A picture's letters, of either case; a run of one letter counts when all are of
// the same case. Names, separators and formats are those of FormatVars.h.
//   d dd         day, without and with a leading zero
//   ddd dddd     short and long name of the day; also aaa aaaa
//   ddddd        ShortDateFormat;  dddddd  LongDateFormat
//   m mm         month;            mmm mmmm  its short and long name
//                directly after h or hh: minutes
//   yy yyyy      year with two or four digits
//   g gg         era, abbreviated or in full;  e ee  year in the era (Eras.h)
//   h hh         hour, of 12 when am/pm, a/p or ampm follows before the next h,
//                or came before
//   n nn, s ss   minutes, seconds;  z zzz  milliseconds
//   t tt         ShortTimeFormat, LongTimeFormat
//   c            ShortDateFormat and, unless it is midnight, LongTimeFormat
//   am/pm a/p    these letters, the half that applies;  ampm  TimeAMString or
//                TimePMString
//   / :          DateSeparator, TimeSeparator
//   'xx' "xx"    xx itself; the end of the picture also ends it
// Everything else stands for itself. A format that is named within a named format
// is passed over. An empty picture means c. The result has at most 256 bytes and
// ends with a whole character. A date out of range has zeros for numbers and
// nothing for names.
std::string FormatDateTime(std::string_view Picture, TDateTime Value);
void DateTimeToString(std::string& Result, std::string_view Picture, TDateTime Value);
