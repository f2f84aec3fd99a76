#include "Palette.h"

#include "TsvTable.h"

bool Palette::read(const QString &path, QString &error)
{
    TsvTable table;
    if (!table.read(path, 3)) {
        error = table.error();
        return false;
    }
    for (const QStringList &row : table.rows()) {
        const QColor colour(row[2]);
        if (!colour.isValid()) {
            error = path + ": no colour in " + row.join(' ');
            return false;
        }
        if (row[0] == "kit") {
            kitColours.insert(row[1], colour);
            kitOrder.append(row[1]);
        } else if (row[0] == "hair") {
            hairColours.insert(row[1], colour);
            hairOrder.append(row[1]);
        } else if (row[0] == "skin") {
            skinTones.append(colour);
        } else {
            error = path + ": unknown kind " + row[0];
            return false;
        }
    }
    if (kitOrder.size() != 14 || hairOrder.size() != 4 || skinTones.isEmpty()) {
        error = path + ": the game needs fourteen kit colours, four hair colours and some skin tones";
        return false;
    }
    return true;
}
