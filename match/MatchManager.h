#pragma once

#include "match/Entity_MatchFighter.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>

class CommentarySink;

// Runs one match at a time: makes the two men, knows who attacks and who defends, steps the
// attacker's state machine, keeps the clock and the judges' points of the round, and writes the
// commentary. A WholeMatch drives it for the day flow and the fight night, counting the rounds
// and adding up the cards.
class MatchManager
{
public:
    static MatchManager &instance();

    // --- for the callers ----------------------------------------------------------------------
    void startMatch(const Entity_Fighter &first, const Entity_Fighter &second, CommentarySink *commentary);
    void beginRound();
    // true when the step ended the match
    bool step();
    // seconds left in the round after the step; the round ends at 0 or less
    int tickClock();
    void nextRound();
    // the three judges' points of each man, then the knockdowns of each man in this round
    QList<int> endRoundScores();
    void announceRoundEnd();
    void decide(int votesOne, int votesTwo);
    // the result line; the entries get the career lines of both men appended
    QString resultText(int &winnerId, QString &winnerEntry, int &loserId, QString &loserEntry) const;
    // how the match ended: by a stoppage, and among stoppages by a technical knockout
    bool isStoppage() const;
    bool isTechnicalKnockout() const;

    QStringList instructionsFor(int id) const;
    bool giveInstruction(int id, const QString &text, int value, bool force);
    void tendFighter(int heal, int water, int motivate, int strategy, int id);
    void observationsOf(QStringList &texts, QList<int> &codes, int id) const;
    QList<int> statusOf(int id) const;

    int getRoundNumber() const { return roundNumber; }
    int getRoundClock() const { return roundClock; }
    bool isMatchOver() const { return matchOver; }
    Entity_MatchFighter *getFighterOne() const { return fighterOne.get(); }
    Entity_MatchFighter *getFighterTwo() const { return fighterTwo.get(); }
    Entity_MatchFighter *getAttacker() const { return attacker; }
    Entity_MatchFighter *getDefender() const { return defender; }
    Entity_MatchFighter *getWinner() const { return winner; }
    Entity_MatchFighter *getLoser() const { return loser; }

    // --- for the states -----------------------------------------------------------------------
    void sendToAttacker(int code);
    void sendToDefender(int code);
    void sendToDefender(int code, int value);
    void swapRoles();
    void swapRolesAndReset();
    void countStrike() { ++exchangeCount; }
    int strikeCount() const { return exchangeCount; }
    void writeLine(const QString &text);
    void addScore(Entity_MatchFighter &fighter, int points);
    void registerKnockdown(Entity_MatchFighter &fighter);
    void endMatch(Entity_MatchFighter &losingFighter);

private:
    MatchManager() = default;
    Entity_MatchFighter *fighterWithId(int id) const;
    void resetStates();
    bool isOne(const Entity_MatchFighter &fighter) const { return &fighter == fighterOne.get(); }

    std::unique_ptr<Entity_MatchFighter> fighterOne;
    std::unique_ptr<Entity_MatchFighter> fighterTwo;
    Entity_MatchFighter *attacker = nullptr;
    Entity_MatchFighter *defender = nullptr;
    Entity_MatchFighter *winner = nullptr;
    Entity_MatchFighter *loser = nullptr;
    int roundNumber = 1;
    int roundClock = 180;
    bool matchOver = false;
    std::array<int, 3> judgeScoresOne{};
    std::array<int, 3> judgeScoresTwo{};
    int knockdownsOne = 0;
    int knockdownsTwo = 0;
    CommentarySink *commentary = nullptr;
    int exchangeCount = 0;
};
