#pragma once

#include <QStringList>

struct WorldState;

// What must hold of the world at the end of every day; the simulator and the tests ask it.
// Each broken rule gives one line that names the man, the night or the organisation.
class WorldInvariants
{
public:
    static QStringList check(const WorldState &world);

private:
    static void checkEveryManStandsOnce(const WorldState &world, QStringList &faults);
    static void checkRosterKeys(const WorldState &world, QStringList &faults);
    static void checkBookings(const WorldState &world, QStringList &faults);
    static void checkPastNightsFought(const WorldState &world, QStringList &faults);
    static void checkContracts(const WorldState &world, QStringList &faults);
    static void checkChampions(const WorldState &world, QStringList &faults);
    static void checkCards(const WorldState &world, QStringList &faults);
    static void checkIds(const WorldState &world, QStringList &faults);
};
