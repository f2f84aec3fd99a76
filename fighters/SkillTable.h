#pragma once

#include "fighters/Entity_Fighter.h"

#include <QList>
#include <QString>

// The 48 skills: what the screens show as ratings and what training and matches fill as progress
// counters. A skill has no level of its own; a level up moves the attributes behind it.
class SkillTable
{
public:
    // in the order of the ratings and of the progress counters
    // clang-format off
    enum Skill : int {
        Jab, Hook, Cross, Uppercut,
        LowKick, MidKick, HighKick, FrontKick,
        Knee, Elbow, DirtyBoxing, BodyPunch,
        HeadMovement, BodyMovement, Footwork, Positioning,
        HeadGuard, BodyGuard, LegGuard, DazedGuard,
        DirtyBoxingDefense, ClinchGrappling, ClinchPositioning, ClinchFootwork,
        Strength, Explosiveness, AttackPower, Pressuring,
        Reaction, Dodge, Movement, AttackSpeed,
        Cardio, Toughness, Stamina, Recovery,
        Combinations, Counter, Accuracy, Agility,
        OffensiveAwareness, DefensiveAwareness, Strategizing, Adaptability,
        SelfControl, KillerInstinct, Focus, Perseverance,
        Count
    };
    // clang-format on

    // a counter of 200 or more levels the skill up, one of -150 or less levels it down
    static constexpr int LevelUpAt = 200;
    static constexpr int LevelDownAt = -150;

    // the name of the training texts ("Body Punch"); empty for a number off the table
    static QString name(int skill);
    // the label of the rating screens ("Body Punching")
    static QString label(int skill);
    // the skill of a training name, -1 for none
    static int indexOf(const QString &name);
    // the four to six attributes that a level moves by one
    static QList<Entity_Fighter::Number> attributes(int skill);
};
