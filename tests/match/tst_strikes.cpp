#include "Ring.h"

#include "fighters/Random.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Def_Defence.h"

#include <QtTest>

using namespace Ring;
using Kind = State_Def_Defence::Kind;

namespace {

// A striker of all 99 always lands against a man of all 0; a striker of all 0 who is spent
// (stamina band 5) throws so wide that every defence works. Both throw a jab of technique 0, which
// costs 10 stamina a unit.
enum Striker { Sharp, Wild };

// What the strike meets: a man of all 0 or of all 99 who can take anything, or one who must fall.
enum Target {
    Soft,      // all 0: every defence of his fails against a sharp striker, and he never takes over
    Hard,      // all 99: he takes over after a dodge
    NoChin,    // all 0 with a head already beaten: a clean hit drops him, a headDurability of 99 never lets it be a
               // knockout
    GlassJaw,  // the same with a headDurability below the scale: the knockdown is always a knockout
    SpentArms, // all 0 with arms and body beaten: even a blocked strike drops him
};

constexpr int StartStamina = 1000;
constexpr int StaminaUnit = 10;

Entity_Fighter striker(Striker kind)
{
    return man(1, "Puncher", kind == Sharp ? 99 : 0, {{F::JabTechnique, 0}});
}

Entity_Fighter target(Target kind)
{
    switch (kind) {
    case Hard:
        return man(2, "Puncher", 99);
    case NoChin:
        return man(2, "Puncher", 0, {{F::HeadDurability, 99}});
    case GlassJaw:
        return man(2, "Puncher", 0, {{F::HeadDurability, -1}});
    default:
        return man(2, "Puncher", 0);
    }
}

// fighter one stands in his jab, thrown from long range; fighter two waits in `defence`
void setUp(Striker s, Target t, int defence)
{
    start(striker(s), target(t));
    unbreakable(two());
    if (t == NoChin || t == GlassJaw)
        two().setHealths(-1000, 100000, 100000, 100000);
    if (t == SpentArms)
        two().setHealths(100000, -1000, -1000, 100000);
    one().setStamina(StartStamina);
    one().setStaminaBand(s == Wild ? 5 : 1);
    one().setActionCode(MatchCodes::OutAttack);
    one().setState(new State_Atk_Strike(one(), EvJab));
    two().setState(new State_Def_Defence(two(), Kind(defence)));
}

} // namespace

class tst_Strikes : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(1811); }
    void cleanup() { Random::useRealClock(); }

    // What each answer of the defender gives the striker: judges' points (the highest number a
    // judge can give is one below the points), statistics, stamina, and who has the initiative.
    void outcomeOfAStrike_data()
    {
        QTest::addColumn<int>("striker");
        QTest::addColumn<int>("defence");
        QTest::addColumn<int>("target");
        QTest::addColumn<int>("judgeOne");
        QTest::addColumn<int>("judgeTwo");
        QTest::addColumn<int>("landedJabs");
        QTest::addColumn<int>("thrownJabs");
        QTest::addColumn<int>("staminaUnits");
        QTest::addColumn<int>("pair");
        QTest::addColumn<int>("pairWorked");
        QTest::addColumn<int>("knockdowns");
        QTest::addColumn<int>("attacker");
        QTest::addColumn<QString>("stateOne");
        QTest::addColumn<QString>("stateTwo");

        QTest::newRow("a clean hit scores 10, lands and costs a unit; he goes on")
            << int(Sharp) << int(Kind::BlockHighPunch) << int(Soft) << 9 << 0 << 1 << 1 << 1 << int(HighBlocks) << 0
            << 0 << 1 << "State_Atk_OutAttack"
            << "State_Def_DefendDecide";
        QTest::newRow("a block gives 2 and costs two units; he goes on")
            << int(Wild) << int(Kind::BlockHighPunch) << int(Hard) << 1 << 0 << 0 << 1 << 2 << int(HighBlocks) << 1 << 0
            << 1 << "State_Atk_OutAttack"
            << "State_Def_DefendDecide";
        QTest::newRow("a body block counts as a body and leg block")
            << int(Wild) << int(Kind::BlockMid) << int(Hard) << 1 << 0 << 0 << 1 << 2 << int(BodyAndLegBlocks) << 1 << 0
            << 1 << "State_Atk_OutAttack"
            << "State_Def_DefendDecide";
        QTest::newRow("a dodge scores nothing; a man of nerve takes over at long range")
            << int(Wild) << int(Kind::DodgeHigh) << int(Hard) << 0 << 0 << 0 << 1 << 2 << int(HighDodges) << 1 << 0 << 2
            << "State_Def_Out"
            << "State_Atk_Out";
        QTest::newRow("a timid dodger lets him go on")
            << int(Wild) << int(Kind::DodgeLow) << int(Soft) << 0 << 0 << 0 << 1 << 2 << int(OtherDodges) << 1 << 0 << 1
            << "State_Atk_OutAttack"
            << "State_Def_DefendDecide";
        QTest::newRow("a counter takes the initiative and costs the striker nothing")
            << int(Wild) << int(Kind::CounterHigh) << int(Hard) << 0 << 0 << 0 << 0 << 0 << int(HighCounters) << 1 << 0
            << 2 << "State_Gen_CounterDmg"
            << "State_Gen_CounterAtk";
        QTest::newRow("a mid counter counts apart")
            << int(Wild) << int(Kind::CounterMid) << int(Hard) << 0 << 0 << 0 << 0 << 0 << int(MidCounters) << 1 << 0
            << 2 << "State_Gen_CounterDmg"
            << "State_Gen_CounterAtk";
        QTest::newRow("return fire gives both 5; the striker waits for the shot without paying")
            << int(Sharp) << int(Kind::ReturnAttack) << int(Soft) << 4 << 4 << 1 << 1 << 0 << -1 << 0 << 0 << 1
            << "State_Gen_ReturnReceive"
            << "State_Gen_ReturnDmg";
        QTest::newRow("a knockdown adds 35 to the clean hit, counted in both; the man down takes the role")
            << int(Sharp) << int(Kind::BlockHighPunch) << int(NoChin) << 9 + 34 << 0 << 2 << 2 << 1 << int(HighBlocks)
            << 0 << 1 << 2 << "State_Atk_Jab"
            << "State_Gen_KD";
        QTest::newRow("a blocked strike drops a man whose arms and body are spent")
            << int(Wild) << int(Kind::BlockHighPunch) << int(SpentArms) << 1 + 34 << 0 << 1 << 2 << 2 << int(HighBlocks)
            << 1 << 1 << 2 << "State_Atk_Jab"
            << "State_Gen_KD";
        QTest::newRow("a knockout ends the match within the strike")
            << int(Sharp) << int(Kind::BlockHighPunch) << int(GlassJaw) << 9 << 0 << 2 << 2 << 1 << int(HighBlocks) << 0
            << 1 << 1 << "State_Atk_Out"
            << "State_Def_Out";
    }

    void outcomeOfAStrike()
    {
        QFETCH(int, striker);
        QFETCH(int, defence);
        QFETCH(int, target);
        QFETCH(int, judgeOne);
        QFETCH(int, judgeTwo);
        QFETCH(int, landedJabs);
        QFETCH(int, thrownJabs);
        QFETCH(int, staminaUnits);
        QFETCH(int, pair);
        QFETCH(int, pairWorked);
        QFETCH(int, knockdowns);
        QFETCH(int, attacker);
        QFETCH(QString, stateOne);
        QFETCH(QString, stateTwo);

        // a judge's number is a draw below the points: over many strikes the highest is reached
        JudgesHigh highest;
        for (int trial = 0; trial < 1500; ++trial) {
            setUp(Striker(striker), Target(target), defence);
            const bool over = match().step();

            QCOMPARE(landed(one(), EvJab), landedJabs);
            QCOMPARE(thrown(one(), EvJab), thrownJabs);
            QCOMPARE(one().getStamina(), StartStamina - staminaUnits * StaminaUnit);
            if (pair >= 0) {
                QCOMPARE(status(two(), MatchStatus::made(DefencePair(pair))), pairWorked);
                QCOMPARE(status(two(), MatchStatus::tried(DefencePair(pair))), 1);
            }
            QCOMPARE(status(one(), MatchStatus::KnockdownsScored), knockdowns);
            QCOMPARE(status(two(), MatchStatus::KnockdownsTaken), knockdowns);
            QCOMPARE(match().getAttacker(), attacker == 1 ? &one() : &two());
            QCOMPARE(one().stateName(), stateOne);
            QCOMPARE(two().stateName(), stateTwo);
            QCOMPARE(over, target == GlassJaw);
            if (over) {
                QCOMPARE(match().getLoser(), &two());
                QCOMPARE(two().getActionCode(), int(MatchCodes::KnockedOut));
                QCOMPARE(one().getActionCode(), int(EvJab));
            }

            const QList<int> scores = match().endRoundScores();
            QCOMPARE(scores[7], target == NoChin || target == SpentArms ? 1 : 0);
            const JudgesHigh high = judgesHigh(scores);
            QVERIFY(high.one <= judgeOne && high.two <= judgeTwo);
            highest.one = qMax(highest.one, high.one);
            highest.two = qMax(highest.two, high.two);
        }
        QCOMPARE(highest.one, judgeOne);
        QCOMPARE(highest.two, judgeTwo);
    }

    // After a strike that got through or was blocked he keeps the initiative at his range: always
    // after the first two strikes of a chain, from the third on only by his combo roll, and never
    // after the eighth.
    void goingOnOrHandingOver_data()
    {
        QTest::addColumn<int>("thrownBefore");
        QTest::addColumn<int>("drive");
        QTest::addColumn<int>("attackKind");
        QTest::addColumn<QString>("next");

        const int at = MatchCodes::OutAttack;
        QTest::newRow("the first strike always follows") << 0 << 0 << at << "State_Atk_OutAttack";
        QTest::newRow("so does the second") << 1 << 0 << at << "State_Atk_OutAttack";
        QTest::newRow("from the third a man without drive hands over") << 2 << 0 << at << "State_Def_Out";
        QTest::newRow("a driven man goes on from the third") << 2 << 99 << at << "State_Atk_OutAttack";
        QTest::newRow("and to the seventh") << 6 << 99 << at << "State_Atk_OutAttack";
        QTest::newRow("after the eighth everybody hands over") << 7 << 99 << at << "State_Def_Out";
        QTest::newRow("in the pocket he throws the pocket's strikes")
            << 0 << 0 << int(MatchCodes::InAttack) << "State_Atk_InAttack";
        QTest::newRow("in the clinch the clinch's")
            << 0 << 0 << int(MatchCodes::ClinchAttack) << "State_Atk_ClinchAttack";
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
            for (F::Number part : {F::Discipline, F::Aggression, F::Ferocity, F::Willpower}) {
                // the combo roll reads the man, the strike reads its own snapshot
                one().setNumber(part, drive);
            }
            one().setState(new State_Atk_Strike(one(), EvJab));
            one().setActionCode(attackKind);
            for (int i = 0; i < thrownBefore; ++i)
                match().countStrike();
            match().step();
            QCOMPARE(one().stateName(), next);
            QCOMPARE(match().getAttacker(), handsOver ? &two() : &one());
            // the strike is counted after its outcome, so the new chain starts at one
            QCOMPARE(match().strikeCount(), handsOver ? 1 : thrownBefore + 1);
            if (handsOver)
                QCOMPARE(two().stateName(), QStringLiteral("State_Atk_Out"));
        }
    }

    // the combo roll: u120 below discipline / 2 + aggression / 3 + ferocity + willpower / 3
    void comboRoll_data()
    {
        QTest::addColumn<int>("discipline");
        QTest::addColumn<int>("aggression");
        QTest::addColumn<int>("ferocity");
        QTest::addColumn<int>("willpower");
        QTest::addColumn<double>("share");

        QTest::newRow("no drive never goes on") << 0 << 0 << 0 << 0 << 0.0;
        QTest::newRow("ferocity counts whole") << 0 << 0 << 60 << 0 << 60 / 120.0;
        QTest::newRow("discipline counts a half") << 99 << 0 << 0 << 0 << 49 / 120.0;
        QTest::newRow("aggression counts a third") << 0 << 99 << 0 << 0 << 33 / 120.0;
        QTest::newRow("willpower counts a third") << 0 << 0 << 0 << 99 << 33 / 120.0;
        QTest::newRow("a drive of 120 always goes on") << 0 << 63 << 99 << 0 << 1.0;
    }

    void comboRoll()
    {
        QFETCH(int, discipline);
        QFETCH(int, aggression);
        QFETCH(int, ferocity);
        QFETCH(int, willpower);
        QFETCH(double, share);
        Entity_MatchFighter fighter(man(1, "Puncher", 0,
                                        {{F::Discipline, discipline},
                                         {F::Aggression, aggression},
                                         {F::Ferocity, ferocity},
                                         {F::Willpower, willpower}}));
        const int trials = 6000;
        int success = 0;
        for (int i = 0; i < trials; ++i)
            success += fighter.comboRoll() ? 1 : 0;
        if (share == 0.0 || share == 1.0)
            QCOMPARE(success, int(share * trials));
        else
            QVERIFY2(qAbs(success / double(trials) - share) < 0.025, qPrintable(QString::number(success)));
    }

    // A tired man throws wide: his stamina band moves the accuracy by up to two d20 either way. A
    // striker of all 0 throws with no accuracy of his own (0, rarely 1); a strong counter takes the
    // strike and keeps the accuracy it saw.
    void accuracyByStaminaBand_data()
    {
        QTest::addColumn<int>("band");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<int>("highest");
        QTest::newRow("fresh: plus a d20") << 0 << 1 << 21;
        QTest::newRow("not tired: plus half a d20") << 1 << 0 << 11;
        QTest::newRow("keeping up: unchanged") << 2 << 0 << 1;
        QTest::newRow("tiring: minus half a d20") << 3 << -10 << 1;
        QTest::newRow("gassed: minus a d20") << 4 << -20 << 0;
        QTest::newRow("barely standing: minus two d20") << 5 << -40 << -1;
    }

    void accuracyByStaminaBand()
    {
        QFETCH(int, band);
        QFETCH(int, lowest);
        QFETCH(int, highest);
        int seenLow = 1000, seenHigh = -1000;
        for (int trial = 0; trial < 1000; ++trial) {
            setUp(Wild, Hard, Kind::CounterHigh);
            one().setStaminaBand(band);
            match().step();
            if (two().stateName() != "State_Gen_CounterAtk")
                continue;
            const int accuracy = two().getActionValue();
            seenLow = qMin(seenLow, accuracy);
            seenHigh = qMax(seenHigh, accuracy);
        }
        QCOMPARE(seenLow, lowest);
        QVERIFY2(seenHigh <= highest && seenHigh >= highest - 1, qPrintable(QString::number(seenHigh)));
    }
};

QTEST_GUILESS_MAIN(tst_Strikes)
#include "tst_strikes.moc"
