#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "fighters/MatchStatus.h"

#include <QtTest>

using namespace WorldSamples;
using F = Entity_Fighter;

namespace {

GameManager &world()
{
    return game();
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
    {"a tournament title by its year", "Split Decision - Rd. 3(3:00) - G-1: Gala|G-1 Grand Prix 2011", 12000, 108, 120},
    {"the year in the night's name makes no title", "Split Decision - Rd. 3(3:00) - G-1: Gala 2011", 12000, 108, 105},
    {"a knockout word in the organisation's name", "Split Decision - Rd. 3(3:00) - GKO: Gala", 12000, 108, 105},
    {"a knock-out defeat pays once", "TKO(Low Kick) - Rd. 2(1:00) - G-1: Gala", 11000, 95, 95},
    {"a decision defeat", "Majority Decision - Rd. 3(3:00) - G-1: Gala", 11000, 98, 95},
};

} // namespace

class tst_GameManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(5); }
    void cleanup() { world().resetWorld(); }

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
        QCOMPARE(world().applyMatchOutcome(statistics, 1050, entry), row.reputation > 100);
        const Entity_Gym gym = world().gymRecord();
        QCOMPARE(gym.money(), row.money);
        QCOMPARE(gym.ledgerEntry(Entity_Gym::FighterPurses), row.money - 10000);
        QCOMPARE(gym.value(Entity_Gym::PrestigePoints), row.prestige);
        QCOMPARE(world().managerRecord().value(Entity_Manager::ReputationValue), row.reputation);
        QVERIFY(world().fighterById(1050).skillProgress[0] > 0);
        QVERIFY(!world().applyMatchOutcome(statistics, 4242, entry));
    }
};

QTEST_GUILESS_MAIN(tst_GameManager)
#include "tst_gamemanager.moc"
