// Limits of a control's size, and the space around and inside it.
#pragma once

#include "framework/rtl/Persistent.h"

class TControl;

// Pixels; 0 sets no limit. A minimum above its maximum moves the other one.
class TSizeConstraints : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TSizeConstraints(TControl* Control) : FControl(Control) {}

    void Assign(const TPersistent* Source) override;
    TPersistent* GetOwner() const override;

    // Published.
    int MaxHeight() const { return FMaxHeight; }
    void SetMaxHeight(int Value);
    int MaxWidth() const { return FMaxWidth; }
    void SetMaxWidth(int Value);
    int MinHeight() const { return FMinHeight; }
    void SetMinHeight(int Value);
    int MinWidth() const { return FMinWidth; }
    void SetMinWidth(int Value);

    TNotifyEvent OnChange;

private:
    void Changed();

    TControl* FControl;
    int FMaxHeight = 0;
    int FMaxWidth = 0;
    int FMinHeight = 0;
    int FMinWidth = 0;
};

// Pixels around an aligned control (AlignWithMargins).
class TMargins : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TMargins(TControl* Control, int Initial = 3);

    void Assign(const TPersistent* Source) override;
    TPersistent* GetOwner() const override;

    OBX_PROPERTY(int, Left, 3)
    OBX_PROPERTY(int, Top, 3)
    OBX_PROPERTY(int, Right, 3)
    OBX_PROPERTY(int, Bottom, 3)

protected:
    void PropertyChanged() override;

private:
    TControl* FControl;
};

// Pixels between a container's edges and the controls aligned in it.
class TPadding : public TMargins {
    OBX_CLASS(TMargins)
public:
    explicit TPadding(TControl* Control) : TMargins(Control, 0) {}
};
