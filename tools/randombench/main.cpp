// Reports what one clock-seeded draw costs: the engine's unit of work.
#include "fighters/Random.h"

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

} // namespace

int main()
{
    const int draws = 10'000'000;
    QTextStream out(stdout);
    out << "real clock: " << nanosecondsPerDraw(draws) << " ns per clock-seeded draw\n";
    Random::useTestClock(1);
    out << "test clock: " << nanosecondsPerDraw(draws) << " ns per clock-seeded draw\n";
    return 0;
}
