#pragma once

#include <QImage>

class ArtOutput;

// The grounds of the screens: the leather of every screen and dialog (MainBackground.jpg, the
// size of the window), the strip behind the top menu, and the title picture of the main menu:
// "Orvane" over a ring under the lights.
class BackgroundPainter
{
public:
    QImage mainBackground() const;
    QImage topMenuBackground() const;
    QImage titlePicture() const;
    bool drawAll(ArtOutput &out) const;

    static constexpr int titleWidth = 760;
    static constexpr int titleHeight = 400;
};
