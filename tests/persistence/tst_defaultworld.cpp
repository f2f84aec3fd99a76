#include "PersistenceKit.h"

#include "persistence/DefaultWorld.h"
#include "world/Entity_Match.h"
#include "world/OrgTable.h"
#include "world/WorldInvariants.h"

#include <QSet>
#include <QtTest>

using F = Entity_Fighter;
using namespace PersistenceKit;

namespace {

// the skill band in which each prestige level signs its men
struct Band {
    const char *prestige;
    int low;
    int high;
};
constexpr Band bands[] = {
    {"Elite", 70, 100}, {"World Class", 56, 77}, {"International", 41, 62}, {"National", 26, 47}, {"Regional", 10, 32}};

int skillLevel(const F &man)
{
    int sum = 0;
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        sum += man.number(F::Number(a));
    return sum / F::AttributeCount;
}

QList<Entity_Event> calendarOf(const Entity_Org &org)
{
    QList<Entity_Event> events;
    org.events(events);
    return events;
}

Entity_Org::Roster rosterOf(const Entity_Org &org)
{
    Entity_Org::Roster roster;
    org.rosterCopy(roster);
    return roster;
}

Entity_Org::Titles titlesOf(const Entity_Org &org)
{
    Entity_Org::Titles titles;
    org.titlesCopy(titles);
    return titles;
}

} // namespace

// The world of a new game as the default files give it.
class tst_DefaultWorld : public QObject
{
    Q_OBJECT

    WorldState world;

    void orgRows()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < OrgTable::Count; ++i)
            QTest::newRow(qPrintable(OrgTable::name(i))) << i;
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(defaultsPresent(), "the default files are missing: build orvane_runtime_files");
        world = DefaultWorld::read();
    }

    // the rules that hold at the end of every day hold on the first one
    void worldInvariantsHold() { QCOMPARE(WorldInvariants::check(world), QStringList()); }

    void rosters_data() { orgRows(); }
    void rosters()
    {
        QFETCH(int, index);
        const Entity_Org org = world.organisations.value(index);
        const Entity_Org::Roster roster = rosterOf(org);
        QVERIFY2(roster.size() >= 30 && roster.size() <= 50, qPrintable(QString::number(roster.size())));
        int inBand = 0;
        const Band *band = nullptr;
        for (const Band &row : bands)
            if (org.prestige() == QLatin1String(row.prestige))
                band = &row;
        QVERIFY(band);
        for (auto it = roster.cbegin(); it != roster.cend(); ++it) {
            const F &man = it.value();
            QCOMPARE(it.key(), man.getRankingScore());
            QCOMPARE(man.text(F::Organisation), org.name());
            QVERIFY(man.number(F::ContractFightsLeft) >= 2 && man.number(F::ContractFightsLeft) <= 7);
            QVERIFY(man.number(F::Age) >= 18 && man.number(F::Age) <= 40);
            QVERIFY(!man.text(F::Reputation).isEmpty());
            inBand += skillLevel(man) >= band->low && skillLevel(man) <= band->high;
        }
        // the promotion would sign these men: their skill suits its prestige
        QVERIFY2(inBand * 10 >= roster.size() * 9, qPrintable(QString("%1 of %2").arg(inBand).arg(roster.size())));
        // the ranking means something: scores spread over thousands of points
        QVERIFY(roster.lastKey() - roster.firstKey() > 2000);
    }

    void calendars_data() { orgRows(); }
    void calendars()
    {
        QFETCH(int, index);
        const Entity_Org org = world.organisations.value(index);
        const QList<Entity_Event> calendar = calendarOf(org);
        const Entity_Org::Titles titles = titlesOf(org);
        QVERIFY(calendar.size() >= 6);
        QSet<QString> names;
        for (int i = 0; i < calendar.size(); ++i) {
            const Entity_Event &night = calendar[i];
            const QString where = night.name();
            QCOMPARE(night.date().year(), 2011);
            if (i > 0)
                QVERIFY2(night.date() > calendar[i - 1].date(), qPrintable(where));
            QCOMPARE(night.organisationName(), org.name());
            QVERIFY2(!night.name().contains('.') && !night.name().contains("vs") && !names.contains(night.name()),
                     qPrintable(where));
            names.insert(night.name());
            QVERIFY(night.results().isEmpty() && !night.isUserBooked());
            for (const Entity_Match &slot : night.matches())
                QVERIFY(slot.fighterOne() == "TBA" && slot.fighterTwo() == "TBA" && slot.fighterOneId() == 0);
            const QList<Entity_Match> card = night.matches();
            const QString main = card.last().matchType();
            if (night.hasChampionship()) {
                // a title night's main event is the title match, for the promotion's first row
                QCOMPARE(main, QString(Entity_Match::ChampionshipMatch));
                QCOMPARE(night.title(), titles.firstKey());
                QVERIFY(night.title().contains("World Championship"));
            }
            if (night.hasQualifier()) {
                int qualifiers = 0;
                for (const Entity_Match &slot : card)
                    qualifiers += slot.matchType() == Entity_Match::TournamentQualifier;
                QCOMPARE(qualifiers, 8);
                QCOMPARE(main, QString(Entity_Match::TournamentQualifier));
                // the winners go on to the very next night, the finals
                QVERIFY2(i + 1 < calendar.size() && calendar[i + 1].hasTournamentRounds(), qPrintable(where));
                QVERIFY(rosterOf(org).size() > 16);
            }
            if (night.hasTournamentRounds()) {
                QStringList rounds;
                for (const Entity_Match &slot : card)
                    if (slot.matchType() != Entity_Match::SingleMatch)
                        rounds.append(slot.matchType());
                QCOMPARE(rounds, (QStringList{"Tournament Quarterfinal", "Tournament Quarterfinal",
                                              "Tournament Quarterfinal", "Tournament Quarterfinal",
                                              "Tournament Semifinal", "Tournament Semifinal", "Tournament Final"}));
                QCOMPARE(main, QString(Entity_Match::TournamentFinal));
                QVERIFY(night.title().contains("Grand Prix") && night.title().contains("2011"));
                QVERIFY(night.name().contains("2011"));
            }
            if (!night.hasChampionship() && !night.hasQualifier() && !night.hasTournamentRounds())
                QCOMPARE(night.title(), QString("No Title"));
        }
    }

    // the careers of the years before: lines, record and opponents agree
    void careersAgreeWithRecords()
    {
        QSet<QString> everyone;
        const QList<F> men = worldMen(world);
        for (const F &man : men)
            everyone.insert(man.fullName());
        int withHistory = 0;
        for (const F &man : men) {
            int wins = 0;
            int losses = 0;
            int kos = 0;
            const F::History history = man.history();
            for (auto it = history.cbegin(); it != history.cend(); ++it) {
                QVERIFY(it.key() < QDate(2011, 1, 1));
                const QString &line = it.value();
                const bool win = line.startsWith("Win: ");
                QVERIFY2(win || line.startsWith("Loss: "), qPrintable(line));
                wins += win;
                losses += !win;
                kos += win && !line.contains("Decision");
                const QString opponent = line.section(": ", 1).section(" - ", 0, 0);
                QVERIFY2(everyone.contains(opponent), qPrintable(line));
            }
            withHistory += !history.isEmpty();
            QCOMPARE(man.number(F::Wins), wins);
            QCOMPARE(man.number(F::Losses), losses);
            QCOMPARE(man.number(F::Kos), kos);
        }
        QVERIFY(withHistory > 500);
    }

    // without the files the world keeps its eighteen promotions, empty, and gains nobody
    void missingFilesLeaveEmptyPlaces()
    {
        WorkingFolder folder;
        const WorldState empty = DefaultWorld::read();
        QCOMPARE(empty.organisations.size(), OrgTable::Count);
        QCOMPARE(empty.organisations.last().name(), OrgTable::name(OrgTable::Count - 1));
        QVERIFY(worldMen(empty).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_DefaultWorld)
#include "tst_defaultworld.moc"
