#pragma once

#include "fighters/Entity_Fighter.h"
#include "match/Commentary.h"
#include "match/Dice.h"
#include "match/State.h"

#include <QList>
#include <QString>

class Entity_MatchFighter;
class MatchManager;

// the fixed order of the fighting styles; a style outside it acts as one of the last rows
enum StyleIndex : int { Outfighter, Infighter, Clincher, Puncher, Kicker, Brawler, Tactician };

// How a score of a decision is built from four attributes a, b, c, d and a fifth, k.
enum class ScoreShape {
    Drive,          // high attributes make the option likely, a high k sharpens it
    Restraint,      // low attributes make it likely, a high k dampens it
    RestraintSharp, // the restraint numerator under the drive's divisor
    DriveDamped     // the drive numerator under the restraint's divisor
};

struct ScoreFormula {
    ScoreShape shape;
    Entity_Fighter::Number a, b, c, d, k;
};

// One state of a man in the ring. It holds a snapshot of his numbers and style, taken when it is
// made, and reads every attribute from it; tactic and stamina band are read live from the man.
class MatchState : public State<Entity_MatchFighter>
{
public:
    explicit MatchState(const Entity_MatchFighter &fighter);

    void enter(Entity_MatchFighter &) override {}
    void execute(Entity_MatchFighter &) override {}
    void exit(Entity_MatchFighter &) override {}
    void onEvent(Entity_MatchFighter &, int) override {}
    void onEvent(Entity_MatchFighter &, int, int) override {}

    // the state's class name, as the engine's tables call it
    virtual QString name() const = 0;

    static int styleIndexOf(const QString &style);

protected:
    static MatchManager &match();

    int number(Entity_Fighter::Number field) const { return integers[field]; }
    int styleIndex() const { return style; }
    bool hasStyle(StyleIndex s) const { return style == s; }
    // a new calculation: seeded from the clock, the man's composure sets the length of its waits
    Dice dice(int valueAtHand = 0) const;
    int score(const ScoreFormula &formula, Dice &dice) const;

    // the line of a list picked by a roll, in the man's names
    static QString line(CommentaryList list, int roll, const Entity_MatchFighter &fighter);
    // a line that must stand before the other man's answer: written at once with what he had pending
    static void writeAtOnce(Entity_MatchFighter &fighter, const QString &text);

    // a dazed or stunned man may shake it off
    void recoveryRoll(Entity_MatchFighter &fighter, Dice &dice) const;
    // a hard hit may leave him stunned
    void shakeRoll(Entity_MatchFighter &fighter, Dice &dice, int damage) const;

private:
    QList<int> integers;
    int style;
};

// a divisor that corner work could bring to 0 is held at 1; a negative one keeps its sign
inline int nonZero(int divisor)
{
    return divisor == 0 ? 1 : divisor;
}
