#include "world/WorldMatch.h"

#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"
#include "world/Entity_Event.h"
#include "world/Entity_Match.h"
#include "world/GameManager.h"
#include "world/JudgesCards.h"
#include "world/RankMove.h"

namespace {

// the rounds of a match before the judges first decide
constexpr int RegularRounds = 3;

// the tournament rounds whose winner goes on to the next round
constexpr const char *roundsToGoOn[] = {Entity_Match::TournamentQualifier, Entity_Match::TournamentQuarterfinal,
                                        Entity_Match::TournamentSemifinal};
// the matches whose winner holds the night's title
constexpr const char *titleMatches[] = {Entity_Match::TournamentFinal, Entity_Match::ChampionshipMatch};

template <size_t N> bool holdsAny(const QString &line, const char *const (&words)[N])
{
    for (const char *word : words)
        if (line.contains(QLatin1String(word)))
            return true;
    return false;
}

// fights the rounds until a stoppage or a verdict; the word of a decision comes back, or an
// empty word after a stoppage
QString fightToTheEnd(MatchManager &engine)
{
    JudgesCards cards;
    int roundsFought = 0;
    engine.beginRound();
    for (;;) {
        bool over = engine.step();
        while (!over && engine.tickClock() > 0)
            over = engine.step();
        if (over)
            return QString();
        cards.addRound(engine.endRoundScores());
        ++roundsFought;
        if (roundsFought >= RegularRounds) {
            const QString word = JudgesCards::verdict(cards.votesOne(), cards.votesTwo(), roundsFought);
            if (!word.isEmpty()) {
                engine.decide(cards.votesOne(), cards.votesTwo());
                return word;
            }
        }
        engine.nextRound();
        engine.beginRound();
    }
}

} // namespace

WorldMatch::Ending WorldMatch::endingOf(const QString &resultLine)
{
    if (resultLine.contains(QLatin1String("Decision")))
        return Ending::Decision;
    if (resultLine.contains(QLatin1String(" by TKO(")))
        return Ending::TechnicalKnockout;
    return Ending::Knockout;
}

WorldMatch::Outcome WorldMatch::fight(GameManager &world, const Entity_Event &event, const Entity_Match &match)
{
    Outcome outcome;
    const QString orgName = event.organisationName();
    // private copies: nothing the engine does to them returns to the roster
    const Entity_Fighter first = world.rosterFighter(orgName, match.fighterOneId());
    const Entity_Fighter second = world.rosterFighter(orgName, match.fighterTwoId());
    // an open place, or a man who has left the roster since he was booked, has nobody to fight
    if (!match.isFilled() || first.getId() != match.fighterOneId() || second.getId() != match.fighterTwoId() ||
        first.getId() == 0 || second.getId() == 0)
        return outcome;

    CommentaryBuffer commentary;
    MatchManager &engine = MatchManager::instance();
    engine.startMatch(first, second, &commentary);
    const QString word = fightToTheEnd(engine);

    QString &winnerEntry = outcome.winnerEntry;
    QString &loserEntry = outcome.loserEntry;
    QString result = engine.resultText(outcome.winnerId, winnerEntry, outcome.loserId, loserEntry);
    if (!word.isEmpty()) {
        result.replace(QLatin1String("Decision"), word);
        winnerEntry.replace(QLatin1String("Decision"), word);
        loserEntry.replace(QLatin1String("Decision"), word);
    }
    const QString where = " - " + orgName + ": " + event.name();
    winnerEntry += where;
    loserEntry += where;
    const QString matchType = match.matchType();
    if (matchType == QLatin1String(Entity_Match::ChampionshipMatch)) {
        winnerEntry += '|' + event.title();
        loserEntry += '|' + event.title();
    } else if (matchType == QLatin1String(Entity_Match::TournamentFinal)) {
        // the loser of a final takes no title home
        winnerEntry += '|' + event.title();
    }

    const Entity_Fighter &winner = outcome.winnerId == first.getId() ? first : second;
    const Entity_Fighter &loser = outcome.winnerId == first.getId() ? second : first;
    const int move = RankMove::forResult(winner.getRankingScore(), loser.getRankingScore(), result);
    world.recordRosterMatch(orgName, outcome.winnerId, winnerEntry, matchType);
    world.recordRosterMatch(orgName, outcome.loserId, loserEntry, matchType);
    world.addRankingScore(orgName, outcome.loserId, move);
    world.addRankingScore(orgName, outcome.winnerId, -move);

    outcome.ending = endingOf(result);
    outcome.line = matchType + " - " + result;
    if (holdsAny(outcome.line, roundsToGoOn)) {
        outcome.advancingId = outcome.winnerId;
    } else if (holdsAny(outcome.line, titleMatches)) {
        Entity_Org::Titles before;
        world.organisation(orgName).titlesCopy(before);
        world.setTitleHolder(orgName, event.title(), outcome.winnerId, false);
        Entity_Org::Titles after;
        world.organisation(orgName).titlesCopy(after);
        outcome.titleChanged = before.value(event.title()) != after.value(event.title());
    }
    return outcome;
}
