#include "fighters/MatchStatistics.h"
#include "fighters/MatchStatus.h"

#include <QtTest>

// The fourteen rows of a man's statistics after a match.
class tst_MatchStatistics : public QObject
{
    Q_OBJECT

private slots:
    // Every strike and every defence of the engine counts in exactly one row: the rows add up to
    // all that he landed and threw, brought off and tried.
    void everyPairCountsOnce()
    {
        QList<int> status(MatchStatus::Count, 0);
        int landed = 0, thrown = 0, made = 0, tried = 0;
        for (int strike = 0; strike < MatchStatus::StrikeCount; ++strike) {
            // powers of two keep every pair apart in the sums
            status[MatchStatus::landed(strike)] = 1 << strike;
            status[MatchStatus::thrown(strike)] = 1 << (strike + 12);
            landed += 1 << strike;
            thrown += 1 << (strike + 12);
        }
        for (int defence = 0; defence < MatchStatus::DefenceCount; ++defence) {
            status[MatchStatus::made(defence)] = 1 << defence;
            status[MatchStatus::tried(defence)] = 1 << (defence + 6);
            made += 1 << defence;
            tried += 1 << (defence + 6);
        }
        status[MatchStatus::KnockdownsScored] = 3;
        status[MatchStatus::KnockdownsTaken] = 5;

        int rowLanded = 0, rowThrown = 0, rowMade = 0, rowTried = 0;
        const int knockdownRow = MatchStatistics::rowCount() - 1;
        for (int row = 0; row < knockdownRow; ++row) {
            const QStringList pair = MatchStatistics::cell(status, row).split('/');
            QCOMPARE(pair.size(), 2);
            const bool defence = MatchStatistics::label(row) == "Blocks" || MatchStatistics::label(row) == "Dodges" ||
                                 MatchStatistics::label(row) == "Counters";
            (defence ? rowMade : rowLanded) += pair[0].toInt();
            (defence ? rowTried : rowThrown) += pair[1].toInt();
        }
        QCOMPARE(rowLanded, landed);
        QCOMPARE(rowThrown, thrown);
        QCOMPARE(rowMade, made);
        QCOMPARE(rowTried, tried);
        // the knockdowns he scored, alone; the ones he took are not his statistics
        QCOMPARE(MatchStatistics::label(knockdownRow), QString("Knockdowns"));
        QCOMPARE(MatchStatistics::cell(status, knockdownRow), QString("3"));
    }

    // rows that put two strikes together: the body punches with the hooks, dirty boxing with
    // the uppercuts
    void twoStrikesInOneRow()
    {
        QList<int> status(MatchStatus::Count, 0);
        status[MatchStatus::BodyPunchLanded] = 2;
        status[MatchStatus::BodyPunchThrown] = 5;
        status[MatchStatus::DirtyBoxingLanded] = 1;
        status[MatchStatus::DirtyBoxingThrown] = 4;
        status[MatchStatus::HookLanded] = 10;
        status[MatchStatus::HookThrown] = 20;
        QStringList cells;
        for (int row = 0; row < MatchStatistics::rowCount(); ++row)
            cells << MatchStatistics::label(row) + ' ' + MatchStatistics::cell(status, row);
        QVERIFY(cells.contains("Hooks 12/25"));
        QVERIFY(cells.contains("Uppercuts 1/4"));
    }
};

QTEST_GUILESS_MAIN(tst_MatchStatistics)
#include "tst_matchstatistics.moc"
