#include "fighters/TrainingPlan.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"
#include "fighters/SkillTable.h"

#include <array>

namespace {

using S = SkillTable;
using M = Entity_Manager;
constexpr S::Skill none = S::Count; // pads a group of fewer than three
using Group = std::array<S::Skill, 3>;

struct PlanRow {
    const char *name;
    const char *text;
    const char *icon;
    const char *upgrade; // the name on the upgrade button, which spells the speed bag its own way
    M::Value managerSkill;
    Group main;
    Group side;
    Group fading;
    const char *logLine;
    const char *newsLine;
};

// clang-format off
constexpr PlanRow plans[TrainingPlan::Count] = {
    {"Rest", "Reduces Fatigue Level", "rest_icon.png", "", M::ReputationValue,
     {none, none, none}, {none, none, none}, {none, none, none},
     "Rested today.", " rested today."},
    {"Heavy Bag", "Improves Cross, Body Punching and Jab", "heavy_bag_icon.png", "Heavy Bag", M::Punch,
     {S::Cross, S::BodyPunch, S::Jab}, {S::AttackPower, S::KillerInstinct, none}, {S::Counter, S::Dodge, S::Reaction},
     "Trained on the heavy bag.", " trained on the heavy bag."},
    {"Focus Mitts", "Improves Combos, Accuracy and Focus", "focus_mitts_icon.png", "Focus Mitts", M::Timing,
     {S::Combinations, S::Accuracy, S::Focus}, {S::AttackSpeed, S::Hook, none}, {S::Knee, S::FrontKick, S::DazedGuard},
     "Trained using focus mitts.", " trained using focus mitts."},
    {"Speed Bag", "Improves Attack Speed, Agility and Stamina", "speed_bag_icon.png", "Speed bag", M::Speed,
     {S::AttackSpeed, S::Agility, S::Stamina}, {S::Cardio, S::BodyMovement, none},
     {S::LowKick, S::MidKick, S::DirtyBoxingDefense},
     "Trained on the speed bag.", " trained on the speed bag."},
    {"Banana Bag", "Improves Low Kick, Mid Kick and High Kick", "banana_bag_icon.png", "Banana Bag", M::Kick,
     {S::LowKick, S::MidKick, S::HighKick}, {S::AttackPower, S::Explosiveness, none},
     {S::Uppercut, S::Hook, S::DirtyBoxing},
     "Trained on the banana bag.", " trained on the banana bag."},
    {"Wall Bag", "Improves Uppercut, Dirty Boxing and Hook", "wall_bag_icon.png", "Wall Bag", M::Punch,
     {S::Uppercut, S::DirtyBoxing, S::Hook}, {S::ClinchGrappling, S::ClinchPositioning, none},
     {S::Jab, S::Cross, S::LegGuard},
     "Trained using the wall bag.", " trained using the wall bag."},
    {"Thai Pads", "Improves Knee, Elbow and Front Kick", "thai_pads_icon.png", "Thai Pads", M::ClinchOffense,
     {S::Knee, S::Elbow, S::FrontKick}, {S::BodyMovement, S::ClinchFootwork, none},
     {S::HeadGuard, S::Accuracy, S::Strategizing},
     "Trained using the thai pads.", " trained using the thai pads."},
    {"Sparring", "Improves Offensive, Defensive Awareness and Dazed Guard", "sparring_icon.png", "Sparring", M::Guard,
     {S::OffensiveAwareness, S::DefensiveAwareness, S::DazedGuard}, {S::HeadGuard, S::BodyGuard, S::Counter},
     {S::Elbow, S::SelfControl, none},
     "Sparred today.", " sparred today."},
    {"Shadow Boxing", "Improves Clinch Footwork, Head Guard and Leg Guard", "shadow_boxing_icon.png", "Shadow Boxing",
     M::Intelligence,
     {S::ClinchFootwork, S::HeadGuard, S::LegGuard}, {S::Footwork, S::Positioning, S::Combinations},
     {S::KillerInstinct, S::AttackPower, S::Explosiveness},
     "Shadow boxed.", " shadow boxed."},
    {"Grappling", "Improves Clinch Grappling and Positioning, and Dirty Box Defense", "grappling_icon.png", "Grappling",
     M::ClinchDefense,
     {S::ClinchGrappling, S::ClinchPositioning, S::DirtyBoxingDefense}, {S::DirtyBoxing, S::ClinchFootwork, S::Strength},
     {S::AttackSpeed, S::Jab, S::Agility},
     "Worked on grappling.", " worked on grappling."},
    {"Swerve Bag", "Improves Head Movement, Dodge and Reaction", "swerve_bag_icon.png", "Swerve Bag", M::Movement,
     {S::HeadMovement, S::Dodge, S::Reaction}, {S::Agility, S::BodyMovement, none},
     {S::KillerInstinct, S::Toughness, S::Recovery},
     "Used the swerve bag for training.", " used the swerve bag for training."},
    {"Movement Drills", "Improves Footwork, Movement and Pressuring", "movement_drills_icon.png", "Movement Drills",
     M::Movement,
     {S::Footwork, S::Movement, S::Pressuring}, {S::Jab, S::BodyMovement, none},
     {S::Combinations, S::Toughness, S::Focus},
     "Did movement drills.", " did movement drills."},
    {"Foam Sticks", "Improves Body Movement, Positioning and Counter", "foam_sticks_icon.png", "Foam Sticks", M::Timing,
     {S::BodyMovement, S::Positioning, S::Counter}, {S::Reaction, S::Dodge, S::DefensiveAwareness},
     {S::OffensiveAwareness, S::Hook, S::Uppercut},
     "Trained using foam sticks.", " trained using foam sticks."},
    {"Skip Rope", "Improves Cardio, Footwork and Perseverance", "skip_rope_icon.png", "Skip Rope", M::Conditioning,
     {S::Cardio, S::Footwork, S::Stamina}, {S::Perseverance, S::Movement, none},
     {S::KillerInstinct, S::Focus, S::ClinchGrappling},
     "Skipped rope.", " skipped rope."},
    {"Kettle Bells", "Improves Explosiveness and Strength", "kettle_bell_icon.png", "Kettle Bells", M::Power,
     {S::Explosiveness, S::Strength, none}, {S::Stamina, S::AttackPower, none},
     {S::Agility, S::Pressuring, S::Reaction},
     "Used kettle bells today.", " used kettle bells today."},
    {"Running", "Improves Cardio, Stamina and Recovery", "running_icon.png", "Running", M::Conditioning,
     {S::Cardio, S::Recovery, S::Perseverance}, {S::Stamina, S::Explosiveness, none},
     {S::HeadGuard, S::BodyGuard, S::DazedGuard},
     "Ran today.", " ran today."},
    {"Plyometrics", "Improves Explosiveness, Attack Power and Recovery", "plyometrics_icon.png", "Plyometrics", M::Speed,
     {S::Explosiveness, S::AttackPower, S::Recovery}, {S::AttackSpeed, S::Cross, none},
     {S::Pressuring, S::ClinchGrappling, S::Uppercut},
     "Trained plyometrics.", " trained plyometrics."},
    {"Heavy Weights", "Improves Strength, Clinch Grappling and Pressuring", "heavy_weights_icon.png", "Heavy Weights",
     M::Power,
     {S::Strength, S::ClinchGrappling, S::Pressuring}, {S::Toughness, S::Focus, none},
     {S::AttackSpeed, S::Agility, S::Cardio},
     "Lifted heavy weights.", " lifted heavy weights."},
    {"Video Study", "Improves Strategizing, Off. Awareness and Positioning", "video_study_icon.png", "Video Study",
     M::Intelligence,
     {S::Strategizing, S::OffensiveAwareness, S::Positioning}, {S::Adaptability, S::DefensiveAwareness, none},
     {S::DirtyBoxingDefense, S::DazedGuard, S::Reaction},
     "Studied video tape.", " studied video tape."},
    {"Game Planning", "Improves Strategizing, Self Control and Focus", "game_planning_icon.png", "Game Planning",
     M::Discipline,
     {S::Strategizing, S::SelfControl, S::Focus}, {S::Combinations, S::Movement, none},
     {S::Pressuring, S::Adaptability, S::Reaction},
     "Worked on game planning.", " worked on game planning."},
    {"Meditation", "Improves Recovery, Self Control and Perseverance", "meditate_icon.png", "Meditation", M::Discipline,
     {S::Recovery, S::SelfControl, S::Perseverance}, {S::Explosiveness, S::Adaptability, none},
     {S::Toughness, S::Cardio, S::KillerInstinct},
     "Meditated today.", " meditated today."},
    {"Rattan Sticks", "Improves Recovery, Toughness and Body Guard", "rattan_sticks_icon.png", "Rattan Sticks", M::Guard,
     {S::Recovery, S::Toughness, S::BodyGuard}, {S::LegGuard, S::BodyMovement, none},
     {S::ClinchPositioning, S::Jab, S::HighKick},
     "Trained using rattan sticks.", " trained using rattan sticks."},
};
// clang-format on

static_assert(TrainingPlan::Last == Entity_Gym::EquipmentCount, "a piece of equipment for every plan");

bool onList(int plan)
{
    return plan >= TrainingPlan::Rest && plan < TrainingPlan::Count;
}

QList<int> skillsOf(const Group &group)
{
    QList<int> skills;
    for (S::Skill skill : group) {
        if (skill != none)
            skills.append(skill);
    }
    return skills;
}

} // namespace

QString TrainingPlan::name(int plan)
{
    return onList(plan) ? QString(plans[plan].name) : QString();
}

QString TrainingPlan::text(int plan)
{
    return onList(plan) ? QString(plans[plan].text) : QString();
}

QString TrainingPlan::iconFile(int plan)
{
    return onList(plan) ? QString(plans[plan].icon) : QString();
}

QString TrainingPlan::upgradeButtonText(int plan)
{
    return isTraining(plan) ? "Upgrade " + QString(plans[plan].upgrade) : QString();
}

int TrainingPlan::equipmentSlot(int plan)
{
    return isTraining(plan) ? Entity_Gym::FirstEquipment + plan - First : -1;
}

int TrainingPlan::managerSkillSlot(int plan)
{
    return isTraining(plan) ? int(plans[plan].managerSkill) : -1;
}

QList<int> TrainingPlan::mainSkills(int plan)
{
    return isTraining(plan) ? skillsOf(plans[plan].main) : QList<int>();
}

QList<int> TrainingPlan::sideSkills(int plan)
{
    return isTraining(plan) ? skillsOf(plans[plan].side) : QList<int>();
}

QList<int> TrainingPlan::fadingSkills(int plan)
{
    return isTraining(plan) ? skillsOf(plans[plan].fading) : QList<int>();
}

QString TrainingPlan::logLine(int plan)
{
    return QString(plans[isTraining(plan) ? plan : Rest].logLine);
}

QString TrainingPlan::newsLine(int plan)
{
    return QString(plans[isTraining(plan) ? plan : Rest].newsLine);
}
