#pragma once

#include <QList>
#include <QString>

#include <array>

// The three judges' running totals of one match. Each bell turns the round's points into
// ten-point cards; from the third bell on the cards must show a majority of judges, or the match
// goes on, one round at a time, to the tenth.
class JudgesCards
{
public:
    // the first bell after which the judges may name a winner, and the last one, after which they must
    static constexpr int FirstVerdictRound = 3;
    static constexpr int LastRound = 10;

    enum class Verdict { None, Unanimous, Majority, Split };

    // The eight numbers of a bell: three judges' points for each man, then the knockdowns that
    // each man suffered in the round.
    void addRound(const QList<int> &scores);

    int rounds() const { return roundsScored; }
    int votesOne() const;
    int votesTwo() const;
    int totalOne(int judge) const { return one[judge]; }
    int totalTwo(int judge) const { return two[judge]; }

    // the verdict of the cards as they stand
    Verdict verdict() const { return verdictOf(votesOne(), votesTwo(), roundsScored); }
    // None while the judges have no majority yet and another round is due
    static Verdict verdictOf(int votesOne, int votesTwo, int roundsFought);
    // the word that replaces "Decision" in the result; empty for None
    static QString word(Verdict verdict);

private:
    std::array<int, 3> one{};
    std::array<int, 3> two{};
    int roundsScored = 0;
};
