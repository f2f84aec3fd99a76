#pragma once

#include <QList>
#include <QPainterPath>
#include <QString>
#include <QTransform>

// One fighter's build, from data/art/builds.tsv; all lengths in pixels of the 220 x 352 portrait.
struct Build {
    QString name;
    double neck = 40;
    double shoulders = 158;
    double chest = 112;
    double upperArm = 31;
    double forearm = 25;
    double thigh = 46;
    double belly = 0;
    double definition = 0.75;
};

// The shapes of the fighter in his guard, in portrait pixels. Every layer of the portrait (body,
// shorts, trim, hair, face) and the corner's status pictures draw from these shapes, so the
// layers meet for every build: the head, the waist, the shorts and the gloves stand at the same
// place for all builds, and a build only changes the neck, shoulders, chest, arms and thighs.
// `side` is -1 for the fighter's right (the left of the picture) and +1 for his left.
namespace FigureGeometry {

constexpr int width = 220;
constexpr int height = 352;
constexpr double centre = 110;

bool readBuilds(const QString &path, QList<Build> &builds, QString &error);

QPainterPath cranium();
QPainterPath ear(int side);
QPainterPath neck(const Build &build);
QPainterPath torso(const Build &build);
QPainterPath deltoid(const Build &build, int side);
QPainterPath upperArm(const Build &build, int side);
QPainterPath forearm(const Build &build, int side);
QPainterPath thigh(const Build &build, int side);

// where the forearm enters the glove
QPointF wrist(int side);
QPointF elbow(const Build &build, int side);
QPointF shoulderJoint(const Build &build, int side);

// the glove in its own frame (cuff at the bottom) and the frame that puts it on the figure
QTransform gloveFrame(int side);
QPainterPath gloveBody(int side);
QPainterPath gloveThumb(int side);
QPainterPath gloveCuff(int side);
QPainterPath gloveCuffBand(int side);

// the loose shorts and their trim
QPainterPath shorts();
QPainterPath waistband();
QPainterPath hemBand(int side);
QPainterPath sideStripe(int side);

// the whole figure of a build, as the status pictures of the corner outline it
QPainterPath headPart();
QPainterPath bodyPart(const Build &build);
QPainterPath armsPart(const Build &build);
QPainterPath legsPart(const Build &build);

} // namespace FigureGeometry
