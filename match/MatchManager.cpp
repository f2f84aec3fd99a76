#include "match/MatchManager.h"

#include "fighters/Random.h"
#include "match/CommentarySink.h"
#include "match/CornerWords.h"
#include "match/Dice.h"
#include "match/MatchEvent.h"
#include "match/State_Atk_Range.h"
#include "match/State_Def_Range.h"

namespace {

constexpr int RoundSeconds = 180;

struct Method {
    int code;
    // a technical knockout: the man was worn down rather than knocked out
    bool technical;
    const char *text;
};

// how a stoppage is named by the strike that ended it; dirty boxing counts as an uppercut
constexpr Method methodTable[] = {
    {EvJab, false, "KO(Jab)"},
    {EvHook, false, "KO(Hook)"},
    {EvCross, false, "KO(Cross)"},
    {EvUppercut, false, "KO(Uppercut)"},
    {EvLowKick, true, "TKO(Low Kick)"},
    {EvMidKick, true, "TKO(Mid Kick)"},
    {EvHighKick, false, "KO(High Kick)"},
    {EvFrontKick, true, "TKO(Front Kick)"},
    {EvKnee, false, "KO(Knee)"},
    {EvElbow, false, "KO(Elbow)"},
    {EvDirtyBox, false, "KO(Uppercut)"},
    {EvBodyPunch, true, "TKO(Body Punch)"},
};

const Method *methodOf(int code)
{
    for (const Method &row : methodTable)
        if (row.code == code)
            return &row;
    return nullptr;
}

QString clockText(int seconds)
{
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString lastName(const Entity_MatchFighter &fighter)
{
    return fighter.text(Entity_Fighter::LastName);
}

} // namespace

MatchManager &MatchManager::instance()
{
    static MatchManager manager;
    return manager;
}

// --- for the callers -----------------------------------------------------------------------------

void MatchManager::startMatch(const Entity_Fighter &first, const Entity_Fighter &second, CommentarySink *sink)
{
    matchOver = false;
    judgeScoresOne = {};
    judgeScoresTwo = {};
    knockdownsOne = knockdownsTwo = 0;
    fighterOne = std::make_unique<Entity_MatchFighter>(first);
    fighterOne->prepareForMatch();
    fighterTwo = std::make_unique<Entity_MatchFighter>(second);
    fighterTwo->prepareForMatch();
    attacker = fighterOne.get();
    defender = fighterTwo.get();
    winner = loser = nullptr;
    commentary = sink;
    roundNumber = 1;
    roundClock = RoundSeconds;
    exchangeCount = 0;
}

void MatchManager::beginRound()
{
    if (!fighterOne)
        return;
    matchOver = false;
    judgeScoresOne = {};
    judgeScoresTwo = {};
    exchangeCount = 0;
    const int first = fighterOne->initiative();
    const int second = fighterTwo->initiative();
    attacker = first >= second ? fighterOne.get() : fighterTwo.get();
    defender = attacker == fighterOne.get() ? fighterTwo.get() : fighterOne.get();
    // every round starts at long range; a man down at the bell is saved by it
    resetStates();
}

void MatchManager::resetStates()
{
    attacker->setState(new State_Atk_Range(*attacker, MatchCodes::LongRange));
    defender->setState(new State_Def_Range(*defender, MatchCodes::LongRange));
}

bool MatchManager::step()
{
    if (!attacker)
        return true;
    attacker->update();
    // the step may have changed the roles; both comments go out, empty ones too
    const QString attackerSays = attacker->takeComment();
    const QString defenderSays = defender->takeComment();
    if (commentary) {
        commentary->append(attackerSays);
        commentary->append(defenderSays);
    }
    fighterOne->releaseRetiredStates();
    fighterTwo->releaseRetiredStates();
    return matchOver;
}

int MatchManager::tickClock()
{
    Random::seedFromClock();
    roundClock -= Random::d(4);
    return roundClock;
}

void MatchManager::nextRound()
{
    roundClock = RoundSeconds;
    ++roundNumber;
}

QList<int> MatchManager::endRoundScores()
{
    QList<int> scores(judgeScoresOne.begin(), judgeScoresOne.end());
    scores.append(QList<int>(judgeScoresTwo.begin(), judgeScoresTwo.end()));
    scores << knockdownsOne << knockdownsTwo;
    knockdownsOne = knockdownsTwo = 0;
    return scores;
}

void MatchManager::announceRoundEnd()
{
    if (!fighterOne)
        return;
    int difference = 0;
    for (int judge = 0; judge < 3; ++judge)
        difference += judgeScoresOne[judge] - judgeScoresTwo[judge];
    const QString leader = (difference > 0 ? fighterOne : fighterTwo)->fullName();

    writeLine(QStringLiteral("The bell rings to end the round, and the fighters move to their corners..."));
    if (qAbs(difference) <= 15)
        writeLine(QStringLiteral("Pretty even round.\n\n"));
    else if (qAbs(difference) <= 50)
        writeLine(QStringLiteral("That was likely ") + leader + QStringLiteral("'s round.\n\n"));
    else
        writeLine(QStringLiteral("That was definitely ") + leader + QStringLiteral("'s round.\n\n"));
}

void MatchManager::decide(int votesOne, int votesTwo)
{
    if (!fighterOne)
        return;
    endMatch(votesOne >= votesTwo ? *fighterTwo : *fighterOne);
}

QString MatchManager::resultText(int &winnerId, QString &winnerEntry, int &loserId, QString &loserEntry) const
{
    if (!winner || !loser)
        return QString();
    winnerId = winner->getId();
    loserId = loser->getId();
    const QString round = QString::number(roundNumber);
    const QString winnerName = winner->fullName();
    const QString loserName = loser->fullName();

    if (!isStoppage()) {
        winnerEntry += QStringLiteral("Win: ") + loserName + QStringLiteral(" - Decision - Rd. ") + round +
                       QStringLiteral("(3:00)");
        loserEntry += QStringLiteral("Loss: ") + winnerName + QStringLiteral(" - Decision - Rd. ") + round +
                      QStringLiteral("(3:00)");
        return winnerName + QStringLiteral(" defeated ") + loserName +
               QStringLiteral(" by Decision in 3:00 of Round ") + round + QStringLiteral(".");
    }
    const Method *row = methodOf(winner->getActionCode());
    const QString method = row ? QString::fromLatin1(row->text) : QString();
    const QString lineMethod = method.isEmpty() ? QString() : QStringLiteral(" by ") + method + QStringLiteral(" in ");
    const QString entryMethod = method.isEmpty() ? QString() : QStringLiteral(" - ") + method + QStringLiteral(" - ");
    const QString elapsed = clockText(RoundSeconds - roundClock);
    winnerEntry += QStringLiteral("Win: ") + loserName + entryMethod + QStringLiteral("Rd. ") + round +
                   QStringLiteral("(") + elapsed + QStringLiteral(")");
    loserEntry += QStringLiteral("Loss: ") + winnerName + entryMethod + QStringLiteral("Rd. ") + round +
                  QStringLiteral("(") + elapsed + QStringLiteral(")");
    return winnerName + QStringLiteral(" defeated ") + loserName + lineMethod + elapsed + QStringLiteral(" of Round ") +
           round + QStringLiteral(".");
}

bool MatchManager::isStoppage() const
{
    return loser && loser->getActionCode() == MatchCodes::KnockedOut;
}

bool MatchManager::isTechnicalKnockout() const
{
    const Method *row = isStoppage() && winner ? methodOf(winner->getActionCode()) : nullptr;
    return row && row->technical;
}

// --- the corner --------------------------------------------------------------------------------

Entity_MatchFighter *MatchManager::fighterWithId(int id) const
{
    for (Entity_MatchFighter *fighter : {fighterOne.get(), fighterTwo.get()})
        if (fighter && fighter->getId() == id)
            return fighter;
    return nullptr;
}

QStringList MatchManager::instructionsFor(int id) const
{
    const Entity_MatchFighter *fighter = fighterWithId(id);
    return fighter ? fighter->instructions() : CornerWords::instructionsFor(TacticNormal);
}

bool MatchManager::giveInstruction(int id, const QString &text, int value, bool force)
{
    Entity_MatchFighter *fighter = fighterWithId(id);
    return fighter && fighter->applyInstruction(text, value, force);
}

void MatchManager::tendFighter(int heal, int water, int motivate, int strategy, int id)
{
    if (Entity_MatchFighter *fighter = fighterWithId(id))
        fighter->tend(heal, water, motivate, strategy);
}

void MatchManager::observationsOf(QStringList &texts, QList<int> &codes, int id) const
{
    if (const Entity_MatchFighter *fighter = fighterWithId(id))
        fighter->observations(texts, codes);
}

QList<int> MatchManager::statusOf(int id) const
{
    const Entity_MatchFighter *fighter = fighterWithId(id);
    return fighter ? fighter->statusVector() : QList<int>();
}

// --- for the states --------------------------------------------------------------------------------

void MatchManager::sendToAttacker(int code)
{
    attacker->receiveEvent(code);
}

void MatchManager::sendToDefender(int code)
{
    defender->receiveEvent(code);
}

void MatchManager::sendToDefender(int code, int value)
{
    defender->receiveEvent(code, value);
}

void MatchManager::swapRoles()
{
    std::swap(attacker, defender);
}

void MatchManager::swapRolesAndReset()
{
    swapRoles();
    resetStates();
    exchangeCount = 0;
}

void MatchManager::writeLine(const QString &text)
{
    if (commentary)
        commentary->append(text);
}

void MatchManager::addScore(Entity_MatchFighter &fighter, int points)
{
    if (points <= 0)
        return;
    // the judges see the same fight and differ by chance
    Dice roll(fighter.number(Entity_Fighter::Composure));
    roll.u(points);
    std::array<int, 3> &judges = isOne(fighter) ? judgeScoresOne : judgeScoresTwo;
    for (int &judge : judges)
        judge += roll.u(points);
}

void MatchManager::registerKnockdown(Entity_MatchFighter &fighter)
{
    fighter.setActionCode(MatchCodes::KnockedDown);
    const int count = ++(isOne(fighter) ? knockdownsOne : knockdownsTwo);
    if (count == 1)
        fighter.addComment(lastName(fighter) + QStringLiteral(" has gone down! Will he be able to get up?"));
    else if (count == 2)
        fighter.addComment(QStringLiteral("That's knockdown number two! One more and ") + lastName(fighter) +
                           QStringLiteral(" is done!"));
    else
        fighter.addComment(QStringLiteral("That's the third time this round that ") + fighter.fullName() +
                           QStringLiteral(" has gone down! This match is over!"));
    // three knockdowns in one round end the match without a count
    if (count >= 3) {
        fighter.setActionCode(MatchCodes::KnockedOut);
        endMatch(fighter);
    }
}

void MatchManager::endMatch(Entity_MatchFighter &losingFighter)
{
    loser = &losingFighter;
    winner = isOne(losingFighter) ? fighterTwo.get() : fighterOne.get();
    resetStates();
    matchOver = true;
}
