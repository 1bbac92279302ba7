#include <string>

#include "platform/portable/Control.h"

// Date picker and month calendar: they hold a date and show it as year, month
// and day, whatever the locale; the calendar does not drop down.
namespace {
int DaysIn(int Month, int Year)
{
    static constexpr int Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool Leap = (Year % 4 == 0 && Year % 100 != 0) || Year % 400 == 0;
    return Days[Month - 1] + (Month == 2 && Leap ? 1 : 0);
}

// 0 is Sunday.
int DayOfWeek(int Year, int Month, int Day)
{
    static constexpr int Shifts[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    const int Base = Month < 3 ? Year - 1 : Year;
    return (Base + Base / 4 - Base / 100 + Base / 400 + Shifts[Month - 1] + Day) % 7;
}

std::string Digits(int Number, std::size_t Count)
{
    std::string Result = std::to_string(Number);
    return Result.size() < Count ? std::string(Count - Result.size(), '0') + Result : Result;
}

std::string MonthOf(const SYSTEMTIME& Date)
{
    return Digits(Date.wYear, 4) + '-' + Digits(Date.wMonth, 2);
}

class TDateControl : public TSystemControl {
public:
    explicit TDateControl(HWND Handle) : TSystemControl(Handle) { GetLocalTime(&FDate); }

protected:
    bool SetDate(const SYSTEMTIME& Value)
    {
        if (Value.wMonth < 1 || Value.wMonth > 12 || Value.wDay < 1 ||
            Value.wDay > DaysIn(Value.wMonth, Value.wYear))
            return false;
        FDate = Value;
        FDate.wDayOfWeek = static_cast<WORD>(DayOfWeek(Value.wYear, Value.wMonth, Value.wDay));
        Invalidate();
        return true;
    }

    SYSTEMTIME FDate{};
};

class TDatePicker final : public TDateControl {
public:
    using TDateControl::TDateControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override
    {
        switch (Message) {
        case DTM_GETSYSTEMTIME:
            if (LParam && !FNone)
                Structure<SYSTEMTIME>(LParam) = FDate;
            return FNone ? GDT_NONE : GDT_VALID;
        case DTM_SETSYSTEMTIME:
            if (WParam == GDT_NONE) {
                FNone = (Style() & DTS_SHOWNONE) != 0;
                Invalidate();
                return FNone;
            }
            FNone = false;
            return LParam && SetDate(Structure<SYSTEMTIME>(LParam));
        case DTM_SETFORMATA:
        case DTM_SETRANGE:
            return TRUE;
        default:
            return TSystemControl::Handle(Message, WParam, LParam);
        }
    }

protected:
    void Paint(HDC Dc) override
    {
        RECT Rect = ClientRect();
        FillRect(Dc, &Rect, GetSysColorBrush(Enabled() ? COLOR_WINDOW : COLOR_BTNFACE));
        RECT Button = Rect;
        Button.left = Rect.right = Button.right - 17;
        const bool Spin = (Style() & (DTS_UPDOWN | DTS_TIMEFORMAT)) != 0;
        if (Spin) {
            RECT Upper = Button;
            Upper.bottom = Button.top = (Button.top + Button.bottom) / 2;
            DrawFrameControl(Dc, &Upper, DFC_SCROLL, DFCS_SCROLLUP);
        }
        DrawFrameControl(Dc, &Button, DFC_SCROLL, Spin ? DFCS_SCROLLDOWN : DFCS_SCROLLCOMBOBOX);
        const bool Time = (Style() & DTS_TIMEFORMAT & ~DTS_UPDOWN) != 0;
        const std::string Text = Time ? Digits(FDate.wHour, 2) + ':' + Digits(FDate.wMinute, 2)
                                      : MonthOf(FDate) + '-' + Digits(FDate.wDay, 2);
        SetTextColor(Dc, GetSysColor(Enabled() && !FNone ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
        InflateRect(&Rect, -3, 0);
        DrawItemText(Dc, Text, Rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }

private:
    bool FNone = false;
};

class TMonthCalendar final : public TDateControl {
public:
    using TDateControl::TDateControl;
    LRESULT Handle(UINT Message, WPARAM WParam, LPARAM LParam) override
    {
        switch (Message) {
        case MCM_GETCURSEL:
            if (!LParam)
                return FALSE;
            Structure<SYSTEMTIME>(LParam) = FDate;
            return TRUE;
        case MCM_SETCURSEL:
            return LParam && SetDate(Structure<SYSTEMTIME>(LParam));
        case MCM_GETMINREQRECT:
            Structure<RECT>(LParam) = {0, 0, 7 * CellWidth() + 8, 9 * (LineHeight() + 2) + 8};
            return TRUE;
        default:
            return TSystemControl::Handle(Message, WParam, LParam);
        }
    }

protected:
    void Paint(HDC Dc) override
    {
        const RECT Client = ClientRect();
        FillRect(Dc, &Client, GetSysColorBrush(COLOR_WINDOW));
        const int Height = LineHeight() + 2, Width = CellWidth();
        RECT Title = {0, 0, Client.right, Height + 6};
        FillRect(Dc, &Title, GetSysColorBrush(COLOR_ACTIVECAPTION));
        SetTextColor(Dc, GetSysColor(COLOR_CAPTIONTEXT));
        DrawItemText(Dc, MonthOf(FDate), Title, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        const int First = DayOfWeek(FDate.wYear, FDate.wMonth, 1);
        for (int Day = 1; Day <= DaysIn(FDate.wMonth, FDate.wYear); ++Day) {
            const int Cell = First + Day - 1, X = 4 + Cell % 7 * Width,
                      Y = Title.bottom + 4 + Cell / 7 * Height;
            RECT Rect = {X, Y, X + Width, Y + Height};
            const bool Chosen = Day == FDate.wDay;
            if (Chosen)
                FillRect(Dc, &Rect, GetSysColorBrush(COLOR_HIGHLIGHT));
            SetTextColor(Dc, GetSysColor(Chosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
            DrawItemText(Dc, std::to_string(Day), Rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        }
    }

private:
    int CellWidth() const { return WidthOf("00") + 10; }
};
} // namespace

void RegisterSystemDates()
{
    RegisterControl<TDatePicker>(DATETIMEPICK_CLASSA);
    RegisterControl<TMonthCalendar>(MONTHCAL_CLASSA);
}
