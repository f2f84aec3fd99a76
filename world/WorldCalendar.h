#pragma once

#include "world/Entity_Event.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

struct WorldState;

// The date and the nights of every organisation's calendar: what is fought today, the results of
// a night, the booking of the cards, the tournaments and the move to a new year.
class WorldCalendar
{
public:
    explicit WorldCalendar(WorldState &world);

    QDate getCurrentDate() const;
    void advanceDate();
    // today's events without a fighter of the user, in organisation order, then calendar order
    QList<Entity_Event> todaysWorldEvents() const;
    // today's events with a fighter of the user that have not been fought yet
    QList<Entity_Event> todaysUserEvents() const;
    // the lines go into today's event of that name; the organisation is willing again
    void storeEventResults(const QStringList &lines, const QString &eventName, const QString &orgName);
    // every organisation books men for its next night; the news lines in the order of the bookings
    QStringList bookEvents();
    // the first of January: every organisation's calendar moves on a year
    void rollOverEvents();

    // A tournament is a shape of an organisation's calendar: a night of qualifiers, then a finals
    // night of quarterfinals, semifinals and the final. The winner of each round before the final
    // is carried on at once into the first open place of the next round, so the order of the
    // results makes the bracket. This places him and gives the news line; an empty text when the
    // id is neither in the roster nor in the gym. A full card sends him to the organisation's next
    // night; tonight's card keeps him while it has room.
    QString advanceTournamentWinner(int winnerId, const QString &orgName);

private:
    // every event of every calendar that passes the test, in organisation and calendar order
    template <typename Test> QList<Entity_Event> eventsWhere(Test test) const;

    WorldState &world;
};
