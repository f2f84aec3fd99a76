#include "match/State_Gen_CounterDmg.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

State_Gen_CounterDmg::State_Gen_CounterDmg(const Entity_MatchFighter &fighter)
    : State_Gen_Outcome(fighter)
{
}

void State_Gen_CounterDmg::onEvent(Entity_MatchFighter &fighter, int, int value)
{
    fighter.setActionValue(value);
    execute(fighter);
}

void State_Gen_CounterDmg::execute(Entity_MatchFighter &fighter)
{
    MatchManager &m = match();
    const int damage = qMax(0, fighter.getActionValue());
    fighter.changeStamina(-damage);
    // a counter always finds the head
    const int result = fighter.hitHead(damage);
    if (fellFrom(fighter, result)) {
        // the man on the floor holds the attacker's role for the count
        if (result == MatchCodes::KnockedDown)
            m.swapRoles();
        return;
    }
    Dice roll = dice();
    shakeRoll(fighter, roll, damage);
    // he gets the initiative back at long range, unless the counter took his rhythm
    m.swapRolesAndReset();
    if (!fighter.comboRoll())
        m.swapRolesAndReset();
}
