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
    void aNewGym()
    {
        const Entity_Gym gym;
        QCOMPARE(gym.money(), 10000);
        QCOMPARE(gym.value(G::StudentSlots), 3);
        QCOMPARE(gym.value(G::FighterSlots), 1);
        QCOMPARE(gym.text(G::GymPrestige), QString("Unknown"));
        QCOMPARE(gym.studentFee(), 50);
        QCOMPARE(Entity_Manager().text(M::ManagerReputation), QString("Unknown"));
    }

    void equipmentUpgrade_data()
    {
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("equipment");
        QTest::addColumn<bool>("upgraded");
        QTest::addColumn<int>("moneyAfter");

        QTest::newRow("1000 buys the first level") << 1000 << 0 << 3 << true << 0;
        QTest::newRow("999 doesn't") << 999 << 0 << 3 << false << 999;
        QTest::newRow("from level 1") << 3500 << 1 << 3 << true << 0;
        QTest::newRow("from level 8") << 300000 << 8 << 3 << true << 50000;
        QTest::newRow("from level 9") << 500000 << 9 << 3 << true << 0;
        QTest::newRow("level 10 is final") << 9000000 << 10 << 3 << false << 9000000;
        QTest::newRow("the last piece") << 1000 << 0 << 20 << true << 0;
        QTest::newRow("no piece 21") << 1000 << 0 << 21 << false << 1000;
        QTest::newRow("no piece -1") << 1000 << 0 << -1 << false << 1000;
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

    // the slots of each level, from a new gym to level 10
    void gymUpgradesAllTheWay()
    {
        Entity_Gym gym = gymWith(6000000);
        const QList<QPair<int, int>> places = {{4, 1},  {5, 2},  {7, 3},  {8, 4},  {9, 5},
                                               {10, 6}, {11, 7}, {12, 8}, {13, 9}, {15, 10}};
        const QList<int> prices = {5000, 10000, 25000, 50000, 150000, 500000, 750000, 1000000, 1500000, 2000000};
        for (int level = 0; level < 10; ++level) {
            const int before = gym.money();
            QVERIFY(gym.upgradeGym());
            QCOMPARE(before - gym.money(), prices[level]);
            QCOMPARE(gym.value(G::GymLevel), level + 1);
            QCOMPARE(gym.value(G::StudentSlots), places[level].first);
            QCOMPARE(gym.value(G::FighterSlots), places[level].second);
        }
        QVERIFY(!gym.upgradeGym());
        QCOMPARE(gym.value(G::GymLevel), 10);

        Entity_Gym poor = gymWith(4999);
        QVERIFY(!poor.upgradeGym());
        QVERIFY(poor == gymWith(4999));
    }

    void theBooksOfTheMonth()
    {
        Entity_Gym gym = gymWith(100);
        gym.chargeTraining(150);
        gym.addIncome(300, true);
        gym.addIncome(70, false);
        QVERIFY(gym.upgradeEquipment(0) == false);
        QCOMPARE(gym.money(), 320);
        QCOMPARE(gym.revenueThisMonth(), 220);
        gym.rollMonth();
        QCOMPARE(gym.ledger(), QList<int>({0, 0, 0, 0, 150, 0, 70, 300}));
        QCOMPARE(gym.revenueThisMonth(), 0);
        QCOMPARE(gym.revenueLastMonth(), 220);
        gym.chargeTraining(400); // the money may go below 0
        QCOMPARE(gym.money(), -80);
        gym.rollMonth();
        QCOMPARE(gym.ledger(), QList<int>({0, 0, 0, 0, 400, 0, 0, 0}));
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
        QTest::newRow("legendary above 900") << 905 << "Legendary" << false << false << 903 << "Legendary";
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
        QTest::newRow("105 stays in its band") << 105 << 1 << false << 115 << false << "Unknown";
        QTest::newRow("a title fight adds 15") << 0 << 10 << true << 30 << false << "Unknown";
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

    void managerRecordAndTitles()
    {
        Entity_Manager manager;
        manager.addWin();
        manager.addWin();
        manager.addLoss();
        manager.removeFromActiveRecord(1, 1);
        QCOMPARE(manager.values().mid(M::OverallWins), QList<int>({2, 1, 1, 0}));

        const QDate won(2011, 4, 2);
        const QDate lost(2012, 8, 9);
        manager.addTitle(won, "G-1 World Championship");
        manager.addTitle(won, "G-1 World Championship"); // an open reign takes no second entry
        manager.addTitle(won, "GKO Grand Prix 2011");
        manager.closeTitle(lost, "GKO Grand Prix 2011"); // tournaments have no reign to end
        manager.closeTitle(lost, "G-1 World Championship");
        manager.addTitle(QDate(2013, 1, 5), "G-1 World Championship");
        QCOMPARE(manager.titleList(),
                 QStringList({"G-1 World Championship - from Sat Apr 2 2011 until Thu Aug 9 2012",
                              "GKO Grand Prix 2011", "G-1 World Championship - from Sat Jan 5 2013"}));

        QList<int> skills;
        for (int i = 1; i <= 18; ++i)
            skills.append(i % 11);
        manager.setSkills(skills);
        QCOMPARE(manager.values().mid(M::Punch, 18), skills);
        QCOMPARE(manager.value(M::ReputationValue), 0);
        QCOMPARE(manager.value(M::OverallWins), 2);
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
        QTest::newRow("value 1") << 10 << 1 << "Average"
                                 << "Great";
        QTest::newRow("value 3") << 10 << 3 << "Average"
                                 << "Tired";
        QTest::newRow("out of range") << 10 << 7 << "Average"
                                      << "Normal";
        QTest::newRow("below range") << 10 << -1 << "Average"
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
