#include "WorldSamples.h"

#include "fighters/MatchStatus.h"

#include <QtTest>

using namespace WorldSamples;
using F = Entity_Fighter;

namespace {

GameManager &world()
{
    return GameManager::instance();
}

const QDate today(2011, 3, 1);

// G-1 with a title, tonight's show with the user's man, and a world show of tonight at GKO
World smallWorld()
{
    World w;
    w.nextId = 1100;
    w.currentDate = today;
    QList<int> gymValues = w.gym.values();
    gymValues[Entity_Gym::FighterSlots] = 2;
    QStringList gymStrings = w.gym.strings();
    gymStrings[Entity_Gym::GymPrestige] = "Local Hangout";
    w.gym.unpack(gymStrings, gymValues, w.gym.ledger());
    QList<int> managerValues = w.manager.values();
    managerValues[Entity_Manager::ReputationValue] = 95;
    managerValues[Entity_Manager::Charisma] = 1;
    w.manager.unpack({"Mo", "Mack", "East Asia", "Japan", "Unknown"}, managerValues, {});

    Entity_Fighter student = fighter(2000, "Sam", "Stone", 8000);
    student.setText(F::ShortsColour, "Teal");
    w.students = {student, fighter(2000, "Tim", "Todd", 8000)};

    w.fighters = {gymFighter(1050, "Gus", "Gray", 200, "G-1", 1, 1000),
                  gymFighter(1051, "Hal", "Hart", 150, "GKO", 3, 500)};
    w.bookings = {Entity_Booking(1050, "Gus Gray", "G-1: Gray vs. Ames", "G-1", today),
                  Entity_Booking::emptyFor(1051, "Hal Hart", QDate(1999, 1, 1))};

    const Entity_Event tonight = bookedEvent(
        makeEvent("G-1: Gray vs. Ames", "G-1", today,
                  {slot("Championship Match", "Gus Gray", 1050, "Al Ames", 11, true)}, "G-1 World Championship"),
        true);
    const Entity_Event later = makeEvent("G-1 Spring 2011", "G-1", QDate(2011, 4, 2), {slot("Single Match")});
    w.organisations = {
        organisation("G-1", {tonight, later},
                     {fighter(11, "Al", "Ames", 100, "G-1"), fighter(12, "Bo", "Bell", 200, "G-1"),
                      fighter(13, "Cy", "Cole", 200, "G-1")},
                     {{"G-1 World Championship", "Al Ames"}, {"G-1 Grand Prix 2009", "Bo Bell"}}),
        organisation("GKO",
                     {makeEvent("GKO Night 2011", "GKO", today, {slot("Single Match", "Di Dee", 21, "Ed Egan", 22)})},
                     {fighter(21, "Di", "Dee", 300, "GKO"), fighter(22, "Ed", "Egan", 400, "GKO")}, {}, "National"),
    };
    w.freeAgents.insert(8000, fighter(31, "Fay", "Fox", 8000));
    w.offers = {Entity_Booking(1051, "Hal Hart", "G-1 Spring 2011", "G-1", QDate(2011, 4, 2)),
                Entity_Booking(1051, "Hal Hart", "GKO Night 2011", "GKO", today)};
    w.amateurs.insert(8000, fighter(41, "Ike", "Ide", 8000));
    return w;
}

void loadSmallWorld()
{
    QVERIFY(smallWorld().load());
}

} // namespace

class tst_GameManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(5); }
    void cleanup() { world().resetWorld(); }

    void packedFormsOfAFighter()
    {
        loadSmallWorld();
        QCOMPARE(world().fighterNames(), QStringList({"Gus Gray", "Hal Hart"}));
        QCOMPARE(world().studentNames(), QStringList({"Sam Stone", "Tim Todd"}));
        QCOMPARE(world().fighterIds(), QList<int>({1050, 1051}));
        QCOMPARE(world().fighterInts(1)[F::Id], 1051);
        QCOMPARE(world().fighterIdAt(1), 1051);
        QCOMPARE(world().fighterById(1051).fullName(), QString("Hal Hart"));
        world().setFighterBio(1, "A southpaw.");
        QCOMPARE(world().fighterStrings(1)[F::Bio], QString("A southpaw."));

        // a small number is a place in the list, a large one an id
        QStringList colours;
        QList<int> images;
        world().studentLook(0, colours, images);
        QCOMPARE(colours[0], QString("Teal"));
        world().fighterLook(1, colours, images);
        QCOMPARE(colours, QStringList({"", "", ""}));
        world().fighterLook(1051, colours, images);
        QCOMPARE(images, QList<int>({0, 0, 0}));
        world().fighterLook(2, colours, images);
        QCOMPARE(colours, QStringList({"Red", "Black", "Brown"}));
    }

    void promotingAStudent()
    {
        World w = smallWorld();
        w.fighters.removeLast();
        w.bookings.removeLast();
        w.nextId = 1058;
        QVERIFY(w.load());
        QVERIFY(world().promoteStudent(1));
        QCOMPARE(world().getNextId(), 1059);
        QCOMPARE(world().fighterIds(), QList<int>({1050, 1059}));
        QCOMPARE(world().studentNames(), QStringList{"Sam Stone"});
        const Entity_GymFighter promoted = world().fighterById(1059);
        QCOMPARE(promoted.fullName(), QString("Tim Todd"));
        QCOMPARE(promoted.reputationPoints, 0);
        QCOMPARE(promoted.trainingPlan, 0);
        QCOMPARE(world().bookingsByFighter().value("Tim Todd"), QString("N/A - Tue Mar 1 2011"));
        // two fighter places, both taken now
        QVERIFY(!world().promoteStudent(0));
        QCOMPARE(world().getNextId(), 1059);
        QCOMPARE(world().studentNames().size(), 1);
    }

    // roster order stands; a gym fighter of the organisation ranks behind the men of his score
    void theRankingList()
    {
        World w = smallWorld();
        w.fighters[0].setNumber(F::RankingScore, 200);
        QVERIFY(w.load());
        QMultiMap<int, QString> ranking;
        world().organisationRanking("G-1", ranking);
        QCOMPARE(ranking.values(), QStringList({"Al Ames", "Cy Cole", "Bo Bell", "Gus Gray"}));
        QCOMPARE(ranking.keys(), QList<int>({100, 200, 200, 200}));

        world().addRankingScore("G-1", 11, 150);
        world().addUserRankingScore(1050, -300);
        ranking.clear();
        world().organisationRanking("G-1", ranking);
        QCOMPARE(ranking.values(), QStringList({"Gus Gray", "Cy Cole", "Bo Bell", "Al Ames"}));
        QCOMPARE(world().fighterById(1050).getRankingScore(), -100);

        ranking.clear();
        world().organisationRanking("Nowhere", ranking);
        QVERIFY(ranking.isEmpty());
    }

    void todaysEvents()
    {
        loadSmallWorld();
        const QList<Entity_Event> worldEvents = world().todaysWorldEvents();
        QCOMPARE(worldEvents.size(), 1);
        QCOMPARE(worldEvents[0].name(), QString("GKO Night 2011"));
        QCOMPARE(world().todaysUserEvents().size(), 1);

        // a fight night is held once
        world().storeEventResults({"Championship Match - a line"}, "G-1: Gray vs. Ames", "G-1");
        QVERIFY(world().todaysUserEvents().isEmpty());
        QCOMPARE(world().organisationTexts("G-1")[Entity_Org::Willingness], QString("Willing"));
        QCOMPARE(world().organisationTexts("GKO")[Entity_Org::Willingness], QString("Tentative"));

        world().advanceDate();
        QCOMPARE(world().getCurrentDate(), QDate(2011, 3, 2));
        QVERIFY(world().todaysWorldEvents().isEmpty());
    }

    // the career of a roster fighter, and the results of a title fight
    void rosterResultsAndTitles()
    {
        loadSmallWorld();
        world().recordRosterMatch("G-1", 12,
                                  "Win: Cy Cole - Split Decision - Rd. 3(3:00) - G-1: Night|G-1 Grand Prix 2011",
                                  "Tournament Final");
        const Entity_Fighter bo = world().rosterFighter("G-1", 12);
        QCOMPARE(bo.titleList(), QStringList{"G-1 Grand Prix 2011"});
        QCOMPARE(bo.number(F::Kos), 0);
        QVERIFY(bo.history().value(today).endsWith(" - Won G-1 Grand Prix 2011"));

        world().setTitleHolder("G-1", "G-1 Grand Prix 2011", 12, false);
        world().setTitleHolder("G-1", "G-1 World Championship", 99, false); // nobody of that id
        Entity_Org::Titles titles;
        world().organisation("G-1").titlesCopy(titles);
        QCOMPARE(titles.value("G-1 Grand Prix 2011"), QString("Bo Bell"));
        QCOMPARE(titles.value("G-1 World Championship"), QString("Al Ames"));
    }

    // the user's champion: the manager keeps the record and the reigns
    void aGymFighterWinsAndLeavesWithTheBelt()
    {
        loadSmallWorld();
        const QString entry = "Win: Al Ames - KO(Knee) - Rd. 1(2:02) - G-1: G-1: Gray vs. Ames|G-1 World Championship";
        world().recordGymResult(1050, entry, "Championship Match");
        const Entity_GymFighter gus = world().fighterById(1050);
        // his one fight was the last of his contract: he leaves with the reign closed at once
        QCOMPARE(gus.text(F::Organisation), QString("Free Agent"));
        QCOMPARE(gus.titleList(), QStringList{"G-1 World Championship - from Tue Mar 1 2011 until Tue Mar 1 2011"});
        const Entity_Manager manager = world().managerRecord();
        QCOMPARE(manager.value(Entity_Manager::OverallWins), 1);
        QCOMPARE(manager.value(Entity_Manager::ActiveWins), 1);
        QCOMPARE(manager.titleList(), QStringList{"G-1 World Championship - from Tue Mar 1 2011 until Tue Mar 1 2011"});
        world().setTitleHolder("G-1", "G-1 World Championship", 1050, true);
        QCOMPARE(world().organisation("G-1").text(Entity_Org::Name), QString("G-1"));
        Entity_Org::Titles titles;
        world().organisation("G-1").titlesCopy(titles);
        QCOMPARE(titles.value("G-1 World Championship"), QString("Vacant"));
    }

    void aGymFighterDefendsAndLoses()
    {
        World w = smallWorld();
        w.fighters[0].setContract("G-1", 5, 1000);
        QVERIFY(w.load());
        const QString title = "|G-1 World Championship";
        world().recordGymResult(1050, "Win: Al Ames - KO(Knee) - Rd. 1(2:02) - G-1: Night" + title,
                                "Championship Match");
        world().setTitleHolder("G-1", "G-1 World Championship", 1050, true);
        world().recordGymResult(1050, "Win: Bo Bell - Split Decision - Rd. 3(3:00) - G-1: Night" + title,
                                "Championship Match");
        QCOMPARE(world().managerRecord().titleList(), QStringList{"G-1 World Championship - from Tue Mar 1 2011"});
        world().advanceDate();
        world().recordGymResult(1050, "Loss: Cy Cole - KO(Hook) - Rd. 2(0:12) - G-1: Night" + title,
                                "Championship Match");
        QCOMPARE(world().managerRecord().titleList(),
                 QStringList{"G-1 World Championship - from Tue Mar 1 2011 until Wed Mar 2 2011"});
        QCOMPARE(world().managerRecord().values().mid(Entity_Manager::OverallWins), QList<int>({2, 1, 2, 1}));
        QCOMPARE(world().fighterById(1050).number(F::ContractFightsLeft), 2);
        Entity_Org::Titles titles;
        world().organisation("G-1").titlesCopy(titles);
        QCOMPARE(titles.value("G-1 World Championship"), QString("Gus Gray"));
        // an unknown id changes nothing
        world().recordGymResult(4242, "Win: x", "Single Match");
        QCOMPARE(world().managerRecord().value(Entity_Manager::OverallWins), 2);
    }

    void theOutcomeOfAFightNight_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("prestige");
        QTest::addColumn<int>("reputation");
        QTest::addColumn<bool>("levelUp");

        QTest::newRow("a knock-out win pays double")
            << "Win: Al Ames - KO(Knee) - Rd. 1(2:02) - G-1: G-1 Spring Gala" << 12000 << 116 << 105 << true;
        QTest::newRow("a decision win") << "Win: Al Ames - Split Decision - Rd. 3(3:00) - G-1: Gala" << 12000 << 108
                                        << 105 << true;
        QTest::newRow("a title fight by its name")
            << "Win: Al Ames - Split Decision - Rd. 3(3:00) - G-1: Gala|G-1 World Championship" << 12000 << 108 << 120
            << true;
        QTest::newRow("a tournament title by its year")
            << "Win: Al Ames - Split Decision - Rd. 3(3:00) - G-1: Gala|G-1 Grand Prix 2011" << 12000 << 108 << 120
            << true;
        QTest::newRow("the year in the night's name makes no title")
            << "Win: Al Ames - Split Decision - Rd. 3(3:00) - G-1: Gala 2011" << 12000 << 108 << 105 << true;
        QTest::newRow("a knockout word in the organisation's name")
            << "Win: Al Ames - Split Decision - Rd. 3(3:00) - GKO: Gala" << 12000 << 108 << 105 << true;
        QTest::newRow("a knock-out defeat pays once")
            << "Loss: Al Ames - TKO(Low Kick) - Rd. 2(1:00) - G-1: Gala" << 11000 << 95 << 95 << false;
        QTest::newRow("a decision defeat")
            << "Loss: Al Ames - Majority Decision - Rd. 3(3:00) - G-1: Gala" << 11000 << 98 << 95 << false;
    }

    void theOutcomeOfAFightNight()
    {
        QFETCH(QString, entry);
        QFETCH(int, money);
        QFETCH(int, prestige);
        QFETCH(int, reputation);
        QFETCH(bool, levelUp);
        World w = smallWorld();
        QList<int> values = w.gym.values();
        values[Entity_Gym::PrestigePoints] = 100;
        w.gym.unpack(w.gym.strings(), values, w.gym.ledger());
        QVERIFY(w.load());

        QList<int> statistics(MatchStatus::Count, 0);
        statistics[MatchStatus::JabLanded] = 12;
        QCOMPARE(world().applyMatchOutcome(statistics, 1050, entry), levelUp);
        const Entity_Gym gym = world().gymRecord();
        QCOMPARE(gym.money(), money);
        QCOMPARE(gym.ledgerEntry(Entity_Gym::FighterPurses), money - 10000);
        QCOMPARE(gym.value(Entity_Gym::PrestigePoints), prestige);
        QCOMPARE(world().managerRecord().value(Entity_Manager::ReputationValue), reputation);
        QVERIFY(world().fighterById(1050).skillProgress[0] > 0);
        QVERIFY(!world().applyMatchOutcome(statistics, 4242, entry));
    }

    void bookingsAndOffers()
    {
        loadSmallWorld();
        QMap<QString, QString> byFighter = world().bookingsByFighter();
        QCOMPARE(byFighter.value("Gus Gray"), QString("G-1: Gray vs. Ames - Tue Mar 1 2011"));
        QCOMPARE(byFighter.value("Hal Hart"), QString("N/A - N/A"));

        world().replaceBooking(Entity_Booking(1051, "Hal Hart", "G-1 Spring 2011", "G-1", QDate(2011, 4, 2)));
        world().clearBooking(1050);
        world().replaceBooking(Entity_Booking(4242, "Nobody", "Night", "G-1", today));
        byFighter = world().bookingsByFighter();
        QCOMPARE(byFighter.size(), 2);
        QCOMPARE(byFighter.value("Hal Hart"), QString("G-1 Spring 2011 - Sat Apr 2 2011"));
        QCOMPARE(byFighter.value("Gus Gray"), QString("N/A - N/A"));

        world().removeOffersForEvent("G-1 Spring 2011");
        const QByteArray saved = savedWorld();
        World expected = smallWorld();
        expected.offers.removeFirst();
        expected.bookings = {Entity_Booking::emptyFor(1050, "Gus Gray", QDate(1999, 1, 1)),
                             Entity_Booking(1051, "Hal Hart", "G-1 Spring 2011", "G-1", QDate(2011, 4, 2))};
        QCOMPARE(saved, expected.bytes());
    }

    void theGymsBusiness()
    {
        loadSmallWorld();
        world().collectStudentFees();
        QCOMPARE(world().gymRecord().money(), 10140); // two students at 70, "Local Hangout"
        QVERIFY(world().upgradeEquipment(0));
        QVERIFY(world().upgradeGym());
        QCOMPARE(world().gymValues()[Entity_Gym::StudentSlots], 4);
        QCOMPARE(world().gymRecord().money(), 4140);
        world().rollGymMonth();
        QCOMPARE(world().gymRecord().ledger(), QList<int>({0, 0, 0, 0, 0, 6000, 140, 0}));

        QList<int> skills(18, 7);
        world().setManagerSkills(skills);
        QCOMPARE(world().managerValues().mid(Entity_Manager::Punch, 18), skills);

        world().setGym({"Iron Den", "Muay Thai", "Red", "Black", "Unknown"}, QList<int>(26, 0), {});
        QStringList strings;
        QList<int> values;
        QList<int> ledger;
        world().gymPack(strings, values, ledger);
        QCOMPARE(strings[0], QString("Iron Den"));
        QCOMPARE(ledger, QList<int>(8, 0));
    }

    // A new game starts on the first day with the first id, whatever ran before: the manager and
    // the gym as chosen, and of the default world only its organisations, free agents and amateurs.
    void aNewGameTakesTheChoicesAndTheDefaultLists()
    {
        loadSmallWorld();
        World defaults = smallWorld();
        defaults.currentDate = QDate(2015, 6, 1);
        defaults.nextId = 5000;
        GameManager::NewGame choices;
        choices.firstName = "Ada";
        choices.lastName = "Lind";
        choices.region = "Western Europe";
        choices.nation = "Sweden";
        choices.skills = {5, 4, 3};
        choices.gymName = "North Den";
        choices.gymStyle = "Boxing";
        choices.primaryColour = "Teal";
        choices.secondaryColour = "Gold";
        world().startNewGame(choices, defaults);

        const WorldState &now = world().state();
        QCOMPARE(now.currentDate, QDate(2011, 1, 1));
        QCOMPARE(now.nextId, 1058);
        QCOMPARE(now.manager.strings(), QStringList({"Ada", "Lind", "Western Europe", "Sweden", "Unknown"}));
        QList<int> managerValues(Entity_Manager::ValueCount, 0);
        managerValues[Entity_Manager::Punch] = 5;
        managerValues[Entity_Manager::Kick] = 4;
        managerValues[Entity_Manager::ClinchOffense] = 3;
        QCOMPARE(now.manager.values(), managerValues);
        QVERIFY(now.manager.titleList().isEmpty());
        QCOMPARE(now.gym.strings(), QStringList({"North Den", "Boxing", "Teal", "Gold", "Unknown"}));
        QCOMPARE(now.gym.values(), Entity_Gym().values());
        QCOMPARE(world().organisationNames(), QStringList({"G-1", "GKO"}));
        QCOMPARE(now.freeAgents.size(), 1);
        QCOMPARE(now.amateurs.size(), 1);
        QVERIFY(now.students.isEmpty() && now.fighters.isEmpty() && now.offers.isEmpty() && now.bookings.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_GameManager)
#include "tst_gamemanager.moc"
