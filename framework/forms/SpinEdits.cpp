#include "framework/forms/SpinEdits.h"

#include <algorithm>

#include "framework/forms/EditRows.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Milliseconds until a held button steps on, and between the steps then.
constexpr uint32_t FirstPause = 400;
constexpr uint32_t RepeatPause = 100;

} // namespace

const TMetaClass& TSpinButton::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TSpinButton", &TCustomControl::MetaClass(), CreateComponent<TSpinButton>,
        Sorted(Base(), Drag(), Focus(false), ControlRows::Ctl3D(), OBX_ROW(TSpinButton, FocusControl),
               Prop<&TSpinButton::OnDownClick>("OnDownClick"), Prop<&TSpinButton::OnUpClick>("OnUpClick")));
    return Class;
}

const TMetaClass& TSpinEdit::MetaClass()
{
    using namespace ControlRows;
    static const TMetaClass Class(
        "TSpinEdit", &TCustomEdit::MetaClass(), CreateComponent<TSpinEdit>,
        Sorted(Look(), Drag(), Mouse(), Focus(true), ControlRows::Ctl3D(), ControlRows::AutoSize(true),
               OBX_ROW(TSpinEdit, ParentColor).Default(false), OBX_ROW(TSpinEdit, AutoSelect).Default(true),
               OBX_ROW(TSpinEdit, EditorEnabled).Default(true), OBX_ROW(TSpinEdit, Increment).Default(1),
               OBX_ROW(TSpinEdit, MaxLength).Default(0), OBX_ROW(TSpinEdit, MaxValue),
               OBX_ROW(TSpinEdit, MinValue), OBX_ROW(TSpinEdit, ReadOnly).Default(false),
               OBX_ROW(TSpinEdit, Value), Prop<&TSpinEdit::OnChange>("OnChange")));
    return Class;
}

TSpinButton::TSpinButton(TComponent* Owner) : TCustomControl(Owner)
{
    FControlStyle = {csCaptureMouse, csOpaque};
    SetBounds(0, 0, 20, 25);
}

void TSpinButton::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TSpinButton::Notification(TComponent* Component, TOperation Operation)
{
    TCustomControl::Notification(Component, Operation);
    if (Operation == opRemove && Component == FFocusControl)
        FFocusControl = nullptr;
}

void TSpinButton::DrawHalf(THalf Half, TRect Area)
{
    const UINT Arrow = Half == THalf::Upper ? DFCS_SCROLLUP : DFCS_SCROLLDOWN;
    const UINT State = (FPressed == Half ? DFCS_PUSHED : 0u) | (Enabled() ? 0u : DFCS_INACTIVE);
    DrawFrameControl(Canvas()->Handle(), &Area, DFC_SCROLL, Arrow | State);
}

void TSpinButton::Paint()
{
    DrawHalf(THalf::Upper, {0, 0, Width(), Height() / 2});
    DrawHalf(THalf::Lower, {0, Height() / 2, Width(), Height()});
}

void TSpinButton::Press()
{
    const TNotifyEvent& Event = FPressed == THalf::Upper ? OnUpClick : OnDownClick;
    if (Event)
        Event(this);
}

void TSpinButton::Repeat(TObject*)
{
    FRepeat->SetInterval(RepeatPause);
    if (FPressed != THalf::None && MouseCapture())
        Press();
}

void TSpinButton::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseDown(Button, Shift, X, Y);
    if (Button != mbLeft || !Enabled())
        return;
    FPressed = Y < Height() / 2 ? THalf::Upper : THalf::Lower;
    if (FFocusControl && FFocusControl->TabStop() && FFocusControl->CanFocus() && !FFocusControl->Focused())
        FFocusControl->SetFocus();
    Press();
    if (!FRepeat)
        FRepeat = std::make_unique<TTimer>(nullptr);
    FRepeat->SetInterval(FirstPause);
    FRepeat->SetOnTimer({this, &TSpinButton::Repeat});
    FRepeat->SetEnabled(true);
    Invalidate();
}

void TSpinButton::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TCustomControl::MouseUp(Button, Shift, X, Y);
    FPressed = THalf::None;
    if (FRepeat)
        FRepeat->SetEnabled(false);
    Invalidate();
}

TSpinEdit::TSpinEdit(TComponent* Owner) : TCustomEdit(Owner), FButton(new TSpinButton(this))
{
    FControlStyle.Exclude(csSetCaption);
    SetText("0");
    FButton->SetBounds(0, 0, 15, 17);
    FControlStyle.Include(csAcceptsControls);
    FButton->SetParent(this);
    FControlStyle.Exclude(csAcceptsControls);
    FButton->SetFocusControl(this);
    FButton->OnUpClick = {this, &TSpinEdit::UpClick};
    FButton->OnDownClick = {this, &TSpinEdit::DownClick};
}

int TSpinEdit::Value() const
{
    return StrToIntDef(Text(), FMinValue);
}

void TSpinEdit::SetValue(int NewValue)
{
    const int Wanted = IsLoading() ? NewValue : InRange(NewValue);
    if (Text().empty() || Wanted != Value() || StrToIntDef(Text(), Wanted + 1) != Wanted)
        SetText(IntToStr(Wanted));
}

int TSpinEdit::InRange(int Candidate) const
{
    return FMaxValue == FMinValue ? Candidate
                                  : std::clamp(Candidate, FMinValue, std::max(FMinValue, FMaxValue));
}

void TSpinEdit::Step(int Change)
{
    if (ReadOnly())
        MessageBeep(0);
    else
        SetValue(Value() + Change);
}

void TSpinEdit::PlaceButton()
{
    const int Edge = Ctl3D() && BorderStyle() == bsSingle ? 4 : 0;
    FButton->SetBounds(Width() - FButton->Width() - Edge, 0, FButton->Width(), std::max(0, Height() - Edge));
}

void TSpinEdit::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    TCustomEdit::SetBounds(ALeft, ATop, AWidth, AHeight);
    PlaceButton();
}

void TSpinEdit::CreateParams(TCreateParams& Params)
{
    TCustomEdit::CreateParams(Params);
    Params.Style |= WS_CLIPCHILDREN;
}

void TSpinEdit::CreateWnd()
{
    TCustomEdit::CreateWnd();
    PlaceButton();
    SendMessageA(WindowHandle(), EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, FButton->Width()));
}

void TSpinEdit::Dispatch(TMessage& Message)
{
    TCustomEdit::Dispatch(Message);
    if (Message.Msg == CM_EXIT && Value() != InRange(Value()))
        SetValue(Value());
}

void TSpinEdit::KeyDown(uint16_t& Key, TShiftState Shift)
{
    if (Key == VK_UP)
        Step(FIncrement);
    else if (Key == VK_DOWN)
        Step(-FIncrement);
    TCustomEdit::KeyDown(Key, Shift);
}

void TSpinEdit::KeyPress(char& Key)
{
    const bool IsNumber = (Key >= '0' && Key <= '9') || Key == '+' || Key == '-';
    const bool IsControl = Key >= 0 && Key < ' ' && Key != '\r';
    const bool Changes = IsNumber || Key == '\b';
    if ((!IsNumber && !IsControl) || (!EditorEnabled() && Changes)) {
        Key = 0;
        MessageBeep(0);
    }
    if (Key != 0)
        TCustomEdit::KeyPress(Key);
}
