// What the program is. Its translations are kept in the form file itself.
#pragma once

#include "framework/forms/Forms.h"

class TAboutForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TAboutForm(TComponent* Owner) : TForm(Owner) {}

    // Published.
    void LblLinkClick(TObject* Sender);
};

extern TAboutForm* AboutForm;
