// Controls of classes that the program does not have, as labelled boxes.
#pragma once

#include "framework/forms/CustomControl.h"
#include "framework/streaming/ComponentReader.h"

// Has the place, size and contents that the form file gives it, and shows name and
// class in a box.
class TStandInControl : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TStandInControl(TComponent* Owner);

protected:
    void Paint() override;
};

// A TStandInMaker that makes one for what has a size, or contains something that has;
// null for the rest.
TComponent* MakeStandInControl(const TFormObject& Source, TComponent& Owner);
