// Asks a guest for a name and a message.
#pragma once

#include <string>

#include "framework/forms/Forms.h"

class TEdit;
class TMemo;

class TSignForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TSignForm(TComponent* Owner) : TForm(Owner) {}

    TEdit* EdtName = nullptr;
    TMemo* MemMessage = nullptr;

    void Loaded() override;

    // True when the guest has signed.
    bool Ask();
    std::string Guest() const;
    std::string Message() const;

    // Published.
    void BtnSignClick(TObject* Sender);
};

extern TSignForm* SignForm;
