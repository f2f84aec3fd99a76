#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/MatchStatus.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>
#include <vector>

class MatchState;

// the orders of the corner and the two conditions the engine sets itself
enum MatchTactic : int {
    TacticNormal = 0,
    TacticCautious = 1,
    TacticTurtling = 2,
    TacticDazed = 5,
    TacticStunned = 6,
    TacticPressing = 7,
    TacticAllOut = 8,
    TacticOutside = 9,
    TacticPocket = 10,
    TacticClinch = 11
};

// the defence statistics, each a pair of successful and tried
enum DefencePair : int {
    HighBlocks,
    BodyAndLegBlocks,
    HighDodges,
    OtherDodges,
    HighCounters,
    MidCounters,
    DefencePairCount
};

// A man in the ring: his record as it stood at the start of the match, his health and stamina,
// his statistics and the state machine that fights for him. Nothing of the match goes back into
// the fighter he was made from.
class Entity_MatchFighter : public Entity_Fighter
{
public:
    Entity_MatchFighter();
    explicit Entity_MatchFighter(const Entity_Fighter &fighter);
    ~Entity_MatchFighter();

    void prepareForMatch();

    // --- the machine --------------------------------------------------------------------------
    void update();
    void changeState(MatchState *newState);
    void setState(MatchState *newState);
    void receiveEvent(int code);
    void receiveEvent(int code, int value);
    // the class name of the running state, as the commentary and the tests speak of it
    QString stateName() const;
    // States replaced while one of their operations still runs are kept until the step is over.
    void releaseRetiredStates();

    void addComment(const QString &text) { pendingComment += text; }
    QString takeComment();
    void clearComment() { pendingComment.clear(); }
    QString comment() const { return pendingComment; }

    int getActionValue() const { return actionValue; }
    void setActionValue(int value) { actionValue = value; }
    int getActionCode() const { return actionCode; }
    void setActionCode(int code) { actionCode = code; }
    int getTactic() const { return tactic; }
    void setTactic(int value) { tactic = value; }
    int getStaminaBand() const { return staminaBand; }
    void setStaminaBand(int band) { staminaBand = band; }

    void addStrike(int strikeIndex, int landed, int thrown);
    void addDefence(DefencePair pair, int successful, int tried);
    void countKnockdown(bool scored);

    // --- health and stamina -------------------------------------------------------------------
    // each hit gives 3 (he stands), 4 (he goes down) or 5 (he is out)
    int hitHead(int damage);
    int hitBody(int damage);
    int hitArms(int damage);
    int hitLegs(int damage);
    bool headCheck(int damage);
    bool resistCheck(int damage);
    bool composureRoll();
    bool comboRoll();
    void changeStamina(int delta);
    int initiative();

    int getHeadHealth() const { return headHealth; }
    int getBodyHealth() const { return bodyHealth; }
    int getArmsHealth() const { return armsHealth; }
    int getLegsHealth() const { return legsHealth; }
    int getStamina() const { return stamina; }
    int getMaxStamina() const { return maxStamina; }
    void setHealths(int head, int body, int arms, int legs);
    void setStamina(int value) { stamina = value; }

    // --- the corner -----------------------------------------------------------------------------
    QStringList instructions() const;
    bool applyInstruction(const QString &text, int value, bool force);
    void tend(int heal, int water, int motivate, int strategy);
    void observations(QStringList &texts, QList<int> &codes) const;

    // the 44 numbers of MatchStatus: tactic, band, four healths, the twelve strike pairs, the six
    // defence pairs, knockdowns
    QList<int> statusVector() const;

private:
    void retire(std::unique_ptr<MatchState> state);

    std::unique_ptr<MatchState> currentState;
    std::vector<std::unique_ptr<MatchState>> retiredStates;
    QString pendingComment;
    int tactic = TacticNormal;
    int staminaBand = 1;
    int actionValue = 0;
    int actionCode = 1;
    int maxHead = 0, maxBody = 0, maxArms = 0, maxLegs = 0;
    int headHealth = 1000, bodyHealth = 1000, armsHealth = 1000, legsHealth = 1000;
    int maxStamina = 0, stamina = 0;
    // the counts of strikes, defences and knockdowns at their places of the status vector; the
    // places before them stand in the members above
    std::array<int, MatchStatus::Count> statistics{};
};
