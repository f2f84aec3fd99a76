#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "fighters/Random.h"
#include "world/PrestigeTable.h"
#include "world/WorldContracts.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString Belt = "Test FC World Championship";
const QString Prix = "Test FC Grand Prix 2011";
const QDate Today(2011, 3, 1);

// a man whose attributes all stand at `skill`, and whose last results are `form` ("W", "L") from
// the oldest to the newest
Entity_Fighter manOf(int id, int skill, const QString &form = QString(), const QString &organisation = Org,
                     int fightsLeft = 4)
{
    Entity_Fighter man = fighter(id, "Ken", "Man" + QString::number(id), 1000 + id, organisation, fightsLeft);
    setAll(man, skill);
    for (int i = 0; i < form.size(); ++i)
        man.addHistoryEntry(QDate(2010, 1, 1).addDays(i), form[i] == 'W' ? "Win: Someone - KO(Jab) - Rd. 1(1:00)"
                                                                         : "Loss: Someone - KO(Jab) - Rd. 1");
    return man;
}

QList<Entity_Fighter> rosterOf(int size)
{
    QList<Entity_Fighter> men;
    for (int i = 0; i < size; ++i)
        men.append(manOf(100 + i, 50));
    return men;
}

Entity_Org orgOf(const QString &prestige, int rosterSize, const QList<Entity_Event> &calendar = {})
{
    Entity_Org org = organisation(Org, calendar, rosterOf(rosterSize), {}, prestige);
    org.setWillingness("Willing");
    return org;
}

Entity_GymFighter gymManOf(int id, const QString &label, int skill, int marketability = 2, int points = 0,
                           const QString &organisation = "Free Agent")
{
    Entity_GymFighter man(manOf(id, skill, QString(), organisation, 0));
    man.unpackExtras({1, 0, marketability, 0, 0, points, 0}, QList<int>(Entity_GymFighter::ProgressCount, 0), {});
    man.setText(Entity_Fighter::Reputation, label);
    return man;
}

World worldOf(const Entity_Org &org, const QList<Entity_Fighter> &freeAgents = {},
              const QList<Entity_GymFighter> &gym = {})
{
    World w;
    w.organisations = {org};
    for (const Entity_Fighter &man : freeAgents)
        w.freeAgents.insert(man.getRankingScore(), man);
    w.addGym(gym);
    return w;
}

QList<int> freeAgentIds()
{
    QList<int> ids;
    for (const Entity_Fighter &man : SavedWorld::running().freeAgents)
        ids.append(man.getId());
    return ids;
}

// how many tests in a hundred he passes: all, none, three in four (every value in the band) or
// some (one value of ten)
struct Signing {
    const char *name, *prestige;
    int rosterSize, skill;
    const char *form;
    int least, most;
};
const Signing signings[] = {
    {"a short roster takes a man of no skill", "Elite", 30, 0, "", 100, 100},
    {"a roster of 50 takes nobody", "Regional", 50, 20, "", 0, 0},
    {"a roster of 49 still weighs him", "Regional", 49, 20, "", 65, 85},
    {"World Class: 76 reaches 77 at least", "World Class", 35, 76, "", 1, 15},
    {"World Class: 77 reaches 78 at least", "World Class", 35, 77, "", 0, 0},
    {"a bad form: 71 reaches 70 at best", "Elite", 35, 71, "WLL", 1, 15},
    {"an old good run counts no more", "Elite", 35, 69, "WWWWWLLL", 0, 0},
};

struct Money {
    const char *name, *prestige;
    int points, negotiating, mood, fights, offer;
};
const Money monies[] = {
    {"a prestige of no level pays nothing", "Backyard", 900, 10, 0, 3, 1000},
    {"Negotiating multiplies", "Elite", 0, 10, 0, 3, 1110},
    {"a contract at 1000 still gets the floor", "Regional", 499, 0, 0, 3, 2000},
    {"a contract above 1000 gets none", "Regional", 500, 0, 0, 3, 1002},
    {"one fight at 1500 still gets its floor", "National", 249, 0, 0, 1, 3000},
    {"mood -11 takes a tenth", "Elite", 199, 0, -11, 3, 1800},
    {"mood -10 takes a twentieth", "Elite", 199, 0, -10, 3, 1900},
};

// the refusal is the start of the message; none when he is taken
const char *const Fame = "Your fighter does not have a good enough reputation";
const char *const Level = "Your fighter is not at a high enough skill level";
const char *const Charm = "Your fighter is not marketable enough for the company.\nHe may possess";
struct Offer {
    const char *name, *prestige, *label;
    int skill, marketability, mood, fights;
    const char *refusal;
};
const Offer offers[] = {
    {"Elite contract: World Class is not enough", "Elite", "World Class", 99, 4, 0, 3, Fame},
    {"Elite contract: International Superstar", "Elite", "International Superstar", 99, 4, 0, 3, ""},
    {"Elite one fight: Championship Caliber", "Elite", "Championship Caliber", 99, 4, 0, 1, Fame},
    {"60 for one Elite fight at 1", "Elite", "Legendary", 60, 4, 1, 1, ""},
    {"60 for one Elite fight at 0", "Elite", "Legendary", 60, 4, 0, 1, Level},
    {"marketability 0 at -11", "Regional", "Unknown", 99, 0, -11, 3, Charm},
    {"marketability 0 at -10", "Regional", "Unknown", 99, 0, -10, 3, ""},
    {"marketability 3 at -25", "Regional", "Unknown", 99, 3, -25, 3, ""},
};

struct Expiry {
    const char *name;
    int rosterSize, fightsLeft;
    const char *outcome;
};
const Expiry expiries[] = {
    {"renewed after his last fight", 29, 0, "renewed"},  {"released after his last fight", 49, 0, "released"},
    {"asked with 2 fights left", 29, 2, "renewed"},      {"not asked with 3 fights left", 29, 3, "untouched"},
    {"not let go with fights left", 49, 2, "untouched"},
};

// the gym's men in order, a "+" marking a contract; offered to 0 is nobody
struct Offering {
    const char *name;
    int days;
    const char *card;
    bool bookedThere;
    const char *labels;
    int offeredTo;
};
const Offering offerings[] = {
    {"the first free man of the label", 10, "open", false, "Contender,World Class+,World Class,World Class", 1061},
    {"a night 3 days off", 3, "open", false, "World Class", 1059},
    {"a night 2 days off", 2, "open", false, "World Class", 0},
    {"the singles filled", 10, "singles filled", false, "World Class", 0},
    {"the undercard filled", 10, "undercard filled", false, "World Class", 0},
    {"a man of the user booked there", 10, "open", true, "World Class", 0},
    {"a label above the wanted one", 10, "open", false, "International Superstar", 0},
};

struct Acceptance {
    const char *name, *situation;
    bool signs;
};
const Acceptance acceptances[] = {
    {"a place on the next night's undercard", "open", true},  {"the same night a year later", "dated a year on", true},
    {"an undercard filled since", "undercard filled", false}, {"a night that is not the next", "a later night", false},
    {"a man who has retired since", "retired", false},        {"a man who has signed since", "signed", false},
};

// the man's contract before, "nobody" for an empty gym; the answer's start, the refusal's own
// words after it
struct Talk {
    const char *name, *contract, *prestige, *bar, *answer;
};
const char *const TurnedDown = "Test FC has turned down your offer. Your fighter does not";
const Talk talks[] = {
    {"a free agent signs", "Free Agent", "Regional", "", WorldContracts::Signed},
    {"a man renews with his own", "Test FC", "Regional", "", WorldContracts::Signed},
    {"a free agent turned down", "Free Agent", "Elite", "", TurnedDown},
    {"a man signed elsewhere", "EPIC", "Regional", "This fighter is already signed to a contract.", ""},
    {"no fighters at all", "nobody", "Regional", "You have no fighters available.", ""},
};

} // namespace

class tst_Contracts : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(16); }

    void signingTest_data() { TableRows::add(signings); }
    void signingTest()
    {
        const Signing &row = TableRows::current(signings);
        const int tries = 400;
        const Entity_Org org = orgOf(row.prestige, row.rosterSize);
        const Entity_Fighter man = manOf(1, row.skill, row.form);
        int yes = 0;
        for (int i = 0; i < tries; ++i)
            yes += org.wantsFighter(man);
        QVERIFY2(yes >= row.least * tries / 100 && yes <= row.most * tries / 100, qPrintable(QString::number(yes)));
    }

    void moneyAccepted_data() { TableRows::add(monies); }
    void moneyAccepted()
    {
        const Money &row = TableRows::current(monies);
        const Entity_Org org = orgOf(row.prestige, 35);
        QString message;
        QVERIFY(org.moneyAccepted(row.points, row.mood, row.fights, row.offer, row.negotiating, message));
        QVERIFY(!org.moneyAccepted(row.points, row.mood, row.fights, row.offer + 1, row.negotiating, message));
        QCOMPARE(message, QString("Your money demands are too high."));
    }

    void weighOffer_data() { TableRows::add(offers); }
    void weighOffer()
    {
        const Offer &row = TableRows::current(offers);
        Entity_Org org = orgOf(row.prestige, 35);
        QString message;
        const Entity_GymFighter man = gymManOf(1059, row.label, row.skill, row.marketability);
        const bool taken = org.weighOffer(man, row.mood, row.fights, 0, 0, message);
        QVERIFY2(taken ? message.isEmpty() : message.startsWith(row.refusal), qPrintable(message));
        QCOMPARE(taken, QString(row.refusal).isEmpty());
        // a refusal costs the organisation's patience, a signing none
        QCOMPARE(org.willingness(), QString(taken ? "Willing" : "Tentative"));
    }

    void patienceRunsOutAndComesBack()
    {
        Entity_Org org = orgOf("Elite", 35, {makeEvent("Test FC Night", Org, Today, {})});
        const Entity_GymFighter nobody = gymManOf(1059, "Unknown", 10);
        QString message;
        QVERIFY(!org.negotiate(nobody, 3, 0, 0, message));
        QVERIFY(!org.negotiate(nobody, 3, 0, 0, message));
        QCOMPARE(org.willingness(), QString("Unwilling"));
        // the third try is answered before any weighing, and patience stays where it is
        const Entity_GymFighter star = gymManOf(1060, "Legendary", 99, 4);
        QVERIFY(!org.negotiate(star, 3, 0, 0, message));
        QCOMPARE(message, QString("This company is unwilling to negotiate with you for the time being."));
        QCOMPARE(org.willingness(), QString("Unwilling"));
        org.storeResults({}, "Test FC Night", Today);
        QVERIFY(org.negotiate(star, 3, 0, 0, message));
        // one Elite fight asks 61; a tentative mood reaches 5 at best
        for (int skill : {55, 56}) {
            int taken = 0;
            for (int i = 0; i < 600; ++i) {
                org.setWillingness("Tentative");
                taken += org.negotiate(gymManOf(1059, "Legendary", skill, 4), 1, 0, 0, message);
            }
            QCOMPARE(taken > 0, skill == 56);
        }
    }

    // the free agents under keys 300, 100 and 200; the roster fills up to 31 and stops
    void aShortRosterSignsFromTheTopOfTheList()
    {
        World w = worldOf(orgOf("Elite", 29));
        w.freeAgents.insert(200, manOf(1002, 10));
        w.freeAgents.insert(300, manOf(1003, 10));
        w.freeAgents.insert(100, manOf(1001, 10));
        QVERIFY(w.load());
        QStringList news;
        QCOMPARE(game().signFreeAgents(news), 2);
        QCOMPARE(news,
                 QStringList({"Ken Man1001 has been signed by Test FC.", "Ken Man1002 has been signed by Test FC."}));
        QCOMPARE(freeAgentIds(), QList<int>({1003}));
        const Entity_Fighter signedMan = game().rosterFighter(Org, 1001);
        QCOMPARE(signedMan.text(Entity_Fighter::Organisation), Org);
        QCOMPARE(signedMan.number(Entity_Fighter::ContractFightsLeft), 4);
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    void aFullRosterLooksOnlyAtTheFamous_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("looks");
        QTest::newRow("Elite: World Class") << "World Class" << true;
        QTest::newRow("Elite: International Superstar") << "International Superstar" << false;
        QTest::newRow("a label on no scale") << "Nobody" << true;
    }
    void aFullRosterLooksOnlyAtTheFamous()
    {
        QFETCH(QString, label);
        QFETCH(bool, looks);
        // a man whom the band takes at any roll: only the one in four may turn him away on a night
        Entity_Fighter man = manOf(1001, PrestigeTable::row("Elite").signingLow - 1);
        man.setText(Entity_Fighter::Reputation, label);
        QVERIFY(worldOf(orgOf("Elite", 35), {man}).load());
        int signings = 0;
        for (int night = 0; night < 20; ++night) {
            QStringList news;
            signings += game().signFreeAgents(news);
        }
        QCOMPARE(signings, looks ? 1 : 0);
    }

    // a roster below 31 keeps everybody it asks, one of 50 nobody
    void aContractRunsOutOnTheNightAfterTheLastFight_data() { TableRows::add(expiries); }
    void aContractRunsOutOnTheNightAfterTheLastFight()
    {
        const auto [name, rosterSize, fightsLeft, outcomeText] = TableRows::current(expiries);
        const QString outcome = outcomeText;
        // the champion, and last year's tournament winner
        const QString contract = fightsLeft ? Org : "Free Agent";
        Entity_Fighter champion = manOf(1001, 50, "W", contract, fightsLeft);
        const QString reign = Belt + " - from Sat Jan 1 2011";
        champion.setTitleList({Prix, fightsLeft ? reign : reign + " until Mon Feb 28 2011"});
        const Entity_Org::Titles titles{{Belt, champion.fullName()}, {Prix, champion.fullName()}};
        QVERIFY(worldOf(organisation(Org, {}, rosterOf(rosterSize) << champion, titles, "Elite")).load());

        QStringList news;
        const WorldContracts::Moves moves = game().processContracts(news);
        const Entity_Org::Titles after = titlesOf(Org);
        const Entity_Fighter man = game().rosterFighter(Org, 1001);
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
            QCOMPARE(freeAgentIds(), QList<int>({1001}));
            QCOMPARE(SavedWorld::running().freeAgents.firstKey(), 2001);
            // the world title falls vacant; the tournament's row stays with him
            QCOMPARE(after.value(Belt), QString("Vacant"));
            QCOMPARE(after.value(Prix), QString("Ken Man1001"));
        } else {
            QVERIFY(news.isEmpty());
            QCOMPARE(man.number(Entity_Fighter::ContractFightsLeft), fightsLeft);
        }
        QVERIFY2(faults().isEmpty(), qPrintable(faults()));
    }

    void anOfferExpiresAWeekBeforeItsNight()
    {
        World w = worldOf(orgOf("Elite", 35));
        for (int days : {-1, 7, 8, 30})
            w.offers.append(Entity_Booking(1059, "Jo Gym", QString("Night in %1").arg(days), Org, Today.addDays(days)));
        QVERIFY(w.load());
        game().removeExpiredOffers();
        QCOMPARE(game().offerEventNames(), QStringList({"Night in 8", "Night in 30"}));
    }

    void offersComeOnlyWhen_data() { TableRows::add(offerings); }
    void offersComeOnlyWhen()
    {
        const auto [name, days, cardText, bookedThere, labels, offeredTo] = TableRows::current(offerings);
        const QString card = cardText;
        // a single, a title match and a single main event
        QList<Entity_Match> matches{slot(Entity_Match::SingleMatch), slot(Entity_Match::ChampionshipMatch),
                                    slot(Entity_Match::SingleMatch)};
        if (card != "open")
            matches[0] = slot(Entity_Match::SingleMatch, "A A", 100, "B B", 101);
        if (card == "singles filled")
            matches[2] = slot(Entity_Match::SingleMatch, "C C", 102, "D D", 103);
        if (card == "undercard filled")
            matches[1] = slot(Entity_Match::ChampionshipMatch, "C C", 102, "D D", 103);
        QList<Entity_GymFighter> gym;
        int id = 1059;
        for (const QString &label : QString(labels).split(',')) {
            const bool underContract = label.endsWith('+');
            gym.append(
                gymManOf(id++, label.chopped(underContract ? 1 : 0), 50, 2, 0, underContract ? "EPIC" : "Free Agent"));
        }
        const Entity_Event night = makeEvent("Test FC Night", Org, Today.addDays(days), matches);
        World w = worldOf(orgOf("Elite", 35, {night}), {}, gym);
        if (bookedThere)
            w.bookings.first() = Entity_Booking(1059, "Ken Man1059", "Test FC Night", Org, Today.addDays(days));
        QVERIFY(w.load());
        // one night in five the organisation thinks of an offer; one offer at most stands
        for (int i = 0; i < 40; ++i)
            game().makeOffers();
        const Entity_Booking offer = game().offerAt(0);
        QCOMPARE(offer.fighterId(), offeredTo);
        QCOMPARE(game().offerEventNames().size(), offeredTo ? 1 : 0);
        if (offeredTo)
            QCOMPARE(offer.eventDate(), Today.addDays(days));
    }

    void acceptingAnOffer_data() { TableRows::add(acceptances); }
    void acceptingAnOffer()
    {
        const auto [name, situationText, signs] = TableRows::current(acceptances);
        const QString situation = situationText;
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

        const QString answer = game().acceptOffer(0);
        if (!signs) {
            QCOMPARE(answer, "The offer is no longer valid. \nMake sure you do not already have a fighter booked "
                             "for this event.");
            QCOMPARE(SavedWorld::runningBytes(), before);
            return;
        }
        QCOMPARE(answer, QString(WorldContracts::Signed));
        // one fight at the default purse, the night booked, every offer of the night and of the man gone
        QString organisation;
        int fights = 0;
        int purse = 0;
        game().fighterContract(0, organisation, fights, purse);
        QCOMPARE(organisation, Org);
        QCOMPARE(fights, 1);
        QCOMPARE(purse, (3 * 100 + 1000) * 5);
        QVERIFY(game().offerEventNames().isEmpty());
        QCOMPARE(game().bookingsByFighter().value("Ken Man1059"),
                 QString("Next Night - ") + date.toString(Qt::TextDate));
        const Entity_Event booked = game().organisation(Org).nextEvent(Today);
        QVERIFY(booked.matchAt(0).holds(1059));
        QVERIFY(booked.isUserBooked());
    }

    void negotiatingAContract_data() { TableRows::add(talks); }
    void negotiatingAContract()
    {
        const Talk &row = TableRows::current(talks);
        const QString contract = row.contract, prestige = row.prestige, bar = row.bar, answer = row.answer;
        // a legendary man of every skill is taken by a Regional organisation on any day, and
        // turned away by an Elite one for his label
        QList<Entity_GymFighter> gym;
        if (contract != "nobody")
            gym.append(gymManOf(1059, prestige == "Elite" ? "Unknown" : "Legendary", 99, 4, 0, contract));
        World w = worldOf(orgOf(prestige, 35), {}, gym);
        w.offers = {Entity_Booking(1059, "Ken Man1059", "Some Night", "EPIC", Today.addDays(20))};
        QVERIFY(w.load());
        QCOMPARE(game().negotiationBar(0, Org), bar);
        if (!bar.isEmpty())
            return;
        QCOMPARE(game().negotiationQuestion(0, Org), contract == Org ? "Are you sure you want to renew this contract?"
                                                                     : "Are you sure you want to sign this contract?");
        const QString said = game().negotiateContract(0, Org, 5, 900);
        QVERIFY2(said.startsWith(answer), qPrintable(said));
        QString organisation;
        int fights = 0;
        int purse = 0;
        game().fighterContract(0, organisation, fights, purse);
        const bool signs = answer == WorldContracts::Signed;
        QCOMPARE(organisation, signs ? Org : contract);
        QCOMPARE(fights, signs ? 5 : 0);
        QCOMPARE(purse, signs ? 900 : 0);
        // whatever came of the talk, his offers are gone
        QVERIFY(game().offerEventNames().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_Contracts)
#include "tst_contracts.moc"
