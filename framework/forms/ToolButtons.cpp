#include <algorithm>

#include "framework/forms/ToolBars.h"

const TMetaClass& TToolButtonActionLink::MetaClass()
{
    static const TMetaClass Class("TToolButtonActionLink", &TControlActionLink::MetaClass(), nullptr);
    return Class;
}

TToolButtonActionLink::TToolButtonActionLink(TToolButton* Client)
    : TControlActionLink(Client), FButton(Client)
{
}

bool TToolButtonActionLink::IsCheckedLinked() const
{
    return Values() && FButton->Down() == Values()->Checked;
}

bool TToolButtonActionLink::IsImageIndexLinked() const
{
    return Values() && FButton->ImageIndex() == Values()->ImageIndex;
}

void TToolButtonActionLink::SetChecked(bool Value)
{
    if (IsCheckedLinked())
        FButton->SetDown(Value);
}

void TToolButtonActionLink::SetImageIndex(int Value)
{
    if (IsImageIndexLinked())
        FButton->SetImageIndex(Value);
}

const TMetaClass& TToolButton::MetaClass()
{
    static const TMetaClass Class(
        "TToolButton", &TGraphicControl::MetaClass(), CreateComponent<TToolButton>,
        ControlRows::Joined(
            OBX_ROW(TControl, Action), OBX_ROW(TToolButton, AllowAllUp).Default(false),
            OBX_ROW(TControl, AutoSize).Default(false), ControlRows::Caption(),
            OBX_ROW(TToolButton, Down).Default(false).Stored<&TToolButton::IsDownStored>(),
            OBX_ROW(TControl, DragCursor).Default(crDrag), OBX_ROW(TControl, DragKind).Default(dkDrag),
            OBX_ROW(TControl, DragMode).Default(dmManual), OBX_ROW(TToolButton, DropdownMenu),
            OBX_ROW(TControl, Enabled).Default(true).Stored<&TControl::IsEnabledStored>(),
            OBX_ROW(TToolButton, EnableDropdown).Default(false), OBX_ROW(TToolButton, Grouped).Default(false),
            OBX_ROW(TControl, Height).Stored(false),
            OBX_ROW(TToolButton, ImageIndex).Default(-1).Stored<&TToolButton::IsImageIndexStored>(),
            OBX_ROW(TToolButton, Indeterminate).Default(false), OBX_ROW(TToolButton, Marked).Default(false),
            OBX_ROW(TToolButton, MenuItem), OBX_ROW(TControl, ParentShowHint).Default(true),
            OBX_ROW(TControl, PopupMenu), OBX_ROW(TToolButton, Wrap).Default(false),
            OBX_ROW(TControl, ShowHint).Stored<&TControl::IsShowHintStored>(),
            OBX_ROW(TToolButton, Style).Default(tbsButton),
            OBX_ROW(TControl, Visible).Default(true).Stored<&TControl::IsVisibleStored>(),
            ControlRows::Mouse(), ControlRows::Drag()));
    return Class;
}

TToolButton::TToolButton(TComponent* Owner) : TGraphicControl(Owner)
{
    FControlStyle = {csCaptureMouse, csSetCaption};
    SetBounds(0, 0, 23, 22);
}

TToolButton::~TToolButton()
{
    SetStateFlag(csDestroying, true);
    if (FToolBar)
        FToolBar->RemoveButton(this);
}

int TToolButton::Index() const
{
    if (!FToolBar)
        return -1;
    const auto& All = FToolBar->FButtons;
    return static_cast<int>(std::find(All.begin(), All.end(), this) - All.begin());
}

void TToolButton::Click()
{
    TGraphicControl::Click();
}

bool TToolButton::CheckMenuDropdown()
{
    if (!FToolBar || (!FDropdownMenu && !FMenuItem))
        return false;
    const TPoint Below = ClientToScreen(Point(0, Height()));
    if (FDropdownMenu) {
        FDropdownMenu->SetPopupComponent(this);
        FDropdownMenu->Popup(static_cast<int>(Below.x), static_cast<int>(Below.y));
        return true;
    }
    if (FMenuItem->Count() == 0)
        return false;
    FMenuItem->Click();
    TrackPopupMenu(FMenuItem->Handle(), TPM_LEFTALIGN | TPM_LEFTBUTTON, static_cast<int>(Below.x),
                   static_cast<int>(Below.y), 0, PopupMenuWindow(), nullptr);
    return true;
}

void TToolButton::SetDown(bool Value)
{
    if (FDown == Value)
        return;
    FDown = Value;
    PropertyChanged();
    if (Value && FGrouped && FStyle == tbsCheck)
        UpButtons();
}

// The group is the row of grouped buttons between two others.
void TToolButton::UpButtons()
{
    if (!FToolBar)
        return;
    const auto& All = FToolBar->FButtons;
    const int Own = Index();
    const auto Release = [&](int From, int Step) {
        for (int I = From; I >= 0 && I < FToolBar->ButtonCount(); I += Step) {
            TToolButton* const Other = All[static_cast<size_t>(I)];
            if (!Other->Grouped() || Other->Style() != tbsCheck)
                return;
            Other->SetDown(false);
        }
    };
    Release(Own - 1, -1);
    Release(Own + 1, 1);
}

void TToolButton::SetDropdownMenu(TPopupMenu* Value)
{
    FDropdownMenu = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TToolButton::SetMenuItem(TMenuItem* Value)
{
    FMenuItem = Value;
    if (!Value)
        return;
    Value->FreeNotification(this);
    if (IsLoading())
        return;
    SetAction(Value->Action());
    SetCaption(Value->Caption());
    SetDown(Value->Checked());
    SetEnabled(Value->Enabled());
    SetHint(Value->Hint());
    SetImageIndex(Value->ImageIndex());
    SetVisible(Value->Visible());
}

bool TToolButton::IsImageIndexStored() const
{
    return !ActionLink() || !ActionLink()->IsImageIndexLinked();
}

bool TToolButton::IsDownStored() const
{
    return !ActionLink() || !ActionLink()->IsCheckedLinked();
}

void TToolButton::ActionChange(TBasicAction* Sender, bool CheckDefaults)
{
    TGraphicControl::ActionChange(Sender, CheckDefaults);
    const TActionValues* const Values = Sender->Values();
    if (!Values)
        return;
    if (!CheckDefaults || !FDown)
        SetDown(Values->Checked);
    if (!CheckDefaults || FImageIndex == -1)
        SetImageIndex(Values->ImageIndex);
}

std::unique_ptr<TControlActionLink> TToolButton::CreateActionLink()
{
    return std::make_unique<TToolButtonActionLink>(this);
}

void TToolButton::Notification(TComponent* Component, TOperation Operation)
{
    TGraphicControl::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FDropdownMenu)
        FDropdownMenu = nullptr;
    if (Component == FMenuItem)
        FMenuItem = nullptr;
}

void TToolButton::PropertyChanged()
{
    if (FToolBar)
        FToolBar->UpdateButton(this);
}

void TToolButton::Dispatch(TMessage& Message)
{
    TGraphicControl::Dispatch(Message);
    if (Message.Msg == CM_TEXTCHANGED || Message.Msg == CM_ENABLEDCHANGED || Message.Msg == CM_VISIBLECHANGED)
        PropertyChanged();
}

void TToolButton::SetParentControl(TWinControl* AParent)
{
    if (FToolBar)
        FToolBar->RemoveButton(this);
    TGraphicControl::SetParentControl(AParent);
    if (auto* const Bar = dynamic_cast<TToolBar*>(AParent))
        Bar->InsertButton(this);
}

BYTE TToolButton::WindowState() const
{
    int State = 0;
    if (FDown)
        State |= TBSTATE_CHECKED;
    if (Enabled() && (!FToolBar || FToolBar->Enabled()))
        State |= TBSTATE_ENABLED;
    if (!Visible())
        State |= TBSTATE_HIDDEN;
    if (FIndeterminate)
        State |= TBSTATE_INDETERMINATE;
    if (FWrap)
        State |= TBSTATE_WRAP;
    if (FMarked)
        State |= TBSTATE_MARKED;
    return static_cast<BYTE>(State);
}

BYTE TToolButton::WindowStyle() const
{
    static constexpr int Styles[] = {TBSTYLE_BUTTON, TBSTYLE_CHECK, TBSTYLE_DROPDOWN,
                                     TBSTYLE_SEP,    TBSTYLE_SEP,   TBSTYLE_BUTTON};
    int Style = Styles[FStyle];
    if (AutoSize())
        Style |= TBSTYLE_AUTOSIZE;
    if (FGrouped)
        Style |= TBSTYLE_GROUP;
    return static_cast<BYTE>(Style);
}
