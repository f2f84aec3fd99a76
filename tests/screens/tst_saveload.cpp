#include "screens/ScreenTestKit.h"

#include "screens/Module_MainMenu.h"
#include "screens/Module_SaveLoad.h"

#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QString saves = QStringLiteral("Resources/Saves/");
const QStringList both{"Accept", "Cancel"};

bool onSaveScreen()
{
    return qobject_cast<Module_SaveLoad *>(ModuleManager::instance().currentModule());
}

// the save screen of a running game, by its button on the top menu, or from the main menu
void openSaveScreen(bool inGame)
{
    ModuleManager::instance().changeModule(new Module_MainMenu);
    if (inGame)
        openFromMenu(TopMenuBar::SaveLoad);
    else
        click("Load Game");
}

QStringList listed()
{
    QStringList names;
    auto *list = screenWidget<QListWidget>("saveList");
    for (int row = 0; row < list->count(); ++row)
        names << list->item(row)->text();
    return names;
}

void pick(const QString &name)
{
    auto *list = screenWidget<QListWidget>("saveList");
    QListWidgetItem *item = list->findItems(name, Qt::MatchExactly).value(0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
}

QList<DialogScript::Seen> saveAs(const QString &name, const QStringList &answers)
{
    screenWidget<QLineEdit>("nameEdit")->clear();
    QTest::keyClicks(screenWidget<QLineEdit>("nameEdit"), name);
    return press(screenButton("Save"), answers);
}

// every file below the working folder
QStringList allFiles()
{
    QStringList files;
    for (QDirIterator it(".", QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
        files << it.next();
    files.sort();
    return files;
}

} // namespace

class tst_SaveLoad : public ScreenTest
{
    Q_OBJECT

private slots:
    void init() { QDir(saves).removeRecursively(); }

    // What a press gives when there is nothing to work on, or for a name that the list of saves
    // could not show: one message, Cancel alone, no file.
    void refusedPresses_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *what, const char *button, const QString &name, const char *message) {
            QTest::newRow(what) << QString(button) << name << QString(message);
        };
        row("load without saves", "Load", "", "Please specify a file to load.");
        row("delete without saves", "Delete", "", "Please specify a file to delete.");
        row("save without a name", "Save", "", "Please specify a file name for your save.");
        row("a hidden file", "Save", ".hidden",
            "The name of a save can't start with \".\": such a file would be hidden from the list of saved games.");
    }

    void refusedPresses()
    {
        QFETCH(QString, button);
        QFETCH(QString, name);
        QFETCH(QString, message);
        openSaveScreen(true);
        const QStringList before = allFiles();
        const auto seen =
            button == "Save" ? saveAs(name, {"Accept", "Accept"}) : press(screenButton(button), {"Accept", "Accept"});
        QCOMPARE(texts(seen), QStringList{message});
        QCOMPARE(seen[0].buttons, QStringList{"Cancel"});
        QCOMPARE(allFiles(), before);
    }

    void savingAsksAndListsByName()
    {
        openSaveScreen(true);
        auto seen = saveAs("Rio", {"Cancel"});
        QCOMPARE(texts(seen), QStringList{"Save as \"Rio\"?"});
        QCOMPARE(seen[0].buttons, both);
        QVERIFY(QDir(saves).entryList(QDir::Files | QDir::Hidden).isEmpty());

        for (const QString &name : QStringList{"Rio", "Atlas", "Mirror Match"}) {
            seen = saveAs(name, {"Accept", "Accept"});
            QCOMPARE(seen.value(1).text, QString("File saved successfully."));
            QCOMPARE(seen[1].buttons, QStringList{"Accept"});
            QVERIFY(screenWidget<QLineEdit>("nameEdit")->text().isEmpty());
        }
        QCOMPARE(listed(), QStringList({"Atlas", "Mirror Match", "Rio"}));

        // a game picked in the list gives its name, and saving over it asks first
        const QByteArray first = fileBytes(saves + "Mirror Match.dat");
        GameManager::instance().advanceDate();
        pick("Mirror Match");
        QCOMPARE(screenWidget<QLineEdit>("nameEdit")->text(), QString("Mirror Match"));
        QCOMPARE(texts(press(screenButton("Save"), {"Cancel"})), QStringList{"That file already exists. Overwrite?"});
        QCOMPARE(fileBytes(saves + "Mirror Match.dat"), first);
        QCOMPARE(press(screenButton("Save"), {"Accept", "Accept"}).size(), 2);
        QCOMPARE(fileBytes(saves + "Mirror Match.dat"), worldBytes());

        pick("Atlas");
        QCOMPARE(texts(press(screenButton("Delete"), {"Accept", "Accept"})),
                 QStringList({"Are you sure you want to delete \"Atlas\"?", "File deleted successfully."}));
        QCOMPARE(listed(), QStringList({"Mirror Match", "Rio"}));
        QCOMPARE(QDir(saves).entryList(QDir::Files), QStringList({"Mirror Match.dat", "Rio.dat"}));
    }

    // saved in a game, left for the main menu, loaded from there: the world that was saved
    void aSavedGameLoadsAgain()
    {
        GameManager::instance().advanceDate();
        openSaveScreen(true);
        saveAs("Harbour", {"Accept", "Accept"});
        const QByteArray saved = worldBytes();
        {
            DialogScript leave({"Accept"});
            QTest::mouseClick(ModuleManager::instance().topMenu()->button(TopMenuBar::MainMenu), Qt::LeftButton);
        }
        QVERIFY(worldBytes() != saved);

        click("Load Game");
        pick("Harbour");
        const auto seen = press(screenButton("Load"), {"Accept", "Accept"});
        QCOMPARE(texts(seen), QStringList({"Load \"Harbour\"?", "File loaded successfully."}));
        QCOMPARE(seen[0].buttons, both);
        QCOMPARE(worldBytes(), saved);
        QVERIFY(ModuleManager::instance().isTopMenuVisible() && !onSaveScreen());
    }
};

QTEST_MAIN(tst_SaveLoad)
#include "tst_saveload.moc"
