#include "match/State_Def_Range.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/Modifier.h"
#include "match/RankedPick.h"
#include "match/State_Def_DefMove.h"
#include "match/State_Def_DefendDecide.h"

using F = Entity_Fighter;
using M = Modifier;
using namespace MatchCodes;

namespace {

constexpr int Follow = 0;
constexpr int Contest = 1;

struct StyleRow {
    ScoreFormula follow;
    ScoreFormula contest;
    QList<Modifier> tactics;
    QList<Modifier> bands;
};

struct RangeAnswer {
    const char *name;
    int homeStyle;   // a man of this style contests with his drive: he won't leave his range
    int attackEvent; // the attack he gets ready for here
    CommentaryList line;
    StyleRow boxers; // Outfighter, Infighter and Clincher
    StyleRow others;
};

constexpr ScoreShape D = ScoreShape::Drive;
constexpr ScoreShape R = ScoreShape::Restraint;
constexpr ScoreShape Dd = ScoreShape::DriveDamped;

const RangeAnswer &answerAt(int range)
{
    static const RangeAnswer longRange = {
        "State_Def_Out",
        Outfighter,
        EvOutAttack,
        CommentaryList::DefOut,
        {{D, F::FightIQ, F::Awareness, F::Instinct, F::Discipline, F::Concentration},
         {R, F::FightIQ, F::Composure, F::RingSense, F::Ferocity, F::Willpower},
         {{M::values(2), Follow, -1, M::OwnD20}, {M::values(8), Follow, 1, M::OwnD20}},
         {{M::above(3), Follow, -1, M::OwnD20}}},
        {{D, F::Ferocity, F::Durability, F::Aggression, F::Discipline, F::Concentration},
         {Dd, F::MoveSpeed, F::Awareness, F::EvasionSpeed, F::Discipline, F::Concentration},
         {{M::values(2), Follow, -1, M::OwnD20}, {M::values(8), Follow, 1, M::OwnD20}},
         {}}};
    static const RangeAnswer pocket = {"State_Def_In",
                                       Infighter,
                                       EvInAttack,
                                       CommentaryList::DefIn,
                                       {{D, F::FightIQ, F::Awareness, F::RingSense, F::Discipline, F::Concentration},
                                        {R, F::FightIQ, F::Composure, F::Instinct, F::Ferocity, F::Willpower},
                                        {{M::values(2), Follow, -1, M::OwnD20}},
                                        {{M::above(3), Follow, -1, M::OwnD20}}},
                                       {{D, F::MoveSpeed, F::Composure, F::RingSense, F::Discipline, F::Concentration},
                                        {D, F::Awareness, F::Durability, F::Instinct, F::Ferocity, F::Willpower},
                                        {{M::values(2), Contest, -1, M::OwnD20}},
                                        {}}};
    static const RangeAnswer clinch = {
        "State_Def_Clinch", Clincher,
        EvClinchAttack,     CommentaryList::DefClinch,
        pocket.boxers,      {pocket.others.follow, pocket.others.contest, {{M::values(2), Follow, -1, M::OwnD20}}, {}}};
    return range == Pocket ? pocket : range == Clinch ? clinch : longRange;
}

} // namespace

State_Def_Range::State_Def_Range(const Entity_MatchFighter &fighter, int range)
    : MatchState(fighter)
    , range(range)
{
}

QString State_Def_Range::name() const
{
    return QString::fromLatin1(answerAt(range).name);
}

void State_Def_Range::enter(Entity_MatchFighter &fighter)
{
    fighter.setActionCode(range);
    Dice roll = dice();
    fighter.addComment(line(answerAt(range).line, roll.u(100), fighter));
}

void State_Def_Range::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const RangeAnswer &answer = answerAt(range);
    const bool boxer = styleIndex() >= Outfighter && styleIndex() <= Clincher;
    const StyleRow &row = boxer ? answer.boxers : answer.others;

    QList<int> scores = {score(row.follow, roll), score(row.contest, roll)};
    Modifier::applyFirst(row.tactics, fighter.getTactic(), scores, roll, 0, 0);
    Modifier::applyFirst(row.bands, fighter.getStaminaBand(), scores, roll, 0, 0);
    if (styleIndex() == answer.homeStyle)
        scores.swapItemsAt(Follow, Contest);
    for (int &s : scores)
        s /= roll.d(5);
    const int chosen = RankedPick::choose(scores, roll);

    // in the pocket he answers a move to long range or to the clinch, which the event named
    if (range != Pocket)
        fighter.setActionCode(range);
    const int movedTo = range == Pocket ? fighter.getActionCode() : Pocket;
    recoveryRoll(fighter, roll);
    fighter.setActionValue(scores[chosen]);
    if (range == Pocket)
        fighter.setActionCode(Pocket);

    if (chosen == Follow)
        fighter.changeState(new State_Def_Range(fighter, movedTo));
    else
        fighter.changeState(new State_Def_DefMove(fighter, movedTo));
}

void State_Def_Range::onEvent(Entity_MatchFighter &fighter, int code)
{
    const RangeAnswer &answer = answerAt(range);
    if (code == answer.attackEvent) {
        fighter.setActionCode(range);
        fighter.changeState(new State_Def_DefendDecide(fighter));
        return;
    }
    // the attacker changes the range: from long range and the clinch he can only come into the
    // pocket, from the pocket he can go out or grab
    const bool movesAway = range == Pocket ? (code == EvOut || code == EvClinch) : code == EvIn;
    if (!movesAway)
        return;
    if (range == Pocket)
        fighter.setActionCode(code);
    execute(fighter);
}
