#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

class ArtOutput;

// The organisations' logos, 250 x 250 JPEG: a badge (circle, shield, hexagon, octagon, diamond or
// rounded square) in the organisation's colours with its motif, and its name on a ribbon, as
// data/art/logos.tsv describes each one.
class LogoPainter
{
public:
    struct Logo {
        QString name, shape;
        QColor field, accent, metal;
        QString motif, monogram;
    };

    bool read(const QString &dataDir, QString &error);
    QImage logo(const Logo &logo, QString &error) const;
    bool drawAll(ArtOutput &out, QString &error) const;

    const QList<Logo> &logos() const { return table; }
    static constexpr int size = 250;

private:
    QString dataDir;
    QList<Logo> table;
};
