#include "PersistenceKit.h"

#include "fighters/FighterTraits.h"
#include "fighters/GameLists.h"
#include "fighters/Random.h"
#include "persistence/DataFile.h"
#include "persistence/DefaultFiles.h"
#include "persistence/FighterGenerator.h"
#include "persistence/NationTable.h"

#include <QSet>
#include <QtTest>

using F = Entity_Fighter;
using namespace PersistenceKit;

// The generator of new persons: students for the gym and free agents for the world.
class tst_Generator : public QObject
{
    Q_OBJECT

    static QList<F> freeAgents() { return World::running().freeAgents.values(); }

private slots:
    void init()
    {
        GameManager::instance().resetWorld();
        Random::useTestClock(5150);
    }

    void qualityBands_data()
    {
        QTest::addColumn<int>("roll");
        QTest::addColumn<int>("bonus");
        QTest::newRow("0 stands as it is") << 0 << 0;
        QTest::newRow("9 stands as it is") << 9 << 9;
        QTest::newRow("10 gives 3") << 10 << 3;
        QTest::newRow("29 gives 3") << 29 << 3;
        QTest::newRow("30 gives 6") << 30 << 6;
        QTest::newRow("49 gives 6") << 49 << 6;
        QTest::newRow("50 gives 9") << 50 << 9;
        QTest::newRow("64 gives 9") << 64 << 9;
        QTest::newRow("65 gives 12") << 65 << 12;
        QTest::newRow("70 gives 12") << 70 << 12;
    }
    void qualityBands()
    {
        QFETCH(int, roll);
        QFETCH(int, bonus);
        QCOMPARE(FighterGenerator::qualityBonus(roll), bonus);
    }

    void familyTable_data()
    {
        QTest::addColumn<QString>("region");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("family");
        QTest::newRow("North America 0") << "North America" << 0 << "anglo";
        QTest::newRow("North America 11") << "North America" << 11 << "anglo";
        QTest::newRow("North America 8") << "North America" << 8 << "hispanic";
        QTest::newRow("North America 6") << "North America" << 6 << "french";
        QTest::newRow("North America, others") << "North America" << 7 << "british";
        QTest::newRow("South America 2") << "South America" << 2 << "portuguese";
        QTest::newRow("South America, others") << "South America" << 0 << "hispanic";
        QTest::newRow("Western Europe 18") << "Western Europe" << 18 << "germanic";
        QTest::newRow("Western Europe 5") << "Western Europe" << 5 << "french";
        QTest::newRow("Western Europe 7") << "Western Europe" << 7 << "greek";
        QTest::newRow("Western Europe 17") << "Western Europe" << 17 << "scandinavian";
        QTest::newRow("Western Europe 10") << "Western Europe" << 10 << "italian";
        QTest::newRow("Western Europe 11") << "Western Europe" << 11 << "dutch";
        QTest::newRow("Western Europe 14") << "Western Europe" << 14 << "portuguese";
        QTest::newRow("Western Europe 16") << "Western Europe" << 16 << "hispanic";
        QTest::newRow("Western Europe, others") << "Western Europe" << 15 << "british";
        QTest::newRow("Eastern Europe 16") << "Eastern Europe" << 16 << "balkan";
        QTest::newRow("Eastern Europe 13") << "Eastern Europe" << 13 << "russian";
        QTest::newRow("Eastern Europe, others") << "Eastern Europe" << 18 << "eastern_european";
        QTest::newRow("Africa 14") << "Africa" << 14 << "dutch";
        QTest::newRow("Africa 6") << "Africa" << 6 << "french";
        QTest::newRow("Africa 10") << "Africa" << 10 << "arab";
        QTest::newRow("Africa, others") << "Africa" << 2 << "african";
        QTest::newRow("Middle East 5") << "Middle East" << 5 << "israeli";
        QTest::newRow("Middle East 14") << "Middle East" << 14 << "turkic";
        QTest::newRow("Middle East 7") << "Middle East" << 7 << "russian";
        QTest::newRow("Middle East, others") << "Middle East" << 15 << "arab";
        QTest::newRow("East Asia 2") << "East Asia" << 2 << "japanese";
        QTest::newRow("East Asia 5") << "East Asia" << 5 << "korean";
        QTest::newRow("East Asia, others") << "East Asia" << 3 << "chinese";
        QTest::newRow("Oceania 6") << "Oceania" << 6 << "anglo";
        QTest::newRow("Oceania 9") << "Oceania" << 9 << "thai";
        QTest::newRow("Oceania 8") << "Oceania" << 8 << "chinese";
        QTest::newRow("Oceania 7") << "Oceania" << 7 << "hispanic";
        QTest::newRow("Oceania, others") << "Oceania" << 18 << "oceanic";
    }
    void familyTable()
    {
        QFETCH(QString, region);
        QFETCH(int, position);
        QFETCH(QString, family);
        QCOMPARE(NationTable::family(NationTable::regionIndex(region), position), family);
        QVERIFY(NationTable::families().contains(family));
    }

    // the nation file puts each main nation where its place gives its own family
    void mainNationsInTheNationFile_data()
    {
        QTest::addColumn<int>("main");
        for (int i = 0; i < NationTable::MainCount; ++i)
            QTest::newRow(qPrintable(NationTable::mainNation(i))) << i;
    }
    void mainNationsInTheNationFile()
    {
        QFETCH(int, main);
        NationTable::Lists lists;
        QVERIFY2(NationTable::read(lists, DefaultFiles::path(DefaultFiles::nationsFile())), "no default nation file");
        const int region = NationTable::mainRegion(main);
        const QString nation = NationTable::mainNation(main);
        const int position = int(lists[region].indexOf(nation));
        QVERIFY2(position >= 0, qPrintable(nation + " is not in its region"));
        // the same family whether it is found by its place or by the main list alone
        QCOMPARE(NationTable::family(region, position), NationTable::familyOf(NationTable::Lists(8), region, nation));
    }

    void idsComeFromTheCounter_data()
    {
        QTest::addColumn<QList<bool>>("forGym");
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<int>("counter");
        QTest::newRow("the first free agent takes 1059") << QList<bool>{false} << QList<int>{1059} << 1059;
        QTest::newRow("the second takes 1060") << QList<bool>{false, false} << QList<int>{1059, 1060} << 1060;
        QTest::newRow("a student holds 2000 and spends no id")
            << QList<bool>{false, true, false} << QList<int>{1059, 2000, 1060} << 1060;
        QTest::newRow("students alone leave the counter at 1058")
            << QList<bool>{true, true} << QList<int>{2000, 2000} << 1058;
    }
    void idsComeFromTheCounter()
    {
        QFETCH(QList<bool>, forGym);
        QFETCH(QList<int>, ids);
        QFETCH(int, counter);
        QVERIFY2(defaultsPresent(), "the default files are missing");
        setUser("Japan", "East Asia");
        GameManager &game = GameManager::instance();
        QList<int> made;
        for (bool student : forGym) {
            QString name;
            QCOMPARE(game.generateFighter(name, student), student);
            QVERIFY(!name.isEmpty());
            QList<int> integers;
            QStringList strings;
            QDate birth;
            F::History history;
            QStringList titles;
            if (student) {
                game.studentPack(int(game.studentNames().size()) - 1, strings, integers, birth, history, titles);
            } else {
                const QList<F> agents = freeAgents();
                for (const F &man : agents)
                    if (man.fullName() == name)
                        integers = man.integerList();
            }
            QCOMPARE(strings.isEmpty() ? name : strings[F::FirstName] + ' ' + strings[F::LastName], name);
            made.append(integers.value(F::Id));
        }
        QCOMPARE(made, ids);
        QCOMPARE(game.getNextId(), counter);
    }

    // origins over many draws: where the men come from, by the rules of free agents and students
    void originRules_data()
    {
        QTest::addColumn<bool>("forGym");
        QTest::addColumn<QString>("managerNation");
        QTest::addColumn<QString>("managerRegion");
        QTest::addColumn<double>("nationLow"); // share of the manager's nation
        QTest::addColumn<double>("nationHigh");
        QTest::addColumn<double>("regionLow"); // share of the manager's region
        QTest::addColumn<double>("regionHigh");
        QTest::addColumn<double>("mainLow"); // share of main nations
        QTest::newRow("free agents mostly from the main list") << false << ""
                                                               << "" << 0.0 << 1.0 << 0.0 << 1.0 << 0.72;
        QTest::newRow("students of a main nation's manager") << true << "Japan"
                                                             << "East Asia" << 0.70 << 0.90 << 0.88 << 1.0 << 0.70;
        QTest::newRow("students of a small nation's manager: never simply copied")
            << true << "Fiji"
            << "Oceania" << 0.0 << 0.15 << 0.62 << 0.80 << 0.0;
        QTest::newRow("students of a manager from nowhere") << true << ""
                                                            << "" << 0.0 << 0.0 << 0.0 << 0.0 << 0.0;
    }
    void originRules()
    {
        QFETCH(bool, forGym);
        QFETCH(QString, managerNation);
        QFETCH(QString, managerRegion);
        QFETCH(double, nationLow);
        QFETCH(double, nationHigh);
        QFETCH(double, regionLow);
        QFETCH(double, regionHigh);
        QFETCH(double, mainLow);
        NationTable::Lists lists;
        QVERIFY(NationTable::read(lists, DefaultFiles::path(DefaultFiles::nationsFile())));
        constexpr int draws = 3000;
        int sameNation = 0;
        int sameRegion = 0;
        int main = 0;
        QSet<int> regions;
        for (int i = 0; i < draws; ++i) {
            const FighterGenerator::Origin origin =
                FighterGenerator::chooseOrigin(lists, forGym, managerNation, managerRegion);
            QVERIFY2(lists.value(origin.region).contains(origin.nation), qPrintable(origin.nation));
            sameNation += origin.nation == managerNation;
            sameRegion += NationTable::regions().value(origin.region) == managerRegion;
            main += NationTable::mainIndex(origin.nation) >= 0;
            regions.insert(origin.region);
        }
        const auto within = [](int count, double low, double high) {
            const double share = double(count) / draws;
            return share >= low && share <= high;
        };
        QVERIFY2(within(sameNation, nationLow, nationHigh), qPrintable(QString::number(sameNation)));
        QVERIFY2(within(sameRegion, regionLow, regionHigh), qPrintable(QString::number(sameRegion)));
        QVERIFY2(within(main, mainLow, 1.0), qPrintable(QString::number(main)));
        // one time in four or in three a man comes from anywhere at all
        QCOMPARE(regions.size(), NationTable::RegionCount);
    }

    void nameRetryIsBounded_data()
    {
        QTest::addColumn<QStringList>("first");
        QTest::addColumn<QStringList>("last");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("expected"); // empty: nobody can be named
        QTest::newRow("a free pair is found")
            << QStringList{"Anton", "Boris"} << QStringList{"Cole"} << QStringList{"Anton Cole"} << "Boris Cole";
        QTest::newRow("every pair taken ends without a name")
            << QStringList{"Anton"} << QStringList{"Cole"} << QStringList{"Anton Cole"} << "";
        QStringList first;
        QStringList last;
        QStringList taken;
        for (int i = 0; i < 30; ++i) {
            first.append(QString("First%1").arg(QChar('A' + i % 26)) + QString(i / 26, 'x'));
            last.append(QString("Last%1").arg(QChar('A' + i % 26)) + QString(i / 26, 'x'));
        }
        for (const QString &f : std::as_const(first))
            for (const QString &l : std::as_const(last))
                taken.append(f + ' ' + l);
        const QString free = taken.takeAt(517);
        QTest::newRow("the one free pair of 900 is found") << first << last << taken << free;
    }
    void nameRetryIsBounded()
    {
        QFETCH(QStringList, first);
        QFETCH(QStringList, last);
        QFETCH(QStringList, taken);
        QFETCH(QString, expected);
        const QSet<QString> takenSet(taken.cbegin(), taken.cend());
        QString f;
        QString l;
        const bool found = FighterGenerator::drawName({first, last}, takenSet, f, l);
        QCOMPARE(found, !expected.isEmpty());
        if (found)
            QCOMPARE(f + ' ' + l, expected);
    }

    // A family with one name: the first man takes it, after that nobody can be made, no id is
    // spent and no list grows.
    void crowdedFamilyMakesNobody()
    {
        WorkingFolder folder;
        QDir().mkpath(DefaultFiles::folder());
        QVERIFY(DataFile::write(DefaultFiles::path(DefaultFiles::nationsFile()), [](QDataStream &out) {
            for (int region = 0; region < NationTable::RegionCount; ++region)
                StreamForm::writeStringList(out, QStringList{NationTable::mainNation(NationTable::MainCount - 1)});
        }));
        for (const QString &family : NationTable::families())
            QVERIFY(DataFile::write(DefaultFiles::path(DefaultFiles::namesFile(family)), [](QDataStream &out) {
                StreamForm::writeStringList(out, {"Solo"});
                StreamForm::writeStringList(out, {"Man"});
            }));
        setUser("Thailand", "Oceania");
        GameManager &game = GameManager::instance();
        QString name;
        QVERIFY(!game.generateFighter(name, false));
        QCOMPARE(name, QString("Solo Man"));
        QCOMPARE(game.getNextId(), 1059);

        QString none = "unchanged";
        QVERIFY(!game.generateFighter(none, false));
        QVERIFY(!game.generateFighter(none, true));
        QCOMPARE(none, QString("unchanged"));
        QCOMPARE(game.getNextId(), 1059);
        QCOMPARE(freeAgents().size(), 1);
        QVERIFY(game.studentNames().isEmpty());
    }

    // a missing nation file or name file still makes a man, from the main list and named "N/A"
    void missingFilesStillMakeAMan()
    {
        WorkingFolder folder;
        setUser("Thailand", "Oceania");
        QString name;
        QVERIFY(!GameManager::instance().generateFighter(name, false));
        QCOMPARE(name, QString("N/A N/A"));
        const F man = freeAgents().value(0);
        QVERIFY(NationTable::mainIndex(man.text(F::Nationality)) >= 0);
        QCOMPARE(man.text(F::Region),
                 NationTable::regions().at(NationTable::mainRegion(NationTable::mainIndex(man.text(F::Nationality)))));
    }

    void traitsShownByIntuition_data()
    {
        QTest::addColumn<int>("intuition");
        QTest::newRow("Intuition 0 sees no trait") << 0;
        QTest::newRow("Intuition 3 sees the plain ones") << 3;
        QTest::newRow("Intuition 7 sees most") << 7;
        QTest::newRow("Intuition 10 sees them all") << 10;
    }
    void traitsShownByIntuition()
    {
        QFETCH(int, intuition);
        QVERIFY2(defaultsPresent(), "the default files are missing");
        setUser("Japan", "East Asia", intuition, 200);
        GameManager &game = GameManager::instance();
        int shown = 0;
        for (int i = 0; i < 120; ++i) {
            QString name;
            QVERIFY(game.generateFighter(name, true));
            QStringList strings;
            QList<int> integers;
            QDate birth;
            F::History history;
            QStringList titles;
            game.studentPack(i, strings, integers, birth, history, titles);
            const QStringList lines = strings[F::Bio].split('\n');
            QCOMPARE(lines.first(), QString("New Fighter"));
            for (const QString &trait : lines.mid(1)) {
                if (trait.isEmpty())
                    continue;
                QVERIFY2(FighterTraits::shownFrom(trait) <= intuition, qPrintable(trait));
                ++shown;
            }
        }
        QCOMPARE(shown > 0, intuition > 0);
    }

    void studentCarriesTheGym()
    {
        QVERIFY2(defaultsPresent(), "the default files are missing");
        setUser("Japan", "East Asia", 5, 2);
        GameManager &game = GameManager::instance();
        for (int i = 0; i < 2; ++i) {
            QString name;
            QVERIFY(game.generateFighter(name, true));
            QStringList strings;
            QList<int> integers;
            QDate birth;
            F::History history;
            QStringList titles;
            game.studentPack(i, strings, integers, birth, history, titles);
            QCOMPARE(strings[F::ShortsColour], QString("Gold"));
            QCOMPARE(strings[F::TrimColour], QString("Black"));
            QCOMPARE(strings[F::Organisation], QString("Free Agent"));
            QCOMPARE(strings[F::Reputation], QString("Unknown"));
            QVERIFY(GameLists::backgrounds().contains(strings[F::FightingBackground]));
            QVERIFY(GameLists::fightingStyles().contains(strings[F::FightingStyle]));
            QCOMPARE(integers[F::Age], 18);
            QCOMPARE(integers[F::RankingScore], 8000);
            QCOMPARE(integers[F::ContractFightsLeft], 0);
            QCOMPARE(birth.year(), 1993);
            QVERIFY(history.isEmpty() && titles.isEmpty());
        }
        // a full gym declines at once
        QString name = "unchanged";
        QVERIFY(!game.generateFighter(name, true));
        QCOMPARE(name, QString("unchanged"));
        QCOMPARE(game.studentNames().size(), 2);
    }

    void freeAgentFields()
    {
        QVERIFY2(defaultsPresent(), "the default files are missing");
        setUser("Japan", "East Asia");
        GameManager &game = GameManager::instance();
        for (int i = 0; i < 100; ++i) {
            QString name;
            game.generateFighter(name, false);
        }
        const QList<F> agents = freeAgents();
        QCOMPARE(agents.size(), 100);
        for (const F &man : agents) {
            QVERIFY(GameLists::kitColours().contains(man.text(F::ShortsColour)));
            QVERIFY(GameLists::kitColours().contains(man.text(F::TrimColour)));
            QVERIFY(GameLists::hairColours().contains(man.text(F::HairColour)));
            QVERIFY(man.number(F::BodyImage) >= 1 && man.number(F::BodyImage) <= 21);
            QVERIFY(man.number(F::HeadImage) >= 1 && man.number(F::HeadImage) <= 7);
            QVERIFY(man.number(F::FaceImage) >= 1 && man.number(F::FaceImage) <= 4);
            QVERIFY(man.number(F::HeadDurability) <= 99 && man.number(F::BodyDurability) <= 99);
            QVERIFY(man.getBirthDate().day() <= 28);
            // a free agent's bio tells every trait he has
            for (const QString &line : man.text(F::Bio).split('\n').mid(1))
                QVERIFY(line.isEmpty() || FighterTraits::drawList().contains(line));
        }
    }

    // with the whole default world in place, a new man never takes a name that someone bears
    void namesStayUnique()
    {
        QVERIFY2(defaultsPresent(), "the default files are missing");
        GameManager &game = GameManager::instance();
        setUser("Japan", "East Asia", 5, 40);
        game.loadDefaultWorld();
        for (int i = 0; i < 300; ++i) {
            QString name;
            game.generateFighter(name, i % 10 == 0);
        }
        QStringList names = game.studentNames();
        for (const F &man : World::running().worldMen())
            names.append(man.fullName());
        const QSet<QString> distinct(names.cbegin(), names.cend());
        QCOMPARE(distinct.size(), names.size());
    }
};

QTEST_GUILESS_MAIN(tst_Generator)
#include "tst_generator.moc"
