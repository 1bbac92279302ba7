#include "framework/forms/DateControls.h"

#include <algorithm>

#include "framework/rtl/SystemTime.h"

namespace {

// The bits that say which limits of a range are given, and two messages of the
// calendar.
constexpr WPARAM LowerLimit = 1;
constexpr WPARAM UpperLimit = 2;
constexpr UINT SetMaxSelectedDays = 0x1004;
constexpr UINT SetSelectedDays = 0x1006;

using namespace ControlRows;

const TTypeInfo& DateType()
{
    static const TTypeInfo Info = TTypeInfo::Simple(tkFloat, "TDate");
    return Info;
}

const TTypeInfo& TimeType()
{
    static const TTypeInfo Info = TTypeInfo::Simple(tkFloat, "TTime");
    return Info;
}

template<class T>
TRows CalendarRows()
{
    return Joined(Look(), Drag(), Mouse(), Focus(true), Bevel(), Ime(), Buffer(),
                  OBX_ROW(TControl, ParentColor).Default(false), OBX_ROW(T, CalColors),
                  OBX_ROW(T, Date).Type(DateType()), OBX_ROW(T, MaxDate).Type(DateType()),
                  OBX_ROW(T, MinDate).Type(DateType()));
}

TRows PickerRows()
{
    return Sorted(
        CalendarRows<TDateTimePicker>(), OBX_ROW(TDateTimePicker, CalAlignment).Default(dtaLeft),
        OBX_ROW(TDateTimePicker, Checked).Default(true),
        OBX_ROW(TDateTimePicker, DateFormat).Default(dfShort),
        OBX_ROW(TDateTimePicker, DateMode).Default(dmComboBox), OBX_ROW(TDateTimePicker, Format),
        OBX_ROW(TDateTimePicker, Kind).Default(dtkDate), OBX_ROW(TDateTimePicker, ParseInput).Default(false),
        OBX_ROW(TDateTimePicker, ShowCheckbox).Default(false),
        OBX_ROW(TDateTimePicker, Time).Type(TimeType()), Prop<&TDateTimePicker::OnChange>("OnChange"),
        Prop<&TDateTimePicker::OnCloseUp>("OnCloseUp"), Prop<&TDateTimePicker::OnDropDown>("OnDropDown"),
        Prop<&TDateTimePicker::OnUserInput>("OnUserInput"));
}

TRows MonthRows()
{
    return Sorted(CalendarRows<TMonthCalendar>(), OBX_ROW(TWinControl, BorderWidth).Default(0),
                  AutoSize(false), OBX_ROW(TMonthCalendar, EndDate).Type(DateType()),
                  OBX_ROW(TMonthCalendar, FirstDayOfWeek).Default(dowLocaleDefault),
                  OBX_ROW(TMonthCalendar, MaxSelectRange).Default(31),
                  OBX_ROW(TMonthCalendar, MultiSelect).Default(false),
                  OBX_ROW(TMonthCalendar, ShowToday).Default(true),
                  OBX_ROW(TMonthCalendar, ShowTodayCircle).Default(true),
                  OBX_ROW(TMonthCalendar, WeekNumbers).Default(false),
                  Prop<&TMonthCalendar::OnGetMonthInfo>("OnGetMonthInfo"));
}

// The calendar does not set the time of the days that it tells.
TDateTime DayOf(const SYSTEMTIME& Value)
{
    return EncodeDate(Value.wYear, Value.wMonth, Value.wDay);
}

} // namespace

const TMetaClass& TMonthCalColors::MetaClass()
{
    static const TMetaClass Class(
        "TMonthCalColors", &TPersistent::MetaClass(), nullptr,
        {
            OBX_ROW(TMonthCalColors, BackColor).Default(clWindow),
            OBX_ROW(TMonthCalColors, TextColor).Default(clWindowText),
            OBX_ROW(TMonthCalColors, TitleBackColor).Default(clActiveCaption),
            OBX_ROW(TMonthCalColors, TitleTextColor).Default(clWhite),
            OBX_ROW(TMonthCalColors, MonthBackColor).Default(clWhite),
            OBX_ROW(TMonthCalColors, TrailingTextColor).Default(clInactiveCaptionText),
        });
    return Class;
}

const TMetaClass& TCommonCalendar::MetaClass()
{
    static const TMetaClass Class("TCommonCalendar", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TDateTimePicker::MetaClass()
{
    static const TMetaClass Class("TDateTimePicker", &TCommonCalendar::MetaClass(),
                                  CreateComponent<TDateTimePicker>, PickerRows());
    return Class;
}

const TMetaClass& TMonthCalendar::MetaClass()
{
    static const TMetaClass Class("TMonthCalendar", &TCommonCalendar::MetaClass(),
                                  CreateComponent<TMonthCalendar>, MonthRows());
    return Class;
}

void TMonthCalColors::Assign(const TPersistent* Source)
{
    const auto* const Colors = dynamic_cast<const TMonthCalColors*>(Source);
    if (!Colors) {
        TPersistent::Assign(Source);
        return;
    }
    FBackColor = Colors->FBackColor;
    FTextColor = Colors->FTextColor;
    FTitleBackColor = Colors->FTitleBackColor;
    FTitleTextColor = Colors->FTitleTextColor;
    FMonthBackColor = Colors->FMonthBackColor;
    FTrailingTextColor = Colors->FTrailingTextColor;
}

TCommonCalendar::TCommonCalendar(TComponent* Owner) : TWinControl(Owner), FCalColors(this)
{
    FDateTime = Now();
    SetTabStop(true);
    SetParentColor(false);
}

void TCommonCalendar::SetDateTime(TDateTime Value)
{
    if (FDateTime == Value)
        return;
    FDateTime = Value;
    UpdateWindow();
}

void TCommonCalendar::SetDate(TDateTime Value)
{
    // A form file's date brings its time along.
    SetDateTime(IsLoading() ? Value : ReplaceDate(FDateTime, Value));
}

void TCommonCalendar::SetMaxDate(TDateTime Value)
{
    FMaxDate = Value;
    UpdateWindow();
}

void TCommonCalendar::SetMinDate(TDateTime Value)
{
    FMinDate = Value;
    UpdateWindow();
}

void TCommonCalendar::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateWindow();
}

TDateTimePicker::TDateTimePicker(TComponent* Owner) : TCommonCalendar(Owner)
{
    FControlStyle = {csOpaque, csClickEvents, csDoubleClicks, csFixedHeight};
    SetBounds(0, 0, 186, 21);
}

void TDateTimePicker::SetTime(TDateTime Value)
{
    SetDateTime(ReplaceTime(FDateTime, Value));
}

void TDateTimePicker::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    UpdateWindow();
}

void TDateTimePicker::SetFormat(const std::string& Value)
{
    if (FFormat == Value)
        return;
    FFormat = Value;
    UpdateWindow();
}

void TDateTimePicker::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_DATE_CLASSES);
    TCommonCalendar::CreateParams(Params);
    CreateSubClass(Params, DATETIMEPICK_CLASSA);
    if (FKind == dtkTime)
        Params.Style |= DTS_TIMEFORMAT;
    else
        Params.Style |= FDateFormat == dfLong ? DTS_LONGDATEFORMAT : DTS_SHORTDATEFORMAT;
    Params.Style |= (FDateMode == dmUpDown ? DTS_UPDOWN : 0u) | (FShowCheckbox ? DTS_SHOWNONE : 0u) |
                    (CalAlignment() == dtaRight ? DTS_RIGHTALIGN : 0u) |
                    (ParseInput() ? DTS_APPCANPARSE : 0u);
}

void TDateTimePicker::UpdateWindow()
{
    if (!HandleAllocated())
        return;
    SYSTEMTIME Range[2] = {DateTimeToSystemTime(FMinDate), DateTimeToSystemTime(FMaxDate)};
    const WPARAM Limits = (FMinDate != 0 ? LowerLimit : 0) | (FMaxDate != 0 ? UpperLimit : 0);
    SendMessageA(Handle(), DTM_SETRANGE, Limits, Param(Range));
    SendMessageA(Handle(), DTM_SETFORMATA, 0, FFormat.empty() ? 0 : Param(FFormat.c_str()));
    const SYSTEMTIME Value = DateTimeToSystemTime(FDateTime);
    const bool Empty = FShowCheckbox && !FChecked;
    SendMessageA(Handle(), DTM_SETSYSTEMTIME, Empty ? GDT_NONE : GDT_VALID, Param(&Value));
}

void TDateTimePicker::Dispatch(TMessage& Message)
{
    if (Message.Msg != CN_NOTIFY) {
        TCommonCalendar::Dispatch(Message);
        return;
    }
    const auto& Header = *reinterpret_cast<const NMHDR*>(Message.LParam);
    const int Code = static_cast<int>(Header.code);
    if (Code == static_cast<int>(DTN_DATETIMECHANGE)) {
        const auto& Notice = reinterpret_cast<const NMDATETIMECHANGE&>(Header);
        FChecked = Notice.dwFlags == GDT_VALID;
        if (FChecked)
            FDateTime = SystemTimeToDateTime(Notice.st);
        if (OnChange)
            OnChange(this);
    } else if (Code == static_cast<int>(DTN_DROPDOWN) && OnDropDown) {
        OnDropDown(this);
    } else if (Code == static_cast<int>(DTN_CLOSEUP) && OnCloseUp) {
        OnCloseUp(this);
    }
}

TMonthCalendar::TMonthCalendar(TComponent* Owner) : TCommonCalendar(Owner)
{
    FControlStyle = {csOpaque, csClickEvents, csDoubleClicks};
    SetBounds(0, 0, 191, 154);
}

void TMonthCalendar::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_DATE_CLASSES);
    TCommonCalendar::CreateParams(Params);
    CreateSubClass(Params, MONTHCAL_CLASSA);
    Params.Style |= (MultiSelect() ? MCS_MULTISELECT : 0u) | (ShowToday() ? 0u : MCS_NOTODAY) |
                    (ShowTodayCircle() ? 0u : MCS_NOTODAYCIRCLE) | (WeekNumbers() ? MCS_WEEKNUMBERS : 0u);
}

void TMonthCalendar::PropertyChanged()
{
    RecreateWnd();
}

void TMonthCalendar::UpdateWindow()
{
    if (!HandleAllocated())
        return;
    SYSTEMTIME Range[2] = {DateTimeToSystemTime(FDateTime),
                           DateTimeToSystemTime(std::max(FEndDate, FDateTime))};
    if (MultiSelect()) {
        SendMessageA(Handle(), SetMaxSelectedDays, static_cast<WPARAM>(MaxSelectRange()), 0);
        SendMessageA(Handle(), SetSelectedDays, 0, Param(Range));
    } else {
        SendMessageA(Handle(), MCM_SETCURSEL, 0, Param(Range));
    }
}

void TMonthCalendar::Dispatch(TMessage& Message)
{
    if (Message.Msg != CN_NOTIFY) {
        TCommonCalendar::Dispatch(Message);
        return;
    }
    const auto& Header = *reinterpret_cast<const NMHDR*>(Message.LParam);
    const int Code = static_cast<int>(Header.code);
    if (Code != static_cast<int>(MCN_SELCHANGE) && Code != static_cast<int>(MCN_SELECT))
        return;
    const auto& Notice = reinterpret_cast<const NMSELCHANGE&>(Header);
    FDateTime = ReplaceDate(FDateTime, DayOf(Notice.stSelStart));
    if (MultiSelect())
        FEndDate = DayOf(Notice.stSelEnd);
    if (Code == static_cast<int>(MCN_SELECT) && OnClick)
        OnClick(this);
}

void RegisterDateControlClasses()
{
    RegisterClass(TDateTimePicker::MetaClass());
    RegisterClass(TMonthCalendar::MetaClass());
}
