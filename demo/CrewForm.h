// Who is on duty, and the orders of the day.
#pragma once

#include "framework/forms/Forms.h"

class TCrewForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TCrewForm(TComponent* Owner) : TForm(Owner) {}
};

extern TCrewForm* CrewForm;
