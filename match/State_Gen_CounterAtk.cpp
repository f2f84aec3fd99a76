#include "match/State_Gen_CounterAtk.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

using F = Entity_Fighter;
using namespace MatchCodes;

namespace {

struct CounterStrike {
    int code;
    F::Number steadier;
    CommentaryList line;
};

constexpr CounterStrike frontKick = {EvFrontKick, F::Torque, CommentaryList::GenCounterAtk_FrontKick};
constexpr CounterStrike jab = {EvJab, F::Endurance, CommentaryList::GenCounterAtk_Jab};
constexpr CounterStrike knee = {EvKnee, F::Torque, CommentaryList::GenCounterAtk_Knee};
constexpr CounterStrike uppercut = {EvUppercut, F::Snap, CommentaryList::GenCounterAtk_Uppercut};

} // namespace

State_Gen_CounterAtk::State_Gen_CounterAtk(const Entity_MatchFighter &fighter)
    : State_Gen_Outcome(fighter)
{
}

void State_Gen_CounterAtk::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvCountered);
}

void State_Gen_CounterAtk::onEvent(Entity_MatchFighter &fighter, int code)
{
    if (code == EvKnockdown || code == EvKnockout) {
        match().addScore(fighter, 35);
        fighter.countKnockdown(true);
        return;
    }
    State_Gen_Outcome::onEvent(fighter, code);
}

void State_Gen_CounterAtk::onEvent(Entity_MatchFighter &fighter, int, int value)
{
    fighter.setActionValue(value);
    execute(fighter);
}

void State_Gen_CounterAtk::execute(Entity_MatchFighter &fighter)
{
    const int range = fighter.getActionCode();
    int value = 0;
    if (range == LongRange || range == Pocket || range == Clinch) {
        Dice roll = dice();
        // clinchers and kickers counter with the leg, everybody else with the hands
        const bool legs = hasStyle(Clincher) || hasStyle(Kicker);
        const CounterStrike &counter = range == LongRange ? (legs ? frontKick : jab) : (legs ? knee : uppercut);
        const int strike = strikeIndex(counter.code);
        const int power = number(F::strikePower(strike));
        const int punchPower = number(F::PunchPower);
        int sum = power + punchPower + 2 * roll.d(40);
        sum += number(F::Precision) + punchPower + 2 * roll.d(40);
        sum += power + punchPower + 2 * roll.d(40);
        value = sum / nonZero((roll.d(10) - number(counter.steadier) + 100) / 3 + 1);
        fighter.addComment(line(counter.line, roll.d(100), fighter));
        fighter.addStrike(strike, 1, 1);
        fighter.changeStamina(-(100 - number(F::strikeTechnique(strike))) / 10);
        fighter.setActionCode(counter.code);
    }
    match().sendToDefender(EvCountered, value);
    match().addScore(fighter, 10);
}
