// The booking desk: today's sailings, what is known about the selected one, and
// the commands to book it.
#pragma once

#include <vector>

#include "demo/BookingDesk.h"
#include "framework/forms/Forms.h"

class TButtonTranslator;
class TComboBox;
class TGroupBox;
class TLabel;
class TListBox;
class TListView;
class TLocaleTranslator;
class TMemo;
class TMenuItem;
class TStatusBar;
class TToolBar;

class TMainForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TMainForm(TComponent* Owner) : TForm(Owner) {}

    TLocaleTranslator* Locales = nullptr;
    TButtonTranslator* Buttons = nullptr;
    TMenuItem* ItemToolBar = nullptr;
    TMenuItem* ItemStatusBar = nullptr;
    TMenuItem* ItemByDeparture = nullptr;
    TMenuItem* ItemByVessel = nullptr;
    TToolBar* ToolBar1 = nullptr;
    TStatusBar* StatusBar1 = nullptr;
    TListBox* LbxRoutes = nullptr;
    TComboBox* CbxTraffic = nullptr;
    TLabel* LblTodayValue = nullptr;
    TListView* LvwSailings = nullptr;
    TMemo* MemRules = nullptr;
    TLabel* LblVesselValue = nullptr;
    TLabel* LblGateValue = nullptr;
    TLabel* LblCheckInValue = nullptr;
    TLabel* LblLaneValue = nullptr;

    void Loaded() override;

    // Published.
    void FormCreate(TObject* Sender);
    void LbxRoutesClick(TObject* Sender);
    void LvwSailingsClick(TObject* Sender);
    void ActNewExecute(TObject* Sender);
    void ActEditExecute(TObject* Sender);
    void ActCancelExecute(TObject* Sender);
    void ActOptionsExecute(TObject* Sender);
    void ItemExitClick(TObject* Sender);
    void ItemCutClick(TObject* Sender);
    void ItemCopyClick(TObject* Sender);
    void ItemPasteClick(TObject* Sender);
    void ItemSelectAllClick(TObject* Sender);
    void ItemToolBarClick(TObject* Sender);
    void ItemStatusBarClick(TObject* Sender);
    void ItemByDepartureClick(TObject* Sender);
    void ItemByVesselClick(TObject* Sender);
    void ItemFormatsClick(TObject* Sender);
    void ItemMessagesClick(TObject* Sender);
    void ItemDialogsClick(TObject* Sender);
    void ItemTranslationsClick(TObject* Sender);
    void ItemRulesClick(TObject* Sender);
    void ItemAboutClick(TObject* Sender);

private:
    void LocaleChanged(TObject* Sender);
    void ListSailings();
    void SelectRow(int Row);
    void ShowSelected();
    void Book(int Sailing, const TBooking& Booking);
    // The sailing that is selected in the list, counted from 0; -1 for none.
    int SelectedSailing() const;
    void ShowToolBar(bool Value);
    void ShowStatusBar(bool Value);

    TBookingDesk FDesk;
    std::vector<int> FRows; // the sailing of each row of the list
    bool FByVessel = false;
};
