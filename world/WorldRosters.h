#pragma once

#include "fighters/Entity_Fighter.h"
#include "world/Entity_Org.h"

#include <QMultiMap>
#include <QString>
#include <QStringList>

#include <functional>

struct WorldState;

// The organisations and the men of the world: rosters, rankings, careers, titles and
// reputations, the pools of free agents and amateurs, the signing of free agents, and the ageing
// of the world: birthdays, retirements, amateurs who turn professional and new talent.
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

    struct Ageing {
        int retirements = 0;
        int newProfessionals = 0;
        int newTalent = 0;
    };
    // Every man of the world may have his birthday tonight and grow or decline by it, and an old
    // man may retire: at most four of an organisation in a night. Amateurs of 18 join the end of
    // the free agents. From 2021 on, a free agent list short of 20 men gets one new man a night,
    // whom `makeNewTalent` makes and names (an empty name when it could make nobody).
    Ageing ageWorld(QStringList &news, const std::function<QString()> &makeNewTalent);

private:
    WorldState &world;
};
