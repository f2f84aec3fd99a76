#include "persistence/NamedFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// a file name of most file systems holds up to 255 bytes, ".dat" included
constexpr int LongestName = 255 - 4;

int faultOf(const QString &name)
{
    if (name.isEmpty())
        return NamedFiles::Empty;
    if (name.startsWith('.'))
        return NamedFiles::LeadingDot;
    for (const QChar c : name) {
        if (c == '/' || c == '\\')
            return NamedFiles::Separator;
        if (c.category() == QChar::Other_Control)
            return NamedFiles::ControlCharacter;
    }
    if (name.toUtf8().size() > LongestName)
        return NamedFiles::TooLong;
    return -1;
}

} // namespace

NamedFiles::NamedFiles(const QString &folder, const Refusals &refusals)
    : path(folder)
    , refusals(refusals)
{
}

QString NamedFiles::pathOf(const QString &name) const
{
    return path + name + QStringLiteral(".dat");
}

bool NamedFiles::isValidName(const QString &name, QString *reason) const
{
    const int fault = faultOf(name);
    if (fault < 0)
        return true;
    if (reason) {
        const QString text = QString::fromUtf8(refusals[fault]);
        *reason = text.contains(QLatin1String("%1")) ? text.arg(name) : text;
    }
    return false;
}

bool NamedFiles::exists(const QString &name) const
{
    return isValidName(name) && QFileInfo(pathOf(name)).isFile();
}

bool NamedFiles::canOpen(const QString &name) const
{
    if (!isValidName(name))
        return false;
    QFile file(pathOf(name));
    return file.open(QIODevice::ReadOnly);
}

QStringList NamedFiles::names() const
{
    QDir().mkpath(path);
    QStringList names;
    const QStringList files = QDir(path).entryList({"*.dat"}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        names.append(file.chopped(4));
    return names;
}
