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
    int low, high;
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
        QVERIFY2(QFile::exists("./Resources/Defaults/default_nations.dat"), "the default files are missing");
        world = DefaultWorld::read();
    }

    // the rules that hold at the end of every day hold on the first one: among them each man
    // stands under his ranking score in the roster of the promotion he is signed to
    void worldInvariantsHold() { QCOMPARE(WorldInvariants::check(world), QStringList()); }

    void rosters_data() { orgRows(); }
    void rosters()
    {
        QFETCH(int, index);
        const Entity_Org org = world.organisations.value(index);
        Entity_Org::Roster roster;
        org.rosterCopy(roster);
        QVERIFY2(roster.size() >= 30 && roster.size() <= 50, qPrintable(QString::number(roster.size())));
        const Band *band = std::find_if(std::begin(bands), std::end(bands),
                                        [&](const Band &row) { return org.prestige() == QLatin1String(row.prestige); });
        QVERIFY(band != std::end(bands));
        int inBand = 0;
        for (const F &man : std::as_const(roster)) {
            QVERIFY(man.number(F::ContractFightsLeft) >= 2 && man.number(F::ContractFightsLeft) <= 7);
            QVERIFY(man.number(F::Age) >= 18 && man.number(F::Age) <= 40);
            inBand += skillLevel(man) >= band->low && skillLevel(man) <= band->high;
        }
        // the promotion would sign these men, and its ranking spreads over thousands of points
        QVERIFY2(inBand * 10 >= roster.size() * 9, qPrintable(QString("%1 of %2").arg(inBand).arg(roster.size())));
        QVERIFY(roster.lastKey() - roster.firstKey() > 2000);
    }

    void calendars_data() { orgRows(); }
    void calendars()
    {
        QFETCH(int, index);
        const Entity_Org org = world.organisations.value(index);
        QList<Entity_Event> calendar;
        org.events(calendar);
        Entity_Org::Titles titles;
        org.titlesCopy(titles);
        QVERIFY(calendar.size() >= 6);
        QSet<QString> names;
        for (int i = 0; i < calendar.size(); ++i) {
            const Entity_Event &night = calendar[i];
            const QString where = night.name();
            QCOMPARE(night.date().year(), 2011);
            QVERIFY2(i == 0 || night.date() > calendar[i - 1].date(), qPrintable(where));
            QCOMPARE(night.organisationName(), org.name());
            QVERIFY2(!where.contains('.') && !where.contains("vs") && !names.contains(where), qPrintable(where));
            names.insert(where);
            QVERIFY(night.results().isEmpty() && !night.isUserBooked());
            QStringList kinds;
            for (const Entity_Match &slot : night.matches()) {
                QVERIFY(slot.fighterOne() == "TBA" && slot.fighterTwo() == "TBA" && slot.fighterOneId() == 0);
                kinds << slot.matchType();
            }
            // a title night's main event is the title match for the promotion's first belt, and the
            // qualifiers' winners go on to the very next night, the finals
            if (night.hasChampionship())
                QVERIFY(kinds.last() == Entity_Match::ChampionshipMatch && night.title() == titles.firstKey());
            else if (night.hasQualifier())
                QVERIFY2(calendar.value(i + 1).hasTournamentRounds(), qPrintable(where));
            else if (!night.hasTournamentRounds())
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
            int wins = 0, losses = 0, kos = 0;
            const F::History history = man.history();
            for (auto it = history.cbegin(); it != history.cend(); ++it) {
                const QString &line = it.value();
                const bool win = line.startsWith("Win: ");
                QVERIFY2(it.key() < QDate(2011, 1, 1) && (win || line.startsWith("Loss: ")), qPrintable(line));
                wins += win;
                losses += !win;
                kos += win && !line.contains("Decision");
                QVERIFY2(everyone.contains(line.section(": ", 1).section(" - ", 0, 0)), qPrintable(line));
            }
            withHistory += !history.isEmpty();
            QCOMPARE(QList<int>({man.number(F::Wins), man.number(F::Losses), man.number(F::Kos)}),
                     QList<int>({wins, losses, kos}));
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
