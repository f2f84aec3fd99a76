#include "fighters/NationTable.h"

#include <algorithm>
#include <array>

namespace {

enum Region { NorthAmerica, SouthAmerica, WesternEurope, EasternEurope, Africa, MiddleEast, EastAsia, Oceania };

// the main list by its index, with the family that each nation's men carry
struct MainRow {
    const char *nation;
    const char *family;
};

// clang-format off
constexpr MainRow mainNations[NationTable::MainCount] = {
    // North America, 0 to 1
    {"Canada", "anglo"}, {"United States", "anglo"},
    // South America, 2 to 4
    {"Argentina", "hispanic"}, {"Brazil", "portuguese"}, {"Mexico", "hispanic"},
    // Western Europe, 5 to 15
    {"Denmark", "scandinavian"}, {"England", "british"}, {"Finland", "scandinavian"}, {"France", "french"},
    {"Germany", "germanic"}, {"Greece", "greek"}, {"Italy", "italian"}, {"Netherlands", "dutch"},
    {"Norway", "scandinavian"}, {"Spain", "hispanic"}, {"Sweden", "scandinavian"},
    // Eastern Europe, 16 to 18
    {"Croatia", "balkan"}, {"Russia", "russian"}, {"Serbia", "balkan"},
    // Africa, 19 to 22
    {"Cameroon", "african"}, {"Ghana", "african"}, {"Ivory Coast", "african"}, {"South Africa", "dutch"},
    // Middle East, 23 to 27
    {"Egypt", "arab"}, {"Israel", "israeli"}, {"Turkey", "turkic"}, {"Saudi Arabia", "arab"},
    {"United Arab Emirates", "arab"},
    // East Asia, 28 to 30
    {"China", "chinese"}, {"Japan", "japanese"}, {"South Korea", "korean"},
    // Oceania, 31 to 33
    {"Australia", "anglo"}, {"New Zealand", "anglo"}, {"Thailand", "thai"},
};
// clang-format on

// the first index of the main list that belongs to each region; the list runs in region order
constexpr int firstMainOfRegion[NationTable::RegionCount] = {0, 2, 5, 16, 19, 23, 28, 31};

// A nation's place in its region's list names the family of its men; a place that no row names
// takes the row without places, the common family of the region.
struct FamilyRow {
    Region region;
    std::array<int, 5> places;
    int placeCount;
    const char *family;
};

constexpr FamilyRow familyRows[] = {
    {NorthAmerica, {0, 1, 5, 11}, 4, "anglo"},
    {NorthAmerica, {2, 3, 4, 8}, 4, "hispanic"},
    {NorthAmerica, {6}, 1, "french"},
    {NorthAmerica, {}, 0, "british"},
    {SouthAmerica, {2}, 1, "portuguese"},
    {SouthAmerica, {}, 0, "hispanic"},
    {WesternEurope, {0, 1, 6, 18}, 4, "germanic"},
    {WesternEurope, {5}, 1, "french"},
    {WesternEurope, {7}, 1, "greek"},
    {WesternEurope, {2, 4, 8, 13, 17}, 5, "scandinavian"},
    {WesternEurope, {10}, 1, "italian"},
    {WesternEurope, {11}, 1, "dutch"},
    {WesternEurope, {14}, 1, "portuguese"},
    {WesternEurope, {16}, 1, "hispanic"},
    {WesternEurope, {}, 0, "british"},
    {EasternEurope, {4, 14, 15, 16}, 4, "balkan"},
    {EasternEurope, {2, 13, 17}, 3, "russian"},
    {EasternEurope, {}, 0, "eastern_european"},
    {Africa, {14}, 1, "dutch"},
    {Africa, {6}, 1, "french"},
    {Africa, {0, 8, 10, 16}, 4, "arab"},
    {Africa, {}, 0, "african"},
    {MiddleEast, {5}, 1, "israeli"},
    {MiddleEast, {13, 14, 16}, 3, "turkic"},
    {MiddleEast, {7}, 1, "russian"},
    {MiddleEast, {}, 0, "arab"},
    {EastAsia, {2}, 1, "japanese"},
    {EastAsia, {4, 5}, 2, "korean"},
    {EastAsia, {}, 0, "chinese"},
    {Oceania, {0, 6}, 2, "anglo"},
    {Oceania, {9}, 1, "thai"},
    {Oceania, {8}, 1, "chinese"},
    {Oceania, {7}, 1, "hispanic"},
    {Oceania, {}, 0, "oceanic"},
};

bool namesPlace(const FamilyRow &row, int position)
{
    const auto end = row.places.begin() + row.placeCount;
    return std::find(row.places.begin(), end, position) != end;
}

} // namespace

const QStringList &NationTable::regions()
{
    static const QStringList list = {"North America", "South America", "Western Europe", "Eastern Europe",
                                     "Africa",        "Middle East",   "East Asia",      "Oceania"};
    return list;
}

int NationTable::regionIndex(const QString &region)
{
    return int(regions().indexOf(region));
}

QString NationTable::mainNation(int index)
{
    return index >= 0 && index < MainCount ? QString(mainNations[index].nation) : QString();
}

int NationTable::mainRegion(int index)
{
    int region = 0;
    while (region + 1 < RegionCount && firstMainOfRegion[region + 1] <= index)
        ++region;
    return region;
}

int NationTable::mainIndex(const QString &nation)
{
    for (int i = 0; i < MainCount; ++i)
        if (nation == QLatin1String(mainNations[i].nation))
            return i;
    return -1;
}

const QStringList &NationTable::families()
{
    static const QStringList list = {"anglo",    "hispanic", "british",          "french",  "portuguese",
                                     "germanic", "greek",    "scandinavian",     "italian", "dutch",
                                     "balkan",   "russian",  "eastern_european", "arab",    "african",
                                     "israeli",  "turkic",   "japanese",         "korean",  "chinese",
                                     "thai",     "oceanic"};
    return list;
}

QString NationTable::family(int region, int position)
{
    const FamilyRow *common = nullptr;
    for (const FamilyRow &row : familyRows) {
        if (row.region != region)
            continue;
        if (namesPlace(row, position))
            return row.family;
        if (row.placeCount == 0)
            common = &row;
    }
    return common ? QString(common->family) : QString();
}

QString NationTable::familyOf(const Lists &lists, int region, const QString &nation)
{
    const int position = int(lists.value(region).indexOf(nation));
    if (position >= 0)
        return family(region, position);
    const int main = mainIndex(nation);
    if (main >= 0)
        return mainNations[main].family;
    return family(region, -1);
}
