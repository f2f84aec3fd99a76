#pragma once

#include <QColor>
#include <QMap>
#include <QStringList>

// The named colours of data/art/palette.tsv: kit colours, hair colours and skin tones,
// each list in the order of the table.
class Palette
{
public:
    bool read(const QString &path, QString &error);

    QColor kit(const QString &name) const { return kitColours.value(name); }
    QColor hair(const QString &name) const { return hairColours.value(name); }
    QColor skin(int tone) const { return skinTones.value(tone - 1); }

    const QStringList &kitNames() const { return kitOrder; }
    const QStringList &hairNames() const { return hairOrder; }
    int skinToneCount() const { return int(skinTones.size()); }

private:
    QMap<QString, QColor> kitColours;
    QMap<QString, QColor> hairColours;
    QList<QColor> skinTones;
    QStringList kitOrder;
    QStringList hairOrder;
};
