#pragma once

#include <QImage>
#include <QString>

class ArtOutput;

// The icons: the top menu's buttons in their four looks (up, hover, down, and flat for the screen
// the user is on), 70 x 70, from the one-colour glyphs of data/art/icons/menu; and the training
// icons, 64 x 64, the coloured drawings of data/art/icons/training on a leather tile.
class IconPainter
{
public:
    explicit IconPainter(const QString &dataDir);

    enum Look { Up, Hover, Down, Flat };
    QImage menuIcon(const QString &glyph, Look look, QString &error) const;
    QImage trainingIcon(const QString &drawing, QString &error) const;

    bool drawAll(ArtOutput &out, QString &error) const;

    static constexpr int menuSize = 70;
    static constexpr int trainingSize = 64;

private:
    QString dataDir;
};
