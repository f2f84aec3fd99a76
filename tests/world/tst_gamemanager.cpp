#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "fighters/MatchStatus.h"

#include <QtTest>

using namespace WorldSamples;
using F = Entity_Fighter;

namespace {

const QDate today(2011, 3, 1);

// G-1 with a title and tonight's show with the user's man
World smallWorld()
{
    World w;
    QList<int> managerValues = w.manager.values();
    managerValues[Entity_Manager::ReputationValue] = 95;
    managerValues[Entity_Manager::Charisma] = 1;
    w.manager.unpack({"Mo", "Mack", "East Asia", "Japan", "Unknown"}, managerValues, {});
    w.fighters = {gymFighter(1050, "Gus", "Gray", 200, "G-1", 1, 1000)};
    w.bookings = {Entity_Booking(1050, "Gus Gray", "G-1: Gray vs. Ames", "G-1", today)};
    const Entity_Event tonight = bookedEvent(
        makeEvent("G-1: Gray vs. Ames", "G-1", today,
                  {slot("Championship Match", "Gus Gray", 1050, "Al Ames", 11, true)}, "G-1 World Championship"),
        true);
    w.organisations = {organisation("G-1", {tonight},
                                    {fighter(11, "Al", "Ames", 100, "G-1"), fighter(12, "Bo", "Bell", 200, "G-1"),
                                     fighter(13, "Cy", "Cole", 200, "G-1")},
                                    {{"G-1 World Championship", "Al Ames"}})};
    return w;
}

// a win raises the manager's reputation past 100, a defeat takes it below: the entry after the
// man's name; the money, the gym's prestige and the manager's reputation after it
struct Outcome {
    const char *name, *entry;
    int money, prestige, reputation;
};
const Outcome outcomes[] = {
    {"a knock-out win pays double", "KO(Knee) - Rd. 1(2:02) - G-1: G-1 Spring Gala", 12000, 116, 105},
    {"a decision win", "Split Decision - Rd. 3(3:00) - G-1: Gala", 12000, 108, 105},
    {"a title fight by its name", "Split Decision - Rd. 3(3:00) - G-1: Gala|G-1 World Championship", 12000, 108, 120},
    {"a knock-out defeat pays once", "TKO(Low Kick) - Rd. 2(1:00) - G-1: Gala", 11000, 95, 95},
    {"a decision defeat", "Majority Decision - Rd. 3(3:00) - G-1: Gala", 11000, 98, 95},
};

const QDate june(2011, 6, 8);
const QString belt = QStringLiteral("GKO World Championship");
const QString reign = belt + " - from Sat Jan 1 2011";

// Reto Meyer of the gym, perhaps GKO's world champion, perhaps on a card of GKO `showInDays`
// away, with Sami Kallio beside him; each has an offer open
World gymWorld(const QString &contract, int showInDays, bool champion)
{
    World w;
    w.nextId = 1200;
    w.currentDate = june;
    QList<int> managerValues = w.manager.values();
    managerValues[Entity_Manager::OverallWins] = 30;
    managerValues[Entity_Manager::OverallLosses] = 12;
    managerValues[Entity_Manager::ActiveWins] = 20;
    managerValues[Entity_Manager::ActiveLosses] = 9;
    w.manager.unpack({"Mo", "Mack", "East Asia", "Japan", "Unknown"}, managerValues,
                     champion ? QStringList{reign} : QStringList{});

    Entity_GymFighter reto = gymFighter(1101, "Reto", "Meyer", 900, contract, 2, 800);
    reto.setNumber(F::Wins, 11);
    reto.setNumber(F::Losses, 4);
    if (champion)
        reto.setTitleList({"GKO 2010 Grand Prix", reign});
    Entity_GymFighter sami = gymFighter(1102, "Sami", "Kallio", 1500, "Free Agent");
    sami.setNumber(F::Wins, 3);
    w.fighters = {reto, sami};

    QList<Entity_Event> calendar;
    if (showInDays >= 0) {
        const QDate night = june.addDays(showInDays);
        calendar << bookedEvent(makeEvent("GKO: Meyer vs. Roe", "GKO", night,
                                          {slot("Single Match", "Reto Meyer", 1101, "Ray Roe", 21, true)}),
                                true);
        w.bookings << Entity_Booking(1101, "Reto Meyer", "GKO: Meyer vs. Roe", "GKO", night);
    } else {
        w.bookings << Entity_Booking::emptyFor(1101, "Reto Meyer", QDate(1999, 1, 1));
    }
    w.bookings << Entity_Booking::emptyFor(1102, "Sami Kallio", QDate(1999, 1, 1));
    Entity_Org::Titles titles{{belt, champion ? "Reto Meyer" : "Vacant"}};
    w.organisations = {organisation("GKO", calendar, {fighter(21, "Ray", "Roe", 400, "GKO")}, titles)};
    w.offers = {Entity_Booking(1101, "Reto Meyer", "GKO Summer", "GKO", june.addDays(20)),
                Entity_Booking(1102, "Sami Kallio", "GKO Summer", "GKO", june.addDays(20))};
    return w;
}

} // namespace

class tst_GameManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(5); }
    void cleanup() { game().resetWorld(); }

    // roster order stands; a gym fighter of the organisation ranks behind the men of his score
    void theRankingList()
    {
        World w = smallWorld();
        w.fighters[0].setNumber(F::RankingScore, 200);
        QVERIFY(w.load());
        QMultiMap<int, QString> ranking;
        game().organisationRanking("G-1", ranking);
        QCOMPARE(ranking.values(), QStringList({"Al Ames", "Cy Cole", "Bo Bell", "Gus Gray"}));
        QCOMPARE(ranking.keys(), QList<int>({100, 200, 200, 200}));

        game().addRankingScore("G-1", 11, 150);
        game().addUserRankingScore(1050, -300);
        ranking.clear();
        game().organisationRanking("G-1", ranking);
        QCOMPARE(ranking.values(), QStringList({"Gus Gray", "Cy Cole", "Bo Bell", "Al Ames"}));
        QCOMPARE(game().fighterById(1050).getRankingScore(), -100);

        ranking.clear();
        game().organisationRanking("Nowhere", ranking);
        QVERIFY(ranking.isEmpty());
    }

    void aGymFighterDefendsAndLoses()
    {
        World w = smallWorld();
        w.fighters[0].setContract("G-1", 5, 1000);
        QVERIFY(w.load());
        const QString title = "|G-1 World Championship";
        game().recordGymResult(1050, "Win: Al Ames - KO(Knee) - Rd. 1(2:02) - G-1: Night" + title,
                               "Championship Match");
        game().setTitleHolder("G-1", "G-1 World Championship", 1050, true);
        game().recordGymResult(1050, "Win: Bo Bell - Split Decision - Rd. 3(3:00) - G-1: Night" + title,
                               "Championship Match");
        QCOMPARE(game().managerRecord().titleList(), QStringList{"G-1 World Championship - from Tue Mar 1 2011"});
        game().advanceDate();
        game().recordGymResult(1050, "Loss: Cy Cole - KO(Hook) - Rd. 2(0:12) - G-1: Night" + title,
                               "Championship Match");
        QCOMPARE(game().managerRecord().titleList(),
                 QStringList{"G-1 World Championship - from Tue Mar 1 2011 until Wed Mar 2 2011"});
        QCOMPARE(game().managerRecord().values().mid(Entity_Manager::OverallWins), QList<int>({2, 1, 2, 1}));
        // an unknown id changes nothing
        game().recordGymResult(4242, "Win: x", "Single Match");
        QCOMPARE(game().managerRecord().value(Entity_Manager::OverallWins), 2);
    }

    // a title won on his last fight leaves with him: the manager's reign ends that day
    void aChampionsLastFightEndsTheReign()
    {
        QVERIFY(smallWorld().load());
        game().recordGymResult(1050, "Win: Al Ames - KO(Knee) - Rd. 1(2:02) - G-1: Night|G-1 World Championship",
                               "Championship Match");
        QCOMPARE(game().managerRecord().titleList(),
                 QStringList{"G-1 World Championship - from Tue Mar 1 2011 until Tue Mar 1 2011"});
    }

    void theOutcomeOfAFightNight_data() { TableRows::add(outcomes); }
    void theOutcomeOfAFightNight()
    {
        const Outcome &row = TableRows::current(outcomes);
        const QString entry = QString(row.reputation > 100 ? "Win" : "Loss") + ": Al Ames - " + row.entry;
        World w = smallWorld();
        QList<int> values = w.gym.values();
        values[Entity_Gym::PrestigePoints] = 100;
        w.gym.unpack(w.gym.strings(), values, w.gym.ledger());
        QVERIFY(w.load());

        QList<int> statistics(MatchStatus::Count, 0);
        statistics[MatchStatus::JabLanded] = 12;
        QCOMPARE(game().applyMatchOutcome(statistics, 1050, entry), row.reputation > 100);
        const Entity_Gym gym = game().gymRecord();
        QCOMPARE(gym.money(), row.money);
        QCOMPARE(gym.ledgerEntry(Entity_Gym::FighterPurses), row.money - 10000);
        QCOMPARE(gym.value(Entity_Gym::PrestigePoints), row.prestige);
        QCOMPARE(game().managerRecord().value(Entity_Manager::ReputationValue), row.reputation);
        QVERIFY(game().fighterById(1050).skillProgress[0] > 0);
        QVERIFY(!game().applyMatchOutcome(statistics, 4242, entry));
    }

    // The user's own decision: his organisation lets him go unless it holds a show today; then he
    // leaves the gym whole: his record comes off the manager's running totals, a world title that
    // he holds ends for the manager and falls vacant, his offers and his booking go.
    void retiringAFighter_data()
    {
        QTest::addColumn<QString>("organisation");
        QTest::addColumn<int>("showInDays");
        QTest::addColumn<bool>("champion");
        QTest::addColumn<bool>("retired");
        QTest::newRow("a free agent") << "Free Agent" << -1 << false << true;
        QTest::newRow("on a card next week") << "GKO" << 7 << false << true;
        QTest::newRow("his organisation fights today") << "GKO" << 0 << false << false;
        QTest::newRow("a world champion") << "GKO" << 7 << true << true;
    }

    void retiringAFighter()
    {
        QFETCH(QString, organisation);
        QFETCH(int, showInDays);
        QFETCH(bool, champion);
        QFETCH(bool, retired);
        const World w = gymWorld(organisation, showInDays, champion);
        QVERIFY(w.load());
        const QByteArray before = savedWorld();

        QCOMPARE(game().retireFighter(0), retired);
        if (!retired) {
            QCOMPARE(savedWorld(), before);
            return;
        }
        const WorldState &after = SavedWorld::running();
        QCOMPARE(game().fighterIds(), QList<int>{1102});
        QCOMPARE(after.bookings.size(), 1);
        QCOMPARE(after.offers, QList<Entity_Booking>{w.offers.last()});
        // his 11 wins and 4 losses leave the running totals, not the manager's whole record
        const QList<int> values = game().managerValues();
        QCOMPARE(values[Entity_Manager::ActiveWins], 9);
        QCOMPARE(values[Entity_Manager::ActiveLosses], 5);
        QCOMPARE(values[Entity_Manager::OverallWins], 30);
        QCOMPARE(values[Entity_Manager::OverallLosses], 12);

        QCOMPARE(titlesOf("GKO").value(belt), QString("Vacant"));
        QCOMPARE(game().managerRecord().titleList(),
                 champion ? QStringList{reign + " until " + june.toString(Qt::TextDate)} : QStringList{});
        if (showInDays > 0) {
            const Entity_Event night = game().organisation("GKO").nextEvent(june);
            QVERIFY(!night.holdsFighter(1101));
            QVERIFY(!night.isUserBooked());
        }
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    void retiringNobodyChangesNothing()
    {
        QVERIFY(gymWorld("GKO", 7, false).load());
        const QByteArray before = savedWorld();
        QVERIFY(game().retireFighter(2) && game().retireFighter(-1));
        QCOMPARE(savedWorld(), before);
    }
};

QTEST_GUILESS_MAIN(tst_GameManager)
#include "tst_gamemanager.moc"
