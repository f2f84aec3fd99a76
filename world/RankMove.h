#pragma once

#include <QString>

// What a match does to the two ranking scores. The winner's score falls by the move and the
// loser's rises by it; a favourite who beats a far weaker man moves little, an upset a lot.
class RankMove
{
public:
    // `diff` is the winner's ranking score minus the loser's, both read before the match, so a
    // positive `diff` is an upset
    static int points(int diff, bool stoppage);
    // a stoppage is every result that was not a decision
    static bool isStoppage(const QString &result);
    // the move of a match from the two scores before it and its result text
    static int forResult(int winnerScore, int loserScore, const QString &result);
};
