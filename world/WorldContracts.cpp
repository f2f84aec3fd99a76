#include "world/WorldContracts.h"

#include "world/WorldState.h"

WorldContracts::WorldContracts(WorldState &world)
    : world(world)
{
}

void WorldContracts::replaceBooking(const Entity_Booking &record)
{
    for (Entity_Booking &booking : world.bookings) {
        if (booking.fighterId() == record.fighterId()) {
            booking = record;
            return;
        }
    }
}

void WorldContracts::clearBooking(int id)
{
    for (Entity_Booking &booking : world.bookings) {
        if (booking.fighterId() == id) {
            booking = Entity_Booking::emptyFor(id, booking.fighterName(), Entity_Booking().eventDate());
            return;
        }
    }
}

QMap<QString, QString> WorldContracts::bookingsByFighter() const
{
    QMap<QString, QString> byFighter;
    for (const Entity_Booking &booking : world.bookings)
        byFighter.insert(booking.fighterName(), booking.eventName() + " - " + booking.dateText());
    return byFighter;
}

void WorldContracts::removeOffersForEvent(const QString &eventName)
{
    world.offers.removeIf([&](const Entity_Booking &offer) { return offer.eventName() == eventName; });
}
