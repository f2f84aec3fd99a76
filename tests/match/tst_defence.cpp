#include "Ring.h"

#include "fighters/Random.h"
#include "match/State_Atk_Range.h"
#include "match/State_Atk_Strike.h"
#include "match/State_Def_DefMove.h"
#include "match/State_Def_Defence.h"
#include "match/State_Def_DefendDecide.h"
#include "match/State_Gen_CounterAtk.h"
#include "match/State_Gen_CounterDmg.h"

#include <QHash>
#include <QtTest>

using namespace Ring;
using Kind = State_Def_Defence::Kind;

namespace {

enum Choice { Block, Counter, Dodge, Return };

// A man of all 0 whose four attributes of one choice stand at 50: that choice scores at least 204,
// every other at most 200, so it always ranks first.
Entity_Fighter leaningTo(Choice choice)
{
    const F::Number parts[4][4] = {
        {F::Resilience, F::Durability, F::Balance, F::Conditioning},
        {F::Instinct, F::Awareness, F::Coordination, F::Anticipation},
        {F::Reflexes, F::EvasionSpeed, F::Snap, F::MoveSpeed},
        {F::Aggression, F::Ferocity, F::Willpower, F::PunchPower},
    };
    Entity_Fighter record = man(2, "Puncher", 0);
    for (F::Number part : parts[choice])
        record.setNumber(part, 50);
    return record;
}

// how often each state follows when `code` is announced to a man in State_Def_DefendDecide
QHash<QString, int> answersTo(const Entity_Fighter &record, int code, int trials)
{
    Entity_MatchFighter defender(record);
    QHash<QString, int> seen;
    for (int i = 0; i < trials; ++i) {
        defender.setState(new State_Def_DefendDecide(defender));
        defender.receiveEvent(code);
        ++seen[defender.stateName()];
        defender.releaseRetiredStates();
    }
    return seen;
}

QString rangeStateOfDefender(int range)
{
    return range == MatchCodes::Pocket   ? "State_Def_In"
           : range == MatchCodes::Clinch ? "State_Def_Clinch"
                                         : "State_Def_Out";
}

QString rangeStateOfAttacker(int range)
{
    return range == MatchCodes::Pocket   ? "State_Atk_In"
           : range == MatchCodes::Clinch ? "State_Atk_Clinch"
                                         : "State_Atk_Out";
}

} // namespace

class tst_Defence : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(7001); }
    void cleanup() { Random::useRealClock(); }

    // The strike gives the state of each choice; a low kick can't be countered and is blocked.
    // The choice that ranks first comes up 7 times in 15, each of the other three 8 times in 45.
    void choiceOfDefence_data()
    {
        QTest::addColumn<int>("strike");
        QTest::addColumn<QString>("block");
        QTest::addColumn<QString>("counter");
        QTest::addColumn<QString>("dodge");

        const QString high = "State_Def_CounterHigh", mid = "State_Def_CounterMid";
        QTest::newRow("jab") << int(EvJab) << "State_Def_BlockHighPunch" << high << "State_Def_DodgeHigh";
        QTest::newRow("hook") << int(EvHook) << "State_Def_BlockHighPunch" << high << "State_Def_DodgeHigh";
        QTest::newRow("cross") << int(EvCross) << "State_Def_BlockHighPunch" << high << "State_Def_DodgeHigh";
        QTest::newRow("uppercut") << int(EvUppercut) << "State_Def_BlockHighPunch" << high << "State_Def_DodgeHigh";
        QTest::newRow("low kick is blocked when countered") << int(EvLowKick) << "State_Def_BlockLow"
                                                            << "State_Def_BlockLow"
                                                            << "State_Def_DodgeLow";
        QTest::newRow("mid kick") << int(EvMidKick) << "State_Def_BlockMid" << mid << "State_Def_DodgeMid";
        QTest::newRow("high kick") << int(EvHighKick) << "State_Def_BlockHighKick" << high << "State_Def_DodgeHigh";
        QTest::newRow("front kick") << int(EvFrontKick) << "State_Def_BlockMid" << mid << "State_Def_DodgeMid";
        QTest::newRow("knee") << int(EvKnee) << "State_Def_BlockMid" << mid << "State_Def_DodgeMid";
        QTest::newRow("elbow") << int(EvElbow) << "State_Def_BlockClinch" << high << "State_Def_DodgeClinch";
        QTest::newRow("dirty boxing") << int(EvDirtyBox) << "State_Def_BlockClinch" << mid << "State_Def_DodgeClinch";
        QTest::newRow("body punch") << int(EvBodyPunch) << "State_Def_BlockMid" << mid << "State_Def_DodgeMid";
    }

    void choiceOfDefence()
    {
        QFETCH(int, strike);
        QFETCH(QString, block);
        QFETCH(QString, counter);
        QFETCH(QString, dodge);
        const QString states[] = {block, counter, dodge, "State_Def_ReturnAttack"};
        const int trials = 1500;
        for (Choice choice : {Block, Counter, Dodge, Return}) {
            QHash<QString, double> expected;
            for (int other = Block; other <= Return; ++other)
                expected[states[other]] += other == choice ? 7.0 / 15 : 8.0 / 45;
            const QHash<QString, int> seen = answersTo(leaningTo(choice), strike, trials);
            QCOMPARE(seen.size(), expected.size());
            for (auto it = seen.cbegin(); it != seen.cend(); ++it)
                QVERIFY2(qAbs(it.value() / double(trials) - expected.value(it.key(), -1)) < 0.035,
                         qPrintable(it.key() + " " + QString::number(it.value())));
        }
    }

    // a Brawler likes to trade, a Tactician to counter; the others weigh the four alike
    void styleTiltsTheChoice_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("favourite");
        QTest::newRow("a Brawler fires back") << "Brawler"
                                              << "State_Def_ReturnAttack";
        QTest::newRow("a Tactician counters") << "Tactician"
                                              << "State_Def_CounterHigh";
    }

    void styleTiltsTheChoice()
    {
        QFETCH(QString, style);
        QFETCH(QString, favourite);
        const int trials = 4000;
        const QHash<QString, int> plain = answersTo(man(2, "Puncher", 50), EvJab, trials);
        const QHash<QString, int> tilted = answersTo(man(2, style, 50), EvJab, trials);
        for (const QString &state :
             {QStringLiteral("State_Def_BlockHighPunch"), QStringLiteral("State_Def_CounterHigh"),
              QStringLiteral("State_Def_DodgeHigh"), QStringLiteral("State_Def_ReturnAttack")}) {
            const double shift = (tilted.value(state) - plain.value(state)) / double(trials);
            if (state == favourite)
                QVERIFY2(shift > 0.05, qPrintable(QString::number(shift)));
            else
                QVERIFY2(shift < 0.02, qPrintable(state + " " + QString::number(shift)));
        }
    }

    // The defence value stands a number of times in a list of twelve, 0 fills the rest; an entry
    // below the strike's accuracy lets the strike through. The weakest defender's value has a
    // ceiling that its dice set; the attribute that steadies a defence lifts it far above.
    void defenceRoll_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("steadier"); // an attribute raised to 99, or -1
        QTest::addColumn<int>("accuracy");
        QTest::addColumn<double>("works"); // -1: often, -2: now and then

        const struct {
            Kind kind;
            const char *name;
            int entries;
            F::Number steadier;
            int ceiling; // the highest value of a man of all 0
        } rows[] = {
            {Kind::BlockHighPunch, "high punch block", 8, F::PunchGuardSpeed, 14},
            {Kind::BlockHighKick, "high kick block", 8, F::KickGuardSpeed, 14},
            {Kind::BlockMid, "body block", 10, F::BodyGuardSpeed, 14},
            {Kind::BlockLow, "leg block", 10, F::LegGuardSpeed, 14},
            {Kind::BlockClinch, "clinch block", 10, F::Torque, 14},
            {Kind::DodgeHigh, "head dodge", 8, F::Snap, 10},
            {Kind::DodgeMid, "body dodge", 8, F::Snap, 10},
            {Kind::DodgeLow, "low dodge", 8, F::Snap, 10},
            {Kind::DodgeClinch, "clinch dodge", 8, F::Grappling, 10},
            {Kind::CounterHigh, "high counter", 8, F::EvasionSpeed, 7},
            {Kind::CounterMid, "mid counter", 8, F::EvasionSpeed, 7},
        };
        for (const auto &row : rows) {
            QTest::addRow("%s: a strong value stands %d times in 12", row.name, row.entries)
                << int(row.kind) << 99 << -1 << 1 << row.entries / 12.0;
            QTest::addRow("%s: the weakest value never reaches %d", row.name, row.ceiling + 1)
                << int(row.kind) << 0 << -1 << row.ceiling + 1 << 0.0;
            QTest::addRow("%s: but now and then %d", row.name, row.ceiling)
                << int(row.kind) << 0 << -1 << row.ceiling << -2.0;
            QTest::addRow("%s: its steadier lifts it", row.name)
                << int(row.kind) << 0 << int(row.steadier) << row.ceiling + 1 << -1.0;
        }
        QTest::newRow("no accuracy is beaten by a drawn 0") << int(Kind::CounterMid) << 0 << -1 << 0 << 1.0;
        QTest::newRow("an accuracy beyond every value") << int(Kind::BlockLow) << 99 << -1 << 1000 << 0.0;
    }

    void defenceRoll()
    {
        QFETCH(int, kind);
        QFETCH(int, level);
        QFETCH(int, steadier);
        QFETCH(int, accuracy);
        QFETCH(double, works);
        Entity_Fighter record = man(2, "Puncher", level);
        if (steadier >= 0)
            record.setNumber(F::Number(steadier), 99);
        quietAttacker(record);
        const DefencePair pairs[] = {HighBlocks,  HighBlocks,   BodyAndLegBlocks, BodyAndLegBlocks,
                                     HighBlocks,  HighDodges,   OtherDodges,      OtherDodges,
                                     OtherDodges, HighCounters, MidCounters};
        const DefencePair pair = pairs[kind];

        const int trials = 10000;
        int worked = 0;
        for (int i = 0; i < trials; ++i) {
            two().setState(new State_Def_Defence(two(), Kind(kind)));
            two().receiveEvent(EvJab, accuracy);
            two().releaseRetiredStates();
            const bool through = two().stateName() == "State_Gen_FullDmg";
            worked += through ? 0 : 1;
            QCOMPARE(status(two(), MatchStatus::made(pair)), worked);
            QCOMPARE(status(two(), MatchStatus::tried(pair)), i + 1);
        }
        const double share = worked / double(trials);
        if (works == -1.0)
            QVERIFY2(share > 0.25, qPrintable(QString::number(share)));
        else if (works == -2.0)
            QVERIFY2(worked > 0 && share < 0.02, qPrintable(QString::number(worked)));
        else if (works == 0.0 || works == 1.0)
            QCOMPARE(share, works);
        else
            QVERIFY2(qAbs(share - works) < 0.03, qPrintable(QString::number(share)));
    }

    // The defender contests a change of range with a stopping strike: the Puncher's first, the
    // Kicker's second, anybody else's by an odd or even d50. It works when the mover's score is
    // below the strike's value, which one draw in two replaces by 0; the stopped man goes back to
    // where the defender stands, hurt but never down.
    void contestOfRange_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("standsAt");
        QTest::addColumn<int>("movedTo");
        QTest::addColumn<int>("moversScore");
        QTest::addColumn<double>("stops");
        QTest::addColumn<int>("strike"); // -1: the first or the second, alike
        QTest::addColumn<QString>("moverBack");

        const int in = MatchCodes::Pocket, out = MatchCodes::LongRange, clinch = MatchCodes::Clinch;
        QTest::newRow("a Puncher jabs the man coming in")
            << "Puncher" << out << in << -1 << 1.0 << int(EvJab) << "State_Atk_Out";
        QTest::newRow("a Kicker front-kicks him")
            << "Kicker" << out << in << -1 << 1.0 << int(EvFrontKick) << "State_Atk_Out";
        QTest::newRow("anybody else does either") << "Brawler" << out << in << -1 << 1.0 << -1 << "State_Atk_Out";
        QTest::newRow("backing out is jabbed") << "Puncher" << in << out << -1 << 1.0 << int(EvJab) << "State_Atk_In";
        QTest::newRow("a grab meets a cross")
            << "Puncher" << in << clinch << -1 << 1.0 << int(EvCross) << "State_Atk_In";
        QTest::newRow("or a Kicker's knee") << "Kicker" << in << clinch << -1 << 1.0 << int(EvKnee) << "State_Atk_In";
        QTest::newRow("breaking out of the clinch")
            << "Kicker" << clinch << in << -1 << 1.0 << int(EvFrontKick) << "State_Atk_Clinch";
        QTest::newRow("below the value one draw in two stops")
            << "Puncher" << out << in << 399 << 0.5 << int(EvJab) << "State_Atk_Out";
        QTest::newRow("a score of 0 is no stop's equal")
            << "Puncher" << out << in << 0 << 0.5 << int(EvJab) << "State_Atk_Out";
        QTest::newRow("the highest value is not enough") << "Puncher" << out << in << 596 << 0.0 << int(EvJab) << "";
    }

    void contestOfRange()
    {
        QFETCH(QString, style);
        QFETCH(int, standsAt);
        QFETCH(int, movedTo);
        QFETCH(int, moversScore);
        QFETCH(double, stops);
        QFETCH(int, strike);
        QFETCH(QString, moverBack);

        const int trials = 2000;
        int stopped = 0, firstStrikes = 0;
        for (int i = 0; i < trials; ++i) {
            // the stop of a man of all 99 is worth 400 to 596 and hurts 3 to 99
            start(man(1, "Puncher", 0), man(2, style, 99));
            one().setHealths(-1000, 100, 100, 100);
            one().setState(new State_Atk_Range(one(), movedTo));
            one().setActionValue(moversScore);
            two().setActionCode(standsAt);
            two().changeState(new State_Def_DefMove(two(), movedTo));

            const int hurt = -1000 - one().getHeadHealth();
            QCOMPARE(match().getAttacker(), &one());
            QCOMPARE(status(one(), MatchStatus::KnockdownsTaken), 0);
            if (one().stateName() != rangeStateOfAttacker(movedTo)) {
                ++stopped;
                QCOMPARE(one().stateName(), moverBack);
                QCOMPARE(two().stateName(), rangeStateOfDefender(standsAt));
                QCOMPARE(allLanded(two()), 1);
                QVERIFY2(hurt >= 3 && hurt <= 99, qPrintable(QString::number(hurt)));
                if (strike >= 0)
                    QCOMPARE(landed(two(), strike), 1);
                firstStrikes += landed(two(), EvJab) + landed(two(), EvCross);
            } else {
                QCOMPARE(two().stateName(), rangeStateOfDefender(movedTo));
                QCOMPARE(allLanded(two()), 0);
                QCOMPARE(hurt, 0);
            }
        }
        const double share = stopped / double(trials);
        if (stops == 0.0 || stops == 1.0)
            QCOMPARE(share, stops);
        else
            QVERIFY2(qAbs(share - stops) < 0.04, qPrintable(QString::number(share)));
        if (strike < 0)
            QVERIFY2(qAbs(firstStrikes / double(stopped) - 0.5) < 0.05, qPrintable(QString::number(firstStrikes)));
    }

    // The counter: a front kick or a knee for a Clincher or a Kicker, a jab or an uppercut for the
    // others, always to the head. The countered man takes the initiative back at long range when
    // his combo roll holds; else it goes to the counterer.
    void counterAttack_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("drive");
        QTest::addColumn<int>("strike"); // -1: no counter from here
        QTest::addColumn<int>("attacker");

        const int in = MatchCodes::Pocket, out = MatchCodes::LongRange, clinch = MatchCodes::Clinch;
        QTest::newRow("a Puncher jabs at long range") << "Puncher" << out << 0 << int(EvJab) << 1;
        QTest::newRow("a Kicker front-kicks") << "Kicker" << out << 0 << int(EvFrontKick) << 1;
        QTest::newRow("so does a Clincher") << "Clincher" << out << 0 << int(EvFrontKick) << 1;
        QTest::newRow("an uppercut in the pocket") << "Outfighter" << in << 0 << int(EvUppercut) << 1;
        QTest::newRow("a knee in the clinch") << "Clincher" << clinch << 0 << int(EvKnee) << 1;
        QTest::newRow("a driven man takes the initiative back") << "Puncher" << out << 99 << int(EvJab) << 2;
        QTest::newRow("no range, no strike, the points all the same") << "Puncher" << 4 << 0 << -1 << 1;
    }

    void counterAttack()
    {
        QFETCH(QString, style);
        QFETCH(int, range);
        QFETCH(int, drive);
        QFETCH(int, strike);
        QFETCH(int, attacker);
        int highestJudge = 0;
        for (int i = 0; i < 400; ++i) {
            // a counterer of all 99 whose techniques are 0 pays 10 stamina for his strike
            Entity_Fighter counterer = man(1, style, 99);
            for (int s = 0; s < F::StrikeCount; ++s)
                counterer.setNumber(F::strikeTechnique(s), 0);
            start(counterer,
                  man(2, "Puncher", 0,
                      {{F::Discipline, drive}, {F::Aggression, drive}, {F::Ferocity, drive}, {F::Willpower, drive}}));
            unbreakable(two());
            one().setStamina(1000);
            two().setStamina(100000);
            one().setActionCode(range);
            one().setState(new State_Gen_CounterAtk(one()));
            two().setState(new State_Gen_CounterDmg(two()));
            match().step();

            const int headLoss = 100000 - two().getHeadHealth();
            QCOMPARE(allLanded(one()), strike < 0 ? 0 : 1);
            QCOMPARE(one().getStamina(), strike < 0 ? 1000 : 990);
            if (strike >= 0) {
                QCOMPARE(landed(one(), strike), 1);
                QVERIFY(headLoss > 0);
            }
            QCOMPARE(100000 - two().getStamina(), headLoss);
            QCOMPARE(two().getBodyHealth(), 100000);
            QCOMPARE(match().getAttacker(), attacker == 1 ? &one() : &two());
            QCOMPARE(match().getAttacker()->stateName(), QStringLiteral("State_Atk_Out"));
            highestJudge = qMax(highestJudge, judgesHigh(match().endRoundScores()).one);
        }
        QCOMPARE(highestJudge, 9);
    }

    // A counter that drops the man scores a knockdown for the counterer; the man down holds the
    // attacker's role for the count.
    void aCounterCanDropHim()
    {
        int highestJudge = 0;
        for (int i = 0; i < 2000; ++i) {
            start(man(1, "Puncher", 99), man(2, "Puncher", 0, {{F::HeadDurability, 99}}));
            two().setHealths(-1000, 100, 100, 100);
            one().setActionCode(MatchCodes::LongRange);
            one().setState(new State_Gen_CounterAtk(one()));
            two().setState(new State_Gen_CounterDmg(two()));
            match().step();
            QCOMPARE(status(one(), MatchStatus::KnockdownsScored), 1);
            QCOMPARE(status(two(), MatchStatus::KnockdownsTaken), 1);
            QCOMPARE(match().getAttacker(), &two());
            QCOMPARE(two().stateName(), QStringLiteral("State_Gen_KD"));
            const QList<int> scores = match().endRoundScores();
            QCOMPARE(scores[7], 1);
            highestJudge = qMax(highestJudge, judgesHigh(scores).one);
        }
        QCOMPARE(highestJudge, 9 + 34);
    }

    // Return fire: the defender takes the strike where it lands, without the extra half a clean
    // hit does below the head, and fires back his style's shot, worth a tenth of his punchPower
    // and a d10, which the striker takes on the head on the next step without paying stamina.
    void returnFire_data()
    {
        QTest::addColumn<int>("strike");
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("punchPower");
        QTest::addColumn<int>("shot");      // one of two shots: the odd one
        QTest::addColumn<int>("otherShot"); // and the even one
        QTest::addColumn<int>("part");      // 0 head, 1 body, 2 legs

        QTest::newRow("a Kicker answers a jab to the head with a high kick")
            << int(EvJab) << "Kicker" << 99 << int(EvHighKick) << int(EvHighKick) << 0;
        QTest::newRow("a Tactician answers a mid kick to the body with a jab")
            << int(EvMidKick) << "Tactician" << 0 << int(EvJab) << int(EvJab) << 1;
        QTest::newRow("an Outfighter answers a low kick to the legs with a knee or a cross")
            << int(EvLowKick) << "Outfighter" << 50 << int(EvKnee) << int(EvCross) << 2;
        QTest::newRow("a Brawler answers a knee with an uppercut or a hook")
            << int(EvKnee) << "Brawler" << 99 << int(EvUppercut) << int(EvHook) << 1;
    }

    void returnFire()
    {
        QFETCH(int, strike);
        QFETCH(QString, style);
        QFETCH(int, punchPower);
        QFETCH(int, shot);
        QFETCH(int, otherShot);
        QFETCH(int, part);
        int shots = 0, highestJudge = 0, lowestBlow = 1000, highestBlow = 0;
        for (int i = 0; i < 400; ++i) {
            // his techniques of 99 make his shot cost nothing
            start(man(1, "Puncher", 99), man(2, style, 99, {{F::PunchPower, punchPower}}));
            unbreakable(one());
            unbreakable(two());
            one().setStamina(1000);
            two().setStamina(100000);
            one().setActionCode(MatchCodes::OutAttack);
            one().setState(new State_Atk_Strike(one(), strike));
            two().setState(new State_Def_Defence(two(), Kind::ReturnAttack));
            match().step();

            const int losses[] = {100000 - two().getHeadHealth(), 100000 - two().getBodyHealth(),
                                  100000 - two().getLegsHealth()};
            QVERIFY(losses[part] > 0);
            QCOMPARE(losses[part], 100000 - two().getStamina());
            QCOMPARE(losses[0] + losses[1] + losses[2], losses[part]);
            QCOMPARE(allLanded(two()), 1);
            shots += landed(two(), shot);
            QCOMPARE(landed(two(), shot) + (shot != otherShot ? landed(two(), otherShot) : 0), 1);
            highestJudge = qMax(highestJudge, judgesHigh(match().endRoundScores()).two);

            // the striker takes the shot on the next step and, with one strike thrown, goes on
            match().step();
            const int blow = 100000 - one().getHeadHealth();
            lowestBlow = qMin(lowestBlow, blow);
            highestBlow = qMax(highestBlow, blow);
            QCOMPARE(one().getStamina(), 1000);
            QCOMPARE(one().stateName(), QStringLiteral("State_Atk_OutAttack"));
        }
        QCOMPARE(highestJudge, 4);
        QCOMPARE(lowestBlow, punchPower / 10 + 1);
        QCOMPARE(highestBlow, punchPower / 10 + 10);
        if (shot != otherShot)
            QVERIFY2(qAbs(shots / 400.0 - 0.5) < 0.08, qPrintable(QString::number(shots)));
    }

    // a return shot that drops the striker scores the knockdown for the man who fired it
    void aReturnShotCanDropTheStriker()
    {
        int highestJudge = 0;
        for (int i = 0; i < 2000; ++i) {
            start(man(1, "Puncher", 0, {{F::HeadDurability, 99}}), man(2, "Kicker", 99));
            one().setHealths(-1000, 100, 100, 100);
            unbreakable(two());
            one().setActionCode(MatchCodes::OutAttack);
            one().setState(new State_Atk_Strike(one(), EvJab));
            two().setState(new State_Def_Defence(two(), Kind::ReturnAttack));
            match().step();
            match().step();
            QCOMPARE(status(two(), MatchStatus::KnockdownsScored), 1);
            QCOMPARE(status(one(), MatchStatus::KnockdownsTaken), 1);
            QCOMPARE(match().getAttacker(), &one());
            QCOMPARE(one().stateName(), QStringLiteral("State_Gen_KD"));
            const QList<int> scores = match().endRoundScores();
            QCOMPARE(scores[6], 1);
            highestJudge = qMax(highestJudge, judgesHigh(scores).two);
        }
        QCOMPARE(highestJudge, 4 + 34);
    }
};

QTEST_GUILESS_MAIN(tst_Defence)
#include "tst_defence.moc"
