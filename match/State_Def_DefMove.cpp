#include "match/State_Def_DefMove.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/State_Def_Range.h"

using F = Entity_Fighter;
using namespace MatchCodes;

namespace {

struct StopStrike {
    int code;
    F::Number sharpener; // k of the stop's score
    F::Number steadier;  // j of its damage
    CommentaryList line;
};

struct Contest {
    const char *name;
    StopStrike first;  // a Puncher's stop
    StopStrike second; // a Kicker's stop
};

const Contest &contestOf(int movedTo)
{
    static const Contest in = {"State_Def_DefMoveIn",
                               {EvJab, F::HandSpeed, F::Endurance, CommentaryList::DefDefMoveIn_Jab},
                               {EvFrontKick, F::KickSpeed, F::Torque, CommentaryList::DefDefMoveIn_FrontKick}};
    static const Contest out = {"State_Def_DefMoveOut",
                                {EvJab, F::HandSpeed, F::Endurance, CommentaryList::DefDefMoveOut_Jab},
                                {EvFrontKick, F::KickSpeed, F::Torque, CommentaryList::DefDefMoveOut_FrontKick}};
    static const Contest clinch = {"State_Def_DefMoveClinch",
                                   {EvCross, F::HandSpeed, F::Endurance, CommentaryList::DefDefMoveClinch_Cross},
                                   {EvKnee, F::KickSpeed, F::Torque, CommentaryList::DefDefMoveClinch_Knee}};
    return movedTo == Pocket ? in : movedTo == Clinch ? clinch : out;
}

} // namespace

State_Def_DefMove::State_Def_DefMove(const Entity_MatchFighter &fighter, int movedTo)
    : MatchState(fighter)
    , movedTo(movedTo)
{
}

QString State_Def_DefMove::name() const
{
    return QString::fromLatin1(contestOf(movedTo).name);
}

void State_Def_DefMove::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvDefMove);
}

void State_Def_DefMove::onEvent(Entity_MatchFighter &fighter, int code, int value)
{
    // the attacker answers with the score of his decision, named by the range he moves to
    if (code != movedTo)
        return;
    fighter.setActionValue(value);
    execute(fighter);
}

void State_Def_DefMove::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const Contest &contest = contestOf(movedTo);
    bool firstStrike = hasStyle(Puncher);
    if (!hasStyle(Puncher) && !hasStyle(Kicker))
        firstStrike = roll.d(50) % 2 == 1;
    const StopStrike &stop = firstStrike ? contest.first : contest.second;
    const int strike = strikeIndex(stop.code);

    const int value = score({ScoreShape::Drive, F::strikeSpeed(strike), F::Reflexes, F::strikeTechnique(strike),
                             F::Anticipation, stop.sharpener},
                            roll);
    int damage = number(F::PunchPower) + roll.d(50) + number(F::strikePower(strike)) + roll.d(50);
    damage /= nonZero(roll.d(50) - number(stop.steadier) + 101);
    // one time in two the stop fails before anything else
    const int drawn = roll.u(8) < 4 ? value : 0;

    MatchManager &m = match();
    if (fighter.getActionValue() < drawn) {
        fighter.addComment(line(stop.line, roll.d(100), fighter));
        fighter.addStrike(strike, 1, 1);
        m.swapRoles();
        m.sendToDefender(EvDefMove, damage);
        m.swapRoles();
        // the attacker goes back to the range where the defender stands
        const int standsAt = fighter.getActionCode();
        m.sendToAttacker(standsAt);
        fighter.setState(new State_Def_Range(fighter, standsAt));
    } else {
        fighter.changeState(new State_Def_Range(fighter, movedTo));
    }
}
