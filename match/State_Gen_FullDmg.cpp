#include "match/State_Gen_FullDmg.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

using F = Entity_Fighter;

State_Gen_FullDmg::State_Gen_FullDmg(const Entity_MatchFighter &fighter)
    : State_Gen_Outcome(fighter)
{
}

void State_Gen_FullDmg::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvFullHit);
}

void State_Gen_FullDmg::onEvent(Entity_MatchFighter &fighter, int code, int value)
{
    // the strike answers with its power
    fighter.setActionValue(value);
    fighter.setActionCode(code);
    execute(fighter);
}

void State_Gen_FullDmg::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    int absorbed = number(F::Conditioning) / 10 + roll.d(10);
    absorbed += number(F::Resilience) / 10 + roll.d(10);
    absorbed /= nonZero((roll.d(10) - number(F::Durability) + 100) / 5 + 1);
    const int damage = qMax(0, fighter.getActionValue() - absorbed);

    const int result = hitWhereItLands(fighter, fighter.getActionCode(), damage, true);
    fighter.changeStamina(-damage);
    if (!fellFrom(fighter, result))
        shakeRoll(fighter, roll, damage);
}
