#pragma once

#include "match/MatchState.h"

// The defences against a strike that is on its way. The five blocks, the four dodges and the
// two counters are one roll against the strike's accuracy with a row of numbers each; return
// fire has no roll, the man just takes the hit and fires back.
class State_Def_Defence : public MatchState
{
public:
    enum Kind {
        BlockHighPunch,
        BlockHighKick,
        BlockMid,
        BlockLow,
        BlockClinch,
        DodgeHigh,
        DodgeMid,
        DodgeLow,
        DodgeClinch,
        CounterHigh,
        CounterMid,
        ReturnAttack
    };

    State_Def_Defence(const Entity_MatchFighter &fighter, Kind kind);

    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override;

private:
    Kind kind;
};
