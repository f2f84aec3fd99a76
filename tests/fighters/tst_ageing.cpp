#include "TableRows.h"

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

// the row of the age he leaves behind: the least and the most that every attribute moves
struct Growth {
    const char *name;
    int ageBefore, least, most;
};
const Growth growths[] = {
    {"17 turning 18 doesn't grow", 17, 0, 0},   {"18 turning 19: +1 to +3", 18, 1, 3},
    {"21 turning 22 still +1 to +3", 21, 1, 3}, {"22 turning 23: 0 to +2", 22, 0, 2},
    {"23 turning 24: 0 to +2", 23, 0, 2},       {"24 turning 25: 0 to +1", 24, 0, 1},
    {"29 turning 30: 0 to +1", 29, 0, 1},       {"30 turning 31: his prime", 30, 0, 0},
    {"34 turning 35: his prime", 34, 0, 0},     {"35 turning 36: 0 to -1", 35, -1, 0},
    {"36 turning 37 loses 0 or 1", 36, -1, 0},  {"37 turning 38: 0 to -2", 37, -2, 0},
};

} // namespace

class tst_Ageing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Random::useRealClock(); }

    // Over many birthdays the changes fill the row's range from end to end and never leave it;
    // his record and the numbers beyond the attributes stay as they were.
    void growthByAge_data() { TableRows::add(growths); }
    void growthByAge()
    {
        const Growth &row = TableRows::current(growths);
        int lowest = 99;
        int highest = -99;
        for (quint32 seed = 1; seed <= 20; ++seed) {
            Random::useTestClock(seed);
            Entity_Fighter man = manOf(row.ageBefore, 50);
            man.developOneYear();
            QCOMPARE(man.number(F::Age), row.ageBefore + 1);
            for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a) {
                lowest = qMin(lowest, man.number(F::Number(a)) - 50);
                highest = qMax(highest, man.number(F::Number(a)) - 50);
            }
            QCOMPARE(man.number(F::HeadDurability), 70);
            QCOMPARE(man.number(F::RankingScore), 4000);
        }
        QCOMPARE(lowest, row.least);
        QCOMPARE(highest, row.most);
    }

    // 99 stays 99 in a good year, 0 stays 0 in a bad one
    void attributesStayInRange()
    {
        Random::useTestClock(11);
        for (const auto &[ageBefore, value] : {std::pair(19, 99), std::pair(40, 0)}) {
            Entity_Fighter man = manOf(ageBefore, value);
            man.developOneYear();
            for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
                QCOMPARE(man.number(F::Number(a)), value);
        }
    }
};

QTEST_GUILESS_MAIN(tst_Ageing)
#include "tst_ageing.moc"
