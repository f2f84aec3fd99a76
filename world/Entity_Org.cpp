#include "world/Entity_Org.h"

#include "fighters/GameLists.h"

#include "fighters/Random.h"
#include "fighters/ReputationScale.h"
#include "fighters/ResultEntry.h"
#include "fighters/StreamForm.h"
#include "world/PrestigeTable.h"

#include <algorithm>
#include <climits>
#include <iterator>

void Entity_Org::pack(QStringList &strings, QList<Entity_Event> &events, QList<Entity_Event> &pastEvents,
                      Roster &rosterOut, Titles &titlesOut) const
{
    strings = QStringList(texts.cbegin(), texts.cend());
    events = calendar;
    pastEvents = lastYear;
    rosterOut = roster;
    titlesOut = titles;
}

void Entity_Org::unpack(const QStringList &strings, const QList<Entity_Event> &events,
                        const QList<Entity_Event> &pastEvents, const Roster &rosterIn, const Titles &titlesIn)
{
    std::copy_n(strings.cbegin(), TextCount, texts.begin());
    calendar = events;
    lastYear = pastEvents;
    roster = rosterIn;
    titles = titlesIn;
}

void Entity_Org::strings(QStringList &list) const
{
    list.append(QStringList(texts.cbegin(), texts.cend()));
}

void Entity_Org::events(QList<Entity_Event> &list) const
{
    list.append(calendar);
}

void Entity_Org::pastEvents(QList<Entity_Event> &list) const
{
    list.append(lastYear);
}

void Entity_Org::rosterCopy(Roster &copy) const
{
    for (auto it = roster.cbegin(); it != roster.cend(); ++it)
        copy.insert(it.key(), it.value());
}

void Entity_Org::titlesCopy(Titles &copy) const
{
    for (auto it = titles.cbegin(); it != titles.cend(); ++it)
        copy.insert(it.key(), it.value());
}

Entity_Org::Roster::iterator Entity_Org::findInRoster(int id)
{
    return std::find_if(roster.begin(), roster.end(), [id](const Entity_Fighter &f) { return f.getId() == id; });
}

Entity_Org::Roster::const_iterator Entity_Org::findInRoster(int id) const
{
    return std::find_if(roster.cbegin(), roster.cend(), [id](const Entity_Fighter &f) { return f.getId() == id; });
}

bool Entity_Org::holdsFighter(int id) const
{
    return findInRoster(id) != roster.cend();
}

Entity_Fighter Entity_Org::rosterFighter(int id) const
{
    const auto it = findInRoster(id);
    return it != roster.cend() ? it.value() : Entity_Fighter();
}

Entity_Event Entity_Org::nextEvent(const QDate &date) const
{
    for (const Entity_Event &event : calendar) {
        if (event.date() >= date)
            return event;
    }
    return {};
}

bool Entity_Org::addToEvent(int id, const QString &fighterName, const QString &eventName, const QString &matchType,
                            bool isGymFighter, const QDate &today)
{
    for (Entity_Event &event : calendar) {
        if (event.name() == eventName && event.date() >= today)
            return event.addFighter(id, fighterName, matchType, isGymFighter);
    }
    return false;
}

void Entity_Org::renameEvent(const QString &eventName, const QDate &date, int fighterId, const QString &lastName)
{
    for (Entity_Event &event : calendar) {
        if (event.name() == eventName && event.date() == date) {
            event.rename(fighterId, lastName);
            return;
        }
    }
}

void Entity_Org::storeResults(const QStringList &lines, const QString &eventName, const QDate &today)
{
    for (Entity_Event &event : calendar) {
        if (event.name() == eventName && event.date() == today) {
            event.addResults(lines);
            break;
        }
    }
    texts[Willingness] = "Willing";
}

void Entity_Org::rollOverEvents()
{
    lastYear = calendar;
    for (Entity_Event &event : calendar)
        event.rollOver();
}

void Entity_Org::addRankingScore(int id, int delta)
{
    const auto it = findInRoster(id);
    if (it == roster.end())
        return;
    Entity_Fighter fighter = it.value();
    roster.erase(it);
    fighter.addToRankingScore(delta);
    roster.insert(fighter.getRankingScore(), fighter);
}

void Entity_Org::setTitle(const QString &title, const QString &holder)
{
    titles.insert(title, holder);
}

void Entity_Org::dropOldTitles(const QDate &date)
{
    const QString yearBeforeLast = QString::number(date.year() - 2);
    titles.removeIf([&](const Titles::iterator &row) { return row.key().contains(yearBeforeLast); });
}

bool Entity_Org::leaveNextCard(int id, bool isGymFighter, const QDate &today)
{
    for (Entity_Event &event : calendar) {
        if (event.date() == today)
            return false; // nobody leaves on the day of a show
        if (event.date() > today) {
            event.removeFighter(id, isGymFighter);
            return true;
        }
    }
    return true;
}

void Entity_Org::vacateFirstTitle(const std::function<bool(const QString &, const QString &)> &test)
{
    for (auto it = titles.begin(); it != titles.end(); ++it) {
        if (test(it.key(), it.value())) {
            it.value() = VacantTitle;
            return;
        }
    }
}

bool Entity_Org::retire(const QString &fullName, int id, bool isGymFighter, int lastYearNumber, const QDate &today)
{
    if (!leaveNextCard(id, isGymFighter, today))
        return false;
    // last year's tournament champion keeps his row after he is gone
    const QString lastYearText = QString::number(lastYearNumber);
    vacateFirstTitle([&](const QString &title, const QString &holder) {
        return holder == fullName && !title.contains(lastYearText);
    });
    return true;
}

bool Entity_Org::retireRosterFighter(int id, int lastYearNumber, const QDate &today)
{
    const auto it = findInRoster(id);
    if (it == roster.end() || !retire(it.value().fullName(), id, false, lastYearNumber, today))
        return false;
    roster.erase(findInRoster(id));
    return true;
}

bool Entity_Org::retireGymFighter(const QString &fullName, int id, int lastYearNumber, const QDate &today)
{
    return retire(fullName, id, true, lastYearNumber, today);
}

void Entity_Org::recordMatch(const QDate &today, int id, const QString &entry, const QString &matchType)
{
    const auto it = findInRoster(id);
    if (it == roster.end())
        return;
    QString line = entry;
    it.value().addResult(today, line, matchType);
}

void Entity_Org::developFighter(int id)
{
    const auto it = findInRoster(id);
    if (it != roster.end())
        it.value().developOneYear();
}

void Entity_Org::refreshReputations()
{
    for (Entity_Fighter &fighter : roster)
        fighter.updateReputationFromRanking();
}

// --- Contracts ---------------------------------------------------------------------------------

namespace {

constexpr const char *FreeAgent = GameLists::FreeAgent;
constexpr const char *LastingTitle = "World Championship";
// the results that tell a man's form
constexpr int FormResults = 5;
// a man is asked to stay from the moment he has this many fights left, less one
constexpr int RenewalBelow = 3;
constexpr int SigningFights = 4;
// a renewal runs for 3 to 7 fights
constexpr int RenewalLeast = 3;
constexpr int RenewalSpread = 5;

// a failed negotiation moves the organisation one step down, to stay at the last
constexpr const char *patience[] = {"Willing", "Tentative", "Unwilling"};

// a man of low marketability is turned away when the mood of the day falls below his line
struct MarketabilityRow {
    int marketability;
    int moodBelow;
};
constexpr MarketabilityRow marketabilityTable[] = {{0, -10}, {1, -13}, {2, -16}};

// the mood of a bad day takes a part of the money off, a good day adds one
// the part, the offer divided by `divisor`, is taken off (below 0) or added; 0 leaves the offer
struct MoodRow {
    int moodBelow;
    int divisor;
};
constexpr MoodRow moodMoneyTable[] = {{-10, -10}, {-5, -20}, {6, 0}, {INT_MAX, 20}};

// the least that an organisation offers: for one fight and for a contract
constexpr int OneFightFloor = 1500;
constexpr int ContractFloor = 1000;

// the win or loss of each of his last five results, a draw nothing
int formOf(const Entity_Fighter::History &history)
{
    int form = 0;
    int counted = 0;
    for (auto it = history.cend(); it != history.cbegin() && counted < FormResults; ++counted) {
        --it;
        const ResultEntry::Outcome outcome = ResultEntry::outcomeOf(*it);
        form += outcome == ResultEntry::Outcome::Win ? 1 : outcome == ResultEntry::Outcome::Loss ? -1 : 0;
    }
    return form;
}

// A champion whose contract ran out with his last fight, and who is taken back the night after,
// holds his belt still: the end that the contract put to his reign is taken back with it.
void restoreReigns(Entity_Fighter &man, const Entity_Org::Titles &titles)
{
    QStringList reigns = man.titleList();
    for (auto row = titles.cbegin(); row != titles.cend(); ++row) {
        if (!row.key().contains(LastingTitle) || row.value() != man.fullName())
            continue;
        const bool open = std::any_of(reigns.cbegin(), reigns.cend(), [&](const QString &reign) {
            return reign.contains(row.key()) && !reign.contains("until");
        });
        for (qsizetype i = reigns.size() - 1; i >= 0 && !open; --i) {
            if (reigns[i].contains(row.key())) {
                reigns[i].truncate(reigns[i].indexOf(" until "));
                break;
            }
        }
    }
    man.setTitleList(reigns);
}

} // namespace

bool Entity_Org::wantsFighter(const Entity_Fighter &man) const
{
    const int sign = formOf(man.history()) < 0 ? -1 : 1;
    // this test seeds by the hundredths of the second alone
    qsrand(uint(Random::clockMilliseconds() / 10));
    const int value = man.skillLevel() + (qrand() % 10 + 1) * sign;
    if (roster.size() < ShortRoster)
        return true;
    if (roster.size() > FullRoster)
        return false;
    const PrestigeTable::Row &level = PrestigeTable::row(prestige());
    if (value < level.signingLow || value > level.signingHigh)
        return false;
    // one man in four whom it would take is turned away all the same
    return (qrand() & 3) != 0;
}

void Entity_Org::signFighter(Entity_Fighter man)
{
    man.setContract(name(), SigningFights);
    roster.insert(man.getRankingScore(), man);
}

int Entity_Org::renewContracts(QStringList &news)
{
    int renewed = 0;
    for (auto it = roster.begin(); it != roster.end(); ++it) {
        Entity_Fighter &man = it.value();
        if (man.number(Entity_Fighter::ContractFightsLeft) >= RenewalBelow)
            continue;
        Random::seedFromClock();
        const int draw = qrand();
        if (!wantsFighter(man))
            continue;
        const bool ranOut = man.text(Entity_Fighter::Organisation) == QLatin1String(FreeAgent);
        man.setContract(name(), draw % RenewalSpread + RenewalLeast);
        if (ranOut)
            restoreReigns(man, titles);
        news << man.fullName() + " has renewed his contract with " + name();
        ++renewed;
    }
    return renewed;
}

QList<Entity_Fighter> Entity_Org::releaseFreeAgents()
{
    QList<Entity_Fighter> leaving;
    for (auto it = roster.begin(); it != roster.end();) {
        if (it.value().text(Entity_Fighter::Organisation) != QLatin1String(FreeAgent)) {
            ++it;
            continue;
        }
        const QString fullName = it.value().fullName();
        // a tournament's row stays with him
        vacateFirstTitle([&](const QString &title, const QString &holder) {
            return title.contains(LastingTitle) && holder.contains(fullName);
        });
        leaving.append(it.value());
        it = roster.erase(it);
    }
    return leaving;
}

bool Entity_Org::negotiate(const Entity_GymFighter &man, int fights, int money, int negotiating, QString &message)
{
    if (willingness() == QLatin1String(patience[2])) {
        message = "This company is unwilling to negotiate with you for the time being.";
        return false;
    }
    Random::seedFromClock();
    const bool bad = qrand() % 2 != 0;
    int mood = qrand() % 15 + 1;
    if (bad)
        mood = -mood;
    if (willingness() == QLatin1String(patience[1]))
        mood -= 10;
    return weighOffer(man, mood, fights, money, negotiating, message);
}

bool Entity_Org::weighOffer(const Entity_GymFighter &man, int mood, int fights, int money, int negotiating,
                            QString &message)
{
    const PrestigeTable::Row &level = PrestigeTable::row(prestige());
    const bool oneFight = fights == 1;
    const int reputationLimit = oneFight ? level.oneFightReputation : level.contractReputation;
    const int skillBar = oneFight ? level.oneFightSkill : level.contractSkill;
    const auto marketable = [&] {
        for (const MarketabilityRow &row : marketabilityTable) {
            if (row.marketability == man.marketability)
                return mood >= row.moodBelow;
        }
        return true;
    };

    bool accepted = false;
    if (ReputationScale::placeOnPointsScale(man.text(Entity_Fighter::Reputation)) > reputationLimit)
        message = "Your fighter does not have a good enough reputation for this company.";
    else if (man.skillLevel() + mood < skillBar)
        message = "Your fighter is not at a high enough skill level to be competing in this company.";
    else if (!marketable())
        message = "Your fighter is not marketable enough for the company.\nHe may possess a lack of charisma.";
    else
        accepted = moneyAccepted(man.reputationPoints, mood, fights, money, negotiating, message);
    if (!accepted) {
        const auto step = std::find_if(std::begin(patience), std::end(patience),
                                       [&](const char *level) { return willingness() == QLatin1String(level); });
        if (step != std::end(patience) && step + 1 != std::end(patience))
            setWillingness(*(step + 1));
    }
    return accepted;
}

bool Entity_Org::moneyAccepted(int reputationPoints, int mood, int fights, int money, int negotiating,
                               QString &message) const
{
    int offer = (reputationPoints + 1) * (negotiating + 1) * PrestigeTable::row(prestige()).moneyFactor;
    // a single appearance pays more
    if (fights == 1)
        offer += offer / 2;
    for (const MoodRow &row : moodMoneyTable) {
        if (mood < row.moodBelow) {
            if (row.divisor != 0)
                offer += offer / row.divisor;
            break;
        }
    }
    const int floor = fights == 1 ? OneFightFloor : ContractFloor;
    if (offer <= floor)
        offer += floor;
    if (offer < money) {
        message = "Your money demands are too high.";
        return false;
    }
    return true;
}

bool Entity_Org::operator==(const Entity_Org &other) const
{
    return texts == other.texts && calendar == other.calendar && lastYear == other.lastYear && roster == other.roster &&
           titles == other.titles;
}

QDataStream &operator<<(QDataStream &out, const Entity_Org &organisation)
{
    QStringList strings;
    QList<Entity_Event> events;
    QList<Entity_Event> pastEvents;
    Entity_Org::Roster roster;
    Entity_Org::Titles titles;
    organisation.pack(strings, events, pastEvents, roster, titles);
    StreamForm::writeStringList(out, strings);
    StreamForm::writeList(out, events);
    StreamForm::writeList(out, pastEvents);
    StreamForm::writeMap(out, roster);
    StreamForm::writeMap(out, titles);
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Org &organisation)
{
    QStringList strings;
    QList<Entity_Event> events;
    QList<Entity_Event> pastEvents;
    Entity_Org::Roster roster;
    Entity_Org::Titles titles;
    StreamForm::readFixedStringList(in, strings, Entity_Org::TextCount);
    StreamForm::readList(in, events);
    StreamForm::readList(in, pastEvents);
    StreamForm::readMultiMap(in, roster);
    StreamForm::readMap(in, titles);
    if (in.status() == QDataStream::Ok)
        organisation.unpack(strings, events, pastEvents, roster, titles);
    return in;
}
