#pragma once

#include <QImage>
#include <QMap>
#include <QString>

// The Resources tree being drawn: saves each picture under its folder, in the format that its
// name asks for, and keeps count per folder for the closing report.
class ArtOutput
{
public:
    explicit ArtOutput(const QString &root);

    // relativePath like "Body/body_1.png"; ".jpg" pictures lose their alpha on a dark ground
    bool save(const QImage &image, const QString &relativePath);

    const QMap<QString, int> &countsPerFolder() const { return counts; }
    int total() const;
    const QString &root() const { return rootPath; }

private:
    QString rootPath;
    QMap<QString, int> counts;
};
