#pragma once

#include "persistence/NamedFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// The saved games in ./Resources/Saves/, one file "<name>.dat" for each: the whole world as one
// stream. A name is what the user typed; it stays inside the folder and in its list, or is
// refused. Every refusal comes with a reason that a screen can show.
class SaveFile
{
public:
    // the folder, its paths, the names it takes (each refused in this folder's own words) and
    // the names in it
    static const NamedFiles &files();

    // The running world goes to the file through a temporary one that takes its name only when
    // the whole world reached the disk; an old save of that name stays until then.
    static bool save(const QString &name, QString *reason = nullptr);
    // The whole file is read into a world of its own, which replaces the running one only when
    // it read clean to the last byte; a missing, empty, short, foreign or damaged file is refused
    // and the running world stays exactly as it was.
    static bool load(const QString &name, QString *reason = nullptr);
    static bool remove(const QString &name, QString *reason = nullptr);

    // the same work on a path of any folder, and on a save's bytes
    static bool saveTo(const QString &path, QString *reason = nullptr);
    static bool loadFrom(const QString &path, QString *reason = nullptr);
    static bool loadBytes(const QByteArray &data, QString *reason = nullptr);
};
