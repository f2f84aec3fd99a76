#include "world/JudgesCards.h"

#include <algorithm>
#include <cstdlib>

namespace {

// the votes of the majority side and of the other side give the word
struct VerdictRow {
    int majority;
    int minority;
    const char *word;
};

constexpr VerdictRow verdicts[] = {
    {3, 0, "Unanimous Decision"},
    {2, 0, "Majority Decision"},
    {2, 1, "Split Decision"},
};

// a match still without a majority after the last round is settled as a split
constexpr const char *lastRoundWord = "Split Decision";

} // namespace

void JudgesCards::addRound(const QList<int> &scores)
{
    const int downsOne = scores.value(6);
    const int downsTwo = scores.value(7);
    for (int judge = 0; judge < 3; ++judge) {
        const int a = scores.value(judge);
        const int b = scores.value(3 + judge);
        // the man with more points takes 10, the other 9; equal points give 10 each, and every
        // time a man went down costs him a point on every card
        one[judge] += (a >= b ? 10 : 9) - downsOne;
        two[judge] += (b >= a ? 10 : 9) - downsTwo;
    }
}

int JudgesCards::votesOne() const
{
    int votes = 0;
    for (int judge = 0; judge < 3; ++judge)
        votes += one[judge] > two[judge];
    return votes;
}

int JudgesCards::votesTwo() const
{
    int votes = 0;
    for (int judge = 0; judge < 3; ++judge)
        votes += two[judge] > one[judge];
    return votes;
}

QString JudgesCards::verdict(int votesOne, int votesTwo, int roundsFought)
{
    const int majority = std::max(votesOne, votesTwo);
    const int minority = std::min(votesOne, votesTwo);
    for (const VerdictRow &row : verdicts)
        if (row.majority == majority && row.minority == minority)
            return row.word;
    return roundsFought >= LastRound ? QString(lastRoundWord) : QString();
}
