#pragma once

#include "match/State_Gen_Outcome.h"

// The strike was blocked and the guard takes what gets through (State_Gen_BlkDmgHeadPunch,
// _BlkDmgHeadKick, _BlkDmgBody, _BlkDmgLeg, _BlkDmgClinch). Arms, or legs for a checked low
// kick, bring a man down only when they are spent.
class State_Gen_BlkDmg : public State_Gen_Outcome
{
public:
    enum Guard { HeadPunch, HeadKick, Body, Leg, Clinch };

    State_Gen_BlkDmg(const Entity_MatchFighter &fighter, Guard guard);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    using State_Gen_Outcome::onEvent;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override;

private:
    Guard guard;
};
