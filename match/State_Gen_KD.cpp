#include "match/State_Gen_KD.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

using F = Entity_Fighter;

State_Gen_KD::State_Gen_KD(const Entity_MatchFighter &fighter)
    : MatchState(fighter)
{
}

void State_Gen_KD::enter(Entity_MatchFighter &fighter)
{
    fighter.countKnockdown(false);
    fighter.setActionCode(MatchCodes::KnockedDown);
    match().sendToAttacker(EvKnockdown);
}

void State_Gen_KD::onEvent(Entity_MatchFighter &fighter, int code)
{
    // the striker names what felled him; the man on the floor takes the attacker's role, so
    // that each step counts him
    fighter.setActionCode(code);
    match().swapRoles();
}

void State_Gen_KD::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    int weight = 200 - number(F::Durability) - number(F::Willpower) + 2 * roll.d(20);
    weight += 200 - number(F::Snap) - number(F::Aggression) + 2 * roll.d(20);
    ++count;
    fighter.addComment(Commentary::countStep(count));
    weight -= 1 + number(F::Discipline) + roll.u(50);

    MatchManager &m = match();
    if (fighter.resistCheck(weight)) {
        if (count >= 10) {
            fighter.addComment(line(CommentaryList::GenKD_CountedOut, roll.d(100), fighter));
            fighter.setActionCode(MatchCodes::KnockedOut);
            m.endMatch(fighter);
        }
        return;
    }
    if (count >= 4) {
        fighter.addComment(line(CommentaryList::GenKD_UpAgain, roll.d(100), fighter));
        fighter.changeStamina(-(100 - number(F::BodyDurability)) / 10);
        m.swapRolesAndReset();
    }
}
