#include "WorldSamples.h"
#include "world/WorldInvariants.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

// a promotion whose roster stands as given, keys and all
Entity_Org genesisWith(const QList<Entity_Event> &calendar, const Entity_Org::Roster &roster)
{
    Entity_Org org;
    org.unpack({"Genesis", "Chief", "Japan", "note", "Elite", "A promotion.", "Tentative"}, calendar, {}, roster, {});
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
        QTest::newRow("a gym man without a booking") << 5 << "Ivan Drago has 0 booking records";
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
            calendar.append(makeEvent("Old Night", "Genesis", world.currentDate.addDays(-1), {slot("Single Match")}));
            break;
        case 5:
            world.bookings.clear();
            break;
        }
        world.organisations = {genesisWith(calendar, roster)};
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
