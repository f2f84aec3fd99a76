#include "match/State_Atk_Strike.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/State_Atk_Attack.h"
#include "match/State_Gen_CounterDmg.h"
#include "match/State_Gen_ReturnReceive.h"

using F = Entity_Fighter;
using namespace MatchCodes;

namespace {

// What sets a strike apart: A and B join its speed in the accuracy, C steadies the accuracy and
// E the power.
struct StrikeRow {
    const char *name;
    F::Number a, b, c, e;
};

constexpr StrikeRow strikeRows[] = {
    {"State_Atk_Jab", F::HandSpeed, F::Burst, F::Endurance, F::Endurance},
    {"State_Atk_Hook", F::HandSpeed, F::Strength, F::Torque, F::Strength},
    {"State_Atk_Cross", F::HandSpeed, F::Snap, F::Torque, F::Torque},
    {"State_Atk_Uppercut", F::HandSpeed, F::Strength, F::Snap, F::Torque},
    {"State_Atk_LowKick", F::KickSpeed, F::Coordination, F::Torque, F::Torque},
    {"State_Atk_MidKick", F::KickSpeed, F::Coordination, F::Torque, F::Torque},
    {"State_Atk_HighKick", F::KickSpeed, F::Coordination, F::Torque, F::Torque},
    {"State_Atk_FrontKick", F::KickSpeed, F::Coordination, F::Balance, F::Torque},
    {"State_Atk_Knee", F::Torque, F::ClinchEscape, F::Conditioning, F::Torque},
    {"State_Atk_Elbow", F::ClinchControl, F::Coordination, F::Grappling, F::ClinchControl},
    {"State_Atk_DirtyBox", F::ClinchControl, F::Coordination, F::Grappling, F::ClinchControl},
    {"State_Atk_BodyPunch", F::ClinchControl, F::Coordination, F::Snap, F::Torque},
};

// a tired man throws wide: the band moves the accuracy by this many halves of a d20
constexpr int accuracyHalvesByBand[] = {2, 1, 0, -1, -2, -4};

int clampedBand(int band)
{
    return band < 0 ? 0 : band > 5 ? 5 : band;
}

} // namespace

State_Atk_Strike::State_Atk_Strike(const Entity_MatchFighter &fighter, int code)
    : MatchState(fighter)
    , code(code)
    , strike(strikeIndex(code))
{
}

QString State_Atk_Strike::name() const
{
    return QString::fromLatin1(strikeRows[strike].name);
}

int State_Atk_Strike::cost() const
{
    return (100 - number(F::strikeTechnique(strike))) / 10;
}

void State_Atk_Strike::enter(Entity_MatchFighter &)
{
    match().sendToDefender(code);
}

void State_Atk_Strike::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const StrikeRow &row = strikeRows[strike];
    const int speed = number(F::strikeSpeed(strike));
    const int technique = number(F::strikeTechnique(strike));
    const int power = number(F::strikePower(strike));
    const int precision = number(F::Precision);
    const int punchPower = number(F::PunchPower);

    int accuracySum = speed + number(row.a) + 2 * roll.d(20);
    accuracySum += technique + precision + 2 * roll.d(20);
    accuracySum += number(row.b) + speed + 2 * roll.d(20);
    int accuracy = accuracySum / nonZero(roll.d(20) - number(row.c) + 101);
    const int b = roll.d(20);
    accuracy += accuracyHalvesByBand[clampedBand(fighter.getStaminaBand())] * b / 2;

    int powerSum = power + punchPower + 2 * roll.d(50);
    powerSum += precision + punchPower + 2 * roll.d(50);
    powerSum += 2 * (power + punchPower + 2 * roll.d(50));
    fighter.setActionValue(powerSum / nonZero(102 - number(row.e) + roll.u(10)));

    // the whole outcome of the strike runs inside this send
    match().sendToDefender(code, accuracy);
    match().countStrike();
}

void State_Atk_Strike::scoreAndPay(Entity_MatchFighter &fighter, int points, int landed, int staminaUnits)
{
    if (points > 0)
        match().addScore(fighter, points);
    fighter.addStrike(strike, landed, 1);
    fighter.changeStamina(-staminaUnits * cost());
}

void State_Atk_Strike::onEvent(Entity_MatchFighter &fighter, int event)
{
    MatchManager &m = match();
    // a strike that fells the man comes back here nested in its own hit: then it is scored but
    // the attacker does not go on
    const auto goOnUnlessFelled = [&fighter, &m] {
        if (!isStrike(fighter.getActionCode()) && !m.isMatchOver())
            goOn(fighter);
    };

    switch (event) {
    case EvFullHit:
        m.sendToDefender(code, fighter.getActionValue());
        scoreAndPay(fighter, 10, 1, 1);
        goOnUnlessFelled();
        break;
    case EvBlocked:
        m.sendToDefender(code, fighter.getActionValue());
        scoreAndPay(fighter, 2, 0, 2);
        goOnUnlessFelled();
        break;
    case EvDodged:
        // the dodger may take over inside this send
        m.sendToDefender(code, fighter.getActionValue());
        scoreAndPay(fighter, 0, 0, 2);
        break;
    case EvCountered:
        m.swapRoles();
        fighter.changeState(new State_Gen_CounterDmg(fighter));
        break;
    case EvReturned:
        m.sendToDefender(code, fighter.getActionValue());
        m.addScore(fighter, 5);
        fighter.addStrike(strike, 1, 1);
        fighter.changeState(new State_Gen_ReturnReceive(fighter));
        break;
    case EvKnockdown:
        fighter.setActionCode(code);
        m.sendToDefender(code);
        m.addScore(fighter, 35);
        fighter.addStrike(strike, 1, 1);
        fighter.countKnockdown(true);
        break;
    case EvKnockout:
        fighter.setActionCode(code);
        fighter.addStrike(strike, 1, 1);
        fighter.countKnockdown(true);
        break;
    default:
        goOn(fighter);
        break;
    }
}

void State_Atk_Strike::onEvent(Entity_MatchFighter &fighter, int, int value)
{
    // the defender's return shot arrives here before the attacker takes it
    fighter.setActionValue(value);
}

void State_Atk_Strike::goOn(Entity_MatchFighter &fighter)
{
    MatchManager &m = match();
    // the first two strikes of a chain always follow; from the eighth on he hands over
    const int thrown = m.strikeCount();
    if (thrown > 1 && (thrown > 6 || !fighter.comboRoll())) {
        m.swapRolesAndReset();
        return;
    }
    const int kind = fighter.getActionCode();
    for (int range : {LongRange, Pocket, Clinch})
        if (State_Atk_Attack::attackKindOf(range) == kind) {
            fighter.changeState(new State_Atk_Attack(fighter, range));
            return;
        }
}
