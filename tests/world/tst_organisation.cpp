#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QDate today(2011, 6, 1);

QList<int> idsInKeyOrder(const Entity_Org &org)
{
    Entity_Org::Roster roster;
    QList<Entity_Event> unused;
    QStringList strings;
    Entity_Org::Titles titles;
    org.pack(strings, unused, unused, roster, titles);
    QList<int> ids;
    for (auto it = roster.cbegin(); it != roster.cend(); ++it) {
        if (it.key() != it.value().getRankingScore())
            return {-1}; // a key that left its man's score behind
        ids.append(it.value().getId());
    }
    return ids;
}

Entity_Org::Titles titlesOf(const Entity_Org &org)
{
    Entity_Org::Titles titles;
    org.titlesCopy(titles);
    return titles;
}

// G-1 with a past night, tonight's show and a night next week
Entity_Org promotion(const Entity_Org::Titles &titles = {})
{
    const QList<Entity_Event> calendar = {
        makeEvent("G-1 Opener 2011", "G-1", QDate(2011, 3, 1), {slot("Single Match")}),
        makeEvent("G-1 Summer 2011", "G-1", QDate(2011, 6, 8),
                  {slot("Single Match", "Al Ames", 11, "Gus Gray", 31, true), slot("Single Match")}),
        makeEvent("G-1 Autumn 2011", "G-1", QDate(2011, 9, 8), {slot("Single Match", "Al Ames", 11)}),
    };
    return organisation("G-1", calendar,
                        {fighter(11, "Al", "Ames", 100, "G-1"), fighter(12, "Bo", "Bell", 200, "G-1"),
                         fighter(13, "Cy", "Cole", 200, "G-1")},
                        titles);
}

} // namespace

class tst_Organisation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(3); }

    // the roster key follows the score, ties keep both men, and a score may go below 0
    void rankingScoreMoves_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("delta");
        QTest::addColumn<QList<int>>("order");

        QTest::newRow("to the top") << 13 << -150 << QList<int>{13, 11, 12};
        QTest::newRow("below zero") << 12 << -500 << QList<int>{12, 11, 13};
        QTest::newRow("onto an equal score goes before it") << 11 << 100 << QList<int>{11, 13, 12};
        QTest::newRow("to the bottom") << 11 << 5000 << QList<int>{13, 12, 11};
        QTest::newRow("no move") << 12 << 0 << QList<int>{11, 12, 13};
        QTest::newRow("unknown id") << 99 << -1000 << QList<int>{11, 13, 12};
    }

    void rankingScoreMoves()
    {
        QFETCH(int, id);
        QFETCH(int, delta);
        QFETCH(QList<int>, order);
        Entity_Org org = promotion();
        QCOMPARE(org.rosterSize(), 3);
        org.addRankingScore(id, delta);
        QCOMPARE(org.rosterSize(), 3);
        QCOMPARE(idsInKeyOrder(org), order);
    }

    void aCopyBuiltEntryByEntryTurnsTiesAround()
    {
        const Entity_Org org = promotion();
        Entity_Org::Roster copy;
        org.rosterCopy(copy);
        QList<int> ids;
        for (const Entity_Fighter &f : copy)
            ids.append(f.getId());
        QCOMPARE(idsInKeyOrder(org), QList<int>({11, 13, 12}));
        QCOMPARE(ids, QList<int>({11, 12, 13}));
        QVERIFY(org.rosterFighter(12).fullName() == "Bo Bell");
        QCOMPARE(org.rosterFighter(99).getId(), 0);
    }

    // a row that names a year goes two years later, whoever holds it
    void dropOldTitles_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QStringList>("left");

        QTest::newRow("2012 keeps the rows of 2011")
            << QDate(2012, 1, 1) << QStringList{"G-1 Grand Prix 2011", "G-1 Grand Prix 2012", "G-1 World Championship"};
        QTest::newRow("2013 drops the rows of 2011")
            << QDate(2013, 1, 1) << QStringList{"G-1 Grand Prix 2012", "G-1 World Championship"};
        QTest::newRow("2014 drops the rows of 2012")
            << QDate(2014, 1, 1) << QStringList{"G-1 Grand Prix 2011", "G-1 World Championship"};
    }

    void dropOldTitles()
    {
        QFETCH(QDate, date);
        QFETCH(QStringList, left);
        Entity_Org org = promotion({{"G-1 Grand Prix 2011", "Al Ames"},
                                    {"G-1 Grand Prix 2012", "Vacant"},
                                    {"G-1 World Championship", "Bo Bell"}});
        org.dropOldTitles(date);
        QCOMPARE(titlesOf(org).keys(), left);
    }

    void retirement_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<bool>("retired");
        QTest::addColumn<QStringList>("holders"); // in key order of the titles

        // Al holds last year's tournament and two other rows: the first of those in key order goes
        QTest::newRow("before his next card")
            << 11 << QDate(2011, 6, 1) << true << QStringList{"Al Ames", "Vacant", "Al Ames", "Bo Bell"};
        QTest::newRow("on the day of a show")
            << 11 << QDate(2011, 6, 8) << false << QStringList{"Al Ames", "Al Ames", "Al Ames", "Bo Bell"};
        QTest::newRow("after the last night of the year")
            << 11 << QDate(2011, 12, 1) << true << QStringList{"Al Ames", "Vacant", "Al Ames", "Bo Bell"};
        QTest::newRow("a man without a title")
            << 13 << QDate(2011, 6, 1) << true << QStringList{"Al Ames", "Al Ames", "Al Ames", "Bo Bell"};
        QTest::newRow("a man of another roster")
            << 99 << QDate(2011, 6, 1) << false << QStringList{"Al Ames", "Al Ames", "Al Ames", "Bo Bell"};
    }

    void retirement()
    {
        QFETCH(int, id);
        QFETCH(QDate, day);
        QFETCH(bool, retired);
        QFETCH(QStringList, holders);
        Entity_Org org = promotion({{"G-1 Grand Prix 2010", "Al Ames"},
                                    {"G-1 Middleweight Title", "Al Ames"},
                                    {"G-1 World Championship", "Al Ames"},
                                    {"G-1 Zeta Belt", "Bo Bell"}});
        const int before = org.rosterSize();
        QCOMPARE(org.retireRosterFighter(id, 2010, day), retired);
        QCOMPARE(titlesOf(org).values(), holders);
        QCOMPARE(org.rosterSize(), retired ? before - 1 : before);
        QCOMPARE(org.holdsFighter(id), !retired && id != 99);
        // he leaves only the next card of the calendar, the Summer night
        QList<Entity_Event> calendar;
        org.events(calendar);
        QCOMPARE(calendar[1].holdsFighter(11), !(retired && id == 11 && day < QDate(2011, 6, 8)));
        QVERIFY(calendar[2].holdsFighter(11));
    }

    void aGymFighterRetiresFromHisCard()
    {
        Entity_Org org = promotion({{"G-1 World Championship", "Gus Gray"}});
        QVERIFY(!org.retireGymFighter("Gus Gray", 31, 2010, QDate(2011, 6, 8)));
        QCOMPARE(titlesOf(org).value("G-1 World Championship"), QString("Gus Gray"));
        QVERIFY(org.retireGymFighter("Gus Gray", 31, 2010, QDate(2011, 6, 2)));
        QCOMPARE(titlesOf(org).value("G-1 World Championship"), QString("Vacant"));
        QList<Entity_Event> calendar;
        org.events(calendar);
        QVERIFY(!calendar[1].holdsFighter(31));
        QVERIFY(!calendar[1].isUserBooked());
        QVERIFY(!calendar[1].matchAt(0).isGymFighterBooked());
        QCOMPARE(org.rosterSize(), 3);
    }

    void calendarWork()
    {
        Entity_Org org = promotion();
        QCOMPARE(org.nextEvent(today).name(), QString("G-1 Summer 2011"));
        QCOMPARE(org.nextEvent(QDate(2011, 6, 8)).name(), QString("G-1 Summer 2011"));
        QCOMPARE(org.nextEvent(QDate(2011, 6, 9)).name(), QString("G-1 Autumn 2011"));
        QCOMPARE(org.nextEvent(QDate(2011, 9, 9)).matchCount(), 0);

        // a night that has passed takes nobody
        QVERIFY(!org.addToEvent(12, "Bo Bell", "G-1 Opener 2011", "Single Match", false, today));
        QVERIFY(org.addToEvent(12, "Bo Bell", "G-1 Autumn 2011", "Single Match", false, today));
        QVERIFY(!org.addToEvent(13, "Cy Cole", "G-1 Autumn 2011", "Single Match", false, today));
        // the first man came with the data, unnamed: the second finds no " vs." to fill
        const QDate autumn(2011, 9, 8);
        org.renameEvent("G-1 Autumn 2011", autumn, 12, "Bell");
        QCOMPARE(org.nextEvent(QDate(2011, 6, 9)).name(), QString("G-1 Autumn 2011"));
        // a night of the same name on another date is another night
        org.renameEvent("G-1 Autumn 2011", autumn.addYears(1), 11, "Ames");
        QCOMPARE(org.nextEvent(QDate(2011, 6, 9)).name(), QString("G-1 Autumn 2011"));
        org.renameEvent("G-1 Autumn 2011", autumn, 11, "Ames");
        QCOMPARE(org.nextEvent(QDate(2011, 6, 9)).name(), QString("G-1: Ames vs. "));
        QVERIFY(!org.addToEvent(13, "Cy Cole", "Unknown Night", "Single Match", false, today));

        // results go to tonight's show only, and any stored show makes the promotion willing
        org.storeResults({"a line"}, "G-1 Summer 2011", today);
        QCOMPARE(org.willingness(), QString("Willing"));
        QVERIFY(org.nextEvent(today).results().isEmpty());
        org.storeResults({"a line"}, "G-1 Summer 2011", QDate(2011, 6, 8));
        QCOMPARE(org.nextEvent(today).results(), QStringList{"a line"});

        org.rollOverEvents();
        QList<Entity_Event> past;
        QList<Entity_Event> calendar;
        org.pastEvents(past);
        org.events(calendar);
        QCOMPARE(past.size(), 3);
        QCOMPARE(past[1].results(), QStringList{"a line"});
        QCOMPARE(calendar[1].date(), QDate(2012, 6, 8));
        QVERIFY(calendar[1].results().isEmpty());
        QCOMPARE(calendar[2].name(), QString("G-1 Event"));
    }

    void careerThroughTheRoster()
    {
        Entity_Org org = promotion();
        org.recordMatch(today, 12, "Win: Cy Cole - KO(Hook) - Rd. 1(0:40) - G-1: G-1 Summer 2011", "Single Match");
        const Entity_Fighter bo = org.rosterFighter(12);
        QCOMPARE(bo.number(Entity_Fighter::Wins), 1);
        QCOMPARE(bo.number(Entity_Fighter::Kos), 1);
        QCOMPARE(bo.number(Entity_Fighter::ContractFightsLeft), 3);
        QCOMPARE(bo.history().value(today).left(9), QString("Win: Cy C"));
        org.recordMatch(today, 99, "Win: nobody", "Single Match");
        QCOMPARE(idsInKeyOrder(org), QList<int>({11, 13, 12}));

        org.refreshReputations();
        QCOMPARE(org.rosterFighter(12).text(Entity_Fighter::Reputation), QString("World Class"));
    }
};

QTEST_GUILESS_MAIN(tst_Organisation)
#include "tst_organisation.moc"
