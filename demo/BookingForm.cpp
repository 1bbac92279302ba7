#include "demo/BookingForm.h"

#include "framework/forms/ComboBoxes.h"
#include "framework/forms/Edits.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/LabeledEdits.h"
#include "framework/forms/Labels.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"

TBookingForm* BookingForm = nullptr;

const TMetaClass& TBookingForm::MetaClass()
{
    static const TMetaClass Class("TBookingForm", &TForm::MetaClass(), CreateComponent<TBookingForm>);
    return Class;
}

void TBookingForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "LblSailingValue", LblSailingValue);
    FindPart(*this, "EdtName", EdtName);
    FindPart(*this, "EdtPhone", EdtPhone);
    FindPart(*this, "EdtMail", EdtMail);
    FindPart(*this, "EdtPlaces", EdtPlaces);
    FindPart(*this, "CbxFare", CbxFare);
    FindPart(*this, "CkxVehicle", CkxVehicle);
    FindPart(*this, "CkxReturn", CkxReturn);
    FindPart(*this, "MemRemarks", MemRemarks);
}

bool TBookingForm::Edit(const std::string& SailingTitle, TBooking& Booking)
{
    Fill(SailingTitle, Booking);
    if (ShowModal() != mrOk)
        return false;
    Take(Booking);
    return true;
}

void TBookingForm::Fill(const std::string& SailingTitle, const TBooking& Booking)
{
    LblSailingValue->SetCaption(SailingTitle);
    EdtName->SetText(Booking.Name);
    EdtPhone->SetText(Booking.Phone);
    EdtMail->SetText(Booking.Mail);
    EdtPlaces->SetText(IntToStr(Booking.Places));
    CbxFare->SetItemIndex(Booking.FareGroup);
    CkxVehicle->SetChecked(Booking.HasVehicle);
    CkxReturn->SetChecked(Booking.IsReturn);
    MemRemarks->Lines()->Clear();
    for (const std::string& Line : Booking.Remarks)
        MemRemarks->Lines()->Add(Line);
}

void TBookingForm::Take(TBooking& Booking) const
{
    Booking.Name = EdtName->Text();
    Booking.Phone = EdtPhone->Text();
    Booking.Mail = EdtMail->Text();
    Booking.Places = StrToIntDef(EdtPlaces->Text(), 0);
    Booking.FareGroup = CbxFare->ItemIndex();
    Booking.HasVehicle = CkxVehicle->Checked();
    Booking.IsReturn = CkxReturn->Checked();
    Booking.Remarks.clear();
    for (int I = 0; I < MemRemarks->Lines()->Count(); ++I)
        Booking.Remarks.push_back(MemRemarks->Lines()->Get(I));
}
