#include "match/State_Gen_ReturnDmg.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"

using F = Entity_Fighter;
using namespace MatchCodes;

namespace {

struct ReturnShot {
    int code;
    CommentaryList line;
};

constexpr ReturnShot knee = {EvKnee, CommentaryList::GenReturnDmg_Knee};
constexpr ReturnShot cross = {EvCross, CommentaryList::GenReturnDmg_Cross};
constexpr ReturnShot uppercut = {EvUppercut, CommentaryList::GenReturnDmg_Uppercut};
constexpr ReturnShot hook = {EvHook, CommentaryList::GenReturnDmg_Hook};
constexpr ReturnShot jab = {EvJab, CommentaryList::GenReturnDmg_Jab};
constexpr ReturnShot highKick = {EvHighKick, CommentaryList::GenReturnDmg_HighKick};

// the shot each style fires back; the styles of the first row and the punchers throw one of two
struct ReturnByStyle {
    int style;
    ReturnShot odd, even;
};

constexpr ReturnByStyle returnTable[] = {
    {Outfighter, knee, cross}, {Infighter, knee, cross},  {Clincher, knee, cross},   {Kicker, highKick, highKick},
    {Tactician, jab, jab},     {Puncher, uppercut, hook}, {Brawler, uppercut, hook},
};

} // namespace

State_Gen_ReturnDmg::State_Gen_ReturnDmg(const Entity_MatchFighter &fighter)
    : State_Gen_Outcome(fighter)
{
}

void State_Gen_ReturnDmg::enter(Entity_MatchFighter &)
{
    match().sendToAttacker(EvReturned);
}

void State_Gen_ReturnDmg::onEvent(Entity_MatchFighter &fighter, int code)
{
    if (code == EvKnockdown) {
        match().addScore(fighter, 35);
        fighter.countKnockdown(true);
    } else if (code == EvKnockout) {
        fighter.countKnockdown(true);
    } else {
        State_Gen_Outcome::onEvent(fighter, code);
    }
}

void State_Gen_ReturnDmg::onEvent(Entity_MatchFighter &fighter, int code, int value)
{
    // he lets the strike through, with no multiplier for where it lands
    Dice roll = dice();
    fighter.addComment(line(CommentaryList::GenReturnDmg_HitLetThrough, roll.d(100), fighter));
    fighter.setActionValue(value);
    fighter.setActionCode(code);
    const int damage = qMax(0, value);
    fighter.changeStamina(-damage);
    const int result = hitWhereItLands(fighter, code, damage, false);
    if (!fellFrom(fighter, result))
        execute(fighter);
}

void State_Gen_ReturnDmg::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const int damage = number(F::PunchPower) / 10 + roll.d(10);
    const ReturnByStyle *row = &returnTable[6];
    for (const ReturnByStyle &candidate : returnTable)
        if (candidate.style == styleIndex())
            row = &candidate;
    const bool oddRoll = row->odd.code != row->even.code && roll.d(20) % 2 == 1;
    const ReturnShot &shot = oddRoll ? row->odd : row->even;
    const int strike = strikeIndex(shot.code);

    fighter.addComment(line(shot.line, roll.d(100), fighter));
    fighter.setActionCode(shot.code);
    MatchManager &m = match();
    m.addScore(fighter, 5);
    fighter.addStrike(strike, 1, 1);
    fighter.changeStamina(-(100 - number(F::strikeTechnique(strike))) / 10);
    // the shot reaches the attacker's strike, which holds it until he takes it
    m.swapRoles();
    m.sendToDefender(EvReturned, damage);
    m.swapRoles();
}
