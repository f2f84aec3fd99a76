#pragma once

#include "match/MatchState.h"

// One strike on its way, from the Jab (State_Atk_Jab) to the Body Punch (State_Atk_BodyPunch):
// twelve states that are one mechanism with twelve rows of attributes. It warns the defender,
// throws, then takes the defender's answer, pays for the strike, scores it and decides whether
// the attacker goes on.
class State_Atk_Strike : public MatchState
{
public:
    // `code` is a strike code, Jab to Body Punch
    State_Atk_Strike(const Entity_MatchFighter &fighter, int code);

    void enter(Entity_MatchFighter &fighter) override;
    void execute(Entity_MatchFighter &fighter) override;
    void onEvent(Entity_MatchFighter &fighter, int code) override;
    void onEvent(Entity_MatchFighter &fighter, int code, int value) override;
    QString name() const override;

    // after a strike: he keeps the initiative with a new attack at his range, or hands it over
    static void goOn(Entity_MatchFighter &fighter);

private:
    // the stamina unit of this strike: a perfect technique costs nothing
    int cost() const;
    void scoreAndPay(Entity_MatchFighter &fighter, int points, int landed, int staminaUnits);

    int code;
    int strike;
};
