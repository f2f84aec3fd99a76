#pragma once

#include "match/MatchState.h"

// the attacker whose strike was answered with return fire takes the shot on the next step
class State_Gen_ReturnReceive : public MatchState
{
public:
    explicit State_Gen_ReturnReceive(const Entity_MatchFighter &fighter);

    void execute(Entity_MatchFighter &fighter) override;
    QString name() const override { return QStringLiteral("State_Gen_ReturnReceive"); }
};
