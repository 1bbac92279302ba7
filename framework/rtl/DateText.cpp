#include "framework/rtl/DateText.h"

#include <algorithm>
#include <optional>

#include "framework/rtl/DatePicture.h"
#include "framework/rtl/Eras.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/FormatText.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/Texts.h"

namespace {

enum class TDateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

// What the short date format says about dates as text.
struct TDateShape {
    TDateOrder Order = TDateOrder::MonthDayYear;
    bool BeginsWithEra = false;
    bool YearInEra = false;
};

TDateShape CurrentShape()
{
    TDateShape Result;
    bool OrderKnown = false;
    const auto Decide = [&](TDateOrder Order) {
        if (!OrderKnown)
            Result.Order = Order;
        OrderKnown = true;
    };
    char Quote = 0;
    for (const char Letter : ShortDateFormat) {
        if (Quote || Letter == '\'' || Letter == '"') {
            Quote = !Quote ? Letter : Letter == Quote ? '\0' : Quote;
            continue;
        }
        switch (Letter) {
        case 'e':
        case 'E':
            Result.YearInEra = true;
            Decide(TDateOrder::YearMonthDay);
            break;
        case 'y':
        case 'Y':
            Decide(TDateOrder::YearMonthDay);
            break;
        case 'm':
        case 'M':
            Decide(TDateOrder::MonthDayYear);
            break;
        case 'd':
        case 'D':
            Decide(TDateOrder::DayMonthYear);
            break;
        }
    }
    Result.BeginsWithEra = ShortDateFormat.starts_with('g') || ShortDateFormat.starts_with('G');
    return Result;
}

int CurrentYear()
{
    int Year = 0, Month = 0, Day = 0;
    DecodeDate(Date(), Year, Month, Day);
    return Year;
}

int FullYear(int ShortYear)
{
    const int Earliest = CurrentYear() - TwoDigitYearWindow;
    const int Year = Earliest / 100 * 100 + ShortYear;
    return Year < Earliest ? Year + 100 : Year;
}

// Reads dates and times from the front of a text.
class TDateReader {
public:
    explicit TDateReader(std::string_view Text) : FText(Text) {}

    bool AtEnd()
    {
        SkipBlanks();
        return FText.empty();
    }

    bool ReadDate(TDateTime& Value)
    {
        const TDateShape Shape = CurrentShape();
        std::string_view EraName;
        if (Shape.BeginsWithEra)
            EraName = ReadEra();
        TNumber First, Second, Third;
        if (!ReadNumber(First) || !Take(DateSeparator) || !ReadNumber(Second))
            return false;
        const bool HasYear = Take(DateSeparator);
        if (HasYear && !ReadNumber(Third))
            return false;
        Take(DateSeparator);
        if (!HasYear) {
            if (Shape.Order == TDateOrder::DayMonthYear)
                std::swap(First, Second);
            return TryEncodeDate(CurrentYear(), First.Value, Second.Value, Value);
        }
        if (Shape.Order == TDateOrder::YearMonthDay) { // to month, day, year
            std::swap(First, Second);
            std::swap(Second, Third);
        } else if (Shape.Order == TDateOrder::DayMonthYear) {
            std::swap(First, Second);
        }
        const auto Year = YearOf(Third, Shape, EraName);
        return Year && TryEncodeDate(*Year, First.Value, Second.Value, Value);
    }

    bool ReadTime(TDateTime& Value)
    {
        auto Half = ReadHalf();
        TNumber Hour, Minute, Second, Millisecond;
        if (!ReadNumber(Hour))
            return false;
        if (Take(TimeSeparator)) {
            if (!ReadNumber(Minute))
                return false;
            if (Take(TimeSeparator) &&
                (!ReadNumber(Second) || (Take(DecimalSeparator) && !ReadNumber(Millisecond))))
                return false;
        }
        if (!Half)
            Half = ReadHalf();
        if (Half) {
            if (Hour.Value == 0 || Hour.Value > 12)
                return false;
            Hour.Value = Hour.Value % 12 + *Half;
        }
        return TryEncodeTime(Hour.Value, Minute.Value, Second.Value, Millisecond.Value, Value);
    }

private:
    struct TNumber {
        int Value = 0;
        int Digits = 0;
    };

    void SkipBlanks() { FText.remove_prefix(std::min(FText.find_first_not_of(' '), FText.size())); }

    static bool IsDigit(char Letter) { return Letter >= '0' && Letter <= '9'; }

    bool ReadNumber(TNumber& Number)
    {
        SkipBlanks();
        for (; !FText.empty() && IsDigit(FText[0]) && Number.Value < 1000; ++Number.Digits) {
            Number.Value = Number.Value * 10 + (FText[0] - '0');
            FText.remove_prefix(1);
        }
        return Number.Digits > 0;
    }

    bool Take(std::string_view Sign)
    {
        if (Sign != " ") // a separator in some languages
            SkipBlanks();
        if (Sign.empty() || AnsiCompareText(FText.substr(0, Sign.size()), Sign) != 0)
            return false;
        FText.remove_prefix(Sign.size());
        return true;
    }

    std::string_view ReadEra()
    {
        SkipBlanks();
        const auto Length = std::min(FText.find_first_of("0123456789"), FText.size());
        const std::string_view Era = FText.substr(0, Length);
        FText.remove_prefix(Length);
        return Era.substr(0, Era.find_last_not_of(' ') + 1);
    }

    // What the half of the day adds to the hour.
    std::optional<int> ReadHalf()
    {
        if (Take(TimeAMString) || Take("AM"))
            return 0;
        if (Take(TimePMString) || Take("PM"))
            return 12;
        return std::nullopt;
    }

    static std::optional<int> YearOf(const TNumber& Written, const TDateShape& Shape,
                                     std::string_view EraName)
    {
        if (Shape.YearInEra || !EraName.empty())
            if (const auto Year = GregorianYear(EraName, Written.Value); Year || !EraName.empty())
                return Year;
        return Written.Digits <= 2 ? FullYear(Written.Value) : Written.Value;
    }

    std::string_view FText;
};

TDateTime OrRaise(bool Success, TDateTime Value, const TResStringRec& Message, std::string_view Text)
{
    if (!Success)
        throw EConvertError(Format(Message, {Text}));
    return Value;
}

} // namespace

std::string DateToStr(TDateTime Value)
{
    return FormatDateTime("ddddd", Value);
}

std::string TimeToStr(TDateTime Value)
{
    return FormatDateTime("tt", Value);
}

std::string DateTimeToStr(TDateTime Value)
{
    return FormatDateTime("c", Value);
}

bool TryStrToDate(std::string_view Text, TDateTime& Value)
{
    TDateReader Reader(Text);
    TDateTime Result = 0;
    if (!Reader.ReadDate(Result) || !Reader.AtEnd())
        return false;
    Value = Result;
    return true;
}

bool TryStrToTime(std::string_view Text, TDateTime& Value)
{
    TDateReader Reader(Text);
    TDateTime Result = 0;
    if (!Reader.ReadTime(Result) || !Reader.AtEnd())
        return false;
    Value = Result;
    return true;
}

bool TryStrToDateTime(std::string_view Text, TDateTime& Value)
{
    TDateReader Reader(Text);
    TDateTime Day = 0, TimeOfDay = 0;
    if (!Reader.ReadDate(Day))
        return false;
    if (!Reader.AtEnd() && (!Reader.ReadTime(TimeOfDay) || !Reader.AtEnd()))
        return false;
    Value = ReplaceTime(Day, TimeOfDay);
    return true;
}

TDateTime StrToDate(std::string_view Text)
{
    TDateTime Result = 0;
    const bool Success = TryStrToDate(Text, Result);
    return OrRaise(Success, Result, SInvalidDate, Text);
}

TDateTime StrToTime(std::string_view Text)
{
    TDateTime Result = 0;
    const bool Success = TryStrToTime(Text, Result);
    return OrRaise(Success, Result, SInvalidTime, Text);
}

TDateTime StrToDateTime(std::string_view Text)
{
    TDateTime Result = 0;
    const bool Success = TryStrToDateTime(Text, Result);
    return OrRaise(Success, Result, SInvalidDateTime, Text);
}

TDateTime StrToDateDef(std::string_view Text, TDateTime Default)
{
    TryStrToDate(Text, Default);
    return Default;
}

TDateTime StrToTimeDef(std::string_view Text, TDateTime Default)
{
    TryStrToTime(Text, Default);
    return Default;
}

TDateTime StrToDateTimeDef(std::string_view Text, TDateTime Default)
{
    TryStrToDateTime(Text, Default);
    return Default;
}
