#include "WorldSamples.h"

#include "persistence/NameFiles.h"
#include "world/DayFlow.h"
#include "world/RankMove.h"
#include "world/WorldInvariants.h"
#include "world/WorldMatch.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString NightName = "Test FC Night";
const QString Title = "Test FC World Championship";
const QDate Today(2011, 3, 1);

// a man who can fight: every attribute at 60, his head and body able to take a blow
Entity_Fighter fitMan(int id, const QString &last, int score)
{
    Entity_Fighter man = fighter(id, "Ken", last, score, Org);
    for (int a = Entity_Fighter::FirstAttribute; a <= Entity_Fighter::LastAttribute; ++a)
        man.setNumber(Entity_Fighter::Number(a), 60);
    man.setNumber(Entity_Fighter::HeadDurability, 60);
    man.setNumber(Entity_Fighter::BodyDurability, 60);
    return man;
}

// Test FC with Alpha (id 101, score 100) and Bravo (id 102, score 200) and tonight's card; the
// gym's three student places are taken, so that no new student comes
World worldWith(const QList<Entity_Match> &card, const QDate &date = Today)
{
    World w;
    w.currentDate = date;
    for (int i = 0; i < 3; ++i)
        w.students.append(fighter(2000, "Stu", "Dent" + QString::number(i), 0));
    const QList<Entity_Event> calendar{makeEvent(NightName, Org, date, card, Title)};
    Entity_Org::Titles titles;
    titles.insert(Title, "Vacant");
    w.organisations.append(organisation(Org, calendar, {fitMan(101, "Alpha", 100), fitMan(102, "Bravo", 200)}, titles));
    return w;
}

Entity_Match alphaVsBravo(const QString &type)
{
    return slot(type, "Ken Alpha", 101, "Ken Bravo", 102);
}

struct DayRun {
    QStringList paragraphs;
    QList<int> steps;
    QList<QDate> datesAtSteps;
};

DayRun runDay()
{
    DayRun day;
    GameManager &world = GameManager::instance();
    DayFlow flow(
        world, NameFiles::book(), [&](const QString &paragraph) { day.paragraphs << paragraph; },
        [&](int step) {
            day.steps << step;
            day.datesAtSteps << world.getCurrentDate();
        });
    flow.run();
    return day;
}

Entity_Event tonight()
{
    QList<Entity_Event> calendar;
    GameManager::instance().organisation(Org).events(calendar);
    return calendar.value(0);
}

QString careerOf(int id)
{
    const Entity_Fighter::History history = GameManager::instance().rosterFighter(Org, id).history();
    return history.isEmpty() ? QString() : history.last();
}

} // namespace

Q_DECLARE_METATYPE(Entity_Match)

class tst_DayFlow : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(9); }
    void cleanup() { GameManager::instance().resetWorld(); }

    // The day ends the old date's events first and books on the new date; the paragraphs come in
    // the order the screen prints them, and what was fought stays in the world.
    void aDayRunsInItsOrder()
    {
        QVERIFY(worldWith({alphaVsBravo(Entity_Match::SingleMatch)}).load());
        const DayRun day = runDay();

        QCOMPARE(day.steps, QList<int>({1, 2, 3, 4, 5, 6}));
        const QDate tomorrow = Today.addDays(1);
        QCOMPARE(day.datesAtSteps, QList<QDate>({Today, Today, tomorrow, tomorrow, tomorrow, tomorrow}));
        QCOMPARE(GameManager::instance().getCurrentDate(), tomorrow);

        const Entity_Event night = tonight();
        QCOMPARE(night.results().size(), 1);
        const QString line = night.results().first();
        QVERIFY2(line.startsWith("Single Match - Ken ") && line.endsWith(".\n"), qPrintable(line));
        const QStringList expectedStart{"News for " + Today.toString(Qt::TextDate),
                                        "Gym Info: ",
                                        "",
                                        NightName + " event results: ",
                                        line,
                                        "",
                                        "Fighter News: ",
                                        "",
                                        "Free Agent News: ",
                                        "",
                                        "Contract News: ",
                                        "",
                                        "Event booking news: "};
        QCOMPARE(day.paragraphs.mid(0, expectedStart.size()), expectedStart);
        QCOMPARE(day.paragraphs.last(), QString());
        QCOMPARE(GameManager::instance().organisation(Org).willingness(), QString("Willing"));
        QVERIFY(WorldInvariants::check(GameManager::instance().state()).isEmpty());
    }

    // a night of the user's is his fight night, not the world's; an open place fights nobody
    void whatTheWorldFights_data()
    {
        QTest::addColumn<bool>("userBooked");
        QTest::addColumn<QList<Entity_Match>>("card");
        QTest::addColumn<int>("matches");
        QTest::newRow("the world's night") << false << QList<Entity_Match>{alphaVsBravo("Single Match")} << 1;
        QTest::newRow("the user's night") << true << QList<Entity_Match>{alphaVsBravo("Single Match")} << 0;
        QTest::newRow("a man the roster no longer holds")
            << false << QList<Entity_Match>{slot("Single Match", "Ken Alpha", 101, "Ken Gone", 999)} << 0;
    }
    void whatTheWorldFights()
    {
        QFETCH(bool, userBooked);
        QFETCH(QList<Entity_Match>, card);
        QFETCH(int, matches);
        World w = worldWith({});
        w.organisations.clear();
        w.organisations.append(organisation(Org, {bookedEvent(makeEvent(NightName, Org, Today, card), userBooked)},
                                            {fitMan(101, "Alpha", 100), fitMan(102, "Bravo", 200)}));
        QVERIFY(w.load());
        GameManager &world = GameManager::instance();
        DayFlow flow(world, NameFiles::book(), [](const QString &) {});
        flow.run();
        QCOMPARE(flow.tally().matches, matches);
        QCOMPARE(tonight().results().size(), matches);
        QCOMPARE(world.rosterFighter(Org, 101).history().size(), matches);
    }

    // The career entries name the organisation and the night; a championship marks both men
    // with its title, a final only its winner. Title matches crown the winner, tournament
    // rounds before the final hand him on, and the ranking scores move by the rank-move table.
    void worldMatch_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("winnerMarked");
        QTest::addColumn<bool>("loserMarked");
        QTest::addColumn<bool>("crowned");
        QTest::addColumn<bool>("handedOn");
        QTest::newRow("single match") << "Single Match" << false << false << false << false;
        QTest::newRow("championship") << "Championship Match" << true << true << true << false;
        QTest::newRow("tournament final") << "Tournament Final" << true << false << true << false;
        QTest::newRow("qualifier") << "Tournament Qualifier" << false << false << false << true;
    }
    void worldMatch()
    {
        QFETCH(QString, type);
        QFETCH(bool, winnerMarked);
        QFETCH(bool, loserMarked);
        QFETCH(bool, crowned);
        QFETCH(bool, handedOn);
        QVERIFY(worldWith({alphaVsBravo(type)}).load());
        GameManager &world = GameManager::instance();
        const Entity_Event night = tonight();

        const WorldMatch::Outcome outcome = WorldMatch::fight(world, night, night.matchAt(0));
        QVERIFY(outcome.ending != WholeMatch::Ending::None);
        QVERIFY(outcome.winnerId == 101 || outcome.winnerId == 102);
        QCOMPARE(outcome.winnerId + outcome.loserId, 203);
        QVERIFY2(outcome.line.startsWith(type + " - "), qPrintable(outcome.line));
        QVERIFY(!outcome.line.contains(" by Decision "));

        const QString where = " - " + Org + ": " + NightName;
        const QString mark = where + '|' + Title;
        QVERIFY2(outcome.winnerEntry.startsWith("Win: ") && outcome.winnerEntry.endsWith(winnerMarked ? mark : where),
                 qPrintable(outcome.winnerEntry));
        QVERIFY2(outcome.loserEntry.startsWith("Loss: ") && outcome.loserEntry.endsWith(loserMarked ? mark : where),
                 qPrintable(outcome.loserEntry));
        // the careers hold the entries, a title fight told in the career's own words
        QVERIFY(careerOf(outcome.winnerId).startsWith(outcome.winnerEntry.section('|', 0, 0)));
        QVERIFY(careerOf(outcome.loserId).startsWith(outcome.loserEntry.section('|', 0, 0)));

        const int winnerBefore = outcome.winnerId == 101 ? 100 : 200;
        const int loserBefore = 300 - winnerBefore;
        const int move = RankMove::forResult(winnerBefore, loserBefore, outcome.line);
        QCOMPARE(world.rosterFighter(Org, outcome.winnerId).getRankingScore(), winnerBefore - move);
        QCOMPARE(world.rosterFighter(Org, outcome.loserId).getRankingScore(), loserBefore + move);

        Entity_Org::Titles titles;
        world.organisation(Org).titlesCopy(titles);
        QCOMPARE(titles.value(Title),
                 crowned ? world.rosterFighter(Org, outcome.winnerId).fullName() : QString("Vacant"));
        QCOMPARE(outcome.titleChanged, crowned);
        QCOMPARE(outcome.advancingId, handedOn ? outcome.winnerId : 0);
        QVERIFY(WorldInvariants::check(world.state()).isEmpty());
    }

    // the jobs of a new month and a new year run on the new date, each at most once
    void calendarJobs_data()
    {
        QTest::addColumn<QDate>("endingDay");
        QTest::addColumn<bool>("monthly");
        QTest::addColumn<bool>("yearly");
        QTest::newRow("31 December: month and year") << QDate(2011, 12, 31) << true << true;
        QTest::newRow("30 November: the month") << QDate(2011, 11, 30) << true << false;
        QTest::newRow("1 January: nothing") << QDate(2012, 1, 1) << false << false;
    }
    void calendarJobs()
    {
        QFETCH(QDate, endingDay);
        QFETCH(bool, monthly);
        QFETCH(bool, yearly);
        const Entity_Event pastNight = makeEvent("Test FC Early Night", Org, QDate(endingDay.year(), 1, 1), {});
        World w = worldWith({}, endingDay);
        Entity_Org::Titles titles;
        titles.insert("Test FC Grand Prix " + QString::number(endingDay.year() - 1), "Ken Alpha");
        w.organisations = {organisation(Org, {pastNight}, {fitMan(101, "Alpha", 100)}, titles)};
        QList<int> ledger(Entity_Gym::LedgerCount, 0);
        ledger[Entity_Gym::UpgradeCosts] = 500;
        w.gym.unpack(w.gym.strings(), w.gym.values(), ledger);
        QVERIFY(w.load());
        runDay();

        const Entity_Gym gym = GameManager::instance().gymRecord();
        QCOMPARE(gym.ledgerEntry(Entity_Gym::LastUpgradeCosts), monthly ? 500 : 0);
        QCOMPARE(gym.ledgerEntry(Entity_Gym::StudentFees), monthly ? 3 * gym.studentFee() : 0);
        const Entity_Org org = GameManager::instance().organisation(Org);
        QList<Entity_Event> past;
        org.pastEvents(past);
        QCOMPARE(past.size(), yearly ? 1 : 0);
        Entity_Org::Titles after;
        org.titlesCopy(after);
        QCOMPARE(after.size(), yearly ? 0 : 1);
    }
};

QTEST_GUILESS_MAIN(tst_DayFlow)
#include "tst_dayflow.moc"
