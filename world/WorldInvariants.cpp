#include "world/WorldInvariants.h"

#include "fighters/GameLists.h"
#include "world/WorldState.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

// the two copies of a fantasy match carry ids below -100 and stand beside their originals
constexpr int fantasyIdLimit = -100;
// the one id that all students share until they turn professional
constexpr int studentId = 2000;
constexpr const char *FreeAgent = GameLists::FreeAgent;

// every man of the world and the gym but the students, with the place he stands in
template <typename Visit>
void everyMan(const QList<Entity_Org> &organisations, const QList<Entity_GymFighter> &gym,
              const QMultiMap<int, Entity_Fighter> &freeAgents, const QMultiMap<int, Entity_Fighter> &amateurs,
              Visit visit)
{
    for (const Entity_GymFighter &man : gym)
        visit(man, QStringLiteral("the gym"));
    for (const Entity_Fighter &man : freeAgents)
        visit(man, QStringLiteral("the free agents"));
    for (const Entity_Fighter &man : amateurs)
        visit(man, QStringLiteral("the amateurs"));
    for (const Entity_Org &organisation : organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (const Entity_Fighter &man : std::as_const(roster))
            visit(man, organisation.name());
    }
}

// the tournament's later rounds are the one way onto a card twice
bool isLaterRound(const QString &matchType)
{
    return matchType == QLatin1String(Entity_Match::TournamentSemifinal) ||
           matchType == QLatin1String(Entity_Match::TournamentFinal);
}

} // namespace

QStringList WorldInvariants::check(const WorldState &world)
{
    QStringList faults;
    checkEveryManStandsOnce(world, faults);
    checkRosterKeys(world, faults);
    checkBookings(world, faults);
    checkPastNightsFought(world, faults);
    checkContracts(world, faults);
    checkChampions(world, faults);
    checkCards(world, faults);
    checkIds(world, faults);
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
    everyMan(world.organisations, world.fighters, world.freeAgents, world.amateurs, stand);
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

// A roster man is under contract with his organisation, and nobody has fewer than 0 fights left.
void WorldInvariants::checkContracts(const WorldState &world, QStringList &faults)
{
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (const Entity_Fighter &man : std::as_const(roster)) {
            const QString contract = man.text(Entity_Fighter::Organisation);
            if (contract == QLatin1String(FreeAgent))
                faults << QString("%1 stands in %2 as a free agent").arg(man.fullName(), organisation.name());
            else if (contract != organisation.name())
                faults << QString("%1 stands in %2 under a contract with %3")
                              .arg(man.fullName(), organisation.name(), contract);
        }
    }
    everyMan(world.organisations, world.fighters, world.freeAgents, world.amateurs,
             [&](const Entity_Fighter &man, const QString &place) {
                 const int left = man.number(Entity_Fighter::ContractFightsLeft);
                 if (left < 0)
                     faults << QString("%1 in %2 has %3 fights left").arg(man.fullName(), place).arg(left);
             });
}

// Whoever a title row names, if his organisation holds him, holds an open reign on that title.
void WorldInvariants::checkChampions(const WorldState &world, QStringList &faults)
{
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        QHash<QString, QStringList> reignsOf;
        for (const Entity_Fighter &man : std::as_const(roster))
            reignsOf.insert(man.fullName(), man.titleList());
        for (const Entity_GymFighter &man : world.fighters)
            if (man.text(Entity_Fighter::Organisation) == organisation.name())
                reignsOf.insert(man.fullName(), man.titleList());
        Entity_Org::Titles titles;
        organisation.titlesCopy(titles);
        for (auto row = titles.cbegin(); row != titles.cend(); ++row) {
            const auto reigns = reignsOf.constFind(row.value());
            // a holder who has left keeps last year's tournament row
            if (reigns == reignsOf.cend())
                continue;
            const bool open = std::any_of(reigns->cbegin(), reigns->cend(), [&](const QString &reign) {
                return reign.contains(row.key()) && !reign.contains("until");
            });
            if (!open)
                faults << QString("%1 holds %2 with no open reign in his record").arg(row.value(), row.key());
        }
    }
}

// A man stands once on a card, but for a tournament's later rounds; a night that has passed had
// every place filled; a night to come names only men whom its organisation holds, or the user's.
void WorldInvariants::checkCards(const WorldState &world, QStringList &faults)
{
    QSet<int> gymIds;
    for (const Entity_GymFighter &man : world.fighters)
        gymIds.insert(man.getId());
    for (const Entity_Org &organisation : world.organisations) {
        QList<Entity_Event> calendar;
        organisation.events(calendar);
        for (const Entity_Event &night : calendar) {
            const QString where =
                QString("%1 of %2 on %3").arg(night.name(), organisation.name(), night.date().toString(Qt::TextDate));
            QHash<int, int> earlyPlaces;
            QHash<QString, QSet<int>> laterPlaces;
            bool open = false;
            for (const Entity_Match &match : night.matches()) {
                open = open || !match.isFilled();
                for (const int id : {match.fighterOneId(), match.fighterTwoId()}) {
                    if (id == 0)
                        continue;
                    if (isLaterRound(match.matchType())) {
                        if (laterPlaces[match.matchType()].contains(id))
                            faults << QString("id %1 stands twice in a %2 of %3").arg(id).arg(match.matchType(), where);
                        laterPlaces[match.matchType()].insert(id);
                    } else if (++earlyPlaces[id] == 2) {
                        faults << QString("id %1 stands twice on %2").arg(id).arg(where);
                    }
                    if (night.date() >= world.currentDate && night.results().isEmpty() &&
                        !organisation.holdsFighter(id) && !gymIds.contains(id))
                        faults << QString("%1 names id %2, whom %3 does not hold")
                                      .arg(where)
                                      .arg(id)
                                      .arg(organisation.name());
                }
            }
            if (open && night.date() < world.currentDate)
                faults << QString("%1 passed with open places").arg(where);
        }
    }
}

// Every id was given out: none lies above the last one.
void WorldInvariants::checkIds(const WorldState &world, QStringList &faults)
{
    everyMan(world.organisations, world.fighters, world.freeAgents, world.amateurs,
             [&](const Entity_Fighter &man, const QString &place) {
                 if (man.getId() > world.nextId && man.getId() != studentId)
                     faults << QString("%1 in %2 has the id %3, above the last one given out, %4")
                                   .arg(man.fullName(), place)
                                   .arg(man.getId())
                                   .arg(world.nextId);
             });
}
