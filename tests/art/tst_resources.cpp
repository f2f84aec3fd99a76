#include "fighters/GameLists.h"
#include "fighters/StreamForm.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

// The pictures that the game's own data and style sheets name must stand in the Resources tree
// beside it, whole: a PNG from its signature to its end chunk, a JPEG from its start to its end
// of image. The game runs in the folder the tests run in.
class tst_Resources : public QObject
{
    Q_OBJECT

private slots:
    void everyPictureTheGameNamesIsWhole()
    {
        // a build of the core alone (the sanitizer run) draws no pictures and copies no sheets
        if (!QFile::exists("StyleSheet.css") && !QFile::exists("./Resources/Body"))
            QSKIP("this build draws no Resources");
        QStringList named;
        for (const QString sheet : {"StyleSheet.css", "TopMenuStyle.css"}) {
            QFile file(sheet);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(sheet + " is missing"));
            for (const auto &match : QRegularExpression(R"(url\(([^)]*)\))").globalMatch(file.readAll()))
                named << match.captured(1);
        }
        // the shorts and the trim of every kit colour, on the portrait and on the gym's emblem
        for (const QString &colour : GameLists::kitColours())
            named << "./Resources/Shorts/port_shorts_" + colour + ".png"
                  << "./Resources/Trim/port_trim_" + colour + ".png"
                  << "./Resources/Shorts/gym_shorts_" + colour + ".jpg"
                  << "./Resources/Trim/gym_trim_" + colour + ".png";
        // a flag for every nation that the default world's region lists can give a man
        QFile nations("./Resources/Defaults/default_nations.dat");
        QVERIFY(nations.open(QIODevice::ReadOnly));
        QDataStream in(&nations);
        in.setVersion(StreamForm::version);
        for (int region = 0; region < 8; ++region) {
            QStringList list;
            StreamForm::readList(in, list);
            for (const QString &nation : std::as_const(list))
                named << "./Resources/Flags/flag_" + nation + ".png";
        }
        QVERIFY(named.size() > 4 * GameLists::kitColours().size() + 8);
        for (const QString &path : std::as_const(named)) {
            QFile file(path);
            const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            const bool png = bytes.startsWith("\x89PNG\r\n\x1a\n") && bytes.mid(12, 4) == "IHDR" &&
                             bytes.right(8).startsWith("IEND");
            const bool jpeg = bytes.startsWith("\xff\xd8") && bytes.endsWith("\xff\xd9");
            QVERIFY2(png || jpeg, qPrintable(path + " is missing or broken"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Resources)
#include "tst_resources.moc"
