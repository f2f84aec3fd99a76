#include "world/PrestigeTable.h"

#include <climits>

namespace {

constexpr int NoLimit = INT_MAX;
constexpr int NoBar = INT_MIN;

constexpr PrestigeTable::Row prestigeTable[] = {
    // prestige, signing band, famous below, reputation limits, skill bars, money, purse, offer label
    {"Elite", 70, INT_MAX, 2, 1, 2, 76, 61, 10, 5, "World Class"},
    {"World Class", 56, 77, 4, 3, 4, 61, 46, 8, 4, "Contender"},
    {"International", 41, 62, 6, 5, 6, 46, 31, 6, 3, "Nationally Ranked"},
    {"National", 26, 47, 8, 7, NoLimit, 31, 16, 4, 2, "Local Fighter"},
    {"Regional", 10, 32, 10, NoLimit, NoLimit, 10, 0, 2, 1, "Unknown"},
};

constexpr PrestigeTable::Row outsideTheLevels = {"",    INT_MIN, INT_MAX, NoLimit, NoLimit, NoLimit,
                                                 NoBar, NoBar,   0,       0,       ""};

} // namespace

const PrestigeTable::Row &PrestigeTable::row(const QString &prestige)
{
    for (const Row &level : prestigeTable) {
        if (prestige == QLatin1String(level.prestige))
            return level;
    }
    return outsideTheLevels;
}
