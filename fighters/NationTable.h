#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The eight regions, the 34 main nations that most men of the world come from, and the family
// of names that a nation's place in its region's list gives its men.
class NationTable
{
public:
    static constexpr int RegionCount = 8;
    static constexpr int MainCount = 34;
    using Lists = QList<QStringList>; // the nations of each region, in region order

    static const QStringList &regions();
    // -1 for a text that names no region
    static int regionIndex(const QString &region);

    static QString mainNation(int index);
    static int mainRegion(int index);
    // -1 for a nation outside the main list
    static int mainIndex(const QString &nation);

    // the 22 name families
    static const QStringList &families();
    // the family of the nation at `position` in the list of `region`
    static QString family(int region, int position);
    // the family of a man of `nation`: by its place in the lists, or for a nation that the lists
    // don't hold (no nation file) by the main list, or else the region's common family
    static QString familyOf(const Lists &lists, int region, const QString &nation);
};
