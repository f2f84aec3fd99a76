#include "world/WorldContracts.h"

#include "fighters/GameLists.h"

#include "fighters/Entity_Manager.h"
#include "fighters/Random.h"
#include "world/Entity_Match.h"
#include "world/PrestigeTable.h"
#include "world/WorldState.h"

#include <algorithm>

namespace {

constexpr const char *FreeAgent = GameLists::FreeAgent;
// an offer goes once its night lies fewer than this many days off
constexpr int OfferLastDays = 8;
// a new offer needs a night more than this many days off
constexpr int OfferLeadDays = 2;
// one night in five an organisation thinks of an offer
constexpr int OfferChance = 5;
constexpr int OfferDraw = 4;
constexpr int PurseBase = 1000;

} // namespace

WorldContracts::WorldContracts(WorldState &world)
    : world(world)
{
}

// --- Bookings --------------------------------------------------------------------------------------

void WorldContracts::replaceBooking(const Entity_Booking &record)
{
    for (Entity_Booking &booking : world.bookings) {
        if (booking.fighterId() == record.fighterId()) {
            booking = record;
            return;
        }
    }
}

void WorldContracts::clearBooking(int id)
{
    for (Entity_Booking &booking : world.bookings) {
        if (booking.fighterId() == id) {
            booking = Entity_Booking::emptyFor(id, booking.fighterName(), Entity_Booking().eventDate());
            return;
        }
    }
}

QMap<QString, QString> WorldContracts::bookingsByFighter() const
{
    QMap<QString, QString> byFighter;
    for (const Entity_Booking &booking : world.bookings)
        byFighter.insert(booking.fighterName(), booking.eventName() + " - " + booking.dateText());
    return byFighter;
}

// --- The night's jobs ------------------------------------------------------------------------------

WorldContracts::Moves WorldContracts::processContracts(QStringList &news)
{
    Moves moves;
    for (Entity_Org &organisation : world.organisations)
        moves.renewals += organisation.renewContracts(news);
    for (Entity_Org &organisation : world.organisations) {
        for (const Entity_Fighter &man : organisation.releaseFreeAgents()) {
            news << man.fullName() + " has left " + organisation.name() + " and is now a free agent.";
            world.freeAgents.insert(man.getRankingScore(), man);
            ++moves.releases;
        }
    }
    return moves;
}

void WorldContracts::removeExpiredOffers()
{
    const QDate today = world.currentDate;
    world.offers.removeIf([&](const Entity_Booking &offer) { return today.daysTo(offer.eventDate()) < OfferLastDays; });
}

void WorldContracts::makeOffers()
{
    const QDate today = world.currentDate;
    for (const Entity_Org &organisation : world.organisations) {
        const QString orgName = organisation.name();
        const Entity_Event event = organisation.nextEvent(today);
        const auto fromHere = [&](const Entity_Booking &record) { return record.organisationName() == orgName; };
        const bool chance = qrand() % OfferChance == OfferDraw;
        // a man of the user booked there already: the organisation has him
        if (!chance || today.daysTo(event.date()) <= OfferLeadDays || event.singlesFilled() ||
            event.undercardFilled() || std::any_of(world.bookings.cbegin(), world.bookings.cend(), fromHere))
            continue;
        // the label must match exactly: a man above or below it gets no offer
        const QString wanted = PrestigeTable::row(organisation.prestige()).offerLabel;
        for (const Entity_GymFighter &man : std::as_const(world.fighters)) {
            if (man.text(Entity_Fighter::Reputation) != wanted ||
                man.text(Entity_Fighter::Organisation) != QLatin1String(FreeAgent))
                continue;
            if (std::none_of(world.offers.cbegin(), world.offers.cend(), fromHere))
                world.offers.append(Entity_Booking(man.getId(), man.fullName(), event.name(), orgName, event.date()));
            break;
        }
    }
}

// --- The user's contracts --------------------------------------------------------------------------

void WorldContracts::fighterContract(int index, QString &organisation, int &fights, int &purse) const
{
    if (index < 0 || index >= world.fighters.size()) {
        organisation = "N/A";
        fights = 0;
        purse = 0;
        return;
    }
    world.fighters[index].contract(organisation, fights, purse);
}

bool WorldContracts::negotiate(const QString &orgName, const Entity_GymFighter &man, int fights, int money,
                               QString &message)
{
    Entity_Org *organisation = world.organisationNamed(orgName);
    return organisation &&
           organisation->negotiate(man, fights, money, world.manager.value(Entity_Manager::Negotiating), message);
}

int WorldContracts::defaultPurse(const Entity_GymFighter &man, const QString &orgName) const
{
    const Entity_Org *organisation = world.organisationNamed(orgName);
    const int level = PrestigeTable::row(organisation ? organisation->prestige() : QString()).purseLevel;
    return ((man.marketability + 1) * man.reputationPoints + PurseBase) * level;
}

void WorldContracts::signContract(int id, const QString &orgName, int fights, int purse)
{
    const qsizetype index = world.fighterIndexOf(id);
    if (index < 0)
        return;
    Entity_GymFighter &man = world.fighters[index];
    man.setContract(orgName, fights, purse < 0 ? defaultPurse(man, orgName) : purse);
}

bool WorldContracts::addToEvent(int id, const QString &name, const QString &orgName, const QString &eventName,
                                const QString &matchType, const QDate &date, bool isGymFighter)
{
    Entity_Org *organisation = world.organisationNamed(orgName);
    if (!organisation)
        return false;
    const QDate today = world.currentDate;
    const Entity_Event next = organisation->nextEvent(today);
    // a one-fight man joins the undercard of the next night, never its main event
    if (next.undercardFilled() || date.day() != next.date().day() || date.month() != next.date().month())
        return false;
    return organisation->addToEvent(id, name, eventName, matchType, isGymFighter, today);
}

// --- Offers ----------------------------------------------------------------------------------------

Entity_Booking WorldContracts::offerAt(int row) const
{
    return world.offers.value(row);
}

QStringList WorldContracts::offerEventNames() const
{
    QStringList names;
    for (const Entity_Booking &offer : world.offers)
        names.append(offer.eventName());
    return names;
}

void WorldContracts::removeOffersFor(int id)
{
    world.offers.removeIf([&](const Entity_Booking &offer) { return offer.fighterId() == id; });
}

void WorldContracts::removeOffersForEvent(const QString &eventName)
{
    world.offers.removeIf([&](const Entity_Booking &offer) { return offer.eventName() == eventName; });
}

// --- What the management screen asks and answers ---------------------------------------------------

QString WorldContracts::negotiationBar(int fighterIndex, const QString &orgName) const
{
    if (fighterIndex < 0 || fighterIndex >= world.fighters.size())
        return "You have no fighters available.";
    const QString current = world.fighters[fighterIndex].text(Entity_Fighter::Organisation);
    if (current == QLatin1String(FreeAgent) || current == orgName)
        return QString();
    return "This fighter is already signed to a contract.";
}

QString WorldContracts::negotiationQuestion(int fighterIndex, const QString &orgName) const
{
    const bool renewal = fighterIndex >= 0 && fighterIndex < world.fighters.size() &&
                         world.fighters[fighterIndex].text(Entity_Fighter::Organisation) == orgName;
    return renewal ? "Are you sure you want to renew this contract?" : "Are you sure you want to sign this contract?";
}

QString WorldContracts::offerQuestion(int row) const
{
    const Entity_Booking offer = offerAt(row);
    return "Offered to " + offer.fighterName() + " on " + offer.dateText();
}

void WorldContracts::rejectOffer(const QString &eventName)
{
    removeOffersForEvent(eventName);
}

QString WorldContracts::negotiateContract(int fighterIndex, const QString &orgName, int fights, int purse)
{
    const QString bar = negotiationBar(fighterIndex, orgName);
    if (!bar.isEmpty())
        return bar;
    const Entity_GymFighter man = world.fighters[fighterIndex];
    QString reason;
    QString answer;
    if (negotiate(orgName, man, fights, purse, reason)) {
        signContract(man.getId(), orgName, fights, purse);
        answer = Signed;
    } else {
        answer = orgName + " has turned down your offer. " + reason;
    }
    removeOffersFor(man.getId());
    return answer;
}

QString WorldContracts::acceptOffer(int row)
{
    const Entity_Booking offer = offerAt(row);
    const int id = offer.fighterId();
    if (id <= 0)
        return QString();
    // a man who has retired or signed elsewhere since the offer came cannot take it
    const qsizetype index = world.fighterIndexOf(id);
    const bool stillFree =
        index >= 0 && world.fighters[index].text(Entity_Fighter::Organisation) == QLatin1String(FreeAgent);
    if (!stillFree || !addToEvent(id, offer.fighterName(), offer.organisationName(), offer.eventName(),
                                  Entity_Match::SingleMatch, offer.eventDate(), true))
        return "The offer is no longer valid. \nMake sure you do not already have a fighter booked for this event.";
    signContract(id, offer.organisationName(), 1, -1);
    replaceBooking(offer);
    removeOffersForEvent(offer.eventName());
    removeOffersFor(id);
    return Signed;
}
