#include "ContactSheet.h"
#include "fighters/GameLists.h"

#include "fighters/Random.h"

#include <QDir>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <cstdio>

namespace {

const QStringList &kitColours = GameLists::kitColours();
const QStringList &hairColours = GameLists::hairColours();

// the portrait as the game draws it: six pictures over one another
QImage portrait(const QString &r, int body, int head, int face, const QString &hair, const QString &shorts,
                const QString &trim)
{
    QImage image(r + "/Body/portraitbg.jpg");
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&image);
    const QString headFile =
        head == 1 || head == 8 ? QString("head_%1.png").arg(head) : QString("head_%1_%2.png").arg(head).arg(hair);
    const QString faceFile = face == 1 ? QString("face_1.png") : QString("face_%1_%2.png").arg(face).arg(hair);
    for (const QString &layer : {QString("Body/body_%1.png").arg(body), "Shorts/port_shorts_" + shorts + ".png",
                                 "Trim/port_trim_" + trim + ".png", "Heads/" + headFile, "Heads/" + faceFile})
        p.drawImage(0, 0, QImage(r + "/" + layer));
    return image;
}

void label(QPainter &p, const QRect &box, const QString &text)
{
    p.setPen(QColor(240, 220, 190));
    p.drawText(box, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, text);
}

} // namespace

namespace ContactSheet {

bool make(const QString &r, const QString &outFile, int seed)
{
    Random::useTestClock(quint32(seed));
    Random::seedFromClock();
    const int width = 1600;
    QImage sheet(width, 3000, QImage::Format_RGB32);
    sheet.fill(QColor(40, 26, 16));
    QPainter p(&sheet);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QFont font("DejaVu Sans", 8);
    p.setFont(font);
    int y = 10;

    // two rows of portraits at full size, one row at the small size of the lists
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < 7; ++i) {
            const int body = Random::d(21), head = Random::d(8), face = Random::d(4);
            const QString hair = hairColours[Random::u(4)];
            const QString shorts = kitColours[Random::u(14)], trim = kitColours[Random::u(14)];
            const QImage picture = portrait(r, body, head, face, hair, shorts, trim);
            const QRect box(10 + i * 228, y, 220, 352);
            p.drawImage(box.topLeft(), picture);
            p.setPen(QColor(240, 220, 190));
            p.drawText(QRect(box.left(), box.bottom() + 2, 220, 14), Qt::AlignCenter,
                       QString("b%1 h%2 f%3 %4 %5/%6").arg(body).arg(head).arg(face).arg(hair, shorts, trim));
        }
        y += 372;
    }
    for (int i = 0; i < 21; ++i) {
        const QImage picture = portrait(r, i + 1, 1 + i % 8, 1 + i % 4, hairColours[i % 4], kitColours[i % 14],
                                        kitColours[(i * 5 + 3) % 14]);
        p.drawImage(QRect(10 + i * 75, y, 70, 112), picture);
    }
    y += 122;

    // the logos
    const QStringList logos = QDir(r + "/Org Logos").entryList({"*.jpg"}, QDir::Files, QDir::Name);
    for (int i = 0; i < logos.size(); ++i) {
        const QRect box(10 + (i % 12) * 130, y + (i / 12) * 140, 125, 125);
        p.drawImage(box, QImage(r + "/Org Logos/" + logos[i]));
    }
    y += 290;

    // the icons of the top menu in their four looks, the training icons, the emblem
    const QStringList menu = QDir(r + "/TopMenu").entryList({"*.png"}, QDir::Files, QDir::Name);
    for (int i = 0; i < menu.size(); ++i)
        p.drawImage(QRect(10 + (i % 20) * 78, y + (i / 20) * 78, 70, 70), QImage(r + "/TopMenu/" + menu[i]));
    y += ((int(menu.size()) + 19) / 20) * 78 + 8;
    const QStringList icons = QDir(r + "/Training Icons").entryList({"*.png"}, QDir::Files, QDir::Name);
    for (int i = 0; i < icons.size(); ++i) {
        const QRect box(10 + i * 70, y, 64, 64);
        p.drawImage(box, QImage(r + "/Training Icons/" + icons[i]));
    }
    y += 74;
    for (int i = 0; i < 6; ++i) {
        QImage emblem(r + "/Shorts/gym_shorts_" + kitColours[(i * 3) % 14] + ".jpg");
        {
            QPainter e(&emblem);
            e.drawImage(0, 0, QImage(r + "/Trim/gym_trim_" + kitColours[(i * 7 + 2) % 14] + ".png"));
        }
        p.drawImage(QRect(10 + i * 130, y, 125, 125), emblem);
    }
    // the corner's status picture in three states
    for (int i = 0; i < 3; ++i) {
        QImage status(r + "/Body/portraitbg.jpg");
        status = status.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        {
            QPainter s(&status);
            const int codes[3][4] = {{4, 4, 4, 4}, {3, 2, 4, 1}, {0, 1, 2, 0}};
            const char *parts[4] = {"head", "body", "arms", "legs"};
            for (int k = 0; k < 4; ++k)
                s.drawImage(0, 0, QImage(QString("%1/Body/%2_status_%3.png").arg(r).arg(parts[k]).arg(codes[i][k])));
        }
        p.drawImage(QRect(800 + i * 90, y, 80, 128), status);
    }
    y += 140;

    // flags, small as the fight night shows them
    const QStringList flags = QDir(r + "/Flags").entryList({"*.png"}, QDir::Files, QDir::Name);
    for (int i = 0; i < flags.size() && i < 140; ++i)
        p.drawImage(QRect(10 + (i % 20) * 78, y + (i / 20) * 50, 72, 45), QImage(r + "/Flags/" + flags[i]));
    y += ((std::min(int(flags.size()), 140) + 19) / 20) * 50 + 8;

    // the world map and its overlays
    const QStringList filters{"Ranking", "North America", "South America", "Western Europe", "Eastern Europe",
                              "Africa",  "Middle East",   "East Asia",     "Oceania"};
    for (int i = 0; i < filters.size(); ++i) {
        QImage map(r + "/World Map/world_map.jpg");
        map = map.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        {
            QPainter m(&map);
            m.drawImage(0, 0, QImage(r + "/World Map/world_map_" + filters[i] + ".png"));
        }
        const QRect box(10 + (i % 3) * 430, y + (i / 3) * 235, 420, 225);
        p.drawImage(box, map);
        label(p, box, filters[i]);
    }
    y += 3 * 235;
    p.end();
    const QImage cut = sheet.copy(0, 0, width, y);
    if (!cut.save(outFile)) {
        std::fprintf(stderr, "orvane-art: cannot write %s\n", qPrintable(outFile));
        return false;
    }
    return true;
}

} // namespace ContactSheet
