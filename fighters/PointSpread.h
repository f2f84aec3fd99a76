#pragma once

#include <QList>

// A number of points spread over a row of boxes, each from the value it started at up to a
// ceiling: the trainer points of a corner over the four kinds of care, the skill points of a
// level up over the manager's eighteen skills. A box that would spend more than is left steps
// back until the points suffice, and may not rise again while none are left; with points left
// every box may rise to the ceiling once more.
class PointSpread
{
public:
    static constexpr int Ceiling = 10;

    // `start` are the boxes' first values, which are also their floors
    PointSpread(int points, const QList<int> &start);

    // box `box` was set to `value`; it is held between its floor and its maximum, and stepped
    // back while the points do not suffice
    void set(int box, int value);

    int left() const;
    int value(int box) const { return values.value(box); }
    int maximum(int box) const { return maxima.value(box); }
    int floor(int box) const { return floors.value(box); }
    QList<int> allValues() const { return values; }

private:
    int points;
    QList<int> floors;
    QList<int> values;
    QList<int> maxima;
};
