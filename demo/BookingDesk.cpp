#include "demo/BookingDesk.h"

#include "framework/rtl/SysUtils.h"

namespace {

TDateTime At(int Hours, int Minutes)
{
    return EncodeTime(Hours, Minutes, 0, 0);
}

} // namespace

std::string TSailing::Title() const
{
    return FormatDateTime(ShortTimeFormat, Departure) + "  " + From + " - " + To;
}

TBookingDesk::TBookingDesk()
    : FSailings{
          {At(6, 30), "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 84, 12.5, "A1", At(6, 10), "1"},
          {At(7, 45), "Nyholm", "Ekudden", "Tärnan", TRoute::Southern, 61, 9.8, "A2", At(7, 25), "3"},
          {At(9, 15), "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 40, 12.5, "A1", At(8, 55), "1"},
          {At(10, 0), "Ekudden", "Lilla Bådan", "Måsen", TRoute::Southern, 118, 7.2, "B1", At(9, 40), "2"},
          {At(12, 20), "Nyholm", "Lilla Bådan", "Tärnan", TRoute::Southern, 57, 14, "A2", At(12, 0), "3"},
          {At(15, 30), "Nyholm", "Gråhamn", "Lasse", TRoute::Freight, 12, 48, "C4", At(14, 45), "6"},
          {At(18, 5), "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 96, 12.5, "A1", At(17, 45), "1"},
          {At(22, 40), "Nyholm", "Gråhamn", "Ejdern", TRoute::Overnight, 203, 36.4, "B2", At(21, 55), "5"},
      }
{
}

const TBooking* TBookingDesk::FindBooking(int Sailing) const
{
    const auto Found = FBookings.find(Sailing);
    return Found == FBookings.end() ? nullptr : &Found->second;
}

int TBookingDesk::PlacesFor(int Sailing) const
{
    const TBooking* const Earlier = FindBooking(Sailing);
    return FSailings[static_cast<size_t>(Sailing)].FreePlaces + (Earlier ? Earlier->Places : 0);
}

bool TBookingDesk::Book(int Sailing, const TBooking& Booking)
{
    const int Free = PlacesFor(Sailing);
    if (Booking.Places < 1 || Booking.Places > Free)
        return false;
    FSailings[static_cast<size_t>(Sailing)].FreePlaces = Free - Booking.Places;
    FBookings[Sailing] = Booking;
    return true;
}

void TBookingDesk::Cancel(int Sailing)
{
    if (const TBooking* const Booking = FindBooking(Sailing)) {
        FSailings[static_cast<size_t>(Sailing)].FreePlaces += Booking->Places;
        FBookings.erase(Sailing);
    }
}
