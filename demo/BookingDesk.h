// What the booking desk knows: today's sailings and the bookings on them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "framework/rtl/DateTime.h"

enum class TRoute { Northern, Southern, Overnight, Freight };

struct TSailing {
    TDateTime Departure; // of any day
    std::string From;
    std::string To;
    std::string Vessel;
    TRoute Route;
    int FreePlaces;
    double Fare; // euros
    std::string Gate;
    TDateTime CheckIn; // when it closes
    std::string Lane;

    // "09:15  Nyholm - Stora Rev", in the present time format
    std::string Title() const;
};

struct TBooking {
    std::string Name;
    std::string Phone;
    std::string Mail;
    int Places = 1;
    int FareGroup = 0; // adult, child, student, pensioner
    bool HasVehicle = false;
    bool IsReturn = false;
    std::vector<std::string> Remarks;
};

// One booking a sailing. Sailings are counted from 0.
class TBookingDesk {
public:
    TBookingDesk();

    const std::vector<TSailing>& Sailings() const { return FSailings; }
    // Null when nothing is booked.
    const TBooking* FindBooking(int Sailing) const;
    // How many places a booking can have: those that are free and those of an earlier
    // booking.
    int PlacesFor(int Sailing) const;
    // Replaces an earlier booking. False, and nothing booked, when there are not
    // enough places left or Places is not positive.
    bool Book(int Sailing, const TBooking& Booking);
    // Gives the places back; without a booking it does nothing.
    void Cancel(int Sailing);

private:
    std::vector<TSailing> FSailings;
    std::map<int, TBooking> FBookings;
};
