// Colours, fonts, visibility and the other things that a control takes from its
// parent or from its action.
#include "framework/forms/Control.h"
#include "framework/forms/Form.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"

void TControl::SetText(const std::string& Value)
{
    if (GetText() == Value)
        return;
    StoreText(Value);
    Perform(CM_TEXTCHANGED);
}

void TControl::SetColor(TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    LeaveParent(FParentColor, pvColor);
    Perform(CM_COLORCHANGED);
}

void TControl::SetEnabled(bool Value)
{
    if (FEnabled == Value)
        return;
    FEnabled = Value;
    Perform(CM_ENABLEDCHANGED);
}

void TControl::SetVisible(bool Value)
{
    if (FVisible == Value)
        return;
    VisibleChanging();
    FVisible = Value;
    Perform(CM_VISIBLECHANGED, Value);
    RequestAlign();
}

void TControl::Show()
{
    if (FParent)
        FParent->ShowControl(this);
    SetVisible(true);
}

void TControl::SetShowHint(bool Value)
{
    if (FShowHint == Value)
        return;
    FShowHint = Value;
    LeaveParent(FParentShowHint, pvShowHint);
    Perform(CM_SHOWHINTCHANGED);
}

void TControl::SetBiDiMode(TBiDiMode Value)
{
    if (FBiDiMode == Value)
        return;
    FBiDiMode = Value;
    LeaveParent(FParentBiDiMode, pvBiDiMode);
    Perform(CM_BIDIMODECHANGED);
}

void TControl::SetParentBiDiMode(bool Value)
{
    FLeftParent.Exclude(pvBiDiMode);
    if (FParentBiDiMode == Value)
        return;
    FParentBiDiMode = Value;
    if (FParent && !IsLoading())
        Perform(CM_PARENTBIDIMODECHANGED);
}

void TControl::SetParentColor(bool Value)
{
    FLeftParent.Exclude(pvColor);
    if (FParentColor == Value)
        return;
    FParentColor = Value;
    if (FParent && !HasState(csReading))
        Perform(CM_PARENTCOLORCHANGED);
}

void TControl::SetParentFont(bool Value)
{
    FLeftParent.Exclude(pvFont);
    if (FParentFont == Value)
        return;
    FParentFont = Value;
    if (FParent && !HasState(csReading))
        Perform(CM_PARENTFONTCHANGED);
}

void TControl::SetParentShowHint(bool Value)
{
    FLeftParent.Exclude(pvShowHint);
    if (FParentShowHint == Value)
        return;
    FParentShowHint = Value;
    if (FParent && !HasState(csReading))
        Perform(CM_PARENTSHOWHINTCHANGED);
}

void TControl::SetPopupMenu(TPopupMenu* Value)
{
    if (FPopupMenu && FPopupMenu != Value)
        FPopupMenu->RemoveFreeNotification(this);
    FPopupMenu = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TControl::SetCustomHint(TComponent* Value)
{
    FCustomHint = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TControl::FontChanged(TObject*)
{
    LeaveParent(FParentFont, pvFont);
    Perform(CM_FONTCHANGED);
}

// A control that got a value of its own follows its parent again once both have
// the same: undoing a change undoes all of it.
void TControl::LeaveParent(bool& Follows, TParentValue Which)
{
    const bool Followed = Follows;
    Follows = false;
    if (HasState(csReading))
        return;
    if (Followed)
        FLeftParent.Include(Which);
    RejoinParent(Follows, Which);
}

bool TControl::RejoinParent(bool& Follows, TParentValue Which)
{
    if (Follows || !FLeftParent.Contains(Which) || !IsParentValue(Which))
        return false;
    FLeftParent.Exclude(Which);
    Follows = true;
    return true;
}

// Without a parent there is only the font that every control begins with.
bool TControl::IsParentValue(TParentValue Which) const
{
    if (!FParent)
        return Which == pvFont && FFont->Data() == TFont().Data() && FFont->Color() == clWindowText;
    switch (Which) {
    case pvFont:
        return FFont->Data() == FParent->Font()->Data() && FFont->Color() == FParent->Font()->Color();
    case pvColor:
        return FColor == FParent->Color();
    case pvShowHint:
        return FShowHint == FParent->ShowHint();
    case pvBiDiMode:
        return FBiDiMode == FParent->BiDiMode();
    }
    return false;
}

void TControl::TakeParentFont()
{
    if (!FParent || RejoinParent(FParentFont, pvFont) || !FParentFont)
        return;
    FFont->Assign(FParent->Font());
    FParentFont = true;
}

void TControl::TakeParentColor()
{
    if (!FParent || RejoinParent(FParentColor, pvColor) || !FParentColor)
        return;
    SetColor(FParent->Color());
    FParentColor = true;
}

void TControl::TakeParentShowHint()
{
    if (!FParent || RejoinParent(FParentShowHint, pvShowHint) || !FParentShowHint)
        return;
    SetShowHint(FParent->ShowHint());
    FParentShowHint = true;
}

void TControl::TakeParentBiDiMode()
{
    if (!FParent || RejoinParent(FParentBiDiMode, pvBiDiMode) || !FParentBiDiMode)
        return;
    SetBiDiMode(FParent->BiDiMode());
    FParentBiDiMode = true;
}

UINT TControl::DrawTextBiDiModeFlags(UINT Flags) const
{
    if (UseRightToLeftAlignment()) {
        if (Flags & DT_RIGHT)
            Flags &= ~static_cast<UINT>(DT_RIGHT);
        else if (!(Flags & DT_CENTER))
            Flags |= DT_RIGHT;
    }
    return UseRightToLeftReading() ? Flags | DT_RTLREADING : Flags;
}

TBasicAction* TControl::Action() const
{
    return FActionLink ? FActionLink->Action() : nullptr;
}

void TControl::SetAction(TBasicAction* Value)
{
    if (!Value) {
        FActionLink.reset();
        FControlStyle.Exclude(csActionClient);
        return;
    }
    FControlStyle.Include(csActionClient);
    if (!FActionLink)
        FActionLink = CreateActionLink();
    FActionLink->SetAction(Value);
    FActionLink->OnChange = {this, &TControl::ActionLinkChange};
    ActionChange(Value, Value->HasState(csLoading));
    Value->FreeNotification(this);
}

void TControl::ActionLinkChange(TObject* Sender)
{
    if (auto* const Changed = dynamic_cast<TBasicAction*>(Sender); Changed && Changed == Action())
        ActionChange(Changed, false);
}

// While the action is still being read, a value of the control's own wins.
void TControl::ActionChange(TBasicAction* Sender, bool CheckDefaults)
{
    const TActionValues* const Values = Sender->Values();
    if (!CheckDefaults || !OnClick)
        OnClick = Sender->OnExecute();
    if (!Values)
        return;
    if (!CheckDefaults || Caption().empty() || Caption() == Name())
        SetCaption(Values->Caption);
    if (!CheckDefaults || Enabled())
        SetEnabled(Values->Enabled);
    if (!CheckDefaults || FHint.empty())
        SetHint(Values->Hint);
    if (!CheckDefaults || FVisible)
        SetVisible(Values->Visible);
    if (!CheckDefaults || FHelpContext == 0)
        FHelpContext = Values->HelpContext;
    if (!CheckDefaults || FHelpKeyword.empty())
        FHelpKeyword = Values->HelpKeyword;
    if (!CheckDefaults || FHelpType == htContext)
        FHelpType = Values->HelpType;
}

std::unique_ptr<TControlActionLink> TControl::CreateActionLink()
{
    return std::make_unique<TControlActionLink>(this);
}

bool TControl::IsCaptionStored() const
{
    return !FActionLink || !FActionLink->IsCaptionLinked();
}

bool TControl::IsEnabledStored() const
{
    return !FActionLink || !FActionLink->IsEnabledLinked();
}

bool TControl::IsHintStored() const
{
    return !FActionLink || !FActionLink->IsHintLinked();
}

bool TControl::IsHelpContextStored() const
{
    return !FActionLink || !FActionLink->IsHelpLinked();
}

bool TControl::IsVisibleStored() const
{
    return !FActionLink || !FActionLink->IsVisibleLinked();
}

bool TControl::IsOnClickStored() const
{
    return !FActionLink || !FActionLink->IsOnExecuteLinked();
}

void TControl::InvalidateControl(bool IsVisible, bool IsOpaque)
{
    if (!FParent || !IsVisible || !FParent->HandleAllocated())
        return;
    const TRect Place = BoundsRect();
    InvalidateRect(FParent->WindowHandle(), &Place, !IsOpaque);
}

void TControl::Invalidate()
{
    InvalidateControl(FVisible, HasStyle(csOpaque));
}

void TControl::Update()
{
    if (FParent)
        FParent->Update();
}

void TControl::Repaint()
{
    Invalidate();
    Update();
}

void TControl::SetZOrder(bool TopMost)
{
    if (!FParent)
        return;
    auto& Siblings = FParent->FControls;
    if (std::erase(Siblings, this) == 0)
        return;
    Siblings.insert(TopMost ? Siblings.end() : Siblings.begin(), this);
    Invalidate();
}

HDC TControl::GetDeviceContext(HWND& Window)
{
    if (!FParent)
        return nullptr;
    const HDC Result = FParent->GetDeviceContext(Window);
    SetViewportOrgEx(Result, FLeft, FTop, nullptr);
    IntersectClipRect(Result, 0, 0, FWidth, FHeight);
    return Result;
}
