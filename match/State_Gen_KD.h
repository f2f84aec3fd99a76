#pragma once

#include "match/MatchState.h"

// A man down: the referee counts, one number a step. Nobody rises before four, and the tenth
// number ends the match.
class State_Gen_KD : public MatchState
{
public:
    explicit State_Gen_KD(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    QString name() const override { return QStringLiteral("State_Gen_KD"); }

private:
    int count = 0;
};
