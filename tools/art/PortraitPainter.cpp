#include "PortraitPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QtMath>

using namespace ArtKit;
namespace Fig = FigureGeometry;

namespace {

QImage figureCanvas()
{
    return canvas(Fig::width, Fig::height);
}

void prepare(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

// Lit from the upper left: a gradient across the shape, light on the left, dark on the right.
void volumeFill(QPainter &painter, const QPainterPath &path, const QColor &base, double light = 1.18,
                double dark = 0.74)
{
    const QRectF box = path.boundingRect();
    QLinearGradient gradient(box.left(), box.top(), box.right(), box.top() + box.height() * 0.35);
    gradient.setColorAt(0.0, shade(base, light));
    gradient.setColorAt(0.35, base);
    gradient.setColorAt(0.75, shade(base, (1.0 + dark) / 2));
    gradient.setColorAt(1.0, shade(base, dark));
    painter.fillPath(path, gradient);
}

void outline(QPainter &painter, const QPainterPath &path, const QColor &colour, double width = 1.3)
{
    painter.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void stroke(QPainter &painter, const QPainterPath &path, const QColor &colour, double width)
{
    painter.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

QPainterPath curve(QPointF a, QPointF c, QPointF b)
{
    QPainterPath path(a);
    path.quadTo(c, b);
    return path;
}

QPainterPath curve(QPointF a, QPointF c1, QPointF c2, QPointF b)
{
    QPainterPath path(a);
    path.cubicTo(c1, c2, b);
    return path;
}

// the scalp above the hairline, where hair grows
QPainterPath hairline(double forehead, double temple, double sideburn)
{
    QPainterPath above(QPointF(60, sideburn));
    above.lineTo(QPointF(80.5, sideburn));
    above.cubicTo(QPointF(81, temple + 6), QPointF(82, temple), QPointF(86, temple - 4));
    above.cubicTo(QPointF(92, forehead + 1), QPointF(100, forehead), QPointF(Fig::centre, forehead));
    above.cubicTo(QPointF(120, forehead), QPointF(128, forehead + 1), QPointF(134, temple - 4));
    above.cubicTo(QPointF(138, temple), QPointF(139, temple + 6), QPointF(139.5, sideburn));
    above.lineTo(QPointF(160, sideburn));
    above.lineTo(QPointF(160, 0));
    above.lineTo(QPointF(60, 0));
    above.closeSubpath();
    return above;
}

QPainterPath scaledAbout(const QPainterPath &path, QPointF centre, double sx, double sy, QPointF shift = {})
{
    QTransform t;
    t.translate(centre.x() + shift.x(), centre.y() + shift.y());
    t.scale(sx, sy);
    t.translate(-centre.x(), -centre.y());
    return t.map(path);
}

// short strands of hair in a region: fine strokes that follow `flow` (degrees), seeded
void strands(QPainter &painter, const QPainterPath &region, const QColor &colour, double density, double length,
             double flow, int seed, double width = 0.9)
{
    painter.save();
    painter.setClipPath(region);
    const QRectF box = region.boundingRect();
    const int count = int(box.width() * box.height() * density / 100.0);
    for (int i = 0; i < count; ++i) {
        const double x = box.left() + noise(i * 1.7, seed, seed) * box.width();
        const double y = box.top() + noise(seed, i * 1.3, seed + 1) * box.height();
        const double angle = qDegreesToRadians(flow + (noise(i * 0.9, 3.3, seed + 2) - 0.5) * 40);
        const double len = length * (0.6 + noise(i * 2.1, 7.7, seed + 3) * 0.8);
        const QPointF from(x, y);
        const QPointF to(x + std::cos(angle) * len, y + std::sin(angle) * len);
        const double tone = 0.75 + noise(i * 0.7, 1.1, seed + 4) * 0.6;
        painter.setPen(QPen(shade(colour, tone), width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from, to);
    }
    painter.restore();
}

QColor hairShadow(const QColor &hair)
{
    return shade(hair, 0.55);
}

} // namespace

PortraitPainter::PortraitPainter(const Palette &palette, const QList<Build> &builds)
    : palette(palette)
    , builds(builds)
{
}

int PortraitPainter::bodyCount() const
{
    return int(builds.size()) * palette.skinToneCount();
}

QImage PortraitPainter::body(int number) const
{
    const Build &build = builds[(number - 1) % builds.size()];
    const QColor skin = palette.skin((number - 1) / int(builds.size()) + 1);
    const QColor line = withAlpha(shade(skin, 0.45), 235);
    const double cut = 0.25 + 0.75 * build.definition;
    const QColor crease = withAlpha(shade(skin, 0.5), int(150 * cut));
    const QColor softCrease = withAlpha(shade(skin, 0.55), int(90 * cut));
    const QColor gleam = QColor(255, 245, 230, int(60 + 40 * cut));

    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);

    for (int side : {-1, 1}) {
        const QPainterPath leg = Fig::thigh(build, side);
        volumeFill(p, leg, skin);
        outline(p, leg, line);
        p.save();
        p.setClipPath(leg);
        // the front of the thigh, lit; the kneecap begins at the bottom of the picture
        stroke(p,
               curve(QPointF(Fig::centre + side * 18, 318), QPointF(Fig::centre + side * 22, 336),
                     QPointF(Fig::centre + side * 20, 352)),
               softCrease, 1.4);
        p.restore();
    }

    // the neck, which the trunk overlaps at the collar
    const QPainterPath neck = Fig::neck(build);
    volumeFill(p, neck, skin, 1.05, 0.7);
    p.save();
    p.setClipPath(neck);
    {
        // the shadow of the jaw on the throat
        QLinearGradient under(0, 92, 0, 114);
        under.setColorAt(0.0, withAlpha(shade(skin, 0.35), 150));
        under.setColorAt(1.0, withAlpha(shade(skin, 0.35), 0));
        p.fillRect(QRectF(0, 80, Fig::width, 40), under);
        for (int side : {-1, 1})
            stroke(p,
                   curve(QPointF(Fig::centre + side * (build.neck / 2 - 3), 96), QPointF(Fig::centre + side * 8, 114),
                         QPointF(Fig::centre + side * 3, 128)),
                   softCrease, 1.5);
    }
    p.restore();
    outline(p, neck, line);

    // the trunk
    const QPainterPath torso = Fig::torso(build);
    {
        QRadialGradient gradient(QPointF(88, 160), 150);
        gradient.setColorAt(0.0, shade(skin, 1.16));
        gradient.setColorAt(0.45, skin);
        gradient.setColorAt(1.0, shade(skin, 0.68));
        p.fillPath(torso, gradient);
    }
    p.save();
    p.setClipPath(torso);
    // collarbones
    for (int side : {-1, 1}) {
        const double s = side;
        stroke(p,
               curve(QPointF(Fig::centre + s * 8, 131), QPointF(Fig::centre + s * 26, 126),
                     QPointF(Fig::centre + s * (build.shoulders / 2 - 22), 134)),
               softCrease, 1.6);
    }
    // the chest: the lower line of each pectoral, from the breastbone to the armpit
    for (int side : {-1, 1}) {
        const double s = side;
        const double reach = build.chest / 2 - 2;
        stroke(p,
               curve(QPointF(Fig::centre + s * 2, 176), QPointF(Fig::centre + s * reach * 0.55, 194),
                     QPointF(Fig::centre + s * reach, 168)),
               crease, 1.8);
        // light on the upper chest
        QPainterPath plate;
        plate.addEllipse(QPointF(Fig::centre + s * reach * 0.5, 162), reach * 0.42, 16);
        p.fillPath(plate, QColor(255, 245, 230, side < 0 ? 34 : 16));
    }
    // the stomach: the middle line and the rows of the abdominals, sharper on a cut build
    stroke(p, curve(QPointF(Fig::centre, 184), QPointF(Fig::centre + 0.5, 205), QPointF(Fig::centre, 224)), crease,
           1.5);
    for (double y : {201.0, 214.0}) {
        stroke(p,
               curve(QPointF(Fig::centre - 15, y + 1), QPointF(Fig::centre, y - 2), QPointF(Fig::centre + 15, y + 1)),
               softCrease, 1.4);
    }
    for (int side : {-1, 1}) {
        const double s = side;
        // the outer edge of the abdominals and the obliques above the hip
        stroke(p,
               curve(QPointF(Fig::centre + s * 17, 190), QPointF(Fig::centre + s * 21, 212),
                     QPointF(Fig::centre + s * 14, 236)),
               softCrease, 1.5);
        stroke(p,
               curve(QPointF(Fig::centre + s * (build.chest / 2 - 6), 188), QPointF(Fig::centre + s * 34, 214),
                     QPointF(Fig::centre + s * 30, 236)),
               withAlpha(softCrease, softCrease.alpha() / 2 + 20), 1.4);
        // a little light on each block of the stomach
        for (double y : {194.0, 207.0, 220.0}) {
            QPainterPath block;
            block.addEllipse(QPointF(Fig::centre + s * 8.5, y), 6.5, 5.5);
            p.fillPath(block, withAlpha(gleam, int(gleam.alpha() * (side < 0 ? 0.3 : 0.12))));
        }
    }
    if (build.belly > 0) {
        // a round stomach: light on the front, a fold above the waistband
        QPainterPath belly;
        belly.addEllipse(QPointF(Fig::centre - 4, 212), 34 * build.belly, 26 * build.belly);
        QRadialGradient round(QPointF(Fig::centre - 10, 206), 36);
        round.setColorAt(0.0, QColor(255, 245, 230, int(28 * build.belly)));
        round.setColorAt(1.0, QColor(255, 245, 230, 0));
        p.fillPath(belly, round);
        stroke(p, curve(QPointF(Fig::centre - 34, 232), QPointF(Fig::centre, 240), QPointF(Fig::centre + 34, 232)),
               withAlpha(shade(skin, 0.5), int(110 * build.belly)), 1.6);
    }
    // the navel
    {
        QPainterPath navel;
        navel.addEllipse(QPointF(Fig::centre, 228), 2.2, 3.2);
        p.fillPath(navel, withAlpha(shade(skin, 0.45), 170));
    }
    // the gloves, held up in the guard, throw a shadow on the chest
    {
        QPainterPath gloves;
        for (int side : {-1, 1})
            gloves = gloves.united(Fig::gloveBody(side)).united(Fig::gloveCuff(side));
        dropShadow(p, gloves, QPointF(3, 9), 120, 5);
    }
    p.restore();
    outline(p, torso, line);

    for (int side : {-1, 1}) {
        const QPainterPath ear = Fig::ear(side);
        volumeFill(p, ear, shade(skin, 0.95));
        outline(p, ear, line, 1.1);
        stroke(p,
               curve(QPointF(Fig::centre + side * 30, 63), QPointF(Fig::centre + side * 33.5, 66),
                     QPointF(Fig::centre + side * 30, 74)),
               withAlpha(shade(skin, 0.5), 150), 1.2);
    }
    const QPainterPath head = Fig::cranium();
    {
        QRadialGradient gradient(QPointF(98, 52), 62);
        gradient.setColorAt(0.0, shade(skin, 1.14));
        gradient.setColorAt(0.55, skin);
        gradient.setColorAt(1.0, shade(skin, 0.7));
        p.fillPath(head, gradient);
    }
    p.save();
    p.setClipPath(head);
    // cheekbones and the jaw catch the light on the left and fall into shade on the right
    {
        QPainterPath cheek;
        cheek.addEllipse(QPointF(132, 86), 12, 20);
        p.fillPath(cheek, withAlpha(shade(skin, 0.6), 60));
        QPainterPath warm;
        warm.addEllipse(QPointF(93, 80), 7, 5);
        warm.addEllipse(QPointF(127, 80), 7, 5);
        p.fillPath(warm, QColor(190, 70, 50, 22));
    }
    p.restore();
    outline(p, head, line);

    // arms: the upper arm from the shoulder, the forearm up to the glove
    for (int side : {-1, 1}) {
        const QPainterPath upper = Fig::upperArm(build, side);
        volumeFill(p, upper, skin);
        outline(p, upper, line);
        const QPainterPath shoulder = Fig::deltoid(build, side);
        {
            const QRectF box = shoulder.boundingRect();
            QRadialGradient gradient(box.center() + QPointF(-box.width() * 0.2, -box.height() * 0.25),
                                     box.width() * 0.75);
            gradient.setColorAt(0.0, shade(skin, 1.16));
            gradient.setColorAt(0.6, skin);
            gradient.setColorAt(1.0, shade(skin, 0.76));
            p.fillPath(shoulder, gradient);
        }
        outline(p, shoulder, withAlpha(line, 110));
        p.save();
        p.setClipPath(upper.subtracted(shoulder));
        // the bicep's edge
        const QPointF joint = Fig::shoulderJoint(build, side);
        const QPointF bend = Fig::elbow(build, side);
        const QPointF along = (bend - joint);
        const QPointF inner = joint + along * 0.35 + QPointF(-side * build.upperArm * 0.28, 0);
        stroke(p, curve(inner, inner + along * 0.25 + QPointF(-side * 2, 0), inner + along * 0.55), softCrease, 1.4);
        p.restore();

        const QPainterPath fore = Fig::forearm(build, side);
        volumeFill(p, fore, skin, 1.12, 0.78);
        outline(p, fore, line);
    }
    return image;
}

QImage PortraitPainter::shorts(const QColor &colour) const
{
    const QColor line = withAlpha(shade(colour, 0.42), 230);
    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);

    const QPainterPath cloth = Fig::shorts();
    {
        QLinearGradient gradient(60, 230, 176, 320);
        gradient.setColorAt(0.0, shade(colour, 1.16));
        gradient.setColorAt(0.4, colour);
        gradient.setColorAt(1.0, shade(colour, 0.7));
        p.fillPath(cloth, gradient);
    }
    p.save();
    p.setClipPath(cloth);
    // folds of the loose satin: dark creases with a sheen beside them
    const QColor fold = withAlpha(shade(colour, 0.55), 120);
    const QColor sheen = QColor(255, 255, 255, luminance(colour) > 0.7 ? 70 : 55);
    for (int side : {-1, 1}) {
        const double s = side;
        stroke(p,
               curve(QPointF(Fig::centre + s * 4, 252), QPointF(Fig::centre + s * 6, 270),
                     QPointF(Fig::centre + s * 2, 288)),
               fold, 1.6);
        stroke(p,
               curve(QPointF(Fig::centre + s * 30, 256), QPointF(Fig::centre + s * 34, 282),
                     QPointF(Fig::centre + s * 40, 312)),
               fold, 1.8);
        stroke(p,
               curve(QPointF(Fig::centre + s * 26, 258), QPointF(Fig::centre + s * 29, 282),
                     QPointF(Fig::centre + s * 34, 312)),
               withAlpha(sheen, side < 0 ? sheen.alpha() : sheen.alpha() / 2), 2.2);
        stroke(p,
               curve(QPointF(Fig::centre + s * 16, 290), QPointF(Fig::centre + s * 20, 300),
                     QPointF(Fig::centre + s * 18, 312)),
               fold, 1.4);
    }
    // the inside of the leg openings
    for (int side : {-1, 1}) {
        QPainterPath hollow;
        hollow.addEllipse(QPointF(Fig::centre + side * 34, 316), 30, 5);
        p.fillPath(hollow, withAlpha(shade(colour, 0.3), 90));
    }
    p.restore();
    outline(p, cloth, line, 1.4);

    for (int side : {-1, 1}) {
        // the glove: leather with a shine on the knuckles
        const QPainterPath cuff = Fig::gloveCuff(side);
        volumeFill(p, cuff, shade(colour, 0.92));
        outline(p, cuff, line);
        const QPainterPath fist = Fig::gloveBody(side);
        {
            const QRectF box = fist.boundingRect();
            QRadialGradient gradient(box.center() + QPointF(-box.width() * 0.22, -box.height() * 0.26),
                                     box.width() * 0.85);
            gradient.setColorAt(0.0, shade(colour, 1.35));
            gradient.setColorAt(0.35, colour);
            gradient.setColorAt(1.0, shade(colour, 0.62));
            p.fillPath(fist, gradient);
        }
        outline(p, fist, line);
        const QPainterPath thumb = Fig::gloveThumb(side);
        volumeFill(p, thumb, shade(colour, 0.9));
        outline(p, thumb, line, 1.2);
        // the seam over the knuckles and the highlight
        const QTransform frame = Fig::gloveFrame(side);
        stroke(p, frame.map(curve(QPointF(-14, -14), QPointF(0, -20), QPointF(16, -12))),
               withAlpha(shade(colour, 0.5), 120), 1.2);
        QPainterPath shine;
        shine.addEllipse(QPointF(-6, -18), 7, 4);
        p.fillPath(frame.map(shine), QColor(255, 255, 255, 80));
    }
    return image;
}

QImage PortraitPainter::trim(const QColor &colour) const
{
    const QColor line = withAlpha(shade(colour, 0.42), 220);
    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);

    QPainterPath bands = Fig::waistband();
    for (int side : {-1, 1})
        bands = bands.united(Fig::hemBand(side)).united(Fig::sideStripe(side));
    {
        QLinearGradient gradient(60, 230, 176, 320);
        gradient.setColorAt(0.0, shade(colour, 1.2));
        gradient.setColorAt(0.45, colour);
        gradient.setColorAt(1.0, shade(colour, 0.68));
        p.fillPath(bands, gradient);
    }
    // the elastic of the waistband, ribbed
    p.save();
    p.setClipPath(Fig::waistband());
    for (double x = 62; x < 160; x += 4)
        stroke(p, curve(QPointF(x, 230), QPointF(x + 0.5, 240), QPointF(x, 250)), withAlpha(shade(colour, 0.7), 60),
               1.0);
    stroke(p, curve(QPointF(60, 236), QPointF(Fig::centre, 233), QPointF(160, 236)), QColor(255, 255, 255, 60), 1.4);
    p.restore();
    outline(p, bands, line, 1.1);

    for (int side : {-1, 1}) {
        const QPainterPath band = Fig::gloveCuffBand(side);
        volumeFill(p, band, colour, 1.2, 0.7);
        outline(p, band, line, 1.0);
    }
    return image;
}

QImage PortraitPainter::head(int style, const QColor &hair) const
{
    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);
    const QPainterPath skull = Fig::cranium();
    const QColor dark = hairShadow(hair);
    const QColor line = withAlpha(shade(hair, 0.4), 230);

    switch (style) {
    case 1: {
        // shaved clean: only the shine of the scalp
        QRadialGradient shine(QPointF(100, 36), 18);
        shine.setColorAt(0.0, QColor(255, 255, 255, 90));
        shine.setColorAt(1.0, QColor(255, 255, 255, 0));
        p.fillPath(skull, shine);
        break;
    }
    case 2: {
        // a buzz cut: the scalp shows through the short hair
        const QPainterPath region = skull.intersected(hairline(40, 50, 66));
        p.fillPath(region, withAlpha(hair, 150));
        strands(p, region, dark, 9.0, 1.6, 80, 11, 0.8);
        strands(p, region, shade(hair, 1.2), 3.0, 1.4, 100, 12, 0.7);
        break;
    }
    case 3: {
        // a short crop with some volume on top and a short fringe
        QPainterPath region =
            scaledAbout(skull, QPointF(Fig::centre, 60), 1.05, 1.04, QPointF(0, -2)).intersected(hairline(41, 50, 64));
        const QPainterPath fringe = curve(QPointF(90, 44), QPointF(100, 50), QPointF(118, 43));
        volumeFill(p, region, hair, 1.3, 0.6);
        strands(p, region, dark, 5.0, 6.0, 250, 21, 1.0);
        strands(p, region, shade(hair, 1.35), 2.0, 5.0, 240, 22, 0.9);
        outline(p, region, line, 1.2);
        stroke(p, fringe, withAlpha(dark, 140), 1.0);
        break;
    }
    case 4: {
        // a mohawk: shaved sides and a strip standing up over the middle
        const QPainterPath sides = skull.intersected(hairline(40, 50, 64));
        p.fillPath(sides, withAlpha(hair, 70));
        strands(p, sides, withAlpha(dark, 160), 5.0, 1.4, 80, 31, 0.7);
        QPainterPath strip(QPointF(101, 44));
        strip.cubicTo(QPointF(98, 30), QPointF(99, 14), QPointF(104, 4));
        strip.cubicTo(QPointF(108, 10), QPointF(111, 2), QPointF(114, 8));
        strip.cubicTo(QPointF(118, 14), QPointF(121, 28), QPointF(119, 44));
        strip.cubicTo(QPointF(113, 41), QPointF(107, 41), QPointF(101, 44));
        strip.closeSubpath();
        volumeFill(p, strip, hair, 1.35, 0.6);
        strands(p, strip, dark, 8.0, 7.0, 265, 32, 1.0);
        strands(p, strip, shade(hair, 1.4), 3.0, 6.0, 270, 33, 0.8);
        outline(p, strip, line, 1.2);
        break;
    }
    case 5: {
        // cornrows: braids from the forehead back over the crown
        const QPainterPath region = skull.intersected(hairline(40, 50, 62));
        p.fillPath(region, withAlpha(dark, 120));
        p.save();
        p.setClipPath(region);
        for (int row = -3; row <= 3; ++row) {
            const double x = Fig::centre + row * 8.5;
            for (double y = 44; y > 18; y -= 4.2) {
                const double lean = row * (44 - y) * 0.12;
                QPainterPath plait;
                plait.addEllipse(QPointF(x + lean, y), 3.6, 2.6);
                volumeFill(p, plait, hair, 1.4, 0.65);
                stroke(p, plait, withAlpha(shade(hair, 0.4), 160), 0.6);
            }
        }
        p.restore();
        break;
    }
    case 6: {
        // long hair pulled back into a knot on the crown
        QPainterPath region =
            scaledAbout(skull, QPointF(Fig::centre, 60), 1.04, 1.03, QPointF(0, -1)).intersected(hairline(39, 48, 70));
        QPainterPath knot;
        knot.addEllipse(QPointF(Fig::centre, 17), 11, 9);
        volumeFill(p, knot, hair, 1.3, 0.6);
        strands(p, knot, dark, 7.0, 5.0, 200, 41, 0.9);
        outline(p, knot, line, 1.2);
        volumeFill(p, region, hair, 1.3, 0.6);
        p.save();
        p.setClipPath(region);
        // combed straight back: lines from the hairline up to the knot
        for (int i = -7; i <= 7; ++i) {
            const double x = Fig::centre + i * 4.2;
            stroke(
                p,
                curve(QPointF(x, 46), QPointF(x * 0.92 + Fig::centre * 0.08, 30), QPointF(Fig::centre + i * 1.2, 22)),
                withAlpha(i % 2 ? dark : shade(hair, 1.35), 150), 0.9);
        }
        p.restore();
        outline(p, region, line, 1.2);
        QPainterPath tie;
        tie.addRoundedRect(QRectF(Fig::centre - 6, 22, 12, 4), 2, 2);
        p.fillPath(tie, shade(hair, 0.3));
        break;
    }
    case 7: {
        // short curls with volume all round
        QPainterPath region =
            scaledAbout(skull, QPointF(Fig::centre, 62), 1.13, 1.1, QPointF(0, -3)).intersected(hairline(40, 49, 66));
        volumeFill(p, region, hair, 1.25, 0.6);
        p.save();
        p.setClipPath(region);
        for (int i = 0; i < 150; ++i) {
            const double x = 74 + noise(i * 1.7, 5, 51) * 72;
            const double y = 12 + noise(5, i * 1.3, 52) * 56;
            const QColor tone = noise(i, 9, 53) > 0.5 ? dark : shade(hair, 1.3);
            p.setPen(QPen(withAlpha(tone, 150), 0.9));
            p.setBrush(Qt::NoBrush);
            p.drawArc(QRectF(x - 2.5, y - 2.5, 5, 5), int(noise(i, 3, 54) * 360) * 16, 250 * 16);
        }
        p.restore();
        outline(p, region, line, 1.2);
        break;
    }
    default: {
        // style 8: a head band of twisted cord over a shaved head, the tail standing up behind
        QRadialGradient shine(QPointF(100, 32), 16);
        shine.setColorAt(0.0, QColor(255, 255, 255, 80));
        shine.setColorAt(1.0, QColor(255, 255, 255, 0));
        p.fillPath(skull, shine);
        const QColor red(178, 34, 34);
        const QColor white(240, 232, 214);
        QPainterPath tail(QPointF(112, 34));
        tail.cubicTo(QPointF(118, 20), QPointF(128, 10), QPointF(138, 4));
        tail.lineTo(QPointF(141, 8));
        tail.cubicTo(QPointF(132, 14), QPointF(124, 24), QPointF(120, 36));
        tail.closeSubpath();
        volumeFill(p, tail, red, 1.3, 0.6);
        outline(p, tail, QColor(60, 10, 10, 220), 1.0);
        QPainterPath band(QPointF(78, 50));
        band.cubicTo(QPointF(86, 34), QPointF(134, 34), QPointF(142, 50));
        band.lineTo(QPointF(142, 58));
        band.cubicTo(QPointF(134, 43), QPointF(86, 43), QPointF(78, 58));
        band.closeSubpath();
        band = band.intersected(scaledAbout(skull, QPointF(Fig::centre, 60), 1.05, 1.02));
        volumeFill(p, band, white, 1.1, 0.7);
        p.save();
        p.setClipPath(band);
        for (double x = 74; x < 146; x += 6)
            stroke(p, curve(QPointF(x, 60), QPointF(x + 2, 48), QPointF(x + 6, 34)), red, 2.6);
        p.restore();
        outline(p, band, QColor(60, 10, 10, 220), 1.1);
        break;
    }
    }
    return image;
}

QImage PortraitPainter::face(int style, const QColor &hair) const
{
    // features are drawn in shades of dark and light with transparency, so they suit every skin
    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);
    const QColor brow = hair.isValid() ? shade(hair, 0.85) : QColor(45, 30, 20, 220);
    const QColor beard = hair.isValid() ? hair : QColor(40, 28, 20);

    // the eye sockets and the shade beside the nose
    for (int side : {-1, 1}) {
        QPainterPath socket;
        socket.addEllipse(QPointF(Fig::centre + side * 11.5, 65), 9, 5.5);
        p.fillPath(socket, QColor(60, 30, 10, 45));
    }
    // eyes: narrowed, looking ahead
    for (int side : {-1, 1}) {
        const double x = Fig::centre + side * 11.5;
        QPainterPath eye(QPointF(x - 6, 67));
        eye.cubicTo(QPointF(x - 3, 63.5), QPointF(x + 3, 63.5), QPointF(x + 6, 66.5));
        eye.cubicTo(QPointF(x + 3, 69.5), QPointF(x - 3, 69.5), QPointF(x - 6, 67));
        eye.closeSubpath();
        p.fillPath(eye, QColor(238, 232, 222));
        p.save();
        p.setClipPath(eye);
        QPainterPath iris;
        iris.addEllipse(QPointF(x - side * 0.5, 66.6), 2.7, 2.7);
        p.fillPath(iris, QColor(70, 48, 30));
        QPainterPath pupil;
        pupil.addEllipse(QPointF(x - side * 0.5, 66.6), 1.2, 1.2);
        p.fillPath(pupil, QColor(15, 10, 8));
        p.fillRect(QRectF(x - 7, 62, 14, 2.6), QColor(60, 30, 10, 90));
        p.restore();
        QPainterPath glint;
        glint.addEllipse(QPointF(x - side * 1.4, 65.7), 0.7, 0.7);
        p.fillPath(glint, QColor(255, 255, 255, 220));
        // the upper lid
        stroke(p, curve(QPointF(x - 6.5, 67.2), QPointF(x - 3, 63), QPointF(x + 3, 63), QPointF(x + 6.5, 66.5)),
               QColor(30, 15, 5, 220), 1.4);
        stroke(p, curve(QPointF(x - 4, 70.5), QPointF(x, 71.3), QPointF(x + 4, 70.3)), QColor(60, 30, 10, 60), 0.9);
        // the brow, low and straight over the eye
        QPainterPath browShape(QPointF(x - side * 7.5, 58.4));
        browShape.cubicTo(QPointF(x - side * 2, 56.2), QPointF(x + side * 4, 56.6), QPointF(x + side * 8, 58.6));
        browShape.lineTo(QPointF(x + side * 7.5, 60.8));
        browShape.cubicTo(QPointF(x + side * 3, 59.2), QPointF(x - side * 2, 59.2), QPointF(x - side * 7, 61.4));
        browShape.closeSubpath();
        p.fillPath(browShape, brow);
        strands(p, browShape, shade(brow, 0.6), 40.0, 2.0, side > 0 ? 350 : 190, 60 + side, 0.6);
    }
    // the nose: a shaded side, the tip and the nostrils
    {
        QPainterPath side(QPointF(113, 64));
        side.cubicTo(QPointF(114, 71), QPointF(116, 76), QPointF(117, 81));
        side.cubicTo(QPointF(115, 82), QPointF(113, 82), QPointF(112, 80));
        side.cubicTo(QPointF(112, 74), QPointF(111.5, 70), QPointF(113, 64));
        side.closeSubpath();
        p.fillPath(side, QColor(60, 30, 10, 55));
        stroke(p, curve(QPointF(103.5, 80), QPointF(106, 84.5), QPointF(110, 84), QPointF(113, 84.5)),
               QColor(50, 25, 10, 110), 1.2);
        stroke(p, curve(QPointF(113, 84.5), QPointF(115.5, 84), QPointF(117, 81)), QColor(50, 25, 10, 110), 1.2);
        QPainterPath tip;
        tip.addEllipse(QPointF(108.5, 79.5), 2.5, 1.8);
        p.fillPath(tip, QColor(255, 250, 240, 60));
        for (double x : {106.5, 113.5}) {
            QPainterPath nostril;
            nostril.addEllipse(QPointF(x, 83), 1.6, 0.9);
            p.fillPath(nostril, QColor(30, 12, 5, 120));
        }
    }
    // facial hair, under the mouth
    const QPainterPath jaw = Fig::cranium().intersected([] {
        QPainterPath below;
        below.addRect(QRectF(60, 76, 100, 40));
        return below;
    }());
    QPainterPath moustache(QPointF(100, 90.5));
    moustache.cubicTo(QPointF(103, 86), QPointF(117, 86), QPointF(120, 90.5));
    moustache.cubicTo(QPointF(121, 94), QPointF(119, 96), QPointF(117.5, 95));
    moustache.cubicTo(QPointF(114, 90), QPointF(106, 90), QPointF(102.5, 95));
    moustache.cubicTo(QPointF(101, 96), QPointF(99, 94), QPointF(100, 90.5));
    moustache.closeSubpath();
    switch (style) {
    case 2: {
        // stubble over the jaw, chin and upper lip
        QPainterPath shadow = jaw.subtracted([] {
            QPainterPath cheeks;
            cheeks.addEllipse(QPointF(Fig::centre, 76), 26, 12);
            return cheeks;
        }());
        p.fillPath(shadow, withAlpha(beard, 70));
        strands(p, shadow, withAlpha(shade(beard, 0.8), 170), 14.0, 1.0, 90, 71, 0.6);
        break;
    }
    case 3: {
        // a full beard that follows the jaw, with a moustache
        QPainterPath full = jaw.subtracted([] {
            QPainterPath cheeks;
            cheeks.addEllipse(QPointF(Fig::centre, 74), 22, 10);
            QPainterPath lip;
            lip.addEllipse(QPointF(Fig::centre, 95), 7, 3.2);
            cheeks.addPath(lip);
            return cheeks;
        }());
        full = scaledAbout(full, QPointF(Fig::centre, 80), 1.03, 1.06);
        volumeFill(p, full, beard, 1.25, 0.6);
        strands(p, full, shade(beard, 0.6), 7.0, 3.0, 95, 81, 0.8);
        strands(p, full, shade(beard, 1.3), 2.5, 2.5, 85, 82, 0.7);
        stroke(p, full, withAlpha(shade(beard, 0.45), 180), 0.9);
        volumeFill(p, moustache, beard, 1.2, 0.6);
        strands(p, moustache, shade(beard, 0.6), 20.0, 2.2, 110, 83, 0.7);
        break;
    }
    case 4: {
        // a goatee and moustache
        QPainterPath goatee(QPointF(102, 96));
        goatee.cubicTo(QPointF(104, 98), QPointF(116, 98), QPointF(118, 96));
        goatee.cubicTo(QPointF(119, 101), QPointF(116, 107.5), QPointF(Fig::centre, 108));
        goatee.cubicTo(QPointF(104, 107.5), QPointF(101, 101), QPointF(102, 96));
        goatee.closeSubpath();
        volumeFill(p, goatee, beard, 1.2, 0.6);
        strands(p, goatee, shade(beard, 0.6), 18.0, 2.5, 95, 91, 0.7);
        stroke(p, goatee, withAlpha(shade(beard, 0.45), 170), 0.8);
        volumeFill(p, moustache, beard, 1.2, 0.6);
        strands(p, moustache, shade(beard, 0.6), 20.0, 2.2, 110, 92, 0.7);
        break;
    }
    default:
        break;
    }
    // the mouth: a firm line, the lower lip catching the light
    stroke(p, curve(QPointF(102.5, 93.2), QPointF(106, 92.2), QPointF(114, 92.2), QPointF(117.5, 93.4)),
           QColor(40, 15, 8, 200), 1.4);
    if (style != 3) {
        QPainterPath lip;
        lip.addEllipse(QPointF(Fig::centre, 96), 6, 1.8);
        p.fillPath(lip, QColor(120, 40, 30, 40));
        stroke(p, curve(QPointF(105, 98.6), QPointF(Fig::centre, 99.6), QPointF(115, 98.6)), QColor(60, 30, 10, 60),
               1.0);
    }
    return image;
}

QImage PortraitPainter::backdrop() const
{
    QImage image(Fig::width, Fig::height, QImage::Format_RGB32);
    {
        const QImage ground = leather(Fig::width, Fig::height, QColor(74, 44, 24), 901, 0.2);
        QPainter p(&image);
        p.drawImage(0, 0, ground);
        prepare(p);
        // the spotlight from above
        QRadialGradient spot(QPointF(Fig::centre, 120), 210);
        spot.setColorAt(0.0, QColor(255, 214, 150, 120));
        spot.setColorAt(0.5, QColor(180, 110, 60, 40));
        spot.setColorAt(1.0, QColor(0, 0, 0, 0));
        p.fillRect(image.rect(), spot);
        QLinearGradient dusk(0, 0, 0, Fig::height);
        dusk.setColorAt(0.0, QColor(10, 5, 2, 150));
        dusk.setColorAt(0.45, QColor(10, 5, 2, 0));
        dusk.setColorAt(1.0, QColor(10, 5, 2, 110));
        p.fillRect(image.rect(), dusk);
        // the far lights of the hall, out of focus
        QImage lights = canvas(Fig::width, Fig::height);
        {
            QPainter l(&lights);
            l.setRenderHint(QPainter::Antialiasing);
            for (int i = 0; i < 26; ++i) {
                const double x = noise(i * 3.1, 1, 7) * Fig::width;
                const double y = 10 + noise(1, i * 2.3, 8) * 110;
                const double r = 2 + noise(i, 4, 9) * 4;
                QRadialGradient bulb(QPointF(x, y), r);
                bulb.setColorAt(0.0, QColor(255, 220, 160, 110));
                bulb.setColorAt(1.0, QColor(255, 220, 160, 0));
                l.setBrush(bulb);
                l.setPen(Qt::NoPen);
                l.drawEllipse(QPointF(x, y), r, r);
            }
        }
        p.drawImage(0, 0, blurred(lights, 2));
        // the ropes of the ring behind the fighter
        QImage ropes = canvas(Fig::width, Fig::height);
        {
            QPainter r(&ropes);
            r.setRenderHint(QPainter::Antialiasing);
            for (double y : {196.0, 246.0, 296.0}) {
                const QPainterPath rope =
                    curve(QPointF(-10, y - 6), QPointF(Fig::centre, y + 8), QPointF(Fig::width + 10, y - 6));
                stroke(r, rope, QColor(40, 12, 8), 9);
                stroke(r, rope, QColor(150, 36, 26), 7);
                stroke(r, rope.translated(0, -1.6), QColor(230, 120, 90, 120), 2);
            }
        }
        p.drawImage(0, 0, blurred(ropes, 1));
    }
    return image;
}

QImage PortraitPainter::status(int part, int code) const
{
    // from healthy green through amber to red
    static const QColor codeColours[5] = {QColor(200, 30, 26), QColor(226, 100, 28), QColor(232, 176, 35),
                                          QColor(160, 196, 58), QColor(64, 174, 73)};
    const Build &build = builds[builds.size() > 1 ? 1 : 0];
    QPainterPath shape;
    switch (part) {
    case 0:
        shape = Fig::headPart();
        break;
    case 1:
        shape = Fig::bodyPart(build);
        break;
    case 2:
        shape = Fig::armsPart(build);
        break;
    default:
        shape = Fig::legsPart(build);
        break;
    }
    const QColor colour = codeColours[qBound(0, code, 4)];
    QImage image = figureCanvas();
    QPainter p(&image);
    prepare(p);
    {
        const QRectF box = shape.boundingRect();
        QRadialGradient gradient(box.center() + QPointF(-box.width() * 0.2, -box.height() * 0.2),
                                 std::max(box.width(), box.height()) * 0.8);
        gradient.setColorAt(0.0, withAlpha(shade(colour, 1.3), 215));
        gradient.setColorAt(0.6, withAlpha(colour, 205));
        gradient.setColorAt(1.0, withAlpha(shade(colour, 0.65), 215));
        p.fillPath(shape, gradient);
    }
    // the worse the part, the more cracks run through it
    p.save();
    p.setClipPath(shape);
    const QRectF box = shape.boundingRect();
    for (int crack = 0; crack < (4 - code) * 2; ++crack) {
        QPointF at(box.left() + box.width() * (0.2 + 0.6 * noise(crack * 2.7, part, 17)),
                   box.top() + box.height() * (0.15 + 0.7 * noise(part, crack * 1.9, 18)));
        QPainterPath zigzag(at);
        for (int step = 0; step < 5; ++step) {
            at += QPointF((noise(crack, step * 1.3, 19 + part) - 0.5) * 14, 5 + noise(step, crack, 20) * 5);
            zigzag.lineTo(at);
        }
        stroke(p, zigzag, QColor(40, 8, 4, 200), 1.6);
    }
    p.restore();
    outline(p, shape, QColor(255, 240, 210, 230), 2.2);
    outline(p, shape, withAlpha(shade(colour, 0.4), 200), 0.9);
    return image;
}

bool PortraitPainter::drawAll(ArtOutput &out) const
{
    bool ok = out.save(backdrop(), "Body/portraitbg.jpg");
    for (int n = 1; n <= bodyCount(); ++n)
        ok = out.save(body(n), QString("Body/body_%1.png").arg(n)) && ok;
    for (const QString &colour : palette.kitNames()) {
        ok = out.save(shorts(palette.kit(colour)), "Shorts/port_shorts_" + colour + ".png") && ok;
        ok = out.save(trim(palette.kit(colour)), "Trim/port_trim_" + colour + ".png") && ok;
    }
    // heads 1 and 8 are the same in every hair colour, and also have a file without one
    ok = out.save(head(1, QColor()), "Heads/head_1.png") && ok;
    ok = out.save(head(8, QColor()), "Heads/head_8.png") && ok;
    ok = out.save(face(1, QColor()), "Heads/face_1.png") && ok;
    for (const QString &hair : palette.hairNames()) {
        for (int style = 1; style <= 8; ++style)
            ok = out.save(head(style, palette.hair(hair)), QString("Heads/head_%1_%2.png").arg(style).arg(hair)) && ok;
        for (int style = 1; style <= 4; ++style)
            ok = out.save(face(style, palette.hair(hair)), QString("Heads/face_%1_%2.png").arg(style).arg(hair)) && ok;
    }
    static const char *const parts[4] = {"head", "body", "arms", "legs"};
    for (int part = 0; part < 4; ++part)
        for (int code = 0; code <= 4; ++code)
            ok = out.save(status(part, code), QString("Body/%1_status_%2.png").arg(parts[part]).arg(code)) && ok;
    return ok;
}
