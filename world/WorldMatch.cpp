#include "world/WorldMatch.h"

#include "match/CommentaryBuffer.h"
#include "match/WholeMatch.h"
#include "world/Entity_Event.h"
#include "world/Entity_Match.h"
#include "world/GameManager.h"
#include "world/RankMove.h"

namespace {

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

} // namespace

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

    // the commentary of a match that nobody watches goes into a buffer all the same
    CommentaryBuffer commentary;
    const WholeMatch::Result fought = WholeMatch::fight(first, second, &commentary);
    outcome.ending = fought.ending;
    outcome.winnerId = fought.winnerId;
    outcome.loserId = fought.loserId;
    const QString where = " - " + orgName + ": " + event.name();
    outcome.winnerEntry = fought.winnerEntry + where;
    outcome.loserEntry = fought.loserEntry + where;
    const QString matchType = match.matchType();
    if (matchType == QLatin1String(Entity_Match::ChampionshipMatch)) {
        outcome.winnerEntry += '|' + event.title();
        outcome.loserEntry += '|' + event.title();
    } else if (matchType == QLatin1String(Entity_Match::TournamentFinal)) {
        // the loser of a final takes no title home
        outcome.winnerEntry += '|' + event.title();
    }

    const Entity_Fighter &winner = outcome.winnerId == first.getId() ? first : second;
    const Entity_Fighter &loser = outcome.winnerId == first.getId() ? second : first;
    const int move = RankMove::forResult(winner.getRankingScore(), loser.getRankingScore(), fought.line);
    world.recordRosterMatch(orgName, outcome.winnerId, outcome.winnerEntry, matchType);
    world.recordRosterMatch(orgName, outcome.loserId, outcome.loserEntry, matchType);
    world.addRankingScore(orgName, outcome.loserId, move);
    world.addRankingScore(orgName, outcome.winnerId, -move);

    outcome.line = matchType + " - " + fought.line;
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
