#pragma once

#include "match/State_Gen_Outcome.h"

// The defender doesn't defend at all: he takes the hit and fires straight back.
class State_Gen_ReturnDmg : public State_Gen_Outcome
{
public:
    explicit State_Gen_ReturnDmg(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override { return QStringLiteral("State_Gen_ReturnDmg"); }
};
