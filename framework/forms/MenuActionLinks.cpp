#include "framework/forms/MenuItems.h"
#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TMenuActionLink::MetaClass()
{
    static const TMetaClass Class("TMenuActionLink", &TActionLink::MetaClass(), nullptr);
    return Class;
}

TMenuActionLink::TMenuActionLink(TMenuItem* Client) : TActionLink(Client), FClient(Client) {}

bool TMenuActionLink::IsCaptionLinked() const
{
    return Values() && AnsiSameText(StripHotkey(FClient->Caption()), StripHotkey(Values()->Caption));
}

bool TMenuActionLink::IsCheckedLinked() const
{
    return Values() && FClient->Checked() == Values()->Checked;
}

bool TMenuActionLink::IsEnabledLinked() const
{
    return Values() && FClient->Enabled() == Values()->Enabled;
}

bool TMenuActionLink::IsGroupIndexLinked() const
{
    return Values() && FClient->GroupIndex() == Values()->GroupIndex;
}

bool TMenuActionLink::IsHelpContextLinked() const
{
    return Values() && FClient->HelpContext() == Values()->HelpContext;
}

bool TMenuActionLink::IsHintLinked() const
{
    return Values() && FClient->Hint() == Values()->Hint;
}

bool TMenuActionLink::IsImageIndexLinked() const
{
    return Values() && FClient->ImageIndex() == Values()->ImageIndex;
}

bool TMenuActionLink::IsShortCutLinked() const
{
    return Values() && FClient->ShortCut() == Values()->ShortCut;
}

bool TMenuActionLink::IsVisibleLinked() const
{
    return Values() && FClient->Visible() == Values()->Visible;
}

bool TMenuActionLink::IsOnExecuteLinked() const
{
    return Action() && FClient->OnClick == Action()->OnExecute();
}

bool TMenuActionLink::IsAutoCheckLinked() const
{
    return Values() && FClient->AutoCheck() == Values()->AutoCheck;
}

void TMenuActionLink::SetAutoCheck(bool Value)
{
    if (IsAutoCheckLinked())
        FClient->SetAutoCheck(Value);
}

void TMenuActionLink::SetCaption(const std::string& Value)
{
    if (IsCaptionLinked())
        FClient->SetCaption(Value);
}

void TMenuActionLink::SetChecked(bool Value)
{
    if (IsCheckedLinked())
        FClient->SetChecked(Value);
}

void TMenuActionLink::SetEnabled(bool Value)
{
    if (IsEnabledLinked())
        FClient->SetEnabled(Value);
}

void TMenuActionLink::SetGroupIndex(int Value)
{
    if (IsGroupIndexLinked())
        FClient->SetGroupIndex(static_cast<uint8_t>(Value));
}

void TMenuActionLink::SetHelpContext(THelpContext Value)
{
    if (IsHelpContextLinked())
        FClient->SetHelpContext(Value);
}

void TMenuActionLink::SetHint(const std::string& Value)
{
    if (IsHintLinked())
        FClient->SetHint(Value);
}

void TMenuActionLink::SetImageIndex(int Value)
{
    if (IsImageIndexLinked())
        FClient->SetImageIndex(Value);
}

void TMenuActionLink::SetShortCut(TShortCut Value)
{
    if (IsShortCutLinked())
        FClient->SetShortCut(Value);
}

void TMenuActionLink::SetVisible(bool Value)
{
    if (IsVisibleLinked())
        FClient->SetVisible(Value);
}

void TMenuActionLink::SetOnExecute(const TNotifyEvent& Value)
{
    if (IsOnExecuteLinked())
        FClient->OnClick = Value;
}
