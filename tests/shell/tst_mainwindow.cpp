#include "common/DialogAnswer.h"
#include "screens/Module_MainMenu.h"
#include "screens/ScreenFactory.h"
#include "shell/ModuleManager.h"
#include "shell/TopMenuBar.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QPushButton *menuButton(const QString &text)
{
    for (QPushButton *button : ModuleManager::instance().currentModule()->findChildren<QPushButton *>())
        if (button->text() == text)
            return button;
    return nullptr;
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // the game runs beside its Resources; here a bare folder shows that nothing is required
        QVERIFY(bare.isValid());
        QDir::setCurrent(bare.path());
        ModuleManager::instance().initialize(ScreenFactory::builders());
    }

    // a fixed window on the main menu, no game, and no picture or style sheet needed
    void startsOnTheMainMenuWithoutGame()
    {
        QWidget *window = ModuleManager::instance().mainWindow();
        QCOMPARE(window->minimumSize(), QSize(1100, 700));
        QCOMPARE(window->maximumSize(), QSize(1100, 700));
        QCOMPARE(window->windowTitle(), QString("Orvane - by Quillan Dray"));
        QVERIFY(qobject_cast<Module_MainMenu *>(ModuleManager::instance().currentModule()));
        QVERIFY(!ModuleManager::instance().isTopMenuVisible());
        auto *title = ModuleManager::instance().currentModule()->findChild<QLabel *>();
        QVERIFY(title && title->pixmap().isNull() && !QApplication::activeModalWidget());
        QVERIFY(ModuleManager::instance().currentModule()->styleSheet().isEmpty());
    }

    void styleSheetIsReadForEachScreen()
    {
        QFile sheet("StyleSheet.css");
        QVERIFY(sheet.open(QIODevice::WriteOnly));
        sheet.write("QWidget { color: #704018; }\0 trailing bytes after a NUL are not read", 70);
        sheet.close();
        ModuleManager::instance().changeModule(new Module_MainMenu);
        QCOMPARE(ModuleManager::instance().currentModule()->styleSheet(), QString("QWidget { color: #704018; }"));
        QFile::remove("StyleSheet.css");
        ModuleManager::instance().changeModule(new Module_MainMenu);
        QVERIFY(ModuleManager::instance().currentModule()->styleSheet().isEmpty());
    }

    // a screen replaced from inside its own button's slot is gone at once and freed safely
    void screenReplacedFromItsOwnSlot()
    {
        QPointer<QWidget> before = ModuleManager::instance().currentModule();
        menuButton("New Game")->click();
        QVERIFY(ModuleManager::instance().currentModule() != before && (!before || !before->isVisible()));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(before.isNull());
        ModuleManager::instance().changeModule(new Module_MainMenu);
    }

    void questionsCancelledKeepTheScreen()
    {
        QWidget *menu = ModuleManager::instance().currentModule();
        DialogAnswer cancel("Cancel");
        menuButton("Exit Game")->click();
        QCOMPARE(cancel.question, QString("Are you sure you want to quit the game?"));
        QCOMPARE(ModuleManager::instance().currentModule(), menu);
        ModuleManager::instance().showTopMenu();
        DialogAnswer stay("Cancel");
        ModuleManager::instance().topMenu()->changeScreenMainMenu();
        QVERIFY(stay.question.startsWith("Are you sure you want to return to the main menu? "));
        QVERIFY(ModuleManager::instance().isTopMenuVisible());
        ModuleManager::instance().hideTopMenu();
    }

    // every screen still being built leads back where the player came from
    void placeholdersLeadBack()
    {
        ModuleManager &shell = ModuleManager::instance();
        menuButton("How To Play")->click();
        QVERIFY(!qobject_cast<Module_MainMenu *>(shell.currentModule()));
        menuButton("Back to Main Menu")->click();
        QVERIFY(qobject_cast<Module_MainMenu *>(shell.currentModule()) && !shell.isTopMenuVisible());

        // in a running game a stand-in goes back to the screen last chosen
        shell.showTopMenu();
        shell.topMenu()->changeScreenEvents();
        shell.hideTopMenu();
        shell.changeModule(shell.screens().button(TopMenuBar::Events));
        menuButton("Back")->click();
        QVERIFY(shell.isTopMenuVisible() && menuButton("Back"));
        QCOMPARE(shell.topMenu()->currentScreen(), int(TopMenuBar::Events));
        shell.hideTopMenu();
        shell.changeModule(new Module_MainMenu);
    }

    // the last test: the accepted question ends the event loop with 0
    void quitAcceptedEndsTheGame()
    {
        DialogAnswer accept("Accept");
        QTimer::singleShot(0, [] { menuButton("Exit Game")->click(); });
        // if the window stayed, this would end the loop with another value
        QTimer::singleShot(5000, [] { QCoreApplication::exit(7); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(accept.answered && !ModuleManager::instance().mainWindow());
    }

private:
    QTemporaryDir bare;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
