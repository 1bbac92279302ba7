// Which ship lies at which berth.
#pragma once

#include "framework/forms/Forms.h"

class TListView;

class TBerthsForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TBerthsForm(TComponent* Owner) : TForm(Owner) {}

    TListView* LvwBerths = nullptr;

    void Loaded() override;

    // Published.
    void FormCreate(TObject* Sender);
};

extern TBerthsForm* BerthsForm;
