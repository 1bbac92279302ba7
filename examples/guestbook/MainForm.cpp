#include "MainForm.h"

#include "GuestbookTexts.h"
#include "SignForm.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/Menus.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"

TMainForm* MainForm = nullptr;

const TMetaClass& TMainForm::MetaClass()
{
    static const TMetaClass Class("TMainForm", &TForm::MetaClass(), CreateComponent<TMainForm>, {},
                                  {Published<&TMainForm::FormCreate>("FormCreate"),
                                   Published<&TMainForm::LbxGuestsClick>("LbxGuestsClick"),
                                   Published<&TMainForm::ItemSignClick>("ItemSignClick"),
                                   Published<&TMainForm::ItemRemoveClick>("ItemRemoveClick"),
                                   Published<&TMainForm::ItemExitClick>("ItemExitClick"),
                                   Published<&TMainForm::ItemAboutClick>("ItemAboutClick")});
    return Class;
}

void TMainForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "MnuLanguage", MnuLanguage);
    FindPart(*this, "LbxGuests", LbxGuests);
    FindPart(*this, "MemMessage", MemMessage);
    FindPart(*this, "BtnRemove", BtnRemove);
}

void TMainForm::FormCreate(TObject*)
{
    AddGuest("Ada Lovelace", "What a lovely view from the terrace!");
    AddGuest("Konrad Zuse", "Schön war es. Ich komme wieder.");
    AddGuest("Grace Hopper", "No bugs in my room. Thank you.");
    LbxGuests->SetItemIndex(0);
    ShowSelected();
}

void TMainForm::AddGuest(const std::string& Name, const std::string& Message)
{
    LbxGuests->Items()->Add(Name);
    FMessages.push_back(Message);
}

void TMainForm::ShowSelected()
{
    const int Guest = LbxGuests->ItemIndex();
    MemMessage->SetText(Guest < 0 ? "" : FMessages[static_cast<size_t>(Guest)]);
    BtnRemove->SetEnabled(Guest >= 0);
}

void TMainForm::LbxGuestsClick(TObject*)
{
    ShowSelected();
}

void TMainForm::ItemSignClick(TObject*)
{
    if (!SignForm->Ask())
        return;
    AddGuest(SignForm->Guest(), SignForm->Message());
    LbxGuests->SetItemIndex(LbxGuests->Items()->Count() - 1);
    ShowSelected();
    MessageDlg(Format(SThanks, {SignForm->Guest(), DateToStr(Date())}), mtInformation, {mbOK}, 0);
}

void TMainForm::ItemRemoveClick(TObject*)
{
    const int Guest = LbxGuests->ItemIndex();
    if (Guest < 0)
        return;
    LbxGuests->Items()->Delete(Guest);
    FMessages.erase(FMessages.begin() + Guest);
    ShowSelected();
}

void TMainForm::ItemExitClick(TObject*)
{
    Close();
}

void TMainForm::ItemAboutClick(TObject*)
{
    MessageDlg(SAbout, mtInformation, {mbOK}, 0);
}
