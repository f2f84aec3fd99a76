#include "match/State_Atk_Range.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/Modifier.h"
#include "match/RankedPick.h"
#include "match/State_Atk_Attack.h"

using F = Entity_Fighter;
using M = Modifier;
using namespace MatchCodes;

namespace {

constexpr int Attack = -1; // the option to attack from where he stands

struct Choice {
    int goesTo; // a range code, or Attack
    CommentaryList line;
};

struct StyleRow {
    unsigned styles;
    QList<ScoreFormula> scores;
    QList<Modifier> tactics;
    QList<Modifier> bands;
};

struct RangeDecision {
    const char *name;
    QList<Choice> choices;
    bool dividesByD5;
    QList<StyleRow> rows; // the last row is for every other style
};

constexpr unsigned styles(int a)
{
    return 1u << a;
}
constexpr unsigned styles(int a, int b)
{
    return (1u << a) | (1u << b);
}
constexpr unsigned OtherStyles = ~0u;

constexpr ScoreShape D = ScoreShape::Drive;
constexpr ScoreShape R = ScoreShape::Restraint;
constexpr ScoreShape Rs = ScoreShape::RestraintSharp;

// Each style has one range where staying and attacking is its drive and the ways out are what a
// man falls back on; the tactic and stamina rows tilt the choice.
const RangeDecision &decisionAt(int range)
{
    // long range: move in or attack
    static const RangeDecision longRange = {
        "State_Atk_Out",
        {{Pocket, CommentaryList::AtkOut_ToIn}, {Attack, CommentaryList::AtkOut_ToOutAttack}},
        true,
        {{styles(Infighter, Clincher),
          {{D, F::Precision, F::Snap, F::Coordination, F::FootSpeed, F::Ferocity},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Ferocity, F::Willpower}},
          {{M::values(2), 0, -1, M::X},
           {M::values(10, 11), 0, 1, M::XPlusU10},
           {M::values(8), 0, 1, M::X},
           {M::values(9), 1, 1, M::X}},
          {{M::above(3), 0, -1, M::Y}}},
         {styles(Outfighter),
          {{R, F::FightIQ, F::Awareness, F::RingSense, F::Concentration, F::EvasionSpeed},
           {D, F::Precision, F::Snap, F::Coordination, F::EvasionSpeed, F::MoveSpeed}},
          {{M::values(7, 8), 1, 1, M::X},
           {M::values(9), 1, 1, M::XPlusU10},
           {M::values(5), 1, -1, M::X},
           {M::values(10, 11), 0, 1, M::XPlusU10}},
          {{M::values(0), 1, 1, M::Y}}},
         {OtherStyles,
          {{D, F::Precision, F::Snap, F::Coordination, F::FootSpeed, F::Ferocity},
           {D, F::Precision, F::MoveSpeed, F::Balance, F::FootSpeed, F::Concentration}},
          {{M::values(9), 1, 1, M::X}, {M::values(10, 11), 0, 1, M::X}},
          {}}}};

    // the pocket: back out, clinch or attack
    static const RangeDecision pocket = {
        "State_Atk_In",
        {{LongRange, CommentaryList::AtkIn_ToOut},
         {Clinch, CommentaryList::AtkIn_ToClinch},
         {Attack, CommentaryList::AtkIn_ToInAttack}},
        false,
        {{styles(Infighter),
          {{R, F::FightIQ, F::Awareness, F::RingSense, F::Ferocity, F::RingSense},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Grappling, F::Strength},
           {D, F::Precision, F::Willpower, F::Snap, F::Discipline, F::Ferocity}},
          {{M::values(7, 8), 2, 1, M::X},
           {M::values(10), 2, 1, M::XPlusU10},
           {M::values(2, 6), 0, 1, M::X},
           {M::values(9), 0, 1, M::XPlusU10},
           {M::values(5), 1, 1, M::X},
           {M::values(11), 1, 1, M::XPlusU10}},
          {{M::values(0), 2, 1, M::Y}, {M::above(3), 2, -1, M::Y}}},
         {styles(Outfighter),
          {{D, F::Precision, F::Snap, F::Coordination, F::FootSpeed, F::FightIQ},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Durability, F::Concentration},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Composure, F::Concentration}},
          {{M::values(8), 2, 1, M::X},
           {M::values(10), 2, 1, M::XPlusU10},
           {M::values(9), 0, 1, M::XPlusU10},
           {M::values(5, 6), 1, 1, M::X},
           {M::values(11), 1, 1, M::XPlusU10}},
          {{M::values(5), 0, -1, M::Y}}},
         {styles(Clincher),
          {{R, F::FightIQ, F::Awareness, F::RingSense, F::Reflexes, F::Strength},
           {D, F::Precision, F::MoveSpeed, F::FootSpeed, F::Grappling, F::Durability},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Composure, F::Strength}},
          {{M::values(7), 1, 1, M::X},
           {M::values(11), 1, 1, M::XPlusU10},
           {M::values(8, 5), 2, 1, M::X},
           {M::values(10), 2, 1, M::XPlusU10},
           {M::values(9), 0, 1, M::XPlusU10}},
          {{M::values(5), 1, -1, M::Y}, {M::values(4), 0, 1, M::Y}}},
         {OtherStyles,
          {{Rs, F::MoveSpeed, F::EvasionSpeed, F::RingSense, F::Reflexes, F::Strength},
           {D, F::Aggression, F::MoveSpeed, F::Strength, F::Grappling, F::Durability},
           {Rs, F::Ferocity, F::Awareness, F::Coordination, F::PunchPower, F::Precision}},
          {{M::values(9), 0, 1, M::X}, {M::values(10), 2, 1, M::XPlusU10}, {M::values(11), 1, 1, M::XPlusU10}},
          {}}}};

    // the clinch: break out or attack
    static const RangeDecision clinch = {
        "State_Atk_Clinch",
        {{Pocket, CommentaryList::AtkClinch_ToIn}, {Attack, CommentaryList::AtkClinch_ToClinchAttack}},
        true,
        {{styles(Outfighter, Infighter),
          {{D, F::Precision, F::Snap, F::Coordination, F::FootSpeed, F::MoveSpeed},
           {R, F::FightIQ, F::Awareness, F::RingSense, F::Composure, F::Willpower}},
          {{M::values(7, 5), 0, 1, M::X},
           {M::values(9, 10), 0, 1, M::XPlusU10},
           {M::values(8, 6), 1, 1, M::X},
           {M::values(11), 1, 1, M::XPlusU10}},
          {{M::values(5), 0, -1, M::Y}}},
         {styles(Clincher),
          {{R, F::FightIQ, F::Awareness, F::RingSense, F::Grappling, F::Strength},
           {D, F::Precision, F::Snap, F::Torque, F::FootSpeed, F::Willpower}},
          {{M::values(7, 8), 1, 1, M::X},
           {M::values(11), 1, 1, M::XPlusU10},
           {M::values(2), 1, -1, M::X},
           {M::values(9, 10), 0, 1, M::XPlusU10},
           {M::values(5), 0, 1, M::X}},
          {{M::above(3), 0, 1, M::Y}}},
         {OtherStyles,
          {{D, F::Precision, F::Snap, F::Coordination, F::FootSpeed, F::MoveSpeed},
           {D, F::Grappling, F::Strength, F::Torque, F::FootSpeed, F::Concentration}},
          {{M::values(9, 10), 0, 1, M::X}, {M::values(11), 1, 1, M::X}},
          {}}}};

    return range == Pocket ? pocket : range == Clinch ? clinch : longRange;
}

const StyleRow &rowFor(const RangeDecision &decision, int styleIndex)
{
    for (const StyleRow &row : decision.rows)
        if (styleIndex >= 0 && (row.styles & (1u << styleIndex)) != 0)
            return row;
    return decision.rows.last();
}

// a stop sends the attacker back to the range where the defender stands, with a line that says why
struct SentBack {
    int from;
    int event;
    CommentaryList line;
};

constexpr SentBack sentBackTable[] = {
    {Pocket, EvOut, CommentaryList::AtkIn_OnEvOut},
    {Pocket, EvClinch, CommentaryList::AtkIn_OnEvClinch},
    {Clinch, EvIn, CommentaryList::AtkClinch_OnEvIn},
    {LongRange, EvIn, CommentaryList::AtkOut_OnEvIn},
};

const SentBack *sentBack(int from, int event)
{
    for (const SentBack &row : sentBackTable)
        if (row.from == from && row.event == event)
            return &row;
    return nullptr;
}

} // namespace

State_Atk_Range::State_Atk_Range(const Entity_MatchFighter &fighter, int range)
    : MatchState(fighter)
    , range(range)
{
}

QString State_Atk_Range::name() const
{
    return QString::fromLatin1(decisionAt(range).name);
}

void State_Atk_Range::enter(Entity_MatchFighter &)
{
    // the range codes are the events that announce the range
    match().sendToDefender(range);
}

void State_Atk_Range::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const RangeDecision &decision = decisionAt(range);
    const StyleRow &row = rowFor(decision, styleIndex());

    QList<int> scores;
    for (const ScoreFormula &formula : row.scores)
        scores.append(score(formula, roll));
    const int x = roll.d(20);
    Modifier::applyFirst(row.tactics, fighter.getTactic(), scores, roll, x, 0);
    const int y = roll.d(35);
    Modifier::applyAll(row.bands, fighter.getStaminaBand(), scores, roll, x, y);
    if (decision.dividesByD5)
        for (int &s : scores)
            s /= roll.d(5);

    const int chosen = RankedPick::choose(scores, roll);
    fighter.setActionCode(range);
    recoveryRoll(fighter, roll);
    fighter.setActionValue(scores[chosen]);

    const Choice &choice = decision.choices[chosen];
    writeAtOnce(fighter, line(choice.line, roll.d(100), fighter));
    if (choice.goesTo == Attack)
        fighter.changeState(new State_Atk_Attack(fighter, range));
    else
        fighter.changeState(new State_Atk_Range(fighter, choice.goesTo));
}

void State_Atk_Range::onEvent(Entity_MatchFighter &fighter, int code)
{
    if (code == EvDefMove) {
        // the defender contests the move: he must beat the score of the decision
        match().sendToDefender(range, fighter.getActionValue());
        return;
    }
    if (const SentBack *back = sentBack(range, code)) {
        Dice roll = dice();
        writeAtOnce(fighter, line(back->line, roll.d(100), fighter));
        fighter.changeState(new State_Atk_Range(fighter, code));
    }
}

void State_Atk_Range::onEvent(Entity_MatchFighter &fighter, int code, int value)
{
    // the stopping strike of a contested move lands; it can daze him but not drop him
    if (code == EvDefMove)
        fighter.hitHead(value);
}
