#pragma once

#include "persistence/NamedFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class Entity_Event;
class Entity_Fighter;

// The export files in ./Resources/Exports/, one "<full name>.dat" for each man: his plain fighter
// record and nothing else, the one thing that passes between two games. A name stays inside the
// folder or is refused; a file is written whole or not at all; and a file that holds no fighter
// of this game is refused with a reason that a screen can show, the world left as it was.
class FighterExport
{
public:
    // the folder, its paths, the names it takes (each refused in this folder's own words) and
    // the names in it
    static const NamedFiles &files();

    // The gym fighter at that position goes to the file of his full name, through a temporary
    // file that takes the name only when the whole man reached the disk.
    static bool write(int index, QString *reason = nullptr);

    // The man of the file, read whole and checked: an empty, short, foreign or damaged file, or
    // one that holds more than one man, is refused and `man` stays as it was.
    static bool read(const QString &name, Entity_Fighter &man, QString *reason = nullptr);
    static bool fromBytes(const QByteArray &data, Entity_Fighter &man, QString *reason = nullptr);

    // the man of the file joins this world's free agents
    static bool importFreeAgent(const QString &name, QString *reason = nullptr);
    // the man of the file meets the gym fighter at `index` for one night that the world never sees
    static bool importFantasyMatch(const QString &name, int index, Entity_Event &night, QString *reason = nullptr);
};
