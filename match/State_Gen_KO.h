#pragma once

#include "match/MatchState.h"

// out cold: the line is said and the match ends at once, within the state's own entry
class State_Gen_KO : public MatchState
{
public:
    explicit State_Gen_KO(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    QString name() const override { return QStringLiteral("State_Gen_KO"); }
};
