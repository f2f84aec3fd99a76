#pragma once

#include <QString>
#include <QStringList>

#include <array>

// A folder of "<name>.dat" files whose names come from the user or from a man: the saves and the
// exports. A name is no path: it is not empty, starts with no "." (the file would be hidden from
// the folder's list, and ".." leads out of it), holds no "/", "\" or control character and fits a
// file name, so its file can only lie in the folder and in its list. Each folder tells a refused
// name in its own words.
class NamedFiles
{
public:
    enum Fault { Empty, LeadingDot, Separator, ControlCharacter, TooLong, FaultCount };
    // a refusal for each fault; "%1" stands for the name where a text holds it
    using Refusals = std::array<const char *, FaultCount>;

    NamedFiles(const QString &folder, const Refusals &refusals);

    const QString &folder() const { return path; }
    QString pathOf(const QString &name) const;

    bool isValidName(const QString &name, QString *reason = nullptr) const;
    bool exists(const QString &name) const;
    bool canOpen(const QString &name) const;
    // the names of the files, sorted, without ".dat"; the folder is made when missing
    QStringList names() const;

private:
    QString path;
    Refusals refusals;
};
