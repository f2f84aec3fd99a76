#include "match/RankedPick.h"

#include "match/Dice.h"

#include <algorithm>
#include <functional>

namespace {

struct Weights {
    int options;
    QList<int> entries;
};

// how often each rank stands in the list, best first
const Weights weightTable[] = {
    {2, {8, 4}},
    {3, {9, 6, 3}},
    {4, {7, 4, 3, 1}},
    {6, {6, 5, 4, 3, 2, 1}},
};

} // namespace

QList<int> RankedPick::entriesByRank(int options)
{
    for (const Weights &row : weightTable)
        if (row.options == options)
            return row.entries;
    return QList<int>(options, 1);
}

int RankedPick::choose(const QList<int> &scores, Dice &dice)
{
    if (scores.isEmpty())
        return -1;
    QList<int> ranked = scores;
    std::sort(ranked.begin(), ranked.end(), std::greater<int>());
    const QList<int> entries = entriesByRank(scores.size());
    int listSize = 0;
    for (int count : entries)
        listSize += count;

    int entry = dice.u(listSize);
    int rank = 0;
    while (entry >= entries[rank]) {
        entry -= entries[rank];
        ++rank;
    }
    return int(scores.indexOf(ranked[rank]));
}
