#pragma once

#include "match/JudgesCards.h"

#include <QList>
#include <QString>

class CommentarySink;
class Entity_Fighter;
class MatchManager;

// A whole match of two men through the engine, from the first bell to a stoppage or the judges'
// verdict: three rounds, the cards at every bell, and while the judges have no majority more
// rounds, one at a time, to the tenth. The day flow and the simulator fight it in one go; the
// fight night drives the same match a step at a time, with its corner and its words at the bell
// between the steps. The engine runs one match at a time, so one WholeMatch is fought at a time.
class WholeMatch
{
public:
    enum class Ending { None, Knockout, TechnicalKnockout, Decision };
    // where a step leaves the match
    enum class Moment { Fighting, Bell, Over };

    // What a finished match hands back; while it runs, the steps and rounds so far.
    struct Result {
        Ending ending = Ending::None;
        JudgesCards::Verdict verdict = JudgesCards::Verdict::None;
        // "... defeated ... by Split Decision in 3:00 of Round 4."
        QString line;
        int winnerId = 0;
        int loserId = 0;
        // "Win: ..." and "Loss: ..." without the organisation and the night
        QString winnerEntry;
        QString loserEntry;
        int rounds = 0;
        int steps = 0;
        // each man's 44 numbers of MatchStatus at the end
        QList<int> statusOne;
        QList<int> statusTwo;
    };

    // The engine takes copies of both men; the commentary goes to `commentary` when there is one.
    WholeMatch(const Entity_Fighter &one, const Entity_Fighter &two, CommentarySink *commentary = nullptr);

    // the whole match at once
    static Result fight(const Entity_Fighter &one, const Entity_Fighter &two, CommentarySink *commentary = nullptr);

    // --- a step at a time -------------------------------------------------------------------------
    // The first round, or the next one after a bell without a verdict.
    void beginRound();
    // One step of the running round and the clock after it.
    Moment step();
    // The round's points become cards. True when the judges then name the winner: the match is
    // decided and over.
    bool bell();

    // --- a round at a time ------------------------------------------------------------------------
    // A round from its start to the bell (scored) or a stoppage; true when the match is over.
    bool fightRound();
    // the rounds that are left; the result
    Result fightToTheEnd();

    bool isOver() const { return phase == Phase::Over; }
    const Result &result() const { return outcome; }
    const JudgesCards &cards() const { return judges; }

private:
    enum class Phase { BeforeRound, InRound, AtBell, Over };

    void finish(Ending ending, JudgesCards::Verdict verdict);

    MatchManager &engine;
    JudgesCards judges;
    Result outcome;
    Phase phase = Phase::BeforeRound;
};
