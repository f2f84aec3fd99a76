#include "match/WholeMatch.h"

#include "match/MatchManager.h"

WholeMatch::WholeMatch(const Entity_Fighter &one, const Entity_Fighter &two, CommentarySink *commentary)
    : engine(MatchManager::instance())
{
    engine.startMatch(one, two, commentary);
}

WholeMatch::Result WholeMatch::fight(const Entity_Fighter &one, const Entity_Fighter &two, CommentarySink *commentary)
{
    WholeMatch match(one, two, commentary);
    return match.fightToTheEnd();
}

void WholeMatch::beginRound()
{
    if (phase != Phase::BeforeRound)
        return;
    if (outcome.rounds > 0)
        engine.nextRound();
    engine.beginRound();
    ++outcome.rounds;
    phase = Phase::InRound;
}

WholeMatch::Moment WholeMatch::step()
{
    if (phase != Phase::InRound)
        return phase == Phase::Over ? Moment::Over : Moment::Bell;
    ++outcome.steps;
    // only a stoppage ends the match within a round, and it ends it before the clock moves
    if (engine.step()) {
        finish(engine.isTechnicalKnockout() ? Ending::TechnicalKnockout : Ending::Knockout, JudgesCards::Verdict::None);
        return Moment::Over;
    }
    if (engine.tickClock() > 0)
        return Moment::Fighting;
    phase = Phase::AtBell;
    return Moment::Bell;
}

bool WholeMatch::bell()
{
    if (phase != Phase::AtBell)
        return isOver();
    judges.addRound(engine.endRoundScores());
    const JudgesCards::Verdict verdict = judges.verdict();
    if (verdict == JudgesCards::Verdict::None) {
        phase = Phase::BeforeRound;
        return false;
    }
    engine.decide(judges.votesOne(), judges.votesTwo());
    finish(Ending::Decision, verdict);
    return true;
}

bool WholeMatch::fightRound()
{
    beginRound();
    Moment moment = step();
    while (moment == Moment::Fighting)
        moment = step();
    return moment == Moment::Bell ? bell() : isOver();
}

WholeMatch::Result WholeMatch::fightToTheEnd()
{
    while (!fightRound()) {
    }
    return outcome;
}

void WholeMatch::finish(Ending ending, JudgesCards::Verdict verdict)
{
    phase = Phase::Over;
    outcome.ending = ending;
    outcome.verdict = verdict;
    outcome.line = engine.resultText(outcome.winnerId, outcome.winnerEntry, outcome.loserId, outcome.loserEntry);
    if (verdict != JudgesCards::Verdict::None) {
        // the engine says "Decision"; the cards say which
        const QString word = JudgesCards::word(verdict);
        outcome.line.replace(QLatin1String(" by Decision in "), " by " + word + " in ");
        outcome.winnerEntry.replace(QLatin1String(" - Decision - "), " - " + word + " - ");
        outcome.loserEntry.replace(QLatin1String(" - Decision - "), " - " + word + " - ");
    }
    outcome.statusOne = engine.getFighterOne()->statusVector();
    outcome.statusTwo = engine.getFighterTwo()->statusVector();
}
