// Frames: reusable groups of controls, designed like forms and put on forms.
#pragma once

#include "framework/forms/ScrollControls.h"

class TCustomFrame : public TScrollingWinControl {
    OBX_CLASS(TScrollingWinControl)
public:
    explicit TCustomFrame(TComponent* Owner);

    // Reads the form file of the frame's class; once.
    void AfterConstruction();
    // What an inline frame contains belongs to the frame.
    TComponent* GetChildOwner() override { return this; }
    void SetParentComponent(TComponent* Value) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void SetParentControl(TWinControl* AParent) override;

private:
    bool FConstructed = false;
};

class TFrame : public TCustomFrame {
    OBX_CLASS(TCustomFrame)
public:
    explicit TFrame(TComponent* Owner) : TCustomFrame(Owner) {}
};
