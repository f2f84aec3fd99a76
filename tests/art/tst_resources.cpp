#include "fighters/StreamForm.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QSize>
#include <QtTest>

// Every picture the game opens must be in the Resources tree beside it, readable and of the size
// its screen is laid out for. The checks read the files' own headers, so they need no picture
// library; the game runs in the folder the tests run in.
namespace {

const QStringList kitColours{"Black",        "Blue",   "Dark Blue", "Dark Green", "Dark Red", "Gold",  "Green",
                             "Light Yellow", "Purple", "Red",       "Silver",     "Teal",     "White", "Yellow"};
const QStringList hairColours{"Black", "Blond", "Brown", "Red"};
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

quint32 bigEndian(const QByteArray &bytes, int at, int width)
{
    quint32 value = 0;
    for (int i = 0; i < width; ++i)
        value = (value << 8) | quint8(bytes[at + i]);
    return value;
}

// the size a PNG or JPEG file declares, or an invalid size when it is neither
QSize declaredSize(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.readAll();
    if (bytes.startsWith("\x89PNG\r\n\x1a\n") && bytes.size() > 24 && bytes.mid(12, 4) == "IHDR")
        return QSize(int(bigEndian(bytes, 16, 4)), int(bigEndian(bytes, 20, 4)));
    if (bytes.startsWith("\xff\xd8")) {
        // walk the JPEG markers to the frame header
        int at = 2;
        while (at + 9 < bytes.size() && quint8(bytes[at]) == 0xff) {
            const quint8 marker = quint8(bytes[at + 1]);
            if (marker >= 0xc0 && marker <= 0xc3)
                return QSize(int(bigEndian(bytes, at + 7, 2)), int(bigEndian(bytes, at + 5, 2)));
            at += 2 + int(bigEndian(bytes, at + 2, 2));
        }
    }
    return {};
}

void addPicture(const QString &row, const QString &path, QSize size)
{
    QTest::newRow(qPrintable(row)) << path << size;
}

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
        addPicture("portrait backdrop", "Body/portraitbg.jpg", portrait);
        for (int body = 1; body <= 21; ++body)
            addPicture(QString("body %1").arg(body), QString("Body/body_%1.png").arg(body), portrait);
        addPicture("shaved head", "Heads/head_1.png", portrait);
        addPicture("head band", "Heads/head_8.png", portrait);
        addPicture("plain face", "Heads/face_1.png", portrait);
        for (const QString &hair : hairColours) {
            for (int head = 1; head <= 7; ++head)
                addPicture(QString("head %1 %2").arg(head).arg(hair),
                           QString("Heads/head_%1_%2.png").arg(head).arg(hair), portrait);
            for (int face = 1; face <= 4; ++face)
                addPicture(QString("face %1 %2").arg(face).arg(hair),
                           QString("Heads/face_%1_%2.png").arg(face).arg(hair), portrait);
        }
        for (const QString &colour : kitColours) {
            addPicture("portrait shorts " + colour, "Shorts/port_shorts_" + colour + ".png", portrait);
            addPicture("portrait trim " + colour, "Trim/port_trim_" + colour + ".png", portrait);
            addPicture("gym emblem " + colour, "Shorts/gym_shorts_" + colour + ".jpg", QSize(250, 250));
            addPicture("gym emblem trim " + colour, "Trim/gym_trim_" + colour + ".png", QSize(250, 250));
        }
        for (const char *part : {"head", "body", "arms", "legs"})
            for (int code = 0; code <= 4; ++code)
                addPicture(QString("%1 in the corner at %2").arg(part).arg(code),
                           QString("Body/%1_status_%2.png").arg(part).arg(code), portrait);
        addPicture("blank flag", "Flags/flag_blank.png", QSize(160, 100));
        for (const QString &nation : mainNations)
            addPicture("flag of " + nation, "Flags/flag_" + nation + ".png", QSize(160, 100));
        for (const QString &name : organisations)
            addPicture("logo of " + name, "Org Logos/" + name + "_Logo.jpg", QSize(250, 250));
        for (const QString &icon : trainingIcons)
            addPicture("training " + icon, "Training Icons/" + icon, QSize(64, 64));
        for (const QString &icon : helpIcons)
            addPicture("help " + icon, "TopMenu/" + icon, QSize(70, 70));
        addPicture("world map", "World Map/world_map.jpg", QSize(420, 225));
        for (const QString &filter : mapFilters)
            addPicture("map lit for " + filter, "World Map/world_map_" + filter + ".png", QSize(420, 225));
        addPicture("leather of the screens", "Backgrounds/MainBackground.jpg", QSize(1100, 700));
        addPicture("title picture", "Backgrounds/MainMenuTitlePic.jpg", QSize(760, 400));
    }
    void pictureStandsWithItsSize()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        QCOMPARE(declaredSize("./Resources/" + path), size);
    }

    // the nation lists of the default world give the flags the new game screen shows
    void everyNationOfTheListsHasAFlag()
    {
        const QStringList nations = nationsOfTheLists();
        if (nations.isEmpty())
            QSKIP("no nation lists in Resources/Defaults yet");
        QStringList missing;
        for (const QString &nation : nations)
            if (!declaredSize("./Resources/Flags/flag_" + nation + ".png").isValid())
                missing.append(nation);
        QVERIFY2(missing.isEmpty(), qPrintable("no flag for " + missing.join(", ")));
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
            QVERIFY2(declaredSize(match.captured(1)).isValid(), qPrintable(match.captured(1) + " is no picture"));
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
            QCOMPARE(declaredSize(match.captured(1)), QSize(70, 70));
            pictures.append(match.captured(1));
        }
        pictures.removeDuplicates();
        QCOMPARE(pictures.size(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_Resources)
#include "tst_resources.moc"
