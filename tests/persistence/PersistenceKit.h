#pragma once

#include "common/Streamed.h"
#include "fighters/Entity_Fighter.h"
#include "fighters/StreamForm.h"
#include "persistence/DefaultWorld.h"
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

// a value in the stream form of the game's files
using ::streamed;

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
