#include "PersistenceKit.h"

#include "fighters/FighterGenerator.h"
#include "fighters/Random.h"
#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "persistence/DefaultWorld.h"
#include "persistence/SaveFile.h"
#include "world/Entity_Match.h"

#include <QDirIterator>
#include <QtTest>

#include <sys/resource.h>

using F = Entity_Fighter;
using namespace PersistenceKit;

namespace {

F man(int id, const QString &first, const QString &last, int score, const QString &organisation = "Free Agent")
{
    FighterGenerator::Recipe recipe;
    recipe.today = QDate(2011, 1, 1);
    F fighter = FighterGenerator::makePerson({2, "Germany"}, first, last, recipe);
    fighter.setId(id);
    fighter.setNumber(F::RankingScore, score);
    fighter.setContract(organisation, organisation == "Free Agent" ? 0 : 4);
    return fighter;
}

// A small world with a record of every kind: students, a gym fighter, a promotion with a card,
// last year's night, a roster with careers and titles, free agents under one key, an offer, a
// booking and an amateur.
World smallWorld()
{
    World world;
    world.nextId = 1205;
    world.currentDate = QDate(2012, 5, 17);
    world.manager.unpack({"Ken", "Saito", "East Asia", "Japan", "Well Known"},
                         {320, 3, 4, 2, 5, 1, 3, 4, 2, 6, 1, 3, 2, 7, 1, 2, 3, 4, 8, 12, 5, 7, 3},
                         {"Albion FC World Championship - from Sat Mar 3 2012"});
    QList<int> gymValues(Entity_Gym::ValueCount, 2);
    gymValues[Entity_Gym::Money] = -350;
    world.gym.unpack({"Tiger Den", "Muay Thai", "Gold", "Black", "Local Hangout"}, gymValues, {1, 2, 3, 4, 5, 6, 7, 8});
    world.students = {man(2000, "Ari", "Student", 8000), man(2000, "Bo", "Student", 8000)};
    Entity_GymFighter pro(man(1201, "Cal", "Pro", 6100, "Albion FC"));
    pro.unpackExtras({2, 1, 3, 2, 44, 512, 4200}, QList<int>(Entity_GymFighter::ProgressCount, -17),
                     {"\nSat May 12 2012 - Sparred today."});
    pro.addHistoryEntry(QDate(2012, 3, 3),
                        "Win: Dan Roster - KO(Hook) - Rd. 2(1:10) - Albion FC: Albion FC: Pro vs. Roster");
    world.fighters = {pro};

    F champion = man(40, "Dan", "Roster", 3500, "Albion FC");
    champion.setTitleList({"Albion FC World Championship - from Sat Mar 5 2011 until Sat Mar 3 2012"});
    champion.addHistoryEntry(QDate(2012, 3, 3),
                             "Loss: Cal Pro - KO(Hook) - Rd. 2(1:10) - Albion FC: Albion FC: Pro vs. Roster");
    champion.addHistoryEntry(QDate(2012, 3, 3), "a second line on one date");
    Entity_Org::Roster roster;
    for (const F &member :
         {champion, man(41, "Eli", "Roster", 3500, "Albion FC"), man(42, "Finn", "Roster", 4100, "Albion FC")})
        roster.insert(member.getRankingScore(), member);
    Entity_Match main(Entity_Match::ChampionshipMatch);
    main.addFighter(1201, "Cal Pro", true);
    Entity_Event night({"Albion FC: Pro vs. TBA", "Albion FC", "London, England", "International", "Championship Event",
                        "Albion FC World Championship"},
                       QDate(2012, 5, 28), {Entity_Match(Entity_Match::SingleMatch), main});
    Entity_Event past(
        {"Albion FC: Roster vs. Roster", "Albion FC", "Glasgow, Scotland", "International", "Fight Night", "No Title"},
        QDate(2011, 4, 16), {Entity_Match()});
    past.addResults({"Single Match - Dan Roster defeated Eli Roster by Split Decision in 3:00 of Round 3."});
    Entity_Org org;
    org.unpack({"Albion FC", "Nigel Ashworth", "England", "note", "International", "A bio.", "Tentative"}, {night},
               {past}, roster, {{"Albion FC World Championship", "Cal Pro"}});
    world.organisations = {org};
    world.freeAgents.insert(8000, man(1202, "Gus", "Free", 8000));
    world.freeAgents.insert(8000, man(1203, "Hal", "Free", 8000));
    world.offers = {Entity_Booking(1201, "Cal Pro", "Albion FC: Pro vs. TBA", "Albion FC", QDate(2012, 5, 28))};
    world.bookings = {Entity_Booking(1201, "Cal Pro", "Albion FC: Pro vs. TBA", "Albion FC", QDate(2012, 5, 28))};
    F boy = man(1204, "Ivo", "Boy", 8000);
    boy.setNumber(F::Age, 16);
    world.amateurs.insert(8000, boy);
    return world;
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

long peakMemoryKb()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

QByteArray beBytes(quint32 value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

// the bytes of a world up to the end of the gym, where the seven lists begin
QByteArray frameHead(const World &world)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    out << world.nextId << world.currentDate << world.manager << world.gym;
    return bytes;
}

QByteArray streamed(const F &fighter)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    out << fighter;
    return bytes;
}

} // namespace

// Saving and loading whole games, and the files that must never be taken for one.
class tst_SaveFile : public QObject
{
    Q_OBJECT

    // a load that is refused says why and leaves the running world as it was
    static void expectRefused(const QString &path, const QByteArray &worldBefore)
    {
        QString reason;
        QVERIFY(!SaveFile::loadFrom(path, &reason));
        QVERIFY(!reason.isEmpty());
        QCOMPARE(worldBytes(), worldBefore);
    }

private slots:
    void init()
    {
        GameManager::instance().resetWorld();
        Random::useTestClock(77);
    }

    void saveLoadSaveGivesTheSameBytes_data()
    {
        QTest::addColumn<QString>("world");
        QTest::newRow("the world of a new game") << "default";
        QTest::newRow("a world with every kind of record") << "small";
        QTest::newRow("an empty world") << "empty";
    }
    void saveLoadSaveGivesTheSameBytes()
    {
        QFETCH(QString, world);
        if (world == "default") {
            QVERIFY2(defaultsPresent(), "the default files are missing");
            GameManager::instance().takeWorld(DefaultWorld::read());
            setUser("Japan", "East Asia");
        } else if (world == "small") {
            QVERIFY(smallWorld().load());
        }
        const QByteArray first = worldBytes();
        WorkingFolder folder;
        QString reason;
        QVERIFY2(SaveFile::save("first", &reason), qPrintable(reason));
        QCOMPARE(fileBytes(SaveFile::pathOf("first")), first);
        GameManager::instance().resetWorld();
        QVERIFY2(SaveFile::load("first", &reason), qPrintable(reason));
        QVERIFY(SaveFile::save("second", &reason));
        QCOMPARE(fileBytes(SaveFile::pathOf("second")), first);
        if (world == "small") {
            // two free agents under one key keep their order
            const World back = World::running();
            QCOMPARE(back.freeAgents.values(8000).value(0).fullName(),
                     smallWorld().freeAgents.values(8000).value(0).fullName());
            QCOMPARE(back.offers.size(), 1);
        }
    }

    void foreignFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const World small = smallWorld();
        const QByteArray head = frameHead(small);
        const QByteArray fighter = streamed(small.students.first());
        QTest::newRow("an empty file") << QByteArray();
        QByteArray noise;
        Random::useTestClock(9);
        for (int i = 0; i < 5000; ++i)
            noise.append(char(qrand()));
        QTest::newRow("random bytes") << noise;
        QTest::newRow("a text file")
            << QByteArray("Orvane saved games are not text files.\nThis one is.\n").repeated(20);
        QTest::newRow("a date and nothing more") << head.left(8);
        QTest::newRow("four billion students") << head + beBytes(0xFFFFFFF0) + fighter + fighter;
        QTest::newRow("a fighter of four billion strings")
            << head + beBytes(1) + beBytes(0xFFFFFFF0) + QByteArray(400, '\0');
        QTest::newRow("a name four billion bytes long")
            << head + beBytes(1) + beBytes(12) + beBytes(0xFFFFFFF0) + QByteArray(4000, 'x');
        // the fighter's five parts end with the history count and the title list
        QByteArray longHistory = fighter;
        longHistory.chop(8);
        QTest::newRow("a history of four billion lines")
            << head + beBytes(1) + longHistory + beBytes(0xFFFFFFF0) + QByteArray(64, '\0');
        QTest::newRow("half a world twice") << small.bytes().left(small.bytes().size() / 2).repeated(2);
    }
    void foreignFilesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(smallWorld().load());
        const QByteArray before = worldBytes();
        WorkingFolder folder;
        writeBytes("foreign.dat", bytes);
        const long memoryBefore = peakMemoryKb();
        expectRefused("foreign.dat", before);
        // a count in a file is no reason to reserve memory
        QVERIFY2(peakMemoryKb() - memoryBefore < 64 * 1024, qPrintable(QString::number(peakMemoryKb() - memoryBefore)));
    }

    void missingFileIsRefused()
    {
        QVERIFY(smallWorld().load());
        const QByteArray before = worldBytes();
        WorkingFolder folder;
        expectRefused(SaveFile::pathOf("nothing here"), before);
        QString reason;
        QVERIFY(!SaveFile::load("nothing here", &reason));
        QCOMPARE(reason, QString("There is no saved game of that name."));
    }

    // a write that fails halfway, as on a full disk, keeps the old save and leaves no scraps
    void failedWriteKeepsTheOldSave()
    {
        QVERIFY(smallWorld().load());
        WorkingFolder folder;
        QVERIFY(SaveFile::save("keep"));
        const QByteArray old = fileBytes(SaveFile::pathOf("keep"));
        GameManager::instance().resetWorld();
        QString reason;
        const bool saved = DataFile::write(
            SaveFile::pathOf("keep"),
            [](QDataStream &out) {
                const QByteArray world = worldBytes();
                out.writeRawData(world.constData(), int(world.size() / 2));
                out.setStatus(QDataStream::WriteFailed);
            },
            &reason);
        QVERIFY(!saved);
        QVERIFY(!reason.isEmpty());
        QCOMPARE(fileBytes(SaveFile::pathOf("keep")), old);
        QCOMPARE(QDir(SaveFile::folder()).entryList(QDir::Files | QDir::Hidden), QStringList{"keep.dat"});
    }

    void saveNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::newRow("empty") << "" << false;
        QTest::newRow("a dot") << "." << false;
        QTest::newRow("two dots") << ".." << false;
        QTest::newRow("a folder in the name") << "a/b" << false;
        QTest::newRow("a way out of the folder") << "../escape" << false;
        QTest::newRow("a root path") << QDir::tempPath() + "/escape" << false;
        QTest::newRow("a backslash") << "a\\b" << false;
        QTest::newRow("a control character") << "tab\there" << false;
        QTest::newRow("too long for a file name") << QString(300, 'a') << false;
        QTest::newRow("words and blanks") << "My Game 2" << true;
        QTest::newRow("letters beyond ASCII") << "Übung Çelik" << true;
        QTest::newRow("a name ending in .dat") << "game.dat" << true;
        QTest::newRow("a hidden name") << ".hidden" << false;
        QTest::newRow("dots at the start") << "..dots" << false;
        QTest::newRow("dots inside and at the end") << "a.b." << true;
    }
    void saveNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        WorkingFolder folder;
        QString reason;
        QCOMPARE(SaveFile::isValidName(name, &reason), valid);
        QCOMPARE(reason.isEmpty(), valid);
        QCOMPARE(SaveFile::save(name, &reason), valid);
        // a save lands in the folder of the saves, or nowhere at all
        QStringList files;
        QDirIterator it(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext())
            files.append(QDir(folder.path()).relativeFilePath(it.next()));
        QCOMPARE(files, valid ? QStringList{"Resources/Saves/" + name + ".dat"} : QStringList());
        QCOMPARE(SaveFile::load(name), valid);
        QCOMPARE(SaveFile::remove(name), valid);
    }

    void listingAndDeleting()
    {
        WorkingFolder folder;
        // the folder is made when it is missing
        QCOMPARE(SaveFile::savedGames(), QStringList());
        QVERIFY(QDir(SaveFile::folder()).exists());
        for (const char *name : {"beta", "Alpha", "gamma"})
            QVERIFY(SaveFile::save(name));
        writeBytes(SaveFile::folder() + "notes.txt", "not a save");
        QCOMPARE(SaveFile::savedGames(), (QStringList{"Alpha", "beta", "gamma"}));
        QVERIFY(SaveFile::exists("beta") && SaveFile::canOpen("beta"));
        QVERIFY(SaveFile::remove("beta"));
        QCOMPARE(SaveFile::savedGames(), (QStringList{"Alpha", "gamma"}));
        QString reason;
        QVERIFY(!SaveFile::remove("beta", &reason));
        QVERIFY(!reason.isEmpty());
        QVERIFY(!SaveFile::exists("beta") && !SaveFile::canOpen("beta"));
    }
};

QTEST_GUILESS_MAIN(tst_SaveFile)
#include "tst_savefile.moc"
