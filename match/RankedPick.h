#pragma once

#include <QList>

class Dice;

// How the engine chooses between options that have scores: the options are ranked, each rank
// stands a fixed number of times in a list, one entry is drawn, and the first option (in the
// order the caller gives) whose score equals the drawn one is taken. So the best of two comes up
// two times in three, and two options with equal scores always go to the one tested first.
class RankedPick
{
public:
    // the index of the chosen option; two, three, four or six options
    static int choose(const QList<int> &scores, Dice &dice);
    // the entries of each rank, best first, for a choice between `options`
    static QList<int> entriesByRank(int options);
};
