#include "match/Entity_MatchFighter.h"

#include "match/CornerWords.h"
#include "match/Dice.h"
#include "match/MatchEvent.h"
#include "match/MatchState.h"
#include "match/State_Def_Range.h"

using F = Entity_Fighter;

namespace {

// The stamina band after a change: the first row that fits sets it. A man of high resilience
// (the roll stays under it) mostly keeps band 1, however tired.
struct BandRow {
    int times, parts;   // the bound is times * ceiling / parts
    bool above;         // stamina above the bound, else below it
    int resilienceRoll; // -1 the roll must be below resilience, +1 above it, 0 any
    int band;
};

constexpr BandRow bandTable[] = {
    {2, 1, true, -1, 0}, {1, 5, false, 1, 5}, {1, 3, false, 1, 4},
    {1, 2, false, 1, 3}, {2, 3, false, 1, 2}, {2, 1, false, 0, 1},
};

bool fits(const BandRow &row, int stamina, int ceiling, int roll, int resilience)
{
    const int bound = row.times * ceiling / row.parts;
    if (row.above ? stamina <= bound : stamina >= bound)
        return false;
    return row.resilienceRoll == 0 || (row.resilienceRoll < 0 ? roll < resilience : roll > resilience);
}

} // namespace

Entity_MatchFighter::Entity_MatchFighter()
    : currentState(new State_Def_Range(*this, MatchCodes::LongRange))
{
}

Entity_MatchFighter::Entity_MatchFighter(const Entity_Fighter &fighter)
    : Entity_Fighter(fighter)
    , currentState(new State_Def_Range(*this, MatchCodes::LongRange))
{
}

Entity_MatchFighter::~Entity_MatchFighter() = default;

void Entity_MatchFighter::prepareForMatch()
{
    const int willpower = number(Willpower), resilience = number(Resilience);
    maxHead = number(HeadDurability) + willpower + resilience;
    maxBody = number(BodyDurability) + willpower + resilience;
    maxArms = maxLegs = resilience + number(Durability);
    setHealths(maxHead, maxBody, maxArms, maxLegs);
    maxStamina = stamina = 2 * (willpower + number(Endurance) + number(Conditioning) + number(LungCapacity));
}

// --- the machine -------------------------------------------------------------------------------

void Entity_MatchFighter::update()
{
    if (MatchState *running = currentState.get())
        running->execute(*this);
}

void Entity_MatchFighter::retire(std::unique_ptr<MatchState> state)
{
    // the state may still be running an operation further up the stack
    if (state)
        retiredStates.push_back(std::move(state));
}

void Entity_MatchFighter::changeState(MatchState *newState)
{
    if (currentState)
        currentState->exit(*this);
    retire(std::move(currentState));
    currentState.reset(newState);
    newState->enter(*this);
}

void Entity_MatchFighter::setState(MatchState *newState)
{
    retire(std::move(currentState));
    currentState.reset(newState);
}

void Entity_MatchFighter::releaseRetiredStates()
{
    retiredStates.clear();
}

void Entity_MatchFighter::receiveEvent(int code)
{
    if (MatchState *running = currentState.get())
        running->onEvent(*this, code);
}

void Entity_MatchFighter::receiveEvent(int code, int value)
{
    if (MatchState *running = currentState.get())
        running->onEvent(*this, code, value);
}

QString Entity_MatchFighter::stateName() const
{
    return currentState ? currentState->name() : QString();
}

QString Entity_MatchFighter::takeComment()
{
    QString text;
    text.swap(pendingComment);
    return text;
}

// every strike and every defence of the engine has its places in the status vector
static_assert(MatchStatus::StrikeCount == Entity_Fighter::StrikeCount);
static_assert(MatchStatus::DefenceCount == DefencePairCount);

void Entity_MatchFighter::addStrike(int strikeIndex, int landed, int thrown)
{
    if (strikeIndex < 0 || strikeIndex >= StrikeCount)
        return;
    statistics[MatchStatus::landed(strikeIndex)] += landed;
    statistics[MatchStatus::thrown(strikeIndex)] += thrown;
}

void Entity_MatchFighter::addDefence(DefencePair pair, int successful, int tried)
{
    statistics[MatchStatus::made(pair)] += successful;
    statistics[MatchStatus::tried(pair)] += tried;
}

void Entity_MatchFighter::countKnockdown(bool scored)
{
    ++statistics[scored ? MatchStatus::KnockdownsScored : MatchStatus::KnockdownsTaken];
}

// --- health and stamina --------------------------------------------------------------------------

int Entity_MatchFighter::hitHead(int damage)
{
    Dice roll(number(Composure), number(HeadDurability));
    headHealth -= damage;
    if (damage >= 0 && headCheck(damage)) {
        Dice fall(number(Composure), number(HeadDurability));
        return number(HeadDurability) < fall.u(100) ? MatchCodes::KnockedOut : MatchCodes::KnockedDown;
    }
    if (roll.u(20) + 10 < damage)
        tactic = TacticDazed;
    return 3;
}

bool Entity_MatchFighter::headCheck(int damage)
{
    Dice roll(number(Composure));
    int limit = number(HeadDurability);
    const int spread = roll.signedD(15);
    const bool composed = composureRoll();
    if (headHealth > 0) {
        // a composed man takes the blow on everything he has left, a rattled one on a quarter
        if (composed) {
            limit += headHealth;
        } else {
            limit += headHealth / 4;
            if (number(HeadDurability) < roll.u(100))
                tactic = TacticStunned;
        }
    } else if (!composureRoll() && headHealth < 0) {
        limit += headHealth;
        tactic = TacticDazed;
    } else if (number(HeadDurability) < roll.u(100)) {
        tactic = TacticDazed;
    }
    return limit + spread < damage;
}

bool Entity_MatchFighter::composureRoll()
{
    Dice roll(number(Composure));
    const int sum = roll.d(100) + roll.d(100) + roll.d(100);
    return sum <= number(FightIQ) + number(Awareness) + number(Discipline);
}

bool Entity_MatchFighter::resistCheck(int damage)
{
    Dice roll(number(Composure));
    const int spread = roll.signedD(15);
    return bodyHealth + 2 * number(BodyDurability) + number(Willpower) + spread < damage;
}

int Entity_MatchFighter::hitBody(int damage)
{
    bodyHealth -= damage;
    return damage >= 0 && resistCheck(damage) ? MatchCodes::KnockedDown : 3;
}

int Entity_MatchFighter::hitArms(int damage)
{
    armsHealth -= damage;
    return damage >= 0 && armsHealth < 1 && resistCheck(damage) ? MatchCodes::KnockedDown : 3;
}

int Entity_MatchFighter::hitLegs(int damage)
{
    legsHealth -= damage;
    return damage >= 0 && legsHealth < 1 && resistCheck(damage) ? MatchCodes::KnockedDown : 3;
}

void Entity_MatchFighter::setHealths(int head, int body, int arms, int legs)
{
    headHealth = head;
    bodyHealth = body;
    armsHealth = arms;
    legsHealth = legs;
}

void Entity_MatchFighter::changeStamina(int delta)
{
    Dice roll(number(Composure), stamina);
    const int r = roll.u(100);
    stamina = qMax(0, stamina + delta);
    for (const BandRow &row : bandTable) {
        if (fits(row, stamina, maxStamina, r, number(Resilience))) {
            staminaBand = row.band;
            return;
        }
    }
}

bool Entity_MatchFighter::comboRoll()
{
    Dice roll(number(Composure), number(Ferocity));
    const int drive = number(Discipline) / 2 + number(Aggression) / 3 + number(Ferocity) + number(Willpower) / 3;
    return roll.u(120) < drive;
}

int Entity_MatchFighter::initiative()
{
    // eleven d3 in four runs of three, three, three and two, each run within one seed
    const Number attackParts[] = {Conditioning, LungCapacity, Reflexes, Coordination, Awareness, Aggression, Ferocity};
    const Number guardParts[] = {FightIQ, Precision, MoveSpeed, RingSense};
    Dice roll(number(Composure));
    int drawn = 0;
    const auto d3 = [&roll, &drawn] { return drawn++ % 3 == 0 ? roll.d(3) : roll.nextD(3); };
    int attack = 0;
    for (Number part : attackParts)
        attack += d3() * number(part);
    int guard = 1;
    for (Number part : guardParts)
        guard += d3() * (100 - number(part));

    // corner work can lift the guard's attributes past 100 and the guard to 0
    int value = attack / nonZero(guard);
    if (MatchState::styleIndexOf(text(FightingStyle)) == Brawler)
        value += 5;
    constexpr struct {
        int tactic, shift;
    } tacticShift[] = {{TacticPressing, 3}, {TacticAllOut, 6}, {TacticCautious, -3}, {TacticTurtling, -6}};
    for (const auto &row : tacticShift)
        if (row.tactic == tactic)
            value += row.shift;
    return value;
}

// --- the corner --------------------------------------------------------------------------------

QStringList Entity_MatchFighter::instructions() const
{
    return CornerWords::instructionsFor(tactic);
}

bool Entity_MatchFighter::applyInstruction(const QString &text, int value, bool force)
{
    const int newTactic = CornerWords::tacticAfter(tactic, text);
    Dice roll(number(Composure), value);
    int swing[4];
    for (int &s : swing) {
        s = roll.nextD(50);
        if (s % 2 == 1)
            s = -s;
    }
    const int obedience = number(FightIQ) + number(Awareness) + number(Willpower) + 2 * number(Composure) +
                          number(Instinct) + number(RingSense) + number(Discipline) - 400 + 5 * value + 2 * swing[0] -
                          2 * swing[1] + 2 * swing[2] - 2 * swing[3];
    if (obedience < 1 && !force)
        return false;
    tactic = newTactic;
    return true;
}

void Entity_MatchFighter::tend(int heal, int water, int motivate, int strategy)
{
    Dice roll(number(Composure), heal + water + motivate + strategy);
    if (heal + 1 + roll.nextU(10) > 14) {
        const int healed = roll.nextD(50);
        setHealths(headHealth + healed, bodyHealth + healed, armsHealth + healed, legsHealth + healed);
    }
    if (water + 1 + roll.nextU(10) > 10)
        stamina += roll.nextD(100);
    if (motivate + 1 + roll.nextU(10) > 13) {
        const int heart = roll.nextD(8);
        addToNumber(BodyDurability, heart);
        addToNumber(HeadDurability, heart);
    }
    if (strategy + 1 + roll.nextU(10) >= 12) {
        const int insight = roll.nextD(8);
        for (Number field : {FightIQ, Composure, Awareness})
            addToNumber(field, insight);
    }
}

void Entity_MatchFighter::observations(QStringList &texts, QList<int> &codes) const
{
    texts.append(CornerWords::staminaLine(staminaBand));
    codes.append(staminaBand);
    const struct {
        CornerWords::BodyPart part;
        int health, ceiling;
    } parts[] = {{CornerWords::Head, headHealth, maxHead},
                 {CornerWords::Body, bodyHealth, maxBody},
                 {CornerWords::Arms, armsHealth, maxArms},
                 {CornerWords::Legs, legsHealth, maxLegs}};
    for (const auto &part : parts) {
        const int code = CornerWords::conditionCode(part.health, part.ceiling);
        texts.append(CornerWords::bodyPartLine(part.part, code));
        codes.append(code);
    }
}

QList<int> Entity_MatchFighter::statusVector() const
{
    QList<int> status(statistics.begin(), statistics.end());
    status[MatchStatus::Tactic] = tactic;
    status[MatchStatus::StaminaBand] = staminaBand;
    status[MatchStatus::HeadHealth] = headHealth;
    status[MatchStatus::BodyHealth] = bodyHealth;
    status[MatchStatus::ArmsHealth] = armsHealth;
    status[MatchStatus::LegsHealth] = legsHealth;
    return status;
}
