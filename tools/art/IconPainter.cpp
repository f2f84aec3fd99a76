#include "IconPainter.h"

#include "ArtKit.h"
#include "ArtOutput.h"

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

using namespace ArtKit;

namespace {

// the looks of a top menu button: face gradient, rim, glyph ink, and a glow round it
struct LookStyle {
    const char *suffix;
    QColor faceLight, faceDark, rim, ink, emboss;
    int glow;
    QPoint press;
};

const LookStyle &styleOf(IconPainter::Look look)
{
    static const LookStyle styles[4] = {
        {"up", QColor(0xEC, 0xC8, 0x96), QColor(0x9C, 0x64, 0x34), QColor(0x70, 0x40, 0x18), QColor(0x3C, 0x20, 0x0E),
         QColor(255, 240, 210, 140), 0, QPoint(0, 0)},
        {"hover", QColor(0xFA, 0xDE, 0xB0), QColor(0xB8, 0x7C, 0x44), QColor(0x88, 0x50, 0x20),
         QColor(0x2A, 0x14, 0x06), QColor(255, 250, 230, 170), 150, QPoint(0, 0)},
        {"down", QColor(0x7A, 0x4E, 0x30), QColor(0xD8, 0xA8, 0x74), QColor(0x5A, 0x30, 0x10), QColor(0x2A, 0x14, 0x06),
         QColor(255, 235, 200, 90), 0, QPoint(1, 2)},
        {"flat", QColor(0x7A, 0x48, 0x20), QColor(0x36, 0x1C, 0x0A), QColor(0xD9, 0xA4, 0x41), QColor(0xF4, 0xC8, 0x68),
         QColor(0, 0, 0, 150), 90, QPoint(0, 0)},
    };
    return styles[look];
}

// the glyph as a mask, tinted with one colour
QImage tinted(QSvgRenderer &svg, const QRectF &box, const QColor &colour, int size)
{
    QImage mask = canvas(size, size);
    {
        QPainter p(&mask);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p, box);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(mask.rect(), colour);
    }
    return mask;
}

} // namespace

IconPainter::IconPainter(const QString &dataDir)
    : dataDir(dataDir)
{
}

QImage IconPainter::menuIcon(const QString &glyph, Look look, QString &error) const
{
    const QString path = dataDir + "/art/icons/menu/" + glyph + ".svg";
    QSvgRenderer svg(path);
    if (!svg.isValid()) {
        error = "cannot read " + path;
        return {};
    }
    const LookStyle &style = styleOf(look);
    QImage image = canvas(menuSize, menuSize);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF face(4.5, 4.5, 61, 61);
    QPainterPath shape;
    shape.addRoundedRect(face, 15, 15);
    if (style.glow > 0) {
        QImage halo = canvas(menuSize, menuSize);
        {
            QPainter h(&halo);
            h.setRenderHint(QPainter::Antialiasing);
            h.strokePath(shape, QPen(QColor(255, 200, 100, style.glow), 5));
        }
        p.drawImage(0, 0, blurred(halo, 2));
    } else {
        dropShadow(p, shape, QPointF(0, 1.5), 120, 1);
    }
    QLinearGradient gradient(face.topLeft(), face.bottomRight());
    gradient.setColorAt(0.0, style.faceLight);
    gradient.setColorAt(1.0, style.faceDark);
    p.fillPath(shape, gradient);
    // a little grain, as on the leather of the screens
    p.save();
    p.setClipPath(shape);
    for (int y = 5; y < 66; y += 2)
        for (int x = 5; x < 66; x += 2)
            p.fillRect(QRectF(x, y, 1, 1), QColor(0, 0, 0, int(noise(x * 0.8, y * 0.8, 5) * 26)));
    // the gloss of the upper half
    QLinearGradient gloss(0, face.top(), 0, face.center().y());
    gloss.setColorAt(0.0, QColor(255, 255, 255, look == Down ? 10 : 70));
    gloss.setColorAt(1.0, QColor(255, 255, 255, 0));
    p.fillRect(face, gloss);
    p.restore();
    p.strokePath(shape, QPen(style.rim, look == Flat ? 2.6 : 2.0));
    QPainterPath inner;
    inner.addRoundedRect(face.adjusted(2.5, 2.5, -2.5, -2.5), 12.5, 12.5);
    p.strokePath(inner, QPen(look == Down ? QColor(0, 0, 0, 60) : QColor(255, 245, 225, look == Flat ? 40 : 90), 1));

    const QRectF box = QRectF(13, 13, 44, 44).translated(style.press);
    p.drawImage(QPointF(0, 1), tinted(svg, box, style.emboss, menuSize));
    p.drawImage(QPointF(0, 0), tinted(svg, box, style.ink, menuSize));
    return image;
}

QImage IconPainter::trainingIcon(const QString &drawing, QString &error) const
{
    const QString path = dataDir + "/art/icons/training/" + drawing + ".svg";
    QSvgRenderer svg(path);
    if (!svg.isValid()) {
        error = "cannot read " + path;
        return {};
    }
    QImage image = canvas(trainingSize, trainingSize);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF face(2.5, 2.5, 59, 59);
    QPainterPath shape;
    shape.addRoundedRect(face, 12, 12);
    QRadialGradient tan(QPointF(24, 20), 56);
    tan.setColorAt(0.0, QColor(0xF8, 0xE4, 0xC0));
    tan.setColorAt(0.6, QColor(0xE0, 0xB6, 0x87));
    tan.setColorAt(1.0, QColor(0xB0, 0x78, 0x48));
    p.fillPath(shape, tan);
    p.strokePath(shape, QPen(QColor(0x70, 0x40, 0x18), 2));
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    svg.render(&p, QRectF(8, 8, 48, 48));
    return image;
}

bool IconPainter::drawAll(ArtOutput &out, QString &error) const
{
    // the top menu's buttons and the help screen's icons share the glyphs
    static const char *const glyphs[] = {"profile", "training", "management", "events",   "database", "org",
                                         "next",    "save",     "help",       "mainmenu", "newgame",  "combat"};
    bool ok = true;
    for (const char *glyph : glyphs) {
        for (Look look : {Up, Hover, Down, Flat}) {
            const QImage icon = menuIcon(glyph, look, error);
            if (icon.isNull())
                return false;
            ok = out.save(icon, QString("TopMenu/top_%1_icon_%2.png").arg(glyph).arg(styleOf(look).suffix)) && ok;
        }
    }
    // the small arrows of the combo and spin boxes of the style sheet
    for (int up : {0, 1}) {
        QImage arrow = canvas(12, 12);
        QPainter p(&arrow);
        p.setRenderHint(QPainter::Antialiasing);
        QPolygonF triangle = up ? QPolygonF({QPointF(1.5, 9.5), QPointF(10.5, 9.5), QPointF(6, 2.5)})
                                : QPolygonF({QPointF(1.5, 2.5), QPointF(10.5, 2.5), QPointF(6, 9.5)});
        p.setPen(QPen(QColor(0xFF, 0xF0, 0xD0, 140), 1));
        p.setBrush(QColor(0x3C, 0x20, 0x0E));
        p.drawPolygon(triangle);
        p.end();
        ok = out.save(arrow, up ? "Backgrounds/control_arrow_up.png" : "Backgrounds/control_arrow_down.png") && ok;
    }
    const QStringList drawings = QDir(dataDir + "/art/icons/training").entryList({"*.svg"}, QDir::Files, QDir::Name);
    for (const QString &file : drawings) {
        const QString name = file.chopped(4);
        const QImage icon = trainingIcon(name, error);
        if (icon.isNull())
            return false;
        ok = out.save(icon, "Training Icons/" + name + "_icon.png") && ok;
    }
    return ok;
}
