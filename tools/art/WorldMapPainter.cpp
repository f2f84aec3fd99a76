#include "WorldMapPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"
#include "TsvTable.h"

#include <QFile>
#include <QPainter>
#include <QtMath>
#include <cmath>

using namespace ArtKit;

namespace {

// Miller's cylindrical projection, the width taking the whole circle of longitude and the
// height running from 85 degrees north down past Cape Horn
double millerY(double latitude)
{
    return 1.25 * std::log(std::tan(M_PI / 4 + 0.4 * qDegreesToRadians(latitude)));
}

QPointF project(double lon, double lat)
{
    const double scale = WorldMapPainter::width / (2 * M_PI);
    return QPointF((lon + 180.0) / 360.0 * WorldMapPainter::width, (millerY(85.0) - millerY(lat)) * scale);
}

QPainterPath allOf(const QMap<QString, QPainterPath> &countries)
{
    QPainterPath land;
    land.setFillRule(Qt::WindingFill);
    for (const QPainterPath &country : countries)
        land.addPath(country);
    return land;
}

} // namespace

const QStringList &WorldMapPainter::regions()
{
    static const QStringList names{"North America", "South America", "Western Europe", "Eastern Europe",
                                   "Africa",        "Middle East",   "East Asia",      "Oceania"};
    return names;
}

bool WorldMapPainter::read(const QString &dataDir, QString &error)
{
    TsvTable shapes;
    if (!shapes.read(dataDir + "/art/world_countries.tsv", 2)) {
        error = shapes.error();
        return false;
    }
    for (const QStringList &row : shapes.rows()) {
        // a ring that crosses the date line is unwrapped, then drawn at both ends of the map
        QList<QPointF> degrees;
        double offset = 0;
        for (const QString &pair : row[1].split(' ', Qt::SkipEmptyParts)) {
            const double lon = pair.section(',', 0, 0).toDouble();
            const double lat = pair.section(',', 1, 1).toDouble();
            if (!degrees.isEmpty()) {
                const double previous = degrees.last().x() - offset;
                if (lon - previous > 180)
                    offset -= 360;
                else if (previous - lon > 180)
                    offset += 360;
            }
            degrees.append(QPointF(lon + offset, std::max(lat, -70.0)));
        }
        if (degrees.size() < 3)
            continue;
        QPainterPath &country = countries[row[0]];
        country.setFillRule(Qt::OddEvenFill);
        for (double shift : {-360.0, 0.0, 360.0}) {
            QPolygonF ring;
            bool inside = false;
            for (const QPointF &point : degrees) {
                ring.append(project(point.x() + shift, point.y()));
                inside = inside || std::abs(point.x() + shift) <= 180;
            }
            if (inside) {
                country.addPolygon(ring);
                country.closeSubpath();
            }
        }
    }
    TsvTable table;
    if (!table.read(dataDir + "/art/map_regions.tsv", 2)) {
        error = table.error();
        return false;
    }
    QMap<QString, QString> countryOfNation;
    for (const QStringList &row : table.rows()) {
        if (!regions().contains(row[0]) || !countries.contains(row[1])) {
            error = "map_regions.tsv: unknown region or country in " + row.join(" / ");
            return false;
        }
        regionOf.insert(row[1], row[0]);
        countryOfNation.insert(row[1], row[1]);
        if (row.size() > 2)
            for (const QString &nation : row[2].split(',', Qt::SkipEmptyParts))
                countryOfNation.insert(nation.trimmed(), row[1]);
    }
    return agreesWithNations(dataDir + "/nations.tsv", countryOfNation, error);
}

// The game's nation table says where each nation fights; a map that lit a country under another
// region would show a man's homeland in the wrong filter, so the two must agree. Nations too small
// for the map's shapes have no country and are left out.
bool WorldMapPainter::agreesWithNations(const QString &path, const QMap<QString, QString> &countryOfNation,
                                        QString &error) const
{
    if (!QFile::exists(path))
        return true;
    TsvTable nations;
    if (!nations.read(path, 2)) {
        error = nations.error();
        return false;
    }
    QStringList disagreements;
    for (const QStringList &row : nations.rows()) {
        const QString country = countryOfNation.value(row[1]);
        if (!country.isEmpty() && regionOf.value(country) != row[0])
            disagreements.append(QString("%1 (%2, the map has %3)").arg(row[1], row[0], regionOf.value(country)));
    }
    if (!disagreements.isEmpty()) {
        error = "map_regions.tsv puts nations in another region than nations.tsv: " + disagreements.join(", ");
        return false;
    }
    return true;
}

QImage WorldMapPainter::map() const
{
    QImage image =
        leather(width, height, QColor(88, 58, 36), 777, 0.45).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    // the lines of latitude and longitude, faint, every thirty degrees
    p.setPen(QPen(QColor(230, 200, 150, 40), 0.6));
    for (int lon = -150; lon <= 150; lon += 30)
        p.drawLine(project(lon, 85), project(lon, -65));
    for (int lat = -60; lat <= 80; lat += 30)
        p.drawLine(project(-180, lat), project(180, lat));
    p.setPen(QPen(QColor(230, 200, 150, 70), 0.8, Qt::DashLine));
    p.drawLine(project(-180, 0), project(180, 0));

    const QPainterPath land = allOf(countries);
    dropShadow(p, land, QPointF(0.8, 1.4), 150, 2);
    QLinearGradient parchment(0, 0, width, height);
    parchment.setColorAt(0.0, QColor(0xE6, 0xC6, 0x92));
    parchment.setColorAt(1.0, QColor(0xC8, 0x9C, 0x66));
    p.fillPath(land, parchment);
    p.setPen(QPen(QColor(0x88, 0x50, 0x38, 150), 0.45));
    p.setBrush(Qt::NoBrush);
    for (const QPainterPath &country : countries)
        p.drawPath(country);
    p.setPen(QPen(QColor(0x4a, 0x2a, 0x14, 200), 0.7));
    p.drawPath(land);
    return image;
}

QImage WorldMapPainter::overlay(const QString &filter) const
{
    QMap<QString, QPainterPath> lit;
    for (auto it = countries.cbegin(); it != countries.cend(); ++it)
        if (regionOf.contains(it.key()) && (filter == "Ranking" || regionOf.value(it.key()) == filter))
            lit.insert(it.key(), it.value());
    const QPainterPath area = allOf(lit);

    QImage image = canvas(width, height);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    // the rest of the world sinks into shade
    p.fillPath(allOf(countries).subtracted(area), QColor(40, 20, 8, 80));
    // a warm glow round the region, then the countries themselves lit in gold
    QImage glow = canvas(width, height);
    {
        QPainter g(&glow);
        g.setRenderHint(QPainter::Antialiasing);
        g.strokePath(area, QPen(QColor(255, 190, 80, 200), 5));
        g.fillPath(area, QColor(255, 190, 80, 200));
    }
    p.drawImage(0, 0, blurred(glow, 3));
    QLinearGradient gold(0, 0, width, height);
    gold.setColorAt(0.0, QColor(255, 222, 120, 235));
    gold.setColorAt(1.0, QColor(236, 160, 50, 235));
    p.fillPath(area, gold);
    p.setPen(QPen(QColor(150, 70, 20, 200), 0.5));
    for (const QPainterPath &country : lit)
        p.drawPath(country);
    p.setPen(QPen(QColor(255, 245, 210, 230), 0.8));
    p.drawPath(area);
    return image;
}

bool WorldMapPainter::drawAll(ArtOutput &out) const
{
    bool ok = out.save(map(), "World Map/world_map.jpg");
    ok = out.save(overlay("Ranking"), "World Map/world_map_Ranking.png") && ok;
    for (const QString &region : regions())
        ok = out.save(overlay(region), "World Map/world_map_" + region + ".png") && ok;
    return ok;
}
