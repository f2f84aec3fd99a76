#include "world/FightNight.h"

#include "fighters/Entity_Manager.h"
#include "match/CommentarySink.h"
#include "match/JudgesCards.h"
#include "match/MatchManager.h"
#include "world/Entity_Match.h"
#include "world/GameManager.h"
#include "world/WorldMatch.h"

#include <array>

namespace {

constexpr int RoundSeconds = 180;

// what the announcer says of a match by its type; %1 is the organisation
struct Announcement {
    const char *matchType;
    const char *text;
};

constexpr Announcement announcements[] = {
    {Entity_Match::ChampionshipMatch, "This is the championship match! The %1 World Championship is at stake!\n"},
    {Entity_Match::TournamentQualifier,
     "This is a tournament qualifier match! The winner will move on to the next round.\n"},
    {Entity_Match::TournamentQuarterfinal,
     "This is a tournament quarterfinal! The winner moves one step closer to glory!\n"},
    {Entity_Match::TournamentSemifinal, "This is a tournament semifinal! The winner books a spot in the final, where "
                                        "they will get their chance to make history!\n"},
    {Entity_Match::TournamentFinal, "This is it! This is the final match of the tournament! The winner of this match "
                                    "takes home the tournament title!\n"},
};
// any other match, when it is the last of the card
constexpr const char *MainEventText = "This is it! The main event! Who will reign supreme?\n";

// the judges as the announcer reads their cards, in their order
constexpr std::array<const char *, 3> judgeNames{
    "The first judge scores the fight ", "The second judge scores the fight ", "The final judge scores the fight "};

} // namespace

FightNight::FightNight(GameManager &world, const Entity_Event &event, CommentarySink *commentary)
    : world(world)
    , night(event)
    , commentary(commentary)
{
}

FightNight::~FightNight() = default;

void FightNight::print(const QString &paragraph)
{
    if (commentary)
        commentary->append(paragraph);
}

// --- the stages ------------------------------------------------------------------------------------

void FightNight::welcome()
{
    print("Good evening, and welcome to " + night.name() + "!");
    print("This is going to be a great event, filled with great matches!");
    if (night.hasChampionship())
        print("Tonight, the " + night.organisationName() + " World Championship is on the line!");
    else if (night.hasQualifier())
        print("This is a tournament qualifier, in which the winners will move on to the next round of the "
              "tournament!");
    if (night.hasTournamentRounds())
        print("This is the conclusion of the tournament, where we crown the champion! Only one fighter will take "
              "home the title and prestige of being the very best of the best!");
}

bool FightNight::startNextMatch()
{
    // a slot that nobody can fight is passed by, as the day flow passes it by
    int gymSide = NoUser;
    while (cursor < night.matchCount() && !WorldMatch::findMen(world, night, night.matchAt(cursor), one, two, gymSide))
        ++cursor;
    if (cursor >= night.matchCount())
        return false;

    const Entity_Match current = night.matchAt(cursor);
    round = 1;
    clock = RoundSeconds;
    matchOver = false;
    instructionGiven = false;
    ++matchesStarted;
    side = gymSide;
    if (side != NoUser)
        userId = side == UserFirst ? current.fighterOneId() : current.fighterTwoId();

    print(QString());
    print("The next match coming up features " + current.fighterOne() + " vs. " + current.fighterTwo() + "\n");
    QString announcement;
    for (const Announcement &row : announcements)
        if (current.matchType() == QLatin1String(row.matchType))
            announcement = QString::fromLatin1(row.text).arg(night.organisationName());
    if (announcement.isEmpty() && matchesStarted == night.matchCount())
        announcement = MainEventText;
    if (!announcement.isEmpty())
        print(announcement);

    match = std::make_unique<WholeMatch>(one, two, commentary);
    return true;
}

void FightNight::beginRound()
{
    if (!match)
        return;
    if (round == 1) {
        print("This is it! We're about to get underway!");
        print("The referee raises his hand to signal the start of the match...\n");
    } else {
        print("The fighters come out of their corners.");
        print("The referee raises his hand to signal the start of the next round...\n");
    }
    print("Round " + QString::number(round) + "!");
    print("Fight!\n");
    match->beginRound();
}

WholeMatch::Moment FightNight::step()
{
    if (!match)
        return WholeMatch::Moment::Over;
    const WholeMatch::Moment moment = match->step();
    instructionGiven = false;
    if (moment == WholeMatch::Moment::Over) {
        matchOver = true;
        return moment;
    }
    clock = MatchManager::instance().getRoundClock();
    if (moment == WholeMatch::Moment::Fighting)
        return moment;

    // the bell: the round is over and scored, and the clock is set for the next one
    clock = RoundSeconds;
    ++round;
    print(QString());
    MatchManager::instance().announceRoundEnd();
    match->bell();
    return moment;
}

bool FightNight::tallyDue() const
{
    return round > JudgesCards::FirstVerdictRound;
}

void FightNight::tally()
{
    print("The judges are tallying their scorecards...\n");
    matchOver = true;
}

void FightNight::readTheCards()
{
    const JudgesCards &cards = match->cards();
    for (int judge = 0; judge < 3; ++judge) {
        const int a = cards.totalOne(judge);
        const int b = cards.totalTwo(judge);
        const QString high = QString::number(qMax(a, b));
        const QString low = QString::number(qMin(a, b));
        if (a == b)
            print(QString(judgeNames[judge]) + "as a " + high + "-" + low + " draw.");
        else
            print(QString(judgeNames[judge]) + high + "-" + low + " for " + (a > b ? one : two).fullName());
    }
}

FightNight::MatchEnd FightNight::endMatch()
{
    if (!match)
        return MatchEnd::CardDone;
    const bool decision = !match->isOver() || match->result().ending == WholeMatch::Ending::Decision;
    if (decision)
        readTheCards();
    // the judges have no majority yet: one more round, and the tally after it
    if (!match->isOver()) {
        print("It's a draw! We are going to an extension round!\n");
        matchOver = false;
        return MatchEnd::ExtensionRound;
    }

    const WholeMatch::Result &fought = match->result();
    const Entity_Match finished = night.matchAt(cursor);
    print(QString());
    print(fought.line);
    const int gymFighterId = side == NoUser ? 0 : userId;
    const WorldMatch::Outcome outcome = WorldMatch::record(world, night, finished, one, two, fought, gymFighterId);
    if (side != NoUser) {
        userStats = MatchManager::instance().statusOf(userId);
        userEntry = fought.winnerId == userId ? outcome.winnerEntry : outcome.loserEntry;
    }

    if (outcome.advancingId) {
        const QString placed = world.advanceTournamentWinner(outcome.advancingId, night.organisationName());
        results << outcome.line << placed + '\n';
        print(QString());
        print(placed);
        // the winner's new place may fill a later slot of this very card
        rereadCard();
    } else {
        results << outcome.line + '\n';
    }

    ++cursor;
    return cursor < night.matchCount() ? MatchEnd::NextMatch : MatchEnd::CardDone;
}

void FightNight::rereadCard()
{
    for (const Entity_Event &event : world.todaysUserEvents()) {
        if (event.name() == night.name()) {
            night = event;
            return;
        }
    }
}

void FightNight::conclude()
{
    match.reset();
    print(QString());
    print(QString());
    print("Ladies and gentlemen, this concludes " + night.name() + ". I hope you enjoyed the event. \n");
    print(QString());
    print(QString());
    print(QString());
    print(night.name() + " results:\n");
    for (const QString &line : results)
        print(line);
    // the results mark the night as fought; a fantasy night has no organisation to keep them
    world.storeEventResults(results, night.name(), night.organisationName());
    world.refreshReputations(night.organisationName());
}

// --- the corner ------------------------------------------------------------------------------------

int FightNight::userManId() const
{
    return side == NoUser || !match ? 0 : userId;
}

QStringList FightNight::instructions() const
{
    const int id = userManId();
    return id ? MatchManager::instance().instructionsFor(id) : QStringList();
}

bool FightNight::callInstruction(const QString &text)
{
    const int id = userManId();
    if (!id || instructionGiven || matchOver)
        return false;
    instructionGiven = true;
    return MatchManager::instance().giveInstruction(id, text, world.managerRecord().value(Entity_Manager::Motivating),
                                                    false);
}

void FightNight::cornerStrategy(const QString &text)
{
    if (const int id = userManId())
        MatchManager::instance().giveInstruction(id, text, world.managerRecord().value(Entity_Manager::Motivating),
                                                 true);
}

void FightNight::tendFighter(int heal, int water, int motivate, int strategy)
{
    if (const int id = userManId())
        MatchManager::instance().tendFighter(heal, water, motivate, strategy, id);
}

void FightNight::observations(QStringList &texts, QList<int> &codes) const
{
    if (const int id = userManId())
        MatchManager::instance().observationsOf(texts, codes, id);
}

QList<int> FightNight::userStatus() const
{
    const int id = userManId();
    return id ? MatchManager::instance().statusOf(id) : QList<int>();
}

int FightNight::trainerPoints() const
{
    return world.managerRecord().value(Entity_Manager::Cornering);
}

// --- what the screen shows -------------------------------------------------------------------------

QStringList FightNight::cardLines() const
{
    QStringList lines;
    for (const Entity_Match &slot : night.matches())
        lines << slot.matchType() + " - " + slot.fighterOne() + " vs. " + slot.fighterTwo();
    return lines;
}

QString FightNight::clockText() const
{
    const int seconds = qMax(clock, 0);
    return QString::number(seconds / 60) + ':' + QString::number(seconds % 60).rightJustified(2, '0');
}

QStringList FightNight::tapeLines(const Entity_Fighter &man)
{
    return {man.fullName(), QString::number(man.number(Entity_Fighter::Age)), man.text(Entity_Fighter::Nationality),
            man.text(Entity_Fighter::FightingBackground),
            QString::number(man.number(Entity_Fighter::Wins)) + "W - " +
                QString::number(man.number(Entity_Fighter::Losses)) + "L - " +
                QString::number(man.number(Entity_Fighter::Kos)) + "KO"};
}
