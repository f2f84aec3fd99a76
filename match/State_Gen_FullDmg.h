#pragma once

#include "match/State_Gen_Outcome.h"

// the strike got through clean: the damage lands where it aims
class State_Gen_FullDmg : public State_Gen_Outcome
{
public:
    explicit State_Gen_FullDmg(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    using State_Gen_Outcome::onEvent;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override { return QStringLiteral("State_Gen_FullDmg"); }
};
