#include "ArtOutput.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <cstdio>

ArtOutput::ArtOutput(const QString &root)
    : rootPath(root)
{
}

bool ArtOutput::save(const QImage &image, const QString &relativePath)
{
    const QString path = rootPath + "/" + relativePath;
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath())) {
        std::fprintf(stderr, "orvane-art: cannot make the folder of %s\n", qPrintable(path));
        return false;
    }
    QImageWriter writer(path);
    QImage out = image;
    if (info.suffix() == "jpg") {
        // a photograph format has no transparency: flatten on black, as the pictures are opaque anyway
        out = QImage(image.size(), QImage::Format_RGB32);
        out.fill(Qt::black);
        QPainter painter(&out);
        painter.drawImage(0, 0, image);
        painter.end();
        writer.setFormat("jpeg");
        writer.setQuality(90);
        writer.setOptimizedWrite(true);
    } else {
        writer.setFormat("png");
        out = image.convertToFormat(QImage::Format_ARGB32);
    }
    if (!writer.write(out)) {
        std::fprintf(stderr, "orvane-art: cannot write %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
        return false;
    }
    ++counts[relativePath.section('/', 0, -2)];
    return true;
}

int ArtOutput::total() const
{
    int sum = 0;
    for (int count : counts)
        sum += count;
    return sum;
}
