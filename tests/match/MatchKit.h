#pragma once

#include "fighters/Entity_Fighter.h"
#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"

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
    int totals[2][3] = {};
    for (int round = 1; round <= 10; ++round) {
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
        const QList<int> scores = match.endRoundScores();
        int votes[2] = {};
        for (int judge = 0; judge < 3; ++judge) {
            const int a = scores[judge], b = scores[3 + judge];
            totals[0][judge] += (a >= b ? 10 : 9) - scores[6];
            totals[1][judge] += (b >= a ? 10 : 9) - scores[7];
            if (totals[0][judge] != totals[1][judge])
                ++votes[totals[0][judge] > totals[1][judge] ? 0 : 1];
        }
        if (round >= 3 && (qMax(votes[0], votes[1]) >= 2 || round == 10)) {
            match.decide(votes[0], votes[1]);
            break;
        }
    }
    outcome.line = match.resultText(outcome.winnerId, outcome.winnerEntry, outcome.loserId, outcome.loserEntry);
    return outcome;
}

} // namespace MatchKit
