#pragma once

#include <QStringList>

class GameManager;

// What must hold of the world at the end of every day; the simulator and the tests ask it.
// Each broken rule gives one line that names the man, the night or the organisation.
class WorldInvariants
{
public:
    static QStringList check(const GameManager &world);

private:
    static void checkEveryManStandsOnce(const GameManager &world, QStringList &faults);
    static void checkRosterKeys(const GameManager &world, QStringList &faults);
    static void checkBookings(const GameManager &world, QStringList &faults);
    static void checkPastNightsFought(const GameManager &world, QStringList &faults);
};
