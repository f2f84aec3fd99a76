#include "screens/GamePictures.h"

#include <QPainter>

namespace {

// the ground and the layers above it, from the bottom, all drawn at the same place
QPixmap layered(const QString &ground, const QStringList &layers)
{
    QPixmap picture(ground);
    if (picture.isNull())
        return picture;
    QPainter painter(&picture);
    for (const QString &layer : layers)
        painter.drawPixmap(0, 0, QPixmap(layer));
    return picture;
}

// heads and faces come in each hair colour, but for the few drawn without hair
QString withHair(const QString &stem, int image, const QString &hair, bool hairless)
{
    return "./Resources/Heads/" + stem + QString::number(image) + (hairless ? QString() : "_" + hair) + ".png";
}

} // namespace

QPixmap GamePictures::portrait(const QStringList &colours, const QList<int> &images)
{
    const QString hair = colours.value(2);
    const int head = images.value(1);
    const int face = images.value(2);
    return layered("./Resources/Body/portraitbg.jpg",
                   {"./Resources/Body/body_" + QString::number(images.value(0)) + ".png",
                    "./Resources/Shorts/port_shorts_" + colours.value(0) + ".png",
                    "./Resources/Trim/port_trim_" + colours.value(1) + ".png",
                    withHair("head_", head, hair, head == 1 || head == 8), withHair("face_", face, hair, face == 1)});
}

QPixmap GamePictures::bodyStatus(int head, int body, int arms, int legs)
{
    const auto part = [](const char *name, int code) {
        return QString("./Resources/Body/%1_status_%2.png").arg(name).arg(code);
    };
    return layered("./Resources/Body/portraitbg.jpg",
                   {part("head", head), part("body", body), part("arms", arms), part("legs", legs)});
}

QPixmap GamePictures::gymEmblem(const QString &shortsColour, const QString &trimColour)
{
    return layered("./Resources/Shorts/gym_shorts_" + shortsColour + ".jpg",
                   {"./Resources/Trim/gym_trim_" + trimColour + ".png"});
}
