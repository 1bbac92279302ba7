// The links through which actions show their caption, hint, state and so on.
#pragma once

#include "framework/forms/BasicAction.h"

class TControl;
class TWinControl;

// A value is carried on while the client still has the action's own value
// (Is...Linked): a caption that was changed by hand stays.
class TActionLink : public TBasicActionLink {
    OBX_CLASS(TBasicActionLink)
public:
    using TBasicActionLink::TBasicActionLink;

    // The values of the action; null without an action that has any.
    const TActionValues* Values() const { return Action() ? Action()->Values() : nullptr; }

    virtual bool IsCaptionLinked() const { return Values() != nullptr; }
    virtual bool IsCheckedLinked() const { return Values() != nullptr; }
    virtual bool IsEnabledLinked() const { return Values() != nullptr; }
    virtual bool IsGroupIndexLinked() const { return Values() != nullptr; }
    virtual bool IsHelpContextLinked() const { return Values() != nullptr; }
    virtual bool IsHelpLinked() const { return Values() != nullptr; }
    virtual bool IsHintLinked() const { return Values() != nullptr; }
    virtual bool IsImageIndexLinked() const { return Values() != nullptr; }
    virtual bool IsShortCutLinked() const { return Values() != nullptr; }
    virtual bool IsVisibleLinked() const { return Values() != nullptr; }
    bool IsOnExecuteLinked() const override { return true; }

    virtual void SetAutoCheck(bool) {}
    virtual void SetCaption(const std::string&) {}
    virtual void SetChecked(bool) {}
    virtual void SetEnabled(bool) {}
    virtual void SetGroupIndex(int) {}
    virtual void SetHelpContext(THelpContext) {}
    virtual void SetHelpKeyword(const std::string&) {}
    virtual void SetHelpType(THelpType) {}
    virtual void SetHint(const std::string&) {}
    virtual void SetImageIndex(int) {}
    virtual void SetShortCut(TShortCut) {}
    virtual void SetVisible(bool) {}
    void SetOnExecute(const TNotifyEvent&) override {}
};

class TControlActionLink : public TActionLink {
    OBX_CLASS(TActionLink)
public:
    explicit TControlActionLink(TControl* Client);

    bool IsCaptionLinked() const override;
    bool IsEnabledLinked() const override;
    bool IsHelpLinked() const override;
    bool IsHintLinked() const override;
    bool IsVisibleLinked() const override;
    bool IsOnExecuteLinked() const override;

    void SetCaption(const std::string& Value) override;
    void SetEnabled(bool Value) override;
    void SetHelpContext(THelpContext Value) override;
    void SetHelpKeyword(const std::string& Value) override;
    void SetHelpType(THelpType Value) override;
    void SetHint(const std::string& Value) override;
    void SetVisible(bool Value) override;
    void SetOnExecute(const TNotifyEvent& Value) override;

protected:
    void AssignClient(TObject* Client) override;

    TControl* FClient = nullptr;
};

class TWinControlActionLink : public TControlActionLink {
    OBX_CLASS(TControlActionLink)
public:
    explicit TWinControlActionLink(TWinControl* Client);
    bool IsHelpContextLinked() const override;
};
