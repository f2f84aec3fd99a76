#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Event.h"
#include "world/Entity_Org.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

struct WorldState;

// One day of matchmaking in the whole world. Each organisation in turn looks at its next night:
// a title holder is called up first, then it draws men for the open places, one a day while the
// night is far off and as many as it takes in its last week. Rank position is all that decides
// who may go where: the top of the roster fights for belts and in main events, the rest on the
// undercard, and the user's own men take their turn among them.
class BookingRound
{
public:
    explicit BookingRound(WorldState &world);

    // every organisation's turn, in list order; the news lines in the order of the bookings
    QStringList run();

    // the attempts that each organisation made in the last run, in list order
    QList<int> attemptCounts() const { return attemptsMade; }

    // A night in its last week keeps drawing until its card is complete; a roster too small to
    // fill it would draw for ever, so the organisation gives up after this many attempts and the
    // places stay open.
    static constexpr int LastWeekAttemptLimit = 400;

private:
    // a man who may be put on a card
    struct Candidate {
        int id = 0;
        QString fullName;
        QString lastName;
        bool isGym = false;
    };

    // what an organisation's turn works on: copies of its roster and titles, its next night
    struct Turn {
        Entity_Org &organisation;
        QList<Entity_Fighter> ranked; // the roster in ranking order: index is position
        Entity_Org::Titles titles;
        Entity_Event event;
        QList<int> tried; // roster positions whose attempt failed
    };

    struct Attempt {
        bool booked = false;
        bool fromRoster = false;
        int position = 0;
    };

    void takeTurn(Entity_Org &organisation, int &attempts);
    void bookTitleHolder(Turn &turn);
    Attempt rosterAttempt(Turn &turn);
    Attempt gymAttempt(Turn &turn, const QList<Entity_GymFighter> &gymMen);
    // a roster position near a random place, away from the ones that failed; -1 if none came
    int drawRosterPosition(const Turn &turn) const;
    // whether a "Single Match" must refuse this man
    bool refusesSingle(const Turn &turn, const QString &fullName, int position, bool isGym) const;
    // puts him on the card with his news line, the new name and the user's link to the night
    bool book(Turn &turn, const Candidate &man, const QString &matchType, bool dropOffers);
    QList<Entity_GymFighter> gymMenOf(const QString &organisationName) const;
    static int gymPosition(const Turn &turn, const Entity_Fighter &man);
    static Candidate candidate(const Entity_Fighter &man, bool isGym);

    WorldState &world;
    const QDate today;
    QStringList news;
    QList<int> attemptsMade;
};
