#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"
#include "fighters/ReputationScale.h"

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

} // namespace

class tst_GymManager : public QObject
{
    Q_OBJECT

private slots:
    void equipmentUpgrade_data()
    {
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("equipment");
        QTest::addColumn<bool>("upgraded");
        QTest::addColumn<int>("moneyAfter");

        QTest::newRow("1000 buys the first level") << 1000 << 0 << 3 << true << 0;
        QTest::newRow("from level 9") << 500000 << 9 << 3 << true << 0;
        QTest::newRow("level 10 is final") << 9000000 << 10 << 3 << false << 9000000;
        QTest::newRow("the last piece") << 1000 << 0 << 20 << true << 0;
        QTest::newRow("no piece 21") << 1000 << 0 << 21 << false << 1000;
    }

    void equipmentUpgrade()
    {
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(int, equipment);
        QFETCH(bool, upgraded);
        QFETCH(int, moneyAfter);
        Entity_Gym gym = gymWith(money, level);
        const int levelBefore = gym.equipmentLevel(equipment);
        QCOMPARE(gym.upgradeEquipment(equipment), upgraded);
        QCOMPARE(gym.money(), moneyAfter);
        QCOMPARE(gym.equipmentLevel(equipment), levelBefore + (upgraded ? 1 : 0));
        QCOMPARE(gym.ledgerEntry(G::UpgradeCosts), money - moneyAfter);
    }

    void prestige_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("win");
        QTest::addColumn<bool>("big");
        QTest::addColumn<int>("pointsAfter");
        QTest::addColumn<QString>("labelAfter");

        QTest::newRow("a defeat drops below 101") << 101 << "Local Hangout" << false << false << 99 << "Unknown";
        QTest::newRow("a win climbs over 100") << 99 << "Unknown" << true << false << 107 << "Local Hangout";
        QTest::newRow("100 is still unknown") << 92 << "Unknown" << true << false << 100 << "Unknown";
        QTest::newRow("a knock-out stops at 1000") << 995 << "Legendary" << true << true << 1000 << "Legendary";
        QTest::newRow("a knock-out defeat") << 300 << "Amateur Level" << false << true << 295 << "Amateur Level";
        QTest::newRow("0 is the floor") << 3 << "Unknown" << false << true << 0 << "Unknown";
        QTest::newRow("legendary falls at 900") << 902 << "Legendary" << false << false << 900 << "Elite";
    }

    void prestige()
    {
        QFETCH(int, points);
        QFETCH(QString, label);
        QFETCH(bool, win);
        QFETCH(bool, big);
        QFETCH(int, pointsAfter);
        QFETCH(QString, labelAfter);
        Entity_Gym gym = gymWith(0, 0, points, label);
        if (win)
            gym.gainPrestige(big);
        else
            gym.losePrestige(big);
        QCOMPARE(gym.value(G::PrestigePoints), pointsAfter);
        QCOMPARE(gym.text(G::GymPrestige), labelAfter);
    }

    void labelTables_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("gym");
        QTest::addColumn<QString>("manager");
        QTest::addColumn<QString>("fighter");
        QTest::addColumn<int>("fee");

        // the borders of the first and the last label, the same on all three scales
        QTest::newRow("100") << 100 << "Unknown"
                             << "Unknown"
                             << "Unknown" << 50;
        QTest::newRow("101") << 101 << "Local Hangout"
                             << "Inexperienced"
                             << "Local Fighter" << 70;
        QTest::newRow("900") << 900 << "Elite"
                             << "Elite"
                             << "International Superstar" << 210;
        QTest::newRow("901") << 901 << "Legendary"
                             << "Legendary"
                             << "Legendary" << 230;
    }

    void labelTables()
    {
        QFETCH(int, points);
        QFETCH(QString, gym);
        QFETCH(QString, manager);
        QFETCH(QString, fighter);
        QFETCH(int, fee);
        QCOMPARE(ReputationScale::label(ReputationScale::Gym, points), gym);
        QCOMPARE(ReputationScale::label(ReputationScale::Manager, points), manager);
        QCOMPARE(ReputationScale::label(ReputationScale::Fighter, points), fighter);
        // the position of the gym's label sets the fee of a student
        QCOMPARE(gymWith(0, 0, points, gym).studentFee(), fee);
    }

    void managerReputation_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("charisma");
        QTest::addColumn<bool>("titleFight");
        QTest::addColumn<int>("valueAfter");
        QTest::addColumn<bool>("levelUp");
        QTest::addColumn<QString>("label");

        QTest::newRow("95 with Charisma 1 rises to 105") << 95 << 1 << false << 105 << true << "Inexperienced";
        QTest::newRow("to exactly 100 is no rise") << 90 << 0 << false << 100 << false << "Unknown";
        QTest::newRow("a title fight into the next band") << 190 << 10 << true << 220 << true << "Local Name";
        QTest::newRow("the ceiling") << 995 << 10 << true << 1000 << false << "Unknown";
        QTest::newRow("into the last band") << 895 << 0 << false << 905 << true << "Legendary";
    }

    void managerReputation()
    {
        QFETCH(int, value);
        QFETCH(int, charisma);
        QFETCH(bool, titleFight);
        QFETCH(int, valueAfter);
        QFETCH(bool, levelUp);
        QFETCH(QString, label);
        Entity_Manager manager = managerWith(value, charisma);
        QCOMPARE(manager.gainReputation(titleFight), levelUp);
        QCOMPARE(manager.value(M::ReputationValue), valueAfter);
        QCOMPARE(manager.text(M::ManagerReputation), label); // a label moves only with a level up
    }

    // what Intuition lets the user read of his own men
    void intuitionTexts_data()
    {
        QTest::addColumn<int>("intuition");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("learning");
        QTest::addColumn<QString>("fatigue");

        QTest::newRow("intuition 4 reads nothing") << 4 << 0 << "Can't Tell"
                                                   << "Can't Tell";
        QTest::newRow("intuition 5 reads fatigue") << 5 << 0 << "Can't Tell"
                                                   << "Peak";
        QTest::newRow("intuition 7") << 7 << 4 << "Can't Tell"
                                     << "Exhausted";
        QTest::newRow("intuition 8 reads learning") << 8 << 2 << "Fast"
                                                    << "Normal";
        QTest::newRow("out of range") << 10 << 7 << "Average"
                                      << "Normal";
    }

    void intuitionTexts()
    {
        QFETCH(int, intuition);
        QFETCH(int, value);
        QFETCH(QString, learning);
        QFETCH(QString, fatigue);
        const Entity_Manager manager = managerWith(0, 0, intuition);
        QCOMPARE(manager.learningSpeedText(value), learning);
        QCOMPARE(manager.fatigueText(value), fatigue);
    }
};

QTEST_GUILESS_MAIN(tst_GymManager)
#include "tst_gymmanager.moc"
