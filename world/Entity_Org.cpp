#include "world/Entity_Org.h"

#include "fighters/StreamForm.h"

#include <algorithm>

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

void Entity_Org::refreshReputations()
{
    for (Entity_Fighter &fighter : roster)
        fighter.updateReputationFromRanking();
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
