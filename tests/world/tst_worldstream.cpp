#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

GameManager &world()
{
    return GameManager::instance();
}

Entity_Event titleNight()
{
    Entity_Event night = makeEvent(
        "G-1: Ames vs. TBA", "G-1", QDate(2011, 8, 6),
        {slot("Single Match", "Bo Bell", 12, "Gus Gray", 1050, true), slot("Championship Match", "Al Ames", 11)},
        "G-1 World Championship");
    night.addResults({"Single Match - Bo Bell defeated Gus Gray by KO(Knee) in 1:02 of Round 1."});
    return bookedEvent(night, true);
}

Entity_Org fullOrganisation()
{
    // equal keys, a past night, several title rows
    Entity_Fighter al = fighter(11, "Al", "Ames", 300, "G-1");
    al.addHistoryEntry(QDate(2011, 2, 5), "Win: Bo Bell - KO(Hook) - Rd. 1(0:50)");
    al.setTitleList({"G-1 World Championship - from Sat Feb 5 2011"});
    Entity_Org org = organisation("G-1", {titleNight()},
                                  {al, fighter(12, "Bo", "Bell", 300, "G-1"), fighter(13, "Cy", "Cole", -20, "G-1")},
                                  {{"G-1 World Championship", "Al Ames"}, {"G-1 Grand Prix 2011", "Vacant"}});
    org.rollOverEvents(); // the night goes to the past, its copy stands empty one year on
    return org;
}

World fullWorld()
{
    World w;
    w.nextId = 1207;
    w.currentDate = QDate(2012, 2, 29);
    w.manager.unpack({"Mo", "Mack", "Oceania", "Fiji", "Well Known"}, QList<int>(23, 4), {"GKO Grand Prix 2011"});
    w.gym.unpack({"Den", "Karate", "Red", "Gold", "Elite"}, QList<int>(26, 3), {1, 2, 3, 4, 5, 6, 7, 8});
    w.students = {fighter(2000, "Sam", "Stone", 8000), fighter(2000, "Sam", "Stone", 8000)};
    Entity_GymFighter gus = gymFighter(1050, "Gus", "Gray", 200, "G-1", 3, 4000);
    gus.trainingLog = {"\nMon Feb 27 2012 - Rested today."};
    gus.skillProgress[7] = -120;
    w.fighters = {gus, gymFighter(1051, "Hal", "Hart", 150)};
    w.organisations = {fullOrganisation(), organisation("GKO", {}, {}, {}, "Regional")};
    w.freeAgents.insert(8000, fighter(31, "Fay", "Fox", 8000));
    w.freeAgents.insert(8000, fighter(32, "Gil", "Gow", 8000));
    w.freeAgents.insert(7100, fighter(33, "Hy", "Hu", 7100));
    w.offers = {Entity_Booking(1051, "Hal Hart", "GKO Night", "GKO", QDate(2012, 3, 30))};
    w.bookings = {Entity_Booking(1050, "Gus Gray", "G-1 Event", "G-1", QDate(2012, 8, 6)),
                  Entity_Booking::emptyFor(1051, "Hal Hart", QDate(2012, 2, 1))};
    w.amateurs.insert(8000, fighter(41, "Ike", "Ide", 8000));
    w.amateurs.insert(8000, fighter(42, "Jo", "Judd", 8000));
    return w;
}

// the parts one after the other, as a stream of the save's version writes them
template <typename... Parts> QByteArray bytesOf(const Parts &...parts)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(StreamForm::version);
    (out << ... << parts);
    return bytes;
}

QByteArray withWord(QByteArray bytes, int at, quint32 word)
{
    QByteArray replacement;
    QDataStream out(&replacement, QIODevice::WriteOnly);
    out << word;
    bytes.replace(at, 4, replacement);
    return bytes;
}

// where the manager's list of 23 integers starts: id, date, the count and the five strings
int managerValuesAt(const World &w)
{
    return 8 + int(streamed(w.manager.strings()).size());
}

} // namespace

class tst_WorldStream : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(9); }
    void cleanup() { world().resetWorld(); }

    // each record is its pack, part after part, in the stream forms of Qt's own lists; the whole
    // world is its records one after the other
    void recordsKeepTheirLayout()
    {
        QCOMPARE(
            streamed(slot("Tournament Final", "Al Ames", 11, "TBA", 0, true)).toHex(),
            bytesOf(QStringList{"Al Ames", "TBA", "Tournament Final", "TBA"}, qint32(11), qint32(0), true).toHex());
        QCOMPARE(streamed(Entity_Booking()).toHex(),
                 bytesOf(qint32(0), QStringList{"N/A", "N/A", "N/A"}, QDate(1999, 1, 1)).toHex());
        QCOMPARE(Entity_Booking().dateText(), QString("N/A"));
        const Entity_Event night = titleNight();
        const QStringList eventStrings{"G-1: Ames vs. TBA",     "G-1", "Tokyo", "Elite", "Fight Night",
                                       "G-1 World Championship"};
        QCOMPARE(streamed(night).toHex(),
                 (bytesOf(eventStrings, QDate(2011, 8, 6), quint32(2)) + streamed(night.matchAt(0)) +
                  streamed(night.matchAt(1)) + bytesOf(night.results(), true))
                     .toHex());
        // the gym: 5 strings, 26 values, 8 entries of the ledger; the manager: 5, 23 and his titles
        const QStringList fiveStrings{QString(), QString(), QString(), QString(), "Unknown"};
        QList<qint32> values(26, 0);
        values[Entity_Gym::Money] = 10000;
        values[Entity_Gym::StudentSlots] = 3;
        values[Entity_Gym::FighterSlots] = 1;
        QCOMPARE(streamed(Entity_Gym()).toHex(), bytesOf(fiveStrings, values, QList<qint32>(8, 0)).toHex());
        Entity_Manager withTitle;
        withTitle.unpack(withTitle.strings(), withTitle.values(), {"T"});
        QCOMPARE(streamed(withTitle).toHex(), bytesOf(fiveStrings, QList<qint32>(23, 0), QStringList{"T"}).toHex());

        // a whole world reads back to the same bytes, and the running world is the one read
        const World w = fullWorld();
        WorldState read;
        QVERIFY(WorldState::fromBytes(w.bytes(), read));
        QCOMPARE(read.bytes(), w.bytes());
        GameManager::instance().takeWorld(read);
        QCOMPARE(world().getNextId(), 1207);
        QCOMPARE(world().getCurrentDate(), QDate(2012, 2, 29));
        QCOMPARE(world().fighterById(1050).skillProgress[7], -120);
        QCOMPARE(world().managerRecord(), w.manager);
    }

    // a cut, damaged or lengthened save is refused, and the world it was read over stays as it was
    void aDamagedWorldIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        const World w = fullWorld();
        const QByteArray good = w.bytes();
        const int managerValues = managerValuesAt(w);
        QTest::newRow("a world cut in the middle") << good.left(good.size() / 2);
        QTest::newRow("a world short of its last byte") << good.chopped(1);
        QTest::newRow("a manager of 22 values") << withWord(good, managerValues, 22);
        QTest::newRow("a manager of 24 values") << withWord(good, managerValues, 24);
        World undated = w;
        undated.currentDate = QDate();
        QTest::newRow("no date") << undated.bytes();
        QTest::newRow("a world followed by more") << good + QByteArray(1, '\0');
    }

    void aDamagedWorldIsRefused()
    {
        QFETCH(QByteArray, bytes);
        WorldState target = fullWorld();
        const QByteArray before = target.bytes();
        QString reason;
        QVERIFY(!WorldState::fromBytes(bytes, target, &reason));
        QVERIFY(!reason.isEmpty());
        QCOMPARE(target.bytes(), before);
    }
};

QTEST_GUILESS_MAIN(tst_WorldStream)
#include "tst_worldstream.moc"
