#include "fighters/Entity_Fighter.h"
#include "fighters/Random.h"

#include <QtTest>

using F = Entity_Fighter;

namespace {

Entity_Fighter manOf(int age, int value)
{
    Entity_Fighter man;
    man.setNumber(F::Age, age);
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        man.setNumber(F::Number(a), value);
    man.setNumber(F::HeadDurability, 70);
    man.setNumber(F::RankingScore, 4000);
    return man;
}

} // namespace

class tst_Ageing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    // Every attribute moves by the row of the age he leaves behind. Over many birthdays the
    // changes fill the row's range from end to end and never leave it.
    void growthByAge_data()
    {
        QTest::addColumn<int>("ageBefore");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");

        QTest::newRow("17 turning 18 doesn't either") << 17 << 0 << 0;
        QTest::newRow("18 turning 19: +1 to +3") << 18 << 1 << 3;
        QTest::newRow("21 turning 22 still +1 to +3") << 21 << 1 << 3;
        QTest::newRow("22 turning 23: 0 to +2") << 22 << 0 << 2;
        QTest::newRow("23 turning 24: 0 to +2") << 23 << 0 << 2;
        QTest::newRow("24 turning 25: 0 to +1") << 24 << 0 << 1;
        QTest::newRow("29 turning 30: 0 to +1") << 29 << 0 << 1;
        QTest::newRow("30 turning 31: his prime") << 30 << 0 << 0;
        QTest::newRow("34 turning 35: his prime") << 34 << 0 << 0;
        QTest::newRow("35 turning 36: 0 to -1") << 35 << -1 << 0;
        QTest::newRow("36 turning 37 loses 0 or 1") << 36 << -1 << 0;
        QTest::newRow("37 turning 38: 0 to -2") << 37 << -2 << 0;
    }

    void growthByAge()
    {
        QFETCH(int, ageBefore);
        QFETCH(int, least);
        QFETCH(int, most);
        int lowest = 99;
        int highest = -99;
        for (quint32 seed = 1; seed <= 20; ++seed) {
            Random::useTestClock(seed);
            Entity_Fighter man = manOf(ageBefore, 50);
            man.developOneYear();
            QCOMPARE(man.number(F::Age), ageBefore + 1);
            for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a) {
                const int change = man.number(F::Number(a)) - 50;
                lowest = qMin(lowest, change);
                highest = qMax(highest, change);
            }
            // his record and the numbers beyond the attributes stay as they were
            QCOMPARE(man.number(F::HeadDurability), 70);
            QCOMPARE(man.number(F::RankingScore), 4000);
        }
        // an attribute that a run missed would show as 0 among the gains of a young man
        QCOMPARE(lowest, least);
        QCOMPARE(highest, most);
    }

    void attributesStayInRange_data()
    {
        QTest::addColumn<int>("ageBefore");
        QTest::addColumn<int>("value");

        QTest::newRow("99 stays 99 in a good year") << 19 << 99;
        QTest::newRow("0 stays 0 in a bad year") << 40 << 0;
    }

    void attributesStayInRange()
    {
        QFETCH(int, ageBefore);
        QFETCH(int, value);
        Random::useTestClock(11);
        Entity_Fighter man = manOf(ageBefore, value);
        man.developOneYear();
        for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
            QCOMPARE(man.number(F::Number(a)), value);
    }
};

QTEST_GUILESS_MAIN(tst_Ageing)
#include "tst_ageing.moc"
