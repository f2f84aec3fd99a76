#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

class QFont;
class QPainter;

// Small drawing helpers shared by all the painters of the art tool.
namespace ArtKit {

// the bold serif of the titles (URW P052 where the machine has it)
QFont titleFont(int pixelSize);

// a transparent picture of the given size, ready for painting
QImage canvas(int width, int height);
// the colour made lighter (factor > 1) or darker (factor < 1), keeping its hue
QColor shade(const QColor &colour, double factor);
QColor mix(const QColor &a, const QColor &b, double t);
QColor withAlpha(QColor colour, int alpha);
// relative brightness 0..1, to choose dark or light ink on a colour
double luminance(const QColor &colour);

// smooth value noise in 0..1, the same for the same arguments on every run
double noise(double x, double y, int seed);
// layered noise of a few octaves, 0..1
double grain(double x, double y, int seed);

// a leather ground: the base colour, fine grain, a soft light from the top left and dark corners
QImage leather(int width, int height, const QColor &base, int seed, double vignette = 0.55);

// fills the path with a gradient from light (top left) to dark (bottom right) of the colour
void fillShaded(QPainter &painter, const QPainterPath &path, const QColor &colour, double light = 1.25,
                double dark = 0.72);
// a soft dark shadow under a path
void dropShadow(QPainter &painter, const QPainterPath &path, QPointF offset, int alpha, int blur);

// a picture blurred by a small box filter, alpha included
QImage blurred(const QImage &image, int radius);

} // namespace ArtKit
