#include "demo/BookingDesk.h"

std::string TSailing::Title() const
{
    return Departure + "  " + From + " - " + To;
}

TBookingDesk::TBookingDesk()
    : FSailings{
          {"06:30", "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 84, 12.5, "A1", "06:10", "1"},
          {"07:45", "Nyholm", "Ekudden", "Tärnan", TRoute::Southern, 61, 9.8, "A2", "07:25", "3"},
          {"09:15", "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 40, 12.5, "A1", "08:55", "1"},
          {"10:00", "Ekudden", "Lilla Bådan", "Måsen", TRoute::Southern, 118, 7.2, "B1", "09:40", "2"},
          {"12:20", "Nyholm", "Lilla Bådan", "Tärnan", TRoute::Southern, 57, 14, "A2", "12:00", "3"},
          {"15:30", "Nyholm", "Gråhamn", "Lasse", TRoute::Freight, 12, 48, "C4", "14:45", "6"},
          {"18:05", "Nyholm", "Stora Rev", "Grisslan", TRoute::Northern, 96, 12.5, "A1", "17:45", "1"},
          {"22:40", "Nyholm", "Gråhamn", "Ejdern", TRoute::Overnight, 203, 36.4, "B2", "21:55", "5"},
      }
{
}

const TBooking* TBookingDesk::FindBooking(int Sailing) const
{
    const auto Found = FBookings.find(Sailing);
    return Found == FBookings.end() ? nullptr : &Found->second;
}

bool TBookingDesk::Book(int Sailing, const TBooking& Booking)
{
    const TBooking* const Earlier = FindBooking(Sailing);
    const int Free = FSailings[static_cast<size_t>(Sailing)].FreePlaces + (Earlier ? Earlier->Places : 0);
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
