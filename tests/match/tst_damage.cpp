#include "Ring.h"

#include "fighters/Random.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Gen_BlkDmg.h"
#include "match/State_Gen_FullDmg.h"
#include "match/State_Gen_KD.h"

#include <QtTest>

#include <array>

using namespace Ring;

namespace {

enum Part { Head, Body, Arms, Legs };

constexpr int Plenty = 100000, Now = -1; // Now: now and then

// fighter two, made unbreakable and fresh, takes a blow of `damage` in `state`; what he lost of
// each part and of stamina
QList<int> takes(MatchState *state, int strike, int damage)
{
    unbreakable(two());
    two().setStamina(Plenty);
    two().setState(state);
    two().receiveEvent(strike, damage);
    two().releaseRetiredStates();
    return {Plenty - two().getHeadHealth(), Plenty - two().getBodyHealth(), Plenty - two().getArmsHealth(),
            Plenty - two().getLegsHealth(), Plenty - two().getStamina()};
}

// a man whose composure roll always holds (99) or always fails (0)
Entity_MatchFighter composedMan(bool composed, int headDurability)
{
    const int sense = composed ? 99 : 0;
    return Entity_MatchFighter(
        man(1, "Puncher", 0,
            {{F::FightIQ, sense}, {F::Awareness, sense}, {F::Discipline, sense}, {F::HeadDurability, headDurability}}));
}

struct Blow {
    const char *name;
    bool composed;
    int headDurability, headHealth, damage;
    double outcome; // how often he falls, or how often the tactic follows
    int tactic = 0;
};

// The head check: a man falls when the blow beats his headDurability plus, composed, his whole
// headHealth, rattled a quarter of it, give or take up to 15; a head at 0 adds nothing, a beaten
// head counts against a rattled man.
const Blow headChecks[] = {
    {"composed: 15 short of his head stands", true, 0, 100, 85, 0},
    {"composed: 14 short falls now and then", true, 0, 100, 86, Now},
    {"composed: 16 over falls", true, 0, 100, 116, 1},
    {"rattled: a quarter, 15 short stands", false, 0, 100, 10, 0},
    {"rattled: a quarter, 16 over falls", false, 0, 100, 41, 1},
    {"the jaw counts whole: short", true, 60, 100, 145, 0},
    {"an empty head adds nothing: over", false, 50, 0, 66, 1},
    {"a beaten head drops a rattled man from nothing", false, 50, -100, 0, 1},
    {"a composed man keeps his jaw", true, 50, -100, 34, 0},
};

// What a blow does to a man's mind: a rattled man may be stunned (6) unless his jaw holds; a
// beaten head leaves a rattled man dazed (5); a blow beyond 10 + u20 dazes whoever stands.
const Blow mindBlows[] = {
    {"a rattled glass jaw is stunned", false, 0, 10000, 5, 0.99, 6},
    {"a rattled iron jaw is not", false, 99, 10000, 5, 1, 0},
    {"a composed man keeps his head", true, 0, 10000, 5, 1, 0},
    {"a beaten rattled head is dazed", false, 99, -100, 0, 1, 5},
    {"a blow of 10 never dazes", true, 99, 10000, 10, 1, 0},
    {"a blow of 30 always does", true, 99, 10000, 30, 1, 5},
};

// The body goes down when the blow beats what is left of it plus twice the bodyDurability and the
// willpower, give or take 15; arms and legs only once they are spent, on the same test.
// (bodyDurability 10, willpower 5: a body of 200 that takes d stands on 225 - d.)
struct BelowTheHead {
    const char *name;
    Part part;
    int partHealth, bodyHealth, damage, falls;
};

const BelowTheHead belowTheHead[] = {
    {"the body, 15 short", Body, 200, 200, 105, 0},
    {"the body, 16 over", Body, 200, 200, 121, 1},
    {"a beaten body falls from a touch", Body, -1000, -1000, 0, 1},
    {"a blow below 0 is never tested", Body, -1000, -1000, -1, 0},
    {"arms with 1 left hold", Arms, 11, -1000, 10, 0},
    {"spent arms drop a beaten body", Arms, 10, -1000, 10, 1},
    {"spent arms on a sound body hold", Arms, 10, 200, 10, 0},
    {"legs with 1 left hold", Legs, 11, -1000, 10, 0},
    {"spent legs drop a beaten body", Legs, 10, -1000, 10, 1},
};

// A blocked blow costs its damage in stamina and half as much again on the arms, on the legs for a
// leg block; the guard's speed and technique take more off it.
struct Block {
    const char *name;
    State_Gen_BlkDmg::Guard guard;
    F::Number speed, technique;
    Part part;
};

const Block blocks[] = {
    {"high punch block", State_Gen_BlkDmg::HeadPunch, F::PunchGuardSpeed, F::PunchGuardTechnique, Arms},
    {"leg block on the legs", State_Gen_BlkDmg::Leg, F::LegGuardSpeed, F::LegGuardTechnique, Legs},
};

// the first row that fits sets the band: the first bound and the last on both sides; a roll of
// u100 against resilience decides most rows (a resilience of -1 loses every roll, one of 100 wins
// every roll)
struct Band {
    const char *name;
    int resilience, sixtieths, band; // stamina in sixtieths of the ceiling
};

const Band bands[] = {
    {"below a fifth, a tiring man", -1, 11, 5},
    {"a fifth", -1, 12, 4},
    {"below two thirds", -1, 39, 2},
    {"two thirds", -1, 40, 1},
    {"spent, a tough man", 100, 5, 1},
    {"beyond twice the ceiling, a tough man", 100, 121, 0},
    {"twice the ceiling is not beyond it", 100, 120, 3},
    {"beyond twice the ceiling, a weak roll keeps the band", -1, 125, 3},
};

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
        for (int strike = EvJab; strike <= EvBodyPunch; ++strike) {
            QList<int> expected(5, 0);
            const Part part = parts[strike - EvJab];
            expected[part] = part == Head ? 20 : 30;
            expected[4] = 20;
            for (int i = 0; i < 20; ++i)
                QCOMPARE(takes(new State_Gen_FullDmg(two()), strike, 20), expected);
        }
    }

    // What a man takes off a clean blow of 100: (conditioning / 10 + d10 + resilience / 10 + d10)
    // over (d10 - durability + 100) / 5 + 1. Of 99 each: 6 to 38 off; of durability 80: 2 to 7. A
    // blow he absorbs whole hurts nothing.
    void aToughManAbsorbs()
    {
        for (const auto &[durability, lowest, highest] : {std::array{99, 62, 94}, std::array{80, 93, 98}}) {
            quietAttacker(man(2, "Puncher", 99, {{F::Durability, durability}}));
            int seenLow = Plenty, seenHigh = 0;
            for (int i = 0; i < 5000; ++i) {
                const QList<int> lost = takes(new State_Gen_FullDmg(two()), EvJab, 100);
                QCOMPARE(lost[4], lost[Head]);
                seenLow = qMin(seenLow, lost[Head]);
                seenHigh = qMax(seenHigh, lost[Head]);
            }
            QCOMPARE(seenLow, lowest);
            QVERIFY2(seenHigh <= highest && (durability < 99 || seenHigh == highest),
                     qPrintable(QString::number(seenHigh)));
            QCOMPARE(takes(new State_Gen_FullDmg(two()), EvMidKick, 1), QList<int>(5, 0));
        }
    }

    // a man of all 0 takes 0 to 4 off a blow of 20, a guard of 99 2 to 6: (9 + 2d10 + 9 + d10) over 7 to 9
    void aBlockedBlow_data() { TableRows::add(blocks); }

    void aBlockedBlow()
    {
        const Block &row = TableRows::current(blocks);
        for (bool guarded : {false, true}) {
            quietAttacker(man(2, "Puncher", 0, {{row.speed, guarded ? 99 : 0}, {row.technique, guarded ? 99 : 0}}));
            int highest = 0;
            for (int i = 0; i < 300; ++i) {
                const QList<int> lost = takes(new State_Gen_BlkDmg(two(), row.guard), EvJab, 20);
                const int damage = lost[4];
                QList<int> expected(5, 0);
                expected[row.part] = damage + damage / 2;
                expected[4] = damage;
                QCOMPARE(lost, expected);
                QVERIFY(damage >= (guarded ? 14 : 16) && damage <= 20);
                highest = qMax(highest, damage);
            }
            QCOMPARE(highest, guarded ? 18 : 20);
        }
    }

    void headCheck_data() { TableRows::add(headChecks); }

    void headCheck()
    {
        const Blow &row = TableRows::current(headChecks);
        Entity_MatchFighter fighter = composedMan(row.composed, row.headDurability);
        int fell = 0;
        for (int i = 0; i < 1000; ++i) {
            fighter.setHealths(row.headHealth, 100, 100, 100);
            fell += fighter.headCheck(row.damage) ? 1 : 0;
        }
        QVERIFY2(comesTo(fell, 1000, row.outcome), qPrintable(QString::number(fell)));
    }

    void dazedAndStunned_data() { TableRows::add(mindBlows); }

    void dazedAndStunned()
    {
        const Blow &row = TableRows::current(mindBlows);
        Entity_MatchFighter fighter = composedMan(row.composed, row.headDurability);
        int hits = 0;
        for (int i = 0; i < 3000; ++i) {
            fighter.setHealths(row.headHealth + row.damage, 100, 100, 100);
            fighter.setTactic(0);
            fighter.hitHead(row.damage);
            hits += fighter.getTactic() == row.tactic ? 1 : 0;
        }
        QVERIFY2(comesTo(hits, 3000, row.outcome), qPrintable(QString::number(hits)));
    }

    // A man who falls from a blow to the head is out when u100 beats his headDurability.
    void knockoutChance()
    {
        for (const auto &[headDurability, share] : {std::pair{0, 0.99}, std::pair{50, 0.49}, std::pair{99, 0.0}}) {
            Entity_MatchFighter fighter = composedMan(false, headDurability);
            int knockouts = 0;
            for (int i = 0; i < 4000; ++i) {
                fighter.setHealths(-10000, 100, 100, 100);
                const int result = fighter.hitHead(0);
                QVERIFY(result == MatchCodes::KnockedDown || result == MatchCodes::KnockedOut);
                knockouts += result == MatchCodes::KnockedOut ? 1 : 0;
            }
            QVERIFY2(comesTo(knockouts, 4000, share, 0.025), qPrintable(QString::number(knockouts)));
        }
    }

    void aBlowBelowTheHead_data() { TableRows::add(belowTheHead); }

    void aBlowBelowTheHead()
    {
        const BelowTheHead &row = TableRows::current(belowTheHead);
        Entity_MatchFighter fighter(man(1, "Puncher", 0, {{F::BodyDurability, 10}, {F::Willpower, 5}}));
        int fell = 0;
        for (int i = 0; i < 1000; ++i) {
            fighter.setHealths(100, row.bodyHealth, row.part == Arms ? row.partHealth : 100,
                               row.part == Legs ? row.partHealth : 100);
            const int result = row.part == Body   ? fighter.hitBody(row.damage)
                               : row.part == Arms ? fighter.hitArms(row.damage)
                                                  : fighter.hitLegs(row.damage);
            QVERIFY(result == 3 || result == MatchCodes::KnockedDown);
            fell += result == MatchCodes::KnockedDown ? 1 : 0;
        }
        QVERIFY2(comesTo(fell, 1000, row.falls), qPrintable(QString::number(fell)));
    }

    void staminaBands_data() { TableRows::add(bands); }

    void staminaBands()
    {
        const Band &row = TableRows::current(bands);
        // a ceiling of 2 * (4 * 60) = 480, so a sixtieth is 8
        Entity_MatchFighter fighter(man(1, "Puncher", 60, {{F::Resilience, row.resilience}}));
        fighter.prepareForMatch();
        for (int i = 0; i < 50; ++i) {
            fighter.setStaminaBand(3);
            fighter.setStamina(8 * row.sixtieths + 1);
            fighter.changeStamina(-1);
            QCOMPARE(fighter.getStaminaBand(), row.band);
        }
        fighter.changeStamina(-100000);
        QCOMPARE(fighter.getStamina(), 0);
    }

    // The count: the man down holds the attacker's role and is counted once a step. He can rise
    // from four, which costs him 10 stamina at a bodyDurability of 0; a man who can't is out at ten.
    void theCount()
    {
        for (int i = 0; i < 200; ++i) {
            const bool beaten = i % 2;
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
            QCOMPARE(counted, beaten ? 10 : 4);
            QCOMPARE(over, beaten);
            QCOMPARE(one().getStamina(), beaten ? 1000 : 990);
            QCOMPARE(match().getAttacker() == &two() && two().stateName() == "State_Atk_Out" &&
                         one().stateName() == "State_Def_Out",
                     !beaten);
            if (beaten)
                QVERIFY(match().getLoser() == &one() && one().getActionCode() == MatchCodes::KnockedOut);
        }
    }

    // a man down at the bell is saved: the next round starts as every round does and costs him nothing
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
        QVERIFY(!match().isMatchOver() && one().stateName() != "State_Gen_KD");
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
