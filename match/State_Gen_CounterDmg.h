#pragma once

#include "match/State_Gen_Outcome.h"

// the attacker whose strike was countered takes the counter
class State_Gen_CounterDmg : public State_Gen_Outcome
{
public:
    explicit State_Gen_CounterDmg(const Entity_MatchFighter &fighter);

    void execute(Entity_MatchFighter &fighter) override;
    using State_Gen_Outcome::onEvent;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override { return QStringLiteral("State_Gen_CounterDmg"); }
};
