#include "fighters/PointSpread.h"

#include <QtTest>

// Points over boxes: a box that overspends steps back, and the sum never passes the points.
class tst_PointSpread : public QObject
{
    Q_OBJECT

private slots:
    // Each row sets boxes one after the other and shows where they end, the points left and the
    // highest value each box may take then.
    void boxesNeverSpendMoreThanThePoints_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<QList<int>>("start");
        QTest::addColumn<QList<int>>("settings"); // box, value, box, value ...
        QTest::addColumn<QList<int>>("values");
        QTest::addColumn<int>("left");
        QTest::addColumn<QList<int>>("maxima");

        const QList<int> corner{0, 0, 0, 0};
        QTest::newRow("no cornering: a box steps back to 0 at once")
            << 0 << corner << QList<int>{2, 1} << QList<int>{0, 0, 0, 0} << 0 << QList<int>{10, 10, 0, 10};
        QTest::newRow("seven points: five and two, and the third stays at 0")
            << 7 << corner << QList<int>{0, 5, 1, 2, 2, 1} << QList<int>{5, 2, 0, 0} << 0 << QList<int>{10, 10, 0, 10};
        QTest::newRow("a box set too high keeps what is left")
            << 7 << corner << QList<int>{0, 5, 1, 4} << QList<int>{5, 2, 0, 0} << 0 << QList<int>{10, 2, 10, 10};
        QTest::newRow("points given back: every box may rise again")
            << 7 << corner << QList<int>{0, 5, 1, 4, 0, 3} << QList<int>{3, 2, 0, 0} << 2 << QList<int>{10, 10, 10, 10};
        QTest::newRow("a box cannot go below where it started")
            << 10 << QList<int>{4, 7} << QList<int>{0, 2, 1, 9} << QList<int>{4, 9} << 8 << QList<int>{10, 10};
        QTest::newRow("a skill at the ceiling cannot rise")
            << 10 << QList<int>{10, 3} << QList<int>{0, 11, 1, 5} << QList<int>{10, 5} << 8 << QList<int>{10, 10};
    }
    void boxesNeverSpendMoreThanThePoints()
    {
        QFETCH(int, points);
        QFETCH(QList<int>, start);
        QFETCH(QList<int>, settings);
        QFETCH(QList<int>, values);
        QFETCH(int, left);
        QFETCH(QList<int>, maxima);
        PointSpread spread(points, start);
        for (qsizetype i = 0; i + 1 < settings.size(); i += 2)
            spread.set(settings[i], settings[i + 1]);
        QCOMPARE(spread.allValues(), values);
        QCOMPARE(spread.left(), left);
        for (int box = 0; box < int(maxima.size()); ++box)
            QCOMPARE(spread.maximum(box), maxima[box]);
    }
};

QTEST_GUILESS_MAIN(tst_PointSpread)
#include "tst_pointspread.moc"
