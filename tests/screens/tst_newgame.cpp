#include "../fighters/TableRows.h"
#include "screens/ScreenTestKit.h"

#include "screens/Module_MainMenu.h"
#include "screens/Module_NewGame.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QList<QStringList> nationLists{{"Canada"}, {"Brazil"}, {"England", "France"}, {"Russia"}, {"Ghana"},
                                     {"Egypt"},  {"Japan"},  {"Thailand"}};

QSpinBox *skillBox(int index)
{
    return screenWidget<QSpinBox>(QString("skillBox%1").arg(index));
}

// the player's pick, with the box's own signal of a choice
void choose(const QString &boxName, const QString &text)
{
    auto *box = screenWidget<QComboBox>(boxName);
    box->setCurrentIndex(box->findText(text));
    emit box->activated(box->currentIndex());
}

// 60 points for 18 boxes: a box raised past the points left steps back and stays capped until
// points are free again, and no box passes 10
struct SkillMove {
    const char *name;
    QList<int> start;
    int capped; // a box raised at no point left before the move, or -1
    int box;
    int raiseTo; // -1: one step up by the arrow key
    int value, points, maximum;
};

const QList<int> allSpent(6, 10);
const SkillMove skillMoves[] = {
    {"at 1 point left a box at 3 rises to 4", {10, 10, 10, 10, 10, 3, 6}, -1, 5, -1, 4, 0, 10},
    {"at no point left a raised box stays", allSpent, -1, 17, -1, 0, 0, 0},
    {"a box typed past the points keeps what was left", {10, 10, 10, 10, 10, 5}, -1, 9, 8, 5, 0, 5},
    {"a box at 10 goes no higher", {10}, -1, 0, -1, 10, 50, 10},
    {"a capped box stays capped", allSpent, 6, 6, -1, 0, 0, 0},
    {"lowering a box frees the capped one", allSpent, 6, 5, 9, 9, 1, 10},
};

void openNewGame()
{
    ModuleManager::instance().changeModule(new Module_MainMenu);
    click("New Game");
}

} // namespace

class tst_NewGame : public ScreenTest
{
    Q_OBJECT

private slots:
    void init()
    {
        writeNations(nationLists);
        openNewGame();
    }

    void skillPoints_data() { TableRows::add(skillMoves); }

    void skillPoints()
    {
        const auto &[name, start, capped, box, raiseTo, value, points, maximum] = TableRows::current(skillMoves);
        for (int i = 0; i < start.size(); ++i)
            skillBox(i)->setValue(start[i]);
        if (capped >= 0)
            QTest::keyClick(skillBox(capped), Qt::Key_Up);
        if (raiseTo < 0)
            QTest::keyClick(skillBox(box), Qt::Key_Up);
        else
            skillBox(box)->setValue(raiseTo);

        QCOMPARE(skillBox(box)->value(), value);
        QCOMPARE(skillBox(box)->maximum(), maximum);
        QCOMPARE(screenWidget<QLabel>("skillPointsLabel")->text(), "Skill Points: " + QString::number(points));
        if (capped >= 0)
            QCOMPARE(skillBox(capped)->maximum(), points == 0 ? 0 : 10);
    }

    void enteringTheGameMakesManagerAndGym()
    {
        QTest::keyClicks(screenWidget<QLineEdit>("firstNameEdit"), "Mara");
        QTest::keyClicks(screenWidget<QLineEdit>("lastNameEdit"), "Kovac");
        choose("regionBox", "Western Europe");
        choose("nationBox", "France");
        QList<int> skills;
        for (int box = 0; box < Module_NewGame::SkillBoxCount; ++box) {
            skills << box % 5;
            skillBox(box)->setValue(box % 5);
        }
        click("Advance to Gym Creation");
        QTest::keyClicks(screenWidget<QLineEdit>("gymNameEdit"), "Golden Fist");
        choose("styleBox", "Karate");
        choose("primaryColourBox", "Teal");
        choose("secondaryColourBox", "Gold");
        click("Advance to Game");

        QStringList strings, titles;
        QList<int> values, ledger;
        GameManager::instance().managerPack(strings, values, titles);
        QCOMPARE(strings, QStringList({"Mara", "Kovac", "Western Europe", "France", "Unknown"}));
        QCOMPARE(values, QList<int>{0} + skills + QList<int>(4, 0));
        GameManager::instance().gymPack(strings, values, ledger);
        QCOMPARE(strings, QStringList({"Golden Fist", "Karate", "Teal", "Gold", "Unknown"}));

        // the game opens on the profile, with the top menu over it
        QVERIFY(ModuleManager::instance().isTopMenuVisible());
        QCOMPARE(ModuleManager::instance().topMenu()->currentScreen(), int(TopMenuBar::Profile));
    }

    void aMissingNationFileIsToldAndTheNationsStayEmpty()
    {
        QVERIFY(QFile::remove("Resources/Defaults/default_nations.dat"));
        DialogScript script;
        openNewGame();
        QTRY_COMPARE(script.seen.size(), 1);
        QCOMPARE(script.seen[0].text, QString("Warning: ./Resources/Defaults/default_nations.dat - File not found. "
                                              "Proceeding may cause errors with the game."));
        QCOMPARE(screenWidget<QComboBox>("regionBox")->count(), 8);
        QCOMPARE(screenWidget<QComboBox>("nationBox")->count(), 0);
    }
};

QTEST_MAIN(tst_NewGame)
#include "tst_newgame.moc"
