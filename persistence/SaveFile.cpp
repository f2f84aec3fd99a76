#include "persistence/SaveFile.h"

#include "persistence/DataFile.h"
#include "persistence/NamedFiles.h"
#include "world/GameManager.h"
#include "world/WorldState.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

void tell(QString *reason, const QString &text)
{
    if (reason)
        *reason = text;
}

} // namespace

const NamedFiles &SaveFile::files()
{
    static const NamedFiles saves(QStringLiteral("./Resources/Saves/"),
                                  {"Please specify a file name for your save.",
                                   "The name of a save can't start with \".\": such a file would be hidden from the "
                                   "list of saved games.",
                                   "The name of a save can't hold \"/\" or \"\\\".",
                                   "The name of a save can't hold control characters.",
                                   "That name is too long for a save."});
    return saves;
}

bool SaveFile::save(const QString &name, QString *reason)
{
    if (!files().isValidName(name, reason))
        return false;
    if (!QDir().mkpath(files().folder())) {
        tell(reason, QStringLiteral("The folder of the saves can't be made."));
        return false;
    }
    return saveTo(files().pathOf(name), reason);
}

bool SaveFile::saveTo(const QString &path, QString *reason)
{
    return DataFile::write(
        path, [](QDataStream &out) { GameManager::instance().state().write(out); }, reason);
}

bool SaveFile::load(const QString &name, QString *reason)
{
    if (!files().isValidName(name, reason))
        return false;
    return loadFrom(files().pathOf(name), reason);
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
    if (!files().isValidName(name, reason))
        return false;
    QFile file(files().pathOf(name));
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
