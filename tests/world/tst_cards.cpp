#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Single = Entity_Match::SingleMatch;
const QString Title = Entity_Match::ChampionshipMatch;
const QString Qualifier = Entity_Match::TournamentQualifier;
const QString Quarter = Entity_Match::TournamentQuarterfinal;
const QString Semi = Entity_Match::TournamentSemifinal;
const QString Final = Entity_Match::TournamentFinal;

const QDate night(2011, 5, 14);

// a finals night: four quarterfinals, two semifinals, the final last; the first quarterfinal fought
Entity_Event finalsNight()
{
    return makeEvent("GKO Grand Prix 2011", "GKO", night,
                     {slot(Quarter, "Al Ames", 11, "Bo Bell", 12), slot(Quarter), slot(Quarter), slot(Quarter),
                      slot(Semi), slot(Semi), slot(Final)},
                     "GKO Grand Prix 2011");
}

// two undercard bouts and a main event
Entity_Event fightNight(const QString &name = "G-1 Fight Night 2011")
{
    return makeEvent(name, "G-1", night, {slot(Single), slot(Single), slot(Single)});
}

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

class tst_Cards : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(3); }

    // who may be added where on a card
    void addingToACard_data()
    {
        QTest::addColumn<Entity_Event>("card");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("matchType");
        QTest::addColumn<bool>("isGymFighter");
        QTest::addColumn<bool>("added");
        QTest::addColumn<bool>("userBookedAfter");

        const Entity_Event plain = fightNight();
        Entity_Event withAl = plain;
        withAl.addFighter(11, "Al Ames", Single, false);
        Entity_Event withUser = plain;
        withUser.addFighter(31, "Gus Gray", Single, true);

        QTest::newRow("a slot type the card lacks") << plain << 11 << Title << false << false << false;
        QTest::newRow("the user's man marks the card") << plain << 31 << Single << true << true << true;
        QTest::newRow("a man twice on a card") << withAl << 11 << Single << false << false << false;
        QTest::newRow("a second man of the user") << withUser << 32 << Single << true << false << true;
        QTest::newRow("a stranger beside the user's man") << withUser << 12 << Single << false << true << true;

        Entity_Event finals = finalsNight();
        QTest::newRow("quarterfinal winner into a semifinal") << finals << 11 << Semi << false << true << false;
        QTest::newRow("quarterfinal winner into a second quarterfinal")
            << finals << 11 << Quarter << false << false << false;
        Entity_Event userFinals = finals;
        QVERIFY(userFinals.addFighter(41, "Hal Hart", Quarter, true));
        QTest::newRow("second man of the user refused a quarterfinal")
            << userFinals << 42 << Quarter << true << false << true;
        QTest::newRow("second man of the user into a semifinal") << userFinals << 42 << Semi << true << true << true;

        // the exception holds for tournament cards only
        Entity_Event semisOnly =
            makeEvent("Odd Night", "G-1", night, {slot(Semi, "Al Ames", 11, "Bo Bell", 12, false), slot(Semi)});
        QTest::newRow("semifinal without tournament rounds") << semisOnly << 11 << Semi << false << true << false;
    }

    void addingToACard()
    {
        QFETCH(Entity_Event, card);
        QFETCH(int, id);
        QFETCH(QString, matchType);
        QFETCH(bool, isGymFighter);
        QFETCH(bool, added);
        QFETCH(bool, userBookedAfter);

        const Entity_Event before = card;
        QCOMPARE(card.addFighter(id, "New Man", matchType, isGymFighter), added);
        QCOMPARE(card.isUserBooked(), userBookedAfter);
        if (!added)
            QVERIFY(card == before);
        else
            QVERIFY(card.holdsFighter(id));
    }

    // which parts count as filled: the undercard, the whole card, the singles, the titles and
    // the tournament slots, in this order
    void fillTests_data()
    {
        QTest::addColumn<Entity_Event>("card");
        QTest::addColumn<QString>("filled");
        const Entity_Match full = slot(Single, "A A", 1, "B B", 2);
        const Entity_Match title = slot(Title, "C C", 3, "D D", 4);
        QTest::newRow("one open match is its own main event")
            << makeEvent("1", "G-1", night, {slot(Single)}) << "10011";
        QTest::newRow("half-filled title fight as main event")
            << makeEvent("2", "G-1", night, {full, slot(Title, "C C", 3)}) << "10101";
        QTest::newRow("open undercard") << makeEvent("3", "G-1", night, {slot(Single), title}) << "00011";
        QTest::newRow("full card") << makeEvent("4", "G-1", night, {full, title}) << "11111";
        QTest::newRow("open qualifier") << makeEvent("5", "G-1", night, {slot(Qualifier, "E E", 5), full}) << "00110";
        // the later rounds fill while the night runs and don't count
        Entity_Event finals = finalsNight();
        for (int i = 1; i < 4; ++i) {
            QVERIFY(finals.addFighter(100 + i, "Q One", Quarter, false));
            QVERIFY(finals.addFighter(200 + i, "Q Two", Quarter, false));
        }
        QTest::newRow("finals night with its later rounds open") << finals << "00111";
        QTest::newRow("empty card") << Entity_Event() << "11111";
    }
    void fillTests()
    {
        QFETCH(Entity_Event, card);
        QFETCH(QString, filled);
        const QList<bool> tests{card.undercardFilled(), card.cardFilled(), card.singlesFilled(),
                                card.championshipsFilled(), card.tournamentSlotsFilled()};
        QString read;
        for (bool test : tests)
            read += test ? '1' : '0';
        QCOMPARE(read, filled);
    }

    // the main event names the night as it fills up
    void renameSequence()
    {
        Entity_Event card = fightNight();
        card.addFighter(11, "Al Ames", Single, false);
        card.rename(11, "Ames"); // an undercard man leaves the name alone
        QCOMPARE(card.name(), QString("G-1 Fight Night 2011"));
        card.addFighter(12, "Bo Bell", Single, false);
        card.addFighter(13, "Cy Cole", Single, false);
        card.addFighter(14, "Dee Dunn", Single, false);
        card.addFighter(15, "Ed Egan", Single, false);
        card.rename(15, "Egan");
        QCOMPARE(card.name(), QString("G-1: Egan vs. TBA"));
        card.rename(99, "Nobody");
        QCOMPARE(card.name(), QString("G-1: Egan vs. TBA"));
        card.addFighter(16, "Fin Ford", Single, false);
        card.rename(16, "Ford");
        QCOMPARE(card.name(), QString("G-1: Egan vs. Ford"));
        card.rename(12, "Ford"); // a namesake on the undercard
        QCOMPARE(card.name(), QString("G-1: Egan vs. Ford"));

        // a new first man keeps the second, the text after "vs." with its blank
        card.removeFighter(15, false);
        card.addFighter(17, "Gil Gow", Single, false);
        card.rename(17, "Gow");
        QCOMPARE(card.name(), QString("G-1: Gow vs.  Ford"));
        // a new second man takes the place of that text, blank and all
        card.removeFighter(16, false);
        card.addFighter(18, "Hap Hull", Single, false);
        card.rename(18, "Hull");
        QCOMPARE(card.name(), QString("G-1: Gow vs.Hull"));
    }

    // a tournament night keeps its name whoever fights on it
    void tournamentNightsKeepTheirNames()
    {
        Entity_Event qualifiers = makeEvent("GKO Qualifiers 2011", "GKO", night, {slot(Qualifier), slot(Single)});
        qualifiers.addFighter(22, "Jo Judd", Single, false);
        qualifiers.rename(22, "Judd");
        QCOMPARE(qualifiers.name(), QString("GKO Qualifiers 2011"));
    }

    void rollOver_data()
    {
        QTest::addColumn<Entity_Event>("before");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QDate>("date");

        const QDate nextYear(2012, 5, 14);
        const QString none = "No Title";
        QTest::newRow("the year in a name")
            << fightNight("G-1 Spring 2011") << QString("G-1 Spring 2012") << none << nextYear;
        QTest::newRow("a name without a year") << fightNight("G-1 Spring") << QString("G-1 Spring") << none << nextYear;
        QTest::newRow("a named main event")
            << fightNight("G-1: Egan vs. Ford") << QString("G-1 Event") << none << nextYear;
        const QString belt = "G-1 World Championship";
        QTest::newRow("a named title fight")
            << makeEvent("G-1: Egan vs. TBA", "G-1", night, {slot(Single), slot(Title, "E E", 15)}, belt)
            << QString("G-1 Championship Fight") << belt << nextYear;
        QTest::newRow("tournament title moves its year")
            << finalsNight() << QString("GKO Grand Prix 2012") << QString("GKO Grand Prix 2012") << nextYear;
        QTest::newRow("title of a plain night keeps its year")
            << makeEvent("G-1 Gala 2011", "G-1", night, {slot(Title)}, belt + " 2011") << QString("G-1 Gala 2012")
            << belt + " 2011" << nextYear;
        QTest::newRow("29 February") << makeEvent("Leap Night 2012", "G-1", QDate(2012, 2, 29), {slot(Single)})
                                     << QString("Leap Night 2013") << none << QDate(2013, 2, 28);
    }

    void rollOver()
    {
        QFETCH(Entity_Event, before);
        QFETCH(QString, name);
        QFETCH(QString, title);
        QFETCH(QDate, date);

        Entity_Event card = before;
        card.addFighter(51, "Kay Kemp", card.matchAt(0).matchType(), true);
        card.addResults({"Single Match - a line"});
        card.rollOver();
        QCOMPARE(card.name(), name);
        QCOMPARE(card.title(), title);
        QCOMPARE(card.date(), date);
        QVERIFY(card.results().isEmpty());
        QVERIFY(!card.isUserBooked());
        QCOMPARE(card.matchCount(), before.matchCount());
        for (const Entity_Match &match : card.matches())
            QVERIFY(match == Entity_Match(match.matchType()));
    }

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

QTEST_GUILESS_MAIN(tst_Cards)
#include "tst_cards.moc"
