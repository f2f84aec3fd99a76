#pragma once

#include <QtGlobal>

// The game's one source of chance. Like the qsrand()/qrand() pair that Qt 5 had on Linux, a
// per-thread seed is fed to rand_r(). The game reseeds it from the clock before each block of
// draws; under the test clock that "clock" is a fixed sequence, so a run can be repeated.
void qsrand(uint seed);
int qrand();

namespace Random {

// the milliseconds of the time of day plus the processor clock, or the test clock's next value
uint clockSeed();
// qsrand(clockSeed() + valueAtHand)
void seedFromClock(int valueAtHand = 0);
// the milliseconds of the time of day alone, 0 to 999, or the test clock's next value folded into them
int clockMilliseconds();
// k reseeds from one clock reading: each restarts the generator, so only the last one counts
void stir(int times, int valueAtHand = 0);

// dN: 1 to N; uN: 0 to N - 1; signed dN: dN, negated when a further u2 gives 1.
// A range below 1 counts as 1, so a roll never divides by zero.
int d(int n);
int u(int n);
int signedD(int n);

// The test clock replaces the time of day by a sequence that starts from `seed`.
void useTestClock(quint32 seed);
void useRealClock();
bool usingTestClock();

} // namespace Random
