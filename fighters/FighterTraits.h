#pragma once

#include "fighters/Entity_Fighter.h"

#include <QStringList>

// Traits a man is born with. A trait is no field: it moves attributes once, at creation, and it
// leaves a line in the bio if the scouting of that moment can see it.
class FighterTraits
{
public:
    // the twenty names in the order of the draw
    static const QStringList &drawList();
    // the count rolled is odd: no traits; even: count + 1 different ones, in the order drawn
    static QStringList draw();
    // each attribute of the trait moves by its own 1 + qrand() % 7, up for the first of a pair
    static void apply(Entity_Fighter &fighter, const QString &trait);
    // the manager's Intuition from which the trait shows in a student's bio; unknown: never
    static int shownFrom(const QString &trait);
    // "New Fighter", then, if he has traits, a line break and a line for each one `seer` can see
    static QString bio(const QStringList &traits, int seer);
};
