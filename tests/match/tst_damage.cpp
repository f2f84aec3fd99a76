#include "Ring.h"

#include "fighters/Random.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Gen_BlkDmg.h"
#include "match/State_Gen_FullDmg.h"
#include "match/State_Gen_KD.h"

#include <QtTest>

using namespace Ring;

namespace {

enum Part { Head, Body, Arms, Legs };

constexpr int Plenty = 100000;

// how much of each part and of stamina a man has lost since he was made unbreakable
QList<int> losses(const Entity_MatchFighter &man)
{
    return {Plenty - man.getHeadHealth(), Plenty - man.getBodyHealth(), Plenty - man.getArmsHealth(),
            Plenty - man.getLegsHealth(), Plenty - man.getStamina()};
}

// a man whose composure roll always holds (99) or always fails (0)
Entity_MatchFighter composedMan(bool composed, int headDurability)
{
    const int sense = composed ? 99 : 0;
    return Entity_MatchFighter(
        man(1, "Puncher", 0,
            {{F::FightIQ, sense}, {F::Awareness, sense}, {F::Discipline, sense}, {F::HeadDurability, headDurability}}));
}

} // namespace

class tst_Damage : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(3571); }
    void cleanup() { Random::useRealClock(); }

    // A clean hit lands by the strike: on the head as it is, on the body or the legs half as much
    // again. A man of all 0 absorbs nothing, so a blow of 20 takes 20 stamina.
    void whereACleanHitLands()
    {
        // jab, hook, cross, uppercut, low, mid, high and front kick, knee, elbow, dirty boxing, body punch
        const Part parts[] = {Head, Head, Head, Head, Legs, Body, Head, Body, Body, Head, Body, Body};
        quietAttacker(man(2, "Puncher", 0));
        for (int i = 0; i < 12 * 50; ++i) {
            const int strike = EvJab + i % 12;
            unbreakable(two());
            two().setStamina(Plenty);
            two().setState(new State_Gen_FullDmg(two()));
            two().receiveEvent(strike, 20);
            QList<int> expected(5, 0);
            const Part part = parts[strike - EvJab];
            expected[part] = part == Head ? 20 : 30;
            expected[4] = 20;
            QCOMPARE(losses(two()), expected);
        }
    }

    // What a man takes off a clean blow of 100: (conditioning / 10 + d10 + resilience / 10 + d10)
    // over (d10 - durability + 100) / 5 + 1. Of 99 each: 6 to 38 off; of durability 80: 2 to 7.
    void aToughManAbsorbs_data()
    {
        QTest::addColumn<int>("durability");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<int>("highest");
        QTest::newRow("durability 99") << 99 << 62 << 94;
        QTest::newRow("durability 80") << 80 << 93 << 98;
    }

    void aToughManAbsorbs()
    {
        QFETCH(int, durability);
        QFETCH(int, lowest);
        QFETCH(int, highest);
        quietAttacker(man(2, "Puncher", 99, {{F::Durability, durability}}));
        int seenLow = Plenty, seenHigh = 0;
        for (int i = 0; i < 5000; ++i) {
            unbreakable(two());
            two().setStamina(Plenty);
            two().setState(new State_Gen_FullDmg(two()));
            two().receiveEvent(EvJab, 100);
            const int taken = losses(two())[Head];
            QCOMPARE(losses(two())[4], taken);
            seenLow = qMin(seenLow, taken);
            seenHigh = qMax(seenHigh, taken);
            two().releaseRetiredStates();
        }
        QCOMPARE(seenLow, lowest);
        QVERIFY2(seenHigh <= highest && (durability < 99 || seenHigh == highest),
                 qPrintable(QString::number(seenHigh)));

        // a blow he absorbs whole hurts nothing
        unbreakable(two());
        two().setStamina(Plenty);
        two().setState(new State_Gen_FullDmg(two()));
        two().receiveEvent(EvMidKick, 1);
        QCOMPARE(losses(two()), QList<int>(5, 0));
    }

    // A blocked blow costs its damage in stamina and half as much again on the arms, on the legs
    // for a leg block. A man of all 0 takes 0 to 4 off it; the guard of the block takes more.
    void aBlockedBlow_data()
    {
        QTest::addColumn<int>("guard");
        QTest::addColumn<int>("guardSpeed");
        QTest::addColumn<int>("guardTechnique");
        QTest::addColumn<int>("part");
        QTest::newRow("high punch block")
            << int(State_Gen_BlkDmg::HeadPunch) << int(F::PunchGuardSpeed) << int(F::PunchGuardTechnique) << int(Arms);
        QTest::newRow("high kick block") << int(State_Gen_BlkDmg::HeadKick) << int(F::KickGuardSpeed)
                                         << int(F::KickGuardTechnique) << int(Arms);
        QTest::newRow("body block") << int(State_Gen_BlkDmg::Body) << int(F::BodyGuardSpeed)
                                    << int(F::BodyGuardTechnique) << int(Arms);
        QTest::newRow("leg block on the legs")
            << int(State_Gen_BlkDmg::Leg) << int(F::LegGuardSpeed) << int(F::LegGuardTechnique) << int(Legs);
        QTest::newRow("clinch block") << int(State_Gen_BlkDmg::Clinch) << int(F::ClinchGuardSpeed)
                                      << int(F::ClinchGuardTechnique) << int(Arms);
    }

    void aBlockedBlow()
    {
        QFETCH(int, guard);
        QFETCH(int, guardSpeed);
        QFETCH(int, guardTechnique);
        QFETCH(int, part);
        for (bool guarded : {false, true}) {
            Entity_Fighter record = man(2, "Puncher", 0);
            if (guarded) {
                record.setNumber(F::Number(guardSpeed), 99);
                record.setNumber(F::Number(guardTechnique), 99);
            }
            quietAttacker(record);
            int highest = 0;
            for (int i = 0; i < 300; ++i) {
                unbreakable(two());
                two().setStamina(Plenty);
                two().setState(new State_Gen_BlkDmg(two(), State_Gen_BlkDmg::Guard(guard)));
                two().receiveEvent(EvJab, 20);
                const QList<int> lost = losses(two());
                const int damage = lost[4];
                QList<int> expected(5, 0);
                expected[part] = damage + damage / 2;
                expected[4] = damage;
                QCOMPARE(lost, expected);
                QVERIFY(damage >= (guarded ? 14 : 16) && damage <= 20);
                highest = qMax(highest, damage);
                two().releaseRetiredStates();
            }
            // a guard of 99 takes 2 to 6 off: (9 + 2d10 + 9 + d10) over 7 to 9
            QCOMPARE(highest, guarded ? 18 : 20);
        }
    }

    // The head check: a man falls when the blow beats his headDurability plus, composed, his
    // whole headHealth, rattled a quarter of it, give or take up to 15; a head at 0 adds nothing,
    // a beaten head counts against a rattled man.
    void headCheck_data()
    {
        QTest::addColumn<bool>("composed");
        QTest::addColumn<int>("headDurability");
        QTest::addColumn<int>("headHealth");
        QTest::addColumn<int>("damage");
        QTest::addColumn<int>("falls"); // 0 never, 1 always, -1 now and then

        QTest::newRow("composed: 15 short of his head stands") << true << 0 << 100 << 85 << 0;
        QTest::newRow("composed: 14 short falls now and then") << true << 0 << 100 << 86 << -1;
        QTest::newRow("composed: 15 over stands now and then") << true << 0 << 100 << 115 << -1;
        QTest::newRow("composed: 16 over falls") << true << 0 << 100 << 116 << 1;
        QTest::newRow("rattled: a quarter, 15 short stands") << false << 0 << 100 << 10 << 0;
        QTest::newRow("rattled: a quarter, 16 over falls") << false << 0 << 100 << 41 << 1;
        QTest::newRow("the jaw counts whole: short") << true << 60 << 100 << 145 << 0;
        QTest::newRow("the jaw counts whole: over") << true << 60 << 100 << 176 << 1;
        QTest::newRow("an empty head adds nothing: short") << false << 50 << 0 << 35 << 0;
        QTest::newRow("an empty head adds nothing: over") << false << 50 << 0 << 66 << 1;
        QTest::newRow("a beaten head drops a rattled man from nothing") << false << 50 << -100 << 0 << 1;
        QTest::newRow("a composed man keeps his jaw") << true << 50 << -100 << 34 << 0;
    }

    void headCheck()
    {
        QFETCH(bool, composed);
        QFETCH(int, headDurability);
        QFETCH(int, headHealth);
        QFETCH(int, damage);
        QFETCH(int, falls);
        Entity_MatchFighter fighter = composedMan(composed, headDurability);
        int fell = 0;
        for (int i = 0; i < 1000; ++i) {
            fighter.setHealths(headHealth, 100, 100, 100);
            fell += fighter.headCheck(damage) ? 1 : 0;
        }
        QVERIFY2(falls < 0 ? fell > 0 && fell < 1000 : fell == 1000 * falls, qPrintable(QString::number(fell)));
    }

    // What a blow does to a man's mind: a rattled man may be stunned (6) unless his jaw holds;
    // a beaten head leaves a rattled man dazed (5); a blow of more than 29 dazes whoever stands.
    void dazedAndStunned_data()
    {
        QTest::addColumn<bool>("composed");
        QTest::addColumn<int>("headDurability");
        QTest::addColumn<int>("headHealth");
        QTest::addColumn<int>("damage");
        QTest::addColumn<int>("tactic");
        QTest::addColumn<double>("share");

        QTest::newRow("a rattled glass jaw is stunned") << false << 0 << 10000 << 5 << 6 << 0.99;
        QTest::newRow("a rattled iron jaw is not") << false << 99 << 10000 << 5 << 0 << 1.0;
        QTest::newRow("a composed man keeps his head") << true << 0 << 10000 << 5 << 0 << 1.0;
        QTest::newRow("a beaten rattled head is dazed") << false << 99 << -100 << 0 << 5 << 1.0;
        QTest::newRow("a blow of 10 never dazes") << true << 99 << 10000 << 10 << 0 << 1.0;
        QTest::newRow("a blow of 30 always does") << true << 99 << 10000 << 30 << 5 << 1.0;
    }

    void dazedAndStunned()
    {
        QFETCH(bool, composed);
        QFETCH(int, headDurability);
        QFETCH(int, headHealth);
        QFETCH(int, damage);
        QFETCH(int, tactic);
        QFETCH(double, share);
        Entity_MatchFighter fighter = composedMan(composed, headDurability);
        const int trials = 3000;
        int hits = 0;
        for (int i = 0; i < trials; ++i) {
            fighter.setHealths(headHealth + damage, 100, 100, 100);
            fighter.setTactic(0);
            fighter.hitHead(damage);
            hits += fighter.getTactic() == tactic ? 1 : 0;
        }
        QVERIFY2(qAbs(hits / double(trials) - share) < 0.03, qPrintable(QString::number(hits)));
    }

    // A man who falls from a blow to the head is out when u100 beats his headDurability.
    void knockoutChance_data()
    {
        QTest::addColumn<int>("headDurability");
        QTest::addColumn<double>("share");
        QTest::newRow("a jaw of 0 is out 99 times in 100") << 0 << 0.99;
        QTest::newRow("a jaw of 50, 49 times") << 50 << 0.49;
        QTest::newRow("a jaw of 99 only goes down") << 99 << 0.0;
    }

    void knockoutChance()
    {
        QFETCH(int, headDurability);
        QFETCH(double, share);
        Entity_MatchFighter fighter = composedMan(false, headDurability);
        const int trials = 4000;
        int knockouts = 0;
        for (int i = 0; i < trials; ++i) {
            fighter.setHealths(-10000, 100, 100, 100);
            const int result = fighter.hitHead(0);
            QVERIFY(result == MatchCodes::KnockedDown || result == MatchCodes::KnockedOut);
            knockouts += result == MatchCodes::KnockedOut ? 1 : 0;
        }
        if (share == 0.0)
            QCOMPARE(knockouts, 0);
        else
            QVERIFY2(qAbs(knockouts / double(trials) - share) < 0.025, qPrintable(QString::number(knockouts)));
    }

    // The body goes down when the blow beats what is left of it plus twice the bodyDurability and
    // the willpower, give or take 15; arms and legs only once they are spent, on the same test.
    // (bodyDurability 10, willpower 5: a body of 200 that takes d stands on 225 - d.)
    void aBlowBelowTheHead_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<int>("partHealth");
        QTest::addColumn<int>("bodyHealth");
        QTest::addColumn<int>("damage");
        QTest::addColumn<int>("falls"); // 0 never, 1 always, -1 now and then

        QTest::newRow("the body, 15 short") << int(Body) << 200 << 200 << 105 << 0;
        QTest::newRow("the body, 15 over stands now and then") << int(Body) << 200 << 200 << 120 << -1;
        QTest::newRow("the body, 16 over") << int(Body) << 200 << 200 << 121 << 1;
        QTest::newRow("a beaten body falls from a touch") << int(Body) << -1000 << -1000 << 0 << 1;
        QTest::newRow("a blow below 0 is never tested") << int(Body) << -1000 << -1000 << -1 << 0;
        QTest::newRow("arms with 1 left hold") << int(Arms) << 11 << -1000 << 10 << 0;
        QTest::newRow("spent arms drop a beaten body") << int(Arms) << 10 << -1000 << 10 << 1;
        QTest::newRow("spent arms on a sound body hold") << int(Arms) << 10 << 200 << 10 << 0;
        QTest::newRow("legs with 1 left hold") << int(Legs) << 11 << -1000 << 10 << 0;
        QTest::newRow("spent legs drop a beaten body") << int(Legs) << 10 << -1000 << 10 << 1;
    }

    void aBlowBelowTheHead()
    {
        QFETCH(int, part);
        QFETCH(int, partHealth);
        QFETCH(int, bodyHealth);
        QFETCH(int, damage);
        QFETCH(int, falls);
        Entity_MatchFighter fighter(man(1, "Puncher", 0, {{F::BodyDurability, 10}, {F::Willpower, 5}}));
        int fell = 0;
        for (int i = 0; i < 1000; ++i) {
            fighter.setHealths(100, bodyHealth, part == Arms ? partHealth : 100, part == Legs ? partHealth : 100);
            const int result = part == Body   ? fighter.hitBody(damage)
                               : part == Arms ? fighter.hitArms(damage)
                                              : fighter.hitLegs(damage);
            QVERIFY(result == 3 || result == MatchCodes::KnockedDown);
            fell += result == MatchCodes::KnockedDown ? 1 : 0;
        }
        QVERIFY2(falls < 0 ? fell > 0 && fell < 1000 : fell == 1000 * falls, qPrintable(QString::number(fell)));
    }

    // the first row that fits sets the band; a roll of u100 against resilience decides most rows
    void staminaBands_data()
    {
        QTest::addColumn<int>("resilience");
        QTest::addColumn<int>("staminaShare"); // in sixtieths of the ceiling
        QTest::addColumn<int>("band");
        // a resilience of -1 loses every roll, one of 100 wins every roll
        QTest::newRow("below a fifth, a tiring man") << -1 << 11 << 5;
        QTest::newRow("a fifth") << -1 << 12 << 4;
        QTest::newRow("below a third") << -1 << 19 << 4;
        QTest::newRow("a third") << -1 << 20 << 3;
        QTest::newRow("below half") << -1 << 29 << 3;
        QTest::newRow("half") << -1 << 30 << 2;
        QTest::newRow("below two thirds") << -1 << 39 << 2;
        QTest::newRow("two thirds") << -1 << 40 << 1;
        QTest::newRow("spent, a tough man") << 100 << 5 << 1;
        QTest::newRow("beyond twice the ceiling, a tough man") << 100 << 121 << 0;
        QTest::newRow("twice the ceiling is not beyond it") << 100 << 120 << 3;
        QTest::newRow("beyond twice the ceiling, a weak roll keeps the band") << -1 << 125 << 3;
    }

    void staminaBands()
    {
        QFETCH(int, resilience);
        QFETCH(int, staminaShare);
        QFETCH(int, band);
        // a ceiling of 2 * (4 * 60) = 480, so a sixtieth is 8
        Entity_MatchFighter fighter(man(1, "Puncher", 60, {{F::Resilience, resilience}}));
        fighter.prepareForMatch();
        QCOMPARE(fighter.getMaxStamina(), 480);
        for (int i = 0; i < 50; ++i) {
            fighter.setStaminaBand(3);
            fighter.setStamina(8 * staminaShare + 1);
            fighter.changeStamina(-1);
            QCOMPARE(fighter.getStaminaBand(), band);
        }
        fighter.changeStamina(-100000);
        QCOMPARE(fighter.getStamina(), 0);
    }

    // The count: the man down holds the attacker's role and is counted once a step. He can rise
    // from four; a man who can't is out at ten. Rising costs stamina by his bodyDurability.
    void theCount_data()
    {
        QTest::addColumn<bool>("beaten");
        QTest::addColumn<int>("steps");
        QTest::newRow("a sound man rises at four") << false << 4;
        QTest::newRow("a beaten body is counted out at ten") << true << 10;
    }

    void theCount()
    {
        QFETCH(bool, beaten);
        QFETCH(int, steps);
        for (int i = 0; i < 100; ++i) {
            // bodyDurability 0 makes rising cost 10
            start(man(1, "Puncher", beaten ? 0 : 99, {{F::BodyDurability, 0}}), man(2, "Puncher", 50));
            if (beaten)
                one().setHealths(100, -1000, 100, 100);
            one().setStamina(1000);
            one().setState(new State_Gen_KD(one()));
            two().setState(new State_Atk_Strike(two(), EvJab));
            int counted = 0;
            bool over = false;
            while (!over && one().stateName() == "State_Gen_KD" && counted < 20) {
                over = match().step();
                ++counted;
            }
            QCOMPARE(counted, steps);
            QCOMPARE(over, beaten);
            if (beaten) {
                QCOMPARE(match().getLoser(), &one());
                QCOMPARE(one().getActionCode(), int(MatchCodes::KnockedOut));
                QCOMPARE(one().getStamina(), 1000);
            } else {
                QCOMPARE(match().getAttacker(), &two());
                QCOMPARE(two().stateName(), QStringLiteral("State_Atk_Out"));
                QCOMPARE(one().stateName(), QStringLiteral("State_Def_Out"));
                QCOMPARE(one().getStamina(), 990);
            }
        }
    }

    // a man down at the bell is saved: the next round starts at long range and costs him nothing
    void theBellSavesTheManDown()
    {
        start(man(1, "Puncher", 0), man(2, "Puncher", 50));
        one().setHealths(100, -1000, 100, 100);
        one().setStamina(1000);
        one().setState(new State_Gen_KD(one()));
        two().setState(new State_Atk_Strike(two(), EvJab));
        for (int i = 0; i < 9; ++i)
            QVERIFY(!match().step());
        match().nextRound();
        match().beginRound();
        QVERIFY(!match().isMatchOver());
        QCOMPARE(match().getAttacker()->stateName(), QStringLiteral("State_Atk_Out"));
        QCOMPARE(match().getDefender()->stateName(), QStringLiteral("State_Def_Out"));
        QCOMPARE(one().getStamina(), 1000);
        // and a new knockdown is counted from one again
        one().setState(new State_Gen_KD(one()));
        if (match().getAttacker() != &one())
            match().swapRoles();
        for (int i = 0; i < 9; ++i)
            QVERIFY(!match().step());
        QVERIFY(match().step());
    }
};

QTEST_GUILESS_MAIN(tst_Damage)
#include "tst_damage.moc"
