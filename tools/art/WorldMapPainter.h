#pragma once

#include <QImage>
#include <QMap>
#include <QPainterPath>
#include <QStringList>

class ArtOutput;

// The world map of the database screen, 420 x 225: an old map of the real countries (Natural
// Earth's shapes in data/art/world_countries.tsv, Miller's projection), and for each filter an
// overlay that lights the countries of that region (all regions for "Ranking").
class WorldMapPainter
{
public:
    bool read(const QString &dataDir, QString &error);
    QImage map() const;
    QImage overlay(const QString &filter) const;
    bool drawAll(ArtOutput &out) const;

    static constexpr int width = 420;
    static constexpr int height = 225;
    static const QStringList &regions();

private:
    bool agreesWithNations(const QString &path, const QMap<QString, QString> &countryOfNation, QString &error) const;

    QMap<QString, QPainterPath> countries;
    QMap<QString, QString> regionOf;
};
