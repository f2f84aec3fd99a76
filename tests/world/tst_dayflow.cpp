#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "fighters/ResultEntry.h"
#include "persistence/NameFiles.h"
#include "world/DayFlow.h"
#include "world/RankMove.h"
#include "world/WorldMatch.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString NightName = "Test FC Night";
const QString Title = "Test FC World Championship";
const QDate Today(2011, 3, 1);

// a championship marks both men with its title, a final only its winner; title matches crown
// the winner, tournament rounds before the final hand him on
struct Kind {
    const char *name, *type;
    bool winnerMarked, loserMarked, crowned, handedOn;
};
const Kind kinds[] = {
    {"single match", "Single Match", false, false, false, false},
    {"championship", "Championship Match", true, true, true, false},
    {"tournament final", "Tournament Final", true, false, true, false},
    {"qualifier", "Tournament Qualifier", false, false, false, true},
};

const QString Qualifiers = "Test FC Grand Prix 2011 Opening Round";
const QString Finals = "Test FC Grand Prix 2011 Final";
const QString Prix = "Test FC Grand Prix 2011";
const QString Q = Entity_Match::TournamentQualifier;
const QString QF = Entity_Match::TournamentQuarterfinal;

// a man who can fight: id 100 + i, ranked by i, every attribute at 60, his head and body able to
// take a blow
Entity_Fighter fitMan(int i)
{
    Entity_Fighter man = fighter(100 + i, "Ken", "Man" + QString::number(i), 100 * (i + 1), Org);
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
    w.fillStudentPlaces();
    QList<Entity_Fighter> roster;
    for (int i = 0; i < 40; ++i)
        roster.append(fitMan(i));
    w.organisations = {organisation(Org, calendar, roster, {{Prix, "Vacant"}, {Title, "Vacant"}})};
    w.addGym(gym);
    return w;
}

// tonight's night of Man1 (id 101, score 200) and Man3 (id 103, score 400): whoever wins, the
// ranks move
World worldWith(const QList<Entity_Match> &card, bool userBooked = false)
{
    return worldOf({bookedEvent(makeEvent(NightName, Org, Today, card, Title), userBooked)});
}

Entity_Match alphaVs(const QString &type, int id = 103)
{
    return slot(type, "Ken Man1", 101, "Ken Man" + QString::number(id - 100), id);
}

Entity_Event tonight()
{
    return eventNamed(Org, NightName);
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

class tst_DayFlow : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(9); }
    void cleanup() { game().resetWorld(); }

    // The day ends the old date's events first and books on the new date; the paragraphs come in
    // the order the screen prints them, and what was fought stays in the world.
    void aDayRunsInItsOrder()
    {
        QVERIFY(worldWith({alphaVs(Entity_Match::SingleMatch)}).load());
        QStringList paragraphs;
        QList<QDate> datesAtSteps;
        DayFlow flow(
            game(), NameFiles::book(), [&](const QString &paragraph) { paragraphs << paragraph; },
            [&](int step) {
                datesAtSteps << (step == int(datesAtSteps.size()) + 1 ? game().getCurrentDate() : QDate());
            });
        flow.run();
        const QDate tomorrow = Today.addDays(1);
        QCOMPARE(datesAtSteps, QList<QDate>({Today, Today, tomorrow, tomorrow, tomorrow, tomorrow}));
        QCOMPARE(game().getCurrentDate(), tomorrow);

        const QString line = tonight().results().value(0);
        QVERIFY2(line.startsWith("Single Match - Ken ") && line.endsWith(".\n"), qPrintable(line));
        const QStringList expectedStart = QString("News for %1|Gym Info: ||%2 event results: |%3||Fighter News: ||"
                                                  "Free Agent News: ||Contract News: ||Event booking news: ")
                                              .arg(Today.toString(Qt::TextDate), NightName, line)
                                              .split('|');
        QCOMPARE(paragraphs.mid(0, expectedStart.size()), expectedStart);
        QCOMPARE(paragraphs.last(), QString());
        QCOMPARE(game().organisation(Org).willingness(), QString("Willing"));
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    // a night of the user's is his fight night, not the world's; an open place fights nobody
    void whatTheWorldFights_data()
    {
        QTest::addColumn<bool>("userBooked");
        QTest::addColumn<int>("opponent");
        QTest::addColumn<int>("matches");
        QTest::newRow("the world's night") << false << 103 << 1;
        QTest::newRow("the user's night") << true << 103 << 0;
        QTest::newRow("a man the roster no longer holds") << false << 999 << 0;
    }
    void whatTheWorldFights()
    {
        QFETCH(bool, userBooked);
        QFETCH(int, opponent);
        QFETCH(int, matches);
        QVERIFY(worldWith({alphaVs("Single Match", opponent)}, userBooked).load());
        DayFlow flow(game(), NameFiles::book(), [](const QString &) {});
        flow.run();
        QCOMPARE(flow.tally().matches, matches);
        QCOMPARE(tonight().results().size(), matches);
    }

    // The career entries name the organisation and the night, and the ranking scores move by the
    // rank-move table.
    void worldMatch_data() { TableRows::add(kinds); }
    void worldMatch()
    {
        const Kind &row = TableRows::current(kinds);
        const QString type = row.type;
        QVERIFY(worldWith({alphaVs(type)}).load());
        const Entity_Event night = tonight();
        const WorldMatch::Outcome outcome = WorldMatch::fight(game(), night, night.matchAt(0));
        QVERIFY(outcome.winnerId == 101 || outcome.winnerId == 103);
        QCOMPARE(outcome.winnerId + outcome.loserId, 204);
        QVERIFY2(outcome.line.startsWith(type + " - "), qPrintable(outcome.line));
        QVERIFY(!outcome.line.contains(" by Decision "));

        const QString where = " - " + Org + ": " + NightName;
        const QString mark = where + '|' + Title;
        QVERIFY2(outcome.winnerEntry.startsWith("Win: ") &&
                     outcome.winnerEntry.endsWith(row.winnerMarked ? mark : where),
                 qPrintable(outcome.winnerEntry));
        QVERIFY2(outcome.loserEntry.startsWith("Loss: ") && outcome.loserEntry.endsWith(row.loserMarked ? mark : where),
                 qPrintable(outcome.loserEntry));
        // the careers hold the entries, a title fight told in the career's own words
        QVERIFY(newestEntry(outcome.winnerId).startsWith(outcome.winnerEntry.section('|', 0, 0)));
        QVERIFY(newestEntry(outcome.loserId).startsWith(outcome.loserEntry.section('|', 0, 0)));

        const int winnerBefore = outcome.winnerId == 101 ? 200 : 400;
        const int move = RankMove::forResult(winnerBefore, 600 - winnerBefore, outcome.line);
        QCOMPARE(game().rosterFighter(Org, outcome.winnerId).getRankingScore(), winnerBefore - move);
        QCOMPARE(game().rosterFighter(Org, outcome.loserId).getRankingScore(), 600 - winnerBefore + move);

        const QString winner = game().rosterFighter(Org, outcome.winnerId).fullName();
        QCOMPARE(titlesOf(Org).value(Title), row.crowned ? winner : QString("Vacant"));
        QCOMPARE(outcome.titleChanged, row.crowned);
        QCOMPARE(outcome.advancingId, row.handedOn ? outcome.winnerId : 0);
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    // the borders of the first row and of the last, in both columns: the winner's score minus the
    // loser's, and the move by a stoppage and by a decision; "Decision" in any verdict is one
    void rankMoves()
    {
        const int rows[][3] = {{301, 150, 75}, {300, 300, 150}, {-300, 33, 26}, {-301, 23, 16}};
        for (const auto &[diff, byStoppage, byDecision] : rows) {
            QCOMPARE(RankMove::points(diff, true), byStoppage);
            QCOMPARE(RankMove::points(diff, false), byDecision);
        }
        QCOMPARE(RankMove::forResult(5301, 5000, "A defeated B by TKO(Low Kick) in 2:00 of Round 3."), 150);
        QCOMPARE(RankMove::forResult(5000, 5000, "Win: B - Split Decision - Rd. 3(3:00)"), 200);
    }

    // the jobs of a new month and a new year run on the new date, each at most once; on the second
    // of the month each training log keeps only its last line
    void calendarJobs_data()
    {
        QTest::addColumn<QDate>("endingDay");
        QTest::addColumn<bool>("monthly");
        QTest::addColumn<bool>("yearly");
        QTest::addColumn<bool>("trimmed");
        QTest::newRow("31 December: month and year") << QDate(2011, 12, 31) << true << true << false;
        QTest::newRow("30 November: the month") << QDate(2011, 11, 30) << true << false << false;
        QTest::newRow("1 January: the logs") << QDate(2012, 1, 1) << false << false << true;
    }
    void calendarJobs()
    {
        QFETCH(QDate, endingDay);
        QFETCH(bool, monthly);
        QFETCH(bool, yearly);
        QFETCH(bool, trimmed);
        World w = worldWith({});
        Entity_GymFighter ames = gymFighter(1101, "Al", "Ames", 5000);
        ames.trainingLog = {"\nRan.", "\nRested."};
        w.addGym({ames});
        w.currentDate = endingDay;
        const Entity_Event pastNight = makeEvent("Test FC Early Night", Org, QDate(endingDay.year(), 1, 1), {});
        const QString prix = "Test FC Grand Prix " + QString::number(endingDay.year() - 1);
        w.organisations = {organisation(Org, {pastNight}, {fitMan(1)}, {{prix, "Ken Man1"}})};
        QList<int> ledger(Entity_Gym::LedgerCount, 0);
        ledger[Entity_Gym::UpgradeCosts] = 500;
        w.gym.unpack(w.gym.strings(), w.gym.values(), ledger);
        QVERIFY(w.load());
        DayFlow(game(), NameFiles::book(), [](const QString &) {}).run();

        const Entity_Gym gym = game().gymRecord();
        QCOMPARE(gym.ledgerEntry(Entity_Gym::LastUpgradeCosts), monthly ? 500 : 0);
        QCOMPARE(gym.ledgerEntry(Entity_Gym::StudentFees), monthly ? 3 * gym.studentFee() : 0);
        QList<Entity_Event> past;
        game().organisation(Org).pastEvents(past);
        QCOMPARE(past.size(), yearly ? 1 : 0);
        QCOMPARE(titlesOf(Org).size(), yearly ? 0 : 1);
        QCOMPARE(game().fighterById(1101).trainingLog.size(), trimmed ? 1 : 3);
    }

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
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }
};

QTEST_GUILESS_MAIN(tst_DayFlow)
#include "tst_dayflow.moc"
