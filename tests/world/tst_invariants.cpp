#include "WorldSamples.h"
#include "world/WorldInvariants.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

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

class tst_Invariants : public QObject
{
    Q_OBJECT

private slots:
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
        const QStringList faults = WorldInvariants::check(GameManager::instance().state());
        if (fault.isEmpty()) {
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        } else {
            QCOMPARE(faults.size(), 1);
            QVERIFY2(faults.first().contains(fault), qPrintable(faults.first()));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Invariants)
#include "tst_invariants.moc"
