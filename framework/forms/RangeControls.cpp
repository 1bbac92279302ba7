#include "framework/forms/RangeControls.h"

#include <algorithm>

namespace {

using namespace ControlRows;

TRows ProgressBarRows()
{
    return Sorted(
        Base(), Drag(), Mouse(), Focus(false), Buffer(), OBX_ROW(TWinControl, BorderWidth).Default(0),
        OBX_ROW(TProgressBar, BackgroundColor).Default(clDefault),
        OBX_ROW(TProgressBar, BarColor).Default(clDefault),
        OBX_ROW(TProgressBar, MarqueeInterval).Default(10), OBX_ROW(TProgressBar, Min).Default(0),
        OBX_ROW(TProgressBar, Max).Default(100), OBX_ROW(TProgressBar, Orientation).Default(pbHorizontal),
        OBX_ROW(TProgressBar, Position).Default(0), OBX_ROW(TProgressBar, Smooth).Default(false),
        OBX_ROW(TProgressBar, Step).Default(10), OBX_ROW(TProgressBar, Style).Default(pbstNormal));
}

TRows TrackBarRows()
{
    return Sorted(
        Base(), Drag(), Mouse(), Focus(true), Ctl3D(), Buffer(), OBX_ROW(TWinControl, BorderWidth).Default(0),
        OBX_ROW(TTrackBar, Frequency).Default(1), OBX_ROW(TTrackBar, LineSize).Default(1),
        OBX_ROW(TTrackBar, Max).Default(10), OBX_ROW(TTrackBar, Min).Default(0),
        OBX_ROW(TTrackBar, Orientation).Default(trHorizontal), OBX_ROW(TTrackBar, PageSize).Default(2),
        OBX_ROW(TTrackBar, Position).Default(0), OBX_ROW(TTrackBar, PositionToolTip).Default(ptNone),
        OBX_ROW(TTrackBar, SelEnd).Default(0), OBX_ROW(TTrackBar, SelStart).Default(0),
        OBX_ROW(TTrackBar, ShowSelRange).Default(true), OBX_ROW(TTrackBar, SliderVisible).Default(true),
        OBX_ROW(TTrackBar, ThumbLength).Default(20), OBX_ROW(TTrackBar, TickMarks).Default(tmBottomRight),
        OBX_ROW(TTrackBar, TickStyle).Default(tsAuto), Prop<&TTrackBar::OnChange>("OnChange"));
}

TRows UpDownRows()
{
    return Sorted(Base(), Mouse(), Focus(false), Buffer(), OBX_ROW(TUpDown, AlignButton).Default(udRight),
                  OBX_ROW(TUpDown, ArrowKeys).Default(true), OBX_ROW(TUpDown, Associate),
                  OBX_ROW(TUpDown, Increment).Default(1), OBX_ROW(TUpDown, Max).Default(100),
                  OBX_ROW(TUpDown, Min).Default(0), OBX_ROW(TUpDown, Orientation).Default(udVertical),
                  OBX_ROW(TUpDown, Position).Default(0), OBX_ROW(TUpDown, Thousands).Default(true),
                  OBX_ROW(TUpDown, Wrap).Default(false), Prop<&TUpDown::OnChanging>("OnChanging"),
                  Prop<&TUpDown::OnChangingEx>("OnChangingEx"), Prop<&TUpDown::OnClick>("OnClick"));
}

TRows HotKeyRows()
{
    // Alt+A, the classic default.
    constexpr auto Default = static_cast<TShortCut>(scAlt | 'A');
    return Sorted(
        Base(), Mouse(), Focus(true), Buffer(), AutoSize(true), OBX_ROW(THotKey, HotKey).Default(Default),
        OBX_ROW(THotKey, InvalidKeys).Default(THKInvalidKeys{hcNone, hcShift}),
        OBX_ROW(THotKey, Modifiers).Default(THKModifiers{hkAlt}), Prop<&THotKey::OnChange>("OnChange"));
}

} // namespace

const TMetaClass& TProgressBar::MetaClass()
{
    static const TMetaClass Class("TProgressBar", &TWinControl::MetaClass(), CreateComponent<TProgressBar>,
                                  ProgressBarRows());
    return Class;
}

const TMetaClass& TTrackBar::MetaClass()
{
    static const TMetaClass Class("TTrackBar", &TWinControl::MetaClass(), CreateComponent<TTrackBar>,
                                  TrackBarRows());
    return Class;
}

const TMetaClass& TCustomUpDown::MetaClass()
{
    static const TMetaClass Class("TCustomUpDown", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TUpDown::MetaClass()
{
    static const TMetaClass Class("TUpDown", &TCustomUpDown::MetaClass(), CreateComponent<TUpDown>,
                                  UpDownRows());
    return Class;
}

const TMetaClass& TCustomHotKey::MetaClass()
{
    static const TMetaClass Class("TCustomHotKey", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& THotKey::MetaClass()
{
    static const TMetaClass Class("THotKey", &TCustomHotKey::MetaClass(), CreateComponent<THotKey>,
                                  HotKeyRows());
    return Class;
}

TProgressBar::TProgressBar(TComponent* Owner) : TWinControl(Owner)
{
    SetBounds(0, 0, 150, 17);
}

// The limits give way to each other while a form file sets them in any order.
void TProgressBar::SetMin(int Value)
{
    FMin = Value;
    FMax = std::max(FMax, FMin);
    SetPosition(std::max(FPosition, FMin));
    UpdateWindow();
}

void TProgressBar::SetMax(int Value)
{
    FMax = Value;
    FMin = std::min(FMin, FMax);
    SetPosition(IsLoading() ? FPosition : std::min(FPosition, FMax));
    UpdateWindow();
}

void TProgressBar::SetPosition(int Value)
{
    FPosition = IsLoading() ? Value : std::clamp(Value, FMin, FMax);
    if (HandleAllocated())
        SendMessageA(Handle(), PBM_SETPOS, static_cast<WPARAM>(FPosition), 0);
}

void TProgressBar::SetOrientation(TProgressBarOrientation Value)
{
    if (FOrientation == Value)
        return;
    FOrientation = Value;
    RecreateWnd();
}

void TProgressBar::SetSmooth(bool Value)
{
    if (FSmooth == Value)
        return;
    FSmooth = Value;
    RecreateWnd();
}

void TProgressBar::SetStyle(TProgressBarStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    RecreateWnd();
}

void TProgressBar::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_PROGRESS_CLASS);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, PROGRESS_CLASSA);
    Params.Style |= (FOrientation == pbVertical ? PBS_VERTICAL : 0u) | (FSmooth ? PBS_SMOOTH : 0u) |
                    (FStyle == pbstMarquee ? PBS_MARQUEE : 0u);
}

void TProgressBar::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateWindow();
}

void TProgressBar::UpdateWindow()
{
    if (!HandleAllocated())
        return;
    SendMessageA(Handle(), PBM_SETRANGE32, static_cast<WPARAM>(FMin), FMax);
    SendMessageA(Handle(), PBM_SETSTEP, static_cast<WPARAM>(FStep), 0);
    SendMessageA(Handle(), PBM_SETPOS, static_cast<WPARAM>(FPosition), 0);
}

TTrackBar::TTrackBar(TComponent* Owner) : TWinControl(Owner)
{
    SetBounds(0, 0, 150, 45);
    SetTabStop(true);
}

void TTrackBar::SetMax(int Value)
{
    FMax = Value;
    FMin = std::min(FMin, FMax);
    SetPosition(FPosition);
    UpdateWindow();
}

void TTrackBar::SetMin(int Value)
{
    FMin = Value;
    FMax = std::max(FMax, FMin);
    SetPosition(FPosition);
    UpdateWindow();
}

void TTrackBar::SetOrientation(TTrackBarOrientation Value)
{
    if (FOrientation == Value)
        return;
    FOrientation = Value;
    if (!IsLoading())
        SetBounds(Left(), Top(), Height(), Width());
    RecreateWnd();
}

void TTrackBar::SetPosition(int Value)
{
    const int Position = IsLoading() ? Value : std::clamp(Value, FMin, FMax);
    if (FPosition == Position)
        return;
    FPosition = Position;
    if (HandleAllocated())
        SendMessageA(Handle(), TBM_SETPOS, 1, FPosition);
    if (!IsLoading())
        Changed();
}

void TTrackBar::SetNumber(int& Number, int Value)
{
    if (Number == Value)
        return;
    Number = Value;
    UpdateWindow();
}

void TTrackBar::CreateParams(TCreateParams& Params)
{
    static constexpr DWORD Marks[] = {TBS_BOTTOM, TBS_TOP, TBS_BOTH};
    static constexpr DWORD Ticks[] = {TBS_NOTICKS, TBS_AUTOTICKS, 0};
    InitCommonControl(ICC_BAR_CLASSES);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, TRACKBAR_CLASSA);
    Params.Style |= (FOrientation == trVertical ? TBS_VERT : TBS_HORZ) | Marks[FTickMarks] |
                    Ticks[FTickStyle] | TBS_FIXEDLENGTH | (FShowSelRange ? TBS_ENABLESELRANGE : 0u) |
                    (FSliderVisible ? 0u : TBS_NOTHUMB);
}

void TTrackBar::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateWindow();
}

void TTrackBar::UpdateWindow()
{
    if (!HandleAllocated())
        return;
    SendMessageA(Handle(), TBM_SETTHUMBLENGTH, static_cast<WPARAM>(FThumbLength), 0);
    SendMessageA(Handle(), TBM_SETLINESIZE, 0, FLineSize);
    SendMessageA(Handle(), TBM_SETPAGESIZE, 0, FPageSize);
    SendMessageA(Handle(), TBM_SETRANGEMIN, 0, FMin);
    SendMessageA(Handle(), TBM_SETRANGEMAX, 0, FMax);
    SendMessageA(Handle(), TBM_SETSELSTART, 0, FSelStart);
    SendMessageA(Handle(), TBM_SETSELEND, 1, FSelEnd);
    SendMessageA(Handle(), TBM_SETTICFREQ, static_cast<WPARAM>(FFrequency), 0);
    SendMessageA(Handle(), TBM_SETPOS, 1, FPosition);
}

void TTrackBar::Changed()
{
    if (OnChange)
        OnChange(this);
}

void TTrackBar::Dispatch(TMessage& Message)
{
    TWinControl::Dispatch(Message);
    if (Message.Msg != CN_HSCROLL && Message.Msg != CN_VSCROLL)
        return;
    FPosition = static_cast<int>(SendMessageA(Handle(), TBM_GETPOS, 0, 0));
    Changed();
    Message.Result = 0;
}

TCustomUpDown::TCustomUpDown(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle.Exclude(csDoubleClicks);
    SetBounds(0, 0, 17, 31);
}

void TCustomUpDown::Notification(TComponent* Component, TOperation Operation)
{
    TWinControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FAssociate)
        FAssociate = nullptr;
}

void TCustomUpDown::Loaded()
{
    TWinControl::Loaded();
    FMax = std::max(FMax, FMin);
    FPosition = std::clamp(FPosition, FMin, FMax);
}

void TCustomUpDown::SetAssociate(TWinControl* Value)
{
    FAssociate = Value;
    if (!Value)
        return;
    Value->FreeNotification(this);
    ShowPosition();
}

void TCustomUpDown::SetMax(int Value)
{
    FMax = Value;
    SetPosition(FPosition);
    UpdateWindow();
}

void TCustomUpDown::SetMin(int Value)
{
    FMin = Value;
    SetPosition(FPosition);
    UpdateWindow();
}

void TCustomUpDown::SetPosition(int Value)
{
    FPosition = IsLoading() || FMin > FMax ? Value : std::clamp(Value, FMin, FMax);
    UpdateWindow();
    ShowPosition();
}

// A form file has the associated control's text itself.
void TCustomUpDown::ShowPosition()
{
    if (!FAssociate || IsLoading() || FAssociate->HasState(csLoading))
        return;
    std::string Text = std::to_string(FPosition);
    FAssociate->SetText(Text);
}

void TCustomUpDown::CreateParams(TCreateParams& Params)
{
    InitCommonControl(ICC_UPDOWN_CLASS);
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, UPDOWN_CLASSA);
    Params.Style |= (FOrientation == udHorizontal ? UDS_HORZ : 0u) | (FArrowKeys ? UDS_ARROWKEYS : 0u) |
                    (FThousands ? 0u : UDS_NOTHOUSANDS) | (FWrap ? UDS_WRAP : 0u);
}

void TCustomUpDown::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateWindow();
}

void TCustomUpDown::UpdateWindow()
{
    if (!HandleAllocated())
        return;
    SendMessageA(Handle(), UDM_SETRANGE32, static_cast<WPARAM>(FMin), FMax);
    SendMessageA(Handle(), UDM_SETPOS32, 0, FPosition);
}

void TCustomUpDown::Moved(int Delta)
{
    const TUpDownDirection Direction = Delta < 0 ? updDown : updUp;
    int Next = FPosition + (Delta < 0 ? -FIncrement : FIncrement);
    if (FWrap && Next > FMax)
        Next = FMin;
    else if (FWrap && Next < FMin)
        Next = FMax;
    bool Allow = true;
    if (OnChanging)
        OnChanging(this, Allow);
    if (OnChangingEx)
        OnChangingEx(this, Allow, Next, Direction);
    if (!Allow)
        return;
    SetPosition(Next);
    if (OnClick)
        OnClick(this, Direction);
}

void TCustomUpDown::Dispatch(TMessage& Message)
{
    if (Message.Msg == CN_NOTIFY) {
        const auto& Notice = *reinterpret_cast<const NMUPDOWN*>(Message.LParam);
        if (static_cast<int>(Notice.hdr.code) == static_cast<int>(UDN_DELTAPOS)) {
            Moved(Notice.iDelta);
            // The position is set here, not by the window.
            Message.Result = 1;
        }
        return;
    }
    TWinControl::Dispatch(Message);
}

TCustomHotKey::TCustomHotKey(TComponent* Owner)
    : TWinControl(Owner), FHotKey(static_cast<TShortCut>(scAlt | 'A'))
{
    SetBounds(0, 0, 121, 25);
    SetTabStop(true);
    SetParentColor(false);
    TWinControl::SetAutoSize(true);
}

void TCustomHotKey::SetHotKey(TShortCut Value)
{
    if (FHotKey == Value)
        return;
    FHotKey = Value;
    UpdateWindow();
}

// The window shows the name of what was pressed; nothing is typed into it.
void TCustomHotKey::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "EDIT");
    Params.Style |= ES_READONLY | ES_AUTOHSCROLL;
    Params.ExStyle |= WS_EX_CLIENTEDGE;
}

void TCustomHotKey::CreateWnd()
{
    TWinControl::CreateWnd();
    UpdateWindow();
}

void TCustomHotKey::UpdateWindow()
{
    if (HandleAllocated())
        SetWindowTextA(Handle(), ShortCutToText(FHotKey).c_str());
}

// A combination of shift keys that is not allowed gets Modifiers instead.
TShortCut TCustomHotKey::Allowed(TShortCut Value) const
{
    static constexpr THKInvalidKey Combinations[] = {hcNone, hcShift,    hcCtrl,    hcShiftCtrl,
                                                     hcAlt,  hcShiftAlt, hcCtrlAlt, hcShiftCtrlAlt};
    const int Held = (Value & scShift ? 1 : 0) | (Value & scCtrl ? 2 : 0) | (Value & scAlt ? 4 : 0);
    if (!FInvalidKeys.Contains(Combinations[Held]))
        return Value;
    int Result = Value & 0xFF;
    Result |= FModifiers.Contains(hkShift) ? scShift : 0;
    Result |= FModifiers.Contains(hkCtrl) ? scCtrl : 0;
    Result |= FModifiers.Contains(hkAlt) ? scAlt : 0;
    return static_cast<TShortCut>(Result);
}

void TCustomHotKey::Dispatch(TMessage& Message)
{
    if (Message.Msg != WM_KEYDOWN && Message.Msg != WM_SYSKEYDOWN) {
        TWinControl::Dispatch(Message);
        return;
    }
    const auto Key = static_cast<int>(Message.WParam);
    if (Key == VK_SHIFT || Key == VK_CONTROL || Key == VK_MENU)
        return;
    SetHotKey(Key == VK_BACK || Key == VK_DELETE ? scNone : Allowed(ShortCutFromMessage(Message)));
    if (OnChange)
        OnChange(this);
}

void RegisterRangeControlClasses()
{
    for (const TMetaClass* const Class :
         {&TProgressBar::MetaClass(), &TTrackBar::MetaClass(), &TUpDown::MetaClass(), &THotKey::MetaClass()})
        RegisterClass(*Class);
}
