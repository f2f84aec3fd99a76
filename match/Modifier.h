#pragma once

#include "match/Dice.h"

#include <QList>

// A modifier of a decision: when the man's tactic (or stamina band) is one of `when`, the score
// of option `option` moves by an amount in direction `sign`.
struct Modifier {
    enum Amount {
        X,        // the decision's one d20
        XPlusU10, // the same d20 and one more u10
        Y,        // the decision's one d35
        OwnD20    // a d20 of its own
    };

    unsigned when; // a bit for each tactic or band value
    int option;
    int sign;
    Amount amount;

    static constexpr unsigned values(int a) { return 1u << a; }
    static constexpr unsigned values(int a, int b) { return (1u << a) | (1u << b); }
    static constexpr unsigned above(int v) { return ~0u << (v + 1); }

    bool appliesTo(int value) const { return value >= 0 && value < 32 && (when & (1u << value)) != 0; }

    // The tactic rows are tested in order and at most one applies; every band row that fits
    // applies. `x` and `y` are the decision's own rolls.
    static void applyFirst(const QList<Modifier> &rows, int value, QList<int> &scores, Dice &dice, int x, int y);
    static void applyAll(const QList<Modifier> &rows, int value, QList<int> &scores, Dice &dice, int x, int y);

private:
    void apply(QList<int> &scores, Dice &dice, int x, int y) const;
};
