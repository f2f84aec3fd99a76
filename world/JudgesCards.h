#pragma once

#include <QList>
#include <QString>

#include <array>

// The three judges' running totals of one match of the world. Each bell turns the round's
// points into ten-point cards; after the third bell the cards must show a majority of judges,
// or the match goes on, one round at a time, to the tenth.
class JudgesCards
{
public:
    // the last round after which the judges must name a winner
    static constexpr int LastRound = 10;

    // The eight numbers of a bell: three judges' points for each man, then the knockdowns that
    // each man suffered in the round.
    void addRound(const QList<int> &scores);

    int votesOne() const;
    int votesTwo() const;
    int totalOne(int judge) const { return one[judge]; }
    int totalTwo(int judge) const { return two[judge]; }

    // The word that replaces "Decision" for these votes once `roundsFought` rounds are over; an
    // empty word when the judges have no majority yet and another round is due.
    static QString verdict(int votesOne, int votesTwo, int roundsFought);

private:
    std::array<int, 3> one{};
    std::array<int, 3> two{};
};
