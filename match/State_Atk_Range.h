#pragma once

#include "match/MatchState.h"

// A man with the initiative at one range (long range, the pocket or the clinch): he decides
// whether to change the range or to attack from where he stands. As State_Atk_Out,
// State_Atk_In and State_Atk_Clinch it is one mechanism with three tables.
class State_Atk_Range : public MatchState
{
public:
    // `range` is a range code: pocket, long range or clinch
    State_Atk_Range(const Entity_MatchFighter &fighter, int range);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override;

private:
    int range;
};
