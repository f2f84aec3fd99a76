#include "world/BookingRound.h"

#include "fighters/Random.h"
#include "world/WorldContracts.h"
#include "world/WorldState.h"

#include <algorithm>

namespace {

// The kinds of night that fill their main slots from the top of the ranking. The first row whose
// slots the card holds decides; a card with none of them books single matches.
struct SlotRule {
    bool (Entity_Event::*holds)() const;  // the card has slots of this kind
    bool (Entity_Event::*filled)() const; // and every one of them is taken
    int topPositions;                     // only positions below this may go in
    const char *matchType;
};

constexpr SlotRule slotRules[] = {
    {&Entity_Event::hasChampionship, &Entity_Event::championshipsFilled, 10, Entity_Match::ChampionshipMatch},
    {&Entity_Event::hasQualifier, &Entity_Event::tournamentSlotsFilled, 16, Entity_Match::TournamentQualifier},
    {&Entity_Event::hasTournamentRounds, &Entity_Event::tournamentSlotsFilled, 8, Entity_Match::TournamentQuarterfinal},
};

const SlotRule *slotRuleFor(const Entity_Event &event)
{
    for (const SlotRule &rule : slotRules) {
        if ((event.*rule.holds)())
            return &rule;
    }
    return nullptr;
}

// the main event of a card of single matches goes to one of the top ten
constexpr int MainEventPositions = 10;
// the top five fight only in the main event
constexpr int TopFive = 5;
// a far-off night takes at most one man a day, after at most this many attempts and one more
constexpr int RegularAttempts = 10;
// a night fewer than this many days away is in its last week
constexpr int LastWeekDays = 8;
// the draw of a position lands inside the roster after a few rounds; this only guards the loop
constexpr int PositionDrawLimit = 1000;

} // namespace

BookingRound::BookingRound(WorldState &world)
    : world(world)
    , today(world.currentDate)
{
}

QStringList BookingRound::run()
{
    news.clear();
    attemptsMade.clear();
    Random::seedFromClock();
    for (Entity_Org &organisation : world.organisations) {
        int attempts = 0;
        takeTurn(organisation, attempts);
        attemptsMade.append(attempts);
    }
    return news;
}

void BookingRound::takeTurn(Entity_Org &organisation, int &attempts)
{
    Turn turn{organisation, {}, {}, {}, {}};
    Entity_Org::Roster roster;
    organisation.rosterCopy(roster);
    turn.ranked = roster.values();
    organisation.titlesCopy(turn.titles);
    turn.event = organisation.nextEvent(today);

    bookTitleHolder(turn);
    turn.event = organisation.nextEvent(today);
    // nobody to draw from
    if (turn.ranked.isEmpty())
        return;

    int attemptsLeft = RegularAttempts;
    for (;;) {
        ++attempts;
        Random::seedFromClock();
        const QList<Entity_GymFighter> gymMen = gymMenOf(organisation.name());
        // one attempt in five goes to the user's men
        const int draw = qrand();
        const Attempt attempt = !gymMen.isEmpty() && draw % 5 == 2 ? gymAttempt(turn, gymMen) : rosterAttempt(turn);
        if (!attempt.booked && attempt.fromRoster)
            turn.tried.append(attempt.position);
        turn.event = organisation.nextEvent(today);

        bool stop = false;
        if (today.daysTo(turn.event.date()) < LastWeekDays) {
            // in its last week a night fills its whole card at once
            stop =
                (turn.event.tournamentSlotsFilled() && turn.event.singlesFilled()) || attempts >= LastWeekAttemptLimit;
        } else {
            --attemptsLeft;
            stop = attempt.booked;
        }
        if (attemptsLeft < 0 || stop)
            return;
    }
}

void BookingRound::bookTitleHolder(Turn &turn)
{
    const Entity_Event &event = turn.event;
    if (!event.hasChampionship() || event.championshipsFilled() || turn.titles.isEmpty())
        return;
    QString holder = turn.titles.first();
    if (holder == Entity_Org::VacantTitle) {
        // a vacant belt is fought for between the first two of the ranking; a best man whose
        // name the night already carries is on the card, and the second one is called up
        if (turn.ranked.isEmpty())
            return;
        const bool bestIsOn = event.name().contains(turn.ranked.first().text(Entity_Fighter::LastName));
        const int called = bestIsOn ? 1 : 0;
        if (called >= turn.ranked.size())
            return;
        holder = turn.ranked.at(called).fullName();
    }
    for (const Entity_GymFighter &man : gymMenOf(turn.organisation.name())) {
        if (man.fullName() == holder) {
            book(turn, candidate(man, true), Entity_Match::ChampionshipMatch, false);
            return;
        }
    }
    for (const Entity_Fighter &man : std::as_const(turn.ranked)) {
        if (man.fullName() == holder) {
            book(turn, candidate(man, false), Entity_Match::ChampionshipMatch, false);
            return;
        }
    }
    // a holder who has left the organisation is called up by nobody
}

BookingRound::Attempt BookingRound::rosterAttempt(Turn &turn)
{
    Attempt attempt;
    attempt.fromRoster = true;
    int &position = attempt.position;
    position = drawRosterPosition(turn);

    QString matchType = Entity_Match::SingleMatch;
    if (const SlotRule *rule = slotRuleFor(turn.event)) {
        if (!(turn.event.*rule->filled)()) {
            position = qrand() % rule->topPositions;
            matchType = rule->matchType;
        }
    } else if (turn.event.undercardFilled()) {
        position = qrand() % MainEventPositions;
    }
    // a draw from the top ten or sixteen may lie beyond a small roster
    if (position < 0 || position >= turn.ranked.size())
        return attempt;

    const Entity_Fighter man = turn.ranked.at(position);
    if (matchType == Entity_Match::SingleMatch && refusesSingle(turn, man.fullName(), position, false))
        return attempt;
    attempt.booked = book(turn, candidate(man, false), matchType, true);
    return attempt;
}

BookingRound::Attempt BookingRound::gymAttempt(Turn &turn, const QList<Entity_GymFighter> &gymMen)
{
    Random::stir(qrand() % 20);
    const Entity_GymFighter man = gymMen.at(qrand() % int(gymMen.size()));
    Attempt attempt;
    attempt.position = gymPosition(turn, man);

    const SlotRule *rule = slotRuleFor(turn.event);
    const bool mainSlot = rule && !(turn.event.*rule->filled)() && attempt.position < rule->topPositions;
    const QString matchType = mainSlot ? rule->matchType : Entity_Match::SingleMatch;
    if (matchType == Entity_Match::SingleMatch && refusesSingle(turn, man.fullName(), attempt.position, true))
        return attempt;
    attempt.booked = book(turn, candidate(man, true), matchType, true);
    return attempt;
}

int BookingRound::drawRosterPosition(const Turn &turn) const
{
    const int size = int(turn.ranked.size());
    int stirs = 0;
    // every draw that moves the position comes after a fresh stir of the generator
    const auto stirredDraw = [&] {
        ++stirs;
        Random::stir(stirs, today.day() * stirs);
        return qrand();
    };
    for (int round = 0; round < PositionDrawLimit; ++round) {
        int position = stirredDraw() % size;
        if (turn.tried.contains(position))
            position += 2;
        const int direction = stirredDraw() % 10;
        const int step = stirredDraw() % 7;
        position += direction == 2 || direction == 3 ? step : -step;
        if (position >= 0 && position < size)
            return position;
    }
    return -1;
}

bool BookingRound::refusesSingle(const Turn &turn, const QString &fullName, int position, bool isGym) const
{
    // a champion of a one-title promotion fights only for his belt; a tournament winner may not
    const bool beltOnly =
        turn.titles.size() == 1 && !turn.titles.firstKey().contains("Grand Prix") && fullName == turn.titles.first();
    const bool undercardFull = turn.event.undercardFilled();
    // the top five wait for the main event
    const bool topFiveWaits = position < TopFive && !undercardFull;
    // the user's other men go only onto the undercard
    const bool gymManAboveHimself = isGym && position >= TopFive && undercardFull;
    return beltOnly || topFiveWaits || gymManAboveHimself;
}

bool BookingRound::book(Turn &turn, const Candidate &man, const QString &matchType, bool dropOffers)
{
    Entity_Org &organisation = turn.organisation;
    const QString oldName = turn.event.name();
    if (!organisation.addToEvent(man.id, man.fullName, oldName, matchType, man.isGym, today))
        return false;
    news.append(QString("Booked %1 for a %2 at %3").arg(man.fullName, matchType, oldName));
    if (dropOffers)
        WorldContracts(world).removeOffersForEvent(oldName);
    organisation.renameEvent(oldName, turn.event.date(), man.id, man.lastName);
    turn.event = organisation.nextEvent(today);
    const QString newName = turn.event.name();

    if (man.isGym) {
        WorldContracts(world).replaceBooking(
            Entity_Booking(man.id, man.fullName, newName, organisation.name(), turn.event.date()));
        return true;
    }
    // a man of the user who is already on this card keeps his link to it under its new name; a
    // night is known by its name, its organisation and its date, since names come round again
    for (Entity_Booking &record : world.bookings) {
        if (record.eventName() == oldName && record.organisationName() == organisation.name() &&
            record.eventDate() == turn.event.date()) {
            record = Entity_Booking(record.fighterId(), record.fighterName(), newName, record.organisationName(),
                                    record.eventDate());
            break;
        }
    }
    return true;
}

QList<Entity_GymFighter> BookingRound::gymMenOf(const QString &organisationName) const
{
    QList<Entity_GymFighter> men;
    for (const Entity_GymFighter &man : std::as_const(world.fighters)) {
        if (man.text(Entity_Fighter::Organisation) == organisationName)
            men.append(man);
    }
    return men;
}

int BookingRound::gymPosition(const Turn &turn, const Entity_Fighter &man)
{
    // he stands among the roster as if he were in it: a man ahead of everyone has position -1
    const int score = man.getRankingScore();
    const auto ahead = std::count_if(turn.ranked.cbegin(), turn.ranked.cend(),
                                     [score](const Entity_Fighter &other) { return other.getRankingScore() < score; });
    return int(ahead) - 1;
}

BookingRound::Candidate BookingRound::candidate(const Entity_Fighter &man, bool isGym)
{
    return {man.getId(), man.fullName(), man.text(Entity_Fighter::LastName), isGym};
}
