// Activation and focus: which form is active and which control has the keyboard.
#include "framework/forms/Application.h"
#include "framework/forms/Menus.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Counts focus changes: a handler that moves the focus ends the change that it
// was called from.
int FocusCount = 0;

bool SendFocusMessage(HWND Window, UINT Msg)
{
    const int Before = FocusCount;
    SendMessageA(Window, Msg, 0, 0);
    return FocusCount == Before;
}

} // namespace

void TCustomForm::SetActiveControl(TWinControl* Value)
{
    if (FActiveControl == Value)
        return;
    const bool Loading = HasState(csLoading);
    if (Value && (Value == this || !ContainsControl(Value) || (!Loading && !Value->CanFocus())))
        throw EInvalidOperation(SCannotFocus);
    FActiveControl = Value;
    if (!Loading && FActive)
        SetWindowFocus();
}

void TCustomForm::SetWindowFocus()
{
    TWinControl* const Target = FActiveControl ? FActiveControl : this;
    ::SetFocus(Target->Handle());
    if (GetFocus() == Target->WindowHandle())
        Target->Perform(CM_UIACTIVATE);
}

void TCustomForm::SetFocus()
{
    if (FActive)
        return;
    if (!(Visible() && Enabled()))
        throw EInvalidOperation(SCannotFocus);
    SetWindowFocus();
}

void TCustomForm::FocusControl(TWinControl* Control)
{
    const bool WasActive = FActive;
    SetActiveControl(Control == this ? nullptr : Control);
    if (!WasActive)
        SetFocus();
}

void TCustomForm::DefocusControl(TWinControl* Control, bool Removing)
{
    if (Removing && FFocusedControl && Control->ContainsControl(FFocusedControl))
        FFocusedControl = Control->Parent();
    if (FActiveControl && Control->ContainsControl(FActiveControl)) {
        FActiveControl = nullptr;
        if (FActive && !HasState(csDestroying))
            SetWindowFocus();
    }
    if (Screen && Screen->ActiveControl() && Control->ContainsControl(Screen->ActiveControl()))
        Screen->SetActive(Screen->ActiveCustomForm(), nullptr);
}

// Called when the window of Control gets the focus. False when a handler has
// moved the focus elsewhere meanwhile.
bool TCustomForm::SetFocusedControl(TWinControl* Control)
{
    if (HasState(csDestroying))
        return true;
    ++FocusCount;
    FActiveControl = Control == this ? nullptr : Control;
    Screen->SetActive(this, Control);
    if (Control->FControlState.Contains(csFocusing))
        return true;
    Control->FControlState.Include(csFocusing);
    const bool Result = MoveFocus(Control);
    Control->FControlState.Exclude(csFocusing);
    return Result;
}

bool TCustomForm::MoveFocus(TWinControl* Control)
{
    if (Screen->FFocusedForm != this) {
        if (TCustomForm* const Old = Screen->FFocusedForm) {
            Screen->FFocusedForm = nullptr;
            if (!SendFocusMessage(Old->WindowHandle(), CM_DEACTIVATE))
                return false;
        }
        Screen->FFocusedForm = this;
        if (!SendFocusMessage(Handle(), CM_ACTIVATE))
            return false;
    }
    if (!FFocusedControl)
        FFocusedControl = this;
    // Out of the containers that are left, then into those that are entered.
    while (FFocusedControl && !FFocusedControl->ContainsControl(Control)) {
        const HWND Left = FFocusedControl->WindowHandle();
        FFocusedControl = FFocusedControl->Parent();
        if (!SendFocusMessage(Left, CM_EXIT))
            return false;
    }
    while (FFocusedControl && FFocusedControl != Control) {
        TWinControl* Entered = Control;
        while (Entered->Parent() != FFocusedControl)
            Entered = Entered->Parent();
        FFocusedControl = Entered;
        if (!SendFocusMessage(Entered->WindowHandle(), CM_ENTER))
            return false;
    }
    for (TWinControl* Container = Control->Parent(); Container; Container = Container->Parent())
        if (auto* const Scrolling = dynamic_cast<TScrollingWinControl*>(Container))
            ScrollTo(*Scrolling, Control);
    Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<LPARAM>(Control));
    return true;
}

void TCustomForm::ScrollTo(TScrollingWinControl& Container, TControl* Control)
{
    Container.ScrollInView(Control);
}

void TCustomForm::SetActive(bool Value)
{
    FActive = Value;
    if (!Value)
        return;
    if (!FActiveControl && !HasState(csDesigning))
        FActiveControl = FindNextControl(nullptr, true, true, false);
    MergeMenu(true);
    SetWindowFocus();
}

// The main form's menu takes up that of the active child, or of another form that
// asks for it; the menu leaves again when it is destroyed or another one comes.
void TCustomForm::MergeMenu(bool)
{
    TForm* const Main = Application ? Application->MainForm() : nullptr;
    if (Main && Main != this && Main->Menu() && FMenu && !IsModal() && !HasState(csDesigning) &&
        (ShownStyle() == fsMDIChild || (FMenu->AutoMerge() && Main->FormStyle() != fsMDIForm)))
        Main->Menu()->Merge(FMenu);
    if (ShownStyle() != fsMDIChild && HandleAllocated())
        RefreshMenu();
}

void TCustomForm::Activate()
{
    if (OnActivate)
        OnActivate(this);
}

void TCustomForm::Deactivate()
{
    if (OnDeactivate)
        OnDeactivate(this);
}
