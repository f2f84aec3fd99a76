#include "Ring.h"

#include "fighters/GameLists.h"
#include "fighters/MatchStatus.h"
#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/WholeMatch.h"

#include <QRegularExpression>
#include <QtTest>

using Ring::man;
using Ending = WholeMatch::Ending;
using Verdict = JudgesCards::Verdict;

namespace {

const QStringList &styles = GameLists::fightingStyles();

// the result line of every match of the game has one of these two shapes
const QRegularExpression stoppageLine(
    QStringLiteral("^Test \\w+ defeated Test \\w+ by (T?KO)\\((Jab|Hook|Cross|Uppercut|Low Kick|Mid Kick|High "
                   "Kick|Front Kick|Knee|Elbow|Body Punch)\\) in [0-2]:[0-5]\\d of Round (10|[1-9])\\.$"));
const QRegularExpression decisionLine(QStringLiteral(
    "^Test \\w+ defeated Test \\w+ by (Unanimous|Majority|Split) Decision in 3:00 of Round (10|[3-9])\\.$"));

// a man who cannot hurt and cannot be hurt: his matches go to the judges
Entity_Fighter stayer(int id, const QString &style)
{
    return man(id, style, 0, {{Entity_Fighter::HeadDurability, 1000}, {Entity_Fighter::BodyDurability, 1000}});
}

} // namespace

class tst_WholeMatch : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(20261123); }
    void cleanup() { Random::useRealClock(); }

    // every pairing of styles and strengths comes to an end the world can write down, and the
    // ending, the line, the entries and the counts tell the same story
    void everyMatchEndsWithAResult_data()
    {
        QTest::addColumn<QString>("styleOne");
        QTest::addColumn<QString>("styleTwo");
        QTest::addColumn<int>("levelOne");
        QTest::addColumn<int>("levelTwo");
        for (const QString &a : styles)
            for (const QString &b : styles)
                QTest::addRow("%s v %s", qPrintable(a), qPrintable(b)) << a << b << 55 << 50;
        QTest::newRow("two masters") << QString("Tactician") << QString("Outfighter") << 95 << 95;
        QTest::newRow("no attributes at all") << QString("Puncher") << QString("Clincher") << 0 << 0;
    }

    void everyMatchEndsWithAResult()
    {
        QFETCH(QString, styleOne);
        QFETCH(QString, styleTwo);
        QFETCH(int, levelOne);
        QFETCH(int, levelTwo);
        for (int match = 0; match < 5; ++match) {
            CommentaryBuffer commentary;
            const WholeMatch::Result r =
                WholeMatch::fight(man(1, styleOne, levelOne), man(2, styleTwo, levelTwo), &commentary);
            const QRegularExpressionMatch stopped = stoppageLine.match(r.line);
            const QRegularExpressionMatch decided = decisionLine.match(r.line);
            QVERIFY2(stopped.hasMatch() || decided.hasMatch(), qPrintable(r.line));
            if (stopped.hasMatch()) {
                QCOMPARE(r.ending, stopped.captured(1) == "KO" ? Ending::Knockout : Ending::TechnicalKnockout);
                QCOMPARE(r.verdict, Verdict::None);
                QCOMPARE(stopped.captured(3).toInt(), r.rounds);
            } else {
                QCOMPARE(r.ending, Ending::Decision);
                QCOMPARE(decided.captured(1) + " Decision", JudgesCards::word(r.verdict));
                QCOMPARE(decided.captured(2).toInt(), r.rounds);
            }
            QVERIFY(r.winnerId + r.loserId == 3 && r.winnerId != r.loserId);
            const QString winner = r.winnerId == 1 ? "Test Alder" : "Test Birch";
            const QString loser = r.winnerId == 1 ? "Test Birch" : "Test Alder";
            QVERIFY(r.line.startsWith(winner + " defeated " + loser) && r.steps >= r.rounds);
            // the entries name the other man and the same ending as the line
            const QString how = r.line.section(" by ", 1).section(" in ", 0, 0);
            const QString when = " - Rd. " + QString::number(r.rounds) + '(';
            QVERIFY2(r.winnerEntry.startsWith("Win: " + loser + " - " + how + when), qPrintable(r.winnerEntry));
            QVERIFY2(r.loserEntry.startsWith("Loss: " + winner + " - " + how + when), qPrintable(r.loserEntry));
            // each step flushes both men's comments, empty ones included
            QVERIFY(commentary.paragraphs().size() >= 2 * r.steps);
            // what the fight screen and the match summary read stays consistent
            for (const QList<int> &status : {r.statusOne, r.statusTwo}) {
                for (int strike = 0; strike < MatchStatus::StrikeCount; ++strike)
                    QVERIFY(status[MatchStatus::landed(strike)] <= status[MatchStatus::thrown(strike)]);
                for (int defence = 0; defence < MatchStatus::DefenceCount; ++defence)
                    QVERIFY(status[MatchStatus::made(defence)] <= status[MatchStatus::tried(defence)]);
            }
            // every knockdown one man takes, the other scored
            QVERIFY(qAbs(r.statusOne[MatchStatus::KnockdownsScored] - r.statusTwo[MatchStatus::KnockdownsTaken]) <= 1);
            QVERIFY(qAbs(r.statusTwo[MatchStatus::KnockdownsScored] - r.statusOne[MatchStatus::KnockdownsTaken]) <= 1);
        }
    }

    // the fight night drives a match a step at a time: under the same clock it is the very match
    // that the day flow fights in one go
    void stepByStepIsTheWholeMatch()
    {
        for (int seed = 1; seed <= 3; ++seed) {
            const Entity_Fighter one = man(1, styles[seed], 55);
            const Entity_Fighter two = seed % 2 ? stayer(2, styles[seed - 1]) : man(2, "Kicker", 50);
            CommentaryBuffer atOnce;
            Random::useTestClock(seed);
            const WholeMatch::Result whole = WholeMatch::fight(one, two, &atOnce);

            CommentaryBuffer stepped;
            Random::useTestClock(seed);
            WholeMatch match(one, two, &stepped);
            int steps = 0, bells = 0;
            while (!match.isOver()) {
                match.beginRound();
                WholeMatch::Moment moment = match.step();
                for (++steps; moment == WholeMatch::Moment::Fighting; ++steps)
                    moment = match.step();
                if (moment == WholeMatch::Moment::Bell) {
                    ++bells;
                    match.bell();
                }
            }
            const WholeMatch::Result &r = match.result();
            QCOMPARE(r.line, whole.line);
            QCOMPARE(r.winnerEntry, whole.winnerEntry);
            QCOMPARE(QList<int>({r.steps, r.rounds, match.cards().rounds()}), QList<int>({steps, whole.rounds, bells}));
            QCOMPARE(r.steps, whole.steps);
            QCOMPARE(r.statusOne, whole.statusOne);
            QCOMPARE(stepped.paragraphs(), atOnce.paragraphs());
        }
    }

    // From the third bell on the match ends exactly when the cards show a majority, and goes on
    // a round at a time while they don't.
    void theJudgesGoOnUntilAMajority()
    {
        int extended = 0;
        for (int i = 0; i < 120; ++i) {
            WholeMatch match(stayer(1, styles[i % styles.size()]),
                             stayer(2, styles[(i / styles.size()) % styles.size()]));
            bool over = false;
            while (!over) {
                over = match.fightRound();
                const JudgesCards &cards = match.cards();
                QCOMPARE(cards.rounds(), match.result().rounds);
                QCOMPARE(over, cards.verdict() != Verdict::None);
                QVERIFY(cards.rounds() <= JudgesCards::LastRound);
            }
            const WholeMatch::Result &r = match.result();
            const JudgesCards &cards = match.cards();
            QCOMPARE(r.ending, Ending::Decision);
            QCOMPARE(r.verdict, cards.verdict());
            // on equal votes after the tenth the first man has it
            QCOMPARE(r.winnerId, cards.votesOne() >= cards.votesTwo() ? 1 : 2);
            extended += r.rounds > JudgesCards::FirstVerdictRound ? 1 : 0;
        }
        QVERIFY2(extended > 0, "no match went beyond the third round");
    }

    // a stoppage ends the match in its round: that round gets no card, and nothing moves after it
    void aStoppageEndsTheMatchAtOnce()
    {
        int stoppages = 0;
        for (int i = 0; i < 40; ++i) {
            WholeMatch match(man(1, styles[i % styles.size()], 85), man(2, styles[(i + 3) % styles.size()], 25));
            const WholeMatch::Result r = match.fightToTheEnd();
            if (r.ending == Ending::Decision)
                continue;
            ++stoppages;
            QCOMPARE(match.cards().rounds(), r.rounds - 1);
            QVERIFY(r.rounds <= JudgesCards::LastRound);
            const QList<int> &loser = r.loserId == 1 ? r.statusOne : r.statusTwo;
            QVERIFY(loser[MatchStatus::KnockdownsTaken] >= 1);
            QVERIFY(match.fightRound());
            match.beginRound();
            QCOMPARE(match.step(), WholeMatch::Moment::Over);
            QVERIFY(match.bell());
            QCOMPARE(match.result().steps, r.steps);
            QCOMPARE(match.result().line, r.line);
        }
        QVERIFY2(stoppages >= 30, qPrintable(QString::number(stoppages)));
    }
};

QTEST_GUILESS_MAIN(tst_WholeMatch)
#include "tst_wholematch.moc"
