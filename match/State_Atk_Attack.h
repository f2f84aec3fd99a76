#pragma once

#include "match/MatchState.h"

// The attacker picks his strike at one range: State_Atk_OutAttack, State_Atk_InAttack and
// State_Atk_ClinchAttack, one mechanism with three strike tables.
class State_Atk_Attack : public MatchState
{
public:
    // `range` is the range code where he attacks
    State_Atk_Attack(const Entity_MatchFighter &fighter, int range);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    QString name() const override;

    // the attack state that a man at `range` goes on with
    static int attackKindOf(int range);

private:
    int range;
};
