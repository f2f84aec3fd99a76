#include "match/State_Gen_BlkDmg.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

using F = Entity_Fighter;

namespace {

struct GuardRow {
    const char *name;
    F::Number speed, technique;
};

constexpr GuardRow guardRows[] = {
    {"State_Gen_BlkDmgHeadPunch", F::PunchGuardSpeed, F::PunchGuardTechnique},
    {"State_Gen_BlkDmgHeadKick", F::KickGuardSpeed, F::KickGuardTechnique},
    {"State_Gen_BlkDmgBody", F::BodyGuardSpeed, F::BodyGuardTechnique},
    {"State_Gen_BlkDmgLeg", F::LegGuardSpeed, F::LegGuardTechnique},
    {"State_Gen_BlkDmgClinch", F::ClinchGuardSpeed, F::ClinchGuardTechnique},
};

} // namespace

State_Gen_BlkDmg::State_Gen_BlkDmg(const Entity_MatchFighter &fighter, Guard guard)
    : State_Gen_Outcome(fighter)
    , guard(guard)
{
}

QString State_Gen_BlkDmg::name() const
{
    return QString::fromLatin1(guardRows[guard].name);
}

void State_Gen_BlkDmg::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvBlocked);
}

void State_Gen_BlkDmg::onEvent(Entity_MatchFighter &fighter, int, int value)
{
    fighter.setActionValue(value);
    execute(fighter);
}

void State_Gen_BlkDmg::execute(Entity_MatchFighter &fighter)
{
    const GuardRow &row = guardRows[guard];
    Dice roll = dice();
    int absorbed = number(F::Durability) / 10 + number(row.speed) / 10 + 2 * roll.d(10);
    absorbed += number(row.technique) / 10 + roll.d(10);
    absorbed /= nonZero((101 - number(F::Resilience) + roll.u(20)) / 15 + 1);
    const int damage = qMax(0, fighter.getActionValue() - absorbed);

    fighter.changeStamina(-damage);
    const int spread = damage + damage / 2;
    const int result = guard == Leg ? fighter.hitLegs(spread) : fighter.hitArms(spread);
    fellFrom(fighter, result);
}
