#include "fighters/MatchStatistics.h"

#include "fighters/MatchStatus.h"

#include <iterator>

namespace {

using namespace MatchStatus;

// A row adds up to two pairs of the engine, each named by its first number, the one landed or
// brought off; the number after it is the one thrown or tried. A row with no second number
// shows its count alone.
struct Row {
    const char *label;
    Position first;
    Position second;
    bool pairs;
};

constexpr Position None = Count;

constexpr Row rows[] = {
    {"Jabs", JabLanded, None, true},
    {"Hooks", HookLanded, BodyPunchLanded, true},
    {"Crosses", CrossLanded, None, true},
    {"Uppercuts", UppercutLanded, DirtyBoxingLanded, true},
    {"Elbows", ElbowLanded, None, true},
    {"Low Kicks", LowKickLanded, None, true},
    {"Mid Kicks", MidKickLanded, None, true},
    {"High Kicks", HighKickLanded, None, true},
    {"Front Kicks", FrontKickLanded, None, true},
    {"Knees", KneeLanded, None, true},
    {"Blocks", HighBlocksMade, BodyAndLegBlocksMade, true},
    {"Dodges", HighDodgesMade, OtherDodgesMade, true},
    {"Counters", HighCountersMade, MidCountersMade, true},
    {"Knockdowns", KnockdownsScored, None, false},
};

constexpr int RowCount = int(std::size(rows));

} // namespace

int MatchStatistics::rowCount()
{
    return RowCount;
}

QString MatchStatistics::label(int row)
{
    return row >= 0 && row < RowCount ? QString::fromLatin1(rows[row].label) : QString();
}

QString MatchStatistics::cell(const QList<int> &status, int row)
{
    if (row < 0 || row >= RowCount)
        return QString();
    const Row &r = rows[row];
    int made = status.value(r.first);
    int tried = status.value(r.first + 1);
    if (r.second != None) {
        made += status.value(r.second);
        tried += status.value(r.second + 1);
    }
    if (!r.pairs)
        return QString::number(made);
    return QString::number(made) + '/' + QString::number(tried);
}
