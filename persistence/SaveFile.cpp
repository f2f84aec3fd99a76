#include "persistence/SaveFile.h"

#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "world/GameManager.h"

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

// the running world as it stands, to put back after a file that the reader took but that
// holds more than a world
QByteArray worldBytes()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    GameManager::instance().writeTo(out);
    return bytes;
}

void restoreWorld(const QByteArray &bytes)
{
    QDataStream in(bytes);
    in.setVersion(StreamForm::version);
    GameManager::instance().readFrom(in);
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
    if (name == QLatin1String(".") || name == QLatin1String("..")) {
        tell(reason, QStringLiteral("\".\" and \"..\" can't be the name of a save."));
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
    return saveTo(
        path, [](QDataStream &out) { GameManager::instance().writeTo(out); }, reason);
}

bool SaveFile::saveTo(const QString &path, const std::function<void(QDataStream &)> &write, QString *reason)
{
    return DataFile::write(path, write, reason);
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
    if (file.size() == 0) {
        tell(reason, QStringLiteral("The file is empty."));
        return false;
    }
    const QByteArray before = worldBytes();
    QDataStream in(&file);
    in.setVersion(StreamForm::version);
    if (!GameManager::instance().readFrom(in, reason))
        return false;
    if (!in.atEnd()) {
        // nothing follows the world in a saved game
        restoreWorld(before);
        tell(reason, QStringLiteral("The file holds more than a saved game."));
        return false;
    }
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
