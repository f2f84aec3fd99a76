#pragma once

#include "fighters/Entity_Fighter.h"

#include <QList>
#include <QStringList>

#include <utility>

class GameManager;

// orvane-sim matches: pairs of men from the rosters of the world, each man against another of
// his own organisation, fought as the day flow fights them, and how the matches ended.
class MatchesRun
{
public:
    struct Options {
        int count = 0;
        bool seeded = false;
        quint32 seed = 0;
    };

    static const char *const usage;

    // the arguments after "matches"; false when they make no sense
    static bool parse(const QStringList &args, Options &options);

    // takes the men of every roster of two or more
    explicit MatchesRun(const GameManager &world);
    bool hasPairs() const { return !rosters.isEmpty(); }

    // fights `count` matches and gives the report's lines
    QStringList run(int count) const;

private:
    // a man drawn from all the rosters, and another of his roster
    std::pair<const Entity_Fighter *, const Entity_Fighter *> drawPair() const;

    QList<QList<Entity_Fighter>> rosters;
    int men = 0;
};
