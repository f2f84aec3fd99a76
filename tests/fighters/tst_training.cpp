#include "TableRows.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/Random.h"
#include "fighters/SkillTable.h"
#include "fighters/TrainingPlan.h"

#include <QtTest>

#include <algorithm>

using F = Entity_Fighter;
using S = SkillTable;

namespace {

const QDate today(2012, 3, 14);
constexpr int HeavyBag = 1;
constexpr int Rest = TrainingPlan::Rest;
// the heavy bag is worked by the manager's Punch; its skills, each group in its order
const QList<int> heavyBag[] = {
    {S::Cross, S::BodyPunch, S::Jab}, {S::AttackPower, S::KillerInstinct}, {S::Counter, S::Dodge, S::Reaction}};
enum Group { Main, Side, Fading };

Entity_GymFighter trainee(int plan, int learningSpeed = 0, int fatigue = 0)
{
    Entity_GymFighter man;
    man.setText(F::FirstName, "Al");
    man.setText(F::LastName, "Ames");
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        man.setNumber(F::Number(a), 50);
    man.trainingPlan = plan;
    man.learningSpeed = learningSpeed;
    man.fatigue = fatigue;
    man.fatigueBand = Entity_GymFighter::fatigueBandOf(fatigue);
    return man;
}

// a manager whose every training skill stands at `skill`
QList<int> managerWith(int skill)
{
    QList<int> values(Entity_Manager::ValueCount, 0);
    for (int v = Entity_Manager::Punch; v <= Entity_Manager::Discipline; ++v)
        values[v] = skill;
    return values;
}

// a gym with this money whose every piece of equipment stands at `level`
QList<int> gymWith(int money, int level)
{
    QList<int> values(Entity_Gym::ValueCount, 0);
    values[Entity_Gym::Money] = money;
    for (int e = 0; e < Entity_Gym::EquipmentCount; ++e)
        values[Entity_Gym::FirstEquipment + e] = level;
    return values;
}

// one day on the heavy bag: the least and the most that it adds to (takes from) a group
struct Amount {
    const char *name;
    int skill, equipment, learningSpeed, fatigue;
    Group group;
    int least, most;
};
const Amount amounts[] = {
    {"main, the best trainer and bag, a fast learner", 10, 10, 2, 0, Main, 12, 31},
    {"main, 9 fatigue still rolls below 20", 10, 0, 0, 9, Main, 0, 19},
    {"main, 10 fatigue rolls below 19", 10, 0, 0, 10, Main, 0, 18},
    {"main, at 100 fatigue the roll is halved", 10, 0, 0, 100, Main, 0, 9},
    {"side, the bag doesn't count", 10, 0, 2, 0, Side, 2, 11},
    {"fading, no trainer, no bag", 0, 0, 0, 0, Fading, -11, -6},
};

// a skill levels exactly when its counter reaches the limit
struct Limit {
    const char *name;
    int skill, equipment, learningSpeed, trained, counter, counterAfter, attributeMove;
    const char *line;
};
const Limit limits[] = {
    {"main: 199 and 1 is full", 0, 0, 1, S::Cross, 199, 0, 1, "Cross level up!"},
    {"main: 198 and 1 is not", 0, 0, 1, S::Cross, 198, 199, 0, ""},
    {"side: 199 and 1 is full", 0, 0, 1, S::KillerInstinct, 199, 0, 1, "Killer Instinct level up!"},
    {"fading: -149 less 1 is the bottom", 10, 10, 0, S::Reaction, -149, 0, -1, "Reaction level down."},
    {"fading: -148 less 1 is not", 10, 10, 0, S::Counter, -148, -149, 0, ""},
    // a trainer of 3 loses at least 1 here, and the news shows the level but not the loss
    {"fading: a trainer of 3 still writes the level down", 3, 10, 0, S::Dodge, -149, 0, -1, "Dodge level down."},
};

// every day tires him by 2, rest takes 10 first; from 99 on a day of work leaves him at 100
struct Tiring {
    const char *name;
    int plan, before, after, band;
};
const Tiring tirings[] = {
    {"20 is still Peak", HeavyBag, 18, 20, 0}, {"21 is Great", HeavyBag, 19, 21, 1},
    {"99 goes to 100", HeavyBag, 99, 100, 4},  {"rest at 62 ends Normal", Rest, 62, 54, 2},
    {"rest at 5 ends at 2", Rest, 5, 2, 0},
};

// 50 a day for each level of the plan's own equipment; a gym short of it sends him home to rest
struct Day {
    const char *name;
    int plan, money, level, cost;
    const char *log, *news;
};
const Day days[] = {
    {"money that just pays", HeavyBag, 100, 2, 100, "Trained on the heavy bag.", "Al Ames trained on the heavy bag."},
    {"a dollar short", HeavyBag, 99, 2, 0, "Rested today due to lack of funds.",
     "Al Ames rested today due to lack of funds."},
    {"the rattan sticks use the last piece", 21, 1000, 10, 500, "Trained using rattan sticks.",
     "Al Ames trained using rattan sticks."},
    {"a plan of 22 from a damaged file is rest", 22, 1000, 5, 0, "Rested today.", "Al Ames rested today."},
    {"so is a plan below 0", -1, 1000, 5, 0, "Rested today.", "Al Ames rested today."},
};

} // namespace

class tst_Training : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    // Over many days the amounts fill their range from end to end and never leave it.
    void dailyAmounts_data() { TableRows::add(amounts); }
    void dailyAmounts()
    {
        const Amount &row = TableRows::current(amounts);
        int lowest = 1000;
        int highest = -1000;
        Random::useTestClock(5);
        for (int day = 0; day < 200; ++day) {
            Entity_GymFighter man = trainee(HeavyBag, row.learningSpeed, row.fatigue);
            QString report;
            man.dailyTraining(today, managerWith(row.skill), gymWith(100000, row.equipment), report);
            for (int s : heavyBag[row.group]) {
                lowest = qMin(lowest, man.skillProgress[s]);
                highest = qMax(highest, man.skillProgress[s]);
            }
        }
        QCOMPARE(lowest, row.least);
        QCOMPARE(highest, row.most);
    }

    void levelsAtTheLimit_data() { TableRows::add(limits); }
    void levelsAtTheLimit()
    {
        const Limit &row = TableRows::current(limits);
        Random::useTestClock(9);
        Entity_GymFighter man = trainee(HeavyBag, row.learningSpeed);
        man.skillProgress[row.trained] = row.counter;
        QString report;
        man.dailyTraining(today, managerWith(row.skill), gymWith(100000, row.equipment), report);
        QCOMPARE(man.skillProgress[row.trained], row.counterAfter);
        for (F::Number a : S::attributes(row.trained))
            QCOMPARE(man.number(a), 50 + row.attributeMove);
        const QStringList lines = report.split('\n').filter("level");
        QCOMPARE(lines, *row.line ? QStringList{row.line} : QStringList{});
    }

    // The news shows a side skill's gain only under a trainer above 7, and a fading skill's loss
    // only under one above 3; the main skills always.
    void newsLinesByTrainer_data()
    {
        QTest::addColumn<int>("skill");
        QTest::newRow("3 shows neither") << 3;
        QTest::newRow("4 shows the losses") << 4;
        QTest::newRow("7 shows no side gains") << 7;
        QTest::newRow("8 shows both") << 8;
    }
    void newsLinesByTrainer()
    {
        QFETCH(int, skill);
        Random::useTestClock(4);
        Entity_GymFighter man = trainee(HeavyBag, 1);
        QString report;
        man.dailyTraining(today, managerWith(skill), gymWith(100000, 2), report);
        QStringList expected{"Al Ames trained on the heavy bag."};
        for (int group : {Main, Side, Fading}) {
            if ((group == Side && skill <= 7) || (group == Fading && skill <= 3))
                continue;
            for (int s : heavyBag[group])
                expected << S::name(s) + (group == Fading ? " -" : " +") + QString::number(qAbs(man.skillProgress[s]));
        }
        QCOMPARE(report.split('\n'), expected);
    }

    void fatigue_data() { TableRows::add(tirings); }
    void fatigue()
    {
        const Tiring &row = TableRows::current(tirings);
        Random::useTestClock(1);
        Entity_GymFighter man = trainee(row.plan, 1, row.before);
        QString report;
        man.dailyTraining(today, managerWith(5), gymWith(1000, 2), report);
        QCOMPARE(man.fatigue, row.after);
        QCOMPARE(man.fatigueBand, row.band);
    }

    void dayOnAPlan_data() { TableRows::add(days); }
    void dayOnAPlan()
    {
        const Day &row = TableRows::current(days);
        Random::useTestClock(6);
        Entity_GymFighter man = trainee(row.plan, 1);
        man.trainingLog = {"\nTue Mar 13 2012 - Ran today."};
        QList<int> gym = gymWith(row.money, 0);
        if (TrainingPlan::isTraining(row.plan))
            gym[Entity_Gym::FirstEquipment + row.plan - 1] = row.level;
        QString report;
        QCOMPARE(man.dailyTraining(today, managerWith(5), gym, report), row.cost);
        QCOMPARE(man.trainingLog,
                 QStringList({"\nTue Mar 13 2012 - Ran today.", QString("\nWed Mar 14 2012 - ") + row.log}));
        QCOMPARE(report.section('\n', 0, 0), row.news);
        // a day of rest moves no counter and writes no skill line
        const bool trained = !QString(row.log).startsWith("Rested");
        QCOMPARE(std::count(man.skillProgress.cbegin(), man.skillProgress.cend(), 0) < int(man.skillProgress.size()),
                 trained);
        QCOMPARE(report.contains('\n'), trained);
    }

    void trimTrainingLog()
    {
        Entity_GymFighter man;
        man.trimTrainingLog();
        QVERIFY(man.trainingLog.isEmpty());
        man.trainingLog = {"\na", "\nb", "\nc"};
        man.trimTrainingLog();
        QCOMPARE(man.trainingLog, QStringList{"\nc"});
    }

    // Each plan works with its own trainer's skill: a manager good at nothing else gives the
    // main skills of his plan gains beyond the bare equipment.
    void plansUseTheirTrainer_data()
    {
        QTest::addColumn<int>("plan");
        QTest::addColumn<int>("trainer");
        QTest::newRow("heavy bag: Punch") << HeavyBag << int(Entity_Manager::Punch);
        QTest::newRow("rattan sticks: Guard") << 21 << int(Entity_Manager::Guard);
    }
    void plansUseTheirTrainer()
    {
        QFETCH(int, plan);
        QFETCH(int, trainer);
        Random::useTestClock(8);
        for (int skill : {0, 10}) {
            QList<int> manager = managerWith(0);
            manager[trainer] = skill;
            int gained = 0;
            for (int day = 0; day < 20; ++day) {
                Entity_GymFighter man = trainee(plan);
                QString report;
                man.dailyTraining(today, manager, gymWith(100000, 0), report);
                for (int s : TrainingPlan::mainSkills(plan))
                    gained += man.skillProgress[s];
            }
            QCOMPARE(gained > 0, skill > 0);
        }
    }
    // a level past 99 or below 0 is the clamp's to mend; Hook and Cross share punchPower
    void levelsStayInRange()
    {
        Entity_GymFighter man = trainee(Rest);
        for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
            man.setNumber(F::Number(a), 99);
        man.skillProgress[S::Hook] = 250;
        QStringList lines;
        QVERIFY(man.checkLevelUp(S::Hook, lines));
        QCOMPARE(man.skillProgress[S::Hook], 0);
        QCOMPARE(man.number(F::HookPower), 100);
        man.levelUp(S::Cross);
        QCOMPARE(man.number(F::PunchPower), 101);
        QCOMPARE(man.levelUp(48), QString());
    }
};

QTEST_GUILESS_MAIN(tst_Training)
#include "tst_training.moc"
