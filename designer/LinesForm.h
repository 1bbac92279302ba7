// A dialog in which lines of text are edited.
#pragma once

#include "framework/forms/Edits.h"
#include "framework/forms/Forms.h"
#include "framework/forms/PushButtons.h"

class TLinesForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TLinesForm(TComponent* Owner) : TForm(Owner) {}

    // Published.
    TMemo* Memo = nullptr;

protected:
    void DoCreate() override;
};

// OK takes the user's lines into Lines and returns true.
bool EditLines(const std::string& Caption, TStrings& Lines);
