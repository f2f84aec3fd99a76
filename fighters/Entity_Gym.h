#pragma once

#include <QDataStream>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

// The user's gym: money, prestige, room for students and fighters, and the 21 pieces of
// equipment that the training plans use, with the month's books.
class Entity_Gym
{
public:
    enum Text : int { GymName, GymStyle, GymShortsColour, GymTrimColour, GymPrestige, TextCount };

    enum Value : int {
        PrestigePoints,
        Money,
        GymLevel,
        StudentSlots,
        FighterSlots,
        FirstEquipment, // Heavy Bag; the 21 pieces follow in the order of the training plans
        ValueCount = FirstEquipment + 21
    };
    static constexpr int EquipmentCount = ValueCount - FirstEquipment;
    static constexpr int TopLevel = 10;

    // this month's four entries, then last month's
    enum Ledger : int {
        TrainingCosts,
        UpgradeCosts,
        StudentFees,
        FighterPurses,
        LastTrainingCosts,
        LastUpgradeCosts,
        LastStudentFees,
        LastFighterPurses,
        LedgerCount
    };

    // an empty gym of the first day: $10000, three student places and one fighter place
    Entity_Gym();

    void pack(QStringList &strings, QList<int> &values, QList<int> &ledger) const;
    // missing entries count as empty
    void unpack(const QStringList &strings, const QList<int> &values, const QList<int> &ledger);
    QStringList strings() const;
    QList<int> values() const;
    QList<int> ledger() const;

    QString text(Text field) const { return texts[field]; }
    int value(Value field) const { return numbers[field]; }
    int ledgerEntry(Ledger entry) const { return books[entry]; }
    int money() const { return numbers[Money]; }
    // 0 to 20, the plan number minus 1; 0 off the list
    int equipmentLevel(int equipment) const;

    // the prices of the next level; 0 at the top level
    static int equipmentPrice(int levelBefore);
    static int gymUpgradePrice(int levelBefore);
    // false, and nothing changes, off the list, at level 10 or without the money
    bool upgradeEquipment(int equipment);
    bool upgradeGym();

    void chargeTraining(int amount);
    void addIncome(int amount, bool isPurse);
    // this month's books become last month's, and a new month starts from 0
    void rollMonth();
    // student fees and purses less training and upgrades
    int revenueThisMonth() const;
    int revenueLastMonth() const;

    void gainPrestige(bool big);
    void losePrestige(bool big);
    // the position of the prestige label on its scale, 0 to 9; 0 for a text off the scale
    int prestigeLevel() const;
    // what a student pays on the first of the month
    int studentFee() const;

    bool operator==(const Entity_Gym &other) const;

private:
    std::array<QString, TextCount> texts;
    std::array<int, ValueCount> numbers{};
    std::array<int, LedgerCount> books{};
};

QDataStream &operator<<(QDataStream &out, const Entity_Gym &gym);
QDataStream &operator>>(QDataStream &in, Entity_Gym &gym);
