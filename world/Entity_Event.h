#pragma once

#include "world/Entity_Match.h"

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <initializer_list>

// One night of one organisation: its name, its date and a card of slots, the main event last.
// The card is filled day by day; once fought, the night keeps its result lines until the calendar
// rolls over into the next year.
class Entity_Event
{
public:
    enum Text : int { Name, OrganisationName, City, Prestige, EventType, Title, TextCount };

    // the organisation of a one-night bout against a man of another game, which the world never sees
    static constexpr const char *FantasyOrganisation = "Fantasy Match";

    Entity_Event() = default;
    // the six strings in the order of the enum, the date and the card; no results, not booked
    Entity_Event(const QStringList &strings, const QDate &date, const QList<Entity_Match> &matches);

    void pack(QStringList &strings, QDate &date, QList<Entity_Match> &matches, QStringList &results,
              bool &userBooked) const;
    // nothing is checked: the list must hold six strings
    void unpack(const QStringList &strings, const QDate &date, const QList<Entity_Match> &matches,
                const QStringList &results, bool userBooked);

    QString text(Text field) const { return texts[field]; }
    QString name() const { return texts[Name]; }
    QString organisationName() const { return texts[OrganisationName]; }
    QString city() const { return texts[City]; }
    QString prestige() const { return texts[Prestige]; }
    QString eventType() const { return texts[EventType]; }
    QString title() const { return texts[Title]; }
    QDate date() const { return eventDate; }
    QList<Entity_Match> matches() const { return card; }
    int matchCount() const { return int(card.size()); }
    // a default slot for a position off the card
    Entity_Match matchAt(int index) const { return card.value(index); }
    QStringList results() const { return resultLines; }
    bool isUserBooked() const { return userBooked; }
    bool isFantasyMatch() const { return texts[OrganisationName] == QLatin1String(FantasyOrganisation); }

    bool hasQualifier() const;
    bool hasChampionship() const;
    bool hasTournamentRounds() const;
    // every match but the main event is filled
    bool undercardFilled() const;
    bool cardFilled() const;
    bool singlesFilled() const;
    bool championshipsFilled() const;
    // qualifiers and quarterfinals; the later rounds fill while the night runs
    bool tournamentSlotsFilled() const;
    // a filled place of the card holds this id
    bool holdsFighter(int id) const;

    bool addFighter(int id, const QString &name, const QString &matchType, bool isGymFighter);
    void removeFighter(int id, bool isGymFighter);
    // the main event gives the night its name as it fills up; the man just booked is known by his
    // id, so a namesake on the undercard leaves the name alone
    void rename(int fighterId, const QString &lastName);
    // the same night one year on, with an empty card
    void rollOver();
    void addResults(const QStringList &lines) { resultLines.append(lines); }

    bool operator==(const Entity_Event &other) const;

private:
    bool holdsType(std::initializer_list<const char *> types) const;
    bool typesFilled(std::initializer_list<const char *> types) const;
    // a tournament's semifinal or final on a tournament card: the one way onto a card twice
    bool isLaterRound(const QString &matchType) const;

    std::array<QString, TextCount> texts;
    QDate eventDate;
    QList<Entity_Match> card;
    QStringList resultLines;
    bool userBooked = false;
};

QDataStream &operator<<(QDataStream &out, const Entity_Event &event);
QDataStream &operator>>(QDataStream &in, Entity_Event &event);
