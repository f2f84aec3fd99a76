#include "fighters/Ratings.h"

#include "fighters/SkillTable.h"

namespace {

using F = Entity_Fighter;

struct Weight {
    int weight;
    F::Number attribute;
};
using Row = std::array<Weight, 4>;

static_assert(int(SkillTable::Count) == Ratings::Count, "a rating for every skill");

// Each row's weights add up to 100, so that 99 everywhere shows 99; Positioning's add up to 95
// and Counter's to 105, so those two top out at 94 and 103.
constexpr std::array<Row, Ratings::Count> weights = {{
    // Offense - Punch
    {{{25, F::JabSpeed}, {25, F::JabTechnique}, {25, F::JabPower}, {25, F::HandSpeed}}},
    {{{25, F::HookSpeed}, {25, F::HookTechnique}, {25, F::HookPower}, {25, F::Torque}}},
    {{{25, F::CrossSpeed}, {25, F::CrossTechnique}, {25, F::CrossPower}, {25, F::PunchPower}}},
    {{{25, F::UppercutSpeed}, {25, F::UppercutTechnique}, {25, F::UppercutPower}, {25, F::PunchPower}}},
    // Offense - Kick
    {{{25, F::LowKickSpeed}, {25, F::LowKickTechnique}, {25, F::LowKickPower}, {25, F::Torque}}},
    {{{25, F::MidKickSpeed}, {25, F::MidKickTechnique}, {25, F::MidKickPower}, {25, F::Torque}}},
    {{{25, F::HighKickSpeed}, {25, F::HighKickTechnique}, {25, F::HighKickPower}, {25, F::KickSpeed}}},
    {{{25, F::FrontKickSpeed}, {25, F::FrontKickTechnique}, {25, F::FrontKickPower}, {25, F::Precision}}},
    // Offense - Clinch
    {{{25, F::KneeSpeed}, {25, F::KneeTechnique}, {25, F::KneePower}, {25, F::Torque}}},
    {{{25, F::ElbowSpeed}, {25, F::ElbowTechnique}, {25, F::ElbowPower}, {25, F::Instinct}}},
    {{{25, F::DirtyBoxingSpeed}, {25, F::DirtyBoxingTechnique}, {25, F::DirtyBoxingPower}, {25, F::Instinct}}},
    {{{25, F::BodyPunchSpeed}, {25, F::BodyPunchTechnique}, {25, F::BodyPunchPower}, {25, F::Ferocity}}},
    // Defense - Movement
    {{{35, F::HeadMoveSpeed}, {25, F::HeadMoveTechnique}, {20, F::Reflexes}, {20, F::EvasionSpeed}}},
    {{{35, F::BodyMoveSpeed}, {25, F::BodyMoveTechnique}, {20, F::EvasionSpeed}, {20, F::Coordination}}},
    {{{20, F::Balance}, {35, F::FootSpeed}, {25, F::MoveSpeed}, {20, F::KickSpeed}}},
    {{{20, F::Balance}, {25, F::FightIQ}, {15, F::Awareness}, {35, F::RingSense}}},
    // Defense - Guard
    {{{25, F::KickGuardSpeed}, {25, F::KickGuardTechnique}, {25, F::PunchGuardSpeed}, {25, F::PunchGuardTechnique}}},
    {{{35, F::BodyGuardSpeed}, {45, F::BodyGuardTechnique}, {10, F::Durability}, {10, F::Willpower}}},
    {{{35, F::LegGuardSpeed}, {45, F::LegGuardTechnique}, {10, F::Durability}, {10, F::Willpower}}},
    {{{35, F::PunchGuardTechnique}, {10, F::Durability}, {45, F::Snap}, {10, F::Willpower}}},
    // Defense - Clinch
    {{{30, F::ClinchGuardSpeed}, {45, F::ClinchGuardTechnique}, {20, F::Durability}, {5, F::Reflexes}}},
    {{{15, F::Balance}, {25, F::Strength}, {45, F::Grappling}, {15, F::Instinct}}},
    {{{40, F::ClinchControl}, {40, F::ClinchEscape}, {10, F::Grappling}, {10, F::Snap}}},
    {{{30, F::Balance}, {30, F::FootSpeed}, {30, F::Grappling}, {10, F::Instinct}}},
    // Physical - Power
    {{{20, F::Resilience}, {15, F::Durability}, {45, F::Strength}, {20, F::Torque}}},
    {{{25, F::Reflexes}, {30, F::Burst}, {25, F::Snap}, {20, F::Precision}}},
    {{{45, F::PunchPower}, {20, F::Torque}, {20, F::Snap}, {15, F::Precision}}},
    {{{25, F::BodyMoveTechnique}, {25, F::Conditioning}, {30, F::Durability}, {20, F::Strength}}},
    // Physical - Speed
    {{{40, F::Reflexes}, {25, F::Coordination}, {10, F::Awareness}, {25, F::Anticipation}}},
    {{{15, F::HeadMoveSpeed}, {35, F::Reflexes}, {35, F::EvasionSpeed}, {15, F::Anticipation}}},
    {{{25, F::FootSpeed}, {25, F::Burst}, {40, F::MoveSpeed}, {10, F::EvasionSpeed}}},
    {{{25, F::Burst}, {25, F::HandSpeed}, {25, F::KickSpeed}, {25, F::Snap}}},
    // Physical - Conditioning
    {{{25, F::Endurance}, {40, F::LungCapacity}, {10, F::Burst}, {25, F::Willpower}}},
    {{{10, F::Resilience}, {10, F::Conditioning}, {45, F::Durability}, {35, F::Willpower}}},
    {{{20, F::Resilience}, {30, F::Endurance}, {30, F::Conditioning}, {20, F::Durability}}},
    {{{35, F::Resilience}, {25, F::Conditioning}, {25, F::Burst}, {15, F::Strength}}},
    // Mental - Timing
    {{{10, F::Burst}, {20, F::Coordination}, {25, F::Ferocity}, {45, F::Precision}}},
    {{{30, F::Reflexes}, {20, F::Awareness}, {45, F::Anticipation}, {10, F::RingSense}}},
    {{{15, F::Coordination}, {25, F::Awareness}, {35, F::Precision}, {25, F::Concentration}}},
    {{{15, F::Coordination}, {15, F::Awareness}, {35, F::Anticipation}, {35, F::Precision}}},
    // Mental - Intelligence
    {{{35, F::FightIQ}, {35, F::Awareness}, {15, F::Precision}, {15, F::RingSense}}},
    {{{35, F::FightIQ}, {35, F::Awareness}, {15, F::Composure}, {15, F::Anticipation}}},
    {{{35, F::FightIQ}, {25, F::Composure}, {15, F::Instinct}, {25, F::Discipline}}},
    {{{25, F::FightIQ}, {25, F::Willpower}, {35, F::Composure}, {15, F::Instinct}}},
    // Mental - Discipline
    {{{20, F::FightIQ}, {20, F::Willpower}, {25, F::Concentration}, {35, F::Discipline}}},
    {{{15, F::Willpower}, {25, F::Aggression}, {40, F::Ferocity}, {20, F::Discipline}}},
    {{{25, F::Coordination}, {25, F::Snap}, {25, F::Concentration}, {25, F::Discipline}}},
    {{{25, F::Durability}, {25, F::Willpower}, {25, F::Aggression}, {25, F::Discipline}}},
}};

constexpr const char *headings[Ratings::GroupCount] = {
    "Offense - Punch",         "Offense - Kick",   "Offense - Clinch",      "Defense - Movement",
    "Defense - Guard",         "Defense - Clinch", "Physical - Power",      "Physical - Speed",
    "Physical - Conditioning", "Mental - Timing",  "Mental - Intelligence", "Mental - Discipline",
};

} // namespace

Ratings::Values Ratings::of(const Entity_Fighter &fighter)
{
    Values values{};
    for (int rating = 0; rating < Count; ++rating) {
        int sum = 0;
        for (const Weight &w : weights[rating])
            sum += w.weight * fighter.number(w.attribute);
        // a negative sum of a man fresh from the generator truncates towards 0, as int does
        values[rating] = sum / 100;
    }
    return values;
}

QString Ratings::label(int rating)
{
    return SkillTable::label(rating);
}

QString Ratings::groupHeading(int group)
{
    return group >= 0 && group < GroupCount ? QString(headings[group]) : QString();
}
