#pragma once

#include "match/MatchState.h"

// The defender contests the attacker's change of range with a stopping strike
// (State_Def_DefMoveIn, State_Def_DefMoveOut, State_Def_DefMoveClinch): if it beats the score
// of the attacker's decision, the attacker is sent back.
class State_Def_DefMove : public MatchState
{
public:
    // `movedTo` is the range code the attacker is moving to
    State_Def_DefMove(const Entity_MatchFighter &fighter, int movedTo);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override;

private:
    int movedTo;
};
