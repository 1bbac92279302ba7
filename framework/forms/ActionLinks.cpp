#include "framework/forms/ActionLinks.h"

#include "framework/forms/WinControl.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TActionLink::MetaClass()
{
    static const TMetaClass Class("TActionLink", &TBasicActionLink::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TControlActionLink::MetaClass()
{
    static const TMetaClass Class("TControlActionLink", &TActionLink::MetaClass(), nullptr);
    return Class;
}

TControlActionLink::TControlActionLink(TControl* Client) : TActionLink(Client), FClient(Client) {}

void TControlActionLink::AssignClient(TObject* Client)
{
    FClient = dynamic_cast<TControl*>(Client);
}

bool TControlActionLink::IsCaptionLinked() const
{
    return Values() && AnsiSameText(FClient->Caption(), Values()->Caption);
}

bool TControlActionLink::IsEnabledLinked() const
{
    return Values() && FClient->Enabled() == Values()->Enabled;
}

bool TControlActionLink::IsHelpLinked() const
{
    return Values() && FClient->HelpContext() == Values()->HelpContext &&
           FClient->HelpKeyword() == Values()->HelpKeyword && FClient->HelpType() == Values()->HelpType;
}

bool TControlActionLink::IsHintLinked() const
{
    return Values() && FClient->Hint() == Values()->Hint;
}

bool TControlActionLink::IsVisibleLinked() const
{
    return Values() && FClient->Visible() == Values()->Visible;
}

bool TControlActionLink::IsOnExecuteLinked() const
{
    return Action() && FClient->OnClick == Action()->OnExecute();
}

void TControlActionLink::SetCaption(const std::string& Value)
{
    if (IsCaptionLinked())
        FClient->SetCaption(Value);
}

void TControlActionLink::SetEnabled(bool Value)
{
    if (IsEnabledLinked())
        FClient->SetEnabled(Value);
}

void TControlActionLink::SetHelpContext(THelpContext Value)
{
    if (IsHelpLinked())
        FClient->SetHelpContext(Value);
}

void TControlActionLink::SetHelpKeyword(const std::string& Value)
{
    if (IsHelpLinked())
        FClient->SetHelpKeyword(Value);
}

void TControlActionLink::SetHelpType(THelpType Value)
{
    if (IsHelpLinked())
        FClient->SetHelpType(Value);
}

void TControlActionLink::SetHint(const std::string& Value)
{
    if (IsHintLinked())
        FClient->SetHint(Value);
}

void TControlActionLink::SetVisible(bool Value)
{
    if (IsVisibleLinked())
        FClient->SetVisible(Value);
}

void TControlActionLink::SetOnExecute(const TNotifyEvent& Value)
{
    if (IsOnExecuteLinked())
        FClient->OnClick = Value;
}

const TMetaClass& TWinControlActionLink::MetaClass()
{
    static const TMetaClass Class("TWinControlActionLink", &TControlActionLink::MetaClass(), nullptr);
    return Class;
}

TWinControlActionLink::TWinControlActionLink(TWinControl* Client) : TControlActionLink(Client) {}

bool TWinControlActionLink::IsHelpContextLinked() const
{
    return Values() && FClient->HelpContext() == Values()->HelpContext;
}
