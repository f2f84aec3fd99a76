#include "match/State_Atk_Attack.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/RankedPick.h"
#include "match/State_Atk_Strike.h"

using F = Entity_Fighter;
using namespace MatchCodes;

namespace {

constexpr int NoBonus = -1;

struct StrikeOption {
    int code;
    F::Number sharpener;
    int bonusStyle;
    CommentaryList line;
};

struct AttackTable {
    const char *name;
    int event;
    int attackKind;
    StrikeOption strikes[6];
};

// the strikes of each range, in the order the choice tests them
constexpr AttackTable longRange = {"State_Atk_OutAttack",
                                   EvOutAttack,
                                   OutAttack,
                                   {{EvJab, F::HandSpeed, Puncher, CommentaryList::AtkOutAttack_Jab},
                                    {EvCross, F::PunchPower, Puncher, CommentaryList::AtkOutAttack_Cross},
                                    {EvLowKick, F::KickSpeed, Kicker, CommentaryList::AtkOutAttack_LowKick},
                                    {EvMidKick, F::Torque, Kicker, CommentaryList::AtkOutAttack_MidKick},
                                    {EvHighKick, F::KickSpeed, Kicker, CommentaryList::AtkOutAttack_HighKick},
                                    {EvFrontKick, F::KickSpeed, Kicker, CommentaryList::AtkOutAttack_FrontKick}}};

constexpr AttackTable pocket = {"State_Atk_InAttack",
                                EvInAttack,
                                InAttack,
                                {{EvHook, F::HandSpeed, Puncher, CommentaryList::AtkInAttack_Hook},
                                 {EvCross, F::PunchPower, Puncher, CommentaryList::AtkInAttack_Cross},
                                 {EvUppercut, F::HandSpeed, Puncher, CommentaryList::AtkInAttack_Uppercut},
                                 {EvLowKick, F::KickSpeed, Kicker, CommentaryList::AtkInAttack_LowKick},
                                 {EvKnee, F::Torque, Kicker, CommentaryList::AtkInAttack_Knee},
                                 {EvBodyPunch, F::PunchPower, NoBonus, CommentaryList::AtkInAttack_BodyPunch}}};

constexpr AttackTable clinch = {"State_Atk_ClinchAttack",
                                EvClinchAttack,
                                ClinchAttack,
                                {{EvHook, F::HandSpeed, Puncher, CommentaryList::AtkClinchAttack_Hook},
                                 {EvUppercut, F::HandSpeed, Puncher, CommentaryList::AtkClinchAttack_Uppercut},
                                 {EvKnee, F::Torque, Kicker, CommentaryList::AtkClinchAttack_Knee},
                                 {EvElbow, F::ClinchControl, NoBonus, CommentaryList::AtkClinchAttack_Elbow},
                                 {EvDirtyBox, F::Grappling, NoBonus, CommentaryList::AtkClinchAttack_DirtyBoxing},
                                 {EvBodyPunch, F::PunchPower, Puncher, CommentaryList::AtkClinchAttack_BodyPunch}}};

const AttackTable &tableAt(int range)
{
    return range == Pocket ? pocket : range == Clinch ? clinch : longRange;
}

} // namespace

State_Atk_Attack::State_Atk_Attack(const Entity_MatchFighter &fighter, int range)
    : MatchState(fighter)
    , range(range)
{
}

QString State_Atk_Attack::name() const
{
    return QString::fromLatin1(tableAt(range).name);
}

int State_Atk_Attack::attackKindOf(int range)
{
    return tableAt(range).attackKind;
}

void State_Atk_Attack::enter(Entity_MatchFighter &)
{
    match().sendToDefender(tableAt(range).event);
}

void State_Atk_Attack::execute(Entity_MatchFighter &fighter)
{
    Dice roll = dice();
    const AttackTable &table = tableAt(range);
    QList<int> scores;
    for (const StrikeOption &strike : table.strikes) {
        const int index = strikeIndex(strike.code);
        const int sum =
            number(F::strikeSpeed(index)) + number(F::strikeTechnique(index)) + number(F::strikePower(index));
        scores.append((sum + 3 * roll.d(50)) / nonZero((100 - number(strike.sharpener)) / 10 + 1));
    }
    // a man of a style likes the strikes of his style a little more
    for (int i = 0; i < 6; ++i)
        if (table.strikes[i].bonusStyle == styleIndex())
            scores[i] += roll.d(100) / 20;

    const StrikeOption &chosen = table.strikes[RankedPick::choose(scores, roll)];
    fighter.addComment(line(chosen.line, roll.d(100), fighter));
    fighter.setActionCode(table.attackKind);
    fighter.changeState(new State_Atk_Strike(fighter, chosen.code));
}
