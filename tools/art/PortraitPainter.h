#pragma once

#include "FigureGeometry.h"
#include "Palette.h"

#include <QImage>

class ArtOutput;

// The fighter's portrait, six pictures of 220 x 352 laid over one another: the backdrop, the
// body (build and skin), the shorts and gloves, their trim, the hair and the face. Also the
// corner's status pictures, which outline the same figure part by part.
class PortraitPainter
{
public:
    PortraitPainter(const Palette &palette, const QList<Build> &builds);

    // body pictures are numbered build first: 1 is the first build in the lightest skin
    int bodyCount() const;
    QImage body(int number) const;
    QImage shorts(const QColor &colour) const;
    QImage trim(const QColor &colour) const;
    // hair styles 1 to 8; style 1 is a shaved head and 8 a head band, the same in every hair colour
    QImage head(int style, const QColor &hair) const;
    // faces 1 to 4; an invalid colour draws the plain face whose brows suit any hair
    QImage face(int style, const QColor &hair) const;
    QImage backdrop() const;
    // part 0 head, 1 body, 2 arms, 3 legs; code 4 healthy down to 0 finished
    QImage status(int part, int code) const;

    bool drawAll(ArtOutput &out) const;

private:
    const Palette &palette;
    QList<Build> builds;
};
