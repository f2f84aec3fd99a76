#include "EmblemPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"
#include "FigureGeometry.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

using namespace ArtKit;
namespace Fig = FigureGeometry;

namespace {

// the portrait's shorts, enlarged to fill the medallion
QTransform emblemFrame()
{
    QTransform frame;
    frame.translate(EmblemPainter::size / 2.0, EmblemPainter::size / 2.0 + 4);
    frame.scale(1.4, 1.4);
    frame.translate(-Fig::centre, -275);
    return frame;
}

void fillLit(QPainter &p, const QPainterPath &path, const QColor &colour)
{
    const QRectF box = path.boundingRect();
    QLinearGradient gradient(box.topLeft(), box.bottomRight());
    gradient.setColorAt(0.0, shade(colour, 1.22));
    gradient.setColorAt(0.45, colour);
    gradient.setColorAt(1.0, shade(colour, 0.66));
    p.fillPath(path, gradient);
}

} // namespace

EmblemPainter::EmblemPainter(const Palette &palette)
    : palette(palette)
{
}

QImage EmblemPainter::shorts(const QColor &colour) const
{
    QImage image =
        leather(size, size, QColor(70, 40, 22), 313, 0.5).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF middle(size / 2.0, size / 2.0);

    // the medallion: a tan disc with a stitched rim
    QPainterPath disc;
    disc.addEllipse(middle, 112, 112);
    dropShadow(p, disc, QPointF(0, 4), 160, 5);
    QRadialGradient tan(middle - QPointF(30, 36), 150);
    tan.setColorAt(0.0, QColor(0xF0, 0xCC, 0x9C));
    tan.setColorAt(0.6, QColor(0xE0, 0xB6, 0x87));
    tan.setColorAt(1.0, QColor(0xA8, 0x70, 0x40));
    p.fillPath(disc, tan);
    p.setPen(QPen(QColor(0x70, 0x40, 0x18), 3));
    p.drawEllipse(middle, 112, 112);
    p.setPen(QPen(QColor(0x70, 0x40, 0x18, 200), 1.6, Qt::DashLine));
    p.drawEllipse(middle, 104, 104);
    p.setPen(QPen(QColor(0x88, 0x50, 0x38, 120), 1.0));
    p.drawEllipse(middle, 96, 96);

    const QTransform frame = emblemFrame();
    const QPainterPath cloth = frame.map(Fig::shorts());
    dropShadow(p, cloth, QPointF(3, 5), 140, 4);
    fillLit(p, cloth, colour);
    p.save();
    p.setClipPath(cloth);
    const QColor fold = withAlpha(shade(colour, 0.55), 110);
    for (int side : {-1, 1}) {
        QPainterPath crease(frame.map(QPointF(Fig::centre + side * 30, 256)));
        crease.quadTo(frame.map(QPointF(Fig::centre + side * 34, 282)),
                      frame.map(QPointF(Fig::centre + side * 40, 312)));
        p.strokePath(crease, QPen(fold, 2.2, Qt::SolidLine, Qt::RoundCap));
        QPainterPath sheen(frame.map(QPointF(Fig::centre + side * 25, 258)));
        sheen.quadTo(frame.map(QPointF(Fig::centre + side * 28, 282)),
                     frame.map(QPointF(Fig::centre + side * 33, 312)));
        p.strokePath(sheen, QPen(QColor(255, 255, 255, side < 0 ? 70 : 35), 3, Qt::SolidLine, Qt::RoundCap));
    }
    p.restore();
    p.strokePath(cloth, QPen(shade(colour, 0.4), 1.8));
    return image;
}

QImage EmblemPainter::trim(const QColor &colour) const
{
    QImage image = canvas(size, size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QTransform frame = emblemFrame();
    QPainterPath bands = Fig::waistband();
    for (int side : {-1, 1})
        bands = bands.united(Fig::hemBand(side)).united(Fig::sideStripe(side));
    bands = frame.map(bands);
    fillLit(p, bands, colour);
    p.save();
    p.setClipPath(frame.map(Fig::waistband()));
    for (double x = 60; x < 162; x += 4) {
        QPainterPath rib(frame.map(QPointF(x, 230)));
        rib.lineTo(frame.map(QPointF(x + 0.5, 250)));
        p.strokePath(rib, QPen(withAlpha(shade(colour, 0.7), 70), 1.2));
    }
    p.restore();
    p.strokePath(bands, QPen(shade(colour, 0.4), 1.5));
    return image;
}

bool EmblemPainter::drawAll(ArtOutput &out) const
{
    bool ok = true;
    for (const QString &colour : palette.kitNames()) {
        ok = out.save(shorts(palette.kit(colour)), "Shorts/gym_shorts_" + colour + ".jpg") && ok;
        ok = out.save(trim(palette.kit(colour)), "Trim/gym_trim_" + colour + ".png") && ok;
    }
    return ok;
}
