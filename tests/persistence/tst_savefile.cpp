#include "PersistenceKit.h"

#include "fighters/Random.h"
#include "persistence/DataFile.h"
#include "persistence/SaveFile.h"

#include <QDirIterator>
#include <QtTest>

#include <sys/resource.h>

using namespace PersistenceKit;

namespace {

long peakMemoryKb()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// the world of a new game runs: a refusal that emptied it would show
void runTheDefaultWorld()
{
    QVERIFY2(QFile::exists("./Resources/Defaults/default_nations.dat"), "the default files are missing");
    DefaultWorld::startPlainGame();
}

} // namespace

// Saving and loading whole games, and the files that must never be taken for one.
class tst_SaveFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        GameManager::instance().resetWorld();
        Random::useTestClock(77);
    }

    void saveLoadSaveGivesTheSameBytes()
    {
        runTheDefaultWorld();
        const QByteArray first = worldBytes();
        WorkingFolder folder;
        QString reason;
        QVERIFY2(SaveFile::save("first", &reason), qPrintable(reason));
        QCOMPARE(fileBytes(SaveFile::files().pathOf("first")), first);
        GameManager::instance().advanceDate();
        QVERIFY2(SaveFile::load("first", &reason), qPrintable(reason));
        QVERIFY(SaveFile::save("second", &reason));
        QCOMPARE(fileBytes(SaveFile::files().pathOf("second")), first);
    }

    // a damaged or foreign file is refused with a reason, the running world as it was, and no
    // memory reserved for a count
    void foreignFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const WorldState empty;
        const QByteArray head = streamed(qint32(empty.nextId)) + streamed(empty.currentDate) + streamed(empty.manager) +
                                streamed(empty.gym);
        const QByteArray fighter = streamed(Entity_Fighter());
        const auto count = [](quint32 value) { return streamed(value); };
        QByteArray noise;
        Random::useTestClock(9);
        for (int i = 0; i < 5000; ++i)
            noise.append(char(qrand()));
        QTest::newRow("random bytes") << noise;
        QTest::newRow("a save cut short") << empty.bytes().chopped(10);
        QTest::newRow("four billion students") << head + count(0xFFFFFFF0) + fighter + fighter;
        QTest::newRow("a fighter of four billion strings")
            << head + count(1) + count(0xFFFFFFF0) + QByteArray(400, '\0');
        QTest::newRow("a name four billion bytes long")
            << head + count(1) + count(12) + count(0xFFFFFFF0) + QByteArray(4000, 'x');
        // the fighter's five parts end with the history count and the title list
        QTest::newRow("a history of four billion lines")
            << head + count(1) + fighter.chopped(8) + count(0xFFFFFFF0) + QByteArray(64, '\0');
    }
    void foreignFilesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        runTheDefaultWorld();
        const QByteArray before = worldBytes();
        WorkingFolder folder;
        QVERIFY(writeBytes("foreign.dat", bytes));
        const long memoryBefore = peakMemoryKb();
        QString reason;
        QVERIFY(!SaveFile::loadFrom("foreign.dat", &reason));
        QVERIFY(!reason.isEmpty());
        QVERIFY2(peakMemoryKb() - memoryBefore < 64 * 1024, qPrintable(QString::number(peakMemoryKb() - memoryBefore)));
        QCOMPARE(worldBytes(), before);
        QVERIFY(!SaveFile::load("nothing here", &reason));
        QCOMPARE(reason, QString("There is no saved game of that name."));
        QCOMPARE(worldBytes(), before);
    }

    // a write that fails halfway, as on a full disk, keeps the old save and leaves no scraps
    void failedWriteKeepsTheOldSave()
    {
        WorkingFolder folder;
        QVERIFY(SaveFile::save("keep"));
        const QByteArray old = fileBytes(SaveFile::files().pathOf("keep"));
        QString reason;
        const auto halfway = [](QDataStream &out) {
            out.writeRawData("half", 4);
            out.setStatus(QDataStream::WriteFailed);
        };
        QVERIFY(!DataFile::write(SaveFile::files().pathOf("keep"), halfway, &reason));
        QVERIFY(!reason.isEmpty());
        QCOMPARE(fileBytes(SaveFile::files().pathOf("keep")), old);
        QCOMPARE(QDir(SaveFile::files().folder()).entryList(QDir::Files | QDir::Hidden), QStringList{"keep.dat"});
    }

    // a save lands in the folder of the saves and in its list, or nowhere at all
    void saveNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("empty") << "" << false;
        QTest::newRow("two dots") << ".." << false;
        QTest::newRow("a way out of the folder") << "../escape" << false;
        QTest::newRow("a root path") << QDir::tempPath() + "/escape" << false;
        QTest::newRow("a backslash") << "a\\b" << false;
        QTest::newRow("a control character") << "tab\there" << false;
        QTest::newRow("too long for a file name") << QString(300, 'a') << false;
        QTest::newRow("letters beyond ASCII and blanks") << "Übung Çelik 2" << true;
        QTest::newRow("a name ending in .dat") << "game.dat" << true;
    }
    void saveNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        WorkingFolder folder;
        QString reason;
        QCOMPARE(SaveFile::files().isValidName(name, &reason), valid);
        QCOMPARE(reason.isEmpty(), valid);
        QCOMPARE(SaveFile::save(name, &reason), valid);
        QStringList files;
        for (QDirIterator it(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
            files.append(QDir(folder.path()).relativeFilePath(it.next()));
        QCOMPARE(files, valid ? QStringList{"Resources/Saves/" + name + ".dat"} : QStringList());
        QCOMPARE(SaveFile::files().names(), valid ? QStringList{name} : QStringList());
        QCOMPARE(SaveFile::load(name), valid);
        QCOMPARE(SaveFile::remove(name), valid);
    }
};

QTEST_GUILESS_MAIN(tst_SaveFile)
#include "tst_savefile.moc"
