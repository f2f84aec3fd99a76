#include "PersistenceKit.h"

#include "fighters/Random.h"
#include "fighters/StreamForm.h"
#include "persistence/FighterExport.h"
#include "world/Entity_Event.h"

#include <QDirIterator>
#include <QtTest>

using F = Entity_Fighter;
using namespace PersistenceKit;

namespace {

const QString exports = QStringLiteral("Resources/Exports/");

// a man's five parts written by hand, so that a count can be wrong
QByteArray streamedParts(const QStringList &strings, const QList<int> &integers)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    out << strings;
    StreamForm::writeList(out, integers);
    out << QDate(1993, 1, 1) << F::History() << QStringList();
    return bytes;
}

// every file under the working folder, and the places above it that a name could reach
QStringList filesAround()
{
    QStringList files;
    for (const char *outside : {"../Escaped.dat", "../../Escaped.dat", "Resources/Escaped.dat", "Escaped.dat"})
        if (QFileInfo::exists(outside))
            files << outside;
    for (QDirIterator it(".", QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
        files << it.next();
    files.sort();
    return files;
}

} // namespace

class tst_FighterExport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Random::useTestClock(5);
        QDir(exports).removeRecursively();
    }

    void cleanup() { GameManager::instance().resetWorld(); }

    // The file holds the plain record; in another world the man comes back as a new man of that
    // world: a fresh id, no nights and no belts of the old one, no contract, and everything else
    // of him as it was, his bio's line breaks included. Each import of the file is a man of his own.
    void exportAndImportGiveTheSameManWithANewId()
    {
        // a man under contract, second of the gym
        const int index = 1;
        QList<Entity_GymFighter> gym{gymMan("Reto", "Meyer", 1101, "GKO"), gymMan("Sami", "Kallio", 1102, "GKO")};
        QVERIFY(worldWith(gym, 1102).load());
        QString reason;
        QVERIFY2(FighterExport::write(index, &reason), qPrintable(reason));
        const QString name = gym[index].fullName();
        QCOMPARE(FighterExport::files().names(), QStringList{name});
        const QByteArray exported = fileBytes(FighterExport::files().pathOf(name));
        QCOMPARE(exported, streamed(gym[index].fighter()));

        // another game, further on in its ids
        QVERIFY(worldWith({gymMan("Home", "Man", 1400, "GKO")}, 1517).load());
        QVERIFY2(FighterExport::importFreeAgent(name, &reason), qPrintable(reason));
        QVERIFY2(FighterExport::importFreeAgent(name, &reason), qPrintable(reason));

        F expected = gym[index].fighter();
        expected.unpack(expected.stringList(), expected.integerList(), expected.getBirthDate(), {}, {});
        expected.setContract("Free Agent", 0);
        const WorldState &after = SavedWorld::running();
        QCOMPARE(after.nextId, 1519);
        QCOMPARE(after.freeAgents.size(), 3);
        QList<int> ids;
        for (const F &agent : after.freeAgents.values(expected.getRankingScore())) {
            ids << agent.getId();
            expected.setId(agent.getId());
            QVERIFY(agent == expected);
        }
        std::sort(ids.begin(), ids.end());
        QCOMPARE(ids, QList<int>({1518, 1519}));
        // the file stays as it was for the next game
        QCOMPARE(fileBytes(FighterExport::files().pathOf(name)), exported);
    }

    // A file that holds no fighter of this game, whole and alone, is refused with its reason, and
    // neither an import nor a fantasy night leaves a trace: the world saves to the same bytes.
    void aFileThatHoldsNoFighterIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");

        const F good = gymMan("Reto", "Meyer", 1101, "GKO").fighter();
        const QByteArray whole = streamed(good);
        const int stringsEnd = int(streamed(good.stringList()).size());
        auto changed = [&](auto change) {
            F other = good;
            change(other);
            return streamed(other);
        };

        QTest::newRow("an empty file") << QByteArray() << "The file is empty.";
        QTest::newRow("cut inside the strings") << whole.left(stringsEnd - 5) << "ends before";
        QTest::newRow("one byte more") << whole + QByteArray(1, '\0') << "more than one";
        QTest::newRow("a saved game") << worldWith({gymMan("Home", "Man", 1400, "GKO")}, 1200).bytes() << "";
        QTest::newRow("eleven strings") << streamedParts(good.stringList().mid(1), good.integerList()) << "damaged";
        QTest::newRow("a style of no list")
            << changed([](F &f) { f.setText(F::FightingStyle, "Ninja"); }) << "fighting style is unknown";
        QTest::newRow("a head of no picture")
            << changed([](F &f) { f.setNumber(F::HeadImage, 9); }) << "head picture is out of range";
        QTest::newRow("an attribute far out of range")
            << changed([](F &f) { f.setNumber(F::Discipline, 5000); }) << "attributes";
        QTest::newRow("more knockouts than wins")
            << changed([](F &f) { f.setNumber(F::Kos, 8); }) << "more knockouts than wins";
        QTest::newRow("no birthday") << changed([](F &f) { f.setBirthDate(QDate()); }) << "birthday is no date";
        QTest::newRow("a name that leaves the folder")
            << changed([](F &f) { f.setText(F::LastName, "../Meyer"); }) << "name";
    }

    void aFileThatHoldsNoFighterIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        QVERIFY(worldWith({gymMan("Home", "Man", 1400, "GKO")}, 1200).load());
        QDir().mkpath(exports);
        QVERIFY(writeBytes(FighterExport::files().pathOf("Stranger"), bytes));
        const QByteArray before = worldBytes();

        QString told, toldFantasy;
        Entity_Event night;
        QVERIFY(!FighterExport::importFreeAgent("Stranger", &told));
        QVERIFY(!FighterExport::importFantasyMatch("Stranger", 0, night, &toldFantasy));
        for (const QString &message : {told, toldFantasy})
            QVERIFY2(message.contains(reason) && !message.isEmpty(), qPrintable(message));
        QCOMPARE(worldBytes(), before);
        QCOMPARE(night.matchCount(), 0);
    }

    // A man's file takes his full name, and a name that would leave the folder of the exports is
    // refused before anything is written anywhere (the saves' names show the rest of the rule).
    void aNameStaysInTheFolderOfTheExports_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("written");
        QTest::newRow("accents") << QString("Ümit") << QString("Öztürk") << true;
        QTest::newRow("a slash") << QString("Reto") << QString("../../Escaped") << false;
    }

    void aNameStaysInTheFolderOfTheExports()
    {
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(bool, written);
        WorkingFolder folder;
        Entity_GymFighter pro = gymMan("Reto", "Meyer", 1101, "GKO");
        pro.setText(F::FirstName, first);
        pro.setText(F::LastName, last);
        QVERIFY(worldWith({pro}, 1101).load());
        const QStringList before = filesAround();

        QString reason;
        QCOMPARE(FighterExport::write(0, &reason), written);
        QCOMPARE(reason.isEmpty(), written);
        QCOMPARE(FighterExport::files().names(), written ? QStringList{first + " " + last} : QStringList());
        if (!written)
            QCOMPARE(filesAround(), before);
    }

private:
    // the tests run in a folder of their own, the game's Resources left alone
    WorkingFolder folder;
};

QTEST_GUILESS_MAIN(tst_FighterExport)
#include "tst_fighterexport.moc"
