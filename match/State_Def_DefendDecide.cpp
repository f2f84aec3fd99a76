#include "match/State_Def_DefendDecide.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/RankedPick.h"
#include "match/State_Def_Defence.h"

using F = Entity_Fighter;
using Kind = State_Def_Defence::Kind;
using namespace MatchCodes;

namespace {

// the block, the counter and the dodge that answer each strike; a low kick can't be countered
struct Answers {
    Kind block, counter, dodge;
};

constexpr Answers answersByStrike[] = {
    {Kind::BlockHighPunch, Kind::CounterHigh, Kind::DodgeHigh}, // Jab
    {Kind::BlockHighPunch, Kind::CounterHigh, Kind::DodgeHigh}, // Hook
    {Kind::BlockHighPunch, Kind::CounterHigh, Kind::DodgeHigh}, // Cross
    {Kind::BlockHighPunch, Kind::CounterHigh, Kind::DodgeHigh}, // Uppercut
    {Kind::BlockLow, Kind::BlockLow, Kind::DodgeLow},           // Low Kick
    {Kind::BlockMid, Kind::CounterMid, Kind::DodgeMid},         // Mid Kick
    {Kind::BlockHighKick, Kind::CounterHigh, Kind::DodgeHigh},  // High Kick
    {Kind::BlockMid, Kind::CounterMid, Kind::DodgeMid},         // Front Kick
    {Kind::BlockMid, Kind::CounterMid, Kind::DodgeMid},         // Knee
    {Kind::BlockClinch, Kind::CounterHigh, Kind::DodgeClinch},  // Elbow
    {Kind::BlockClinch, Kind::CounterMid, Kind::DodgeClinch},   // Dirty Boxing
    {Kind::BlockMid, Kind::CounterMid, Kind::DodgeMid},         // Body Punch
};

enum Choice { Block, Counter, Dodge, Return };

} // namespace

State_Def_DefendDecide::State_Def_DefendDecide(const Entity_MatchFighter &fighter)
    : MatchState(fighter)
{
}

void State_Def_DefendDecide::onEvent(Entity_MatchFighter &fighter, int code)
{
    fighter.setActionValue(code);
    execute(fighter);
}

void State_Def_DefendDecide::execute(Entity_MatchFighter &fighter)
{
    const int code = fighter.getActionValue();
    if (!isStrike(code))
        return;
    Dice roll = dice();
    const auto pairOfSums = [&](F::Number a, F::Number b, F::Number c, F::Number d) {
        const int first = number(a) + number(b) + 2 * roll.d(50);
        return first + number(c) + number(d) + 2 * roll.d(50);
    };
    QList<int> scores = {
        pairOfSums(F::Resilience, F::Durability, F::Balance, F::Conditioning),
        pairOfSums(F::Instinct, F::Awareness, F::Coordination, F::Anticipation),
        pairOfSums(F::Reflexes, F::EvasionSpeed, F::Snap, F::MoveSpeed),
        pairOfSums(F::Aggression, F::Ferocity, F::Willpower, F::PunchPower),
    };
    // a brawler likes to trade, a tactician to counter
    if (hasStyle(Brawler))
        scores[Return] += roll.d(70);
    if (hasStyle(Tactician))
        scores[Counter] += roll.d(70);

    const Answers &answers = answersByStrike[strikeIndex(code)];
    const Kind byChoice[] = {answers.block, answers.counter, answers.dodge, Kind::ReturnAttack};
    fighter.changeState(new State_Def_Defence(fighter, byChoice[RankedPick::choose(scores, roll)]));
}
