#include "WorldSamples.h"

#include "fighters/Random.h"
#include "world/BookingRound.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using namespace WorldSamples;

namespace {

const QString Org = "Test FC";
const QString NightName = "Test FC Night";
const QDate Today(2011, 3, 1);
const QString S = Entity_Match::SingleMatch;
const QString T = Entity_Match::ChampionshipMatch;
const QString Off = "off the card";
const QString Main = "Single Match main event";
// last names that never hold one another, so that a night's name tells who is in its main event
const QStringList Callsigns = QString("Alpha Bravo Charlie Delta Echo Foxtrot Golf Hotel India Juliett Kilo Lima "
                                      "Mike November Oscar Papa Quebec Romeo Sierra Tango Uniform Victor Whiskey "
                                      "Xray Yankee Zulu")
                                  .split(' ');
const QRegularExpression NewsLine(
    "^Booked (.+) for a (Championship Match|Single Match|Tournament Qualifier|Tournament Quarterfinal) at (.+)$");

// roster position p: ranking score 100 (p + 1); the user's man of position p stands just behind him
QList<Entity_Fighter> rosterOf(int size)
{
    QList<Entity_Fighter> men;
    for (int p = 0; p < size; ++p)
        men.append(fighter(100 + p, "Ken", Callsigns.at(p % 26) + QString(p / 26, 'x'), 100 * (p + 1), Org));
    return men;
}

QList<Entity_Match> cardOf(const QStringList &types)
{
    QList<Entity_Match> card;
    for (const QString &type : types)
        card.append(slot(type));
    return card;
}

// "title=holder" rows
Entity_Org::Titles titleRows(const QStringList &rows)
{
    Entity_Org::Titles titles;
    for (const QString &row : rows)
        titles.insert(row.section('=', 0, 0), row.section('=', 1));
    return titles;
}

Entity_Event nextNight()
{
    return game().organisation(Org).nextEvent(game().getCurrentDate());
}

int placesTaken()
{
    int taken = 0;
    for (const Entity_Match &match : nextNight().matches())
        taken += (match.fighterOne() != "TBA") + (match.fighterTwo() != "TBA");
    return taken;
}

QString placeOf(const Entity_Event &night, int id)
{
    for (int i = 0; i < night.matchCount(); ++i) {
        if (night.matchAt(i).holds(id))
            return night.matchAt(i).matchType() +
                   (i == night.matchCount() - 1 && night.matchAt(i).matchType() == S ? " main event" : "");
    }
    return Off;
}

// What is wrong with the card beyond the world's own rules: a man where his position may not go,
// the user's flag. Empty when sound.
QString faultsOf(const Entity_Event &night)
{
    Entity_Org::Roster roster;
    game().organisation(Org).rosterCopy(roster);
    // the holder of the first belt, if the organisation has one
    const Entity_Org::Titles titles = titlesOf(Org);
    const QString title = titles.isEmpty() ? QString() : titles.first();
    QMap<int, std::pair<int, bool>> men; // id to position and whether he is the user's
    const QList<int> scores = roster.keys();
    for (int p = 0; p < scores.size(); ++p)
        men.insert(roster.value(scores[p]).getId(), {p, false});
    const Entity_GymFighter user = game().fighterById(900);
    if (user.getId() == 900) {
        const int ahead = int(
            std::count_if(scores.cbegin(), scores.cend(), [&](int score) { return score < user.getRankingScore(); }));
        men.insert(900, {ahead - 1, true});
    }
    if (night.holdsFighter(900) != night.isUserBooked())
        return "the user's man and the flag disagree";
    const bool ruled = night.hasChampionship() || night.hasQualifier() || night.hasTournamentRounds();
    for (int i = 0; i < night.matchCount(); ++i) {
        const Entity_Match m = night.matchAt(i);
        for (const auto &[id, name] :
             {std::pair(m.fighterOneId(), m.fighterOne()), std::pair(m.fighterTwoId(), m.fighterTwo())}) {
            if (id == 0 || !men.contains(id))
                continue;
            const QString type = m.matchType();
            const auto [p, users] = men.value(id);
            const bool fits = type == T                                      ? p < 10 || name == title
                              : type == Entity_Match::TournamentQualifier    ? p < 16
                              : type == Entity_Match::TournamentQuarterfinal ? p < 8
                              : type != S                                    ? true
                              : i < night.matchCount() - 1                   ? p >= 5
                              : users                                        ? p < 5
                                                                             : ruled || p < 10;
            if (!fits)
                return QString("%1 of position %2 in a %3").arg(name).arg(p).arg(type);
        }
    }
    return {};
}

// One promotion, one night ahead, and what a day of booking must make of it.
struct Scene {
    QList<Entity_Match> card = cardOf({S, S, S});
    QString name = NightName;
    QStringList titles;
    int rosterSize = 12;
    int userPosition = -99; // the user's man Jo Storm, -99 for none
    bool userOnUndercard = false;
    int daysOut = 7;
    // expectations; a negative number or an empty list or text asks nothing
    QString firstLine;
    int lines = -1;
    int attempts = -1;
    int complete = -1;
    QString absent;          // a man who must stay off the card
    QStringList userAllowed; // where Jo Storm may stand
    QString userSeen;        // where some seed must put him
    QString nameAfter;       // %1 and %2: the last names in the main event's places
    int offersLeft = -1;     // of one offer for this night and one for another

    World world() const
    {
        World w;
        QList<Entity_Match> cards = card;
        QList<Entity_GymFighter> men;
        if (userPosition != -99)
            men.append(gymFighter(900, "Jo", "Storm", 100 * (userPosition + 1) + 50, Org, 5, 1000));
        if (userOnUndercard)
            cards[0] = slot(S, "Jo Storm", 900, "TBA", 0, true);
        const Entity_Event night = bookedEvent(makeEvent(name, Org, Today.addDays(daysOut), cards), userOnUndercard);
        w.organisations = {organisation(Org, {night}, rosterOf(rosterSize), titleRows(titles))};
        w.fighters = men;
        for (const Entity_GymFighter &man : men)
            w.bookings.append(userOnUndercard ? Entity_Booking(900, man.fullName(), name, Org, night.date())
                                              : Entity_Booking::emptyFor(900, man.fullName(), Today));
        w.offers = {Entity_Booking(901, "Jo Blaze", name, Org, night.date()),
                    Entity_Booking(901, "Jo Blaze", "Other Night", "Other FC", Today.addDays(9))};
        return w;
    }
};

} // namespace

Q_DECLARE_METATYPE(Scene)

class tst_Booking : public QObject
{
    Q_OBJECT

private slots:
    void aDayOfBookingFollowsTheSlotRules_data()
    {
        QTest::addColumn<Scene>("scene");
        const QString belt = "Test FC World Championship=";
        const QList<Entity_Match> titleCard = cardOf({S, S, T});
        const QString byTitle = "Booked %1 for a Championship Match at Test FC Night";
        Scene s;

        s = {}, s.card = titleCard, s.titles = {belt + "Vacant"}, s.daysOut = 20;
        s.firstLine = byTitle.arg("Ken Alpha"), s.nameAfter = "Test FC: Alpha vs. %2";
        QTest::newRow("vacant title: the best man first") << s;
        s = {}, s.card = titleCard, s.titles = {belt + "Ken Mike"}, s.rosterSize = 14, s.daysOut = 20;
        s.firstLine = byTitle.arg("Ken Mike"), s.nameAfter = "Test FC: Mike vs. %2";
        QTest::newRow("the holder is called up, whatever his position") << s;
        s = {}, s.card = titleCard, s.titles = {belt + "Old Timer"}, s.daysOut = 20, s.absent = "Old Timer";
        QTest::newRow("a holder who has left books nobody") << s;

        s = {}, s.card = cardOf({S, S, S, S}), s.rosterSize = 11; // six undercard places, six men from position 5
        s.titles = {belt + "Ken Golf"}, s.complete = 0, s.absent = "Ken Golf";
        QTest::newRow("a one-title champion fights only for his belt") << s;
        s.titles = {"Test FC Grand Prix 2011=Ken Golf"}, s.complete = 1, s.absent = "";
        QTest::newRow("a Grand Prix winner fights single matches") << s;
        s.titles = {belt + "Ken Golf", "Test FC Youth Championship=Vacant"};
        QTest::newRow("a champion of two titles fights single matches") << s;
        s.titles = {}, s.rosterSize = 10, s.complete = 0;
        QTest::newRow("the top five never fill the undercard") << s;

        s = {}, s.userPosition = 3, s.userAllowed = {Main, Off}, s.userSeen = Main;
        QTest::newRow("the user's man of position 3 waits until the undercard is full") << s;
        s.userPosition = 5, s.userAllowed = {S, Off}, s.userSeen = S;
        QTest::newRow("the user's man of position 5 stays on the undercard") << s;
        s = {}, s.card = titleCard, s.titles = {belt + "Vacant"}, s.rosterSize = 14;
        s.userPosition = 9, s.userAllowed = {T, S, Off}, s.userSeen = T;
        QTest::newRow("the user's man of position 9 may fight for the belt") << s;
        s.userPosition = 10, s.userAllowed = {S, Off}, s.userSeen = S;
        QTest::newRow("the user's man of position 10 may not") << s;
        s = {}, s.card = cardOf({"Tournament Quarterfinal", "Tournament Quarterfinal", "Tournament Quarterfinal",
                                 "Tournament Quarterfinal", "Tournament Semifinal", "Tournament Semifinal",
                                 "Tournament Final"});
        s.userPosition = 7, s.userAllowed = {"Tournament Quarterfinal", Off}, s.userSeen = "Tournament Quarterfinal";
        s.nameAfter = NightName;
        QTest::newRow("a finals night keeps its name; position 7 reaches the quarterfinals") << s;
        s.userPosition = 8, s.userAllowed = {Off}, s.userSeen = "";
        QTest::newRow("position 8 has no place on a finals night") << s;
        s = {}, s.card = cardOf(QStringList(8, "Tournament Qualifier")), s.rosterSize = 20;
        s.userPosition = 15, s.userAllowed = {"Tournament Qualifier", Off}, s.userSeen = "Tournament Qualifier";
        QTest::newRow("position 15 reaches the qualifiers") << s;
        s.userPosition = 16, s.userAllowed = {Off}, s.userSeen = "";
        QTest::newRow("position 16 does not") << s;

        s = {}, s.card = {slot(S, "Ken Foxtrot", 105, "Ken Golf", 106), slot(S, "Ken Hotel", 107, "Ken India", 108),
                          slot(S, "Ken Alpha", 100, "Ken Bravo", 101)};
        s.daysOut = 10, s.lines = 0, s.attempts = 11, s.offersLeft = 2;
        QTest::newRow("a full card ten days out takes nothing and makes no news") << s;
        s = {}, s.daysOut = 10, s.lines = 1;
        QTest::newRow("ten days out: one man a day") << s;
        s.daysOut = 7, s.lines = 6, s.complete = 1;
        QTest::newRow("seven days out: the whole card in one day") << s;
        s = {}, s.userPosition = 8, s.userOnUndercard = true, s.lines = 5, s.complete = 1;
        s.nameAfter = "Test FC: %1 vs. %2", s.offersLeft = 1;
        QTest::newRow("the main event renames the night and the user's link follows") << s;

        s = {}, s.card = cardOf(QStringList(10, S)), s.rosterSize = 3, s.lines = 0, s.complete = 0;
        s.attempts = BookingRound::LastWeekAttemptLimit;
        QTest::newRow("a roster of three cannot fill ten matches and gives up") << s;
        s = {}, s.rosterSize = 0, s.lines = 0, s.attempts = 0;
        QTest::newRow("an empty roster ends the turn") << s;
        s = {}, s.daysOut = -1, s.lines = 0, s.attempts = 1;
        QTest::newRow("a spent calendar ends the turn after one attempt") << s;
    }

    void aDayOfBookingFollowsTheSlotRules()
    {
        QFETCH(Scene, scene);
        QStringList userPlaces;
        for (quint32 seed = 1; seed <= 8; ++seed) {
            QVERIFY(scene.world().load());
            const int before = placesTaken();
            Random::useTestClock(seed);
            WorldState world = game().state();
            BookingRound round(world);
            const QStringList news = round.run();
            game().takeWorld(world);
            const Entity_Event night = nextNight();

            QCOMPARE(placesTaken() - before, int(news.size()));
            for (const QString &line : news) {
                QVERIFY2(NewsLine.match(line).hasMatch(), qPrintable(line));
                QVERIFY(scene.absent.isEmpty() || !line.contains(scene.absent));
            }
            QCOMPARE(faultsOf(night), QString());
            // the world's own rules of a card: nobody twice, the user's link under the night's name
            const QString broken =
                faults().split('\n').filter(QRegularExpression(" twice | does not exist")).join('\n');
            QVERIFY2(broken.isEmpty(), qPrintable(broken));
            if (!scene.firstLine.isEmpty())
                QCOMPARE(news.value(0), scene.firstLine);
            if (scene.lines >= 0)
                QCOMPARE(int(news.size()), scene.lines);
            if (scene.attempts >= 0)
                QCOMPARE(round.attemptCounts(), QList<int>{scene.attempts});
            if (scene.complete >= 0)
                QCOMPARE(night.cardFilled(), scene.complete == 1);
            const Entity_Match main = night.matchAt(night.matchCount() - 1);
            if (!scene.nameAfter.isEmpty())
                QCOMPARE(night.name(), QString(scene.nameAfter)
                                           .replace("%1", main.fighterOne().section(' ', -1))
                                           .replace("%2", main.fighterTwo().section(' ', -1)));
            if (scene.offersLeft >= 0)
                QCOMPARE(int(game().state().offers.size()), scene.offersLeft);
            userPlaces.append(placeOf(night, 900));
            QVERIFY2(scene.userAllowed.isEmpty() || scene.userAllowed.contains(userPlaces.last()),
                     qPrintable(userPlaces.last()));
        }
        QVERIFY2(scene.userSeen.isEmpty() || userPlaces.contains(scene.userSeen), qPrintable(userPlaces.join(", ")));
    }
};

QTEST_GUILESS_MAIN(tst_Booking)
#include "tst_booking.moc"
