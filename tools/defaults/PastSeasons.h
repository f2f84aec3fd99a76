#pragma once

#include "SourceData.h"

#include "fighters/Entity_Fighter.h"
#include "world/Entity_Event.h"
#include "world/Entity_Org.h"

#include <QList>
#include <QMap>
#include <QSet>

// The years before the first day, fought out night by night on an organisation's calendar, so
// that every man carries a career whose lines, record, titles and ranking agree with each other
// and with those of the men he met. The results are written as the game writes them: the same
// result lines, career entries, title reigns and rank moves.
class PastSeasons
{
public:
    struct Member {
        Entity_Fighter man;
        int skill = 0;
        int debut = 0; // the year of his first fight
        int score = 0; // his running ranking value
        bool active = false;
    };

    PastSeasons(const SourceData::Organisation &organisation, QList<Member> &members, int firstYear, int lastYear);
    void run();

    // the nights of the last year as they were fought, for the promotion's list of recent events
    QList<Entity_Event> lastYearNights() const { return lastNights; }
    // the title rows on the first day: the lasting title and last year's tournament
    Entity_Org::Titles titles() const;

private:
    using Pair = QPair<int, int>; // two members, -1 for an open place

    void fightNight(const SourceData::Night &night, int year, const QString &nextNightName);
    void activate(int year);
    QList<int> ranking() const;
    // the matches of the card that the night can fill, place by place; later rounds stay open
    QList<Pair> drawCard(const QStringList &card, const QList<int> &order, QSet<int> &used);
    // two men of the ranking that fight each other: one of `pool`, then his nearest neighbour
    Pair neighbours(const QList<int> &pool, QSet<int> &used) const;
    // the match itself: the winner, his line and both entries
    int fight(const Pair &pair, const QString &matchType, const QDate &date, const QString &nightName,
              const QString &title, QStringList &results);

    const SourceData::Organisation &org;
    QList<Member> &members;
    int firstYear;
    int lastYear;
    int holder = -1;                 // the man who holds the lasting title
    QList<int> qualifierWinners;     // waiting for the finals night
    QMap<int, int> grandPrixWinners; // year to winner
    QList<Entity_Event> lastNights;
};
