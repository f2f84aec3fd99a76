#pragma once

#include "Palette.h"

#include <QImage>

class ArtOutput;

// The gym's emblem on the new game and training screens: a pair of fight shorts on a leather
// medallion in the gym's first colour (a JPEG, 250 x 250), and the trim in its second colour
// (a PNG of the same size, clear elsewhere) painted over it at the origin.
class EmblemPainter
{
public:
    explicit EmblemPainter(const Palette &palette);

    QImage shorts(const QColor &colour) const;
    QImage trim(const QColor &colour) const;
    bool drawAll(ArtOutput &out) const;

    static constexpr int size = 250;

private:
    const Palette &palette;
};
