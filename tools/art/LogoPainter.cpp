#include "LogoPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"
#include "TsvTable.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QSvgRenderer>
#include <QtMath>

using namespace ArtKit;

namespace {

const QPointF badgeCentre(LogoPainter::size / 2.0, 108);

QPainterPath regularPolygon(int corners, double radius, double turn)
{
    QPolygonF points;
    for (int i = 0; i < corners; ++i) {
        const double angle = qDegreesToRadians(turn + 360.0 * i / corners);
        points.append(badgeCentre + QPointF(std::cos(angle) * radius, std::sin(angle) * radius));
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    return path;
}

// the outline of a badge of the given shape, `inset` pixels inside its outer edge
QPainterPath badge(const QString &shape, double inset)
{
    const double r = 96 - inset;
    QPainterPath path;
    if (shape == "shield") {
        const double w = r * 0.92, top = badgeCentre.y() - r * 0.95, bottom = badgeCentre.y() + r * 1.02;
        path.moveTo(badgeCentre.x() - w, top);
        path.lineTo(badgeCentre.x() + w, top);
        path.cubicTo(QPointF(badgeCentre.x() + w, badgeCentre.y() + r * 0.35),
                     QPointF(badgeCentre.x() + w * 0.6, badgeCentre.y() + r * 0.8), QPointF(badgeCentre.x(), bottom));
        path.cubicTo(QPointF(badgeCentre.x() - w * 0.6, badgeCentre.y() + r * 0.8),
                     QPointF(badgeCentre.x() - w, badgeCentre.y() + r * 0.35), QPointF(badgeCentre.x() - w, top));
        path.closeSubpath();
    } else if (shape == "hexagon") {
        path = regularPolygon(6, r, 30);
    } else if (shape == "octagon") {
        path = regularPolygon(8, r, 22.5);
    } else if (shape == "diamond") {
        path = regularPolygon(4, r * 1.1, 90);
    } else if (shape == "roundsquare") {
        path.addRoundedRect(QRectF(badgeCentre - QPointF(r * 0.86, r * 0.86), QSizeF(r * 1.72, r * 1.72)),
                            22 - inset / 2, 22 - inset / 2);
    } else {
        path.addEllipse(badgeCentre, r, r);
    }
    return path;
}

QString colourName(const QColor &colour)
{
    return colour.name(QColor::HexRgb);
}

} // namespace

bool LogoPainter::read(const QString &data, QString &error)
{
    dataDir = data;
    TsvTable rows;
    if (!rows.read(dataDir + "/art/logos.tsv", 7)) {
        error = rows.error();
        return false;
    }
    for (const QStringList &row : rows.rows()) {
        Logo logo{
            row[0], row[1], QColor(row[2]), QColor(row[3]), QColor(row[4]), row[5], row[6] == "-" ? QString() : row[6]};
        if (!logo.field.isValid() || !logo.accent.isValid() || !logo.metal.isValid()) {
            error = "logos.tsv: a colour of " + logo.name + " is not a colour";
            return false;
        }
        table.append(logo);
    }
    return true;
}

QImage LogoPainter::logo(const Logo &logo, QString &error) const
{
    QFile motifFile(dataDir + "/art/logos/" + logo.motif + ".svg");
    if (!motifFile.open(QIODevice::ReadOnly)) {
        error = "cannot read the motif " + motifFile.fileName();
        return {};
    }
    QByteArray motifText = motifFile.readAll();
    motifText.replace("@metaldark@", colourName(shade(logo.metal, 0.45)).toLatin1());
    motifText.replace("@metal@", colourName(logo.metal).toLatin1());
    motifText.replace("@light@", colourName(shade(logo.metal, 1.4)).toLatin1());
    motifText.replace("@field@", colourName(logo.field).toLatin1());
    motifText.replace("@accent@", colourName(logo.accent).toLatin1());
    QSvgRenderer motif(motifText);
    if (!motif.isValid()) {
        error = "the motif " + motifFile.fileName() + " is no valid picture";
        return {};
    }

    QImage image = leather(size, size, QColor(58, 36, 20), 2024 + int(qHash(logo.name) % 1000), 0.6)
                       .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    // the badge: a metal rim round the field
    const QPainterPath outer = badge(logo.shape, 0);
    dropShadow(p, outer, QPointF(2, 5), 190, 5);
    QLinearGradient metal(badgeCentre - QPointF(90, 90), badgeCentre + QPointF(90, 90));
    metal.setColorAt(0.0, shade(logo.metal, 1.45));
    metal.setColorAt(0.5, logo.metal);
    metal.setColorAt(1.0, shade(logo.metal, 0.5));
    p.fillPath(outer, metal);
    const QPainterPath field = badge(logo.shape, 8);
    QRadialGradient glow(badgeCentre - QPointF(30, 40), 150);
    glow.setColorAt(0.0, shade(logo.field, 1.3));
    glow.setColorAt(0.55, logo.field);
    glow.setColorAt(1.0, shade(logo.field, 0.55));
    p.fillPath(field, glow);
    p.strokePath(field, QPen(shade(logo.metal, 0.4), 1.5));
    p.strokePath(badge(logo.shape, 13), QPen(withAlpha(logo.metal, 160), 1.2));
    p.strokePath(outer, QPen(shade(logo.metal, 0.35), 1.5));

    // the motif, and the monogram over it
    const QRectF motifBox(badgeCentre.x() - 58, badgeCentre.y() - 72, 116, 116);
    {
        QImage art = canvas(size, size);
        QPainter a(&art);
        a.setRenderHint(QPainter::Antialiasing);
        motif.render(&a, motifBox);
        a.end();
        QImage shadow = art;
        {
            QPainter s(&shadow);
            s.setCompositionMode(QPainter::CompositionMode_SourceIn);
            s.fillRect(shadow.rect(), QColor(0, 0, 0, 140));
        }
        p.drawImage(QPointF(1.5, 2.5), blurred(shadow, 1));
        p.drawImage(0, 0, art);
    }
    if (!logo.monogram.isEmpty()) {
        QFont font;
        font.setFamilies({"P052", "DejaVu Serif"});
        font.setBold(true);
        font.setPixelSize(52);
        QPainterPath letters;
        letters.addText(0, 0, font, logo.monogram);
        letters.translate(badgeCentre - letters.boundingRect().center() - QPointF(0, 16));
        p.strokePath(letters, QPen(shade(logo.metal, 0.3), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QLinearGradient gold(0, letters.boundingRect().top(), 0, letters.boundingRect().bottom());
        gold.setColorAt(0.0, shade(logo.metal, 1.5));
        gold.setColorAt(0.5, logo.metal);
        gold.setColorAt(1.0, shade(logo.metal, 0.7));
        p.fillPath(letters, gold);
    }

    // the ribbon with the name
    const double top = 176, height = 34, left = 18, right = size - 18;
    QPainterPath tails;
    for (int side : {-1, 1}) {
        const double x = side < 0 ? left : right;
        const double in = side < 0 ? left + 26 : right - 26;
        QPainterPath tail(QPointF(in, top + 8));
        tail.lineTo(QPointF(x + side * 8, top + 8));
        tail.lineTo(QPointF(x - side * 4, top + 8 + height / 2));
        tail.lineTo(QPointF(x + side * 8, top + 8 + height));
        tail.lineTo(QPointF(in, top + 8 + height));
        tail.closeSubpath();
        tails.addPath(tail);
    }
    p.fillPath(tails, shade(logo.accent, 0.7));
    p.strokePath(tails, QPen(shade(logo.metal, 0.5), 1.2));
    QPainterPath band;
    band.moveTo(left + 14, top);
    band.quadTo(QPointF(size / 2.0, top - 6), QPointF(right - 14, top));
    band.lineTo(right - 14, top + height);
    band.quadTo(QPointF(size / 2.0, top + height - 6), QPointF(left + 14, top + height));
    band.closeSubpath();
    dropShadow(p, band, QPointF(0, 3), 150, 3);
    QLinearGradient cloth(0, top, 0, top + height);
    cloth.setColorAt(0.0, shade(logo.accent, 1.35));
    cloth.setColorAt(0.5, logo.accent);
    cloth.setColorAt(1.0, shade(logo.accent, 0.6));
    p.fillPath(band, cloth);
    p.strokePath(band, QPen(logo.metal, 2));

    QFont font;
    font.setFamilies({"P052", "DejaVu Serif"});
    font.setBold(true);
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    int pixels = 22;
    font.setPixelSize(pixels);
    while (QFontMetricsF(font).horizontalAdvance(logo.name.toUpper()) > right - left - 44 && pixels > 10)
        font.setPixelSize(--pixels);
    QPainterPath text;
    text.addText(0, 0, font, logo.name.toUpper());
    text.translate(QPointF(size / 2.0, top + height / 2.0 - 3) - text.boundingRect().center());
    const QColor ink = luminance(logo.metal) > 0.4 ? logo.metal : QColor(0xF6, 0xEC, 0xD6);
    p.strokePath(text, QPen(QColor(20, 10, 5, 200), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(text, shade(ink, 1.15));
    return image;
}

bool LogoPainter::drawAll(ArtOutput &out, QString &error) const
{
    bool ok = true;
    for (const Logo &entry : table) {
        const QImage picture = logo(entry, error);
        if (picture.isNull())
            return false;
        ok = out.save(picture, "Org Logos/" + entry.name + "_Logo.jpg") && ok;
    }
    return ok;
}
