#pragma once

// The engine's way of drawing. A calculation seeds from the clock when it starts; before each
// roll there is a wait of reseeds from the clock, as many as the last roll plus the man's
// composure, of which only the last one counts. That last reseed carries the calculation's
// running sum of rolls (the man's composure before the first one), so two rolls of one
// calculation in the same moment still differ; rolls of the same moment with the same sum come
// out equal, as they do in the ring's own rhythm.
class Dice
{
public:
    // seeds from the clock plus `valueAtHand`
    explicit Dice(int composure, int valueAtHand = 0);

    // dN, 1 to N, and uN, 0 to N - 1, each after its reseeds; `valueAtHand` joins their seed
    int d(int n, int valueAtHand = 0);
    int u(int n, int valueAtHand = 0);
    // dN, negated when a further u2 gives 1
    int signedD(int n, int valueAtHand = 0);

    // the next roll of the same seed, for numbers that a calculation takes in a row
    int nextD(int n);
    int nextU(int n);

private:
    void reseed(int valueAtHand);
    int remember(int roll);

    int composure;
    int lastRoll = 0;
    int runningSum = 0;
    bool rolled = false;
};
