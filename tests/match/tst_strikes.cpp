#include "Ring.h"

#include "fighters/Random.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Def_Defence.h"

#include <QtTest>

using namespace Ring;
using Kind = State_Def_Defence::Kind;

namespace {

// A striker of all 99 always lands against a man of all 0; a striker of all 0 who is spent (stamina
// band 5) throws so wide that every defence works. Both throw a jab of technique 0: 10 stamina a unit.
enum Striker { Sharp, Wild };

enum Target {
    Soft,      // all 0: his defences fail against a sharp striker, he never takes over
    Hard,      // all 99: he takes over after a dodge
    NoChin,    // all 0, his head beaten: a clean hit drops him; a headDurability of 99 is never out
    GlassJaw,  // the same with a headDurability below the scale: always out
    SpentArms, // all 0, arms and body beaten: even a blocked strike drops him
};

// fighter one stands in his jab, thrown from long range; fighter two waits in `defence`
void setUp(Striker striker, Target target, int defence)
{
    const int jaw = target == NoChin ? 99 : target == GlassJaw ? -1 : target == Hard ? 99 : 0;
    start(man(1, "Puncher", striker == Sharp ? 99 : 0, {{F::JabTechnique, 0}}),
          man(2, "Puncher", target == Hard ? 99 : 0, {{F::HeadDurability, jaw}}));
    unbreakable(two());
    if (target == NoChin || target == GlassJaw)
        two().setHealths(-1000, 100000, 100000, 100000);
    if (target == SpentArms)
        two().setHealths(100000, -1000, -1000, 100000);
    one().setStamina(1000);
    one().setStaminaBand(striker == Wild ? 5 : 1);
    one().setActionCode(MatchCodes::OutAttack);
    one().setState(new State_Atk_Strike(one(), EvJab));
    two().setState(new State_Def_Defence(two(), Kind(defence)));
}

// What each answer of the defender gives the striker: a clean hit scores 10, lands and costs a
// unit; a block gives 2 and costs two; a dodge scores nothing, and a man of nerve takes over at long
// range; a counter takes the initiative and costs the striker nothing; return fire gives both 5 and
// the striker waits for the shot without paying; a knockdown adds 35, counted in both, and the man
// down takes the role; a knockout ends the match within the strike.
// what follows the strike: the states of both men, and who holds the attacker's role
enum After { GoesOn, TakesOver, Countered, Returned, Down, Over };
const struct {
    const char *one, *two;
    int attacker;
} afterwards[] = {
    {"State_Atk_OutAttack", "State_Def_DefendDecide", 1},
    {"State_Def_Out", "State_Atk_Out", 2},
    {"State_Gen_CounterDmg", "State_Gen_CounterAtk", 2},
    {"State_Gen_ReturnReceive", "State_Gen_ReturnDmg", 1},
    {"State_Atk_Jab", "State_Gen_KD", 2},
    {"State_Atk_Out", "State_Def_Out", 1},
};

struct Outcome {
    const char *name;
    Striker striker;
    Kind defence;
    Target target;
    int judgeOne, judgeTwo; // the highest number a judge gives: one below the points
    int landed, thrown, staminaUnits;
    int pair, pairWorked; // the defence statistic, or -1
    After after;
};

const Outcome outcomes[] = {
    {"clean hit", Sharp, Kind::BlockHighPunch, Soft, 9, 0, 1, 1, 1, HighBlocks, 0, GoesOn},
    {"block", Wild, Kind::BlockHighPunch, Hard, 1, 0, 0, 1, 2, HighBlocks, 1, GoesOn},
    {"dodge by a man of nerve", Wild, Kind::DodgeHigh, Hard, 0, 0, 0, 1, 2, HighDodges, 1, TakesOver},
    {"timid dodge", Wild, Kind::DodgeLow, Soft, 0, 0, 0, 1, 2, OtherDodges, 1, GoesOn},
    {"counter", Wild, Kind::CounterHigh, Hard, 0, 0, 0, 0, 0, HighCounters, 1, Countered},
    {"return fire", Sharp, Kind::ReturnAttack, Soft, 4, 4, 1, 1, 0, -1, 0, Returned},
    {"knockdown", Sharp, Kind::BlockHighPunch, NoChin, 9 + 34, 0, 2, 2, 1, HighBlocks, 0, Down},
    {"blocked onto spent arms", Wild, Kind::BlockHighPunch, SpentArms, 1 + 34, 0, 1, 2, 2, HighBlocks, 1, Down},
    {"knockout", Sharp, Kind::BlockHighPunch, GlassJaw, 9, 0, 2, 2, 1, HighBlocks, 0, Over},
};

} // namespace

class tst_Strikes : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(1811); }
    void cleanup() { Random::useRealClock(); }

    // over many strikes a judge reaches his highest number
    void outcomeOfAStrike_data() { TableRows::add(outcomes); }

    void outcomeOfAStrike()
    {
        const Outcome *row = &TableRows::current(outcomes);
        JudgesHigh highest;
        for (int trial = 0; trial < 1500; ++trial) {
            setUp(row->striker, row->target, row->defence);
            const bool over = match().step();

            QCOMPARE(landed(one(), EvJab), row->landed);
            QCOMPARE(status(one(), MatchStatus::thrown(MatchCodes::strikeIndex(EvJab))), row->thrown);
            QCOMPARE(one().getStamina(), 1000 - 10 * row->staminaUnits);
            if (row->pair >= 0) {
                QCOMPARE(status(two(), MatchStatus::made(row->pair)), row->pairWorked);
                QCOMPARE(status(two(), MatchStatus::tried(row->pair)), 1);
            }
            const int knockdowns = row->target == NoChin || row->target == GlassJaw || row->target == SpentArms;
            QCOMPARE(status(one(), MatchStatus::KnockdownsScored), knockdowns);
            QCOMPARE(status(two(), MatchStatus::KnockdownsTaken), knockdowns);
            QCOMPARE(match().getAttacker(), afterwards[row->after].attacker == 1 ? &one() : &two());
            QCOMPARE(one().stateName(), QString(afterwards[row->after].one));
            QCOMPARE(two().stateName(), QString(afterwards[row->after].two));
            QCOMPARE(over, row->target == GlassJaw);
            if (over) {
                QCOMPARE(match().getLoser(), &two());
                QCOMPARE(two().getActionCode(), int(MatchCodes::KnockedOut));
                QCOMPARE(one().getActionCode(), int(EvJab));
            }

            const QList<int> scores = match().endRoundScores();
            QCOMPARE(scores[7], row->target == NoChin || row->target == SpentArms ? 1 : 0);
            const JudgesHigh high = judgesHigh(scores);
            QVERIFY(high.one <= row->judgeOne && high.two <= row->judgeTwo);
            highest = {qMax(highest.one, high.one), qMax(highest.two, high.two)};
        }
        QCOMPARE(highest.one, row->judgeOne);
        QCOMPARE(highest.two, row->judgeTwo);
    }

    // After a strike that got through or was blocked he keeps the initiative at his range: always
    // after the first two strikes of a chain, from the third on by his combo roll, never after the
    // eighth. The strike counts after its outcome, so a new chain starts at one.
    void goingOnOrHandingOver_data()
    {
        QTest::addColumn<int>("thrownBefore");
        QTest::addColumn<int>("drive");
        QTest::addColumn<int>("attackKind");
        QTest::addColumn<QString>("next");
        const int at = MatchCodes::OutAttack;
        QTest::newRow("the second strike always follows") << 1 << 0 << at << "State_Atk_OutAttack";
        QTest::newRow("from the third a man without drive hands over") << 2 << 0 << at << "State_Def_Out";
        QTest::newRow("and to the seventh") << 6 << 99 << at << "State_Atk_OutAttack";
        QTest::newRow("after the eighth everybody hands over") << 7 << 99 << at << "State_Def_Out";
        QTest::newRow("in the pocket the pocket's strikes")
            << 0 << 0 << int(MatchCodes::InAttack) << "State_Atk_InAttack";
    }

    void goingOnOrHandingOver()
    {
        QFETCH(int, thrownBefore);
        QFETCH(int, drive);
        QFETCH(int, attackKind);
        QFETCH(QString, next);
        const bool handsOver = next == "State_Def_Out";
        for (int trial = 0; trial < 200; ++trial) {
            setUp(Sharp, Soft, Kind::BlockHighPunch);
            // the combo roll reads the man himself
            for (F::Number part : {F::Discipline, F::Aggression, F::Ferocity, F::Willpower})
                one().setNumber(part, drive);
            one().setActionCode(attackKind);
            for (int i = 0; i < thrownBefore; ++i)
                match().countStrike();
            match().step();
            QCOMPARE(one().stateName(), next);
            QCOMPARE(match().getAttacker(), handsOver ? &two() : &one());
            QCOMPARE(match().strikeCount(), handsOver ? 1 : thrownBefore + 1);
        }
    }

    // the combo roll: u120 below discipline / 2 + aggression / 3 + ferocity + willpower / 3
    void comboRoll_data()
    {
        QTest::addColumn<QList<int>>("drive"); // discipline, aggression, ferocity, willpower
        QTest::addColumn<double>("share");
        QTest::newRow("ferocity counts whole") << QList<int>{0, 0, 60, 0} << 60 / 120.0;
        QTest::newRow("discipline counts a half, willpower a third") << QList<int>{99, 0, 0, 99} << 82 / 120.0;
        QTest::newRow("a drive of 120 always goes on") << QList<int>{0, 63, 99, 0} << 1.0;
    }

    void comboRoll()
    {
        QFETCH(QList<int>, drive);
        QFETCH(double, share);
        Entity_MatchFighter fighter(man(
            1, "Puncher", 0,
            {{F::Discipline, drive[0]}, {F::Aggression, drive[1]}, {F::Ferocity, drive[2]}, {F::Willpower, drive[3]}}));
        int success = 0;
        for (int i = 0; i < 6000; ++i)
            success += fighter.comboRoll() ? 1 : 0;
        QVERIFY2(comesTo(success, 6000, share, 0.025), qPrintable(QString::number(success)));
    }

    // A tired man throws wide: the band moves the accuracy by up to two d20 either way (a d20 up,
    // half, nothing, half down, a d20 down, two d20 down). A striker
    // of all 0 has no accuracy of his own (0, rarely 1); a strong counter keeps the accuracy it saw.
    void accuracyByStaminaBand()
    {
        // fresh, not tired, keeping up, tiring, gassed, barely standing
        const int bounds[][2] = {{1, 21}, {0, 11}, {0, 1}, {-10, 1}, {-20, 0}, {-40, -1}};
        for (int band = 0; band < 6; ++band) {
            int low = 1000, high = -1000;
            for (int trial = 0; trial < 1000; ++trial) {
                setUp(Wild, Hard, Kind::CounterHigh);
                one().setStaminaBand(band);
                match().step();
                if (two().stateName() == "State_Gen_CounterAtk") {
                    low = qMin(low, two().getActionValue());
                    high = qMax(high, two().getActionValue());
                }
            }
            QVERIFY2(low == bounds[band][0] && high <= bounds[band][1] && high >= bounds[band][1] - 1,
                     qPrintable(QString("band %1: %2 to %3").arg(band).arg(low).arg(high)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Strikes)
#include "tst_strikes.moc"
