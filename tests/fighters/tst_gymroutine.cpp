#include "TableRows.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/GymRoutine.h"
#include "fighters/Random.h"

#include <QtTest>

using F = Entity_Fighter;
using G = Entity_Gym;
using M = Entity_Manager;

namespace {

const QDate today(2012, 3, 14);

Entity_GymFighter fighterOn(int plan, const QString &last)
{
    Entity_GymFighter man;
    man.setText(F::FirstName, "Al");
    man.setText(F::LastName, last);
    man.trainingPlan = plan;
    return man;
}

Entity_Fighter bornOn(const QDate &born, int age, int attributes)
{
    Entity_Fighter man;
    man.setNumber(F::Age, age);
    man.setBirthDate(born);
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        man.setNumber(F::Number(a), attributes);
    return man;
}

struct Morning {
    const char *name;
    int money, heavyBag, focusMitts;
    bool amesTrains, bellTrains;
    int moneyAfter;
};
const Morning mornings[] = {
    {"two share 100 on level 2: both pay, the gym ends at -100", 100, 2, 2, true, true, -100},
    {"the second is measured against the morning, not what the first left", 100, 2, 1, true, true, -50},
    {"a gym without the morning's money: both rest", 50, 2, 2, false, false, 50},
    {"bare equipment is free to a gym with 0", 0, 0, 0, true, true, 0},
    {"a gym in debt cannot pay even that", -10, 0, 0, false, false, -10},
};

// the row of the age he leaves behind: the least and the most that every attribute moves
struct Growth {
    const char *name;
    int ageBefore, least, most;
};
const Growth growths[] = {
    {"17 turning 18 doesn't grow", 17, 0, 0},   {"18 turning 19: +1 to +3", 18, 1, 3},
    {"21 turning 22 still +1 to +3", 21, 1, 3}, {"22 turning 23: 0 to +2", 22, 0, 2},
    {"24 turning 25: 0 to +1", 24, 0, 1},       {"29 turning 30: 0 to +1", 29, 0, 1},
    {"30 turning 31: his prime", 30, 0, 0},     {"34 turning 35: his prime", 34, 0, 0},
    {"35 turning 36: 0 to -1", 35, -1, 0},      {"37 turning 38: 0 to -2", 37, -2, 0},
};

// the heavy bag (plan 1) and the focus mitts (plan 2) at their levels
Entity_Gym gymAt(int money, int level = 0, int prestige = 0, const QString &label = "Unknown", int heavyBag = 0,
                 int focusMitts = 0)
{
    Entity_Gym gym;
    QList<int> values = gym.values();
    values[G::Money] = money;
    values[G::GymLevel] = level;
    values[G::FirstEquipment] = heavyBag;
    values[G::FirstEquipment + 1] = focusMitts;
    values[G::FirstEquipment + 3] = level; // the Banana Bag stands at the gym's level
    values[G::PrestigePoints] = prestige;
    QStringList strings = gym.strings();
    strings[G::GymPrestige] = label;
    gym.unpack(strings, values, gym.ledger());
    return gym;
}

Entity_Manager managerAt(int reputation, int charisma, int intuition = 0)
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

class tst_GymRoutine : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    // Ames works the heavy bag, Bell the focus mitts. Both are measured against the money of the
    // morning, and each day's cost comes off the gym at once.
    void morningMoney_data() { TableRows::add(mornings); }
    void morningMoney()
    {
        const auto [name, money, heavyBag, focusMitts, amesTrains, bellTrains, moneyAfter] =
            TableRows::current(mornings);
        Random::useTestClock(3);
        QList<Entity_GymFighter> fighters{fighterOn(1, "Ames"), fighterOn(2, "Bell")};
        Entity_Gym gym = gymAt(money, 0, 0, "Unknown", heavyBag, focusMitts);
        const QStringList reports = GymRoutine::trainAll(fighters, gym, Entity_Manager(), today);

        QCOMPARE(reports.size(), 2);
        QCOMPARE(reports[0].startsWith("Al Ames trained"), amesTrains);
        QCOMPARE(reports[1].startsWith("Al Bell trained"), bellTrains);
        QCOMPARE(gym.money(), moneyAfter);
        QCOMPARE(gym.ledgerEntry(G::TrainingCosts), money - moneyAfter);
        for (const Entity_GymFighter &man : fighters)
            QCOMPARE(man.trainingLog.size(), 1);
    }

    // A fighter only gets a year older; a student grows. 29 February comes in leap years only.
    void birthdays_data()
    {
        QTest::addColumn<QDate>("born");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<QStringList>("news");

        const QStringList both{"Al Ames has turned 26 years old.", "Your student Stu Dent has turned 19 years old."};
        QTest::newRow("29 February of a leap year") << QDate(1988, 2, 29) << QDate(2012, 2, 29) << both;
        QTest::newRow("28 February of a common year passes him by")
            << QDate(1988, 2, 29) << QDate(2013, 2, 28) << QStringList();
        QTest::newRow("a birthday in summer") << QDate(1990, 7, 4) << QDate(2015, 7, 4) << both;
        QTest::newRow("the day before") << QDate(1990, 7, 4) << QDate(2015, 7, 3) << QStringList();
    }

    void birthdays()
    {
        QFETCH(QDate, born);
        QFETCH(QDate, day);
        QFETCH(QStringList, news);
        Random::useTestClock(4);
        Entity_GymFighter fighter(bornOn(born, 25, 50));
        fighter.setText(F::FirstName, "Al");
        fighter.setText(F::LastName, "Ames");
        Entity_Fighter student = bornOn(born, 18, 50);
        student.setText(F::FirstName, "Stu");
        student.setText(F::LastName, "Dent");
        QList<Entity_GymFighter> fighters{fighter};
        QList<Entity_Fighter> students{student};
        QStringList lines;
        GymRoutine::celebrateBirthdays(fighters, students, day, lines);

        QCOMPARE(lines, news);
        const bool birthday = !news.isEmpty();
        QCOMPARE(fighters[0].number(F::Age), birthday ? 26 : 25);
        QCOMPARE(students[0].number(F::Age), birthday ? 19 : 18);
        for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a) {
            QCOMPARE(fighters[0].number(F::Number(a)), 50);
            // a student of 18 gains 1 to 3 in every attribute on his birthday
            QCOMPARE(students[0].number(F::Number(a)) > 50, birthday);
        }
    }
    // Over many birthdays the changes fill the row's range from end to end and never leave it;
    // the numbers beyond the attributes stay as they were, and 99 and 0 stay in range.
    void growthByAge_data() { TableRows::add(growths); }
    void growthByAge()
    {
        const Growth &row = TableRows::current(growths);
        int lowest = 99;
        int highest = -99;
        for (quint32 seed = 1; seed <= 20; ++seed) {
            Random::useTestClock(seed);
            Entity_Fighter man = bornOn(today, row.ageBefore, 50);
            man.setNumber(F::RankingScore, 4000);
            man.developOneYear();
            QCOMPARE(man.number(F::Age), row.ageBefore + 1);
            for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a) {
                lowest = qMin(lowest, man.number(F::Number(a)) - 50);
                highest = qMax(highest, man.number(F::Number(a)) - 50);
            }
            QCOMPARE(man.number(F::RankingScore), 4000);
        }
        QCOMPARE(lowest, row.least);
        QCOMPARE(highest, row.most);
        for (const auto &[ageBefore, value] : {std::pair(19, 99), std::pair(40, 0)}) {
            Entity_Fighter man = bornOn(today, ageBefore, value);
            man.developOneYear();
            for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
                QCOMPARE(man.number(F::Number(a)), value);
        }
    }

    void equipmentUpgrade_data() { TableRows::add(upgrades); }
    void equipmentUpgrade()
    {
        const Upgrade &row = TableRows::current(upgrades);
        Entity_Gym gym = gymAt(row.money, row.level);
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
        Entity_Gym gym = gymAt(0, 0, row.points, row.label);
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
        QCOMPARE(gymAt(0, 0, 100, "Unknown").studentFee(), 50);
        QCOMPARE(gymAt(0, 0, 101, "Local Hangout").studentFee(), 70);
        QCOMPARE(gymAt(0, 0, 901, "Legendary").studentFee(), 230);
    }

    void managerReputation_data() { TableRows::add(reputations); }
    void managerReputation()
    {
        const Reputation &row = TableRows::current(reputations);
        Entity_Manager manager = managerAt(row.value, row.charisma);
        QCOMPARE(manager.gainReputation(row.titleFight), row.levelUp);
        QCOMPARE(manager.value(M::ReputationValue), row.valueAfter);
        QCOMPARE(manager.text(M::ManagerReputation), QString(row.label));
    }

    void intuitionTexts_data() { TableRows::add(readings); }
    void intuitionTexts()
    {
        const Reading &row = TableRows::current(readings);
        const Entity_Manager manager = managerAt(0, 0, row.intuition);
        QCOMPARE(manager.learningSpeedText(row.value), QString(row.learning));
        QCOMPARE(manager.fatigueText(row.value), QString(row.fatigue));
    }
};

QTEST_GUILESS_MAIN(tst_GymRoutine)
#include "tst_gymroutine.moc"
