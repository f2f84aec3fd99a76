#include "fighters/Random.h"

#include <chrono>
#include <cstdlib>

namespace {

thread_local unsigned int generatorSeed = 1;

struct TestClock {
    bool on = false;
    quint32 state = 0;
};
thread_local TestClock testClock;

// One step of a 32-bit mixing sequence: every seed gives a different, well spread series.
quint32 nextTestReading(quint32 &state)
{
    state += 0x9E3779B9u;
    quint32 z = state;
    z = (z ^ (z >> 16)) * 0x85EBCA6Bu;
    z = (z ^ (z >> 13)) * 0xC2B2AE35u;
    return z ^ (z >> 16);
}

// The milliseconds of local time are those of UTC, and a monotonic microsecond count does the
// work of the processor clock: both come from the vDSO and cost a few nanoseconds.
uint realMilliseconds()
{
    using namespace std::chrono;
    const auto sinceEpoch = system_clock::now().time_since_epoch();
    return uint(duration_cast<milliseconds>(sinceEpoch).count() % 1000);
}

uint realClockReading()
{
    using namespace std::chrono;
    const auto msec = realMilliseconds();
    const auto micros = duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
    return uint(msec) + uint(micros);
}

} // namespace

void qsrand(uint seed)
{
    generatorSeed = seed;
}

int qrand()
{
    return rand_r(&generatorSeed);
}

namespace Random {

uint clockSeed()
{
    return testClock.on ? nextTestReading(testClock.state) : realClockReading();
}

void seedFromClock(int valueAtHand)
{
    qsrand(clockSeed() + uint(valueAtHand));
}

int clockMilliseconds()
{
    return int(testClock.on ? nextTestReading(testClock.state) % 1000 : realMilliseconds());
}

void stir(int times, int valueAtHand)
{
    if (times > 0)
        seedFromClock(valueAtHand);
}

int d(int n)
{
    return qrand() % qMax(n, 1) + 1;
}

int u(int n)
{
    return qrand() % qMax(n, 1);
}

int signedD(int n)
{
    const int roll = d(n);
    return u(2) == 1 ? -roll : roll;
}

void useTestClock(quint32 seed)
{
    testClock.on = true;
    testClock.state = seed;
    generatorSeed = seed;
}

void useRealClock()
{
    testClock.on = false;
}

bool usingTestClock()
{
    return testClock.on;
}

} // namespace Random
