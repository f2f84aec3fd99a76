#include "match/JudgesCards.h"

#include <algorithm>

namespace {

using Verdict = JudgesCards::Verdict;

// the votes of the majority side and of the other side give the verdict
struct VerdictRow {
    int majority;
    int minority;
    Verdict verdict;
};

constexpr VerdictRow verdicts[] = {
    {3, 0, Verdict::Unanimous},
    {2, 0, Verdict::Majority},
    {2, 1, Verdict::Split},
};

// a match still without a majority after the last round is settled as a split
constexpr Verdict lastRoundVerdict = Verdict::Split;

struct WordRow {
    Verdict verdict;
    const char *word;
};

constexpr WordRow words[] = {
    {Verdict::Unanimous, "Unanimous Decision"},
    {Verdict::Majority, "Majority Decision"},
    {Verdict::Split, "Split Decision"},
};

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
    ++roundsScored;
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

JudgesCards::Verdict JudgesCards::verdictOf(int votesOne, int votesTwo, int roundsFought)
{
    if (roundsFought < FirstVerdictRound)
        return Verdict::None;
    const int majority = std::max(votesOne, votesTwo);
    const int minority = std::min(votesOne, votesTwo);
    for (const VerdictRow &row : verdicts)
        if (row.majority == majority && row.minority == minority)
            return row.verdict;
    return roundsFought >= LastRound ? lastRoundVerdict : Verdict::None;
}

QString JudgesCards::word(Verdict verdict)
{
    for (const WordRow &row : words)
        if (row.verdict == verdict)
            return QString::fromLatin1(row.word);
    return QString();
}
