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

// the places of the slot that hold the user's man: 0 the first, 1 the second, 2 neither
constexpr int GymFirst = 0;
constexpr int GymSecond = 1;
constexpr int NoGymFighter = 2;

bool isGymFighter(const GameManager &world, int id)
{
    return world.fighterIds().contains(id);
}

} // namespace

WorldMatch::Outcome WorldMatch::fight(GameManager &world, const Entity_Event &event, const Entity_Match &match)
{
    // private copies: nothing the engine does to them returns to the roster
    Entity_Fighter first;
    Entity_Fighter second;
    int gymSide = NoGymFighter;
    // an open place, or a man who has left the roster since he was booked, has nobody to fight
    if (!findMen(world, event, match, first, second, gymSide) || gymSide != NoGymFighter)
        return Outcome();

    // the commentary of a match that nobody watches goes into a buffer all the same
    CommentaryBuffer commentary;
    const WholeMatch::Result fought = WholeMatch::fight(first, second, &commentary);
    return record(world, event, match, first, second, fought);
}

bool WorldMatch::findMen(const GameManager &world, const Entity_Event &event, const Entity_Match &match,
                         Entity_Fighter &first, Entity_Fighter &second, int &gymSide)
{
    const QString orgName = event.organisationName();
    const int oneId = match.fighterOneId();
    const int twoId = match.fighterTwoId();
    gymSide = NoGymFighter;
    if (match.isGymFighterBooked() && isGymFighter(world, oneId))
        gymSide = GymFirst;
    else if (match.isGymFighterBooked() && isGymFighter(world, twoId))
        gymSide = GymSecond;

    const auto worldMan = [&](int id) {
        return event.isFantasyMatch() ? world.amateurById(id) : world.rosterFighter(orgName, id);
    };
    first = gymSide == GymFirst ? world.fighterById(oneId).fighter() : worldMan(oneId);
    second = gymSide == GymSecond ? world.fighterById(twoId).fighter() : worldMan(twoId);
    return match.isFilled() && oneId != 0 && twoId != 0 && first.getId() == oneId && second.getId() == twoId;
}

WorldMatch::Outcome WorldMatch::record(GameManager &world, const Entity_Event &event, const Entity_Match &match,
                                       const Entity_Fighter &first, const Entity_Fighter &second,
                                       const WholeMatch::Result &fought, int gymFighterId)
{
    Outcome outcome;
    const QString orgName = event.organisationName();
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
    outcome.line = matchType + " - " + fought.line;
    // two men of another game: nobody of the world has fought
    if (event.isFantasyMatch())
        return outcome;

    const Entity_Fighter &winner = outcome.winnerId == first.getId() ? first : second;
    const Entity_Fighter &loser = outcome.winnerId == first.getId() ? second : first;
    const int move = RankMove::forResult(winner.getRankingScore(), loser.getRankingScore(), fought.line);
    const bool gymWinner = gymFighterId != 0 && outcome.winnerId == gymFighterId;
    const bool gymLoser = gymFighterId != 0 && outcome.loserId == gymFighterId;
    const auto recordCareer = [&](int id, const QString &entry, bool gymMan) {
        if (gymMan)
            world.recordGymResult(id, entry, matchType);
        else
            world.recordRosterMatch(orgName, id, entry, matchType);
    };
    const auto moveRank = [&](int id, int delta, bool gymMan) {
        if (gymMan)
            world.addUserRankingScore(id, delta);
        else
            world.addRankingScore(orgName, id, delta);
    };
    recordCareer(outcome.winnerId, outcome.winnerEntry, gymWinner);
    recordCareer(outcome.loserId, outcome.loserEntry, gymLoser);
    moveRank(outcome.loserId, move, gymLoser);
    moveRank(outcome.winnerId, -move, gymWinner);
    // his night is fought: he is free to be booked again
    if (gymFighterId != 0)
        world.clearBooking(gymFighterId);

    if (holdsAny(outcome.line, roundsToGoOn)) {
        outcome.advancingId = outcome.winnerId;
    } else if (holdsAny(outcome.line, titleMatches)) {
        Entity_Org::Titles before;
        world.organisation(orgName).titlesCopy(before);
        world.setTitleHolder(orgName, event.title(), outcome.winnerId, gymWinner);
        Entity_Org::Titles after;
        world.organisation(orgName).titlesCopy(after);
        outcome.titleChanged = before.value(event.title()) != after.value(event.title());
    }
    return outcome;
}
