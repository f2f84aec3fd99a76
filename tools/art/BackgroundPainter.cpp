#include "BackgroundPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"

#include <QFont>
#include <QPainter>
#include <QtMath>

using namespace ArtKit;

namespace {

void stitches(QPainter &p, QLineF line, const QColor &colour)
{
    p.setPen(QPen(colour, 1.6, Qt::CustomDashLine, Qt::RoundCap));
    QPen pen = p.pen();
    pen.setDashPattern({3, 3});
    p.setPen(pen);
    p.drawLine(line);
}

} // namespace

QImage BackgroundPainter::mainBackground() const
{
    QImage image =
        leather(1100, 700, QColor(92, 56, 30), 1234, 0.62).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    // a warm light from above the middle
    QRadialGradient light(QPointF(550, 120), 640);
    light.setColorAt(0.0, QColor(255, 200, 130, 46));
    light.setColorAt(1.0, QColor(255, 200, 130, 0));
    p.fillRect(image.rect(), light);
    return image;
}

QImage BackgroundPainter::topMenuBackground() const
{
    QImage image =
        leather(1100, 100, QColor(58, 32, 16), 4321, 0.3).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient shine(0, 0, 0, 100);
    shine.setColorAt(0.0, QColor(255, 220, 170, 40));
    shine.setColorAt(0.5, QColor(255, 220, 170, 0));
    shine.setColorAt(1.0, QColor(0, 0, 0, 70));
    p.fillRect(image.rect(), shine);
    stitches(p, QLineF(6, 6, 1094, 6), QColor(0xE0, 0xB6, 0x87, 120));
    stitches(p, QLineF(6, 93, 1094, 93), QColor(0xE0, 0xB6, 0x87, 120));
    p.fillRect(QRectF(0, 97, 1100, 3), QColor(0x88, 0x50, 0x38));
    return image;
}

QImage BackgroundPainter::titlePicture() const
{
    const int w = titleWidth, h = titleHeight;
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    {
        // the dark hall
        QPainter p(&image);
        QRadialGradient hall(QPointF(w / 2.0, h * 0.45), w * 0.7);
        hall.setColorAt(0.0, QColor(92, 52, 26));
        hall.setColorAt(0.55, QColor(40, 20, 10));
        hall.setColorAt(1.0, QColor(12, 6, 3));
        p.fillRect(image.rect(), hall);
    }
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);

    // beams of the lights above the ring
    QImage beams = canvas(w, h);
    {
        QPainter b(&beams);
        b.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < 5; ++i) {
            const double top = 120 + i * 130;
            QPainterPath cone(QPointF(top - 12, -10));
            cone.lineTo(QPointF(top + 12, -10));
            cone.lineTo(QPointF(w / 2.0 + (i - 2) * 60 + 70, h * 0.78));
            cone.lineTo(QPointF(w / 2.0 + (i - 2) * 60 - 70, h * 0.78));
            cone.closeSubpath();
            QLinearGradient fade(0, 0, 0, h * 0.78);
            fade.setColorAt(0.0, QColor(255, 225, 170, 70));
            fade.setColorAt(1.0, QColor(255, 225, 170, 0));
            b.fillPath(cone, fade);
        }
    }
    p.drawImage(0, 0, blurred(beams, 6));

    // the ring: the canvas floor, the posts and three ropes at the back and the front
    const double floorTop = h * 0.71, floorBottom = h * 0.89;
    QPainterPath floor(QPointF(150, floorTop));
    floor.lineTo(QPointF(w - 150, floorTop));
    floor.lineTo(QPointF(w - 40, floorBottom));
    floor.lineTo(QPointF(40, floorBottom));
    floor.closeSubpath();
    QLinearGradient canvasLight(0, floorTop, 0, floorBottom);
    canvasLight.setColorAt(0.0, QColor(0xC8, 0x9C, 0x68));
    canvasLight.setColorAt(1.0, QColor(0xE8, 0xC8, 0x96));
    p.fillPath(floor, canvasLight);
    QRadialGradient pool(QPointF(w / 2.0, (floorTop + floorBottom) / 2), 260);
    pool.setColorAt(0.0, QColor(255, 240, 200, 90));
    pool.setColorAt(1.0, QColor(255, 240, 200, 0));
    p.fillPath(floor, pool);
    p.fillRect(QRectF(40, floorBottom, w - 80, h - floorBottom), QColor(0x5A, 0x20, 0x12));
    p.fillRect(QRectF(40, floorBottom, w - 80, 3), QColor(0x2A, 0x10, 0x08));

    auto post = [&p](double x, double top, double bottom, double width) {
        QLinearGradient metal(x - width / 2, 0, x + width / 2, 0);
        metal.setColorAt(0.0, QColor(40, 30, 25));
        metal.setColorAt(0.4, QColor(150, 140, 130));
        metal.setColorAt(1.0, QColor(30, 25, 20));
        p.fillRect(QRectF(x - width / 2, top, width, bottom - top), metal);
    };
    auto rope = [&p](QPointF a, QPointF b, double width, const QColor &colour) {
        QPainterPath line(a);
        line.quadTo((a + b) / 2 + QPointF(0, width * 0.8), b);
        p.strokePath(line, QPen(shade(colour, 0.4), width + 2, Qt::SolidLine, Qt::RoundCap));
        p.strokePath(line, QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        p.strokePath(line.translated(0, -width * 0.25),
                     QPen(QColor(255, 220, 200, 110), width * 0.3, Qt::SolidLine, Qt::RoundCap));
    };
    const QColor ropeColours[3] = {QColor(170, 34, 24), QColor(235, 225, 205), QColor(170, 34, 24)};
    post(150, floorTop - 78, floorTop + 2, 7);
    post(w - 150, floorTop - 78, floorTop + 2, 7);
    for (int i = 0; i < 3; ++i) {
        const double y = floorTop - 66 + i * 22;
        rope(QPointF(150, y), QPointF(w - 150, y), 4, shade(ropeColours[i], 0.75));
        rope(QPointF(150, y), QPointF(40, y + (floorBottom - floorTop) + 40 - i * 6), 5, shade(ropeColours[i], 0.85));
        rope(QPointF(w - 150, y), QPointF(w - 40, y + (floorBottom - floorTop) + 40 - i * 6), 5,
             shade(ropeColours[i], 0.85));
    }
    post(40, floorBottom - 150, floorBottom + 4, 12);
    post(w - 40, floorBottom - 150, floorBottom + 4, 12);
    for (int i = 0; i < 3; ++i) {
        const double y = floorBottom - 132 + i * 40;
        rope(QPointF(40, y), QPointF(w - 40, y), 7, ropeColours[i]);
    }

    // the crowd along the bottom edge, dark against the apron
    QPainterPath crowd;
    for (int i = 0; i < 40; ++i) {
        const double x = i * 20 + noise(i, 1, 3) * 10 - 5;
        const double top = h - 26 + noise(i, 2, 4) * 12;
        crowd.addEllipse(QPointF(x, top), 8, 9);
        crowd.addRoundedRect(QRectF(x - 12, top + 7, 24, 40), 8, 8);
    }
    p.fillPath(crowd, QColor(14, 8, 4));

    // the title, in gold, with a bevel and a shadow
    const QFont font = titleFont(132);
    QPainterPath title;
    title.addText(0, 0, font, "Orvane");
    const QRectF box = title.boundingRect();
    title.translate(w / 2.0 - box.center().x(), 112 - box.center().y());
    dropShadow(p, title, QPointF(4, 7), 220, 6);
    p.strokePath(title, QPen(QColor(40, 18, 6), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF titleBox = title.boundingRect();
    QLinearGradient gold(0, titleBox.top(), 0, titleBox.bottom());
    gold.setColorAt(0.0, QColor(255, 244, 196));
    gold.setColorAt(0.45, QColor(232, 178, 74));
    gold.setColorAt(0.55, QColor(184, 120, 36));
    gold.setColorAt(1.0, QColor(250, 206, 110));
    p.fillPath(title, gold);
    p.strokePath(title, QPen(QColor(255, 248, 220, 150), 1.2));

    QFont small = titleFont(20);
    small.setLetterSpacing(QFont::AbsoluteSpacing, 9);
    p.setFont(small);
    p.setPen(QColor(0xE0, 0xB6, 0x87));
    p.drawText(QRectF(0, titleBox.bottom() + 6, w, 30), Qt::AlignHCenter | Qt::AlignTop, "KICKBOXING  MANAGER");

    // a frame of thin gold round the picture
    p.setPen(QPen(QColor(0xD9, 0xA4, 0x41, 200), 3));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(1.5, 1.5, w - 3, h - 3));
    p.setPen(QPen(QColor(0x70, 0x40, 0x18), 1));
    p.drawRect(QRectF(5.5, 5.5, w - 11, h - 11));
    return image;
}

bool BackgroundPainter::drawAll(ArtOutput &out) const
{
    bool ok = out.save(mainBackground(), "Backgrounds/MainBackground.jpg");
    ok = out.save(topMenuBackground(), "Backgrounds/TopMenuBackground.jpg") && ok;
    ok = out.save(titlePicture(), "Backgrounds/MainMenuTitlePic.jpg") && ok;
    return ok;
}
