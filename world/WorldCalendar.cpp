#include "world/WorldCalendar.h"

#include "world/BookingRound.h"
#include "world/WorldState.h"

WorldCalendar::WorldCalendar(WorldState &world)
    : world(world)
{
}

template <typename Test> QList<Entity_Event> WorldCalendar::eventsWhere(Test test) const
{
    QList<Entity_Event> found;
    for (const Entity_Org &org : world.organisations) {
        QList<Entity_Event> calendar;
        org.events(calendar);
        for (const Entity_Event &event : calendar) {
            if (test(event))
                found.append(event);
        }
    }
    return found;
}

QDate WorldCalendar::getCurrentDate() const
{
    return world.currentDate;
}

void WorldCalendar::advanceDate()
{
    world.currentDate = world.currentDate.addDays(1);
}

QList<Entity_Event> WorldCalendar::todaysWorldEvents() const
{
    const QDate today = world.currentDate;
    return eventsWhere([&](const Entity_Event &e) { return e.date() == today && !e.isUserBooked(); });
}

QList<Entity_Event> WorldCalendar::todaysUserEvents() const
{
    const QDate today = world.currentDate;
    // a fight night is held once: its results mark it as fought
    return eventsWhere(
        [&](const Entity_Event &e) { return e.date() == today && e.isUserBooked() && e.results().isEmpty(); });
}

void WorldCalendar::storeEventResults(const QStringList &lines, const QString &eventName, const QString &orgName)
{
    if (Entity_Org *org = world.organisationNamed(orgName))
        org->storeResults(lines, eventName, world.currentDate);
}

QStringList WorldCalendar::bookEvents()
{
    return BookingRound(world).run();
}

void WorldCalendar::rollOverEvents()
{
    for (Entity_Org &org : world.organisations)
        org.rollOverEvents();
}
