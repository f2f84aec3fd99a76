#pragma once

#include "match/MatchState.h"

// What the outcome states share: a man still taking or dealing the last blow hears a new attack
// coming and gets ready for it, and a hit lands where the strike aims.
class State_Gen_Outcome : public MatchState
{
public:
    using MatchState::MatchState;
    using MatchState::onEvent;

    void onEvent(Entity_MatchFighter &fighter, int code) override;

protected:
    // 3 he stands, 4 he goes down, 5 he is out; `bodyBonus` makes blows below the head count
    // half as much again
    static int hitWhereItLands(Entity_MatchFighter &fighter, int strikeCode, int damage, bool bodyBonus);
    // after a hit: out, down or still standing; true when he went down or out
    static bool fellFrom(Entity_MatchFighter &fighter, int result);
};
