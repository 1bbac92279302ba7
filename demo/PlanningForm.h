// The harbour's planning: several windows in one frame.
#pragma once

#include "framework/forms/Forms.h"

class TLocaleTranslator;

class TPlanningForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TPlanningForm(TComponent* Owner) : TForm(Owner) {}

    TLocaleTranslator* Locales = nullptr;

    void Loaded() override;

    // Published.
    void FormCreate(TObject* Sender);
    void ItemBerthsClick(TObject* Sender);
    void ItemCrewClick(TObject* Sender);
    void ItemExitClick(TObject* Sender);
    void ItemCascadeClick(TObject* Sender);
    void ItemTileClick(TObject* Sender);
    void ItemArrangeClick(TObject* Sender);

private:
    void LocaleChanged(TObject* Sender);
};
