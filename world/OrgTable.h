#pragma once

#include <QString>
#include <QStringList>

// The eighteen organisations of the world, in their fixed order: the key of each default file
// and the name that the game shows.
class OrgTable
{
public:
    static constexpr int Count = 18;

    static QString key(int index);
    static QString name(int index);
    static QStringList keys();
    static QStringList names();
    // "" for a name or key that the table doesn't hold
    static QString keyOf(const QString &name);
    static QString nameOf(const QString &key);
};
