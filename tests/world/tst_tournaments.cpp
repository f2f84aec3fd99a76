#include "WorldSamples.h"

#include "fighters/ResultEntry.h"
#include "persistence/NameFiles.h"
#include "world/DayFlow.h"

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

// a man who can fight: every attribute at 60; id 100 + i, ranked by i
Entity_Fighter fitMan(int i)
{
    Entity_Fighter man = fighter(100 + i, "Ken", "Man" + QString::number(i), 100 * (i + 1), Org, 5);
    setAll(man, 60);
    man.setNumber(Entity_Fighter::HeadDurability, 60);
    man.setNumber(Entity_Fighter::BodyDurability, 60);
    return man;
}

Entity_Match pair(const QString &type, int a, int b)
{
    return slot(type, fitMan(a).fullName(), 100 + a, fitMan(b).fullName(), 100 + b);
}

// the finals card: a single, four quarterfinals (men 0 to 7 in order when filled), two
// semifinals and the final
Entity_Event finalsNight(int days, bool quartersFilled)
{
    QList<Entity_Match> card{pair(Entity_Match::SingleMatch, 20, 21)};
    for (int i = 0; i < 4; ++i)
        card.append(quartersFilled ? pair(QF, 2 * i, 2 * i + 1) : slot(QF));
    card << slot(Entity_Match::TournamentSemifinal) << slot(Entity_Match::TournamentSemifinal)
         << slot(Entity_Match::TournamentFinal);
    return makeEvent(Finals, Org, Today.addDays(days), card, Prix);
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
    w.fillStudentPlaces();
    QList<Entity_Fighter> roster;
    for (int i = 0; i < 40; ++i)
        roster.append(fitMan(i));
    w.organisations = {organisation(Org, calendar, roster, {{Prix, "Vacant"}})};
    w.addGym(gym);
    return w;
}

// his newest career entry: the last date's, and of one date the one entered last, which stands first
QString newestEntry(int id)
{
    const Entity_Fighter::History history = game().rosterFighter(Org, id).history();
    return history.isEmpty() ? QString() : *history.constFind(history.lastKey());
}

void runTheDay()
{
    DayFlow(game(), NameFiles::book(), [](const QString &) {}).run();
}

} // namespace

class tst_Tournaments : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(23); }
    void cleanup() { game().resetWorld(); }

    // A full card sends its winners to the organisation's next night, whatever it is.
    void aQualifierWinnerGoesToTheNextNight_data()
    {
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("placed");
        QTest::newRow("the finals, weeks away") << "finals"
                                                << " for a Tournament Quarterfinal at " + Finals << true;
        QTest::newRow("a plain night") << "plain" << QString(" for a Tournament Semifinal at Plain Night") << false;
        QTest::newRow("no night left") << "none" << QString(" for a Tournament Semifinal at ") << false;
    }
    void aQualifierWinnerGoesToTheNextNight()
    {
        QFETCH(QString, next);
        QFETCH(QString, line);
        QFETCH(bool, placed);
        QList<Entity_Event> calendar{makeEvent(Qualifiers, Org, Today, qualifierCard())};
        if (next == "finals")
            calendar.append(finalsNight(40, false));
        else if (next == "plain")
            calendar.append(makeEvent("Plain Night", Org, Today.addDays(40), {slot(Entity_Match::SingleMatch)}));
        QVERIFY(worldOf(calendar).load());
        const QByteArray before = SavedWorld::runningBytes();
        QCOMPARE(game().advanceTournamentWinner(103, Org), "Booked Ken Man3" + line);
        if (placed)
            QCOMPARE(eventNamed(Org, Finals).matchAt(1).fighterOneId(), 103);
        else
            QCOMPARE(SavedWorld::runningBytes(), before);
    }

    // the user's man who wins his qualifier is booked for the finals night at once
    void aGymWinnersBookingFollowsHim()
    {
        QList<Entity_Match> qualifiers = qualifierCard();
        qualifiers[1] = slot(Q, "Jo Gym", 1059, fitMan(3).fullName(), 103, true);
        const Entity_Event finals = finalsNight(40, false);
        QVERIFY(worldOf({bookedEvent(makeEvent(Qualifiers, Org, Today, qualifiers), true), finals},
                        {gymFighter(1059, "Jo", "Gym", 350, Org, 3, 1000)})
                    .load());
        QCOMPARE(game().advanceTournamentWinner(1059, Org), "Booked Jo Gym for a Tournament Quarterfinal at " + Finals);
        QCOMPARE(game().bookingsByFighter().value("Jo Gym"), Finals + " - " + finals.date().toString(Qt::TextDate));
        QVERIFY(eventNamed(Org, Finals).matchAt(1).holds(1059));
        QVERIFY(eventNamed(Org, Finals).isUserBooked());
    }

    // The finals night through the day: each winner's booking line follows his match in the
    // results, the first two quarterfinal winners meet in the first semifinal, the last two in
    // the second, the semifinal winners in the final in the order that they win, and the
    // final's winner holds the year's Grand Prix.
    void theFinalsNightCrownsAWinner()
    {
        QVERIFY(worldOf({finalsNight(0, true)}).load());
        runTheDay();
        const Entity_Event finals = eventNamed(Org, Finals);
        const QStringList results = finals.results();
        // the single, four quarterfinals and two semifinals with their lines, the final
        QCOMPARE(results.size(), 1 + 2 * 6 + 1);
        for (int i = 0; i < 6; ++i) {
            const QString round = i < 4 ? " for a Tournament Semifinal at " : " for the Tournament Final at ";
            QVERIFY2(results[2 * i + 1].startsWith(i < 4 ? QF + " - " : "Tournament Semifinal - "),
                     qPrintable(results[2 * i + 1]));
            const Entity_Match next = finals.matchAt(5 + i / 2);
            const QString winner = i % 2 ? next.fighterTwo() : next.fighterOne();
            QCOMPARE(results[2 * i + 2], "Booked " + winner + round + Finals + '\n');
        }
        const Entity_Match final = finals.matchAt(7);
        const bool firstWon = ResultEntry(newestEntry(final.fighterOneId())).isWin();
        const Entity_Fighter winner = game().rosterFighter(Org, firstWon ? final.fighterOneId() : final.fighterTwoId());
        QCOMPARE(titlesOf(Org).value(Prix), winner.fullName());
        QVERIFY(newestEntry(winner.getId()).contains(" - Won " + Prix));
        QVERIFY(winner.titleList().contains(Prix));
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }
};

QTEST_GUILESS_MAIN(tst_Tournaments)
#include "tst_tournaments.moc"
