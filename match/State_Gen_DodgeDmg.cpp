#include "match/State_Gen_DodgeDmg.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

State_Gen_DodgeDmg::State_Gen_DodgeDmg(const Entity_MatchFighter &fighter)
    : State_Gen_Outcome(fighter)
{
}

void State_Gen_DodgeDmg::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvDodged);
}

void State_Gen_DodgeDmg::onEvent(Entity_MatchFighter &fighter, int, int value)
{
    fighter.setActionValue(value);
    execute(fighter);
}

void State_Gen_DodgeDmg::execute(Entity_MatchFighter &fighter)
{
    if (!fighter.comboRoll()) {
        // the attacker takes it as a strike that lets him go on
        match().sendToAttacker(EvJab);
        return;
    }
    Dice roll = dice();
    fighter.addComment(line(CommentaryList::GenDodgeDmg_DodgerTakesOver, roll.d(100), fighter));
    match().swapRolesAndReset();
}
