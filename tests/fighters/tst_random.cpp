#include "fighters/Random.h"

#include <QtTest>

namespace {

QList<int> drawSequence(int count)
{
    QList<int> values;
    for (int i = 0; i < count; ++i) {
        Random::seedFromClock(i % 3);
        values.append(qrand());
    }
    return values;
}

} // namespace

class tst_Random : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    void testClockRepeatsItself()
    {
        Random::useTestClock(42);
        const QList<int> first = drawSequence(1000);
        Random::useTestClock(42);
        QCOMPARE(drawSequence(1000), first);
        Random::useTestClock(43);
        QVERIFY(drawSequence(1000) != first);
    }

    void stirOfNothingLeavesTheGenerator()
    {
        Random::useTestClock(5);
        qsrand(99);
        Random::stir(0);
        const int afterNoStir = qrand();
        qsrand(99);
        QCOMPARE(qrand(), afterNoStir);
        qsrand(99);
        Random::stir(3);
        QVERIFY(qrand() != afterNoStir);
    }

    // d rolls 1 to n, u 0 to n - 1, signedD either sign of d; a range below 1 is held at 1
    void rollsStayInTheirRange()
    {
        for (int n : {3, 100, 0, -5}) {
            Random::useTestClock(1);
            const int top = qMax(n, 1);
            QSet<int> seenD, seenU, seenSigned;
            for (int i = 0; i < 5000; ++i) {
                Random::seedFromClock();
                const int dn = Random::d(n);
                const int un = Random::u(n);
                const int sn = Random::signedD(n);
                QVERIFY(dn >= 1 && dn <= top);
                QVERIFY(un >= 0 && un < top);
                QVERIFY(qAbs(sn) >= 1 && qAbs(sn) <= top);
                seenD.insert(dn);
                seenU.insert(un);
                seenSigned.insert(sn);
            }
            QCOMPARE(seenD.size(), top);
            QCOMPARE(seenU.size(), top);
            QCOMPARE(seenSigned.size(), 2 * top);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Random)
#include "tst_random.moc"
