#include "fighters/PointSpread.h"

#include <algorithm>

PointSpread::PointSpread(int points, const QList<int> &start)
    : points(points)
    , floors(start)
    , values(start)
    , maxima(start.size(), Ceiling)
{
    // a box that starts at the ceiling cannot rise at all
    for (qsizetype box = 0; box < start.size(); ++box)
        maxima[box] = std::max(int(Ceiling), start[box]);
}

int PointSpread::left() const
{
    int spent = 0;
    for (qsizetype box = 0; box < values.size(); ++box)
        spent += values[box] - floors[box];
    return points - spent;
}

void PointSpread::set(int box, int value)
{
    if (box < 0 || box >= values.size())
        return;
    values[box] = std::clamp(value, floors[box], maxima[box]);
    // the box that overspent steps back, and stays there while nothing is left
    if (left() < 0) {
        values[box] += left();
        maxima[box] = values[box];
    }
    if (left() != 0)
        std::fill(maxima.begin(), maxima.end(), int(Ceiling));
}
