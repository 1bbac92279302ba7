#include "demo/MainForm.h"

#include <algorithm>

#include "DemoTexts.h"
#include "Qbt/Qbt.h"
#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "demo/AboutForm.h"
#include "demo/BookingForm.h"
#include "demo/DialogsForm.h"
#include "demo/Language.h"
#include "demo/LanguageForm.h"
#include "demo/MessagesForm.h"
#include "demo/OptionsForm.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/ListViews.h"
#include "framework/forms/Menus.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PushButtons.h"
#include "framework/forms/StatusBars.h"
#include "framework/forms/ToolBars.h"
#include "framework/rtl/SysUtils.h"

namespace {

std::string FareText(double Fare)
{
    return FloatToStrF(Fare, TFloatFormat::ffNumber, 15, 2);
}

std::string TimeText(TDateTime Time)
{
    return FormatDateTime(ShortTimeFormat, Time);
}

} // namespace

const TMetaClass& TMainForm::MetaClass()
{
    static const TMetaClass Class("TMainForm", &TForm::MetaClass(), CreateComponent<TMainForm>, {},
                                  {Published<&TMainForm::FormCreate>("FormCreate"),
                                   Published<&TMainForm::LbxRoutesClick>("LbxRoutesClick"),
                                   Published<&TMainForm::LvwSailingsClick>("LvwSailingsClick"),
                                   Published<&TMainForm::ActNewExecute>("ActNewExecute"),
                                   Published<&TMainForm::ActEditExecute>("ActEditExecute"),
                                   Published<&TMainForm::ActCancelExecute>("ActCancelExecute"),
                                   Published<&TMainForm::ActOptionsExecute>("ActOptionsExecute"),
                                   Published<&TMainForm::ItemExitClick>("ItemExitClick"),
                                   Published<&TMainForm::ItemCutClick>("ItemCutClick"),
                                   Published<&TMainForm::ItemCopyClick>("ItemCopyClick"),
                                   Published<&TMainForm::ItemPasteClick>("ItemPasteClick"),
                                   Published<&TMainForm::ItemSelectAllClick>("ItemSelectAllClick"),
                                   Published<&TMainForm::ItemToolBarClick>("ItemToolBarClick"),
                                   Published<&TMainForm::ItemStatusBarClick>("ItemStatusBarClick"),
                                   Published<&TMainForm::ItemByDepartureClick>("ItemByDepartureClick"),
                                   Published<&TMainForm::ItemByVesselClick>("ItemByVesselClick"),
                                   Published<&TMainForm::ItemFormatsClick>("ItemFormatsClick"),
                                   Published<&TMainForm::ItemMessagesClick>("ItemMessagesClick"),
                                   Published<&TMainForm::ItemDialogsClick>("ItemDialogsClick"),
                                   Published<&TMainForm::ItemTranslationsClick>("ItemTranslationsClick"),
                                   Published<&TMainForm::ItemRulesClick>("ItemRulesClick"),
                                   Published<&TMainForm::ItemAboutClick>("ItemAboutClick")});
    return Class;
}

void TMainForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "Locales", Locales);
    FindPart(*this, "Buttons", Buttons);
    FindPart(*this, "ItemToolBar", ItemToolBar);
    FindPart(*this, "ItemStatusBar", ItemStatusBar);
    FindPart(*this, "ItemByDeparture", ItemByDeparture);
    FindPart(*this, "ItemByVessel", ItemByVessel);
    FindPart(*this, "ToolBar1", ToolBar1);
    FindPart(*this, "StatusBar1", StatusBar1);
    FindPart(*this, "LbxRoutes", LbxRoutes);
    FindPart(*this, "CbxTraffic", CbxTraffic);
    FindPart(*this, "LblTodayValue", LblTodayValue);
    FindPart(*this, "LvwSailings", LvwSailings);
    FindPart(*this, "MemRules", MemRules);
    FindPart(*this, "LblVesselValue", LblVesselValue);
    FindPart(*this, "LblGateValue", LblGateValue);
    FindPart(*this, "LblCheckInValue", LblCheckInValue);
    FindPart(*this, "LblLaneValue", LblLaneValue);
}

void TMainForm::FormCreate(TObject*)
{
    LbxRoutes->SetItemIndex(0);
    CbxTraffic->SetItemIndex(0);
    Locales->OnTranslated = {this, &TMainForm::LocaleChanged};
    LocaleChanged(Locales);
}

void TMainForm::LocaleChanged(TObject*)
{
    Application->SetTitle(SBookingDesk);
    Application->BiDiMode = BiDiMode();
    ShowButtonsIn(LanguageOf(Locales->ActiveLocale()), *Buttons);
    const TListItem* const Item = LvwSailings->Selected();
    const int Row = Item ? Item->Index() : 0;
    LblTodayValue->SetCaption(FormatDateTime(LongDateFormat, Date()));
    ListSailings();
    SelectRow(Row);
    if (LanguageForm)
        LanguageForm->ShowFormats();
}

void TMainForm::ListSailings()
{
    const std::vector<TSailing>& Sailings = FDesk.Sailings();
    const int Route = LbxRoutes->ItemIndex() - 1; // the first item stands for all
    FRows.clear();
    for (int I = 0; I < static_cast<int>(Sailings.size()); ++I)
        if (Route < 0 || static_cast<int>(Sailings[static_cast<size_t>(I)].Route) == Route)
            FRows.push_back(I);
    if (FByVessel)
        std::stable_sort(FRows.begin(), FRows.end(), [&](int One, int Other) {
            return Sailings[static_cast<size_t>(One)].Vessel < Sailings[static_cast<size_t>(Other)].Vessel;
        });
    LvwSailings->Items()->BeginUpdate();
    LvwSailings->Items()->Clear();
    for (const int Row : FRows) {
        const TSailing& Sailing = Sailings[static_cast<size_t>(Row)];
        TListItem* const Item = LvwSailings->Items()->Add();
        Item->SetCaption(TimeText(Sailing.Departure));
        for (const std::string& Text : {Sailing.From, Sailing.To, Sailing.Vessel,
                                        std::to_string(Sailing.FreePlaces), FareText(Sailing.Fare)})
            Item->SubItems()->Add(Text);
    }
    LvwSailings->Items()->EndUpdate();
    SelectRow(0);
}

void TMainForm::SelectRow(int Row)
{
    if (Row < LvwSailings->Items()->Count())
        LvwSailings->SetSelected(LvwSailings->Items()->Item(Row));
    ShowSelected();
}

int TMainForm::SelectedSailing() const
{
    const TListItem* const Item = LvwSailings->Selected();
    return Item ? FRows[static_cast<size_t>(Item->Index())] : -1;
}

void TMainForm::ShowSelected()
{
    const int Selected = SelectedSailing();
    const TSailing Sailing = Selected < 0 ? TSailing{} : FDesk.Sailings()[static_cast<size_t>(Selected)];
    LblVesselValue->SetCaption(Sailing.Vessel);
    LblGateValue->SetCaption(Sailing.Gate);
    LblCheckInValue->SetCaption(TimeText(Sailing.CheckIn));
    LblLaneValue->SetCaption(Sailing.Lane);
}

void TMainForm::LbxRoutesClick(TObject*)
{
    ListSailings();
}

void TMainForm::LvwSailingsClick(TObject*)
{
    ShowSelected();
}

void TMainForm::Book(int Sailing, const TBooking& Booking)
{
    TBooking Answer = Booking;
    if (!BookingForm->Edit(FDesk.Sailings()[static_cast<size_t>(Sailing)].Title(), Answer))
        return;
    if (!FDesk.Book(Sailing, Answer))
        MessageDlg(Format(SFreePlaces, {FDesk.PlacesFor(Sailing)}), mtWarning, {mbOK}, 0);
    const TListItem* const Item = LvwSailings->Selected();
    const int Row = Item ? Item->Index() : 0;
    ListSailings();
    SelectRow(Row);
}

void TMainForm::ActNewExecute(TObject*)
{
    if (const int Sailing = SelectedSailing(); Sailing >= 0) {
        TBooking Booking;
        Booking.HasVehicle = CbxTraffic->ItemIndex() > 1;
        Book(Sailing, Booking);
    }
}

void TMainForm::ActEditExecute(TObject* Sender)
{
    const int Sailing = SelectedSailing();
    const TBooking* const Booking = Sailing < 0 ? nullptr : FDesk.FindBooking(Sailing);
    if (Booking)
        Book(Sailing, *Booking);
    else
        ActNewExecute(Sender);
}

void TMainForm::ActCancelExecute(TObject*)
{
    const int Sailing = SelectedSailing();
    const TBooking* const Booking = Sailing < 0 ? nullptr : FDesk.FindBooking(Sailing);
    if (!Booking)
        return;
    if (OptionsForm->CkxAsk->Checked() &&
        MessageDlg(Format(SCancelBooking, {Booking->Name}), mtConfirmation, mbYesNo, 0) != mrYes)
        return;
    FDesk.Cancel(Sailing);
    const int Row = LvwSailings->Selected()->Index();
    ListSailings();
    SelectRow(Row);
}

void TMainForm::ActOptionsExecute(TObject*)
{
    OptionsForm->CkxToolBar->SetChecked(ToolBar1->Visible());
    OptionsForm->CkxStatusBar->SetChecked(StatusBar1->Visible());
    OptionsForm->CkxHints->SetChecked(Application->ShowHint());
    if (OptionsForm->ShowModal() != mrOk)
        return;
    ShowToolBar(OptionsForm->CkxToolBar->Checked());
    ShowStatusBar(OptionsForm->CkxStatusBar->Checked());
    Application->SetShowHint(OptionsForm->CkxHints->Checked());
}

void TMainForm::ItemExitClick(TObject*)
{
    Close();
}

void TMainForm::ItemCutClick(TObject*)
{
    MemRules->CutToClipboard();
}

void TMainForm::ItemCopyClick(TObject*)
{
    MemRules->CopyToClipboard();
}

void TMainForm::ItemPasteClick(TObject*)
{
    MemRules->PasteFromClipboard();
}

void TMainForm::ItemSelectAllClick(TObject*)
{
    MemRules->SetFocus();
    MemRules->SelectAll();
}

void TMainForm::ShowToolBar(bool Value)
{
    ToolBar1->SetVisible(Value);
    ItemToolBar->SetChecked(Value);
}

void TMainForm::ShowStatusBar(bool Value)
{
    StatusBar1->SetVisible(Value);
    ItemStatusBar->SetChecked(Value);
}

void TMainForm::ItemToolBarClick(TObject*)
{
    ShowToolBar(!ToolBar1->Visible());
}

void TMainForm::ItemStatusBarClick(TObject*)
{
    ShowStatusBar(!StatusBar1->Visible());
}

void TMainForm::ItemByDepartureClick(TObject*)
{
    FByVessel = false;
    ItemByDeparture->SetChecked(true);
    ListSailings();
}

void TMainForm::ItemByVesselClick(TObject*)
{
    FByVessel = true;
    ItemByVessel->SetChecked(true);
    ListSailings();
}

void TMainForm::ItemFormatsClick(TObject*)
{
    LanguageForm->Show();
}

void TMainForm::ItemMessagesClick(TObject*)
{
    MessagesForm->Show();
}

void TMainForm::ItemDialogsClick(TObject*)
{
    DialogsForm->Show();
}

// The window shows its own texts while its translations are edited. What is changed
// goes into the translations file.
void TMainForm::ItemTranslationsClick(TObject*)
{
    TFormTranslator* Shown = nullptr;
    for (int I = 0; I < ComponentCount(); ++I)
        if (auto* const Each = dynamic_cast<TFormTranslator*>(Components(I));
            Each && (!Shown || Each->Translated()))
            Shown = Each;
    if (Shown && Shown->ShowEditor())
        Shown->SaveTo(Shown->GetAppDir() + Shown->FileName());
}

void TMainForm::ItemRulesClick(TObject*)
{
    MemRules->SetFocus();
}

void TMainForm::ItemAboutClick(TObject*)
{
    AboutForm->ShowModal();
}
