#include "world/Entity_Event.h"

#include "fighters/StreamForm.h"

#include <algorithm>

namespace {

bool isOneOf(const QString &type, std::initializer_list<const char *> types)
{
    return std::any_of(types.begin(), types.end(), [&](const char *t) { return type == QLatin1String(t); });
}

} // namespace

Entity_Event::Entity_Event(const QStringList &strings, const QDate &date, const QList<Entity_Match> &matches)
{
    unpack(strings, date, matches, {}, false);
}

void Entity_Event::pack(QStringList &strings, QDate &date, QList<Entity_Match> &matches, QStringList &results,
                        bool &booked) const
{
    strings = QStringList(texts.cbegin(), texts.cend());
    date = eventDate;
    matches = card;
    results = resultLines;
    booked = userBooked;
}

void Entity_Event::unpack(const QStringList &strings, const QDate &date, const QList<Entity_Match> &matches,
                          const QStringList &results, bool booked)
{
    std::copy_n(strings.cbegin(), TextCount, texts.begin());
    eventDate = date;
    card = matches;
    resultLines = results;
    userBooked = booked;
}

bool Entity_Event::holdsType(std::initializer_list<const char *> types) const
{
    return std::any_of(card.cbegin(), card.cend(),
                       [&](const Entity_Match &m) { return isOneOf(m.matchType(), types); });
}

bool Entity_Event::typesFilled(std::initializer_list<const char *> types) const
{
    return std::all_of(card.cbegin(), card.cend(),
                       [&](const Entity_Match &m) { return !isOneOf(m.matchType(), types) || m.isFilled(); });
}

bool Entity_Event::hasQualifier() const
{
    return holdsType({Entity_Match::TournamentQualifier});
}

bool Entity_Event::hasChampionship() const
{
    return holdsType({Entity_Match::ChampionshipMatch});
}

bool Entity_Event::hasTournamentRounds() const
{
    return holdsType(
        {Entity_Match::TournamentQuarterfinal, Entity_Match::TournamentSemifinal, Entity_Match::TournamentFinal});
}

bool Entity_Event::undercardFilled() const
{
    return card.isEmpty() ||
           std::all_of(card.cbegin(), card.cend() - 1, [](const Entity_Match &m) { return m.isFilled(); });
}

bool Entity_Event::cardFilled() const
{
    return std::all_of(card.cbegin(), card.cend(), [](const Entity_Match &m) { return m.isFilled(); });
}

bool Entity_Event::singlesFilled() const
{
    return typesFilled({Entity_Match::SingleMatch});
}

bool Entity_Event::championshipsFilled() const
{
    return typesFilled({Entity_Match::ChampionshipMatch});
}

bool Entity_Event::tournamentSlotsFilled() const
{
    return typesFilled({Entity_Match::TournamentQualifier, Entity_Match::TournamentQuarterfinal});
}

bool Entity_Event::holdsFighter(int id) const
{
    return std::any_of(card.cbegin(), card.cend(), [id](const Entity_Match &m) { return m.holds(id); });
}

bool Entity_Event::isLaterRound(const QString &matchType) const
{
    return hasTournamentRounds() &&
           isOneOf(matchType, {Entity_Match::TournamentSemifinal, Entity_Match::TournamentFinal});
}

bool Entity_Event::addFighter(int id, const QString &name, const QString &matchType, bool isGymFighter)
{
    const bool laterRound = isLaterRound(matchType);
    // a man fights once a night, unless he goes on in the night's tournament
    if (holdsFighter(id) && !laterRound)
        return false;
    // the user places one man on a card, and only a tournament's later rounds may bring a second
    if (isGymFighter && userBooked && !laterRound)
        return false;
    for (Entity_Match &match : card) {
        if (match.matchType() == matchType && match.addFighter(id, name, isGymFighter)) {
            if (!userBooked)
                userBooked = isGymFighter;
            return true;
        }
    }
    return false;
}

void Entity_Event::removeFighter(int id, bool isGymFighter)
{
    for (Entity_Match &match : card) {
        if (match.holds(id)) {
            match.removeFighter(id, isGymFighter);
            if (isGymFighter)
                userBooked = false;
            return;
        }
    }
}

void Entity_Event::rename(int fighterId, const QString &lastName)
{
    // tournament nights keep the name of the data
    if (card.isEmpty() || hasQualifier() || hasTournamentRounds())
        return;
    const Entity_Match &mainEvent = card.last();
    QString &name = texts[Name];
    const QString rest = name.section('.', 1, 1);
    if (mainEvent.fighterTwoId() == fighterId) {
        // a name of the data has no " vs." to fill in
        if (rest.isEmpty())
            return;
        if (rest.contains(Entity_Match::OpenPlace))
            name.replace(Entity_Match::OpenPlace, lastName);
        else
            name.replace(rest, lastName);
    } else if (mainEvent.fighterOneId() == fighterId) {
        // the text after " vs." keeps its leading blank, so a kept opponent stands two blanks away
        const QString opponent =
            mainEvent.fighterTwo() == Entity_Match::OpenPlace ? QString(Entity_Match::OpenPlace) : rest;
        name = texts[OrganisationName] + ": " + lastName + " vs. " + opponent;
    }
}

void Entity_Event::rollOver()
{
    const QDate old = eventDate;
    eventDate = eventDate.addYears(1);
    QString &name = texts[Name];
    if (!name.contains("vs.")) {
        const QString oldYear = QString::number(old.year());
        const QString newYear = QString::number(eventDate.year());
        name.replace(oldYear, newYear);
        if (hasTournamentRounds())
            texts[Title].replace(oldYear, newYear);
    } else {
        name = texts[OrganisationName] + (hasChampionship() ? " Championship Fight" : " Event");
    }
    for (Entity_Match &match : card)
        match.reset();
    resultLines.clear();
    userBooked = false;
}

bool Entity_Event::operator==(const Entity_Event &other) const
{
    return texts == other.texts && eventDate == other.eventDate && card == other.card &&
           resultLines == other.resultLines && userBooked == other.userBooked;
}

QDataStream &operator<<(QDataStream &out, const Entity_Event &event)
{
    QStringList strings;
    QDate date;
    QList<Entity_Match> matches;
    QStringList results;
    bool userBooked = false;
    event.pack(strings, date, matches, results, userBooked);
    StreamForm::writeStringList(out, strings);
    out << date;
    StreamForm::writeList(out, matches);
    StreamForm::writeStringList(out, results);
    out << userBooked;
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_Event &event)
{
    QStringList strings;
    QDate date;
    QList<Entity_Match> matches;
    QStringList results;
    bool userBooked = false;
    StreamForm::readFixedStringList(in, strings, Entity_Event::TextCount);
    in >> date;
    StreamForm::readList(in, matches);
    StreamForm::readStringList(in, results);
    in >> userBooked;
    if (in.status() == QDataStream::Ok)
        event.unpack(strings, date, matches, results, userBooked);
    return in;
}
