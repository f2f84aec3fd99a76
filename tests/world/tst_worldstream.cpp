#include "WorldSamples.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

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

// a promotion whose roster stands as given, keys and all
Entity_Org genesisWith(const QList<Entity_Event> &calendar, const Entity_Org::Roster &roster,
                       const Entity_Org::Titles &titles = {})
{
    Entity_Org org;
    org.unpack({"Genesis", "Chief", "Japan", "note", "Elite", "A promotion.", "Tentative"}, calendar, {}, roster,
               titles);
    return org;
}

// a sound little world: one promotion with two men and a night next week, one man in the gym
World soundWorld()
{
    World world;
    const QDate nextWeek = world.currentDate.addDays(7);
    const Entity_Event night =
        makeEvent("Spring Night", "Genesis", nextWeek, {slot("Single Match", "Ken Aso", 1001, "TBA", 0)});
    world.organisations = {
        organisation("Genesis", {night},
                     {fighter(1001, "Ken", "Aso", 7000, "Genesis"), fighter(1002, "Leo", "Maas", 7200, "Genesis")})};
    world.freeAgents.insert(8000, fighter(1003, "Tom", "Berg", 8000));
    world.amateurs.insert(8000, fighter(1004, "Sam", "Ruiz", 8000));
    world.fighters = {gymFighter(1059, "Ivan", "Drago", 8000)};
    world.bookings = {Entity_Booking::emptyFor(1059, "Ivan Drago", QDate(1999, 1, 1))};
    return world;
}

} // namespace

class tst_WorldStream : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(9); }
    void cleanup() { game().resetWorld(); }

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

        // a whole world reads back to the same bytes
        const World w = fullWorld();
        WorldState read;
        QVERIFY(WorldState::fromBytes(w.bytes(), read));
        QCOMPARE(read.bytes(), w.bytes());
    }

    // a cut, damaged or lengthened save is refused, and the world it was read over stays as it was
    void aDamagedWorldIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        const World w = fullWorld();
        const QByteArray good = w.bytes();
        const int managerValues = managerValuesAt(w);
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

    void brokenRuleIsNamed_data()
    {
        QTest::addColumn<int>("breakage");
        QTest::addColumn<QString>("fault");
        QTest::newRow("sound world") << 0 << "";
        QTest::newRow("a free agent also in a roster") << 1 << "Tom Berg (id 1003) stands in";
        QTest::newRow("a roster key that is not his score") << 2 << "under 6900 with a ranking score of 7000";
        QTest::newRow("a booking on a night that is gone") << 3 << "which does not exist";
        QTest::newRow("a past night without results") << 4 << "passed without results";
        QTest::newRow("a roster man under another's contract")
            << 5 << "Ken Aso stands in Genesis under a contract with EPIC";
        QTest::newRow("a champion whose reign has ended")
            << 6 << "Ken Aso holds Genesis World Championship with no open";
        QTest::newRow("a man twice on one card") << 7 << "id 1001 stands twice on Spring Night";
    }

    void brokenRuleIsNamed()
    {
        QFETCH(int, breakage);
        QFETCH(QString, fault);
        World world = soundWorld();
        Entity_Org genesis = world.organisations.first();
        QList<Entity_Event> calendar;
        genesis.events(calendar);
        Entity_Org::Roster roster;
        genesis.rosterCopy(roster);
        Entity_Org::Titles titles;
        const auto replaceAso = [&](const QString &contract, int fightsLeft, const QStringList &reigns) {
            Entity_Fighter aso = roster.take(7000);
            aso.setContract(contract, fightsLeft);
            aso.setTitleList(reigns);
            roster.insert(7000, aso);
        };
        const QString belt = "Genesis World Championship";
        switch (breakage) {
        case 1:
            roster.insert(8000, fighter(1003, "Tom", "Berg", 8000, "Genesis"));
            break;
        case 2:
            roster.insert(6900, roster.take(7000));
            break;
        case 3:
            world.bookings = {
                Entity_Booking(1059, "Ivan Drago", "Gone Night", "Genesis", world.currentDate.addDays(3))};
            break;
        case 4:
            calendar.append(makeEvent("Old Night", "Genesis", world.currentDate.addDays(-1),
                                      {slot("Single Match", "Ken Aso", 1001, "Leo Maas", 1002)}));
            break;
        case 5:
            replaceAso("EPIC", 3, {});
            break;
        case 6:
            // his reign ended with his last contract; a row whose holder has left is no fault
            titles.insert(belt, "Ken Aso");
            titles.insert("Genesis Grand Prix 2010", "Otto Gone");
            replaceAso("Genesis", 3, {belt + " - from Sat Jan 1 2011 until Sun Feb 6 2011"});
            break;
        case 7:
            calendar = {makeEvent("Spring Night", "Genesis", world.currentDate.addDays(7),
                                  {slot("Single Match", "Ken Aso", 1001, "Leo Maas", 1002),
                                   slot("Single Match", "Ken Aso", 1001, "TBA", 0)})};
            break;
        }
        world.organisations = {genesisWith(calendar, roster, titles)};
        QVERIFY(world.load());
        const QStringList faults = WorldInvariants::check(game().state());
        if (fault.isEmpty()) {
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        } else {
            QCOMPARE(faults.size(), 1);
            QVERIFY2(faults.first().contains(fault), qPrintable(faults.first()));
        }
    }
};

QTEST_GUILESS_MAIN(tst_WorldStream)
#include "tst_worldstream.moc"
