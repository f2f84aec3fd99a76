#pragma once

// The retirement roll by age, for each man and each night. A man below his first band has no
// roll and cannot retire; in a band the roll is a draw, and 10 or more sends him home. The men of
// the organisations stay longest; a man without a roster to hold him, or under the user's roof,
// goes three years sooner.
class RetirementTable
{
public:
    enum Who { RosterFighter, FreeAgent, GymFighter };

    static constexpr int Retires = 10;

    // whether a man of this age has a roll tonight
    static bool hasRoll(Who who, int age);
    // the night's roll of a man of this age, drawn from the running generator; -1 without one
    static int roll(Who who, int age);
    static bool retires(Who who, int age) { return roll(who, age) >= Retires; }
};
