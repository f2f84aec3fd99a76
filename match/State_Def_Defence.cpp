#include "match/State_Def_Defence.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/State_Def_Range.h"
#include "match/State_Gen_BlkDmg.h"
#include "match/State_Gen_CounterAtk.h"
#include "match/State_Gen_DodgeDmg.h"
#include "match/State_Gen_FullDmg.h"
#include "match/State_Gen_ReturnDmg.h"

using F = Entity_Fighter;
using Kind = State_Def_Defence::Kind;
using namespace MatchCodes;

namespace {

constexpr F::Number None = F::NumberCount;

enum Outcome { Blocked, Dodged, Countered };

// The defence value is (t1/10 + t2/10 + 2 dice) + (t3/10 + t4/10 + n dice), over a divisor that
// the steadier m sharpens; the value stands `entries` times in a list of twelve, 0 elsewhere.
struct DefenceRow {
    const char *name;
    F::Number t1, t2, t3, t4;
    int die;
    int secondDice;
    F::Number steadier;
    int entries;
    DefencePair pair;
    Outcome outcome;
    int guard; // the guard that takes a blocked hit
    CommentaryList fails, works;
};

constexpr DefenceRow defenceRows[] = {
    {"State_Def_BlockHighPunch", F::Reflexes, F::PunchGuardSpeed, F::Balance, F::HeadMoveSpeed, 40, 2,
     F::PunchGuardSpeed, 8, HighBlocks, Blocked, State_Gen_BlkDmg::HeadPunch, CommentaryList::DefBlockHighPunch_Fails,
     CommentaryList::DefBlockHighPunch_Works},
    {"State_Def_BlockHighKick", F::Reflexes, F::KickGuardSpeed, F::Resilience, F::KickGuardSpeed, 40, 2,
     F::KickGuardSpeed, 8, HighBlocks, Blocked, State_Gen_BlkDmg::HeadKick, CommentaryList::DefBlockHighKick_Fails,
     CommentaryList::DefBlockHighKick_Works},
    {"State_Def_BlockMid", F::Reflexes, F::BodyGuardSpeed, F::Resilience, F::BodyGuardSpeed, 40, 2, F::BodyGuardSpeed,
     10, BodyAndLegBlocks, Blocked, State_Gen_BlkDmg::Body, CommentaryList::DefBlockMid_Fails,
     CommentaryList::DefBlockMid_Works},
    {"State_Def_BlockLow", F::Reflexes, F::LegGuardSpeed, F::Resilience, F::LegGuardSpeed, 40, 2, F::LegGuardSpeed, 10,
     BodyAndLegBlocks, Blocked, State_Gen_BlkDmg::Leg, CommentaryList::DefBlockLow_Fails,
     CommentaryList::DefBlockLow_Works},
    {"State_Def_BlockClinch", F::Strength, F::ClinchControl, F::Grappling, F::ClinchEscape, 40, 2, F::Torque, 10,
     HighBlocks, Blocked, State_Gen_BlkDmg::Clinch, CommentaryList::DefBlockClinch_Fails,
     CommentaryList::DefBlockClinch_Works},
    {"State_Def_DodgeHigh", F::Reflexes, F::HeadMoveSpeed, F::EvasionSpeed, None, 40, 1, F::Snap, 8, HighDodges, Dodged,
     0, CommentaryList::DefDodgeHigh_Fails, CommentaryList::DefDodgeHigh_Works},
    {"State_Def_DodgeMid", F::Reflexes, F::BodyMoveSpeed, F::EvasionSpeed, None, 40, 1, F::Snap, 8, OtherDodges, Dodged,
     0, CommentaryList::DefDodgeMid_Fails, CommentaryList::DefDodgeMid_Works},
    {"State_Def_DodgeLow", F::Reflexes, F::MoveSpeed, F::EvasionSpeed, None, 40, 1, F::Snap, 8, OtherDodges, Dodged, 0,
     CommentaryList::DefDodgeLow_Fails, CommentaryList::DefDodgeLow_Works},
    {"State_Def_DodgeClinch", F::Reflexes, F::ClinchEscape, F::ClinchGuardSpeed, None, 40, 1, F::Grappling, 8,
     OtherDodges, Dodged, 0, CommentaryList::DefDodgeClinch_Fails, CommentaryList::DefDodgeClinch_Works},
    {"State_Def_CounterHigh", F::Reflexes, F::PunchGuardSpeed, F::HeadMoveTechnique, F::HeadMoveSpeed, 20, 2,
     F::EvasionSpeed, 8, HighCounters, Countered, 0, CommentaryList::DefCounterHigh_Fails,
     CommentaryList::DefCounterHigh_Works},
    {"State_Def_CounterMid", F::Reflexes, F::PunchGuardSpeed, F::BodyMoveTechnique, F::BodyMoveSpeed, 20, 2,
     F::EvasionSpeed, 8, MidCounters, Countered, 0, CommentaryList::DefCounterMid_Fails,
     CommentaryList::DefCounterMid_Works},
};

} // namespace

State_Def_Defence::State_Def_Defence(const Entity_MatchFighter &fighter, Kind kind)
    : MatchState(fighter)
    , kind(kind)
{
}

QString State_Def_Defence::name() const
{
    if (kind == ReturnAttack)
        return QStringLiteral("State_Def_ReturnAttack");
    return QString::fromLatin1(defenceRows[kind].name);
}

void State_Def_Defence::onEvent(Entity_MatchFighter &fighter, int code)
{
    const int range = rangeOfAttack(code);
    if (range >= 0)
        fighter.changeState(new State_Def_Range(fighter, range));
}

void State_Def_Defence::onEvent(Entity_MatchFighter &fighter, int code, int value)
{
    // the strike arrives with its accuracy
    fighter.setActionValue(value);
    if (kind == ReturnAttack)
        fighter.setActionCode(code);
    execute(fighter);
}

void State_Def_Defence::execute(Entity_MatchFighter &fighter)
{
    if (kind == ReturnAttack) {
        fighter.changeState(new State_Gen_ReturnDmg(fighter));
        return;
    }
    const DefenceRow &row = defenceRows[kind];
    Dice roll = dice();
    const auto tenth = [this](F::Number field) { return field == None ? 0 : number(field) / 10; };
    int value = tenth(row.t1) + tenth(row.t2) + 2 * roll.d(row.die);
    value += tenth(row.t3) + tenth(row.t4) + row.secondDice * roll.d(row.die);
    value /= nonZero((roll.d(20) - number(row.steadier) + 100) / 10 + 1);
    const int entry = roll.u(12) < row.entries ? value : 0;

    const int accuracy = fighter.getActionValue();
    if (entry < accuracy) {
        fighter.addComment(line(row.fails, roll.d(100), fighter));
        fighter.addDefence(row.pair, 0, 1);
        fighter.changeState(new State_Gen_FullDmg(fighter));
        return;
    }
    fighter.addComment(line(row.works, roll.d(100), fighter));
    fighter.addDefence(row.pair, 1, 1);
    switch (row.outcome) {
    case Blocked:
        fighter.changeState(new State_Gen_BlkDmg(fighter, State_Gen_BlkDmg::Guard(row.guard)));
        break;
    case Dodged:
        fighter.changeState(new State_Gen_DodgeDmg(fighter));
        break;
    case Countered:
        fighter.changeState(new State_Gen_CounterAtk(fighter));
        break;
    }
}
