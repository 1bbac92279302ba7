// Points in time in the operating system's form.
#pragma once

#include "framework/rtl/DateTime.h"
#include "platform/winapi.h"

// The day of the week is not looked at. Throws EConvertError when there is no
// such date or time; a zeroed structure is none.
TDateTime SystemTimeToDateTime(const SYSTEMTIME& Value);

// The system's dates begin on 1 January 1601: earlier ones are answered with
// that day, and so is a value out of range.
SYSTEMTIME DateTimeToSystemTime(TDateTime Value);
