#include "fighters/SkillTable.h"

#include <array>

namespace {

using F = Entity_Fighter;
constexpr F::Number none = F::NumberCount; // pads a set of fewer than six

struct SkillRow {
    const char *name;
    const char *label;
    std::array<F::Number, 6> attributes;
};

constexpr SkillRow skills[SkillTable::Count] = {
    {"Jab", "Jab", {F::JabSpeed, F::JabTechnique, F::JabPower, F::HandSpeed, F::Coordination, F::Precision}},
    {"Hook", "Hook", {F::HookSpeed, F::HookTechnique, F::HookPower, F::Torque, F::PunchPower, F::Conditioning}},
    {"Cross", "Cross", {F::CrossSpeed, F::CrossTechnique, F::CrossPower, F::PunchPower, F::Balance, none}},
    {"Uppercut",
     "Uppercut",
     {F::UppercutSpeed, F::UppercutTechnique, F::UppercutPower, F::PunchPower, F::Ferocity, F::Strength}},
    {"Low Kick",
     "Low Kick",
     {F::LowKickSpeed, F::LowKickTechnique, F::LowKickPower, F::Torque, F::KickSpeed, F::Durability}},
    {"Mid Kick", "Mid Kick", {F::MidKickSpeed, F::MidKickTechnique, F::MidKickPower, F::Torque, F::Snap, F::Balance}},
    {"High Kick",
     "High Kick",
     {F::HighKickSpeed, F::HighKickTechnique, F::HighKickPower, F::KickSpeed, F::Snap, F::Balance}},
    {"Front Kick",
     "Front Kick",
     {F::FrontKickSpeed, F::FrontKickTechnique, F::FrontKickPower, F::Precision, F::RingSense, F::Balance}},
    {"Knee", "Knee", {F::KneeSpeed, F::KneeTechnique, F::KneePower, F::Torque, F::Grappling, F::ClinchEscape}},
    {"Elbow", "Elbow", {F::ElbowSpeed, F::ElbowTechnique, F::ElbowPower, F::Instinct, F::ClinchControl, none}},
    {"Dirty Boxing",
     "Dirty Boxing",
     {F::DirtyBoxingSpeed, F::DirtyBoxingTechnique, F::DirtyBoxingPower, F::Instinct, F::Grappling, F::ClinchControl}},
    {"Body Punch",
     "Body Punching",
     {F::BodyPunchSpeed, F::BodyPunchTechnique, F::BodyPunchPower, F::Ferocity, F::Strength, none}},
    {"Head Movement",
     "Head Movement",
     {F::HeadMoveSpeed, F::HeadMoveTechnique, F::Reflexes, F::EvasionSpeed, F::Anticipation, none}},
    {"Body Movement",
     "Body Movement",
     {F::BodyMoveSpeed, F::BodyMoveTechnique, F::Coordination, F::EvasionSpeed, F::Torque, F::Anticipation}},
    {"Footwork", "Footwork", {F::FootSpeed, F::MoveSpeed, F::Balance, F::Coordination, none, none}},
    {"Positioning", "Positioning", {F::RingSense, F::FightIQ, F::Awareness, F::Balance, F::Instinct, F::FootSpeed}},
    {"Head Guard",
     "Head Guard",
     {F::KickGuardSpeed, F::KickGuardTechnique, F::PunchGuardSpeed, F::PunchGuardTechnique, F::Willpower,
      F::Aggression}},
    {"Body Guard",
     "Body Guard",
     {F::BodyGuardSpeed, F::BodyGuardTechnique, F::Durability, F::Willpower, F::Endurance, none}},
    {"Leg Guard",
     "Leg Guard",
     {F::LegGuardSpeed, F::LegGuardTechnique, F::Durability, F::Willpower, F::Resilience, none}},
    {"Dazed Guard",
     "Dazed Guard",
     {F::Snap, F::PunchGuardTechnique, F::Durability, F::Willpower, F::Balance, F::FootSpeed}},
    {"Dirty Boxing Defense",
     "Dirty Box Def.",
     {F::ClinchGuardSpeed, F::ClinchGuardTechnique, F::Durability, F::ClinchControl, F::Strength, F::Grappling}},
    {"Clinch Grappling",
     "Clinch Grappling",
     {F::Strength, F::Grappling, F::Balance, F::Instinct, F::ClinchEscape, F::ClinchControl}},
    {"Clinch Positioning",
     "Clinch Positioning",
     {F::ClinchControl, F::ClinchEscape, F::Grappling, F::Snap, F::Torque, none}},
    {"Clinch Footwork",
     "Clinch Footwork",
     {F::FootSpeed, F::Balance, F::Grappling, F::Instinct, F::KickSpeed, F::ClinchEscape}},
    {"Strength", "Strength", {F::Strength, F::Torque, F::Resilience, F::Durability, F::Grappling, F::Endurance}},
    {"Explosiveness", "Explosiveness", {F::Burst, F::Reflexes, F::Precision, F::Snap, F::EvasionSpeed, F::HandSpeed}},
    {"Attack Power", "Attack Power", {F::PunchPower, F::Torque, F::Precision, F::Snap, F::Ferocity, F::Aggression}},
    {"Pressuring",
     "Pressuring",
     {F::Strength, F::Conditioning, F::BodyMoveTechnique, F::HeadMoveTechnique, F::Durability, F::Willpower}},
    {"Reaction", "Reaction", {F::Reflexes, F::Coordination, F::Awareness, F::Anticipation, F::Precision, none}},
    {"Dodge", "Dodge", {F::Reflexes, F::HeadMoveSpeed, F::EvasionSpeed, F::Anticipation, F::Burst, none}},
    {"Movement", "Movement", {F::MoveSpeed, F::FootSpeed, F::EvasionSpeed, F::Burst, F::Coordination, none}},
    {"Attack Speed", "Attack Speed", {F::HandSpeed, F::KickSpeed, F::Snap, F::Burst, F::Torque, F::LungCapacity}},
    {"Cardio", "Cardio", {F::LungCapacity, F::Endurance, F::Willpower, F::Burst, F::Conditioning, none}},
    {"Toughness",
     "Toughness",
     {F::Durability, F::Willpower, F::Conditioning, F::Resilience, F::Endurance, F::Aggression}},
    {"Stamina", "Stamina", {F::Durability, F::Endurance, F::Conditioning, F::Resilience, F::Willpower, none}},
    {"Recovery", "Recovery", {F::Burst, F::Strength, F::Conditioning, F::Resilience, F::LungCapacity, F::Composure}},
    {"Combinations",
     "Combinations",
     {F::Precision, F::Coordination, F::Burst, F::Ferocity, F::HandSpeed, F::KickSpeed}},
    {"Counter", "Counter", {F::Anticipation, F::Reflexes, F::Awareness, F::RingSense, F::Concentration, F::Instinct}},
    {"Accuracy", "Accuracy", {F::Awareness, F::Concentration, F::Precision, F::Coordination, F::FightIQ, none}},
    {"Agility", "Agility", {F::Awareness, F::Anticipation, F::Precision, F::Coordination, F::Burst, none}},
    {"Offensive Awareness",
     "Off. Awareness",
     {F::Awareness, F::FightIQ, F::RingSense, F::Precision, F::Concentration, none}},
    {"Defensive Awareness",
     "Def. Awareness",
     {F::Awareness, F::FightIQ, F::Composure, F::Anticipation, F::RingSense, none}},
    {"Strategizing", "Strategizing", {F::Discipline, F::FightIQ, F::Composure, F::Instinct, F::Concentration, none}},
    {"Adaptability", "Adaptability", {F::Willpower, F::FightIQ, F::Composure, F::Concentration, none, none}},
    {"Self Control", "Self Control", {F::Concentration, F::FightIQ, F::Discipline, F::Willpower, F::Composure, none}},
    {"Killer Instinct",
     "Killer Instinct",
     {F::Ferocity, F::Discipline, F::Aggression, F::Willpower, F::PunchPower, none}},
    {"Focus", "Focus", {F::Concentration, F::Discipline, F::Coordination, F::Snap, F::RingSense, F::Resilience}},
    {"Perseverance",
     "Perseverance",
     {F::Aggression, F::Willpower, F::Durability, F::Discipline, F::Conditioning, F::Endurance}},
};

bool onTable(int skill)
{
    return skill >= 0 && skill < SkillTable::Count;
}

} // namespace

QString SkillTable::name(int skill)
{
    return onTable(skill) ? QString(skills[skill].name) : QString();
}

QString SkillTable::label(int skill)
{
    return onTable(skill) ? QString(skills[skill].label) : QString();
}

int SkillTable::indexOf(const QString &name)
{
    for (int skill = 0; skill < Count; ++skill) {
        if (name == QLatin1String(skills[skill].name))
            return skill;
    }
    return -1;
}

QList<Entity_Fighter::Number> SkillTable::attributes(int skill)
{
    QList<Entity_Fighter::Number> set;
    if (!onTable(skill))
        return set;
    for (F::Number attribute : skills[skill].attributes) {
        if (attribute != none)
            set.append(attribute);
    }
    return set;
}
