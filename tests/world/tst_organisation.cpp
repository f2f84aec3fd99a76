#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

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
        QTest::newRow("unknown id") << 99 << -1000 << QList<int>{11, 13, 12};
    }

    void rankingScoreMoves()
    {
        QFETCH(int, id);
        QFETCH(int, delta);
        QFETCH(QList<int>, order);
        Entity_Org org = promotion();
        org.addRankingScore(id, delta);
        QCOMPARE(org.rosterSize(), 3);
        QCOMPARE(idsInKeyOrder(org), order);
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

    // Al holds last year's tournament and two other rows: the first of those in key order goes
    void retirement_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QDate>("day");
        QTest::addColumn<bool>("retired");
        QTest::addColumn<QString>("holders"); // in key order of the titles
        QTest::newRow("before his next card") << 11 << QDate(2011, 6, 1) << true << "Al, Vacant, Al, Bo";
        QTest::newRow("on the day of a show") << 11 << QDate(2011, 6, 8) << false << "Al, Al, Al, Bo";
        QTest::newRow("after the last night of the year") << 11 << QDate(2011, 12, 1) << true << "Al, Vacant, Al, Bo";
        QTest::newRow("a man without a title") << 13 << QDate(2011, 6, 1) << true << "Al, Al, Al, Bo";
        QTest::newRow("a man of another roster") << 99 << QDate(2011, 6, 1) << false << "Al, Al, Al, Bo";
    }
    void retirement()
    {
        QFETCH(int, id);
        QFETCH(QDate, day);
        QFETCH(bool, retired);
        QFETCH(QString, holders);
        Entity_Org org = promotion({{"G-1 Grand Prix 2010", "Al Ames"},
                                    {"G-1 Middleweight Title", "Al Ames"},
                                    {"G-1 World Championship", "Al Ames"},
                                    {"G-1 Zeta Belt", "Bo Bell"}});
        QCOMPARE(org.retireRosterFighter(id, 2010, day), retired);
        QCOMPARE(titlesOf(org).values().join(", ").replace(" Ames", "").replace(" Bell", ""), holders);
        QCOMPARE(org.rosterSize(), retired ? 2 : 3);
        QCOMPARE(org.holdsFighter(id), !retired && id != 99);
        // he leaves only the next card of the calendar, the Summer night
        QList<Entity_Event> calendar;
        org.events(calendar);
        QCOMPARE(calendar[1].holdsFighter(11), !(retired && id == 11 && day < QDate(2011, 6, 8)));
        QVERIFY(calendar[2].holdsFighter(11));
    }
};

QTEST_GUILESS_MAIN(tst_Organisation)
#include "tst_organisation.moc"
