#pragma once

#include "common/SavedWorld.h"
#include "common/Streamed.h" // a value in the stream form of the game's files
#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/FighterGenerator.h"
#include "fighters/StreamForm.h"
#include "persistence/DefaultWorld.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"
#include "world/WorldState.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// Helpers for the tests of saves and of the default data.
namespace PersistenceKit {

// the running world in the form of a save file
inline QByteArray worldBytes()
{
    return GameManager::instance().state().bytes();
}

// every man of the world outside the gym: the rosters, the free agents, the amateurs
inline QList<Entity_Fighter> worldMen(const WorldState &world)
{
    QList<Entity_Fighter> men;
    for (const Entity_Org &org : world.organisations) {
        Entity_Org::Roster roster;
        org.rosterCopy(roster);
        men += roster.values();
    }
    return men + world.freeAgents.values() + world.amateurs.values();
}

inline QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

// a man as the game makes him, so that everything of him is of this game
inline Entity_Fighter man(const QString &first, const QString &last, int id, int score)
{
    FighterGenerator::Recipe recipe;
    recipe.today = QDate(2011, 1, 1);
    Entity_Fighter fighter = FighterGenerator::makePerson({4, "Japan"}, first, last, recipe);
    fighter.setId(id);
    fighter.addToRankingScore(score - fighter.getRankingScore());
    return fighter;
}

// a fighter of the gym with a career: three nights, two of them on one date, a belt and a bio
// of several lines; and the second block that only the gym's men have
inline Entity_GymFighter gymMan(const QString &first, const QString &last, int id, const QString &organisation)
{
    Entity_GymFighter pro(man(first, last, id, 5400));
    pro.unpackExtras({2, 1, 4, 3, 61, 455, 2500}, QList<int>(Entity_GymFighter::ProgressCount, 33), {"a day"});
    pro.setContract(organisation, organisation == "Free Agent" ? 0 : 3, 2500);
    pro.setNumber(Entity_Fighter::Wins, 7);
    pro.setNumber(Entity_Fighter::Losses, 2);
    pro.setNumber(Entity_Fighter::Kos, 5);
    pro.addHistoryEntry(QDate(2011, 5, 2), "Win: A One - KO(Jab) - Rd. 1(0:40) - GKO: GKO Spring");
    pro.addHistoryEntry(QDate(2011, 5, 2), "Win: B Two - Decision - Rd. 3(3:00) - GKO: GKO Spring");
    pro.addHistoryEntry(QDate(2011, 8, 9), "Loss: C Three - TKO(Knee) - Rd. 2(2:02) - GKO: GKO Summer");
    pro.setTitleList({"GKO 2011 Grand Prix"});
    pro.setBio("New Fighter\nHard Hitter\n\nTook the spring by storm.");
    return pro;
}

// a world of a gym with these men, and some men of the world beside them
inline SavedWorld worldWith(const QList<Entity_GymFighter> &fighters, int nextId)
{
    SavedWorld world;
    world.nextId = nextId;
    world.currentDate = QDate(2012, 2, 3);
    world.fighters = fighters;
    for (const Entity_GymFighter &fighter : fighters)
        world.bookings << Entity_Booking::emptyFor(fighter.getId(), fighter.fullName(), world.currentDate);
    world.freeAgents.insert(6000, man("Free", "Agent", 300, 6000));
    world.amateurs.insert(9000, man("Young", "Amateur", 301, 9000));
    return world;
}

// a test in a folder of its own, so that saves and hand-made files stay out of the game's
class WorkingFolder
{
public:
    WorkingFolder()
        : previous(QDir::currentPath())
    {
        QDir::setCurrent(folder.path());
    }
    ~WorkingFolder() { QDir::setCurrent(previous); }
    QString path() const { return folder.path(); }

private:
    QTemporaryDir folder;
    QString previous;
};

} // namespace PersistenceKit
