#include "MatchKit.h"

#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"

#include <QRegularExpression>
#include <QtTest>

using MatchKit::fighter;

namespace {

const QStringList styles = {"Outfighter", "Infighter", "Clincher", "Puncher", "Kicker", "Brawler", "Tactician"};

// the result line of every match of the game has one of these two shapes
const QRegularExpression stoppageLine(
    QStringLiteral("^Test \\w+ defeated Test \\w+ by T?KO\\((Jab|Hook|Cross|Uppercut|Low Kick|Mid Kick|High Kick|Front Kick|Knee|Elbow|Body Punch)\\) in [0-2]:[0-5]\\d of Round (10|[1-9])\\.$"));
const QRegularExpression decisionLine(
    QStringLiteral("^Test \\w+ defeated Test \\w+ by Decision in 3:00 of Round (10|[3-9])\\.$"));

} // namespace

class tst_WholeMatch : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(20261123); }
    void cleanup() { Random::useRealClock(); }

    // every pairing of styles and strengths comes to an end the world can write down
    void everyMatchEndsWithAResult_data()
    {
        QTest::addColumn<QString>("styleOne");
        QTest::addColumn<QString>("styleTwo");
        QTest::addColumn<int>("levelOne");
        QTest::addColumn<int>("levelTwo");
        for (const QString &a : styles)
            for (const QString &b : styles)
                QTest::addRow("%s v %s", qPrintable(a), qPrintable(b)) << a << b << 55 << 50;
        QTest::newRow("two novices") << "Brawler" << "Kicker" << 20 << 20;
        QTest::newRow("two masters") << "Tactician" << "Outfighter" << 95 << 95;
        QTest::newRow("no attributes at all") << "Puncher" << "Clincher" << 0 << 0;
    }

    void everyMatchEndsWithAResult()
    {
        QFETCH(QString, styleOne);
        QFETCH(QString, styleTwo);
        QFETCH(int, levelOne);
        QFETCH(int, levelTwo);
        for (int match = 0; match < 5; ++match) {
            CommentaryBuffer commentary;
            const MatchKit::Outcome outcome = MatchKit::fight(fighter(1, "Alder", styleOne, levelOne),
                                                              fighter(2, "Birch", styleTwo, levelTwo), &commentary);
            QVERIFY2(stoppageLine.match(outcome.line).hasMatch() || decisionLine.match(outcome.line).hasMatch(),
                     qPrintable(outcome.line));
            QCOMPARE(outcome.stoppage, stoppageLine.match(outcome.line).hasMatch());
            QVERIFY(outcome.winnerId + outcome.loserId == 3 && outcome.winnerId != outcome.loserId);
            QVERIFY(outcome.winnerEntry.startsWith("Win: Test "));
            QVERIFY(outcome.loserEntry.startsWith("Loss: Test "));
            // each step flushes both men's comments, empty ones included
            QVERIFY(commentary.paragraphs().size() >= 2 * outcome.steps);
        }
    }

    void theSameClockFightsTheSameMatch()
    {
        CommentaryBuffer first, second;
        Random::useTestClock(99);
        const MatchKit::Outcome a = MatchKit::fight(fighter(1, "Alder", "Brawler", 60), fighter(2, "Birch", "Clincher", 58), &first);
        Random::useTestClock(99);
        const MatchKit::Outcome b = MatchKit::fight(fighter(1, "Alder", "Brawler", 60), fighter(2, "Birch", "Clincher", 58), &second);
        QCOMPARE(a.line, b.line);
        QCOMPARE(first.paragraphs(), second.paragraphs());
        Random::useTestClock(100);
        CommentaryBuffer third;
        MatchKit::fight(fighter(1, "Alder", "Brawler", 60), fighter(2, "Birch", "Clincher", 58), &third);
        QVERIFY(third.paragraphs() != first.paragraphs());
    }

    void theBetterManWinsMostNights_data()
    {
        QTest::addColumn<int>("better");
        QTest::addColumn<int>("worse");
        QTest::addColumn<int>("minimumWins"); // of 40
        QTest::newRow("a master against a novice") << 85 << 25 << 38;
        QTest::newRow("a clear edge") << 65 << 45 << 28;
    }

    void theBetterManWinsMostNights()
    {
        QFETCH(int, better);
        QFETCH(int, worse);
        QFETCH(int, minimumWins);
        int wins = 0;
        for (int i = 0; i < 40; ++i) {
            // the better man stands second half of the time, so the tie rule can't help him
            const bool second = i % 2 == 1;
            const MatchKit::Outcome outcome =
                MatchKit::fight(fighter(1, "Alder", styles[i % 7], second ? worse : better),
                                fighter(2, "Birch", styles[(i + 3) % 7], second ? better : worse));
            wins += outcome.winnerId == (second ? 2 : 1) ? 1 : 0;
        }
        QVERIFY2(wins >= minimumWins, qPrintable(QString::number(wins)));
    }

    // what the fight screen reads stays consistent through a whole match
    void statisticsAddUp()
    {
        MatchManager &match = MatchManager::instance();
        for (int i = 0; i < 30; ++i) {
            const MatchKit::Outcome outcome =
                MatchKit::fight(fighter(1, "Alder", styles[i % 7], 50), fighter(2, "Birch", styles[(i + 2) % 7], 50));
            const QList<int> one = match.statusOf(1);
            const QList<int> two = match.statusOf(2);
            QCOMPARE(one.size(), 44);
            for (const QList<int> &status : {one, two})
                for (int pair = 6; pair < 42; pair += 2)
                    QVERIFY2(status[pair] <= status[pair + 1] && status[pair] >= 0, qPrintable(QString::number(pair)));
            const QList<int> &loser = outcome.loserId == 1 ? one : two;
            if (outcome.stoppage)
                QVERIFY(loser[43] >= 1);
            // every knockdown one man takes, the other scored
            QVERIFY(qAbs(one[42] - two[43]) <= 1 && qAbs(two[42] - one[43]) <= 1);
        }
    }
};

QTEST_GUILESS_MAIN(tst_WholeMatch)
#include "tst_wholematch.moc"
