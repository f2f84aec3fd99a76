#include "world/RankMove.h"

#include <climits>

namespace {

// diff * multiply / divide + add, or, where `over` is set, over / -diff
struct Move {
    int multiply;
    int divide;
    int add;
    int over;

    int of(int diff) const { return over ? over / -diff : diff * multiply / divide + add; }
};

struct MoveRow {
    int from; // the lowest `diff` of the row
    Move stoppage;
    Move decision;
};

// clang-format off
constexpr MoveRow moves[] = {
    {301, {1, 2, 0, 0}, {1, 4, 0, 0}},             // diff / 2, diff / 4
    {101, {1, 1, 0, 0}, {1, 2, 0, 0}},             // diff, diff / 2
    {1, {1, 1, 0, 0}, {1, 1, 0, 0}},               // diff, diff
    {0, {0, 1, 300, 0}, {0, 1, 200, 0}},           // 300, 200
    {-100, {2, 1, 200, 0}, {1, 1, 100, 0}},        // 2 x diff + 200, diff + 100
    {-300, {0, 1, 0, 10000}, {0, 1, 0, 8000}},     // 10000 / -diff, 8000 / -diff
    {INT_MIN, {0, 1, 0, 7000}, {0, 1, 0, 5000}},   // 7000 / -diff, 5000 / -diff
};
// clang-format on

} // namespace

int RankMove::points(int diff, bool stoppage)
{
    const MoveRow *row = moves;
    while (diff < row->from)
        ++row;
    return stoppage ? row->stoppage.of(diff) : row->decision.of(diff);
}

bool RankMove::isStoppage(const QString &result)
{
    return !result.contains("Decision");
}

int RankMove::forResult(int winnerScore, int loserScore, const QString &result)
{
    return points(winnerScore - loserScore, isStoppage(result));
}
