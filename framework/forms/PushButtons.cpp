#include "framework/forms/PushButtons.h"

#include "framework/forms/ControlRows.h"
#include "framework/forms/Form.h"

namespace {

// BS_LEFTTEXT puts the text of a box at its left; reading from right to left
// turns the sides around.
DWORD TextSide(const TControl& Control, TLeftRight Alignment)
{
    const bool AtLeft = (Alignment == taLeftJustify) != Control.UseRightToLeftAlignment();
    return AtLeft ? BS_LEFTTEXT : 0;
}

template<class TPublisher>
ControlRows::TRows PushButtonRows()
{
    using namespace ControlRows;
    TRows Result = Joined(
        Base(), Drag(), Mouse(), Focus(true), Buffer(), ControlRows::Caption(), ControlRows::Action(),
        OBX_ROW(TPublisher, Font).template Stored<&TPublisher::IsFontStored>(),
        OBX_ROW(TPublisher, ParentFont).Default(true), OBX_ROW(TPublisher, Cancel).Default(false),
        OBX_ROW(TPublisher, CommandLinkHint), OBX_ROW(TPublisher, Default).Default(false),
        OBX_ROW(TPublisher, DisabledImageIndex).Default(-1),
        OBX_ROW(TPublisher, ElevationRequired).Default(false), OBX_ROW(TPublisher, HotImageIndex).Default(-1),
        OBX_ROW(TPublisher, ImageIndex).Default(-1), OBX_ROW(TPublisher, ModalResult).Default(mrNone));
    return Joined(
        std::move(Result), OBX_ROW(TPublisher, PressedImageIndex).Default(-1),
        OBX_ROW(TPublisher, SelectedImageIndex).Default(-1), OBX_ROW(TPublisher, Style).Default(bsPushButton),
        OBX_ROW(TPublisher, WordWrap).Default(false), Prop<&TPublisher::OnDropDownClick>("OnDropDownClick"));
}

// What check boxes and radio buttons share.
template<class TPublisher>
ControlRows::TRows BoxRows(bool TabStop)
{
    using namespace ControlRows;
    return Joined(Look(), Drag(), Mouse(), Focus(TabStop), Ctl3D(), Buffer(), ControlRows::Caption(),
                  ControlRows::Action(), OBX_ROW(TPublisher, Alignment).Default(taRightJustify),
                  Prop<&TButtonControl::Checked, &TButtonControl::SetChecked>("Checked")
                      .Default(false)
                      .Stored<&TButtonControl::IsCheckedStored>(),
                  OBX_ROW(TPublisher, WordWrap).Default(false));
}

} // namespace

const TMetaClass& TButtonControl::MetaClass()
{
    static const TMetaClass Class("TButtonControl", &TWinControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TButtonActionLink::MetaClass()
{
    static const TMetaClass Class("TButtonActionLink", &TWinControlActionLink::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TCustomButton::MetaClass()
{
    static const TMetaClass Class("TCustomButton", &TButtonControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TButton::MetaClass()
{
    static const TMetaClass Class("TButton", &TCustomButton::MetaClass(), CreateComponent<TButton>,
                                  ControlRows::Sorted(PushButtonRows<TButton>()));
    return Class;
}

const TMetaClass& TCustomCheckBox::MetaClass()
{
    static const TMetaClass Class("TCustomCheckBox", &TButtonControl::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TCheckBox::MetaClass()
{
    static const TMetaClass Class("TCheckBox", &TCustomCheckBox::MetaClass(), CreateComponent<TCheckBox>,
                                  ControlRows::Sorted(BoxRows<TCheckBox>(true),
                                                      OBX_ROW(TCheckBox, AllowGrayed).Default(false),
                                                      OBX_ROW(TCheckBox, State).Default(cbUnchecked)));
    return Class;
}

const TMetaClass& TRadioButton::MetaClass()
{
    static const TMetaClass Class("TRadioButton", &TButtonControl::MetaClass(), CreateComponent<TRadioButton>,
                                  ControlRows::Sorted(BoxRows<TRadioButton>(false)));
    return Class;
}

TButtonControl::TButtonControl(TComponent* Owner) : TWinControl(Owner)
{
    FControlStyle = {csSetCaption, csDoubleClicks};
}

bool TButtonControl::IsCheckedStored() const
{
    return !ActionLink() || !ActionLink()->IsCheckedLinked();
}

void TButtonControl::ActionChange(TBasicAction* Sender, bool CheckDefaults)
{
    TWinControl::ActionChange(Sender, CheckDefaults);
    if (const TActionValues* const Values = Sender->Values())
        if (!CheckDefaults || !Checked())
            SetChecked(Values->Checked);
}

std::unique_ptr<TControlActionLink> TButtonControl::CreateActionLink()
{
    return std::make_unique<TButtonActionLink>(this);
}

void TButtonControl::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    CreateSubClass(Params, "BUTTON");
    if (FWordWrap)
        Params.Style |= BS_MULTILINE;
}

void TButtonControl::PropertyChanged()
{
    RecreateWnd();
}

void TButtonControl::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case CN_COMMAND:
        if (Message.Code() == BN_CLICKED)
            Clicked();
        return;
    case CM_DIALOGCHAR:
        if (IsAccel(static_cast<uint16_t>(Message.WParam), Caption()) && CanFocus()) {
            SetFocus();
            Clicked();
            Message.Result = 1;
            return;
        }
        break;
    default:
        break;
    }
    TWinControl::Dispatch(Message);
}

TButtonActionLink::TButtonActionLink(TButtonControl* Client) : TWinControlActionLink(Client), FButton(Client)
{
}

bool TButtonActionLink::IsCheckedLinked() const
{
    return TWinControlActionLink::IsCheckedLinked() && FButton->Checked() == Values()->Checked;
}

void TButtonActionLink::SetChecked(bool Value)
{
    if (IsCheckedLinked())
        FButton->SetChecked(Value);
}

TCustomButton::TCustomButton(TComponent* Owner) : TButtonControl(Owner)
{
    SetBounds(0, 0, 75, 25);
    SetTabStop(true);
}

void TCustomButton::Click()
{
    if (TCustomForm* const Form = GetParentForm(this))
        Form->SetModalResult(FModalResult);
    TButtonControl::Click();
}

void TCustomButton::SetDefault(bool Value)
{
    FDefault = Value;
    if (!HandleAllocated())
        return;
    TMessage Message{CM_FOCUSCHANGED, 0, 0, 0};
    if (const TCustomForm* const Form = GetParentForm(this))
        Message.LParam = reinterpret_cast<LPARAM>(Form->ActiveControl());
    FocusChanged(Message);
}

void TCustomButton::SetButtonStyle(bool IsDefault)
{
    if (!HandleAllocated())
        return;
    const LONG_PTR Style = IsDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if ((GetWindowLongPtrA(WindowHandle(), GWL_STYLE) & 0xF) != Style)
        SendMessageA(WindowHandle(), BM_SETSTYLE, static_cast<WPARAM>(Style), 1);
}

void TCustomButton::CreateParams(TCreateParams& Params)
{
    TButtonControl::CreateParams(Params);
    Params.Style |= FDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void TCustomButton::CreateWnd()
{
    TButtonControl::CreateWnd();
    FActive = FDefault;
}

void TCustomButton::DialogKey(TMessage& Message)
{
    const bool IsEnter = Message.WParam == VK_RETURN && FActive;
    const bool IsEscape = Message.WParam == VK_ESCAPE && FCancel;
    if ((IsEnter || IsEscape) && KeyDataToShiftState(Message.LParam).Empty() && CanFocus()) {
        Click();
        Message.Result = 1;
    } else {
        TButtonControl::Dispatch(Message);
    }
}

// Among buttons the one with the focus is the default; otherwise the one that
// was declared so.
void TCustomButton::FocusChanged(const TMessage& Message)
{
    auto* const Sender = reinterpret_cast<TWinControl*>(Message.LParam);
    const bool IsButton = dynamic_cast<TCustomButton*>(Sender) != nullptr;
    FActive = IsButton ? Sender == this : FDefault;
    SetButtonStyle(FActive);
}

void TCustomButton::Dispatch(TMessage& Message)
{
    if (Message.Msg == CM_DIALOGKEY) {
        DialogKey(Message);
        return;
    }
    if (Message.Msg == CM_FOCUSCHANGED)
        FocusChanged(Message);
    TButtonControl::Dispatch(Message);
}

TCustomCheckBox::TCustomCheckBox(TComponent* Owner) : TButtonControl(Owner)
{
    SetBounds(0, 0, 97, 17);
    SetTabStop(true);
}

void TCustomCheckBox::SetAlignment(TLeftRight Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomCheckBox::SetState(TCheckBoxState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    if (HandleAllocated())
        SendMessageA(WindowHandle(), BM_SETCHECK, static_cast<WPARAM>(FState), 0);
    if (!IsLoading())
        Click();
}

void TCustomCheckBox::Toggle()
{
    if (FState == cbUnchecked)
        SetState(FAllowGrayed ? cbGrayed : cbChecked);
    else
        SetState(FState == cbChecked ? cbUnchecked : cbChecked);
}

void TCustomCheckBox::CreateParams(TCreateParams& Params)
{
    TButtonControl::CreateParams(Params);
    Params.Style |= BS_3STATE | TextSide(*this, FAlignment);
    Params.WindowClass.style &= ~static_cast<UINT>(CS_HREDRAW | CS_VREDRAW);
}

void TCustomCheckBox::CreateWnd()
{
    TButtonControl::CreateWnd();
    SendMessageA(WindowHandle(), BM_SETCHECK, static_cast<WPARAM>(FState), 0);
}

TRadioButton::TRadioButton(TComponent* Owner) : TButtonControl(Owner)
{
    SetBounds(0, 0, 113, 17);
}

void TRadioButton::SetAlignment(TLeftRight Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TRadioButton::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    SetTabStop(Value);
    if (HandleAllocated())
        SendMessageA(WindowHandle(), BM_SETCHECK, Value ? BST_CHECKED : BST_UNCHECKED, 0);
    if (Value)
        UncheckOthers();
    if (Value && !IsLoading())
        Click();
}

void TRadioButton::UncheckOthers()
{
    if (!Parent())
        return;
    for (int I = 0; I < Parent()->ControlCount(); ++I) {
        auto* const Other = dynamic_cast<TRadioButton*>(Parent()->Controls(I));
        if (Other && Other != this)
            Other->SetChecked(false);
    }
}

void TRadioButton::CreateParams(TCreateParams& Params)
{
    TButtonControl::CreateParams(Params);
    Params.Style |= BS_RADIOBUTTON | TextSide(*this, FAlignment);
}

void TRadioButton::CreateWnd()
{
    TButtonControl::CreateWnd();
    SendMessageA(WindowHandle(), BM_SETCHECK, FChecked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void TRadioButton::Clicked()
{
    SetChecked(true);
}

void TRadioButton::Dispatch(TMessage& Message)
{
    TButtonControl::Dispatch(Message);
    if (Message.Msg == CN_COMMAND && Message.Code() == BN_DOUBLECLICKED)
        DblClick();
}
