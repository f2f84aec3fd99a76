#pragma once

#include "fighters/Entity_Fighter.h"

#include <array>

// A man under the user's roof for good: the fighter record with a second block of what only
// the gym's own men have.
class Entity_GymFighter : public Entity_Fighter
{
public:
    static constexpr int SkillCount = 48;
    static constexpr int ExtraCount = 7;                 // learning speed ... fight purse
    static constexpr int ProgressCount = SkillCount + 1; // the 48 counters, then the plan

    // rolls learning speed, the reserve roll and marketability; everything else is empty
    Entity_GymFighter();
    // the same man as a gym fighter, with fresh rolls for the second block
    explicit Entity_GymFighter(const Entity_Fighter &fighter);

    int learningSpeed = 0;    // 0 Slow, 1 Average, 2 Fast
    int reserveRoll = 0;      // rolled and kept; no rule reads it
    int marketability = 0;    // 0 to 4
    int fatigueBand = 0;      // 0 to 4, follows fatigue
    int fatigue = 0;          // 0 to 100
    int reputationPoints = 0; // 0 to 1000
    int fightPurse = 0;       // what the gym gets for a fight under the present contract
    std::array<int, SkillCount> skillProgress{};
    int trainingPlan = 0; // 0 to 21
    QStringList trainingLog;

    Entity_Fighter fighter() const { return *this; }

    using Entity_Fighter::setContract;
    void setContract(const QString &organisation, int fightsLeft, int purse);
    void contract(QString &organisation, int &fightsLeft, int &purse) const;

    // stores the age that he has on `date`; gives the age he had before
    int advanceAge(const QDate &date);

    QList<int> extras() const;   // the seven values in stream order
    QList<int> progress() const; // the 48 counters, then the plan
    // nothing is checked: the lists must hold 7 and 49 entries
    void unpackExtras(const QList<int> &seven, const QList<int> &fortyNine, const QStringList &log);

    bool operator==(const Entity_GymFighter &other) const;

    // --- Skill levels, match experience and reputation ------------------------------------------
    // The skill's attributes rise (fall) by one and its counter returns to 0; the line for the
    // day's report is returned: "Attack Speed level up!", "Low Kick level down.".
    QString levelUp(int skill);
    QString levelDown(int skill);
    // the level change when the counter has reached its limit, with its line added to `report`
    bool checkLevelUp(int skill, QStringList &report);
    bool checkLevelDown(int skill, QStringList &report);
    // what a match teaches, from the engine's 44 statistics, and the reputation points it earns
    void addMatchExperience(const QList<int> &statistics, const QString &result);
    // the label from the reputation points
    void updateReputationLabel();

    // --- Daily training ---------------------------------------------------------------------------
    // One day on his plan, measured against the manager's 23 values and the gym's 26 values of
    // the morning: counters, levels, fatigue and a line in his log. `report` gets his line for the
    // day's news. Gives what the day costs, which the caller takes from the gym; a plan that the
    // gym cannot pay is a day of rest and costs nothing.
    int dailyTraining(const QDate &date, const QList<int> &managerValues, const QList<int> &gymValues, QString &report);
    // fatigue falls by 10, to no less than 0
    void rest();
    // the second of the month: the log keeps only its last line
    void trimTrainingLog();
    // 0 "Peak" to 4 "Exhausted"
    static int fatigueBandOf(int fatigue);
    static constexpr int MostFatigue = 100;

private:
    // the plan's rolls for one day with the manager's skill and the equipment's level
    void trainOnPlan(int plan, int skill, int equipment, QStringList &lines);
};

QDataStream &operator<<(QDataStream &out, const Entity_GymFighter &fighter);
QDataStream &operator>>(QDataStream &in, Entity_GymFighter &fighter);
