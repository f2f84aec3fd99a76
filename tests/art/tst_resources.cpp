#include "fighters/GameLists.h"
#include "fighters/StreamForm.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSize>
#include <QtTest>

// Every picture the game opens must be in the Resources tree beside it, readable to the last pixel
// and of the size its screen is laid out for; the layers painted over others must be see-through.
// The checks read the files themselves, so they need no picture library; the game runs in the
// folder the tests run in.
namespace {

const QStringList &kitColours = GameLists::kitColours();
const QStringList &hairColours = GameLists::hairColours();
const QStringList organisations{
    "G-1",           "Genesis",   "King's Stadium", "GKO",         "EPIC",     "Ironheart FC",     "Red Storm Global",
    "Albion FC",     "Dubai FC",  "Santa Maria FC", "Valhalla",    "Tie Long", "Pomwaree Stadium", "Kings Of Rio",
    "Daichi Senshu", "Centurion", "North Star",     "Ivory Throne"};
const QStringList mainNations{
    "Canada",      "United States", "Argentina",   "Brazil",    "Mexico",      "Denmark",      "England",
    "Finland",     "France",        "Germany",     "Greece",    "Italy",       "Netherlands",  "Norway",
    "Spain",       "Sweden",        "Croatia",     "Russia",    "Serbia",      "Cameroon",     "Ghana",
    "Ivory Coast", "South Africa",  "Egypt",       "Israel",    "Turkey",      "Saudi Arabia", "United Arab Emirates",
    "China",       "Japan",         "South Korea", "Australia", "New Zealand", "Thailand"};
const QStringList trainingIcons{
    "rest_icon.png",          "heavy_bag_icon.png",     "focus_mitts_icon.png", "speed_bag_icon.png",
    "banana_bag_icon.png",    "wall_bag_icon.png",      "thai_pads_icon.png",   "sparring_icon.png",
    "shadow_boxing_icon.png", "grappling_icon.png",     "swerve_bag_icon.png",  "movement_drills_icon.png",
    "foam_sticks_icon.png",   "skip_rope_icon.png",     "kettle_bell_icon.png", "running_icon.png",
    "plyometrics_icon.png",   "heavy_weights_icon.png", "video_study_icon.png", "game_planning_icon.png",
    "meditate_icon.png",      "rattan_sticks_icon.png"};
const QStringList helpIcons{"top_newgame_icon_up.png",    "top_profile_icon_up.png", "top_training_icon_up.png",
                            "top_management_icon_up.png", "top_events_icon_up.png",  "top_database_icon_up.png",
                            "top_org_icon_up.png",        "top_next_icon_up.png",    "top_combat_icon_up.png"};
const QStringList mapFilters{"Ranking", "North America", "South America", "Western Europe", "Eastern Europe",
                             "Africa",  "Middle East",   "East Asia",     "Oceania"};
const QStringList menuButtons{
    "profile_module_btn", "training_module_btn", "management_module_btn", "events_module_btn", "fighterdb_module_btn",
    "org_module_btn",     "next_day_btn",        "save_module_btn",       "help_module_btn",   "back_mainmenu_btn"};

const QSize portrait(220, 352);

quint32 bigEndian(const QByteArray &bytes, qsizetype at, int width)
{
    quint32 value = 0;
    for (int i = 0; i < width; ++i)
        value = (value << 8) | quint8(bytes[at + i]);
    return value;
}

quint32 crc32(const QByteArray &bytes, qsizetype from, qsizetype length)
{
    quint32 crc = 0xffffffffu;
    for (qsizetype i = from; i < from + length; ++i) {
        crc ^= quint8(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xedb88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

// What a picture file holds, read without a picture library: its size, whether it carries
// transparency, and for a PNG how many pixels are fully clear and how many are painted.
struct Picture {
    QSize size;
    bool valid = false;
    bool alpha = false;
    qsizetype clear = 0;
    qsizetype painted = 0;
    QString fault;
};

int paeth(int a, int b, int c)
{
    const int p = a + b - c;
    const int pa = qAbs(p - a), pb = qAbs(p - b), pc = qAbs(p - c);
    return pa <= pb && pa <= pc ? a : (pb <= pc ? b : c);
}

// the value a row filter predicts from the bytes left (a), above (b) and above left (c)
int predict(int filter, int a, int b, int c)
{
    switch (filter) {
    case 1:
        return a;
    case 2:
        return b;
    case 3:
        return (a + b) / 2;
    case 4:
        return paeth(a, b, c);
    default:
        return 0;
    }
}

// a PNG of 8-bit RGB or RGBA, not interlaced (what the art tool writes), decoded to the last pixel:
// every chunk's checksum, the image data inflated to its exact length, every row's filter undone
Picture readPng(const QByteArray &bytes)
{
    Picture picture;
    if (bytes.size() < 33 || bytes.mid(12, 4) != "IHDR") {
        picture.fault = "no PNG header";
        return picture;
    }
    const int width = int(bigEndian(bytes, 16, 4)), height = int(bigEndian(bytes, 20, 4));
    const int depth = quint8(bytes[24]), colourType = quint8(bytes[25]), interlace = quint8(bytes[28]);
    picture.size = QSize(width, height);
    if (depth != 8 || (colourType != 2 && colourType != 6) || interlace != 0) {
        picture.fault = QString("an unexpected PNG form (depth %1, colour type %2)").arg(depth).arg(colourType);
        return picture;
    }
    const int channels = colourType == 6 ? 4 : 3;
    picture.alpha = colourType == 6;
    QByteArray data;
    bool ended = false;
    for (qsizetype at = 8; at + 12 <= bytes.size() && !ended;) {
        const qsizetype length = bigEndian(bytes, at, 4);
        if (at + 12 + length > bytes.size()) {
            picture.fault = "a chunk runs past the end of the file";
            return picture;
        }
        if (bigEndian(bytes, at + 8 + length, 4) != crc32(bytes, at + 4, length + 4)) {
            picture.fault = "a chunk with a wrong checksum: " + QString::fromLatin1(bytes.mid(at + 4, 4));
            return picture;
        }
        const QByteArray type = bytes.mid(at + 4, 4);
        if (type == "IDAT")
            data += bytes.mid(at + 8, length);
        ended = type == "IEND";
        at += 12 + length;
    }
    const qsizetype stride = qsizetype(width) * channels;
    const qsizetype expected = (stride + 1) * height;
    QByteArray sized(4, '\0');
    for (int i = 0; i < 4; ++i)
        sized[i] = char((expected >> (24 - 8 * i)) & 0xff);
    const QByteArray raw = qUncompress(sized + data);
    if (!ended || raw.size() != expected) {
        picture.fault = ended ? "image data of the wrong length" : "no end chunk";
        return picture;
    }
    QByteArray previous(stride, '\0');
    for (int y = 0; y < height; ++y) {
        const int filter = quint8(raw[y * (stride + 1)]);
        QByteArray row = raw.mid(y * (stride + 1) + 1, stride);
        if (filter > 4) {
            picture.fault = "an unknown row filter";
            return picture;
        }
        for (qsizetype x = 0; x < stride; ++x) {
            const int a = x >= channels ? quint8(row[x - channels]) : 0;
            const int b = quint8(previous[x]);
            const int c = x >= channels ? quint8(previous[x - channels]) : 0;
            row[x] = char((quint8(row[x]) + predict(filter, a, b, c)) & 0xff);
        }
        if (picture.alpha)
            for (qsizetype x = 3; x < stride; x += 4)
                ++(quint8(row[x]) == 0 ? picture.clear : picture.painted);
        previous = row;
    }
    picture.valid = true;
    return picture;
}

// a baseline or progressive JPEG: markers from the start to a frame header, then to the end of image
Picture readJpeg(const QByteArray &bytes)
{
    Picture picture;
    qsizetype at = 2;
    while (at + 4 <= bytes.size() && quint8(bytes[at]) == 0xff) {
        const quint8 marker = quint8(bytes[at + 1]);
        if (marker >= 0xc0 && marker <= 0xc2 && at + 9 <= bytes.size())
            picture.size = QSize(int(bigEndian(bytes, at + 7, 2)), int(bigEndian(bytes, at + 5, 2)));
        if (marker == 0xda)
            break;
        at += 2 + bigEndian(bytes, at + 2, 2);
    }
    picture.valid = picture.size.isValid() && bytes.endsWith("\xff\xd9");
    if (!picture.valid)
        picture.fault = picture.size.isValid() ? "no end of image" : "no frame header";
    return picture;
}

Picture readPicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Picture missing;
        missing.fault = "missing";
        return missing;
    }
    const QByteArray bytes = file.readAll();
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return readPng(bytes);
    if (bytes.startsWith("\xff\xd8"))
        return readJpeg(bytes);
    Picture unknown;
    unknown.fault = "neither PNG nor JPEG";
    return unknown;
}

// how a picture is shown: on its own, or laid over others so that they must show through it
enum Use { Alone, Overlay };

void addPicture(const QString &row, const QString &path, QSize size, Use use = Alone)
{
    QTest::newRow(qPrintable(row)) << path << size << (use == Overlay);
}

// the nations of the default world's eight region lists; empty until the default world is made
QStringList nationsOfTheLists()
{
    QFile file("./Resources/Defaults/default_nations.dat");
    QStringList nations;
    if (!file.open(QIODevice::ReadOnly))
        return nations;
    QDataStream in(&file);
    in.setVersion(StreamForm::version);
    for (int region = 0; region < 8; ++region) {
        QStringList list;
        StreamForm::readList(in, list);
        nations += list;
    }
    return nations;
}

QString sheetText(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // a build of the core alone (the sanitizer run) draws no pictures and copies no sheets
        if (!QFile::exists("StyleSheet.css") && !QFile::exists("./Resources/Body"))
            QSKIP("this build draws no Resources");
    }

    void pictureStandsWithItsSize_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("overlay");
        // the portrait: six layers over the backdrop, each showing the ones below round the man
        addPicture("portrait backdrop", "Body/portraitbg.jpg", portrait);
        for (int body = 1; body <= 21; ++body)
            addPicture(QString("body %1").arg(body), QString("Body/body_%1.png").arg(body), portrait, Overlay);
        addPicture("shaved head", "Heads/head_1.png", portrait, Overlay);
        addPicture("head band", "Heads/head_8.png", portrait, Overlay);
        addPicture("plain face", "Heads/face_1.png", portrait, Overlay);
        for (const QString &hair : hairColours) {
            for (int head = 1; head <= 7; ++head)
                addPicture(QString("head %1 %2").arg(head).arg(hair),
                           QString("Heads/head_%1_%2.png").arg(head).arg(hair), portrait, Overlay);
            for (int face = 1; face <= 4; ++face)
                addPicture(QString("face %1 %2").arg(face).arg(hair),
                           QString("Heads/face_%1_%2.png").arg(face).arg(hair), portrait, Overlay);
        }
        // the kit on the portrait, and the gym's emblem: its trim painted over its shorts
        for (const QString &colour : kitColours) {
            addPicture("portrait shorts " + colour, "Shorts/port_shorts_" + colour + ".png", portrait, Overlay);
            addPicture("portrait trim " + colour, "Trim/port_trim_" + colour + ".png", portrait, Overlay);
            addPicture("gym emblem " + colour, "Shorts/gym_shorts_" + colour + ".jpg", QSize(250, 250));
            addPicture("gym emblem trim " + colour, "Trim/gym_trim_" + colour + ".png", QSize(250, 250), Overlay);
        }
        // the corner paints all four parts over the backdrop, each in the colour of its condition
        for (const char *part : {"head", "body", "arms", "legs"})
            for (int code = 0; code <= 4; ++code)
                addPicture(QString("%1 in the corner at %2").arg(part).arg(code),
                           QString("Body/%1_status_%2.png").arg(part).arg(code), portrait, Overlay);
        // a flag for every nation a man can come from, and the blank one of an empty choice
        addPicture("blank flag", "Flags/flag_blank.png", QSize(160, 100));
        QStringList nations = mainNations + nationsOfTheLists();
        nations.removeDuplicates();
        for (const QString &nation : nations)
            addPicture("flag of " + nation, "Flags/flag_" + nation + ".png", QSize(160, 100));
        for (const QString &name : organisations)
            addPicture("logo of " + name, "Org Logos/" + name + "_Logo.jpg", QSize(250, 250));
        for (const QString &icon : trainingIcons)
            addPicture("training " + icon, "Training Icons/" + icon, QSize(64, 64));
        for (const QString &icon : helpIcons)
            addPicture("help " + icon, "TopMenu/" + icon, QSize(70, 70));
        // the database's map, with each filter's overlay painted over it at the same size
        addPicture("world map", "World Map/world_map.jpg", QSize(420, 225));
        for (const QString &filter : mapFilters)
            addPicture("map lit for " + filter, "World Map/world_map_" + filter + ".png", QSize(420, 225), Overlay);
        addPicture("leather of the screens", "Backgrounds/MainBackground.jpg", QSize(1100, 700));
        addPicture("title picture", "Backgrounds/MainMenuTitlePic.jpg", QSize(760, 400));
    }
    void pictureStandsWithItsSize()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        QFETCH(bool, overlay);
        const Picture picture = readPicture("./Resources/" + path);
        QVERIFY2(picture.valid, qPrintable(path + ": " + picture.fault));
        QCOMPARE(picture.size, size);
        if (overlay) {
            // an overlay must let what lies under it show through, and must itself show something
            QVERIFY2(picture.alpha, "an overlay without transparency");
            QVERIFY2(picture.clear > 0, "an overlay that hides everything under it");
            QVERIFY2(picture.painted > 0, "an overlay that shows nothing");
        }
    }

    // the worse a part of the man, the more its picture in the corner must change: no two
    // conditions of a part may be drawn alike
    void everyConditionLooksDifferent_data()
    {
        QTest::addColumn<QString>("part");
        for (const char *part : {"head", "body", "arms", "legs"})
            QTest::newRow(part) << QString(part);
    }
    void everyConditionLooksDifferent()
    {
        QFETCH(QString, part);
        QSet<QByteArray> looks;
        for (int code = 0; code <= 4; ++code) {
            QFile file(QString("./Resources/Body/%1_status_%2.png").arg(part).arg(code));
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName() + " is missing"));
            looks.insert(file.readAll());
        }
        QCOMPARE(looks.size(), 5);
    }

    void styleSheetPicturesExist_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("screens") << "StyleSheet.css";
        QTest::newRow("top menu") << "TopMenuStyle.css";
    }
    void styleSheetPicturesExist()
    {
        QFETCH(QString, sheet);
        const QString text = sheetText(sheet);
        QVERIFY2(!text.isEmpty(), qPrintable(sheet + " is missing"));
        const QRegularExpression url(R"(url\(([^)]*)\))");
        int count = 0;
        for (const QRegularExpressionMatch &match : url.globalMatch(text)) {
            ++count;
            const Picture picture = readPicture(match.captured(1));
            QVERIFY2(picture.valid, qPrintable(match.captured(1) + ": " + picture.fault));
        }
        QVERIFY(count > 0);
    }

    // each button of the top menu finds its icon by its object name, with a look of its own for
    // hovering, pressing, and for being the screen the user is on
    void topMenuButtonHasEveryLook_data()
    {
        QTest::addColumn<QString>("objectName");
        for (const QString &name : menuButtons)
            QTest::newRow(qPrintable(name)) << name;
    }
    void topMenuButtonHasEveryLook()
    {
        QFETCH(QString, objectName);
        const QString text = sheetText("TopMenuStyle.css");
        QStringList pictures;
        for (const char *state : {"", ":hover", ":pressed", ":flat"}) {
            const QRegularExpression rule("QPushButton#" + objectName + QString(state) + R"(\s*\{[^}]*url\(([^)]*)\))");
            const QRegularExpressionMatch match = rule.match(text);
            QVERIFY2(match.hasMatch(), qPrintable("no rule for " + objectName + QString(state)));
            const Picture picture = readPicture(match.captured(1));
            QVERIFY2(picture.valid, qPrintable(match.captured(1) + ": " + picture.fault));
            QCOMPARE(picture.size, QSize(70, 70));
            pictures.append(match.captured(1));
        }
        pictures.removeDuplicates();
        QCOMPARE(pictures.size(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_Resources)
#include "tst_resources.moc"
