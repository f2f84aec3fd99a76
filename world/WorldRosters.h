#pragma once

#include "fighters/Entity_Fighter.h"
#include "world/Entity_Org.h"

#include <QMultiMap>
#include <QString>
#include <QStringList>

struct WorldState;

// The organisations and the men of the world: rosters, rankings, careers, titles and
// reputations, the pools of free agents and amateurs, and the signing of free agents. The world's
// ageing joins this room.
class WorldRosters
{
public:
    explicit WorldRosters(WorldState &world);

    QStringList organisationNames() const;
    // the seven strings: name, chief, nation, note, prestige, bio, willingness
    QStringList organisationTexts(const QString &orgName) const;
    // a copy of the whole organisation; a default one for an unknown name
    Entity_Org organisation(const QString &orgName) const;
    // ranking score to full name, the user's fighters under contract there included
    void organisationRanking(const QString &orgName, QMultiMap<int, QString> &ranking) const;
    Entity_Fighter rosterFighter(const QString &orgName, int id) const;
    void addRankingScore(const QString &orgName, int id, int delta);
    // a result entry into a roster fighter's career, dated today
    void recordRosterMatch(const QString &orgName, int id, const QString &entry, const QString &matchType);
    // after a championship match or a tournament final: the winner holds the title's row
    void setTitleHolder(const QString &orgName, const QString &title, int winnerId, bool isGymFighter);
    // the first of January, before the calendars move: the title rows of the year before last go
    void dropOldTitles();
    void refreshReputations(const QString &orgName);

    // the world's pools of men without an organisation
    int freeAgentCount() const;
    int amateurCount() const;
    // a copy; a default record for an id that no amateur holds
    Entity_Fighter amateurById(int id) const;

    // Each organisation in turn looks through the free agents in their order: one whose roster is
    // short takes anybody whom its test takes, a full one only the famous; the men signed are
    // counted.
    int signFreeAgents(QStringList &news);

private:
    WorldState &world;
};
