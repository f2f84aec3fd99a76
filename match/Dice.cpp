#include "match/Dice.h"

#include "fighters/Random.h"

Dice::Dice(int composure, int valueAtHand)
    : composure(composure)
{
    Random::seedFromClock(valueAtHand);
}

void Dice::reseed(int valueAtHand)
{
    const int sumAtHand = rolled ? runningSum : composure;
    Random::stir(lastRoll + composure, sumAtHand + valueAtHand);
}

int Dice::remember(int roll)
{
    lastRoll = roll;
    runningSum += roll;
    rolled = true;
    return roll;
}

int Dice::d(int n, int valueAtHand)
{
    reseed(valueAtHand);
    return nextD(n);
}

int Dice::u(int n, int valueAtHand)
{
    reseed(valueAtHand);
    return nextU(n);
}

int Dice::signedD(int n, int valueAtHand)
{
    const int roll = d(n, valueAtHand);
    return u(2, valueAtHand) == 1 ? -roll : roll;
}

int Dice::nextD(int n)
{
    return remember(Random::d(n));
}

int Dice::nextU(int n)
{
    return remember(Random::u(n));
}
