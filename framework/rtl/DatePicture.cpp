#include "framework/rtl/DatePicture.h"

#include <algorithm>

#include "framework/rtl/Eras.h"
#include "framework/rtl/FormatVars.h"
#include "framework/rtl/Texts.h"
#include "framework/rtl/Utf8.h"

namespace {

constexpr std::size_t MaxResultBytes = 256;
constexpr int MaxNesting = 2; // a picture, and a format that it names

bool IsLetter(char Letter)
{
    return (Letter >= 'a' && Letter <= 'z') || (Letter >= 'A' && Letter <= 'Z');
}

char Upper(char Letter)
{
    return Letter >= 'a' && Letter <= 'z' ? static_cast<char>(Letter - 'a' + 'A') : Letter;
}

bool StartsWithText(std::string_view Text, std::string_view Beginning)
{
    return CompareText(Text.substr(0, Beginning.size()), Beginning) == 0;
}

bool StartsWithHalf(std::string_view Text)
{
    return StartsWithText(Text, "AM/PM") || StartsWithText(Text, "A/P") || StartsWithText(Text, "AMPM");
}

template<int Count>
std::string_view NameOf(const TNameTable<Count>& Names, int Index)
{
    return Index >= Names.Low() && Index <= Names.High() ? std::string_view(Names[Index]) : "";
}

// Whether the hour before Rest is one of 12: the next half-day mark decides,
// but only as far as the next hour.
bool HalfFollows(std::string_view Rest)
{
    char Quote = 0;
    for (std::size_t Index = 0; Index < Rest.size(); ++Index) {
        const char Letter = Rest[Index];
        if (Quote) {
            if (Letter == Quote)
                Quote = 0;
        } else if (Letter == '\'' || Letter == '"') {
            Quote = Letter;
        } else if (Upper(Letter) == 'A') {
            return StartsWithHalf(Rest.substr(Index));
        } else if (Upper(Letter) == 'H') {
            return false;
        }
    }
    return false;
}

class TDateWriter {
public:
    TDateWriter(std::string& Result, TDateTime Value) : FResult(Result)
    {
        DecodeDate(Value, FYear, FMonth, FDay);
        DecodeTime(Value, FHour, FMinute, FSecond, FMillisecond);
        FDayOfWeek = FDay == 0 ? 0 : DayOfWeek(Value);
    }

    void AppendPicture(std::string_view Picture)
    {
        if (FNesting == MaxNesting)
            return;
        ++FNesting;
        TState State{Picture};
        while (!State.Rest.empty())
            AppendNext(State);
        --FNesting;
    }

private:
    struct TState {
        std::string_view Rest;
        bool HalfDays = false;
        bool AfterHour = false;
    };

    void Append(std::string_view Text)
    {
        if (FFull)
            return;
        const std::size_t Room = MaxResultBytes - FResult.size();
        FFull = Text.size() > Room;
        FResult += FFull ? CutAtCharacter(Text, Room) : Text;
    }

    void AppendNumber(int Number, std::size_t Digits)
    {
        const std::string Text = std::to_string(Number);
        Append(std::string(Digits > Text.size() ? Digits - Text.size() : 0, '0') + Text);
    }

    // The end of a picture may stand where a character is asked for.
    static std::string_view Take(std::string_view& Rest, std::size_t Count)
    {
        const std::string_view Result = Rest.substr(0, Count);
        Rest.remove_prefix(Result.size());
        return Result;
    }

    void AppendNext(TState& State)
    {
        const char Letter = State.Rest[0];
        if (!IsLetter(Letter)) {
            AppendSign(State.Rest);
            return;
        }
        if (Upper(Letter) == 'A') {
            State.AfterHour = false;
            AppendHalf(State);
            return;
        }
        const std::size_t Count = std::min(State.Rest.find_first_not_of(Letter), State.Rest.size());
        const bool MeansMinutes = Upper(Letter) == 'M' && State.AfterHour;
        State.AfterHour = Upper(Letter) == 'H';
        const std::string_view Run = Take(State.Rest, Count);
        if (!AppendDatePart(MeansMinutes ? 'N' : Upper(Letter), Count) &&
            !AppendTimePart(MeansMinutes ? 'N' : Upper(Letter), Count, State))
            Append(Run);
    }

    bool AppendDatePart(char Part, std::size_t Count)
    {
        switch (Part) {
        case 'D':
            AppendDay(Count);
            return true;
        case 'M':
            if (Count <= 2)
                AppendNumber(FMonth, Count);
            else
                Append(Count == 3 ? NameOf(ShortMonthNames, FMonth) : NameOf(LongMonthNames, FMonth));
            return true;
        case 'Y':
            AppendNumber(Count <= 2 ? FYear % 100 : FYear, Count <= 2 ? 2 : 4);
            return true;
        case 'G': {
            const TYearInEra Era = YearInEra(FYear, FMonth, FDay);
            Append(Count == 1 ? Era.Abbreviation : Era.Name);
            return true;
        }
        case 'E':
            AppendNumber(YearInEra(FYear, FMonth, FDay).Year, std::min<std::size_t>(Count, 2));
            return true;
        case 'C':
            AppendPicture(ShortDateFormat);
            if (FHour != 0 || FMinute != 0 || FSecond != 0) {
                Append(" ");
                AppendPicture(LongTimeFormat);
            }
            return true;
        default:
            return false;
        }
    }

    void AppendDay(std::size_t Count)
    {
        switch (Count) {
        case 1:
        case 2:
            AppendNumber(FDay, Count);
            break;
        case 3:
            Append(NameOf(ShortDayNames, FDayOfWeek));
            break;
        case 4:
            Append(NameOf(LongDayNames, FDayOfWeek));
            break;
        case 5:
            AppendPicture(ShortDateFormat);
            break;
        default:
            AppendPicture(LongDateFormat);
        }
    }

    bool AppendTimePart(char Part, std::size_t Count, TState& State)
    {
        const std::size_t Digits = std::min<std::size_t>(Count, 2);
        switch (Part) {
        case 'H':
            State.HalfDays = State.HalfDays || HalfFollows(State.Rest);
            AppendNumber(State.HalfDays ? (FHour + 11) % 12 + 1 : FHour, Digits);
            return true;
        case 'N':
            AppendNumber(FMinute, Digits);
            return true;
        case 'S':
            AppendNumber(FSecond, Digits);
            return true;
        case 'Z':
            AppendNumber(FMillisecond, std::min<std::size_t>(Count, 3));
            return true;
        case 'T':
            AppendPicture(Count == 1 ? ShortTimeFormat : LongTimeFormat);
            return true;
        default:
            return false;
        }
    }

    // What begins with "a": half-day marks, and names of days in another spelling.
    void AppendHalf(TState& State)
    {
        const bool Afternoon = FHour >= 12;
        State.HalfDays = State.HalfDays || StartsWithHalf(State.Rest);
        if (StartsWithText(State.Rest, "AM/PM")) {
            const std::string_view Letters = Take(State.Rest, 5);
            Append(Letters.substr(Afternoon ? 3 : 0, 2));
        } else if (StartsWithText(State.Rest, "A/P")) {
            const std::string_view Letters = Take(State.Rest, 3);
            Append(Letters.substr(Afternoon ? 2 : 0, 1));
        } else if (StartsWithText(State.Rest, "AMPM")) {
            Take(State.Rest, 4);
            Append(Afternoon ? TimePMString : TimeAMString);
        } else if (StartsWithText(State.Rest, "AAAA")) {
            Take(State.Rest, 4);
            Append(NameOf(LongDayNames, FDayOfWeek));
        } else if (StartsWithText(State.Rest, "AAA")) {
            Take(State.Rest, 3);
            Append(NameOf(ShortDayNames, FDayOfWeek));
        } else {
            Append(Take(State.Rest, 1));
        }
    }

    void AppendSign(std::string_view& Rest)
    {
        const std::string_view Sign = Take(Rest, DecodeCharacter(Rest).Size);
        if (Sign == "/") {
            Append(DateSeparator);
        } else if (Sign == ":") {
            Append(TimeSeparator);
        } else if (Sign == "'" || Sign == "\"") {
            Append(Take(Rest, Rest.find(Sign)));
            Take(Rest, 1);
        } else {
            Append(Sign);
        }
    }

    std::string& FResult;
    bool FFull = false;
    int FNesting = 0;
    int FYear = 0, FMonth = 0, FDay = 0, FDayOfWeek = 0;
    int FHour = 0, FMinute = 0, FSecond = 0, FMillisecond = 0;
};

} // namespace

std::string FormatDateTime(std::string_view Picture, TDateTime Value)
{
    std::string Result;
    TDateWriter(Result, Value).AppendPicture(Picture.empty() ? "c" : Picture);
    return Result;
}

void DateTimeToString(std::string& Result, std::string_view Picture, TDateTime Value)
{
    Result = FormatDateTime(Picture, Value);
}
