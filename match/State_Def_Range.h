#pragma once

#include "match/MatchState.h"

// The defender at one range (State_Def_Out, State_Def_In, State_Def_Clinch): he answers the
// attacker's change of range by following him or by contesting it, and an announced attack by
// getting ready to defend.
class State_Def_Range : public MatchState
{
public:
    // `range` is the range code where he stands
    State_Def_Range(const Entity_MatchFighter &fighter, int range);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    QString name() const override;

private:
    int range;
};
