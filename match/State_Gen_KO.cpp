#include "match/State_Gen_KO.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

State_Gen_KO::State_Gen_KO(const Entity_MatchFighter &fighter)
    : MatchState(fighter)
{
}

void State_Gen_KO::enter(Entity_MatchFighter &fighter)
{
    fighter.countKnockdown(false);
    fighter.setActionCode(MatchCodes::KnockedOut);
    match().sendToAttacker(EvKnockout);
    execute(fighter);
}

void State_Gen_KO::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    fighter.addComment(line(CommentaryList::GenKO, roll.d(100), fighter));
    match().endMatch(fighter);
}
