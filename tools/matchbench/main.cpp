// Reports what a match of the world costs in the engine: three rounds of steps and ticks, or
// fewer when a man is stopped, with the commentary kept in a buffer as the day flow keeps it.
#include "fighters/GameLists.h"
#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTextStream>

namespace {

const QStringList &styles = GameLists::fightingStyles();

Entity_Fighter contender(int id, int seed)
{
    Entity_Fighter man;
    man.setId(id);
    man.setText(Entity_Fighter::FirstName, QStringLiteral("Bench"));
    man.setText(Entity_Fighter::LastName, QStringLiteral("Man%1").arg(id));
    man.setText(Entity_Fighter::FightingStyle, styles[seed % styles.size()]);
    for (int field = Entity_Fighter::FirstAttribute; field <= Entity_Fighter::LastAttribute; ++field)
        man.setNumber(Entity_Fighter::Number(field), 30 + (seed * 7 + field * 13) % 60);
    man.setNumber(Entity_Fighter::HeadDurability, 40 + seed % 50);
    man.setNumber(Entity_Fighter::BodyDurability, 40 + (seed * 3) % 50);
    return man;
}

struct Figures {
    double msPerMatch = 0;
    double stepsPerMatch = 0;
    double stoppageShare = 0;
};

Figures runMatches(int matches)
{
    MatchManager &match = MatchManager::instance();
    long steps = 0;
    int stoppages = 0;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < matches; ++i) {
        CommentaryBuffer commentary;
        match.startMatch(contender(1, i), contender(2, i + 3), &commentary);
        bool over = false;
        for (int round = 1; round <= 3 && !over; ++round) {
            if (round > 1)
                match.nextRound();
            match.beginRound();
            do {
                ++steps;
                over = match.step();
            } while (!over && match.tickClock() > 0);
            match.endRoundScores();
        }
        stoppages += over ? 1 : 0;
    }
    const double elapsed = double(timer.nsecsElapsed()) / 1e6;
    return {elapsed / matches, double(steps) / matches, double(stoppages) / matches};
}

} // namespace

int main()
{
    const int matches = 5000;
    QTextStream out(stdout);
    const auto report = [&out](const char *clock, const Figures &f) {
        out << clock << ": " << f.msPerMatch << " ms per match, " << f.stepsPerMatch << " steps per match, "
            << 100 * f.stoppageShare << "% stopped within three rounds\n";
    };
    report("real clock", runMatches(matches));
    Random::useTestClock(1);
    report("test clock", runMatches(matches));
    return 0;
}
