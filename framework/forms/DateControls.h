// Fields and calendars for dates and times.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/rtl/DateTime.h"

OBX_ENUM(TDateTimeKind, dtkDate, dtkTime)
OBX_ENUM(TDTDateMode, dmComboBox, dmUpDown)
OBX_ENUM(TDTDateFormat, dfShort, dfLong)
OBX_ENUM(TDTCalAlignment, dtaLeft, dtaRight)
OBX_ENUM(TCalDayOfWeek, dowMonday, dowTuesday, dowWednesday, dowThursday, dowFriday, dowSaturday, dowSunday,
         dowLocaleDefault)

OBX_EVENT(TDTParseInputEvent, TObject*, const std::string&, TDateTime&, bool&)
OBX_EVENT(TOnGetMonthInfoEvent, TObject*, uint32_t, uint32_t&)

class TMonthCalColors : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TMonthCalColors(TWinControl* Owner) : FOwner(Owner) {}
    void Assign(const TPersistent* Source) override;
    TPersistent* GetOwner() const override { return FOwner; }

    // Published.
    OBX_PROPERTY(TColor, BackColor, clWindow)
    OBX_PROPERTY(TColor, TextColor, clWindowText)
    OBX_PROPERTY(TColor, TitleBackColor, clActiveCaption)
    OBX_PROPERTY(TColor, TitleTextColor, clWhite)
    OBX_PROPERTY(TColor, MonthBackColor, clWhite)
    OBX_PROPERTY(TColor, TrailingTextColor, clInactiveCaptionText)

private:
    TWinControl* FOwner;
};

// What the date field and the calendar share.
class TCommonCalendar : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TCommonCalendar(TComponent* Owner);

    TDateTime DateTime() const { return FDateTime; }
    void SetDateTime(TDateTime Value);

    // Published by those that want it. Each setter keeps the other part.
    TDateTime Date() const { return FDateTime; }
    void SetDate(TDateTime Value);
    TMonthCalColors* CalColors() const { return const_cast<TMonthCalColors*>(&FCalColors); }
    void SetCalColors(TMonthCalColors* Value) { FCalColors.Assign(Value); }
    // 0 for no limit.
    TDateTime MaxDate() const { return FMaxDate; }
    void SetMaxDate(TDateTime Value);
    TDateTime MinDate() const { return FMinDate; }
    void SetMinDate(TDateTime Value);

protected:
    virtual void UpdateWindow() {}
    void CreateWnd() override;

    TDateTime FDateTime;
    TDateTime FMaxDate = 0;
    TDateTime FMinDate = 0;

private:
    TMonthCalColors FCalColors;
};

class TDateTimePicker : public TCommonCalendar {
    OBX_CLASS(TCommonCalendar)
public:
    explicit TDateTimePicker(TComponent* Owner);

    // Published.
    TDateTime Time() const { return FDateTime; }
    void SetTime(TDateTime Value);
    OBX_PROPERTY(TDTCalAlignment, CalAlignment, dtaLeft)
    OBX_PROPERTY(bool, ParseInput, false)
public:
    bool Checked() const { return FChecked; }
    void SetChecked(bool Value);
    TDTDateFormat DateFormat() const { return FDateFormat; }
    void SetDateFormat(TDTDateFormat Value) { SetFlag(FDateFormat, Value); }
    TDTDateMode DateMode() const { return FDateMode; }
    void SetDateMode(TDTDateMode Value) { SetFlag(FDateMode, Value); }
    // The system's picture letters; empty for the user's own format.
    const std::string& Format() const { return FFormat; }
    void SetFormat(const std::string& Value);
    TDateTimeKind Kind() const { return FKind; }
    void SetKind(TDateTimeKind Value) { SetFlag(FKind, Value); }
    bool ShowCheckbox() const { return FShowCheckbox; }
    void SetShowCheckbox(bool Value) { SetFlag(FShowCheckbox, Value); }
    TNotifyEvent OnChange;
    TNotifyEvent OnCloseUp;
    TNotifyEvent OnDropDown;
    TDTParseInputEvent OnUserInput;

protected:
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void UpdateWindow() override;

private:
    template<class T>
    void SetFlag(T& Flag, T Value)
    {
        if (Flag == Value)
            return;
        Flag = Value;
        RecreateWnd();
    }

    bool FChecked = true;
    TDTDateFormat FDateFormat = dfShort;
    TDTDateMode FDateMode = dmComboBox;
    std::string FFormat;
    TDateTimeKind FKind = dtkDate;
    bool FShowCheckbox = false;
};

class TMonthCalendar : public TCommonCalendar {
    OBX_CLASS(TCommonCalendar)
public:
    explicit TMonthCalendar(TComponent* Owner);

    // Published.
    OBX_PROPERTY(TDateTime, EndDate, 0)
    OBX_PROPERTY(TCalDayOfWeek, FirstDayOfWeek, dowLocaleDefault)
    OBX_PROPERTY(int, MaxSelectRange, 31)
    OBX_PROPERTY(bool, MultiSelect, false)
    OBX_PROPERTY(bool, ShowToday, true)
    OBX_PROPERTY(bool, ShowTodayCircle, true)
    OBX_PROPERTY(bool, WeekNumbers, false)
public:
    TOnGetMonthInfoEvent OnGetMonthInfo;

protected:
    void CreateParams(TCreateParams& Params) override;
    void Dispatch(TMessage& Message) override;
    void UpdateWindow() override;
    void PropertyChanged() override;
};

void RegisterDateControlClasses();
