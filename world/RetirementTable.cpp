#include "world/RetirementTable.h"

#include "fighters/Random.h"

namespace {

// from this age on, the roll is qrand() modulo `modulo`, plus `plus`
struct Band {
    int fromAge;
    int modulo;
    int plus;
};

constexpr int BandCount = 3;

// one in ten, six in fifteen, fifteen in twenty
constexpr Band bands[][BandCount] = {
    {{41, 10, 1}, {46, 15, 1}, {51, 20, 5}}, // roster fighter
    {{38, 10, 1}, {43, 15, 1}, {46, 20, 5}}, // free agent
    {{38, 10, 1}, {43, 15, 1}, {46, 20, 5}}, // gym fighter
};

// the highest band that his age has reached; null below the first
const Band *bandOf(RetirementTable::Who who, int age)
{
    const Band *reached = nullptr;
    for (const Band &band : bands[who]) {
        if (age >= band.fromAge)
            reached = &band;
    }
    return reached;
}

} // namespace

bool RetirementTable::hasRoll(Who who, int age)
{
    return bandOf(who, age) != nullptr;
}

int RetirementTable::roll(Who who, int age)
{
    const Band *band = bandOf(who, age);
    return band ? qrand() % band->modulo + band->plus : -1;
}
