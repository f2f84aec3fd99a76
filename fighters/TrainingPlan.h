#pragma once

#include <QList>
#include <QString>

// The 22 plans of a gym fighter's day: 0 is rest, 1 to 21 each use one piece of the gym's
// equipment (equipment n serves plan n + 1) and one of the manager's twelve training skills.
// A plan fills the counters of its main and side skills and wears down those that it neglects.
class TrainingPlan
{
public:
    static constexpr int Rest = 0;
    static constexpr int First = 1; // the heavy bag
    static constexpr int Last = 21; // the rattan sticks
    static constexpr int Count = Last + 1;
    // what one day on a plan costs for each level of its equipment
    static constexpr int CostPerLevel = 50;

    // 1 to 21; rest and anything above 21, which only a damaged file could hold, is no plan
    static bool isTraining(int plan) { return plan >= First && plan <= Last; }

    // the screens' texts: "Heavy Bag", "Improves Cross, Body Punching and Jab", the icon's file
    // in the Training Icons folder, and the equipment's upgrade button ("Upgrade Heavy Bag").
    // Off the list they are empty.
    static QString name(int plan);
    static QString text(int plan);
    static QString iconFile(int plan);
    static QString upgradeButtonText(int plan);

    // the position in the gym's values of the plan's equipment level, and in the manager's
    // values of its training skill; -1 for rest
    static int equipmentSlot(int plan);
    static int managerSkillSlot(int plan);

    // the skills, in the order in which the day works through them; empty for rest
    static QList<int> mainSkills(int plan);
    static QList<int> sideSkills(int plan);
    static QList<int> fadingSkills(int plan);

    // "Trained on the heavy bag." for his log, " trained on the heavy bag." behind his name in
    // the news; rest's lines off the list
    static QString logLine(int plan);
    static QString newsLine(int plan);
};
