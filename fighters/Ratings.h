#pragma once

#include "fighters/Entity_Fighter.h"

#include <QString>

#include <array>

// The 48 numbers that the user sees of a man, in the order of the skills and of the progress
// counters: each a weighted mean of four of his hidden attributes, worked out whenever a screen
// asks and kept nowhere. The screens show them in twelve groups of four.
class Ratings
{
public:
    static constexpr int Count = 48;
    static constexpr int GroupSize = 4;
    static constexpr int GroupCount = Count / GroupSize;
    using Values = std::array<int, Count>;

    // all 48 from his attributes as they stand, unclamped; every screen reads them here
    static Values of(const Entity_Fighter &fighter);
    // the screens' name of rating n ("Body Punching", "Dirty Box Def."); empty off the list
    static QString label(int rating);
    // the heading over group g, "Offense - Punch" to "Mental - Discipline"; empty off the list
    static QString groupHeading(int group);
};
