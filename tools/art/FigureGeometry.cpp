#include "FigureGeometry.h"

#include "TsvTable.h"

#include <QLineF>
#include <QtMath>

namespace FigureGeometry {

namespace {

// one cubic piece of an outline: two control points and the end point
struct Piece {
    QPointF c1, c2, end;
};

QPointF mirrored(QPointF p)
{
    return QPointF(2 * centre - p.x(), p.y());
}

// A closed outline that is the same on both sides: `start` and the last end lie on the middle
// line, the pieces run down the picture's right side and come back up its left side.
QPainterPath symmetric(QPointF start, const QList<Piece> &right)
{
    QPainterPath path(start);
    for (const Piece &piece : right)
        path.cubicTo(piece.c1, piece.c2, piece.end);
    for (qsizetype i = right.size() - 1; i >= 0; --i) {
        const QPointF from = i > 0 ? right[i - 1].end : start;
        path.cubicTo(mirrored(right[i].c2), mirrored(right[i].c1), mirrored(from));
    }
    path.closeSubpath();
    return path;
}

// the same shape on the other side of the middle line
QPainterPath onSide(const QPainterPath &rightSide, int side)
{
    if (side > 0)
        return rightSide;
    return QTransform(-1, 0, 0, 1, 2 * centre, 0).map(rightSide);
}

double sideX(int side, double offset)
{
    return centre + (side > 0 ? offset : -offset);
}

// a limb from a to b, widths wa and wb, the sides swelling by `bulge` of the width, round ends
QPainterPath limb(QPointF a, QPointF b, double wa, double wb, double bulge)
{
    const QLineF axis(a, b);
    const double length = axis.length();
    const QPointF dir = (b - a) / length;
    const QPointF normal(-dir.y(), dir.x());
    const QPointF a1 = a + normal * (wa / 2), a2 = a - normal * (wa / 2);
    const QPointF b1 = b + normal * (wb / 2), b2 = b - normal * (wb / 2);
    const double swell = (wa + wb) / 2 * bulge;
    QPainterPath path(a1);
    path.cubicTo(a1 + dir * (length / 3) + normal * swell, b1 - dir * (length / 3) + normal * swell, b1);
    path.cubicTo(b1 + dir * (wb * 0.55), b2 + dir * (wb * 0.55), b2);
    path.cubicTo(b2 - dir * (length / 3) - normal * swell, a2 + dir * (length / 3) - normal * swell, a2);
    path.cubicTo(a2 - dir * (wa * 0.55), a1 - dir * (wa * 0.55), a1);
    path.closeSubpath();
    return path;
}

} // namespace

bool readBuilds(const QString &path, QList<Build> &builds, QString &error)
{
    TsvTable table;
    if (!table.read(path, 9)) {
        error = table.error();
        return false;
    }
    for (const QStringList &row : table.rows()) {
        Build build;
        build.name = row[0];
        double *fields[] = {&build.neck,    &build.shoulders, &build.chest, &build.upperArm,
                            &build.forearm, &build.thigh,     &build.belly, &build.definition};
        for (int i = 0; i < 8; ++i) {
            bool ok = false;
            *fields[i] = row[i + 1].toDouble(&ok);
            if (!ok) {
                error = path + ": not a number in the row of " + build.name;
                return false;
            }
        }
        builds.append(build);
    }
    if (builds.isEmpty()) {
        error = path + ": no build";
        return false;
    }
    return true;
}

QPainterPath cranium()
{
    return symmetric(QPointF(centre, 24), {
                                              {{127, 24}, {139, 35}, {139, 52}},
                                              {{140, 63}, {139.5, 74}, {136, 83}},
                                              {{133, 92}, {125, 100}, {118, 103.5}},
                                              {{115, 105}, {112.5, 105.5}, {centre, 105.5}},
                                          });
}

QPainterPath ear(int side)
{
    QPainterPath path(QPointF(137, 60));
    path.cubicTo(QPointF(141, 55), QPointF(146, 58), QPointF(145.5, 65));
    path.cubicTo(QPointF(145, 73), QPointF(142, 79), QPointF(137, 80));
    path.closeSubpath();
    return onSide(path, side);
}

QPainterPath neck(const Build &build)
{
    const double half = build.neck / 2;
    return symmetric(QPointF(centre, 80),
                     {
                         {{centre + half * 0.5, 80}, {centre + half - 2, 82}, {centre + half - 2, 86}},
                         {{centre + half - 3, 100}, {centre + half, 114}, {centre + half + 6, 124}},
                         {{centre + half, 127}, {centre + 8, 128}, {centre, 128}},
                     });
}

QPainterPath torso(const Build &build)
{
    const double n = build.neck / 2;
    const double s = build.shoulders / 2;
    const double c = build.chest / 2;
    const double b = build.belly;
    return symmetric(QPointF(centre, 131),
                     {
                         // up the sides of the throat to the neck, then the trapezius slopes to the shoulder
                         {{centre + 7, 124}, {centre + n - 4, 110}, {centre + n - 1.5, 99}},
                         {{centre + n + 6, 116}, {centre + s - 40, 124}, {centre + s - 16, 133}},
                         {{centre + s - 6, 137}, {centre + s - 3, 143}, {centre + s - 4, 152}},
                         // down the side to the armpit and the waist, which is the same for every build
                         {{centre + s - 6, 162}, {centre + c + 2, 166}, {centre + c, 178}},
                         {{centre + c + b * 12 - (1 - b) * 5, 202}, {centre + 43 + b * 9, 224}, {centre + 43, 238}},
                         {{centre + 44, 246}, {centre + 46, 254}, {centre + 46, 262}},
                         {{centre + 30, 266}, {centre + 10, 266}, {centre, 266}},
                     });
}

QPointF shoulderJoint(const Build &build, int side)
{
    return QPointF(sideX(side, build.shoulders / 2 - build.upperArm / 2 - 1), 158);
}

QPointF elbow(const Build &build, int side)
{
    return QPointF(sideX(side, build.shoulders / 2 - 8), 228);
}

QPainterPath deltoid(const Build &build, int side)
{
    const double rx = build.upperArm / 2 + 5;
    const double ry = build.upperArm / 2 + 6;
    const QPointF middle(sideX(side, build.shoulders / 2 - rx + 1), 155);
    QPainterPath path;
    path.addEllipse(middle, rx, ry);
    return path;
}

QPainterPath upperArm(const Build &build, int side)
{
    return limb(shoulderJoint(build, side), elbow(build, side), build.upperArm, build.upperArm * 0.82, 0.14);
}

QTransform gloveFrame(int side)
{
    QTransform frame;
    frame.translate(centre + 27, 150);
    frame.rotate(-18);
    if (side < 0)
        frame = frame * QTransform(-1, 0, 0, 1, 2 * centre, 0);
    return frame;
}

QPointF wrist(int side)
{
    return gloveFrame(side).map(QPointF(0, 26));
}

QPainterPath forearm(const Build &build, int side)
{
    return limb(elbow(build, side), wrist(side), build.forearm, build.forearm * 0.8, 0.12);
}

QPainterPath thigh(const Build &build, int side)
{
    return limb(QPointF(sideX(side, 24), 250), QPointF(sideX(side, 27), 372), build.thigh, build.thigh * 0.84, 0.05);
}

// The glove in its frame: knuckles up, cuff down, the thumb on the inner side.
QPainterPath gloveBody(int side)
{
    QPainterPath path(QPointF(-16, 15));
    path.cubicTo(QPointF(-24, 4), QPointF(-25, -24), QPointF(-4, -28));
    path.cubicTo(QPointF(14, -31), QPointF(25, -18), QPointF(23, -2));
    path.cubicTo(QPointF(22, 8), QPointF(19, 13), QPointF(15, 16));
    path.closeSubpath();
    return gloveFrame(side).map(path);
}

QPainterPath gloveThumb(int side)
{
    QPainterPath path(QPointF(-23, -8));
    path.cubicTo(QPointF(-29, -4), QPointF(-27, 10), QPointF(-17, 13));
    path.cubicTo(QPointF(-11, 14), QPointF(-8, 8), QPointF(-12, 2));
    path.cubicTo(QPointF(-15, -3), QPointF(-18, -8), QPointF(-23, -8));
    path.closeSubpath();
    return gloveFrame(side).map(path);
}

QPainterPath gloveCuff(int side)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(-15.5, 11, 31, 21), 4, 4);
    return gloveFrame(side).map(path);
}

QPainterPath gloveCuffBand(int side)
{
    QPainterPath path;
    path.addRect(QRectF(-15.5, 14, 31, 7));
    return gloveFrame(side).map(path).intersected(gloveCuff(side));
}

QPainterPath shorts()
{
    return symmetric(QPointF(centre, 231), {
                                               {{130, 231.5}, {150, 231.5}, {158, 233}},
                                               {{163, 252}, {168, 282}, {170, 298}},
                                               {{172, 305}, {175, 310}, {176, 315}},
                                               {{156, 320}, {130, 316}, {113, 311}},
                                               {{111.5, 301}, {111, 292}, {centre, 287}},
                                           });
}

QPainterPath waistband()
{
    return symmetric(QPointF(centre, 231),
                     {
                         {{130, 231.5}, {150, 231.5}, {158, 233}},
                         {{159, 238}, {160, 244}, {160.5, 249}},
                         {{150, 247.5}, {130, 247}, {centre, 247}},
                     })
        .intersected(shorts());
}

QPainterPath hemBand(int side)
{
    QPainterPath strip(QPointF(200, 322));
    strip.cubicTo(QPointF(156, 320), QPointF(130, 316), QPointF(104, 309));
    strip.lineTo(QPointF(104, 302));
    strip.cubicTo(QPointF(130, 309), QPointF(156, 313), QPointF(200, 315));
    strip.closeSubpath();
    return onSide(strip, side).intersected(shorts());
}

QPainterPath sideStripe(int side)
{
    QPainterPath strip(QPointF(159, 236));
    strip.cubicTo(QPointF(163, 256), QPointF(168, 286), QPointF(176, 320));
    strip.lineTo(QPointF(167, 320));
    strip.cubicTo(QPointF(160, 288), QPointF(156, 258), QPointF(152, 236));
    strip.closeSubpath();
    return onSide(strip, side).intersected(shorts());
}

QPainterPath headPart()
{
    QPainterPath path = cranium();
    path = path.united(ear(-1)).united(ear(1));
    return path;
}

QPainterPath bodyPart(const Build &build)
{
    QPainterPath path = torso(build).united(neck(build));
    return path.subtracted(cranium());
}

QPainterPath armsPart(const Build &build)
{
    QPainterPath path;
    for (int side : {-1, 1}) {
        path = path.united(deltoid(build, side)).united(upperArm(build, side)).united(forearm(build, side));
        path = path.united(gloveBody(side)).united(gloveThumb(side)).united(gloveCuff(side));
    }
    return path;
}

QPainterPath legsPart(const Build &build)
{
    QPainterPath path;
    for (int side : {-1, 1})
        path = path.united(thigh(build, side));
    QPainterPath hips;
    hips.addRect(QRectF(0, 262, width, height - 262));
    path = path.united(shorts().intersected(hips));
    QPainterPath frame;
    frame.addRect(QRectF(0, 0, width, height));
    return path.intersected(frame);
}

} // namespace FigureGeometry
