#pragma once

#include "match/MatchState.h"

// The defender hears which strike is coming and chooses between block, counter, dodge and
// return fire.
class State_Def_DefendDecide : public MatchState
{
public:
    explicit State_Def_DefendDecide(const Entity_MatchFighter &fighter);

    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    QString name() const override { return QStringLiteral("State_Def_DefendDecide"); }
};
