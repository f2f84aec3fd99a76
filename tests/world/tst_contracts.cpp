#include "WorldSamples.h"

#include "fighters/Random.h"
#include "world/PrestigeTable.h"
#include "world/WorldContracts.h"
#include "world/WorldInvariants.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString Belt = "Test FC World Championship";
const QString Prix = "Test FC Grand Prix 2011";
const QDate Today(2011, 3, 1);

// a man whose 83 attributes all stand at `skill`, and whose last results are `form` ("W", "L")
// from the oldest to the newest
Entity_Fighter manOf(int id, int skill, const QString &form = QString(), const QString &organisation = Org,
                     int fightsLeft = 4)
{
    Entity_Fighter man = fighter(id, "Ken", "Man" + QString::number(id), 1000 + id, organisation, fightsLeft);
    for (int a = Entity_Fighter::FirstAttribute; a <= Entity_Fighter::LastAttribute; ++a)
        man.setNumber(Entity_Fighter::Number(a), skill);
    for (int i = 0; i < form.size(); ++i)
        man.addHistoryEntry(QDate(2010, 1, 1).addDays(i), form[i] == 'W' ? "Win: Someone - KO(Jab) - Rd. 1(1:00)"
                                                                         : "Loss: Someone - KO(Jab) - Rd. 1");
    return man;
}

// a roster of `size` men of skill 50, ids from 100
QList<Entity_Fighter> rosterOf(int size)
{
    QList<Entity_Fighter> men;
    for (int i = 0; i < size; ++i)
        men.append(manOf(100 + i, 50));
    return men;
}

Entity_Org orgOf(const QString &prestige, int rosterSize, const QList<Entity_Event> &calendar = {},
                 const Entity_Org::Titles &titles = {})
{
    Entity_Org org = organisation(Org, calendar, rosterOf(rosterSize), titles, prestige);
    org.setWillingness("Willing");
    return org;
}

// a gym fighter with a label, points, marketability and all attributes at `skill`
Entity_GymFighter gymManOf(int id, const QString &label, int skill, int marketability = 2, int points = 0,
                           const QString &organisation = "Free Agent")
{
    Entity_GymFighter man(manOf(id, skill, QString(), organisation, 0));
    man.unpackExtras({1, 0, marketability, 0, 0, points, 0}, QList<int>(Entity_GymFighter::ProgressCount, 0), {});
    man.setText(Entity_Fighter::Reputation, label);
    return man;
}

// how many of `tries` tests the organisation passes; every test draws anew from the test clock
int yesCount(const Entity_Org &org, const Entity_Fighter &man, int tries)
{
    int yes = 0;
    for (int i = 0; i < tries; ++i)
        yes += org.wantsFighter(man);
    return yes;
}

// a running world of one organisation, its calendar, free agents and gym
World worldOf(const Entity_Org &org, const QList<Entity_Fighter> &freeAgents = {},
              const QList<Entity_GymFighter> &gym = {})
{
    World w;
    w.currentDate = Today;
    w.organisations = {org};
    for (const Entity_Fighter &man : freeAgents)
        w.freeAgents.insert(man.getRankingScore(), man);
    w.fighters = gym;
    for (const Entity_GymFighter &man : gym)
        w.bookings.append(Entity_Booking::emptyFor(man.getId(), man.fullName(), QDate(1999, 1, 1)));
    return w;
}

Entity_Fighter inRoster(int id)
{
    return GameManager::instance().rosterFighter(Org, id);
}

// the running world's free agents, in key order
QList<Entity_Fighter> freeAgentsNow()
{
    return SavedWorld::running().freeAgents.values();
}

QList<int> freeAgentIds()
{
    QList<int> ids;
    for (const Entity_Fighter &man : freeAgentsNow())
        ids.append(man.getId());
    return ids;
}

// a night `days` from today with `singles` open single matches and a championship main event
Entity_Event nightIn(int days, int singles = 2, const QString &name = "Test FC Night")
{
    QList<Entity_Match> card;
    for (int i = 0; i < singles; ++i)
        card.append(slot(Entity_Match::SingleMatch));
    card.append(slot(Entity_Match::ChampionshipMatch));
    return makeEvent(name, Org, Today.addDays(days), card, Belt);
}

} // namespace

class tst_Contracts : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(16); }

    // --- The signing test ----------------------------------------------------------------------

    void signingTest_data()
    {
        QTest::addColumn<QString>("prestige");
        QTest::addColumn<int>("rosterSize");
        QTest::addColumn<int>("skill");
        QTest::addColumn<QString>("form");
        // "all", "none", "three in four" (every value in the band), "some" (one value of ten)
        QTest::addColumn<QString>("answer");
        QTest::newRow("a short roster takes a man of no skill") << "Elite" << 30 << 0 << ""
                                                                << "all";
        QTest::newRow("a roster of 50 takes nobody") << "Regional" << 50 << 20 << ""
                                                     << "none";
        QTest::newRow("a roster of 49 still weighs him") << "Regional" << 49 << 20 << ""
                                                         << "three in four";
        QTest::newRow("Elite from 70: 69 with a good form") << "Elite" << 35 << 69 << "WW"
                                                            << "three in four";
        QTest::newRow("Elite: 59 reaches 69 at best") << "Elite" << 35 << 59 << "W"
                                                      << "none";
        QTest::newRow("World Class: 76 reaches 77 at least") << "World Class" << 35 << 76 << ""
                                                             << "some";
        QTest::newRow("World Class: 77 reaches 78 at least") << "World Class" << 35 << 77 << ""
                                                             << "none";
        QTest::newRow("World Class from 56: 55") << "World Class" << 35 << 55 << ""
                                                 << "three in four";
        QTest::newRow("Regional up to 32: 31") << "Regional" << 35 << 31 << ""
                                               << "some";
        QTest::newRow("Regional from 10: 11 with a bad form") << "Regional" << 35 << 11 << "LLW"
                                                              << "some";
        QTest::newRow("a bad form takes off: 80 for Elite") << "Elite" << 35 << 80 << "WLL"
                                                            << "three in four";
        QTest::newRow("a bad form: 71 reaches 70 at best") << "Elite" << 35 << 71 << "WLL"
                                                           << "some";
        QTest::newRow("only the last five results count") << "Elite" << 35 << 69 << "LLLWWWWW"
                                                          << "three in four";
        QTest::newRow("an old good run counts no more") << "Elite" << 35 << 69 << "WWWWWLLL"
                                                        << "none";
        QTest::newRow("a prestige of no level has no band") << "Backyard" << 35 << 0 << "L"
                                                            << "three in four";
    }

    void signingTest()
    {
        QFETCH(QString, prestige);
        QFETCH(int, rosterSize);
        QFETCH(int, skill);
        QFETCH(QString, form);
        QFETCH(QString, answer);
        const int tries = 400;
        const int yes = yesCount(orgOf(prestige, rosterSize), manOf(1, skill, form), tries);
        if (answer == "all")
            QCOMPARE(yes, tries);
        else if (answer == "none")
            QCOMPARE(yes, 0);
        else if (answer == "three in four")
            QVERIFY2(yes > tries * 65 / 100 && yes < tries * 85 / 100, qPrintable(QString::number(yes)));
        else
            QVERIFY2(yes > 0 && yes < tries * 15 / 100, qPrintable(QString::number(yes)));
    }

    // --- The money ------------------------------------------------------------------------------

    void moneyAccepted_data()
    {
        QTest::addColumn<QString>("prestige");
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("negotiating");
        QTest::addColumn<int>("mood");
        QTest::addColumn<int>("fights");
        QTest::addColumn<int>("offer");
        QTest::newRow("a contract's floor at the worst mood") << "Regional" << 0 << 0 << -15 << 3 << 1002;
        QTest::newRow("an unknown man's one Elite fight") << "Elite" << 0 << 0 << 0 << 1 << 1515;
        QTest::newRow("a prestige of no level pays nothing") << "Backyard" << 900 << 10 << 0 << 3 << 1000;
        QTest::newRow("Negotiating multiplies") << "Elite" << 0 << 10 << 0 << 3 << 1110;
        QTest::newRow("a contract at 1000 still gets the floor") << "Regional" << 499 << 0 << 0 << 3 << 2000;
        QTest::newRow("a contract above 1000 gets none") << "Regional" << 500 << 0 << 0 << 3 << 1002;
        QTest::newRow("one fight at 1500 still gets its floor") << "National" << 249 << 0 << 0 << 1 << 3000;
        QTest::newRow("one fight above 1500 gets none") << "National" << 250 << 0 << 0 << 1 << 1506;
        QTest::newRow("mood -11 takes a tenth") << "Elite" << 199 << 0 << -11 << 3 << 1800;
        QTest::newRow("mood -10 takes a twentieth") << "Elite" << 199 << 0 << -10 << 3 << 1900;
        QTest::newRow("mood -5 leaves it") << "Elite" << 199 << 0 << -5 << 3 << 2000;
        QTest::newRow("mood 5 leaves it") << "World Class" << 249 << 0 << 5 << 3 << 2000;
        QTest::newRow("mood 6 adds a twentieth") << "International" << 499 << 0 << 6 << 3 << 3150;
        QTest::newRow("one fight, a bad mood, then the floor") << "Elite" << 99 << 0 << -11 << 1 << 1500 + 1350;
    }

    void moneyAccepted()
    {
        QFETCH(QString, prestige);
        QFETCH(int, points);
        QFETCH(int, negotiating);
        QFETCH(int, mood);
        QFETCH(int, fights);
        QFETCH(int, offer);
        const Entity_Org org = orgOf(prestige, 35);
        QString message;
        QVERIFY(org.moneyAccepted(points, mood, fights, offer, negotiating, message));
        QVERIFY(message.isEmpty());
        QVERIFY(!org.moneyAccepted(points, mood, fights, offer + 1, negotiating, message));
        QCOMPARE(message, QString("Your money demands are too high."));
    }

    // --- The user's negotiation ------------------------------------------------------------------

    void weighOffer_data()
    {
        QTest::addColumn<QString>("prestige");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("skill");
        QTest::addColumn<int>("marketability");
        QTest::addColumn<int>("mood");
        QTest::addColumn<int>("fights");
        QTest::addColumn<QString>("refusal"); // the start of the message; empty when he is taken
        const QString fame = "Your fighter does not have a good enough reputation";
        const QString level = "Your fighter is not at a high enough skill level";
        const QString charm = "Your fighter is not marketable enough for the company.\nHe may possess";
        QTest::newRow("Elite contract: World Class is not enough") << "Elite"
                                                                   << "World Class" << 99 << 4 << 0 << 3 << fame;
        QTest::newRow("Elite contract: International Superstar")
            << "Elite"
            << "International Superstar" << 99 << 4 << 0 << 3 << "";
        QTest::newRow("Elite one fight: World Class") << "Elite"
                                                      << "World Class" << 99 << 4 << 0 << 1 << "";
        QTest::newRow("Elite one fight: Championship Caliber") << "Elite"
                                                               << "Championship Caliber" << 99 << 4 << 0 << 1 << fame;
        QTest::newRow("National one fight has no limit") << "National"
                                                         << "Unknown" << 99 << 4 << 0 << 1 << "";
        QTest::newRow("a label on no scale passes") << "Elite"
                                                    << "Nobody" << 99 << 4 << 0 << 3 << "";
        QTest::newRow("60 for an Elite contract even at 15") << "Elite"
                                                             << "Legendary" << 60 << 4 << 15 << 3 << level;
        QTest::newRow("60 for one Elite fight at 1") << "Elite"
                                                     << "Legendary" << 60 << 4 << 1 << 1 << "";
        QTest::newRow("60 for one Elite fight at 0") << "Elite"
                                                     << "Legendary" << 60 << 4 << 0 << 1 << level;
        QTest::newRow("Regional one fight from 0") << "Regional"
                                                   << "Unknown" << 0 << 4 << 0 << 1 << "";
        QTest::newRow("Regional one fight below 0") << "Regional"
                                                    << "Unknown" << 0 << 4 << -1 << 1 << level;
        QTest::newRow("marketability 0 at -11") << "Regional"
                                                << "Unknown" << 99 << 0 << -11 << 3 << charm;
        QTest::newRow("marketability 0 at -10") << "Regional"
                                                << "Unknown" << 99 << 0 << -10 << 3 << "";
        QTest::newRow("marketability 3 at -25") << "Regional"
                                                << "Unknown" << 99 << 3 << -25 << 3 << "";
    }

    void weighOffer()
    {
        QFETCH(QString, prestige);
        QFETCH(QString, label);
        QFETCH(int, skill);
        QFETCH(int, marketability);
        QFETCH(int, mood);
        QFETCH(int, fights);
        QFETCH(QString, refusal);
        Entity_Org org = orgOf(prestige, 35);
        QString message;
        const bool taken = org.weighOffer(gymManOf(1059, label, skill, marketability), mood, fights, 0, 0, message);
        QCOMPARE(taken, refusal.isEmpty());
        QVERIFY2(taken ? message.isEmpty() : message.startsWith(refusal), qPrintable(message));
        // a refusal costs the organisation's patience, a signing none
        QCOMPARE(org.willingness(), QString(taken ? "Willing" : "Tentative"));
    }

    void patienceRunsOutAndComesBack()
    {
        Entity_Org org = orgOf("Elite", 35, {nightIn(0)});
        const Entity_GymFighter nobody = gymManOf(1059, "Unknown", 10);
        QString message;
        QVERIFY(!org.negotiate(nobody, 3, 0, 0, message));
        QCOMPARE(org.willingness(), QString("Tentative"));
        QVERIFY(!org.negotiate(nobody, 3, 0, 0, message));
        QCOMPARE(org.willingness(), QString("Unwilling"));
        // the third try is answered before any weighing, and patience stays where it is
        const Entity_GymFighter star = gymManOf(1060, "Legendary", 99, 4);
        QVERIFY(!org.negotiate(star, 3, 0, 0, message));
        QCOMPARE(message, QString("This company is unwilling to negotiate with you for the time being."));
        QCOMPARE(org.willingness(), QString("Unwilling"));
        org.storeResults({}, "Test FC Night", Today);
        QVERIFY(org.negotiate(star, 3, 0, 0, message));
    }

    void aTentativeMoodIsFiveAtBest_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<bool>("ever");
        // one Elite fight asks 61
        QTest::newRow("55 never reaches it") << 55 << false;
        QTest::newRow("56 reaches it on the best day") << 56 << true;
    }

    void aTentativeMoodIsFiveAtBest()
    {
        QFETCH(int, skill);
        QFETCH(bool, ever);
        const Entity_GymFighter man = gymManOf(1059, "Legendary", skill, 4);
        int taken = 0;
        for (int i = 0; i < 600; ++i) {
            Entity_Org org = orgOf("Elite", 35);
            org.setWillingness("Tentative");
            QString message;
            taken += org.negotiate(man, 1, 0, 0, message);
        }
        QCOMPARE(taken > 0, ever);
    }

    // --- The night's jobs ----------------------------------------------------------------------

    void aShortRosterSignsFromTheTopOfTheList()
    {
        // the free agents under keys 300, 100 and 200; the roster fills up to 31 and stops
        Entity_Fighter first = manOf(1001, 10);
        Entity_Fighter second = manOf(1002, 10);
        Entity_Fighter third = manOf(1003, 10);
        World w = worldOf(orgOf("Elite", 29));
        w.freeAgents.insert(200, second);
        w.freeAgents.insert(300, third);
        w.freeAgents.insert(100, first);
        QVERIFY(w.load());
        QStringList news;
        QCOMPARE(GameManager::instance().signFreeAgents(news), 2);
        QCOMPARE(news,
                 QStringList({"Ken Man1001 has been signed by Test FC.", "Ken Man1002 has been signed by Test FC."}));
        QCOMPARE(freeAgentIds(), QList<int>({1003}));
        // he stands under his own ranking score, with a fresh contract of four fights
        const Entity_Fighter signedMan = inRoster(1001);
        QCOMPARE(signedMan.text(Entity_Fighter::Organisation), Org);
        QCOMPARE(signedMan.number(Entity_Fighter::ContractFightsLeft), 4);
        QVERIFY2(WorldInvariants::check(GameManager::instance().state()).isEmpty(),
                 qPrintable(WorldInvariants::check(GameManager::instance().state()).join('\n')));
    }

    void aFullRosterLooksOnlyAtTheFamous_data()
    {
        QTest::addColumn<QString>("prestige");
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("looks");
        QTest::newRow("Elite: World Class") << "Elite"
                                            << "World Class" << true;
        QTest::newRow("Elite: International Superstar") << "Elite"
                                                        << "International Superstar" << false;
        QTest::newRow("Regional: Unknown") << "Regional"
                                           << "Unknown" << true;
        QTest::newRow("a label on no scale") << "Elite"
                                             << "Nobody" << true;
    }

    void aFullRosterLooksOnlyAtTheFamous()
    {
        QFETCH(QString, prestige);
        QFETCH(QString, label);
        QFETCH(bool, looks);
        // a man whom the band takes at any roll: only the one in four may turn him away on a night
        Entity_Fighter man = manOf(1001, PrestigeTable::row(prestige).signingLow - 1);
        man.setText(Entity_Fighter::Reputation, label);
        QVERIFY(worldOf(orgOf(prestige, 35), {man}).load());
        int signings = 0;
        for (int night = 0; night < 20; ++night) {
            QStringList news;
            signings += GameManager::instance().signFreeAgents(news);
        }
        QCOMPARE(signings, looks ? 1 : 0);
    }

    void aContractRunsOutOnTheNightAfterTheLastFight_data()
    {
        QTest::addColumn<int>("rosterSize");
        QTest::addColumn<int>("fightsLeft");
        QTest::addColumn<QString>("contract");
        QTest::addColumn<QString>("outcome");
        // a roster below 31 keeps everybody it asks, one of 50 nobody
        QTest::newRow("renewed after his last fight") << 29 << 0 << "Free Agent"
                                                      << "renewed";
        QTest::newRow("released after his last fight") << 49 << 0 << "Free Agent"
                                                       << "released";
        QTest::newRow("asked with 2 fights left") << 29 << 2 << Org << "renewed";
        QTest::newRow("not asked with 3 fights left") << 29 << 3 << Org << "untouched";
        QTest::newRow("not let go with fights left") << 49 << 2 << Org << "untouched";
    }

    void aContractRunsOutOnTheNightAfterTheLastFight()
    {
        QFETCH(int, rosterSize);
        QFETCH(int, fightsLeft);
        QFETCH(QString, contract);
        QFETCH(QString, outcome);
        // the champion, and last year's tournament winner
        Entity_Fighter champion = manOf(1001, 50, "W", contract, fightsLeft);
        const QString reign = Belt + " - from Sat Jan 1 2011";
        champion.setTitleList({Prix, contract == Org ? reign : reign + " until Mon Feb 28 2011"});
        Entity_Org::Titles titles;
        titles.insert(Belt, champion.fullName());
        titles.insert(Prix, champion.fullName());
        QVERIFY(worldOf(organisation(Org, {}, rosterOf(rosterSize) << champion, titles, "Elite")).load());

        QStringList news;
        const WorldContracts::Moves moves = GameManager::instance().processContracts(news);
        Entity_Org::Titles after;
        GameManager::instance().organisation(Org).titlesCopy(after);
        const Entity_Fighter man = inRoster(1001);
        if (outcome == "renewed") {
            QCOMPARE(moves.renewals, 1);
            QCOMPARE(news, QStringList({"Ken Man1001 has renewed his contract with Test FC"}));
            QCOMPARE(man.text(Entity_Fighter::Organisation), Org);
            QVERIFY(man.number(Entity_Fighter::ContractFightsLeft) >= 3);
            QVERIFY(man.number(Entity_Fighter::ContractFightsLeft) <= 7);
            // his belt stays his, and so does his reign
            QCOMPARE(after.value(Belt), man.fullName());
            QCOMPARE(man.titleList(), QStringList({Prix, reign}));
        } else if (outcome == "released") {
            QCOMPARE(moves.releases, 1);
            QCOMPARE(news, QStringList({"Ken Man1001 has left Test FC and is now a free agent."}));
            QCOMPARE(man.getId(), 0);
            QCOMPARE(freeAgentIds(), QList<int>({1001}));
            QCOMPARE(freeAgentsNow().first().getRankingScore(), 2001);
            // the world title falls vacant; the tournament's row stays with him
            QCOMPARE(after.value(Belt), QString("Vacant"));
            QCOMPARE(after.value(Prix), QString("Ken Man1001"));
        } else {
            QVERIFY(news.isEmpty());
            QCOMPARE(man.number(Entity_Fighter::ContractFightsLeft), fightsLeft);
        }
        QVERIFY2(WorldInvariants::check(GameManager::instance().state()).isEmpty(),
                 qPrintable(WorldInvariants::check(GameManager::instance().state()).join('\n')));
    }

    // --- Offers and the user's contracts -------------------------------------------------------

    void anOfferExpiresAWeekBeforeItsNight()
    {
        World w = worldOf(orgOf("Elite", 35));
        for (int days : {-1, 7, 8, 30})
            w.offers.append(Entity_Booking(1059, "Jo Gym", QString("Night in %1").arg(days), Org, Today.addDays(days)));
        QVERIFY(w.load());
        GameManager::instance().removeExpiredOffers();
        QCOMPARE(GameManager::instance().offerEventNames(), QStringList({"Night in 8", "Night in 30"}));
    }

    void offersComeOnlyWhen_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("card");
        QTest::addColumn<bool>("bookedThere");
        QTest::addColumn<QString>("labels"); // the gym's men in order; a "+" marks a contract
        QTest::addColumn<int>("offeredTo");  // 0: nobody
        QTest::newRow("the first free man of the label")
            << 10 << "open" << false << "Contender,World Class+,World Class,World Class" << 1061;
        QTest::newRow("a night 3 days off") << 3 << "open" << false << "World Class" << 1059;
        QTest::newRow("a night 2 days off") << 2 << "open" << false << "World Class" << 0;
        QTest::newRow("the singles filled") << 10 << "singles filled" << false << "World Class" << 0;
        QTest::newRow("the undercard filled") << 10 << "undercard filled" << false << "World Class" << 0;
        QTest::newRow("a man of the user booked there") << 10 << "open" << true << "World Class" << 0;
        QTest::newRow("a label above the wanted one") << 10 << "open" << false << "International Superstar" << 0;
    }

    void offersComeOnlyWhen()
    {
        QFETCH(int, days);
        QFETCH(QString, card);
        QFETCH(bool, bookedThere);
        QFETCH(QString, labels);
        QFETCH(int, offeredTo);
        // a single, a title match and a single main event
        Entity_Match first = slot(Entity_Match::SingleMatch);
        Entity_Match title = slot(Entity_Match::ChampionshipMatch);
        Entity_Match main = slot(Entity_Match::SingleMatch);
        if (card == "singles filled") {
            first = slot(Entity_Match::SingleMatch, "A A", 100, "B B", 101);
            main = slot(Entity_Match::SingleMatch, "C C", 102, "D D", 103);
        } else if (card == "undercard filled") {
            first = slot(Entity_Match::SingleMatch, "A A", 100, "B B", 101);
            title = slot(Entity_Match::ChampionshipMatch, "C C", 102, "D D", 103);
        }
        QList<Entity_GymFighter> gym;
        int id = 1059;
        for (const QString &label : labels.split(',')) {
            const bool underContract = label.endsWith('+');
            gym.append(
                gymManOf(id++, label.chopped(underContract ? 1 : 0), 50, 2, 0, underContract ? "EPIC" : "Free Agent"));
        }
        World w = worldOf(
            orgOf("Elite", 35, {makeEvent("Test FC Night", Org, Today.addDays(days), {first, title, main})}), {}, gym);
        if (bookedThere)
            w.bookings.first() = Entity_Booking(1059, "Ken Man1059", "Test FC Night", Org, Today.addDays(days));
        QVERIFY(w.load());
        // one night in five the organisation thinks of an offer; one offer at most stands
        for (int night = 0; night < 40; ++night)
            GameManager::instance().makeOffers();
        const Entity_Booking offer = GameManager::instance().offerAt(0);
        QCOMPARE(offer.fighterId(), offeredTo);
        QCOMPARE(GameManager::instance().offerEventNames().size(), offeredTo ? 1 : 0);
        if (offeredTo) {
            QCOMPARE(offer.eventName(), QString("Test FC Night"));
            QCOMPARE(offer.organisationName(), Org);
            QCOMPARE(offer.eventDate(), Today.addDays(days));
        }
    }

    void acceptingAnOffer_data()
    {
        QTest::addColumn<QString>("situation");
        QTest::addColumn<QString>("answer");
        const QString invalid =
            "The offer is no longer valid. \nMake sure you do not already have a fighter booked for this event.";
        QTest::newRow("a place on the next night's undercard") << "open" << QString(WorldContracts::Signed);
        QTest::newRow("the same night a year later") << "dated a year on" << QString(WorldContracts::Signed);
        QTest::newRow("an undercard filled since") << "undercard filled" << invalid;
        QTest::newRow("a night that is not the next") << "a later night" << invalid;
        QTest::newRow("a man who has retired since") << "retired" << invalid;
        QTest::newRow("a man who has signed since") << "signed" << invalid;
    }

    void acceptingAnOffer()
    {
        QFETCH(QString, situation);
        QFETCH(QString, answer);
        QList<Entity_Match> card{slot(Entity_Match::SingleMatch), slot(Entity_Match::ChampionshipMatch)};
        if (situation == "undercard filled")
            card.first() = slot(Entity_Match::SingleMatch, "A A", 100, "B B", 101);
        const Entity_Event next = makeEvent("Next Night", Org, Today.addDays(10), card, Belt);
        const Entity_Event later = makeEvent("Later Night", Org, Today.addDays(40), card, Belt);
        QList<Entity_GymFighter> gym{gymManOf(1059, "World Class", 50, 2, 100), gymManOf(1060, "World Class", 50)};
        if (situation == "retired")
            gym.removeFirst();
        if (situation == "signed")
            gym.first().setContract("EPIC", 3, 500);
        World w = worldOf(orgOf("Elite", 35, {next, later}), {}, gym);
        const Entity_Event &offered = situation == "a later night" ? later : next;
        const QDate date = situation == "dated a year on" ? offered.date().addYears(1) : offered.date();
        w.offers = {Entity_Booking(1059, "Ken Man1059", offered.name(), Org, date),
                    Entity_Booking(1060, "Ken Man1060", offered.name(), Org, date),
                    Entity_Booking(1059, "Ken Man1059", "Elsewhere", "EPIC", date)};
        QVERIFY(w.load());
        const QByteArray before = SavedWorld::runningBytes();

        QCOMPARE(GameManager::instance().acceptOffer(0), answer);
        if (answer != WorldContracts::Signed) {
            // nothing changes
            QCOMPARE(SavedWorld::runningBytes(), before);
            return;
        }
        // one fight at the default purse, the night booked, every offer of the night and of the man gone
        QString organisation;
        int fights = 0;
        int purse = 0;
        GameManager::instance().fighterContract(0, organisation, fights, purse);
        QCOMPARE(organisation, Org);
        QCOMPARE(fights, 1);
        QCOMPARE(purse, (3 * 100 + 1000) * 5);
        QVERIFY(GameManager::instance().offerEventNames().isEmpty());
        QCOMPARE(GameManager::instance().bookingsByFighter().value("Ken Man1059"),
                 QString("Next Night - ") + date.toString(Qt::TextDate));
        const Entity_Event booked = GameManager::instance().organisation(Org).nextEvent(Today);
        QVERIFY(booked.matchAt(0).holds(1059));
        QVERIFY(booked.isUserBooked());
    }

    void negotiatingAContract_data()
    {
        QTest::addColumn<QString>("contract"); // the man's contract before; "nobody" for an empty gym
        QTest::addColumn<QString>("prestige");
        QTest::addColumn<QString>("bar");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("answer");
        const QString sign = "Are you sure you want to sign this contract?";
        const QString renew = "Are you sure you want to renew this contract?";
        QTest::newRow("a free agent signs") << "Free Agent"
                                            << "Regional"
                                            << "" << sign << QString(WorldContracts::Signed);
        QTest::newRow("a man renews with his own") << Org << "Regional"
                                                   << "" << renew << QString(WorldContracts::Signed);
        QTest::newRow("a free agent turned down")
            << "Free Agent"
            << "Elite"
            << "" << sign
            << "Test FC has turned down your offer. Your fighter does not have a good enough reputation for this "
               "company.";
        QTest::newRow("a man signed elsewhere") << "EPIC"
                                                << "Regional"
                                                << "This fighter is already signed to a contract." << sign << "";
        QTest::newRow("no fighters at all") << "nobody"
                                            << "Regional"
                                            << "You have no fighters available." << sign << "";
    }

    void negotiatingAContract()
    {
        QFETCH(QString, contract);
        QFETCH(QString, prestige);
        QFETCH(QString, bar);
        QFETCH(QString, question);
        QFETCH(QString, answer);
        // a legendary man of every skill is taken by a Regional organisation on any day, and
        // turned away by an Elite one for his label
        QList<Entity_GymFighter> gym;
        if (contract != "nobody")
            gym.append(gymManOf(1059, contract == "Free Agent" && prestige == "Elite" ? "Unknown" : "Legendary", 99, 4,
                                0, contract));
        World w = worldOf(orgOf(prestige, 35), {}, gym);
        w.offers = {Entity_Booking(1059, "Ken Man1059", "Some Night", "EPIC", Today.addDays(20))};
        QVERIFY(w.load());
        GameManager &world = GameManager::instance();
        QCOMPARE(world.negotiationBar(0, Org), bar);
        if (!bar.isEmpty())
            return;
        QCOMPARE(world.negotiationQuestion(0, Org), question);
        QCOMPARE(world.negotiateContract(0, Org, 5, 900), answer);
        QString organisation;
        int fights = 0;
        int purse = 0;
        world.fighterContract(0, organisation, fights, purse);
        if (answer == WorldContracts::Signed) {
            QCOMPARE(organisation, Org);
            QCOMPARE(fights, 5);
            QCOMPARE(purse, 900);
        } else {
            QCOMPARE(organisation, contract);
        }
        // whatever came of the talk, his offers are gone
        QVERIFY(world.offerEventNames().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_Contracts)
#include "tst_contracts.moc"
