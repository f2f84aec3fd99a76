#include "screens/ScreenFactory.h"
#include "screens/ScreenTestKit.h"
#include "world/WorldSamples.h"

#include "fighters/Ratings.h"
#include "screens/Module_Training.h"
#include "shell/TopMenuBar.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QDate Today(2012, 3, 1);
constexpr int HeavyBag = 0; // the first piece of equipment

struct GymSetup {
    int money = 10000;
    int heavyBag = 0;
    int gymLevel = 0;
    int intuition = 10;
    bool withFighters = true;
};

// Ames (id 1101) on the heavy bag, Bell (id 1102) resting, their attributes at 40 and 70
bool loadGym(const GymSetup &setup)
{
    WorldSamples::World w;
    w.currentDate = Today;
    if (setup.withFighters) {
        Entity_GymFighter ames = WorldSamples::gymFighter(1101, "Al", "Ames", 5000);
        Entity_GymFighter bell = WorldSamples::gymFighter(1102, "Bo", "Bell", 5100);
        for (int a = Entity_Fighter::FirstAttribute; a <= Entity_Fighter::LastAttribute; ++a) {
            ames.setNumber(Entity_Fighter::Number(a), 40);
            bell.setNumber(Entity_Fighter::Number(a), 70);
        }
        ames.trainingPlan = 1;
        ames.fatigue = 30;
        ames.fatigueBand = 1;
        ames.trainingLog = {"\nWed Feb 29 2012 - Ran today.", "\nThu Mar 1 2012 - Trained on the heavy bag."};
        bell.fatigue = 90;
        bell.fatigueBand = 4;
        w.fighters = {ames, bell};
        w.bookings = {Entity_Booking::emptyFor(1101, ames.fullName(), Today),
                      Entity_Booking::emptyFor(1102, bell.fullName(), Today)};
    }
    QList<int> gym = w.gym.values();
    gym[Entity_Gym::Money] = setup.money;
    gym[Entity_Gym::GymLevel] = setup.gymLevel;
    gym[Entity_Gym::FighterSlots] = 2;
    gym[Entity_Gym::FirstEquipment + HeavyBag] = setup.heavyBag;
    w.gym.unpack(w.gym.strings(), gym, w.gym.ledger());
    QList<int> manager = w.manager.values();
    manager[Entity_Manager::Intuition] = setup.intuition;
    w.manager.unpack(w.manager.strings(), manager, {});
    return w.load();
}

void openTraining()
{
    ModuleManager::instance().showTopMenu();
    QTest::mouseClick(ModuleManager::instance().topMenu()->button(TopMenuBar::Training), Qt::LeftButton);
    QVERIFY(qobject_cast<Module_Training *>(ModuleManager::instance().currentModule()));
}

QButtonGroup *group(const QString &name)
{
    return ModuleManager::instance().currentModule()->findChild<QButtonGroup *>(name);
}

QString field(const QString &name)
{
    return screenWidget<QLineEdit>(name)->text();
}

QString label(const QString &name)
{
    return screenWidget<QLabel>(name)->text();
}

QList<int> checkedPlans()
{
    QList<int> plans;
    for (QAbstractButton *button : group("planButtons")->buttons())
        if (button->isChecked())
            plans << group("planButtons")->id(button);
    return plans;
}

QList<DialogScript::Seen> click(QAbstractButton *button, const QStringList &answers)
{
    DialogScript script(answers);
    QTest::mouseClick(button, Qt::LeftButton);
    return script.seen;
}

using Dialogs = QList<QPair<QString, QStringList>>;

Dialogs shown(const QList<DialogScript::Seen> &seen)
{
    Dialogs dialogs;
    for (const DialogScript::Seen &one : seen)
        dialogs << qMakePair(one.text, one.buttons);
    return dialogs;
}

} // namespace

Q_DECLARE_METATYPE(Dialogs)

class tst_Training : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(root.isValid());
        QDir::setCurrent(root.path());
        ModuleManager::instance().initialize(ScreenFactory::builders());
    }

    void cleanup()
    {
        GameManager::instance().resetWorld();
        ModuleManager::instance().hideTopMenu();
    }

    // The top menu opens the gym page. A plan chosen on the training page is stored on the
    // fighter at once: it survives the switching of fighters and the closing of the screen.
    void aPlanSticksToItsFighter()
    {
        QVERIFY(loadGym({}));
        openTraining();
        QVERIFY(screenButton("To Training Plans") && !screenButton("Back to Gym Info"));
        QTest::mouseClick(screenButton("To Training Plans"), Qt::LeftButton);
        QVERIFY(screenButton("Back to Gym Info") && !screenButton("To Training Plans"));

        auto *fighters = screenWidget<QComboBox>("fighterBox");
        QCOMPARE(fighters->count(), 2);
        QCOMPARE(field("fighterNameField"), QString("Al Ames"));
        QCOMPARE(field("learningSpeedField"), QString("Average"));
        QCOMPARE(field("fatigueField"), QString("Great"));
        QCOMPARE(screenWidget<QTextEdit>("logText")->toPlainText(),
                 QString("Wed Feb 29 2012 - Ran today.\nThu Mar 1 2012 - Trained on the heavy bag."));
        QCOMPARE(label("rating0"), QString("40"));
        QCOMPARE(checkedPlans(), QList<int>{1});

        QTest::mouseClick(group("planButtons")->button(13), Qt::LeftButton);
        QCOMPARE(GameManager::instance().fighterById(1101).trainingPlan, 13);
        QCOMPARE(checkedPlans(), QList<int>{13});

        fighters->setCurrentIndex(1);
        QCOMPARE(field("fighterNameField"), QString("Bo Bell"));
        QCOMPARE(field("fatigueField"), QString("Exhausted"));
        QCOMPARE(label("rating0"), QString("70"));
        QCOMPARE(checkedPlans(), QList<int>{0});
        fighters->setCurrentIndex(0);
        QCOMPARE(checkedPlans(), QList<int>{13});

        openTraining();
        QTest::mouseClick(screenButton("To Training Plans"), Qt::LeftButton);
        QCOMPARE(checkedPlans(), QList<int>{13});
        QCOMPARE(GameManager::instance().fighterById(1102).trainingPlan, 0);
    }

    // a manager of little intuition cannot read his men
    void intuitionHidesTheFatigue()
    {
        GymSetup setup;
        setup.intuition = 4;
        QVERIFY(loadGym(setup));
        openTraining();
        QCOMPARE(field("fatigueField"), QString("Can't Tell"));
        QCOMPARE(field("learningSpeedField"), QString("Can't Tell"));
    }

    // with nobody to show, the page is empty and a plan sticks to no one
    void aGymWithoutFighters()
    {
        GymSetup setup;
        setup.withFighters = false;
        QVERIFY(loadGym(setup));
        openTraining();
        QTest::mouseClick(screenButton("To Training Plans"), Qt::LeftButton);
        QCOMPARE(screenWidget<QComboBox>("fighterBox")->count(), 0);
        QCOMPARE(field("fighterNameField"), QString());
        QCOMPARE(label("rating0"), QString());
        const QByteArray before = worldBytes();
        QTest::mouseClick(group("planButtons")->button(5), Qt::LeftButton);
        QCOMPARE(worldBytes(), before);
    }

    // The heavy bag's upgrade: the question with its price, then the outcome; a level of 10
    // says so and offers only Cancel.
    void equipmentUpgrade_data()
    {
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<Dialogs>("dialogs");
        QTest::addColumn<int>("levelAfter");

        const QStringList both{"Accept", "Cancel"};
        const QString question = "Are you sure you want to upgrade this equipment? It will cost ";
        QTest::newRow("upgraded") << 3500 << 1 << QStringList{"Accept", "Accept"}
                                  << Dialogs{{question + "$3,500. ", both}, {"Successfully upgraded.", {"Accept"}}}
                                  << 2;
        QTest::newRow("a dollar short") << 999 << 0 << QStringList{"Accept", "Accept"}
                                        << Dialogs{{question + "$1,000. ", both},
                                                   {"Could not upgrade. Be sure that you have enough money.",
                                                    {"Accept"}}}
                                        << 0;
        QTest::newRow("thought better of it")
            << 500000 << 9 << QStringList{"Cancel"} << Dialogs{{question + "$500,000. ", both}} << 9;
        QTest::newRow("at the top") << 9000000 << 10 << QStringList{"Cancel"}
                                    << Dialogs{{"Already at max level.", {"Cancel"}}} << 10;
    }

    void equipmentUpgrade()
    {
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(QStringList, answers);
        QFETCH(Dialogs, dialogs);
        QFETCH(int, levelAfter);
        GymSetup setup;
        setup.money = money;
        setup.heavyBag = level;
        QVERIFY(loadGym(setup));
        openTraining();
        QCOMPARE(shown(click(group("upgradeButtons")->button(HeavyBag), answers)), dialogs);
        const Entity_Gym gym = GameManager::instance().gymRecord();
        QCOMPARE(gym.equipmentLevel(HeavyBag), levelAfter);
        // the page shows the gym as it stands now
        QVERIFY(label("equipment0").startsWith("Heavy Bag - Level " + QString::number(levelAfter) + "\n"));
        QCOMPARE(field("moneyField"), QString::number(gym.money()));
    }

    void gymUpgrade_data()
    {
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level");
        QTest::addColumn<Dialogs>("dialogs");
        QTest::addColumn<QStringList>("labels");

        const QStringList both{"Accept", "Cancel"};
        const QString question = "Are you sure you want to upgrade your gym? It will cost ";
        QTest::newRow("the first upgrade")
            << 5000 << 0 << Dialogs{{question + "$5,000. ", both}, {"Successfully upgraded.", {"Accept"}}}
            << QStringList{"Gym Level: 1", "Student Slots: 4", "Fighter Slots: 2"};
        QTest::newRow("a million short of a dollar")
            << 999999 << 7
            << Dialogs{{question + "$1,000,000. ", both},
                       {"Could not upgrade. Be sure that you have enough money.", {"Accept"}}}
            << QStringList{"Gym Level: 7", "Student Slots: 3", "Fighter Slots: 2"};
        QTest::newRow("at the top") << 9000000 << 10 << Dialogs{{"Already at max level.", {"Cancel"}}}
                                    << QStringList{"Gym Level: 10", "Student Slots: 3", "Fighter Slots: 2"};
    }

    void gymUpgrade()
    {
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(Dialogs, dialogs);
        QFETCH(QStringList, labels);
        GymSetup setup;
        setup.money = money;
        setup.gymLevel = level;
        QVERIFY(loadGym(setup));
        openTraining();
        QCOMPARE(shown(click(screenButton("Upgrade Gym"), {"Accept", "Accept"})), dialogs);
        QCOMPARE((QStringList{label("gymLevelLabel"), label("studentSlotsLabel"), label("fighterSlotsLabel")}), labels);
    }

private:
    QTemporaryDir root;
};

QTEST_MAIN(tst_Training)
#include "tst_training.moc"
