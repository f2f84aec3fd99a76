#include "world/OrgTable.h"

namespace {

struct OrgRow {
    const char *key;
    const char *name;
};

constexpr OrgRow organisations[OrgTable::Count] = {
    {"G1", "G-1"},
    {"Genesis", "Genesis"},
    {"KingsStadium", "King's Stadium"},
    {"GKO", "GKO"},
    {"EPIC", "EPIC"},
    {"Ironheart", "Ironheart FC"},
    {"RedStorm", "Red Storm Global"},
    {"Albion", "Albion FC"},
    {"Dubai", "Dubai FC"},
    {"SantaMaria", "Santa Maria FC"},
    {"Valhalla", "Valhalla"},
    {"TieLong", "Tie Long"},
    {"PomwareeStadium", "Pomwaree Stadium"},
    {"KingsOfRio", "Kings Of Rio"},
    {"DaichiSenshu", "Daichi Senshu"},
    {"Centurion", "Centurion"},
    {"NorthStar", "North Star"},
    {"IvoryThrone", "Ivory Throne"},
};

bool onTable(int index)
{
    return index >= 0 && index < OrgTable::Count;
}

} // namespace

QString OrgTable::key(int index)
{
    return onTable(index) ? QString(organisations[index].key) : QString();
}

QString OrgTable::name(int index)
{
    return onTable(index) ? QString(organisations[index].name) : QString();
}

QStringList OrgTable::keys()
{
    QStringList list;
    for (const OrgRow &row : organisations)
        list.append(row.key);
    return list;
}

QStringList OrgTable::names()
{
    QStringList list;
    for (const OrgRow &row : organisations)
        list.append(row.name);
    return list;
}

QString OrgTable::keyOf(const QString &name)
{
    return key(int(names().indexOf(name)));
}

QString OrgTable::nameOf(const QString &key)
{
    return name(int(keys().indexOf(key)));
}
