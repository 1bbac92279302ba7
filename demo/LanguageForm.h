// Dates and numbers in the present locale, and every kind of control that can
// be the language selector.
#pragma once

#include <vector>

#include "framework/forms/Forms.h"

class TComboBox;
class TLabel;
class TListBox;
class TLocaleTranslator;
class TMainMenu;
class TPopupMenu;
class TRadioGroup;
class TTabSet;

class TLanguageForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TLanguageForm(TComponent* Owner) : TForm(Owner) {}
    ~TLanguageForm() override;

    TLabel* LblDateValue = nullptr;
    TLabel* LblShortDateValue = nullptr;
    TLabel* LblTimeValue = nullptr;
    TLabel* LblPriceValue = nullptr;
    TLabel* LblNumberValue = nullptr;
    TComboBox* CbxSelector = nullptr;
    TListBox* LbxLanguages = nullptr;
    TComboBox* CbxLanguages = nullptr;
    TRadioGroup* RgpLanguages = nullptr;
    TTabSet* TbsLanguages = nullptr;
    TMainMenu* MnuLanguages = nullptr;
    TPopupMenu* PopLanguages = nullptr;

    void Loaded() override;

    // The translator whose selector is moved about, and the selector it has.
    void SetTranslator(TLocaleTranslator& Translator);
    // Shows the formats of the present locale.
    void ShowFormats();
    // Makes the selector of that number, from 0, the present one.
    void UseSelector(int Index);
    int SelectorCount() const { return static_cast<int>(FSelectors.size()); }

    // Published.
    void CbxSelectorChange(TObject* Sender);
    void BtnPopupClick(TObject* Sender);

private:
    TLocaleTranslator* FTranslator = nullptr;
    std::vector<TComponent*> FSelectors; // in the order of CbxSelector
};

extern TLanguageForm* LanguageForm;
