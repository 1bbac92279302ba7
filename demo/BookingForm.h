// The details of one booking.
#pragma once

#include "demo/BookingDesk.h"
#include "framework/forms/Forms.h"

class TCheckBox;
class TComboBox;
class TEdit;
class TLabel;
class TLabeledEdit;
class TMemo;

class TBookingForm : public TForm {
    OBX_CLASS(TForm)
public:
    explicit TBookingForm(TComponent* Owner) : TForm(Owner) {}

    TLabel* LblSailingValue = nullptr;
    TLabeledEdit* EdtName = nullptr;
    TLabeledEdit* EdtPhone = nullptr;
    TLabeledEdit* EdtMail = nullptr;
    TEdit* EdtPlaces = nullptr;
    TComboBox* CbxFare = nullptr;
    TCheckBox* CkxVehicle = nullptr;
    TCheckBox* CkxReturn = nullptr;
    TMemo* MemRemarks = nullptr;

    void Loaded() override;

    // Lets the user change Booking. False, and nothing changed, when cancelled;
    // Places is 0 when what was entered is no number.
    bool Edit(const std::string& SailingTitle, TBooking& Booking);
    void Fill(const std::string& SailingTitle, const TBooking& Booking);

private:
    void Take(TBooking& Booking) const;
};

extern TBookingForm* BookingForm;
