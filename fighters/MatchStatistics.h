#pragma once

#include <QList>
#include <QString>

// What a man landed of what he threw, and brought off of what he tried, told in the fourteen
// rows that the corner and the match summary show: some rows put two of the engine's strikes
// together (body punches count with the hooks, dirty boxing with the uppercuts), and the last
// row is the knockdowns he scored, one number alone.
class MatchStatistics
{
public:
    static int rowCount();
    // "Jabs" ... "Knockdowns"; empty off the table
    static QString label(int row);
    // "landed/thrown" from the 44 numbers of a match; the knockdowns alone
    static QString cell(const QList<int> &status, int row);
};
