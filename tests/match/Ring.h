#pragma once

#include "../fighters/TableRows.h"
#include "fighters/Entity_Fighter.h"
#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/MatchState.h"
#include "match/State_Gen_ReturnReceive.h"

#include <QList>
#include <QString>

#include <initializer_list>
#include <utility>

// The ring of the engine tests: men built from records whose numbers stand at the ends of the
// scale, so that a roll can't change what the rule makes of them, and the numbers that a match
// shows of a man.
namespace Ring {

using F = Entity_Fighter;
using Setting = std::pair<F::Number, int>;

// a man whose attributes and both durabilities stand at `level`, then `settings` on top
inline Entity_Fighter man(int id, const QString &style, int level, std::initializer_list<Setting> settings = {})
{
    Entity_Fighter record;
    record.setId(id);
    record.setText(F::FirstName, QStringLiteral("Test"));
    record.setText(F::LastName, id == 1 ? QStringLiteral("Alder") : QStringLiteral("Birch"));
    record.setText(F::FightingStyle, style);
    for (int field = F::FirstAttribute; field <= F::LastAttribute; ++field)
        record.setNumber(F::Number(field), level);
    record.setNumber(F::HeadDurability, level);
    record.setNumber(F::BodyDurability, level);
    for (const Setting &setting : settings)
        record.setNumber(setting.first, setting.second);
    return record;
}

inline MatchManager &match()
{
    return MatchManager::instance();
}

// A match in which fighter one holds the attacker's role and fighter two the defender's, both at
// long range as the records made them; no round has begun.
inline void start(const Entity_Fighter &one, const Entity_Fighter &two)
{
    match().startMatch(one, two, nullptr);
}

inline Entity_MatchFighter &one()
{
    return *match().getFighterOne();
}

inline Entity_MatchFighter &two()
{
    return *match().getFighterTwo();
}

// Fighter two defends against a fighter one of all 0 who holds the attacker's role in a state that
// hears nothing, so that fighter two's answers run alone.
inline void quietAttacker(const Entity_Fighter &defender)
{
    start(man(1, "Puncher", 0), defender);
    one().setState(new State_Gen_ReturnReceive(one()));
}

// so much health that no hit of a test can drop him
inline void unbreakable(Entity_MatchFighter &man)
{
    man.setHealths(100000, 100000, 100000, 100000);
}

// --- what the status vector shows of a man ---------------------------------------------------------

inline int status(const Entity_MatchFighter &man, MatchStatus::Position position)
{
    return man.statusVector()[position];
}

inline int landed(const Entity_MatchFighter &man, int strikeCode)
{
    return status(man, MatchStatus::landed(MatchCodes::strikeIndex(strikeCode)));
}

// the strikes he landed, all twelve together
inline int allLanded(const Entity_MatchFighter &man)
{
    int sum = 0;
    for (int code = EvJab; code <= EvBodyPunch; ++code)
        sum += landed(man, code);
    return sum;
}

// `hits` in `trials` come to `share`: exactly at 0 and 1, within `slack` between, and for a share
// below 0 now and then but neither never nor always
inline bool comesTo(int hits, int trials, double share, double slack = 0.03)
{
    if (share < 0)
        return hits > 0 && hits < trials;
    if (share == 0.0 || share == 1.0)
        return hits == int(share * trials);
    return qAbs(hits / double(trials) - share) < slack;
}

// the highest of the three judges' numbers of the round for each man
struct JudgesHigh {
    int one = 0;
    int two = 0;
};

inline JudgesHigh judgesHigh(const QList<int> &roundScores)
{
    return {qMax(roundScores[0], qMax(roundScores[1], roundScores[2])),
            qMax(roundScores[3], qMax(roundScores[4], roundScores[5]))};
}

} // namespace Ring
