// The settings of the booking desk.
#pragma once

#include "framework/forms/Forms.h"

class TCheckBox;
class TComboBox;
class TPageControl;

class TOptionsForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TOptionsForm(TComponent* Owner) : TForm(Owner) {}

    TPageControl* PageControl1 = nullptr;
    TCheckBox* CkxToolBar = nullptr;
    TCheckBox* CkxStatusBar = nullptr;
    TCheckBox* CkxHints = nullptr;
    TCheckBox* CkxAsk = nullptr; // before a booking is cancelled
    TComboBox* CbxCurrency = nullptr;
    TComboBox* CbxPaper = nullptr;

    void Loaded() override;

    // Published.
    void FormCreate(TObject* Sender);
    void BtnHelpClick(TObject* Sender);
};

extern TOptionsForm* OptionsForm;
