// The guests, and what the selected one wrote.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/Forms.h"

class TButton;
class TListBox;
class TMemo;
class TMenuItem;

class TMainForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TMainForm(TComponent* Owner) : TForm(Owner) {}

    TMenuItem* MnuLanguage = nullptr;
    TListBox* LbxGuests = nullptr;
    TMemo* MemMessage = nullptr;
    TButton* BtnRemove = nullptr;

    void Loaded() override;

    // Published.
    void FormCreate(TObject* Sender);
    void LbxGuestsClick(TObject* Sender);
    void ItemSignClick(TObject* Sender);
    void ItemRemoveClick(TObject* Sender);
    void ItemExitClick(TObject* Sender);
    void ItemAboutClick(TObject* Sender);

private:
    void AddGuest(const std::string& Name, const std::string& Message);
    void ShowSelected();

    std::vector<std::string> FMessages; // of the guests in the list
};

extern TMainForm* MainForm;
