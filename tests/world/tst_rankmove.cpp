#include "world/RankMove.h"

#include <QtTest>

class tst_RankMove : public QObject
{
    Q_OBJECT

private slots:
    // every border of the table, in both columns: the winner's score minus the loser's, and the
    // move by a stoppage and by a decision
    void movesByTheTable()
    {
        const int rows[][3] = {{1000, 500, 250}, {303, 151, 75}, {301, 150, 75}, {300, 300, 150}, {101, 101, 50},
                               {100, 100, 100},  {1, 1, 1},      {0, 300, 200},  {-1, 198, 99},   {-100, 0, 0},
                               {-101, 99, 79},   {-300, 33, 26}, {-301, 23, 16}, {-1000, 7, 5},   {-8001, 0, 0}};
        for (const auto &[diff, byStoppage, byDecision] : rows) {
            QCOMPARE(RankMove::points(diff, true), byStoppage);
            QCOMPARE(RankMove::points(diff, false), byDecision);
        }
    }

    // the word "Decision" in any form of the verdict makes a decision; every other result stops
    void readsTheResultText_data()
    {
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("move");

        QTest::newRow("knock-out") << "Win: B - KO(Hook) - Rd. 2(1:05)" << 300;
        QTest::newRow("technical knock-out") << "A defeated B by TKO(Low Kick) in 2:00 of Round 3." << 300;
        QTest::newRow("split decision") << "Win: B - Split Decision - Rd. 3(3:00)" << 200;
        QTest::newRow("unanimous decision") << "A defeated B by Unanimous Decision in 3:00 of Round 3." << 200;
    }

    void readsTheResultText()
    {
        QFETCH(QString, result);
        QFETCH(int, move);
        QCOMPARE(RankMove::forResult(5000, 5000, result), move);
        // the lower ranked man's stoppage win by 301 moves both by 150
        if (RankMove::isStoppage(result))
            QCOMPARE(RankMove::forResult(5301, 5000, result), 150);
    }
};

QTEST_GUILESS_MAIN(tst_RankMove)
#include "tst_rankmove.moc"
