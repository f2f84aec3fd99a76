#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;
using F = Entity_Fighter;

namespace {

GameManager &world()
{
    return GameManager::instance();
}

const QDate today(2011, 6, 8);
const QString belt = QStringLiteral("GKO World Championship");
const QString reign = belt + " - from Sat Jan 1 2011";

// Reto Meyer of the gym, perhaps GKO's world champion, perhaps on a card of GKO `showInDays`
// away, with Sami Kallio beside him when the gym holds two; each has an offer open
World gymWorld(const QString &contract, int showInDays, bool champion, int gymSize)
{
    World w;
    w.nextId = 1200;
    w.currentDate = today;
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
    w.fighters = w.fighters.mid(0, gymSize);

    QList<Entity_Event> calendar;
    if (showInDays >= 0) {
        const QDate night = today.addDays(showInDays);
        calendar << bookedEvent(makeEvent("GKO: Meyer vs. Roe", "GKO", night,
                                          {slot("Single Match", "Reto Meyer", 1101, "Ray Roe", 21, true)}),
                                true);
        w.bookings << Entity_Booking(1101, "Reto Meyer", "GKO: Meyer vs. Roe", "GKO", night);
    } else {
        w.bookings << Entity_Booking::emptyFor(1101, "Reto Meyer", QDate(1999, 1, 1));
    }
    if (gymSize > 1)
        w.bookings << Entity_Booking::emptyFor(1102, "Sami Kallio", QDate(1999, 1, 1));
    Entity_Org::Titles titles{{belt, champion ? "Reto Meyer" : "Vacant"}};
    w.organisations = {organisation("GKO", calendar, {fighter(21, "Ray", "Roe", 400, "GKO")}, titles)};
    w.offers = {Entity_Booking(1101, "Reto Meyer", "GKO Summer", "GKO", today.addDays(20)),
                Entity_Booking(1102, "Sami Kallio", "GKO Summer", "GKO", today.addDays(20))};
    w.amateurs.insert(9000, fighter(41, "Ike", "Ide", 9000));
    return w;
}

} // namespace

class tst_GymFighters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(5); }
    void cleanup() { world().resetWorld(); }

    // The user's own decision: his organisation lets him go unless it holds a show today; then he
    // leaves the gym whole: his record comes off the manager's running totals, a world title that
    // he holds ends for the manager and falls vacant, his offers and his booking go.
    void retiringAFighter_data()
    {
        QTest::addColumn<QString>("organisation");
        QTest::addColumn<int>("showInDays");
        QTest::addColumn<bool>("champion");
        QTest::addColumn<int>("gymSize");
        QTest::addColumn<bool>("retired");
        QTest::newRow("a free agent") << "Free Agent" << -1 << false << 2 << true;
        QTest::newRow("the last fighter of the gym") << "Free Agent" << -1 << false << 1 << true;
        QTest::newRow("on a card next week") << "GKO" << 7 << false << 2 << true;
        QTest::newRow("his organisation fights today") << "GKO" << 0 << false << 2 << false;
        QTest::newRow("a world champion") << "GKO" << 7 << true << 2 << true;
    }

    void retiringAFighter()
    {
        QFETCH(QString, organisation);
        QFETCH(int, showInDays);
        QFETCH(bool, champion);
        QFETCH(int, gymSize);
        QFETCH(bool, retired);
        const World w = gymWorld(organisation, showInDays, champion, gymSize);
        QVERIFY(w.load());
        const QByteArray before = savedWorld();

        QCOMPARE(world().retireFighter(0), retired);
        if (!retired) {
            QCOMPARE(savedWorld(), before);
            return;
        }
        const WorldState &after = SavedWorld::running();
        QCOMPARE(world().fighterIds(), gymSize > 1 ? QList<int>{1102} : QList<int>{});
        QCOMPARE(after.bookings.size(), gymSize - 1);
        QCOMPARE(after.offers, QList<Entity_Booking>{w.offers.last()});
        // his 11 wins and 4 losses leave the running totals, not the manager's whole record
        const QList<int> values = world().managerValues();
        QCOMPARE(values[Entity_Manager::ActiveWins], 9);
        QCOMPARE(values[Entity_Manager::ActiveLosses], 5);
        QCOMPARE(values[Entity_Manager::OverallWins], 30);
        QCOMPARE(values[Entity_Manager::OverallLosses], 12);

        QCOMPARE(titlesOf("GKO").value(belt), QString("Vacant"));
        QCOMPARE(world().managerRecord().titleList(),
                 champion ? QStringList{reign + " until " + today.toString(Qt::TextDate)} : QStringList{});
        if (showInDays > 0) {
            const Entity_Event night = world().organisation("GKO").nextEvent(today);
            QVERIFY(!night.holdsFighter(1101));
            QVERIFY(!night.isUserBooked());
        }
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    void retiringNobodyChangesNothing()
    {
        QVERIFY(gymWorld("GKO", 7, false, 1).load());
        const QByteArray before = savedWorld();
        QVERIFY(world().retireFighter(1) && world().retireFighter(-1));
        QCOMPARE(savedWorld(), before);
    }

    // A fantasy night takes copies of the gym's man and of his guest under ids of their own and a
    // ranking score of 0, among the amateurs, where the fight night finds them; the night stands
    // in no calendar; and once the two copies go, the world is what it was to the last byte.
    void aFantasyNightLeavesNoTrace()
    {
        QVERIFY(gymWorld("GKO", 7, true, 2).load());
        const QByteArray before = savedWorld();
        const F home = world().fighterById(1101).fighter();
        F guest = fighter(77, "Gus", "Guest", 2500, "Albion", 3);
        const Entity_Event night = world().makeFantasyEvent(guest, 0);
        QCOMPARE(night.name(), QString("Fantasy Match: Reto Meyer vs. Gus Guest"));
        QVERIFY(night.isFantasyMatch() && night.isUserBooked());
        QCOMPARE(night.date(), QDate(2011, 1, 1));
        QCOMPARE(night.matches(),
                 QList<Entity_Match>({slot("Single Match", "Reto Meyer", GameManager::FantasyGymFighterId, "Gus Guest",
                                           GameManager::FantasyVisitorId)}));
        QVERIFY(!world().organisation("GKO").nextEvent(today).isFantasyMatch());

        F homeCopy = home;
        homeCopy.setId(GameManager::FantasyGymFighterId);
        homeCopy.addToRankingScore(-home.getRankingScore());
        guest.setId(GameManager::FantasyVisitorId);
        guest.addToRankingScore(-2500);
        QVERIFY(world().amateurById(GameManager::FantasyGymFighterId) == homeCopy);
        QVERIFY(world().amateurById(GameManager::FantasyVisitorId) == guest);
        QCOMPARE(world().amateurCount(), 3);
        world().removeFantasyFighters();
        QCOMPARE(savedWorld(), before);
    }
};

QTEST_GUILESS_MAIN(tst_GymFighters)
#include "tst_gymfighters.moc"
