#pragma once

#include <QString>
#include <QStringList>

// The names that points earn. The gym's prestige, the manager's reputation and a gym fighter's
// reputation all climb the same ten bands of a hundred points; a world fighter's label is read
// loosely off his ranking score instead.
class ReputationScale
{
public:
    enum Column { Gym, Manager, Fighter };
    static constexpr int BandCount = 10;

    // 0 for up to 100 points, 1 for 101 to 200, ... 9 above 900
    static int band(int points);
    static QString label(Column column, int points);
    static QString labelOfBand(Column column, int band);
    // the ten labels of a column, the lowest first
    static QStringList labels(Column column);
    // the band of a label of that column, -1 for a text outside it
    static int bandOfLabel(Column column, const QString &label);

    // the label for a value near a ranking score; an empty text where the label stays as it is
    static QString fromRanking(int value);

    // A man's place on a scale of fighters' labels, counted from the top, 0 for "Legendary"; -1
    // for a label that stands on neither scale. The organisations sign men by the order of the
    // ranking's labels and negotiate with the user by the order of the points' labels: the two
    // differ in "World Class" and "International Superstar".
    static int placeOnRankingScale(const QString &label);
    static int placeOnPointsScale(const QString &label);
};
