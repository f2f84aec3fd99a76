#include "persistence/SaveFile.h"

#include "persistence/DataFile.h"
#include "world/GameManager.h"
#include "world/WorldState.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// a file name of most file systems holds up to 255 bytes, ".dat" included
constexpr int LongestName = 255 - 4;

void tell(QString *reason, const QString &text)
{
    if (reason)
        *reason = text;
}

} // namespace

QString SaveFile::folder()
{
    return QStringLiteral("./Resources/Saves/");
}

QString SaveFile::pathOf(const QString &name)
{
    return folder() + name + QStringLiteral(".dat");
}

bool SaveFile::isValidName(const QString &name, QString *reason)
{
    if (name.isEmpty()) {
        tell(reason, QStringLiteral("Please specify a file name for your save."));
        return false;
    }
    if (name.startsWith('.')) {
        tell(reason, QStringLiteral("The name of a save can't start with \".\": such a file would be hidden "
                                    "from the list of saved games."));
        return false;
    }
    for (const QChar c : name) {
        if (c == '/' || c == '\\') {
            tell(reason, QStringLiteral("The name of a save can't hold \"/\" or \"\\\"."));
            return false;
        }
        if (c.category() == QChar::Other_Control) {
            tell(reason, QStringLiteral("The name of a save can't hold control characters."));
            return false;
        }
    }
    if (name.toUtf8().size() > LongestName) {
        tell(reason, QStringLiteral("That name is too long for a save."));
        return false;
    }
    return true;
}

bool SaveFile::exists(const QString &name)
{
    return isValidName(name) && QFileInfo(pathOf(name)).isFile();
}

bool SaveFile::canOpen(const QString &name)
{
    if (!isValidName(name))
        return false;
    QFile file(pathOf(name));
    return file.open(QIODevice::ReadOnly);
}

QStringList SaveFile::savedGames()
{
    QDir().mkpath(folder());
    QStringList names;
    const QStringList files = QDir(folder()).entryList({"*.dat"}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        names.append(file.chopped(4));
    return names;
}

bool SaveFile::save(const QString &name, QString *reason)
{
    if (!isValidName(name, reason))
        return false;
    if (!QDir().mkpath(folder())) {
        tell(reason, QStringLiteral("The folder of the saves can't be made."));
        return false;
    }
    return saveTo(pathOf(name), reason);
}

bool SaveFile::saveTo(const QString &path, QString *reason)
{
    return DataFile::write(
        path, [](QDataStream &out) { GameManager::instance().state().write(out); }, reason);
}

bool SaveFile::load(const QString &name, QString *reason)
{
    if (!isValidName(name, reason))
        return false;
    return loadFrom(pathOf(name), reason);
}

bool SaveFile::loadFrom(const QString &path, QString *reason)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        tell(reason, QStringLiteral("There is no saved game of that name."));
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        tell(reason, file.errorString());
        return false;
    }
    return loadBytes(file.readAll(), reason);
}

bool SaveFile::loadBytes(const QByteArray &data, QString *reason)
{
    WorldState world;
    if (!WorldState::fromBytes(data, world, reason))
        return false;
    GameManager::instance().takeWorld(world);
    return true;
}

bool SaveFile::remove(const QString &name, QString *reason)
{
    if (!isValidName(name, reason))
        return false;
    QFile file(pathOf(name));
    if (!file.exists()) {
        tell(reason, QStringLiteral("There is no saved game of that name."));
        return false;
    }
    if (!file.remove()) {
        tell(reason, file.errorString());
        return false;
    }
    return true;
}
