#include "common/NightWorld.h"
#include "screens/ScreenTestKit.h"

#include "match/Entity_MatchFighter.h"
#include "match/MatchManager.h"
#include "screens/CornerPage.h"
#include "screens/Module_NextDay.h"
#include "screens/Module_PostEvent.h"
#include "screens/Module_UserEvents.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

using namespace ScreenTestKit;
using namespace NightWorld;

namespace {

ModuleManager &shell()
{
    return ModuleManager::instance();
}

Module_UserEvents *nightScreen()
{
    return qobject_cast<Module_UserEvents *>(shell().currentModule());
}

Module_PostEvent *summaryScreen()
{
    return qobject_cast<Module_PostEvent *>(shell().currentModule());
}

bool shown(const QWidget *widget)
{
    return widget && widget->isVisibleTo(shell().currentModule());
}

// the night of `setup`, begun as the day's button begins it
Module_UserEvents *startNight(const Setup &setup)
{
    if (!load(setup))
        return nullptr;
    shell().startNextDay();
    return nightScreen();
}

} // namespace

class tst_FightNightScreen : public ScreenTest
{
    Q_OBJECT

private slots:
    void init()
    {
        Random::useTestClock(2024);
        // the keys reach the game's window when it is the active one, as it is for a player
        shell().mainWindow()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shell().mainWindow()));
    }

    // A night played through its widgets as a player plays it: the stranger's match runs by
    // without a corner on the timer, the user's man is tended at every bell, the summary pays the
    // purse and the level up comes only when the manager's label rose.
    void aNightPlayedByItsButtons_data()
    {
        QTest::addColumn<int>("reputation");
        QTest::addColumn<bool>("wins");
        QTest::addColumn<bool>("levelUp");
        QTest::newRow("a win that brings a new label: the level up") << 95 << true << true;
        QTest::newRow("a win short of a new label") << 30 << true << false;
        QTest::newRow("a loss, however close the label") << 95 << false << false;
    }
    void aNightPlayedByItsButtons()
    {
        QFETCH(bool, wins);
        QFETCH(bool, levelUp);
        Setup setup;
        QFETCH(int, reputation);
        setup.reputation = reputation;
        setup.gymLevel = wins ? 90 : 30;
        setup.opponentLevel = wins ? 30 : 90;
        setup.unbreakable = true; // his match goes the distance: his corner at every bell
        GameManager &world = GameManager::instance();
        shell().showTopMenu();
        const Module_UserEvents *screen = startNight(setup);
        const int moneyBefore = world.gymRecord().value(Entity_Gym::Money);
        QVERIFY(screen && !shell().isTopMenuVisible());
        auto *instructions = screen->findChild<QComboBox *>("instructionBox");
        int corners = 0, strangersSteps = 0, timed = 0;
        bool obeyed = false;
        for (int step = 0; nightScreen() && step < 5000; ++step) {
            if (screenButton("Tend to Fighter")) {
                QVERIFY(screen->fightNight().isUserMatch());
                click("Tend to Fighter");
                CornerPage *corner = screen->cornerPage();
                QCOMPARE(corner->trainerPoints(), setup.cornering);
                QVERIFY(!corner->observationsBox()->toPlainText().isEmpty());
                QCOMPARE(corner->statisticsField(0)->text().count('/'), 1);
                // seven points: five on the wounds and two on water, the third box stays shut
                corner->careBox(CornerPage::HealWounds)->setValue(5);
                corner->careBox(CornerPage::ProvideWater)->setValue(3);
                corner->careBox(CornerPage::Motivate)->setValue(1);
                QCOMPARE(corner->care(CornerPage::ProvideWater), 2);
                QCOMPARE(corner->care(CornerPage::Motivate), 0);
                QCOMPARE(corner->trainerPoints(), 0);
                // an order of the corner, then Enter sends him out again
                QComboBox *strategy = corner->strategyBox();
                strategy->setCurrentIndex(strategy->count() - 1);
                emit strategy->activated(strategy->count() - 1);
                QTest::keyClick(shell().mainWindow(), Qt::Key_Return);
                QVERIFY(!screen->cornerPage());
                ++corners;
                continue;
            }
            if (shown(screen->commentaryBox()) && screenButton("Sim to End") && timed < 2) {
                if (timed++ == 0) {
                    // the timer steps as the button does: a tick begins the round
                    click("Start Timer");
                    QVERIFY(!screenButton("Next Step"));
                    QTRY_VERIFY_WITH_TIMEOUT(screen->commentaryBox()->toPlainText().contains("Round 1!"), 5000);
                    click("Stop Timer");
                }
                // "Sim to End" runs the stranger's match to its end, and the user's to his corner
                click("Sim to End");
                QTRY_VERIFY_WITH_TIMEOUT(!screen->stageTimer()->isActive(), 20000);
                QCOMPARE(screen->fightNight().resultLines().size(), 1);
                QVERIFY(!screenButton("Sim to End") && bool(screenButton("Tend to Fighter")) == (timed == 2));
                continue;
            }
            if (screen->fightNight().isUserMatch() && shown(instructions) && instructions->count() > 1 && !obeyed) {
                // an order shouted from the box: when he listens, his tactic is the order's at once
                const int before = MatchManager::instance().getFighterOne()->getTactic();
                instructions->setCurrentIndex(1);
                emit instructions->activated(1);
                obeyed = MatchManager::instance().getFighterOne()->getTactic() != before;
            }
            if (screen->fightNight().matchNumber() == 1 && shown(screen->commentaryBox())) {
                // the stranger's match: nobody to shout at
                QVERIFY(!shown(instructions));
                ++strangersSteps;
            }
            click("Next Step");
        }
        QVERIFY(strangersSteps > 0 && corners >= 1 && timed == 2 && obeyed);

        // the summary: what he did, and the purse paid the moment it stands
        QVERIFY(summaryScreen());
        QCOMPARE(summaryScreen()->isLevelUpDue(), levelUp);
        QCOMPARE(world.gymRecord().value(Entity_Gym::Money), moneyBefore + (wins ? 2 : 1) * Purse);
        const Entity_GymFighter man = world.fighterById(GymId);
        QCOMPARE(man.number(Entity_Fighter::Wins), wins ? 1 : 0);
        QCOMPARE(storedResults().size(), 2);
        QVERIFY(summaryScreen()->statisticsField(0)->text().contains('/'));
        QCOMPARE(world.bookingsByFighter().value(man.fullName()), QString("N/A - N/A"));

        const QList<int> skillsBefore = world.managerValues();
        click("Proceed");
        if (levelUp) {
            Module_PostEvent *post = summaryScreen();
            QVERIFY(post && shown(post->levelUpPage()) && !shown(post->summaryPage()));
            QCOMPARE(post->skillPointsLeft(), Module_PostEvent::LevelUpPoints);
            // the points must all be spent, and no skill falls below where it stood
            QCOMPARE(texts(press(screenButton("Proceed"), {"Back"})),
                     QStringList{"Please use all skill points before proceeding."});
            QVERIFY(summaryScreen());
            QSpinBox *cornering = post->skillBox(Entity_Manager::Cornering - Entity_Manager::Punch);
            QCOMPARE(cornering->minimum(), setup.cornering);
            cornering->setValue(10);
            post->skillBox(0)->setValue(setup.skillLevel + 9);
            QCOMPARE(post->skillBox(0)->value(), setup.skillLevel + 7);
            QCOMPARE(post->skillPointsLeft(), 0);
            QCOMPARE(texts(press(screenButton("Proceed"), {"Accept"})),
                     QStringList{"Are you sure you want to proceed?"});
            const QList<int> skills = world.managerValues();
            QCOMPARE(skills[Entity_Manager::Cornering], 10);
            QCOMPARE(skills[Entity_Manager::Punch], setup.skillLevel + 7);
            QCOMPARE(skills[Entity_Manager::Kick], skillsBefore[Entity_Manager::Kick]);
        }
        // back to the game: with no night left the day goes on
        QVERIFY(qobject_cast<Module_NextDay *>(shell().currentModule()));
    }

    // The keys: Space steps as the button does; Enter leaves the corner.
    void spaceStepsAndEnterLeavesTheCorner()
    {
        Setup setup;
        setup.stayers = true;
        setup.strangersFirst = false;
        Module_UserEvents *screen = startNight(setup);
        QWidget *window = shell().mainWindow();
        // the welcome, the announcement, the tale of the tape, the ring, the first round
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(window, Qt::Key_Space);
        QVERIFY(screen->commentaryBox()->toPlainText().contains("Round 1!"));
        for (int i = 0; i < 500 && !screenButton("Tend to Fighter"); ++i)
            QTest::keyClick(window, Qt::Key_Space);
        QVERIFY(screenButton("Tend to Fighter"));
        QTest::keyClick(window, Qt::Key_Space);
        QVERIFY(screen->cornerPage());
        // Space does nothing in the corner: the spin boxes may take it
        QTest::keyClick(window, Qt::Key_Space);
        QVERIFY(screen->cornerPage());
        // all the points on strategy: when the talk takes, he leaves the corner a wiser man
        screen->cornerPage()->careBox(CornerPage::DiscussStrategy)->setValue(setup.cornering);
        const auto insight = [] {
            const Entity_MatchFighter *man = MatchManager::instance().getFighterOne();
            return man->number(Entity_Fighter::FightIQ) + man->number(Entity_Fighter::Awareness) +
                   man->number(Entity_Fighter::Composure);
        };
        const int before = insight();
        QTest::keyClick(window, Qt::Key_Enter);
        QVERIFY(!screen->cornerPage());
        QVERIFY(insight() > before);
        QVERIFY(screen->commentaryBox()->toPlainText().contains("Round 2!"));
    }
};

QTEST_MAIN(tst_FightNightScreen)
#include "tst_fightnight.moc"
