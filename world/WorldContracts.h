#pragma once

#include "world/Entity_Booking.h"

#include <QMap>
#include <QString>

struct WorldState;

// What ties the user's fighters to the organisations: each man's booking for his next fight and
// the one-off offers of appearances. Contracts, their negotiation and renewal join this room.
class WorldContracts
{
public:
    explicit WorldContracts(WorldState &world);

    // the fighter's record takes all five fields
    void replaceBooking(const Entity_Booking &record);
    // his record keeps id and name and goes back to "N/A" and no date
    void clearBooking(int id);
    // full name to event name, " - " and the date text; a later record of one name wins
    QMap<QString, QString> bookingsByFighter() const;
    // every offer for that event goes; a booking into it takes the open place of the offer
    void removeOffersForEvent(const QString &eventName);

private:
    WorldState &world;
};
