#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "persistence/NameFiles.h"
#include "world/RetirementTable.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QDate Today(2011, 3, 1);

// a man of `age`, whose birthday is tonight or, without one, in the summer
Entity_Fighter manAged(int id, int age, bool birthday, const QString &organisation = Org, int score = 0)
{
    Entity_Fighter man = fighter(id, "Ken", "Man" + QString::number(id), score ? score : 100 * id, organisation);
    man.setNumber(Entity_Fighter::Age, age);
    man.setBirthDate(birthday ? QDate(Today.year() - age - 1, Today.month(), Today.day()) : QDate(1970, 7, 20));
    setAll(man, 50);
    return man;
}

World worldOf(const QList<Entity_Fighter> &roster, const QList<Entity_Event> &calendar = {},
              const QList<Entity_GymFighter> &gym = {}, const QDate &today = Today)
{
    World w;
    w.currentDate = today;
    w.organisations = {organisation(Org, calendar, roster)};
    w.addGym(gym);
    return w;
}

Entity_Event nightIn(int days, const QList<Entity_Match> &card = {slot(Entity_Match::SingleMatch)})
{
    return makeEvent("Test FC Night", Org, Today.addDays(days), card);
}

// the ageing of the world tonight, new talent made by the game's own generator
WorldRosters::Ageing ageTheWorld(QStringList &news)
{
    return game().ageWorld(news, [] {
        QString name;
        game().generateFighter(NameFiles::book(), name, false);
        return name;
    });
}

// the chance to retire, in twentieths
struct Roll {
    const char *name;
    RetirementTable::Who who;
    int age, inTwenty;
};
const Roll rolls[] = {
    {"a roster man of 40 has no roll", RetirementTable::RosterFighter, 40, 0},
    {"a roster man of 41: one in ten", RetirementTable::RosterFighter, 41, 2},
    {"a roster man of 51: fifteen in twenty", RetirementTable::RosterFighter, 51, 15},
    {"a free agent of 37 has no roll", RetirementTable::FreeAgent, 37, 0},
    {"a free agent of 38: one in ten", RetirementTable::FreeAgent, 38, 2},
    {"a gym fighter of 37 has no roll", RetirementTable::GymFighter, 37, 0},
    {"a gym fighter of 45: six in fifteen", RetirementTable::GymFighter, 45, 8},
};

} // namespace

class tst_Ageing : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(31); }
    void cleanup() { game().resetWorld(); }

    void retirementRoll_data() { TableRows::add(rolls); }
    void retirementRoll()
    {
        const Roll &row = TableRows::current(rolls);
        QCOMPARE(RetirementTable::hasRoll(row.who, row.age), row.inTwenty > 0);
        const int nights = 4000;
        int retired = 0;
        for (int night = 0; night < nights; ++night)
            retired += RetirementTable::retires(row.who, row.age);
        // within a fortieth of the chance
        QVERIFY2(qAbs(retired * 20 - row.inTwenty * nights) <= nights / 2, qPrintable(QString::number(retired)));
    }

    // The age that the roll reads is tonight's, with the birthday counted: a roster man of 40 who
    // turns 41 tonight may go, one of 40 whose birthday is still to come may not.
    void theRollCountsTonightsBirthday_data()
    {
        QTest::addColumn<int>("age");
        QTest::addColumn<bool>("birthday");
        QTest::newRow("a roster man turning 41") << 40 << true;
        QTest::newRow("a roster man of 40") << 40 << false;
    }
    void theRollCountsTonightsBirthday()
    {
        QFETCH(int, age);
        QFETCH(bool, birthday);
        const World w = worldOf({manAged(1001, age, birthday)});
        const QString turned = "Ken Man1001 has turned " + QString::number(age + 1) + " years old.";
        int gone = 0;
        for (int night = 0; night < 200; ++night) {
            QVERIFY(w.load());
            QStringList news;
            gone += ageTheWorld(news).retirements;
            QCOMPARE(news.contains(turned), birthday);
        }
        // one in ten of 200 nights
        QVERIFY2(birthday ? gone > 8 && gone < 35 : gone == 0, qPrintable(QString::number(gone)));
    }

    // Four men of an organisation may go in a night: the walk ends at the fourth, and the men
    // behind him are not even looked at: no birthday, no year of growth, no roll. Nobody leaves
    // on the day of a show; his birthday year comes all the same.
    void theFifthRetirementOfANightIsRefused_data()
    {
        QTest::addColumn<bool>("show");
        QTest::newRow("a night without a show") << false;
        QTest::newRow("the day of a show") << true;
    }
    void theFifthRetirementOfANightIsRefused()
    {
        QFETCH(bool, show);
        QList<Entity_Fighter> roster;
        for (int i = 0; i < 14; ++i)
            roster.append(manAged(1001 + i, 60, true));
        const Entity_Match bout = slot(Entity_Match::SingleMatch, "Ken Man1001", 1001, "Ken Man1002", 1002);
        QVERIFY(worldOf(roster, {nightIn(show ? 0 : 10, {bout})}).load());
        QStringList news;
        QCOMPARE(ageTheWorld(news).retirements, show ? 0 : 4);
        const QStringList retirements = news.filter(" has retired from Test FC");
        // the walk goes in ranking order, so ids rise with it; it stopped at the fourth who went
        const int lastWalked = show ? 1014 : retirements.last().section(' ', 1, 1).mid(3).toInt();
        for (int id = 1001; id < 1015; ++id) {
            const Entity_Fighter man = game().rosterFighter(Org, id);
            const bool walked = id <= lastWalked;
            QCOMPARE(news.contains("Ken Man" + QString::number(id) + " has turned 61 years old."), walked);
            QVERIFY(man.getId() == 0 || man.number(Entity_Fighter::Age) == (walked ? 61 : 60));
        }
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    void amateursTurnProfessional_data()
    {
        QTest::addColumn<QList<int>>("freeAgentKeys");
        QTest::addColumn<QList<bool>>("amateurBirthdays"); // amateurs of 17, in key order
        QTest::addColumn<QList<int>>("newKeys");           // the keys of the new professionals
        QTest::newRow("at the end of the list, each further man 100 behind")
            << QList<int>{300, 5000} << QList<bool>{true, false, true} << QList<int>{5100, 5200};
        QTest::newRow("an empty list starts at 100") << QList<int>{} << QList<bool>{true} << QList<int>{100};
    }
    void amateursTurnProfessional()
    {
        QFETCH(QList<int>, freeAgentKeys);
        QFETCH(QList<bool>, amateurBirthdays);
        QFETCH(QList<int>, newKeys);
        World w = worldOf({});
        w.nextId = 9000;
        for (int key : freeAgentKeys)
            w.freeAgents.insert(key, manAged(2100 + key, 25, false, "Free Agent", 6000));
        for (int i = 0; i < amateurBirthdays.size(); ++i)
            w.amateurs.insert(8000, manAged(1001 + i, 17, amateurBirthdays[i], "Free Agent", 8000));
        QVERIFY(w.load());
        QStringList news;
        QCOMPARE(ageTheWorld(news).newProfessionals, newKeys.size());

        QList<int> keys;
        const auto &pool = SavedWorld::running().freeAgents;
        for (auto it = pool.cbegin(); it != pool.cend(); ++it) {
            if (it.value().getId() > 2000)
                continue;
            keys.append(it.key());
            // a free agent of 18 with no contract, his own ranking score kept in his record
            QCOMPARE(it.value().number(Entity_Fighter::Age), 18);
            QCOMPARE(it.value().text(Entity_Fighter::Organisation), QString("Free Agent"));
            QCOMPARE(it.value().number(Entity_Fighter::ContractFightsLeft), 0);
            QCOMPARE(it.value().getRankingScore(), 8000);
            QVERIFY(news.contains(it.value().fullName() + " has come of age and turned professional."));
        }
        QCOMPARE(keys, newKeys);
        QCOMPARE(SavedWorld::running().amateurs.size(), amateurBirthdays.size() - newKeys.size());
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    // Once the amateurs of the first world have had their time, the free agents are kept at 20 by
    // one new man a night, and only from 2021 on.
    void newTalentWhenTheAmateursRunOut_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<int>("freeAgents");
        QTest::addColumn<QList<int>>("countAfterEachNight");
        QTest::newRow("the first day of 2021") << QDate(2021, 1, 1) << 18 << QList<int>{19, 20, 20};
        QTest::newRow("the last day of 2020") << QDate(2020, 12, 31) << 18 << QList<int>{18};
        QTest::newRow("twenty are enough") << QDate(2025, 6, 1) << 20 << QList<int>{20};
    }
    void newTalentWhenTheAmateursRunOut()
    {
        QFETCH(QDate, today);
        QFETCH(int, freeAgents);
        QFETCH(QList<int>, countAfterEachNight);
        World w = worldOf({}, {}, {}, today);
        w.nextId = 3000;
        for (int i = 0; i < freeAgents; ++i)
            w.freeAgents.insert(5000, manAged(2001 + i, 25, false, "Free Agent"));
        QVERIFY(w.load());
        for (int count : countAfterEachNight) {
            QStringList news;
            const WorldRosters::Ageing moves = ageTheWorld(news);
            QCOMPARE(SavedWorld::running().freeAgents.size(), count);
            QCOMPARE(moves.newTalent, news.filter("has come of age and turned professional.").size());
        }
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    // A gym fighter of 70 goes by age within a few nights, unless his organisation holds a show
    // today, and then nothing is said; a student never retires. What his going takes from the
    // world is the same as when the user retires him.
    void aGymFighterRetiresByAge_data()
    {
        QTest::addColumn<int>("showInDays");
        QTest::newRow("his next show next week") << 7;
        QTest::newRow("on the day of a show") << 0;
    }
    void aGymFighterRetiresByAge()
    {
        QFETCH(int, showInDays);
        const bool goes = showInDays > 0;
        const Entity_Match place = slot(Entity_Match::SingleMatch, "Ken Man1059", 1059, "Ken Man1001", 1001, true);
        const Entity_Event show = bookedEvent(nightIn(showInDays, {place}), true);
        Entity_GymFighter old = gymFighter(1059, "Ken", "Man1059", 5000, Org, 3, 1000);
        old.setNumber(Entity_Fighter::Age, 70);
        World w = worldOf({manAged(1001, 30, false)}, {show}, {old});
        w.bookings.first() = Entity_Booking(1059, "Ken Man1059", show.name(), Org, show.date());
        w.students.append(manAged(2000, 70, true, "Free Agent"));
        QVERIFY(w.load());

        // the roll of a man of 70 is fifteen in twenty: a few nights settle it
        QStringList news;
        int retired = 0;
        for (int night = 0; night < 8; ++night)
            retired += game().ageUserFighters(news);
        QCOMPARE(retired, goes ? 1 : 0);
        QCOMPARE(news.contains("Ken Man1059 has retired."), goes);
        QCOMPARE(SavedWorld::running().students.size(), 1);
        QCOMPARE(game().fighterIds(), goes ? QList<int>() : QList<int>({1059}));
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }
};

QTEST_GUILESS_MAIN(tst_Ageing)
#include "tst_ageing.moc"
