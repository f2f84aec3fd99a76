#pragma once

#include "match/State_Gen_Outcome.h"

// the defender slipped the strike and fires a counter of his own on the next step
class State_Gen_CounterAtk : public State_Gen_Outcome
{
public:
    explicit State_Gen_CounterAtk(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override { return QStringLiteral("State_Gen_CounterAtk"); }
};
