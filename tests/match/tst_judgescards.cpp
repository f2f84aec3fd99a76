#include "match/JudgesCards.h"

#include <QtTest>

class tst_JudgesCards : public QObject
{
    Q_OBJECT

private slots:
    // the three judges' cards at each bell, and the verdict they give as the rounds go by: none
    // before the third bell, none without a majority before the tenth, and then the split
    void cards_data()
    {
        QTest::addColumn<QList<QList<int>>>("rounds");
        QTest::addColumn<QStringList>("verdicts"); // after each round
        QTest::addColumn<QList<int>>("totals");    // the first judge's totals at the end
        const QList<int> oneAll{20, 20, 20, 5, 5, 5, 0, 0};
        const QList<int> even{7, 7, 7, 7, 7, 7, 0, 0};
        const QList<int> splitEven{20, 5, 7, 5, 20, 7, 0, 0}; // judge one for one, two for two, three even
        const QList<int> thirdForOne{7, 7, 20, 7, 7, 5, 0, 0};
        QTest::newRow("three clean rounds: unanimous only at the third bell")
            << QList<QList<int>>{oneAll, oneAll, oneAll} << QStringList{"", "", "Unanimous Decision"}
            << QList<int>{30, 27};
        QTest::newRow("one judge even: majority") << QList<QList<int>>(3, {20, 20, 7, 5, 5, 7, 0, 0})
                                                  << QStringList{"", "", "Majority Decision"} << QList<int>{30, 27};
        QTest::newRow("one judge against: split") << QList<QList<int>>(3, {20, 20, 5, 5, 5, 20, 0, 0})
                                                  << QStringList{"", "", "Split Decision"} << QList<int>{30, 27};
        QTest::newRow("1-1 after three goes to a fourth round")
            << QList<QList<int>>{splitEven, splitEven, splitEven, thirdForOne}
            << QStringList{"", "", "", "Split Decision"} << QList<int>{40, 37};
        QTest::newRow("ten rounds without a majority: split")
            << QList<QList<int>>(10, even) << QStringList{"", "", "", "", "", "", "", "", "", "Split Decision"}
            << QList<int>{100, 100};
        QTest::newRow("two knockdowns lose a won round")
            << QList<QList<int>>{{50, 50, 50, 10, 10, 10, 2, 0}, even, even}
            << QStringList{"", "", "Unanimous Decision"} << QList<int>{28, 29};
        QTest::newRow("a knockdown in an even round")
            << QList<QList<int>>{{7, 7, 7, 7, 7, 7, 0, 1}, even, even} << QStringList{"", "", "Unanimous Decision"}
            << QList<int>{30, 29};
    }
    void cards()
    {
        QFETCH(QList<QList<int>>, rounds);
        QFETCH(QStringList, verdicts);
        QFETCH(QList<int>, totals);
        JudgesCards cards;
        QStringList given;
        for (const QList<int> &round : rounds) {
            cards.addRound(round);
            given << JudgesCards::word(cards.verdict());
        }
        QCOMPARE(given, verdicts);
        QCOMPARE(cards.rounds(), rounds.size());
        QCOMPARE(QList<int>({cards.totalOne(0), cards.totalTwo(0)}), totals);
    }
};

QTEST_GUILESS_MAIN(tst_JudgesCards)
#include "tst_judgescards.moc"
