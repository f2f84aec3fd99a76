#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"

#include "common/SavedWorld.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// Helpers for the tests of saves, default data and the generator of new persons.
namespace PersistenceKit {

// the running world in the form of a save file
inline QByteArray worldBytes()
{
    return SavedWorld::runningBytes();
}

// The eleven fields of a world, as a save file holds them: a copy of the running world, or made
// by hand and put in its place.
struct World : SavedWorld {
    static World running()
    {
        World world;
        static_cast<WorldState &>(world) = SavedWorld::running();
        return world;
    }

    // every man of the world outside the gym: the rosters, the free agents, the amateurs
    QList<Entity_Fighter> worldMen() const
    {
        QList<Entity_Fighter> men;
        for (const Entity_Org &org : organisations) {
            Entity_Org::Roster roster;
            org.rosterCopy(roster);
            men += roster.values();
        }
        return men + freeAgents.values() + amateurs.values();
    }
};

inline bool defaultsPresent()
{
    return QFile::exists("./Resources/Defaults/default_nations.dat");
}

// a manager of that nation and region with all his points in the given abilities, and a gym
inline void setUser(const QString &nation, const QString &region, int intuition = 5, int studentSlots = 3)
{
    GameManager &game = GameManager::instance();
    QList<int> managerValues(Entity_Manager::ValueCount, 0);
    managerValues[Entity_Manager::Intuition] = intuition;
    game.setManager({"Ken", "Saito", region, nation, "Unknown"}, managerValues, {});
    QList<int> gymValues(Entity_Gym::ValueCount, 0);
    gymValues[Entity_Gym::Money] = 10000;
    gymValues[Entity_Gym::StudentSlots] = studentSlots;
    gymValues[Entity_Gym::FighterSlots] = 3;
    game.setGym({"Tiger Den", "Muay Thai", "Gold", "Black", "Unknown"}, gymValues,
                QList<int>(Entity_Gym::LedgerCount, 0));
}

// Runs a test in a folder of its own, so that saves and hand-made default files stay out of the
// folder the game runs in; the old working folder comes back at the end.
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
