#include "screens/ScreenTestKit.h"

#include "fighters/Random.h"
#include "persistence/FighterExport.h"
#include "screens/Module_MainMenu.h"
#include "screens/Module_Profile.h"
#include "screens/Module_UserEvents.h"

#include <QComboBox>
#include <QtTest>

using namespace ScreenTestKit;
using namespace PersistenceKit;

namespace {

const QString noFighterYet = QStringLiteral("To get a fighter, you need to pick one of your students to train.");

Module_Profile *profile()
{
    return qobject_cast<Module_Profile *>(ModuleManager::instance().currentModule());
}

void openFighterPage()
{
    openFromMenu(TopMenuBar::Profile);
    click("Current Fighters");
    QVERIFY(profile()->showsFighterPage());
}

// the man's export file, written by the game itself from a world of his own
void exportMan(const Entity_GymFighter &man)
{
    QVERIFY(worldWith({man}, 1300).load());
    QVERIFY(FighterExport::write(0));
}

} // namespace

class tst_Profile : public ScreenTest
{
    Q_OBJECT

private slots:
    void init()
    {
        Random::useTestClock(9);
        ModuleManager::instance().changeModule(new Module_MainMenu);
        QDir("Resources").removeRecursively();
    }

    // With no fighter each action of the page says so in its own words and changes nothing.
    void eachActionSaysWhenThereIsNoFighter_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("picks");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("export") << "Export Fighter" << QStringList()
                                << QStringList{"You have no fighters to export.\n" + noFighterYet};
        QTest::newRow("fantasy match") << "Import Fantasy Match" << QStringList{"Reto Meyer"}
                                       << QStringList{"Choose fighter to import:", "No user fighter selected."};
    }

    void eachActionSaysWhenThereIsNoFighter()
    {
        QFETCH(QString, button);
        QFETCH(QStringList, picks);
        QFETCH(QStringList, told);
        exportMan(gymMan("Reto", "Meyer", 1101, "GKO"));
        QVERIFY(worldWith({}, 1300).load());
        openFighterPage();
        const QByteArray before = worldBytes();
        QCOMPARE(texts(press(screenButton(button), {"Import", "Accept"}, picks)), told);
        QCOMPARE(worldBytes(), before);
    }

    // The man's file takes his name; a second export of that name asks before it overwrites, and
    // Cancel leaves the old file as it was.
    void anExportAsksBeforeItOverwrites()
    {
        QVERIFY(worldWith({gymMan("Reto", "Meyer", 1101, "GKO")}, 1300).load());
        openFighterPage();
        const QString path = "./Resources/Exports/Reto Meyer.dat";
        QCOMPARE(texts(press(screenButton("Export Fighter"), {"Accept", "Accept"})),
                 QStringList({"Are you sure you want to export Reto Meyer?", "Fighter exported to " + path + "."}));
        const QByteArray first = fileBytes(path);

        GameManager::instance().setFighterBio(0, "A new chapter.");
        QCOMPARE(texts(press(screenButton("Export Fighter"), {"Cancel"})),
                 QStringList{"This fighter already exists. Overwrite?"});
        QCOMPARE(fileBytes(path), first);
        QCOMPARE(texts(press(screenButton("Export Fighter"), {"Accept", "Accept"})),
                 QStringList({"This fighter already exists. Overwrite?", "Fighter exported to " + path + "."}));
        QVERIFY(fileBytes(path) != first);
    }

    // Importing from the manager's page: the list of files, a question, and the man among the free
    // agents; a damaged copy is refused with its reason and the world stays as it was.
    void importingIntoTheDatabase_data()
    {
        QTest::addColumn<QString>("pick");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("told"); // after the list
        QTest::addColumn<int>("newAgents");
        const QStringList all{"Import", "Accept", "Accept"};
        const QString asked = "Import %1? \nHe will appear as a Free Agent.";
        QTest::newRow("a free agent") << "Reto Meyer" << all
                                      << QStringList{asked.arg("Reto Meyer"),
                                                     "Imported Reto Meyer into the Free Agents list."}
                                      << 1;
        QTest::newRow("a damaged copy") << "Reto Meyer copy" << all
                                        << QStringList{asked.arg("Reto Meyer copy"),
                                                       "The file ./Resources/Exports/Reto Meyer copy.dat could not be "
                                                       "read.\nThe file ends before the fighter does."}
                                        << 0;
        QTest::newRow("no file chosen") << "" << QStringList{"Import", "Accept"}
                                        << QStringList{"No import file selected."} << 0;
        QTest::newRow("cancelled at the question")
            << "Reto Meyer" << QStringList{"Import", "Cancel"} << QStringList{asked.arg("Reto Meyer")} << 0;
    }

    void importingIntoTheDatabase()
    {
        QFETCH(QString, pick);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, told);
        QFETCH(int, newAgents);
        exportMan(gymMan("Reto", "Meyer", 1101, "GKO"));
        QVERIFY(writeBytes("./Resources/Exports/Reto Meyer copy.dat",
                           fileBytes("./Resources/Exports/Reto Meyer.dat").chopped(10)));

        QVERIFY(worldWith({gymMan("Sami", "Kallio", 1102, "GKO")}, 1300).load());
        openFromMenu(TopMenuBar::Profile);
        const QByteArray before = worldBytes();
        const QList<DialogScript::Seen> seen = press(screenButton("Import Fighter Into Database"), answers, {pick});
        QCOMPARE(texts(seen), QStringList{"Choose fighter to import:"} + told);
        // in the order of the folder's listing, which sorts the whole file names
        QCOMPARE(seen[0].listed, QStringList({"Reto Meyer copy", "Reto Meyer"}));
        QCOMPARE(seen[0].buttons, QStringList({"Import", "Cancel"}));
        QCOMPARE(GameManager::instance().freeAgentCount(), 1 + newAgents); // beside the world's own
        QCOMPARE(worldBytes() == before, newAgents == 0);
    }

    // A fantasy match is asked for with the man shown, leads to the fight night with the top
    // menu hidden, and once the night is left behind the world is as it was.
    void aFantasyMatchLeadsToTheNightAndBack()
    {
        exportMan(gymMan("Gus", "Guest", 1101, "Albion"));
        QVERIFY(worldWith({gymMan("Reto", "Meyer", 1101, "GKO"), gymMan("Sami", "Kallio", 1102, "GKO")}, 1300).load());
        openFighterPage();
        screenWidget<QComboBox>("fighterBox")->setCurrentIndex(1);
        const QByteArray before = worldBytes();

        const QList<DialogScript::Seen> seen =
            press(screenButton("Import Fantasy Match"), {"Import", "Accept", "Go!"}, {"Gus Guest"});
        QCOMPARE(texts(seen),
                 QStringList({"Choose fighter to import:",
                              "Import Gus Guest? \nHe will immediately fight a fantasy match with Sami Kallio.",
                              "Imported Gus Guest into a fantasy match."}));
        QCOMPARE(seen[2].buttons, QStringList{"Go!"});
        QVERIFY(!ModuleManager::instance().isTopMenuVisible());
        QCOMPARE(GameManager::instance().amateurById(GameManager::FantasyVisitorId).fullName(), QString("Gus Guest"));

        // the night is fought to its end, and the user is back on his profile
        for (int step = 0; step < 3000 && qobject_cast<Module_UserEvents *>(ModuleManager::instance().currentModule());
             ++step) {
            QVERIFY(!screenButton("Tend to Fighter")); // nobody's corner in a fantasy match
            QTest::mouseClick(screenButton("Next Step"), Qt::LeftButton);
        }
        QVERIFY(profile() && ModuleManager::instance().isTopMenuVisible());
        QCOMPARE(worldBytes(), before);
    }
};

QTEST_MAIN(tst_Profile)
#include "tst_profile.moc"
