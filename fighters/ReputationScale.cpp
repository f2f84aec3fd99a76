#include "fighters/ReputationScale.h"

#include <climits>

namespace {

struct PointsRow {
    int upTo;
    const char *label[3]; // gym, manager, fighter
};

constexpr PointsRow pointsTable[ReputationScale::BandCount] = {
    {100, {"Unknown", "Unknown", "Unknown"}},
    {200, {"Local Hangout", "Inexperienced", "Local Fighter"}},
    {300, {"Amateur Level", "Local Name", "Rising Star"}},
    {400, {"Established Presence", "Well Known", "Nationally Ranked"}},
    {500, {"Professional Level", "Experienced", "Respectable Opponent"}},
    {600, {"Championship Caliber", "Nationally Ranked", "Contender"}},
    {700, {"Respected", "Respected", "Championship Caliber"}},
    {800, {"World Class", "World Class", "World Class"}},
    {900, {"Elite", "Elite", "International Superstar"}},
    {INT_MAX, {"Legendary", "Legendary", "Legendary"}},
};

struct RankingRow {
    int upTo;
    const char *label; // nullptr: the label stays
};

// "World Class" stands above "International Superstar" on this scale
constexpr RankingRow rankingTable[] = {
    {50, "Legendary"},
    {1500, "World Class"},
    {3000, "International Superstar"},
    {4500, "Championship Caliber"},
    {6000, "Contender"},
    {7500, "Respectable Opponent"},
    {9000, "Nationally Ranked"},
    {10500, "Rising Star"},
    {12000, nullptr},
    {13500, "Local Fighter"},
    {INT_MAX, "Unknown"},
};

} // namespace

int ReputationScale::band(int points)
{
    int row = 0;
    while (points > pointsTable[row].upTo)
        ++row;
    return row;
}

QString ReputationScale::label(Column column, int points)
{
    return labelOfBand(column, band(points));
}

QString ReputationScale::labelOfBand(Column column, int band)
{
    if (band < 0 || band >= BandCount)
        return {};
    return pointsTable[band].label[column];
}

QStringList ReputationScale::labels(Column column)
{
    QStringList list;
    for (const PointsRow &row : pointsTable)
        list.append(row.label[column]);
    return list;
}

int ReputationScale::bandOfLabel(Column column, const QString &label)
{
    return int(labels(column).indexOf(label));
}

QString ReputationScale::fromRanking(int value)
{
    int row = 0;
    while (value > rankingTable[row].upTo)
        ++row;
    return rankingTable[row].label ? QString(rankingTable[row].label) : QString();
}

int ReputationScale::placeOnRankingScale(const QString &label)
{
    int place = 0;
    for (const RankingRow &row : rankingTable) {
        if (!row.label)
            continue;
        if (label == QLatin1String(row.label))
            return place;
        ++place;
    }
    return -1;
}

int ReputationScale::placeOnPointsScale(const QString &label)
{
    const int band = bandOfLabel(Fighter, label);
    return band < 0 ? -1 : BandCount - 1 - band;
}
