#include "ArtKit.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QtMath>
#include <algorithm>

namespace ArtKit {

QFont titleFont(int pixelSize)
{
    QFont font;
    font.setFamilies({"P052", "C059", "DejaVu Serif"});
    font.setPixelSize(pixelSize);
    font.setBold(true);
    return font;
}

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QColor shade(const QColor &colour, double factor)
{
    if (factor >= 1.0) {
        // towards white, so that dark colours lighten too
        const double t = std::min(1.0, factor - 1.0);
        return mix(colour, QColor(255, 250, 240), t);
    }
    return QColor::fromRgbF(colour.redF() * factor, colour.greenF() * factor, colour.blueF() * factor, colour.alphaF());
}

QColor mix(const QColor &a, const QColor &b, double t)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * t, a.greenF() + (b.greenF() - a.greenF()) * t,
                            a.blueF() + (b.blueF() - a.blueF()) * t, a.alphaF() + (b.alphaF() - a.alphaF()) * t);
}

QColor withAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

double luminance(const QColor &colour)
{
    return 0.2126 * colour.redF() + 0.7152 * colour.greenF() + 0.0722 * colour.blueF();
}

namespace {

double lattice(int x, int y, int seed)
{
    // integer hash: the same corner always gives the same value
    quint32 h = quint32(x) * 374761393u + quint32(y) * 668265263u + quint32(seed) * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h ^= h >> 16;
    return double(h & 0xffffff) / double(0xffffff);
}

double smooth(double t)
{
    return t * t * (3.0 - 2.0 * t);
}

} // namespace

double noise(double x, double y, int seed)
{
    const int x0 = int(std::floor(x));
    const int y0 = int(std::floor(y));
    const double fx = smooth(x - x0);
    const double fy = smooth(y - y0);
    const double top = lattice(x0, y0, seed) + (lattice(x0 + 1, y0, seed) - lattice(x0, y0, seed)) * fx;
    const double bottom = lattice(x0, y0 + 1, seed) + (lattice(x0 + 1, y0 + 1, seed) - lattice(x0, y0 + 1, seed)) * fx;
    return top + (bottom - top) * fy;
}

double grain(double x, double y, int seed)
{
    double sum = 0.0;
    double weight = 0.5;
    double total = 0.0;
    for (int octave = 0; octave < 4; ++octave) {
        sum += noise(x, y, seed + octave * 101) * weight;
        total += weight;
        x *= 2.03;
        y *= 2.03;
        weight *= 0.5;
    }
    return sum / total;
}

QImage leather(int width, int height, const QColor &base, int seed, double vignette)
{
    QImage image(width, height, QImage::Format_RGB32);
    const double cx = width * 0.42;
    const double cy = height * 0.38;
    const double reach = std::hypot(width, height) * 0.62;
    for (int y = 0; y < height; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            // pebbled grain: cells of noise with fine creases
            const double cells = noise(x / 3.1, y / 3.1, seed);
            const double creases = grain(x / 22.0, y / 22.0, seed + 7);
            const double fine = noise(x / 1.3, y / 1.3, seed + 3);
            double light = 0.86 + 0.16 * cells + 0.22 * (creases - 0.5) + 0.05 * (fine - 0.5);
            const double d = std::hypot(x - cx, y - cy) / reach;
            light *= 1.0 - vignette * std::pow(std::min(1.0, d), 2.2);
            const QColor c = shade(base, std::clamp(light, 0.0, 1.0));
            line[x] = c.rgb();
        }
    }
    return image;
}

void fillShaded(QPainter &painter, const QPainterPath &path, const QColor &colour, double light, double dark)
{
    const QRectF box = path.boundingRect();
    QLinearGradient gradient(box.topLeft(), box.bottomRight());
    gradient.setColorAt(0.0, shade(colour, light));
    gradient.setColorAt(0.45, colour);
    gradient.setColorAt(1.0, shade(colour, dark));
    painter.fillPath(path, gradient);
}

void dropShadow(QPainter &painter, const QPainterPath &path, QPointF offset, int alpha, int blur)
{
    const QRectF box = path.boundingRect().adjusted(-blur * 3, -blur * 3, blur * 3, blur * 3).translated(offset);
    QImage shadow = canvas(int(box.width()) + 1, int(box.height()) + 1);
    {
        QPainter p(&shadow);
        p.setRenderHint(QPainter::Antialiasing);
        p.translate(-box.topLeft() + offset);
        p.fillPath(path, QColor(0, 0, 0, alpha));
    }
    painter.drawImage(box.topLeft(), blurred(shadow, blur));
}

QImage blurred(const QImage &source, int radius)
{
    if (radius <= 0)
        return source;
    QImage image = source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int w = image.width();
    const int h = image.height();
    QImage temp(image.size(), image.format());
    // two passes of a box filter in each direction come close to a gaussian
    for (int pass = 0; pass < 2; ++pass) {
        for (int y = 0; y < h; ++y) {
            const QRgb *src = reinterpret_cast<const QRgb *>(image.constScanLine(y));
            QRgb *dst = reinterpret_cast<QRgb *>(temp.scanLine(y));
            for (int x = 0; x < w; ++x) {
                int r = 0, g = 0, b = 0, a = 0, n = 0;
                for (int k = std::max(0, x - radius); k <= std::min(w - 1, x + radius); ++k, ++n) {
                    r += qRed(src[k]);
                    g += qGreen(src[k]);
                    b += qBlue(src[k]);
                    a += qAlpha(src[k]);
                }
                dst[x] = qRgba(r / n, g / n, b / n, a / n);
            }
        }
        for (int y = 0; y < h; ++y) {
            QRgb *dst = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < w; ++x) {
                int r = 0, g = 0, b = 0, a = 0, n = 0;
                for (int k = std::max(0, y - radius); k <= std::min(h - 1, y + radius); ++k, ++n) {
                    const QRgb p = reinterpret_cast<const QRgb *>(temp.constScanLine(k))[x];
                    r += qRed(p);
                    g += qGreen(p);
                    b += qBlue(p);
                    a += qAlpha(p);
                }
                dst[x] = qRgba(r / n, g / n, b / n, a / n);
            }
        }
    }
    return image;
}

} // namespace ArtKit
