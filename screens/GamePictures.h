#pragma once

#include <QList>
#include <QPixmap>
#include <QString>
#include <QStringList>

// The pictures that the game draws from layers in the Resources tree: every screen that shows a
// man or the gym's emblem draws it here. A missing layer is left out; a missing ground gives an
// empty picture, which leaves its label empty.
namespace GamePictures {

// the portrait of a man from his colours (shorts, trim, hair) and images (body, head, face)
QPixmap portrait(const QStringList &colours, const QList<int> &images);
// a man's body in his corner: the ground and the state of head, body, arms and legs over it, each
// by its code from 4 (sound) to 0 (spent)
QPixmap bodyStatus(int head, int body, int arms, int legs);
// the gym's emblem: the shorts in one colour, the trim in the other
QPixmap gymEmblem(const QString &shortsColour, const QString &trimColour);

} // namespace GamePictures
