#include "fighters/TableRows.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"

#include <QtTest>

using G = Entity_Gym;
using M = Entity_Manager;

namespace {

Entity_Gym gymWith(int money, int level = 0, int prestige = 0, const QString &label = "Unknown")
{
    Entity_Gym gym;
    QList<int> values = gym.values();
    values[G::Money] = money;
    values[G::GymLevel] = level;
    values[G::FirstEquipment + 3] = level; // the Banana Bag stands at the gym's level
    values[G::PrestigePoints] = prestige;
    QStringList strings = gym.strings();
    strings[G::GymPrestige] = label;
    gym.unpack(strings, values, gym.ledger());
    return gym;
}

Entity_Manager managerWith(int reputation, int charisma, int intuition = 0)
{
    Entity_Manager manager;
    QList<int> values = manager.values();
    values[M::ReputationValue] = reputation;
    values[M::Charisma] = charisma;
    values[M::Intuition] = intuition;
    manager.unpack(manager.strings(), values, {});
    return manager;
}

struct Upgrade {
    const char *name;
    int money, level, equipment;
    bool upgraded;
};
const Upgrade upgrades[] = {
    {"1000 buys the first level", 1000, 0, 3, true},
    {"999 does not", 999, 0, 3, false},
    {"from level 9", 500000, 9, 3, true},
    {"level 10 is final", 9000000, 10, 3, false},
    {"the last piece", 1000, 0, 20, true},
    {"no piece 21", 1000, 0, 21, false},
};

// a win (a knock-out when big) or a defeat, and where the gym's prestige ends
struct Prestige {
    const char *name;
    int points;
    const char *label;
    bool win, big;
    int pointsAfter;
    const char *labelAfter;
};
const Prestige prestiges[] = {
    {"a defeat drops below 101", 101, "Local Hangout", false, false, 99, "Unknown"},
    {"100 is still unknown", 92, "Unknown", true, false, 100, "Unknown"},
    {"a knock-out stops at 1000", 995, "Legendary", true, true, 1000, "Legendary"},
    {"0 is the floor", 3, "Unknown", false, true, 0, "Unknown"},
    {"legendary falls at 900", 902, "Legendary", false, false, 900, "Elite"},
};

// a label moves only with a level up
struct Reputation {
    const char *name;
    int value, charisma;
    bool titleFight;
    int valueAfter;
    bool levelUp;
    const char *label;
};
const Reputation reputations[] = {
    {"95 with Charisma 1 rises to 105", 95, 1, false, 105, true, "Inexperienced"},
    {"to exactly 100 is no rise", 90, 0, false, 100, false, "Unknown"},
    {"a title fight into the next band", 190, 10, true, 220, true, "Local Name"},
    {"the ceiling", 995, 10, true, 1000, false, "Unknown"},
};

// what Intuition lets the user read of his own men
struct Reading {
    const char *name;
    int intuition, value;
    const char *learning, *fatigue;
};
const Reading readings[] = {
    {"intuition 4 reads nothing", 4, 0, "Can't Tell", "Can't Tell"},
    {"intuition 5 reads fatigue", 5, 0, "Can't Tell", "Peak"},
    {"intuition 8 reads learning", 8, 2, "Fast", "Normal"},
    {"out of range", 10, 7, "Average", "Normal"},
};

} // namespace

class tst_GymManager : public QObject
{
    Q_OBJECT

private slots:
    void equipmentUpgrade_data() { TableRows::add(upgrades); }
    void equipmentUpgrade()
    {
        const Upgrade &row = TableRows::current(upgrades);
        Entity_Gym gym = gymWith(row.money, row.level);
        const int levelBefore = gym.equipmentLevel(row.equipment);
        QCOMPARE(gym.upgradeEquipment(row.equipment), row.upgraded);
        QCOMPARE(gym.equipmentLevel(row.equipment), levelBefore + (row.upgraded ? 1 : 0));
        QCOMPARE(gym.money(), row.upgraded ? 0 : row.money);
        QCOMPARE(gym.ledgerEntry(G::UpgradeCosts), row.money - gym.money());
    }

    void prestige_data() { TableRows::add(prestiges); }
    void prestige()
    {
        const Prestige &row = TableRows::current(prestiges);
        Entity_Gym gym = gymWith(0, 0, row.points, row.label);
        if (row.win)
            gym.gainPrestige(row.big);
        else
            gym.losePrestige(row.big);
        QCOMPARE(gym.value(G::PrestigePoints), row.pointsAfter);
        QCOMPARE(gym.text(G::GymPrestige), QString(row.labelAfter));
    }

    // the position of the gym's label sets the fee of a student
    void studentFees()
    {
        QCOMPARE(gymWith(0, 0, 100, "Unknown").studentFee(), 50);
        QCOMPARE(gymWith(0, 0, 101, "Local Hangout").studentFee(), 70);
        QCOMPARE(gymWith(0, 0, 901, "Legendary").studentFee(), 230);
    }

    void managerReputation_data() { TableRows::add(reputations); }
    void managerReputation()
    {
        const Reputation &row = TableRows::current(reputations);
        Entity_Manager manager = managerWith(row.value, row.charisma);
        QCOMPARE(manager.gainReputation(row.titleFight), row.levelUp);
        QCOMPARE(manager.value(M::ReputationValue), row.valueAfter);
        QCOMPARE(manager.text(M::ManagerReputation), QString(row.label));
    }

    void intuitionTexts_data() { TableRows::add(readings); }
    void intuitionTexts()
    {
        const Reading &row = TableRows::current(readings);
        const Entity_Manager manager = managerWith(0, 0, row.intuition);
        QCOMPARE(manager.learningSpeedText(row.value), QString(row.learning));
        QCOMPARE(manager.fatigueText(row.value), QString(row.fatigue));
    }
};

QTEST_GUILESS_MAIN(tst_GymManager)
#include "tst_gymmanager.moc"
