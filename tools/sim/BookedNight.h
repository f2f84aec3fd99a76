#pragma once

#include "fighters/FighterGenerator.h"

#include <QStringList>

class GameManager;

// orvane-sim booked: a game in which one of the user's men fights tonight. A new gym cannot sign
// a man yet without the talks of the management screen, so this gives the gym's first fighter
// (a student of the gym, promoted) a contract with the organisation whose next night comes
// first, and lets the days run until the organisation has booked him and his night has come.
// The manager gets some skill in the corner and stands just short of his first level up, so that
// the night shows the corner and the level up a player meets.
class BookedNight
{
public:
    struct Options {
        bool seeded = false;
        quint32 seed = 0;
        QString load;
        QString save;
        int maxDays = 365;
        // every attribute of the man; -1 for the average man of his organisation
        int level = -1;
    };

    static const char *const usage;
    static bool parse(const QStringList &args, Options &options);

    explicit BookedNight(GameManager &world)
        : world(world)
    {
    }
    // the lines of what was done; false when no night could be booked in time
    bool run(const Options &options, const FighterGenerator::NameBook &names, QStringList &report);

private:
    // the gym's first fighter, made from a student when there is none
    int firstFighter(const FighterGenerator::NameBook &names, QStringList &report);
    // his contract, the manager's skills and reputation, written into the world
    void prepare(int fighterId, const QString &organisation, int level);
    QString organisationWithTheNextNight() const;

    GameManager &world;
};
