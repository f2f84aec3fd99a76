#include "match/State_Gen_Outcome.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/State_Def_DefendDecide.h"
#include "match/State_Def_Range.h"
#include "match/State_Gen_KD.h"
#include "match/State_Gen_KO.h"

using namespace MatchCodes;

namespace {

enum Location { Head, Body, Legs };

// where each strike lands, Jab to Body Punch
constexpr Location locationByStrike[] = {Head, Head, Head, Head, Legs, Body, Head, Body, Body, Head, Body, Body};

} // namespace

void State_Gen_Outcome::onEvent(Entity_MatchFighter &fighter, int code)
{
    const int range = rangeOfAttack(code);
    if (range >= 0) {
        fighter.setActionCode(range);
        fighter.changeState(new State_Def_DefendDecide(fighter));
    } else if (code == EvOut) {
        fighter.changeState(new State_Def_Range(fighter, LongRange));
    }
}

int State_Gen_Outcome::hitWhereItLands(Entity_MatchFighter &fighter, int strikeCode, int damage, bool bodyBonus)
{
    const Location location = isStrike(strikeCode) ? locationByStrike[strikeIndex(strikeCode)] : Head;
    const int belowTheHead = bodyBonus ? damage + damage / 2 : damage;
    switch (location) {
    case Legs:
        return fighter.hitLegs(belowTheHead);
    case Body:
        return fighter.hitBody(belowTheHead);
    case Head:
        break;
    }
    return fighter.hitHead(damage);
}

bool State_Gen_Outcome::fellFrom(Entity_MatchFighter &fighter, int result)
{
    if (result == KnockedOut) {
        fighter.changeState(new State_Gen_KO(fighter));
        return true;
    }
    if (result == KnockedDown) {
        fighter.changeState(new State_Gen_KD(fighter));
        match().registerKnockdown(fighter);
        return true;
    }
    return false;
}
