#include "fighters/GameLists.h"
#include "fighters/StreamForm.h"

#include <QDataStream>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

// The pictures that the game's own data and style sheets name must stand in the Resources tree
// beside it, whole: a PNG from its signature to its end chunk, a JPEG from its start to its end
// of image. The game runs in the folder the tests run in.
namespace {

QString pictureFault(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "missing";
    const QByteArray bytes = file.readAll();
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return bytes.mid(12, 4) == "IHDR" && bytes.right(8).startsWith("IEND") ? QString() : "a broken PNG";
    if (bytes.startsWith("\xff\xd8"))
        return bytes.endsWith("\xff\xd9") ? QString() : "a broken JPEG";
    return "neither PNG nor JPEG";
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

    void styleSheetPicturesExist_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("screens") << "StyleSheet.css";
        QTest::newRow("top menu") << "TopMenuStyle.css";
    }

    void styleSheetPicturesExist()
    {
        QFETCH(QString, sheet);
        QFile file(sheet);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(sheet + " is missing"));
        const QString text = QString::fromLatin1(file.readAll());
        int count = 0;
        for (const QRegularExpressionMatch &match : QRegularExpression(R"(url\(([^)]*)\))").globalMatch(text)) {
            ++count;
            const QString fault = pictureFault(match.captured(1));
            QVERIFY2(fault.isEmpty(), qPrintable(match.captured(1) + ": " + fault));
        }
        QVERIFY(count > 0);
    }

    // the shorts and the trim of every kit colour, on the portrait and on the gym's emblem
    void everyKitColourIsDrawn()
    {
        for (const QString &colour : GameLists::kitColours())
            for (const QString &picture :
                 {"Shorts/port_shorts_" + colour + ".png", "Trim/port_trim_" + colour + ".png",
                  "Shorts/gym_shorts_" + colour + ".jpg", "Trim/gym_trim_" + colour + ".png"}) {
                const QString fault = pictureFault("./Resources/" + picture);
                QVERIFY2(fault.isEmpty(), qPrintable(picture + ": " + fault));
            }
    }

    // a flag for every nation that the default world's region lists can give a man
    void everyNationHasAFlag()
    {
        QFile file("./Resources/Defaults/default_nations.dat");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDataStream in(&file);
        in.setVersion(StreamForm::version);
        int nations = 0;
        for (int region = 0; region < 8; ++region) {
            QStringList list;
            StreamForm::readList(in, list);
            for (const QString &nation : std::as_const(list)) {
                const QString fault = pictureFault("./Resources/Flags/flag_" + nation + ".png");
                QVERIFY2(fault.isEmpty(), qPrintable(nation + ": " + fault));
                ++nations;
            }
        }
        QVERIFY(nations > 0);
    }
};

QTEST_GUILESS_MAIN(tst_Resources)
#include "tst_resources.moc"
