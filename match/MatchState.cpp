#include "match/MatchState.h"

#include "fighters/GameLists.h"
#include "match/Entity_MatchFighter.h"
#include "match/MatchManager.h"

#include <QStringList>

MatchState::MatchState(const Entity_MatchFighter &fighter)
    : integers(fighter.integerList())
    , style(styleIndexOf(fighter.text(Entity_Fighter::FightingStyle)))
{
}

int MatchState::styleIndexOf(const QString &style)
{
    return int(GameLists::fightingStyles().indexOf(style));
}

MatchManager &MatchState::match()
{
    return MatchManager::instance();
}

Dice MatchState::dice(int valueAtHand) const
{
    return Dice(number(Entity_Fighter::Composure), valueAtHand);
}

int MatchState::score(const ScoreFormula &f, Dice &dice) const
{
    const int a = number(f.a), b = number(f.b), c = number(f.c), d = number(f.d), k = number(f.k);
    const bool drive = f.shape == ScoreShape::Drive || f.shape == ScoreShape::DriveDamped;
    const int firstDice = 2 * dice.d(50);
    const int secondDice = 2 * dice.d(50);
    const int numerator =
        drive ? a + b + firstDice + c + d + secondDice : (200 - a - b + firstDice) + (200 - c - d + secondDice);
    const bool sharp = f.shape == ScoreShape::Drive || f.shape == ScoreShape::RestraintSharp;
    const int divisor = sharp ? (100 - k) / 10 + 1 : k / 10 + 1;
    return numerator / nonZero(divisor);
}

QString MatchState::line(CommentaryList list, int roll, const Entity_MatchFighter &fighter)
{
    return Commentary::pickLine(list, roll, fighter.text(Entity_Fighter::LastName), fighter.fullName());
}

void MatchState::writeAtOnce(Entity_MatchFighter &fighter, const QString &text)
{
    fighter.addComment(text);
    match().writeLine(fighter.takeComment());
}

void MatchState::recoveryRoll(Entity_MatchFighter &fighter, Dice &dice) const
{
    if (fighter.getTactic() != TacticDazed && fighter.getTactic() != TacticStunned)
        return;
    const int roll = dice.u(100) + dice.u(100) + dice.u(100);
    if (roll <
        number(Entity_Fighter::Willpower) + number(Entity_Fighter::Aggression) + number(Entity_Fighter::Discipline))
        fighter.setTactic(TacticNormal);
}

void MatchState::shakeRoll(Entity_MatchFighter &fighter, Dice &dice, int damage) const
{
    const int roll = dice.u(100) + dice.u(100) + dice.u(100);
    const int nerve =
        number(Entity_Fighter::Willpower) + number(Entity_Fighter::Aggression) + number(Entity_Fighter::Discipline);
    if (nerve <= 3 * damage + roll)
        fighter.setTactic(TacticStunned);
}
