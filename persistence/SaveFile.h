#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QDataStream;

// The saved games in ./Resources/Saves/, one file "<name>.dat" for each: the whole world as one
// stream. A name is what the user typed; it stays inside the folder or is refused. Every refusal
// comes with a reason that a screen can show.
class SaveFile
{
public:
    static QString folder();
    static QString pathOf(const QString &name);

    // A name holds no path separator or control character, is not "." or "..", is not empty and
    // fits a file name, so the file can only lie in the folder of the saves.
    static bool isValidName(const QString &name, QString *reason = nullptr);
    static bool exists(const QString &name);
    static bool canOpen(const QString &name);
    // the names of the saved games, sorted, without ".dat"; the folder is made when missing
    static QStringList savedGames();

    // The running world goes to the file through a temporary one that takes its name only when
    // the whole world reached the disk; an old save of that name stays until then.
    static bool save(const QString &name, QString *reason = nullptr);
    // The world of the file replaces the running one, or the file is refused and the running
    // world stays exactly as it was: a missing, empty, short, foreign or damaged file.
    static bool load(const QString &name, QString *reason = nullptr);
    static bool remove(const QString &name, QString *reason = nullptr);

    // the same work on a path of any folder, and with any writer in place of the world
    static bool saveTo(const QString &path, QString *reason = nullptr);
    static bool saveTo(const QString &path, const std::function<void(QDataStream &)> &write, QString *reason);
    static bool loadFrom(const QString &path, QString *reason = nullptr);
};
