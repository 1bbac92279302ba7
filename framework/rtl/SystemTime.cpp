#include "framework/rtl/SystemTime.h"

TDateTime SystemTimeToDateTime(const SYSTEMTIME& Value)
{
    return ReplaceTime(EncodeDate(Value.wYear, Value.wMonth, Value.wDay),
                       EncodeTime(Value.wHour, Value.wMinute, Value.wSecond, Value.wMilliseconds));
}

SYSTEMTIME DateTimeToSystemTime(TDateTime Value)
{
    constexpr int FirstYear = 1601;
    int Year = 0, Month = 0, Day = 0;
    DecodeDate(Value, Year, Month, Day);
    if (Year < FirstYear) {
        Value = ReplaceDate(Value, EncodeDate(FirstYear, 1, 1));
        DecodeDate(Value, Year, Month, Day);
    }
    int Hour = 0, Minute = 0, Second = 0, Millisecond = 0;
    DecodeTime(Value, Hour, Minute, Second, Millisecond);
    SYSTEMTIME Result{};
    Result.wYear = static_cast<WORD>(Year);
    Result.wMonth = static_cast<WORD>(Month);
    Result.wDay = static_cast<WORD>(Day);
    Result.wDayOfWeek = static_cast<WORD>(DayOfWeek(Value) - 1);
    Result.wHour = static_cast<WORD>(Hour);
    Result.wMinute = static_cast<WORD>(Minute);
    Result.wSecond = static_cast<WORD>(Second);
    Result.wMilliseconds = static_cast<WORD>(Millisecond);
    return Result;
}
