#pragma once

#include "fighters/Entity_Fighter.h"
#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"
#include "world/JudgesCards.h"

#include <QString>

namespace MatchKit {

// a man whose every attribute stands at `level`
inline Entity_Fighter fighter(int id, const QString &lastName, const QString &style, int level)
{
    Entity_Fighter man;
    man.setId(id);
    man.setText(Entity_Fighter::FirstName, QStringLiteral("Test"));
    man.setText(Entity_Fighter::LastName, lastName);
    man.setText(Entity_Fighter::FightingStyle, style);
    for (int field = Entity_Fighter::FirstAttribute; field <= Entity_Fighter::LastAttribute; ++field)
        man.setNumber(Entity_Fighter::Number(field), level);
    man.setNumber(Entity_Fighter::HeadDurability, level);
    man.setNumber(Entity_Fighter::BodyDurability, level);
    return man;
}

struct Outcome {
    QString line;
    QString winnerEntry;
    QString loserEntry;
    int winnerId = 0;
    int loserId = 0;
    int rounds = 0;
    int steps = 0;
    bool stoppage = false;
};

// A match as the world fights it: three rounds and judges' cards, and more rounds up to the tenth
// while no judge majority stands.
inline Outcome fight(const Entity_Fighter &one, const Entity_Fighter &two, CommentarySink *commentary = nullptr)
{
    MatchManager &match = MatchManager::instance();
    match.startMatch(one, two, commentary);
    Outcome outcome;
    JudgesCards cards;
    for (int round = 1; round <= JudgesCards::LastRound; ++round) {
        if (round > 1)
            match.nextRound();
        match.beginRound();
        bool over = false;
        for (;;) {
            ++outcome.steps;
            if ((over = match.step()))
                break;
            if (match.tickClock() <= 0)
                break;
        }
        outcome.rounds = round;
        if (over) {
            outcome.stoppage = true;
            break;
        }
        cards.addRound(match.endRoundScores());
        if (round >= 3 && !JudgesCards::verdict(cards.votesOne(), cards.votesTwo(), round).isEmpty()) {
            match.decide(cards.votesOne(), cards.votesTwo());
            break;
        }
    }
    outcome.line = match.resultText(outcome.winnerId, outcome.winnerEntry, outcome.loserId, outcome.loserEntry);
    return outcome;
}

} // namespace MatchKit
