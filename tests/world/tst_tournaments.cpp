#include "WorldSamples.h"

#include "fighters/ResultEntry.h"
#include "persistence/NameFiles.h"
#include "world/DayFlow.h"
#include "world/WorldInvariants.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString Qualifiers = "Test FC Grand Prix 2011 Opening Round";
const QString Finals = "Test FC Grand Prix 2011 Final";
const QString Prix = "Test FC Grand Prix 2011";
const QDate Today(2011, 3, 1);
const QString Q = Entity_Match::TournamentQualifier;
const QString QF = Entity_Match::TournamentQuarterfinal;
const QString SF = Entity_Match::TournamentSemifinal;
const QString F = Entity_Match::TournamentFinal;

// a man who can fight: every attribute at 60; id 100 + i, ranked by i
Entity_Fighter fitMan(int i)
{
    Entity_Fighter man = fighter(100 + i, "Ken", "Man" + QString::number(i), 100 * (i + 1), Org, 5);
    for (int a = Entity_Fighter::FirstAttribute; a <= Entity_Fighter::LastAttribute; ++a)
        man.setNumber(Entity_Fighter::Number(a), 60);
    man.setNumber(Entity_Fighter::HeadDurability, 60);
    man.setNumber(Entity_Fighter::BodyDurability, 60);
    return man;
}

QList<Entity_Fighter> fitRoster(int size)
{
    QList<Entity_Fighter> men;
    for (int i = 0; i < size; ++i)
        men.append(fitMan(i));
    return men;
}

Entity_Match pair(const QString &type, int a, int b)
{
    return slot(type, fitMan(a).fullName(), 100 + a, fitMan(b).fullName(), 100 + b);
}

// the finals card: a single, four quarterfinals (men 0 to 7 in order when filled), two
// semifinals and the final
QList<Entity_Match> finalsCard(bool quartersFilled)
{
    QList<Entity_Match> card{pair(Entity_Match::SingleMatch, 20, 21)};
    for (int i = 0; i < 4; ++i)
        card.append(quartersFilled ? pair(QF, 2 * i, 2 * i + 1) : slot(QF));
    card << slot(SF) << slot(SF) << slot(F);
    return card;
}

// the qualifiers: men 0 to 15, two by two
QList<Entity_Match> qualifierCard()
{
    QList<Entity_Match> card;
    for (int i = 0; i < 8; ++i)
        card.append(pair(Q, 2 * i, 2 * i + 1));
    return card;
}

World worldOf(const QList<Entity_Event> &calendar, const QList<Entity_GymFighter> &gym = {})
{
    World w;
    w.currentDate = Today;
    // every student place taken, so that nobody new comes to the gym
    for (int i = 0; i < 3; ++i)
        w.students.append(fighter(2000, "Stu", "Dent" + QString::number(i), 0));
    Entity_Org::Titles titles;
    titles.insert(Prix, "Vacant");
    w.organisations = {organisation(Org, calendar, fitRoster(40), titles)};
    w.fighters = gym;
    for (const Entity_GymFighter &man : gym)
        w.bookings.append(Entity_Booking::emptyFor(man.getId(), man.fullName(), QDate(1999, 1, 1)));
    return w;
}

Entity_Event night(const QString &name)
{
    QList<Entity_Event> calendar;
    GameManager::instance().organisation(Org).events(calendar);
    for (const Entity_Event &event : std::as_const(calendar))
        if (event.name() == name)
            return event;
    return {};
}

// his newest career entry: the last date's, and of one date the one entered last, which stands first
QString newestEntry(int id)
{
    const Entity_Fighter::History history = GameManager::instance().rosterFighter(Org, id).history();
    return history.isEmpty() ? QString() : *history.constFind(history.lastKey());
}

bool wonLast(int id)
{
    return ResultEntry(newestEntry(id)).isWin();
}

void runTheDay()
{
    DayFlow flow(GameManager::instance(), NameFiles::book(), [](const QString &) {});
    flow.run();
}

} // namespace

class tst_Tournaments : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(23); }
    void cleanup() { GameManager::instance().resetWorld(); }

    // On the finals night the first two quarterfinal winners meet in the first semifinal, the last
    // two in the second, and the semifinal winners in the final, in the order that they win.
    void theBracketFillsInTheOrderOfTheResults()
    {
        QVERIFY(worldOf({makeEvent(Finals, Org, Today, finalsCard(true), Prix)}).load());
        struct Step {
            int winner;
            const char *round;
            int match; // the card's place of the match he goes into
            bool first;
        };
        const Step steps[] = {
            {1, " for a Tournament Semifinal at ", 5, true}, {2, " for a Tournament Semifinal at ", 5, false},
            {5, " for a Tournament Semifinal at ", 6, true}, {7, " for a Tournament Semifinal at ", 6, false},
            {2, " for the Tournament Final at ", 7, true},   {7, " for the Tournament Final at ", 7, false},
        };
        for (const Step &step : steps) {
            const Entity_Fighter man = fitMan(step.winner);
            QCOMPARE(GameManager::instance().advanceTournamentWinner(man.getId(), Org),
                     "Booked " + man.fullName() + step.round + Finals);
            const Entity_Match match = night(Finals).matchAt(step.match);
            QCOMPARE(step.first ? match.fighterOneId() : match.fighterTwoId(), man.getId());
        }
        QVERIFY(night(Finals).cardFilled());
        QVERIFY2(WorldInvariants::check(GameManager::instance().state()).isEmpty(),
                 qPrintable(WorldInvariants::check(GameManager::instance().state()).join('\n')));
    }

    // A full card sends its winners to the organisation's next night, whatever it is.
    void aQualifierWinnerGoesToTheNextNight_data()
    {
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("match"); // where he stands on the next night; -1 nowhere
        QTest::newRow("the finals, weeks away") << "finals"
                                                << " for a Tournament Quarterfinal at " + Finals << 1;
        QTest::newRow("a plain night") << "plain" << QString(" for a Tournament Semifinal at Plain Night") << -1;
        QTest::newRow("no night left") << "none" << QString(" for a Tournament Semifinal at ") << -1;
    }

    void aQualifierWinnerGoesToTheNextNight()
    {
        QFETCH(QString, next);
        QFETCH(QString, line);
        QFETCH(int, match);
        QList<Entity_Event> calendar{makeEvent(Qualifiers, Org, Today, qualifierCard())};
        if (next == "finals")
            calendar.append(makeEvent(Finals, Org, Today.addDays(40), finalsCard(false), Prix));
        else if (next == "plain")
            calendar.append(makeEvent("Plain Night", Org, Today.addDays(40), {slot(Entity_Match::SingleMatch)}));
        QVERIFY(worldOf(calendar).load());
        const QByteArray before = SavedWorld::runningBytes();
        const Entity_Fighter man = fitMan(3);
        QCOMPARE(GameManager::instance().advanceTournamentWinner(man.getId(), Org), "Booked " + man.fullName() + line);
        if (match < 0) {
            QCOMPARE(SavedWorld::runningBytes(), before);
            return;
        }
        QCOMPARE(night(Finals).matchAt(match).fighterOneId(), man.getId());
    }

    // the user's man who wins his qualifier is booked for the finals night at once
    void aGymWinnersBookingFollowsHim()
    {
        const Entity_GymFighter mine = gymFighter(1059, "Jo", "Gym", 350, Org, 3, 1000);
        QList<Entity_Match> qualifiers = qualifierCard();
        qualifiers[1] = slot(Q, "Jo Gym", 1059, fitMan(3).fullName(), 103, true);
        const Entity_Event finals = makeEvent(Finals, Org, Today.addDays(40), finalsCard(false), Prix);
        QVERIFY(worldOf({bookedEvent(makeEvent(Qualifiers, Org, Today, qualifiers), true), finals}, {mine}).load());
        QCOMPARE(GameManager::instance().advanceTournamentWinner(1059, Org),
                 "Booked Jo Gym for a Tournament Quarterfinal at " + Finals);
        QCOMPARE(GameManager::instance().bookingsByFighter().value("Jo Gym"),
                 Finals + " - " + finals.date().toString(Qt::TextDate));
        QVERIFY(night(Finals).matchAt(1).holds(1059));
        QVERIFY(night(Finals).isUserBooked());
    }

    // The qualifier night through the day: its winners, and nobody else, stand in the quarterfinals.
    void aQualifierLoserStaysOut()
    {
        QVERIFY(worldOf({makeEvent(Qualifiers, Org, Today, qualifierCard()),
                         makeEvent(Finals, Org, Today.addDays(40), finalsCard(false), Prix)})
                    .load());
        runTheDay();
        QSet<int> winners;
        for (int id = 100; id < 116; ++id)
            if (wonLast(id))
                winners.insert(id);
        QCOMPARE(winners.size(), 8);
        QSet<int> quarterfinalists;
        for (const Entity_Match &match : night(Finals).matches())
            if (match.matchType() == QF)
                quarterfinalists << match.fighterOneId() << match.fighterTwoId();
        QCOMPARE(quarterfinalists, winners);
        QVERIFY2(WorldInvariants::check(GameManager::instance().state()).isEmpty(),
                 qPrintable(WorldInvariants::check(GameManager::instance().state()).join('\n')));
    }

    // The finals night through the day: each winner's booking line follows his match in the
    // results, the last semifinal's winner stands second in the final, and the final's winner
    // holds the year's Grand Prix.
    void theFinalsNightCrownsAWinner()
    {
        QVERIFY(worldOf({makeEvent(Finals, Org, Today, finalsCard(true), Prix)}).load());
        runTheDay();
        const Entity_Event finals = night(Finals);
        const QStringList results = finals.results();
        // the single, four quarterfinals and two semifinals with their lines, the final
        QCOMPARE(results.size(), 1 + 2 * 6 + 1);
        for (int i = 1; i < 13; i += 2) {
            QVERIFY2(results[i].startsWith(i < 9 ? QF + " - " : SF + " - "), qPrintable(results[i]));
            QVERIFY2(results[i + 1].startsWith("Booked ") && results[i + 1].endsWith(Finals + '\n'),
                     qPrintable(results[i + 1]));
        }
        // the winner of the last semifinal fought once more than its loser
        const Entity_Match lastSemifinal = finals.matchAt(6);
        const auto fights = [](int id) { return GameManager::instance().rosterFighter(Org, id).history().size(); };
        const int secondFinalist = fights(lastSemifinal.fighterOneId()) > fights(lastSemifinal.fighterTwoId())
                                       ? lastSemifinal.fighterOneId()
                                       : lastSemifinal.fighterTwoId();
        QCOMPARE(finals.matchAt(7).fighterTwoId(), secondFinalist);
        QCOMPARE(results[12], "Booked " + GameManager::instance().rosterFighter(Org, secondFinalist).fullName() +
                                  " for the Tournament Final at " + Finals + '\n');

        const Entity_Match final = finals.matchAt(7);
        const int champion = wonLast(final.fighterOneId()) ? final.fighterOneId() : final.fighterTwoId();
        Entity_Org::Titles titles;
        GameManager::instance().organisation(Org).titlesCopy(titles);
        const Entity_Fighter winner = GameManager::instance().rosterFighter(Org, champion);
        QCOMPARE(titles.value(Prix), winner.fullName());
        QVERIFY(newestEntry(champion).contains(" - Won " + Prix));
        QVERIFY(winner.titleList().contains(Prix));
        QVERIFY2(WorldInvariants::check(GameManager::instance().state()).isEmpty(),
                 qPrintable(WorldInvariants::check(GameManager::instance().state()).join('\n')));
    }
};

QTEST_GUILESS_MAIN(tst_Tournaments)
#include "tst_tournaments.moc"
