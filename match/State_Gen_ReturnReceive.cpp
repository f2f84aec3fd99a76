#include "match/State_Gen_ReturnReceive.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Gen_KD.h"
#include "match/State_Gen_KO.h"

State_Gen_ReturnReceive::State_Gen_ReturnReceive(const Entity_MatchFighter &fighter)
    : MatchState(fighter)
{
}

void State_Gen_ReturnReceive::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    fighter.addComment(line(CommentaryList::GenReturnReceive, roll.d(100), fighter));
    // the shot always finds the head, and costs no stamina
    const int result = fighter.hitHead(fighter.getActionValue());
    MatchManager &m = match();
    if (result == MatchCodes::KnockedOut) {
        fighter.changeState(new State_Gen_KO(fighter));
    } else if (result == MatchCodes::KnockedDown) {
        m.sendToDefender(EvKnockdown);
        fighter.changeState(new State_Gen_KD(fighter));
        m.swapRoles();
        m.registerKnockdown(fighter);
    } else {
        State_Atk_Strike::goOn(fighter);
    }
}
