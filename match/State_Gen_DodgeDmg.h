#pragma once

#include "match/State_Gen_Outcome.h"

// the strike was dodged: a quick man may take over the initiative
class State_Gen_DodgeDmg : public State_Gen_Outcome
{
public:
    explicit State_Gen_DodgeDmg(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    using State_Gen_Outcome::onEvent;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override { return QStringLiteral("State_Gen_DodgeDmg"); }
};
