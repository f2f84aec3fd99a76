// Reports what one clock-seeded draw costs, the engine's unit of work, and how often two rolls of
// one calculation come out equal under each clock.
#include "fighters/Random.h"
#include "match/Dice.h"

#include <QElapsedTimer>
#include <QTextStream>

namespace {

double nanosecondsPerDraw(int draws)
{
    QElapsedTimer timer;
    timer.start();
    int sink = 0;
    for (int i = 0; i < draws; ++i) {
        Random::seedFromClock(i);
        sink += qrand() % 100;
    }
    const double elapsed = double(timer.nsecsElapsed());
    return sink == -1 ? 0 : elapsed / draws;
}

// two d50 in a row of one calculation, as the engine's states roll them; by chance alone they
// agree one time in fifty (2 %)
double percentEqualPairs(int pairs)
{
    int equal = 0;
    for (int i = 0; i < pairs; ++i) {
        Dice roll(50 + i % 50);
        equal += roll.d(50) == roll.d(50);
    }
    return 100.0 * equal / pairs;
}

void report(QTextStream &out, const char *clock)
{
    out << clock << ": " << nanosecondsPerDraw(10'000'000) << " ns per clock-seeded draw, "
        << percentEqualPairs(1'000'000) << " % of two successive d50 equal\n";
}

} // namespace

int main()
{
    QTextStream out(stdout);
    report(out, "real clock");
    Random::useTestClock(1);
    report(out, "test clock");
    return 0;
}
