#include "world/WorldCalendar.h"

#include "world/BookingRound.h"
#include "world/Entity_Match.h"
#include "world/WorldContracts.h"
#include "world/WorldState.h"

namespace {

// The round that a winner tries first, the one he goes on to try when it has no place for him,
// and the news line of each: a winner of tonight goes on tonight, one of an earlier night starts
// in the quarterfinals.
struct Placement {
    const char *first;
    const char *firstLine;
    const char *second;
    const char *secondLine;
};
constexpr Placement tonight = {Entity_Match::TournamentSemifinal, " for a Tournament Semifinal at ",
                               Entity_Match::TournamentFinal, " for the Tournament Final at "};
constexpr Placement laterNight = {Entity_Match::TournamentQuarterfinal, " for a Tournament Quarterfinal at ",
                                  Entity_Match::TournamentSemifinal, " for a Tournament Semifinal at "};

} // namespace

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

// --- Tournaments ---------------------------------------------------------------------------------------

QString WorldCalendar::advanceTournamentWinner(int winnerId, const QString &orgName)
{
    Entity_Org *organisation = world.organisationNamed(orgName);
    if (!organisation)
        return QString();
    const QDate today = world.currentDate;
    // a qualifier night's card is full, so its winners go to the next night; a finals night has
    // open places in its later rounds until its last semifinal is over
    Entity_Event event = organisation->nextEvent(today);
    if (event.cardFilled())
        event = organisation->nextEvent(today.addDays(1));

    QString name;
    bool isGymFighter = false;
    if (organisation->holdsFighter(winnerId)) {
        name = organisation->rosterFighter(winnerId).fullName();
    } else if (const qsizetype index = world.fighterIndexOf(winnerId); index >= 0) {
        name = world.fighters[index].fullName();
        isGymFighter = true;
        WorldContracts(world).replaceBooking(Entity_Booking(winnerId, name, event.name(), orgName, event.date()));
    } else {
        return QString();
    }

    const Placement &placement = event.date() == today ? tonight : laterNight;
    const char *line = placement.firstLine;
    if (!organisation->addToEvent(winnerId, name, event.name(), placement.first, isGymFighter, today)) {
        // the line is told even when the second round has no place for him either
        organisation->addToEvent(winnerId, name, event.name(), placement.second, isGymFighter, today);
        line = placement.secondLine;
    }
    return "Booked " + name + line + event.name();
}
