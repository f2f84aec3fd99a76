#include "WorldSamples.h"
#include "fighters/TableRows.h"

#include "fighters/FighterGenerator.h"
#include "fighters/FighterTraits.h"
#include "fighters/NationTable.h"
#include "fighters/Random.h"

#include <QSet>
#include <QtTest>

using F = Entity_Fighter;
using namespace WorldSamples;

namespace {

// every region's main nations and then made-up ones; Fiji stands among Oceania's
NationTable::Lists regionLists()
{
    NationTable::Lists lists(NationTable::RegionCount);
    for (int i = 0; i < NationTable::MainCount; ++i)
        lists[NationTable::mainRegion(i)].append(NationTable::mainNation(i));
    for (int region = 0; region < NationTable::RegionCount; ++region)
        for (int extra = 0; extra < 6; ++extra)
            lists[region].append(QString("Land %1-%2").arg(region).arg(extra));
    lists[NationTable::regionIndex("Oceania")][4] = "Fiji";
    return lists;
}

// every family gives the same names: `count` first names and `count` last names
FighterGenerator::NameBook bookOf(int count)
{
    FighterGenerator::Names names;
    for (int i = 0; i < count; ++i) {
        names.first.append(QString("First%1").arg(i));
        names.last.append(QString("Last%1").arg(i));
    }
    return {[] { return regionLists(); }, [names](const QString &) { return names; }};
}

// a world of the first day whose manager and gym are as given
void startWith(const QString &nation, const QString &region, int intuition = 5, int studentSlots = 3)
{
    World world;
    world.nextId = 1058;
    QList<int> managerValues(Entity_Manager::ValueCount, 0);
    managerValues[Entity_Manager::Intuition] = intuition;
    world.manager.unpack({"Ken", "Saito", region, nation, "Unknown"}, managerValues, {});
    QList<int> gymValues = world.gym.values();
    gymValues[Entity_Gym::StudentSlots] = studentSlots;
    world.gym.unpack({"Tiger Den", "Muay Thai", "Gold", "Black", "Unknown"}, gymValues, world.gym.ledger());
    game().takeWorld(world);
}

// the shares of the manager's nation and region and of the main nations
struct Origin {
    const char *name;
    bool forGym;
    const char *nation, *region;
    double nationLow, nationHigh, regionLow, regionHigh, mainLow;
};
const Origin origins[] = {
    {"free agents mostly from the main list", false, "", "", 0.0, 1.0, 0.0, 1.0, 0.80},
    {"students of a main nation's manager", true, "Japan", "East Asia", 0.70, 0.90, 0.88, 1.0, 0.70},
    {"students of a small nation's manager: never simply copied", true, "Fiji", "Oceania", 0.0, 0.15, 0.62, 0.80, 0.0},
    {"students of a manager from nowhere", true, "", "", 0.0, 0.0, 0.0, 0.0, 0.0},
};

} // namespace

// The making of new persons: students for the gym and free agents for the world.
class tst_Generator : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(5150); }
    void cleanup() { game().resetWorld(); }

    // the roll's band gives the bonus, borders of the first band and of the last; below the first
    // band the roll stands as it is
    void qualityBands()
    {
        const QList<std::pair<int, int>> bands{{9, 9}, {10, 3}, {64, 9}, {65, 12}};
        for (const auto &[roll, bonus] : bands)
            QCOMPARE(FighterGenerator::qualityBonus(roll), bonus);
    }

    // a student holds 2000 and spends no id
    void idsComeFromTheCounter()
    {
        startWith("Japan", "East Asia");
        QList<int> made;
        for (bool student : {false, true, false}) {
            QString name;
            QCOMPARE(game().generateFighter(bookOf(30), name, student), student);
            const QList<F> men = student ? game().state().students : game().state().freeAgents.values();
            for (const F &man : men)
                if (man.fullName() == name)
                    made.append(man.getId());
        }
        QCOMPARE(made, QList<int>({1059, 2000, 1060}));
        QCOMPARE(game().getNextId(), 1060);
    }

    // origins over many draws: where the men come from, by the rules of free agents and students
    void originRules_data() { TableRows::add(origins); }
    void originRules()
    {
        const Origin &row = TableRows::current(origins);
        const NationTable::Lists lists = regionLists();
        constexpr int draws = 3000;
        int sameNation = 0;
        int sameRegion = 0;
        int main = 0;
        QSet<int> regions;
        for (int i = 0; i < draws; ++i) {
            const FighterGenerator::Origin origin =
                FighterGenerator::chooseOrigin(lists, row.forGym, row.nation, row.region);
            QVERIFY2(lists.value(origin.region).contains(origin.nation), qPrintable(origin.nation));
            sameNation += origin.nation == row.nation;
            sameRegion += NationTable::regions().value(origin.region) == row.region;
            main += NationTable::mainIndex(origin.nation) >= 0;
            regions.insert(origin.region);
        }
        const auto within = [](int count, double low, double high) {
            const double share = double(count) / draws;
            return share >= low && share <= high;
        };
        QVERIFY2(within(sameNation, row.nationLow, row.nationHigh), qPrintable(QString::number(sameNation)));
        QVERIFY2(within(sameRegion, row.regionLow, row.regionHigh), qPrintable(QString::number(sameRegion)));
        QVERIFY2(within(main, row.mainLow, 1.0), qPrintable(QString::number(main)));
        // one time in four or in three a man comes from anywhere at all
        QCOMPARE(regions.size(), NationTable::RegionCount);
    }

    // Six first and six last names make 36 men, every one named apart from everybody of the
    // world and the gym; after that nobody can be made, no id is spent and no list grows.
    void everyNameOnceThenNobody()
    {
        startWith("Japan", "East Asia", 5, 40);
        QSet<QString> names;
        for (int i = 0; i < 36; ++i) {
            QString name;
            game().generateFighter(bookOf(6), name, i % 3 == 0);
            names.insert(name);
        }
        QCOMPARE(names.size(), 36);
        QCOMPARE(game().getNextId(), 1058 + 24);

        QString none = "unchanged";
        QVERIFY(!game().generateFighter(bookOf(6), none, false));
        QVERIFY(!game().generateFighter(bookOf(6), none, true));
        QCOMPARE(none, QString("unchanged"));
        QCOMPARE(game().getNextId(), 1058 + 24);
        QCOMPARE(game().state().freeAgents.size() + game().state().students.size(), 36);
    }

    // without nations or names a man is still made, from the main list and named "N/A"
    void anEmptyBookStillMakesAMan()
    {
        startWith("Thailand", "Oceania");
        QString name;
        QVERIFY(!game().generateFighter({}, name, false));
        QCOMPARE(name, QString("N/A N/A"));
        const F man = game().state().freeAgents.first();
        const int main = NationTable::mainIndex(man.text(F::Nationality));
        QVERIFY(main >= 0);
        QCOMPARE(man.text(F::Region), NationTable::regions().at(NationTable::mainRegion(main)));
    }

    // a manager of Intuition 7 sees the traits up to 7 of the students he draws, and none beyond
    void traitsShownByIntuition()
    {
        const int intuition = 7;
        startWith("Japan", "East Asia", intuition, 200);
        int shown = 0;
        for (int i = 0; i < 120; ++i) {
            QString name;
            QVERIFY(game().generateFighter(bookOf(30), name, true));
            const QStringList lines = game().state().students[i].text(F::Bio).split('\n');
            QCOMPARE(lines.first(), QString("New Fighter"));
            for (const QString &trait : lines.mid(1)) {
                if (trait.isEmpty())
                    continue;
                QVERIFY2(FighterTraits::shownFrom(trait) <= intuition, qPrintable(trait));
                ++shown;
            }
        }
        QVERIFY(shown > 0);
    }
};

QTEST_GUILESS_MAIN(tst_Generator)
#include "tst_generator.moc"
