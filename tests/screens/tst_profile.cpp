#include "screens/ScreenTestKit.h"

#include "common/SavedWorld.h"
#include "fighters/FighterGenerator.h"
#include "fighters/Random.h"
#include "fighters/Ratings.h"
#include "persistence/FighterExport.h"
#include "persistence/SaveFile.h"
#include "screens/Module_MainMenu.h"
#include "screens/Module_Placeholder.h"
#include "screens/Module_Profile.h"
#include "screens/ScreenFactory.h"
#include "shell/TopMenuBar.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

using namespace ScreenTestKit;
using F = Entity_Fighter;

namespace {

const QDate today(2012, 4, 10);
const QString noFighterYet = QStringLiteral("To get a fighter, you need to pick one of your students to train.");

// a man as the game makes him, every attribute at a value of its own so that a rating read from
// the wrong place shows
Entity_GymFighter gymMan(const QString &first, const QString &last, int id, const QString &organisation)
{
    FighterGenerator::Recipe recipe;
    recipe.today = QDate(2011, 1, 1);
    Entity_GymFighter man(FighterGenerator::makePerson({1, "Brazil"}, first, last, recipe));
    man.unpackExtras({1, 0, 2, 0, 0, 0, 0}, QList<int>(Entity_GymFighter::ProgressCount, 0), {});
    for (int field = F::FirstAttribute; field <= F::LastAttribute; ++field)
        man.setNumber(F::Number(field), (field * 7) % 97);
    man.setId(id);
    man.setContract(organisation, organisation == "Free Agent" ? 0 : 3, 1200);
    man.setNumber(F::Wins, 9);
    man.setNumber(F::Losses, 3);
    man.setNumber(F::Kos, 6);
    man.setBirthDate(QDate(1990, 2, 3));
    man.setNumber(F::Age, 22);
    return man;
}

// Mo Mack's gym, his Intuition as given, with these men; GKO holds a show on `showDate`
SavedWorld gymWorld(const QList<Entity_GymFighter> &men, int intuition = 5, const QDate &showDate = {})
{
    SavedWorld w;
    w.nextId = 1300;
    w.currentDate = today;
    QList<int> values(Entity_Manager::ValueCount, 0);
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill)
        values[Entity_Manager::Punch + skill] = skill * 7 % 11;
    values[Entity_Manager::Intuition] = intuition;
    values[Entity_Manager::OverallWins] = 31;
    values[Entity_Manager::OverallLosses] = 14;
    values[Entity_Manager::ActiveWins] = 12;
    values[Entity_Manager::ActiveLosses] = 5;
    w.manager.unpack({"Mo", "Mack", "South America", "Brazil", "Well Known"}, values,
                     {"GKO World Championship - from Sat Jan 1 2011 until Sun Jan 1 2012", "GKO 2011 Grand Prix"});
    w.fighters = men;
    for (const Entity_GymFighter &man : men)
        w.bookings << Entity_Booking::emptyFor(man.getId(), man.fullName(), QDate(1999, 1, 1));
    QList<Entity_Event> calendar;
    if (showDate.isValid())
        calendar << Entity_Event({"GKO Spring", "GKO", "Tokyo", "Elite", "Fight Night", "No Title"}, showDate,
                                 {Entity_Match()});
    Entity_Org gko;
    gko.unpack({"GKO", "Chief", "Japan", "note", "Elite", "A promotion.", "Willing"}, calendar, {}, {}, {});
    w.organisations = {gko};
    return w;
}

Module_Profile *profile()
{
    return qobject_cast<Module_Profile *>(ModuleManager::instance().currentModule());
}

// the profile as the top menu's button opens it
void openProfile()
{
    ModuleManager::instance().showTopMenu();
    QTest::mouseClick(ModuleManager::instance().topMenu()->button(TopMenuBar::Profile), Qt::LeftButton);
    QVERIFY(profile());
}

void openFighterPage()
{
    openProfile();
    QTest::mouseClick(screenButton("Current Fighters"), Qt::LeftButton);
    QVERIFY(profile()->showsFighterPage());
}

QList<DialogScript::Seen> press(const QString &button, const QStringList &answers, const QStringList &picks = {})
{
    DialogScript script(answers, picks);
    QPushButton *pressed = screenButton(button);
    if (!pressed)
        return {};
    QTest::mouseClick(pressed, Qt::LeftButton);
    return script.seen;
}

QStringList texts(const QList<DialogScript::Seen> &seen)
{
    QStringList all;
    for (const DialogScript::Seen &dialog : seen)
        all << dialog.text;
    return all;
}

QString field(const QString &name)
{
    return screenWidget<QLineEdit>(name)->text();
}

QString fighterField(Module_Profile::FighterField which)
{
    return field(QString("fighterField%1").arg(which));
}

QStringList listed(const QString &name)
{
    QStringList items;
    auto *list = screenWidget<QListWidget>(name);
    for (int row = 0; row < list->count(); ++row)
        items << list->item(row)->text();
    return items;
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// the man's export file, written by the game itself from a world of his own
void exportMan(const Entity_GymFighter &man)
{
    QVERIFY(gymWorld({man}).load());
    QVERIFY(FighterExport::write(0));
}

} // namespace

class tst_Profile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(root.isValid());
        QDir::setCurrent(root.path());
        Random::useTestClock(9);
        ModuleManager::instance().initialize(ScreenFactory::builders());
    }

    void cleanup()
    {
        ModuleManager::instance().changeModule(new Module_MainMenu);
        ModuleManager::instance().hideTopMenu();
        GameManager::instance().resetWorld();
        QDir("Resources").removeRecursively();
    }

    // Whichever way a game is entered, it opens on the manager's page, read from the world.
    void theGameOpensOnTheManagersPage_data()
    {
        QTest::addColumn<bool>("loaded");
        QTest::newRow("the top menu's button") << false;
        QTest::newRow("a loaded game") << true;
    }

    void theGameOpensOnTheManagersPage()
    {
        QFETCH(bool, loaded);
        QVERIFY(gymWorld({gymMan("Reto", "Meyer", 1101, "GKO")}).load());
        if (loaded) {
            QVERIFY(SaveFile::save("week two"));
            GameManager::instance().resetWorld();
            ModuleManager::instance().changeModule(ScreenFactory::build(TopMenuBar::SaveLoad));
            const QStringList seen = texts(press("Load", {"Accept", "Accept"}));
            QCOMPARE(seen, QStringList({"Load \"week two\"?", "File loaded successfully."}));
            QVERIFY(ModuleManager::instance().isTopMenuVisible());
        } else {
            openProfile();
        }
        QVERIFY(profile());
        QVERIFY(!profile()->showsFighterPage());
        const QStringList expected{"Mo", "Mack", "Brazil", "Well Known", "31 - 14", "12 - 5"};
        for (int which = 0; which < Module_Profile::ManagerFieldCount; ++which)
            QCOMPARE(field(QString("managerField%1").arg(which)), expected[which]);
        const QList<int> values = GameManager::instance().managerValues();
        for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill)
            QCOMPARE(field(QString("skillField%1").arg(skill)), QString::number(values[Entity_Manager::Punch + skill]));
        QCOMPARE(
            listed("managerTitles"),
            QStringList({"GKO World Championship - from Sat Jan 1 2011 until Sun Jan 1 2012", "GKO 2011 Grand Prix"}));
    }

    // The sheet of each man: his texts, the record, the career oldest first with two nights of one
    // date side by side, the belts, and the 48 ratings in their order; the hidden style only to a
    // manager of full Intuition.
    void theFighterPageShowsTheSheet_data()
    {
        QTest::addColumn<int>("intuition");
        QTest::addColumn<QString>("background");
        QTest::newRow("Intuition 9 reads the background alone") << 9 << "Boxing";
        QTest::newRow("Intuition 10 reads the style behind it") << 10 << "Boxing/Tactician";
    }

    void theFighterPageShowsTheSheet()
    {
        QFETCH(int, intuition);
        QFETCH(QString, background);
        Entity_GymFighter reto = gymMan("Reto", "Meyer", 1101, "GKO");
        reto.setText(F::FightingBackground, "Boxing");
        reto.setText(F::FightingStyle, "Tactician");
        reto.setText(F::Reputation, "Rising Star");
        reto.addHistoryEntry(QDate(2011, 9, 1), "Loss: C Three - TKO(Knee) - Rd. 2(2:02) - GKO: GKO Summer");
        reto.addHistoryEntry(QDate(2011, 5, 2), "Win: A One - KO(Jab) - Rd. 1(0:40) - GKO: GKO Spring");
        reto.setTitleList({"GKO 2011 Grand Prix", "GKO World Championship - from Thu Sep 1 2011"});
        Entity_GymFighter sami = gymMan("Sami", "Kallio", 1102, "Free Agent");
        sami.setNumber(F::Wins, 1);
        QVERIFY(gymWorld({reto, sami}, intuition).load());
        openFighterPage();

        QCOMPARE(screenWidget<QComboBox>("fighterBox")->count(), 2);
        QCOMPARE(profile()->shownFighter(), 0);
        const QStringList expected{
            "Reto Meyer", "Brazil", "South America", background, "Rising Star", "03-02-1990", "22", "9", "3", "6"};
        for (int which = 0; which < Module_Profile::FieldCount; ++which)
            QCOMPARE(fighterField(Module_Profile::FighterField(which)), expected[which]);
        QCOMPARE(listed("careerList"),
                 QStringList({"Win: A One - KO(Jab) - Rd. 1(0:40) - GKO: GKO Spring - Mon May 2 2011",
                              "Loss: C Three - TKO(Knee) - Rd. 2(2:02) - GKO: GKO Summer - Thu Sep 1 2011"}));
        QCOMPARE(listed("titleList"), reto.titleList());
        const Ratings::Values ratings = Ratings::of(reto);
        for (int rating = 0; rating < Ratings::Count; ++rating)
            QCOMPARE(field(QString("ratingField%1").arg(rating)), QString::number(ratings[rating]));

        screenWidget<QComboBox>("fighterBox")->setCurrentIndex(1);
        QCOMPARE(fighterField(Module_Profile::Name), QString("Sami Kallio"));
        QCOMPARE(fighterField(Module_Profile::Wins), QString("1"));
        QVERIFY(listed("careerList").isEmpty());
    }

    // With no fighter each action of the page says so in its own words and changes nothing.
    void eachActionSaysWhenThereIsNoFighter_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("picks");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("export") << "Export Fighter" << QStringList()
                                << QStringList{"You have no fighters to export.\n" + noFighterYet};
        QTest::newRow("retire") << "Retire Fighter" << QStringList()
                                << QStringList{"You have no fighters to retire.\n" + noFighterYet};
        QTest::newRow("bio") << "Update Fighter Bio" << QStringList() << QStringList{"You have no fighters selected."};
        QTest::newRow("fantasy match") << "Import Fantasy Match" << QStringList{"Reto Meyer"}
                                       << QStringList{"Choose fighter to import:", "No user fighter selected."};
    }

    void eachActionSaysWhenThereIsNoFighter()
    {
        QFETCH(QString, button);
        QFETCH(QStringList, picks);
        QFETCH(QStringList, told);
        exportMan(gymMan("Reto", "Meyer", 1101, "GKO"));
        QVERIFY(gymWorld({}).load());
        openFighterPage();
        QCOMPARE(screenWidget<QComboBox>("fighterBox")->count(), 0);
        QCOMPARE(fighterField(Module_Profile::Name), QString("N/A N/A"));
        const QByteArray before = worldBytes();
        QCOMPARE(texts(press(button, {"Import", "Accept"}, picks)), told);
        QCOMPARE(worldBytes(), before);
    }

    // Retiring asks first; his organisation's show of today keeps him; once he has gone the page
    // shows the next man, or the empty sheet when he was the last.
    void retiringFromTheSheet_data()
    {
        QTest::addColumn<int>("gymSize");
        QTest::addColumn<QDate>("showDate");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("shownAfter");
        QTest::newRow("one of two") << 2 << QDate() << "Accept"
                                    << "Sami Kallio";
        QTest::newRow("the last fighter") << 1 << QDate() << "Accept"
                                          << "N/A N/A";
        QTest::newRow("thought better of it") << 1 << QDate() << "Cancel"
                                              << "Reto Meyer";
        QTest::newRow("his organisation fights today") << 1 << today << "Accept"
                                                       << "Reto Meyer";
    }

    void retiringFromTheSheet()
    {
        QFETCH(int, gymSize);
        QFETCH(QDate, showDate);
        QFETCH(QString, answer);
        QFETCH(QString, shownAfter);
        const QList<Entity_GymFighter> men{gymMan("Reto", "Meyer", 1101, "GKO"),
                                           gymMan("Sami", "Kallio", 1102, "Free Agent")};
        QVERIFY(gymWorld(men.mid(0, gymSize), 5, showDate).load());
        openFighterPage();
        const QByteArray before = worldBytes();
        const QStringList seen = texts(press("Retire Fighter", {answer, "Accept"}));

        QCOMPARE(seen.value(0), QString("Are you sure you want Reto Meyer to retire?"));
        const bool refused = showDate == today;
        if (refused)
            QCOMPARE(seen.value(1), QString("The promotion your fighter is signed to has an event today.\n"
                                            "Please wait until after the event to make any retirement decisions."));
        else
            QCOMPARE(seen.size(), 1);
        const bool gone = answer == "Accept" && !refused;
        QCOMPARE(GameManager::instance().fighterNames().contains("Reto Meyer"), !gone);
        if (!gone)
            QCOMPARE(worldBytes(), before);
        QCOMPARE(fighterField(Module_Profile::Name), shownAfter);
        QCOMPARE(screenWidget<QComboBox>("fighterBox")->count(), gymSize - int(gone));
        if (shownAfter == "N/A N/A") {
            QCOMPARE(fighterField(Module_Profile::Age), QString("0"));
            QVERIFY(listed("careerList").isEmpty());
            QCOMPARE(field("ratingField0"), QString("0"));
        }
    }

    // The man's file takes his name; a second export of that name asks before it overwrites, and
    // Cancel leaves the old file as it was.
    void anExportAsksBeforeItOverwrites()
    {
        QVERIFY(gymWorld({gymMan("Reto", "Meyer", 1101, "GKO")}).load());
        openFighterPage();
        const QString path = "./Resources/Exports/Reto Meyer.dat";
        QCOMPARE(texts(press("Export Fighter", {"Cancel"})),
                 QStringList{"Are you sure you want to export Reto Meyer?"});
        QVERIFY(!QFile::exists(path));
        QCOMPARE(texts(press("Export Fighter", {"Accept", "Accept"})),
                 QStringList({"Are you sure you want to export Reto Meyer?", "Fighter exported to " + path + "."}));
        const QByteArray first = fileBytes(path);
        QVERIFY(!first.isEmpty());

        GameManager::instance().setFighterBio(0, "A new chapter.");
        QCOMPARE(texts(press("Export Fighter", {"Cancel"})), QStringList{"This fighter already exists. Overwrite?"});
        QCOMPARE(fileBytes(path), first);
        QCOMPARE(texts(press("Export Fighter", {"Accept", "Accept"})),
                 QStringList({"This fighter already exists. Overwrite?", "Fighter exported to " + path + "."}));
        QVERIFY(fileBytes(path) != first);
        Entity_Fighter back;
        QVERIFY(FighterExport::read("Reto Meyer", back));
        QCOMPARE(back.text(F::Bio), QString("A new chapter."));
    }

    // Importing from the manager's page: the list of files, a question, and the man among the free
    // agents; a damaged copy is refused with its reason and the world stays as it was.
    void importingIntoTheDatabase_data()
    {
        QTest::addColumn<QString>("pick");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("told");
        QTest::addColumn<int>("newAgents");
        QTest::newRow("a free agent") << "Reto Meyer" << QStringList{"Import", "Accept", "Accept"}
                                      << QStringList{"Choose fighter to import:",
                                                     "Import Reto Meyer? \nHe will appear as a Free Agent.",
                                                     "Imported Reto Meyer into the Free Agents list."}
                                      << 1;
        QTest::newRow("a damaged copy")
            << "Reto Meyer copy" << QStringList{"Import", "Accept", "Accept"}
            << QStringList{"Choose fighter to import:", "Import Reto Meyer copy? \nHe will appear as a Free Agent.",
                           "The file ./Resources/Exports/Reto Meyer copy.dat could not be read.\n"
                           "The file ends before the fighter does."}
            << 0;
        QTest::newRow("no file chosen") << "" << QStringList{"Import", "Accept"}
                                        << QStringList{"Choose fighter to import:", "No import file selected."} << 0;
        QTest::newRow("cancelled at the list")
            << "Reto Meyer" << QStringList{"Cancel"} << QStringList{"Choose fighter to import:"} << 0;
        QTest::newRow("cancelled at the question")
            << "Reto Meyer" << QStringList{"Import", "Cancel"}
            << QStringList{"Choose fighter to import:", "Import Reto Meyer? \nHe will appear as a Free Agent."} << 0;
    }

    void importingIntoTheDatabase()
    {
        QFETCH(QString, pick);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, told);
        QFETCH(int, newAgents);
        exportMan(gymMan("Reto", "Meyer", 1101, "GKO"));
        const QByteArray whole = fileBytes("./Resources/Exports/Reto Meyer.dat");
        QFile copy("./Resources/Exports/Reto Meyer copy.dat");
        QVERIFY(copy.open(QIODevice::WriteOnly));
        copy.write(whole.chopped(10));
        copy.close();

        QVERIFY(gymWorld({gymMan("Sami", "Kallio", 1102, "GKO")}).load());
        openProfile();
        const QByteArray before = worldBytes();
        const QList<DialogScript::Seen> seen = press("Import Fighter Into Database", answers, {pick});
        QCOMPARE(texts(seen), told);
        // in the order of the folder's listing, which sorts the whole file names
        QCOMPARE(seen[0].listed, QStringList({"Reto Meyer copy", "Reto Meyer"}));
        QCOMPARE(seen[0].buttons, QStringList({"Import", "Cancel"}));
        QCOMPARE(GameManager::instance().freeAgentCount(), newAgents);
        if (newAgents == 0)
            QCOMPARE(worldBytes(), before);
        else
            QCOMPARE(GameManager::instance().getNextId(), 1301);
    }

    // A fantasy match is asked for with the man shown, leads to the fight night with the top
    // menu hidden, and once the night is left behind the world is as it was.
    void aFantasyMatchLeadsToTheNightAndBack()
    {
        exportMan(gymMan("Gus", "Guest", 1101, "Albion"));
        QVERIFY(gymWorld({gymMan("Reto", "Meyer", 1101, "GKO"), gymMan("Sami", "Kallio", 1102, "GKO")}).load());
        openFighterPage();
        screenWidget<QComboBox>("fighterBox")->setCurrentIndex(1);
        const QByteArray before = worldBytes();

        const QList<DialogScript::Seen> seen =
            press("Import Fantasy Match", {"Import", "Accept", "Go!"}, {"Gus Guest"});
        QCOMPARE(texts(seen),
                 QStringList({"Choose fighter to import:",
                              "Import Gus Guest? \nHe will immediately fight a fantasy match with Sami Kallio.",
                              "Imported Gus Guest into a fantasy match."}));
        QCOMPARE(seen[2].buttons, QStringList{"Go!"});
        QVERIFY(qobject_cast<Module_Placeholder *>(ModuleManager::instance().currentModule()));
        QVERIFY(!ModuleManager::instance().isTopMenuVisible());
        QCOMPARE(GameManager::instance().amateurById(GameManager::FantasyVisitorId).fullName(), QString("Gus Guest"));
        QCOMPARE(GameManager::instance().amateurById(GameManager::FantasyGymFighterId).fullName(),
                 QString("Sami Kallio"));

        QTest::mouseClick(screenButton("Back"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(ModuleManager::instance().isTopMenuVisible());
        QCOMPARE(worldBytes(), before);
    }

    // What the user types as a bio, line breaks and all, is stored on his word and comes back
    // after a save and a load.
    void aBioEditedOnTheSheetSurvivesSaveAndLoad_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("bioAfter");
        QTest::newRow("updated") << "Accept"
                                 << "New Fighter\nHard Hitter\n\nWon the spring.";
        QTest::newRow("thought better of it") << "Cancel"
                                              << "New Fighter";
    }

    void aBioEditedOnTheSheetSurvivesSaveAndLoad()
    {
        QFETCH(QString, answer);
        QFETCH(QString, bioAfter);
        Entity_GymFighter reto = gymMan("Reto", "Meyer", 1101, "GKO");
        reto.setBio("New Fighter");
        QVERIFY(gymWorld({reto}).load());
        openFighterPage();
        auto *bio = screenWidget<QTextEdit>("bioEdit");
        bio->moveCursor(QTextCursor::End);
        QTest::keyClick(bio, Qt::Key_Return);
        QTest::keyClicks(bio, "Hard Hitter");
        QTest::keyClick(bio, Qt::Key_Return);
        QTest::keyClick(bio, Qt::Key_Return);
        QTest::keyClicks(bio, "Won the spring.");
        QCOMPARE(texts(press("Update Fighter Bio", {answer})),
                 QStringList{"Are you sure you want to update this fighter's bio?"});

        QVERIFY(SaveFile::save("with a bio"));
        GameManager::instance().resetWorld();
        QVERIFY(SaveFile::load("with a bio"));
        openFighterPage();
        QCOMPARE(screenWidget<QTextEdit>("bioEdit")->toPlainText(), bioAfter);
    }

private:
    QTemporaryDir root;
};

QTEST_MAIN(tst_Profile)
#include "tst_profile.moc"
