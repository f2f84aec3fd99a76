#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/Random.h"
#include "fighters/SkillTable.h"
#include "fighters/TrainingPlan.h"

#include <QtTest>

using F = Entity_Fighter;
using S = SkillTable;

namespace {

const QDate today(2012, 3, 14);
constexpr int HeavyBag = 1;
// the heavy bag is worked by the manager's Punch; its skills, each group in its order
const QList<int> heavyBagMain{S::Cross, S::BodyPunch, S::Jab};
const QList<int> heavyBagSide{S::AttackPower, S::KillerInstinct};
const QList<int> heavyBagFading{S::Counter, S::Dodge, S::Reaction};

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

QList<int> groupOf(const QString &name)
{
    return name == "main" ? heavyBagMain : name == "side" ? heavyBagSide : heavyBagFading;
}

} // namespace

class tst_Training : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    // What one day on the heavy bag adds to (takes from) each counter of a group. Over many days
    // the amounts fill their range from end to end and never leave it.
    void dailyAmounts_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<int>("equipment");
        QTest::addColumn<int>("learningSpeed");
        QTest::addColumn<int>("fatigue");
        QTest::addColumn<QString>("group");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");

        QTest::newRow("main, the best trainer and bag, a fast learner") << 10 << 10 << 2 << 0 << "main" << 12 << 31;
        QTest::newRow("main, 9 fatigue still rolls below 20") << 10 << 0 << 0 << 9 << "main" << 0 << 19;
        QTest::newRow("main, 10 fatigue rolls below 19") << 10 << 0 << 0 << 10 << "main" << 0 << 18;
        QTest::newRow("main, 29 fatigue rolls below 18") << 10 << 0 << 0 << 29 << "main" << 0 << 17;
        QTest::newRow("main, at 100 fatigue the roll is halved") << 10 << 0 << 0 << 100 << "main" << 0 << 9;
        QTest::newRow("main, a trainer of 5") << 5 << 3 << 1 << 0 << "main" << 4 << 13;
        QTest::newRow("main, no trainer, no bag, a slow learner") << 0 << 0 << 0 << 0 << "main" << 0 << 0;
        QTest::newRow("side, the best trainer, a fast learner") << 10 << 10 << 2 << 0 << "side" << 2 << 11;
        QTest::newRow("side, the bag doesn't count") << 10 << 0 << 2 << 0 << "side" << 2 << 11;
        QTest::newRow("side, at 100 fatigue") << 10 << 0 << 0 << 100 << "side" << 0 << 4;
        QTest::newRow("fading, no trainer, no bag") << 0 << 0 << 0 << 0 << "fading" << -11 << -6;
        QTest::newRow("fading, the best trainer and bag") << 10 << 10 << 2 << 0 << "fading" << -1 << -1;
        QTest::newRow("fading doesn't tire") << 0 << 0 << 0 << 100 << "fading" << -11 << -6;
    }

    void dailyAmounts()
    {
        QFETCH(int, skill);
        QFETCH(int, equipment);
        QFETCH(int, learningSpeed);
        QFETCH(int, fatigue);
        QFETCH(QString, group);
        QFETCH(int, least);
        QFETCH(int, most);
        int lowest = 1000;
        int highest = -1000;
        Random::useTestClock(5);
        for (int day = 0; day < 200; ++day) {
            Entity_GymFighter man = trainee(HeavyBag, learningSpeed, fatigue);
            QString report;
            man.dailyTraining(today, managerWith(skill), gymWith(100000, equipment), report);
            for (int s : groupOf(group)) {
                lowest = qMin(lowest, man.skillProgress[s]);
                highest = qMax(highest, man.skillProgress[s]);
            }
        }
        QCOMPARE(lowest, least);
        QCOMPARE(highest, most);
    }

    // A skill levels exactly when its counter reaches the limit: with no trainer and no bag a
    // main or side skill gains exactly the learning speed, and with the best of both a fading
    // skill loses exactly 1.
    void levelsAtTheLimit_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<int>("equipment");
        QTest::addColumn<int>("learningSpeed");
        QTest::addColumn<int>("skillTrained");
        QTest::addColumn<int>("counter");
        QTest::addColumn<int>("counterAfter");
        QTest::addColumn<int>("attributeMove");
        QTest::addColumn<QString>("line");

        QTest::newRow("main: 199 and 1 is full") << 0 << 0 << 1 << int(S::Cross) << 199 << 0 << 1 << "Cross level up!";
        QTest::newRow("main: 198 and 1 is not") << 0 << 0 << 1 << int(S::Cross) << 198 << 199 << 0 << "";
        QTest::newRow("side: 199 and 1 is full, in silence but for the level")
            << 0 << 0 << 1 << int(S::KillerInstinct) << 199 << 0 << 1 << "Killer Instinct level up!";
        QTest::newRow("side: 198 and 1 is not") << 0 << 0 << 1 << int(S::AttackPower) << 198 << 199 << 0 << "";
        QTest::newRow("fading: -149 less 1 is the bottom")
            << 10 << 10 << 0 << int(S::Reaction) << -149 << 0 << -1 << "Reaction level down.";
        QTest::newRow("fading: -148 less 1 is not") << 10 << 10 << 0 << int(S::Counter) << -148 << -149 << 0 << "";
        // a trainer of 3 loses at least 1 here, and the news shows the level but not the loss
        QTest::newRow("fading: a trainer of 3 still writes the level down")
            << 3 << 10 << 0 << int(S::Dodge) << -149 << 0 << -1 << "Dodge level down.";
    }

    void levelsAtTheLimit()
    {
        QFETCH(int, skill);
        QFETCH(int, equipment);
        QFETCH(int, learningSpeed);
        QFETCH(int, skillTrained);
        QFETCH(int, counter);
        QFETCH(int, counterAfter);
        QFETCH(int, attributeMove);
        QFETCH(QString, line);
        Random::useTestClock(9);
        Entity_GymFighter man = trainee(HeavyBag, learningSpeed);
        man.skillProgress[skillTrained] = counter;
        QString report;
        man.dailyTraining(today, managerWith(skill), gymWith(100000, equipment), report);
        QCOMPARE(man.skillProgress[skillTrained], counterAfter);
        const QList<F::Number> set = S::attributes(skillTrained);
        for (F::Number a : set)
            QCOMPARE(man.number(a), 50 + attributeMove);
        const QStringList lines = report.split('\n');
        QCOMPARE(lines.filter("level").size(), line.isEmpty() ? 0 : 1);
        if (!line.isEmpty())
            QVERIFY2(lines.contains(line), qPrintable(report));
    }

    // The news shows a side skill's gain only under a trainer above 7, and a fading skill's loss
    // only under one above 3; the main skills always.
    void newsLinesByTrainer_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<bool>("sideShown");
        QTest::addColumn<bool>("fadingShown");

        QTest::newRow("3 shows neither") << 3 << false << false;
        QTest::newRow("4 shows the losses") << 4 << false << true;
        QTest::newRow("7 shows no side gains") << 7 << false << true;
        QTest::newRow("8 shows both") << 8 << true << true;
    }

    void newsLinesByTrainer()
    {
        QFETCH(int, skill);
        QFETCH(bool, sideShown);
        QFETCH(bool, fadingShown);
        Random::useTestClock(4);
        Entity_GymFighter man = trainee(HeavyBag, 1);
        QString report;
        man.dailyTraining(today, managerWith(skill), gymWith(100000, 2), report);
        const QStringList lines = report.split('\n');
        QCOMPARE(lines.first(), QString("Al Ames trained on the heavy bag."));
        QStringList expected;
        for (int s : heavyBagMain)
            expected << S::name(s) + " +" + QString::number(man.skillProgress[s]);
        if (sideShown) {
            for (int s : heavyBagSide)
                expected << S::name(s) + " +" + QString::number(man.skillProgress[s]);
        }
        if (fadingShown) {
            for (int s : heavyBagFading)
                expected << S::name(s) + " -" + QString::number(-man.skillProgress[s]);
        }
        QCOMPARE(lines.mid(1), expected);
    }

    // Every day tires him by 2, rest takes 10 first; from 99 on a day of work leaves him at 100.
    void fatigue_data()
    {
        QTest::addColumn<int>("plan");
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("band");

        QTest::newRow("a fresh man works") << HeavyBag << 1000 << 0 << 2 << 0;
        QTest::newRow("20 is still Peak") << HeavyBag << 1000 << 18 << 20 << 0;
        QTest::newRow("21 is Great") << HeavyBag << 1000 << 19 << 21 << 1;
        QTest::newRow("60 is Normal") << HeavyBag << 1000 << 58 << 60 << 2;
        QTest::newRow("61 is Tired") << HeavyBag << 1000 << 59 << 61 << 3;
        QTest::newRow("81 is Exhausted") << HeavyBag << 1000 << 79 << 81 << 4;
        QTest::newRow("99 goes to 100") << HeavyBag << 1000 << 99 << 100 << 4;
        QTest::newRow("100 goes no further") << HeavyBag << 1000 << 100 << 100 << 4;
        QTest::newRow("rest at 100 ends at 92") << TrainingPlan::Rest << 1000 << 100 << 92 << 4;
        QTest::newRow("rest at 62 ends Normal") << TrainingPlan::Rest << 1000 << 62 << 54 << 2;
        QTest::newRow("rest at 10 ends at 2") << TrainingPlan::Rest << 1000 << 10 << 2 << 0;
        QTest::newRow("rest at 5 ends at 2") << TrainingPlan::Rest << 1000 << 5 << 2 << 0;
    }

    void fatigue()
    {
        QFETCH(int, plan);
        QFETCH(int, money);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(int, band);
        Random::useTestClock(1);
        Entity_GymFighter man = trainee(plan, 1, before);
        QString report;
        man.dailyTraining(today, managerWith(5), gymWith(money, 2), report);
        QCOMPARE(man.fatigue, after);
        QCOMPARE(man.fatigueBand, band);
    }

    // The day's cost is 50 for each level of the plan's own equipment; a gym that has less
    // money than that sends him home to rest for free.
    void dayOnAPlan_data()
    {
        QTest::addColumn<int>("plan");
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level"); // of the plan's equipment; every other piece stands at 0
        QTest::addColumn<int>("cost");
        QTest::addColumn<QString>("log");
        QTest::addColumn<QString>("news");

        QTest::newRow("money that just pays") << HeavyBag << 100 << 2 << 100 << "Trained on the heavy bag."
                                              << "Al Ames trained on the heavy bag.";
        QTest::newRow("a dollar short") << HeavyBag << 99 << 2 << 0 << "Rested today due to lack of funds."
                                        << "Al Ames rested today due to lack of funds.";
        QTest::newRow("bare equipment costs nothing to a gym with 0")
            << HeavyBag << 0 << 0 << 0 << "Trained on the heavy bag."
            << "Al Ames trained on the heavy bag.";
        QTest::newRow("a gym in debt cannot pay even bare equipment")
            << HeavyBag << -1 << 0 << 0 << "Rested today due to lack of funds."
            << "Al Ames rested today due to lack of funds.";
        QTest::newRow("sparring uses the seventh piece") << 7 << 1000 << 4 << 200 << "Sparred today."
                                                         << "Al Ames sparred today.";
        QTest::newRow("the rattan sticks use the last piece")
            << 21 << 1000 << 10 << 500 << "Trained using rattan sticks."
            << "Al Ames trained using rattan sticks.";
        QTest::newRow("rest") << TrainingPlan::Rest << 1000 << 5 << 0 << "Rested today."
                              << "Al Ames rested today.";
        QTest::newRow("a plan of 22 from a damaged file is rest") << 22 << 1000 << 5 << 0 << "Rested today."
                                                                  << "Al Ames rested today.";
        QTest::newRow("so is a plan below 0") << -1 << 1000 << 5 << 0 << "Rested today."
                                              << "Al Ames rested today.";
    }

    void dayOnAPlan()
    {
        QFETCH(int, plan);
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(int, cost);
        QFETCH(QString, log);
        QFETCH(QString, news);
        Random::useTestClock(6);
        Entity_GymFighter man = trainee(plan, 1);
        man.trainingLog = {"\nTue Mar 13 2012 - Ran today."};
        QList<int> gym = gymWith(money, 0);
        if (TrainingPlan::isTraining(plan))
            gym[Entity_Gym::FirstEquipment + plan - 1] = level;
        QString report;
        QCOMPARE(man.dailyTraining(today, managerWith(5), gym, report), cost);
        QCOMPARE(man.trainingLog, QStringList({"\nTue Mar 13 2012 - Ran today.", "\nWed Mar 14 2012 - " + log}));
        QCOMPARE(report.section('\n', 0, 0), news);
        const bool trained = !log.startsWith("Rested");
        // a day of rest moves no counter and writes no skill line
        bool anyCounterMoved = false;
        for (int counter : man.skillProgress)
            anyCounterMoved = anyCounterMoved || counter != 0;
        QCOMPARE(anyCounterMoved, trained);
        QCOMPARE(report.contains('\n'), trained);
    }

    void trimTrainingLog_data()
    {
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<QStringList>("trimmed");

        QTest::newRow("an empty log stays empty") << QStringList() << QStringList();
        QTest::newRow("one line stays") << QStringList{"\na"} << QStringList{"\na"};
        QTest::newRow("the last line is kept") << QStringList{"\na", "\nb", "\nc"} << QStringList{"\nc"};
    }

    void trimTrainingLog()
    {
        QFETCH(QStringList, log);
        QFETCH(QStringList, trimmed);
        Entity_GymFighter man;
        man.trainingLog = log;
        man.trimTrainingLog();
        QCOMPARE(man.trainingLog, trimmed);
    }

    // Each plan works with its own trainer's skill: a manager good at nothing else gives the
    // main skills of his plan gains beyond the bare equipment.
    void plansUseTheirTrainer_data()
    {
        QTest::addColumn<int>("plan");
        QTest::addColumn<int>("trainer");

        QTest::newRow("heavy bag: Punch") << HeavyBag << int(Entity_Manager::Punch);
        QTest::newRow("thai pads: Clinch Off.") << 6 << int(Entity_Manager::ClinchOffense);
        QTest::newRow("grappling: Clinch Def.") << 9 << int(Entity_Manager::ClinchDefense);
        QTest::newRow("video study: Intelligence") << 18 << int(Entity_Manager::Intelligence);
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
};

QTEST_GUILESS_MAIN(tst_Training)
#include "tst_training.moc"
