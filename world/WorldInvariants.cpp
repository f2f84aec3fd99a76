#include "world/WorldInvariants.h"

#include "fighters/GameLists.h"
#include "world/WorldState.h"

#include <QHash>

namespace {

// the two copies of a fantasy match carry ids below -100 and stand beside their originals
constexpr int fantasyIdLimit = -100;

} // namespace

QStringList WorldInvariants::check(const WorldState &world)
{
    QStringList faults;
    checkEveryManStandsOnce(world, faults);
    checkRosterKeys(world, faults);
    checkBookings(world, faults);
    checkPastNightsFought(world, faults);
    return faults;
}

// Students share the id 2000 and are no men of the world yet; everybody else has one place.
void WorldInvariants::checkEveryManStandsOnce(const WorldState &world, QStringList &faults)
{
    QHash<int, QString> placeOf;
    auto stand = [&](const Entity_Fighter &man, const QString &place) {
        if (man.getId() < fantasyIdLimit)
            return;
        const auto earlier = placeOf.constFind(man.getId());
        if (earlier != placeOf.constEnd())
            faults << QString("%1 (id %2) stands in %3 and in %4")
                          .arg(man.fullName())
                          .arg(man.getId())
                          .arg(*earlier, place);
        else
            placeOf.insert(man.getId(), place);
    };
    for (const Entity_GymFighter &man : world.fighters)
        stand(man, "the gym");
    for (const Entity_Fighter &man : world.freeAgents)
        stand(man, "the free agents");
    for (const Entity_Fighter &man : world.amateurs)
        stand(man, "the amateurs");
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (const Entity_Fighter &man : roster)
            stand(man, organisation.name());
    }
}

void WorldInvariants::checkRosterKeys(const WorldState &world, QStringList &faults)
{
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (auto it = roster.constBegin(); it != roster.constEnd(); ++it)
            if (it.key() != it.value().getRankingScore())
                faults << QString("%1 stands in %2 under %3 with a ranking score of %4")
                              .arg(it.value().fullName(), organisation.name())
                              .arg(it.key())
                              .arg(it.value().getRankingScore());
    }
}

// Each man of the gym has exactly one booking, and a dated booking names a night that exists.
void WorldInvariants::checkBookings(const WorldState &world, QStringList &faults)
{
    for (const Entity_GymFighter &man : world.fighters) {
        int records = 0;
        for (const Entity_Booking &booking : world.bookings)
            records += booking.fighterId() == man.getId();
        if (records != 1)
            faults << QString("%1 has %2 booking records").arg(man.fullName()).arg(records);
    }
    for (const Entity_Booking &booking : world.bookings) {
        if (!booking.hasDate() || booking.eventName() == QLatin1String(GameLists::NoRecord))
            continue;
        const QList<Entity_Org> &organisations = world.organisations;
        const bool nightExists = std::any_of(organisations.cbegin(), organisations.cend(), [&](const Entity_Org &o) {
            if (o.name() != booking.organisationName())
                return false;
            QList<Entity_Event> calendar;
            o.events(calendar);
            return std::any_of(calendar.cbegin(), calendar.cend(), [&](const Entity_Event &night) {
                return night.name() == booking.eventName() && night.date() == booking.eventDate();
            });
        });
        if (!nightExists)
            faults << QString("%1 is booked on %2 of %3, which does not exist")
                          .arg(booking.fighterName(), booking.eventName(), booking.organisationName());
    }
}

void WorldInvariants::checkPastNightsFought(const WorldState &world, QStringList &faults)
{
    for (const Entity_Org &organisation : world.organisations) {
        QList<Entity_Event> calendar;
        organisation.events(calendar);
        for (const Entity_Event &night : calendar)
            if (night.date() < world.currentDate && night.matchCount() > 0 && night.results().isEmpty())
                faults << QString("%1 of %2 on %3 passed without results")
                              .arg(night.name(), organisation.name(), night.date().toString(Qt::TextDate));
    }
}
