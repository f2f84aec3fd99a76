#include "FlagPainter.h"

#include "ArtOutput.h"
#include "TsvTable.h"

#include <QFile>
#include <QMap>
#include <QPainter>
#include <QSvgRenderer>

namespace {

// the flag itself inside the package's 320 x 240 pictures, without the clear margin
const QRect flagArea(26, 26, 268, 188);

} // namespace

FlagPainter::FlagPainter(const QString &dataDir, const QString &flagDir)
    : dataDir(dataDir)
    , flagDir(flagDir)
{
}

// centred on a clear plate of the size the screens show, keeping the flag's own proportions
QImage FlagPainter::plate(const QImage &source) const
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const int w = flagArea.width() * height / flagArea.height();
    p.drawImage(QRect((width - w) / 2, 0, w, height), source.copy(flagArea));
    return image;
}

// A flag of our own: the flat drawing lit like the package's flags, by the shading of its
// blank plate, and cut to the same rounded shape.
QImage FlagPainter::drawn(const QString &name, QString &error) const
{
    const QString svgPath = dataDir + "/art/flags/" + name + ".svg";
    QSvgRenderer svg(svgPath);
    const QImage blank(flagDir + "/_generic.png");
    if (!svg.isValid() || blank.isNull()) {
        error = "cannot draw the flag " + svgPath + " on " + flagDir + "/_generic.png";
        return {};
    }
    QImage flat(blank.size(), QImage::Format_ARGB32);
    flat.fill(Qt::transparent);
    {
        QPainter p(&flat);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p, QRectF(flagArea));
    }
    const QImage light = blank.convertToFormat(QImage::Format_ARGB32);
    // the plate is a mid grey: brighter than that is a gleam, darker is shade
    const double middle = qGray(light.pixel(flagArea.center()));
    QImage out(blank.size(), QImage::Format_ARGB32);
    for (int y = 0; y < out.height(); ++y) {
        const QRgb *f = reinterpret_cast<const QRgb *>(flat.constScanLine(y));
        const QRgb *l = reinterpret_cast<const QRgb *>(light.constScanLine(y));
        QRgb *o = reinterpret_cast<QRgb *>(out.scanLine(y));
        for (int x = 0; x < out.width(); ++x) {
            const double factor = qGray(l[x]) / middle;
            auto channel = [factor](int c) {
                const double v = factor <= 1.0 ? c * factor : c + (255 - c) * (factor - 1.0) * 0.8;
                return qBound(0, int(v + 0.5), 255);
            };
            o[x] = qRgba(channel(qRed(f[x])), channel(qGreen(f[x])), channel(qBlue(f[x])), qAlpha(l[x]));
        }
    }
    return out;
}

bool FlagPainter::drawAll(ArtOutput &out, QString &error) const
{
    TsvTable codes;
    if (!codes.read(dataDir + "/flags.tsv", 2)) {
        error = codes.error();
        return false;
    }
    QMap<QString, QString> codeOf;
    QStringList order;
    for (const QStringList &row : codes.rows()) {
        codeOf.insert(row[0], row[1]);
        order.append(row[0]);
    }
    // the nations of the game's lists; until that table stands, every nation of the flag table
    QStringList nations;
    if (QFile::exists(dataDir + "/nations.tsv")) {
        TsvTable lists;
        if (!lists.read(dataDir + "/nations.tsv", 2)) {
            error = lists.error();
            return false;
        }
        for (const QStringList &row : lists.rows())
            if (!nations.contains(row[1]))
                nations.append(row[1]);
    } else {
        nations = order;
    }
    QStringList missing;
    for (const QString &nation : nations)
        if (!codeOf.contains(nation))
            missing.append(nation);
    if (!missing.isEmpty()) {
        error = "data/flags.tsv has no flag for: " + missing.join(", ");
        return false;
    }

    bool ok = out.save(plate(QImage(flagDir + "/_generic.png")), "Flags/flag_blank.png");
    for (const QString &nation : nations) {
        const QString code = codeOf.value(nation);
        QImage source;
        if (code.startsWith("draw:")) {
            source = drawn(code.mid(5), error);
        } else {
            source = QImage(flagDir + "/" + code + ".png");
            if (source.isNull())
                error = "no picture " + flagDir + "/" + code + ".png for " + nation;
        }
        if (source.isNull())
            return false;
        ok = out.save(plate(source), "Flags/flag_" + nation + ".png") && ok;
    }
    return ok;
}
