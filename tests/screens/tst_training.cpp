#include "screens/ScreenFactory.h"
#include "screens/ScreenTestKit.h"
#include "world/WorldSamples.h"

#include "screens/Module_Training.h"
#include "shell/TopMenuBar.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QDate Today(2012, 3, 1);
constexpr int HeavyBag = 0; // the first piece of equipment

struct GymSetup {
    int money = 10000;
    int heavyBag = 0;
    int gymLevel = 0;
};

// Ames (id 1101) on the second plan, Bell (id 1102) on the first
bool loadGym(const GymSetup &setup)
{
    WorldSamples::World w;
    w.currentDate = Today;
    Entity_GymFighter ames = WorldSamples::gymFighter(1101, "Al", "Ames", 5000);
    Entity_GymFighter bell = WorldSamples::gymFighter(1102, "Bo", "Bell", 5100);
    ames.trainingPlan = 1;
    w.fighters = {ames, bell};
    w.bookings = {Entity_Booking::emptyFor(1101, ames.fullName(), Today),
                  Entity_Booking::emptyFor(1102, bell.fullName(), Today)};
    QList<int> gym = w.gym.values();
    gym[Entity_Gym::Money] = setup.money;
    gym[Entity_Gym::GymLevel] = setup.gymLevel;
    gym[Entity_Gym::FighterSlots] = 2;
    gym[Entity_Gym::FirstEquipment + HeavyBag] = setup.heavyBag;
    w.gym.unpack(w.gym.strings(), gym, w.gym.ledger());
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

QList<int> checkedPlans()
{
    QList<int> plans;
    for (QAbstractButton *button : group("planButtons")->buttons())
        if (button->isChecked())
            plans << group("planButtons")->id(button);
    return plans;
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

    // A plan chosen on the training page is stored on the fighter at once: it survives the
    // switching of fighters and the closing of the screen, and touches no other man.
    void aPlanSticksToItsFighter()
    {
        QVERIFY(loadGym({}));
        openTraining();
        QTest::mouseClick(screenButton("To Training Plans"), Qt::LeftButton);
        auto *fighters = screenWidget<QComboBox>("fighterBox");
        QCOMPARE(checkedPlans(), QList<int>{1});

        QTest::mouseClick(group("planButtons")->button(13), Qt::LeftButton);
        QCOMPARE(GameManager::instance().fighterById(1101).trainingPlan, 13);
        QCOMPARE(checkedPlans(), QList<int>{13});

        fighters->setCurrentIndex(1);
        QCOMPARE(checkedPlans(), QList<int>{0});
        fighters->setCurrentIndex(0);
        QCOMPARE(checkedPlans(), QList<int>{13});

        openTraining();
        QTest::mouseClick(screenButton("To Training Plans"), Qt::LeftButton);
        QCOMPARE(checkedPlans(), QList<int>{13});
        QCOMPARE(GameManager::instance().fighterById(1102).trainingPlan, 0);
    }

    // An upgrade of the heavy bag or of the gym: the question with its price, then the outcome;
    // a level of 10 says so and offers only Cancel. Only an upgrade that is done costs money.
    void upgrades_data()
    {
        QTest::addColumn<bool>("gym"); // the gym itself, or else the heavy bag
        QTest::addColumn<int>("money");
        QTest::addColumn<int>("level");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<Dialogs>("dialogs");
        QTest::addColumn<int>("levelAfter");
        QTest::addColumn<int>("spent");

        const QStringList both{"Accept", "Cancel"};
        const QStringList accept{"Accept", "Accept"};
        const QString bag = "Are you sure you want to upgrade this equipment? It will cost ";
        const QString gym = "Are you sure you want to upgrade your gym? It will cost ";
        const QString short_ = "Could not upgrade. Be sure that you have enough money.";
        const Dialogs atTheTop{{"Already at max level.", {"Cancel"}}};
        QTest::newRow("the bag upgraded")
            << false << 3500 << 1 << accept << Dialogs{{bag + "$3,500. ", both}, {"Successfully upgraded.", {"Accept"}}}
            << 2 << 3500;
        QTest::newRow("the bag thought better of")
            << false << 500000 << 9 << QStringList{"Cancel"} << Dialogs{{bag + "$500,000. ", both}} << 9 << 0;
        QTest::newRow("the gym a million short of a dollar")
            << true << 999999 << 7 << accept << Dialogs{{gym + "$1,000,000. ", both}, {short_, {"Accept"}}} << 7 << 0;
        QTest::newRow("the gym at the top") << true << 9000000 << 10 << accept << atTheTop << 10 << 0;
    }

    void upgrades()
    {
        QFETCH(bool, gym);
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(QStringList, answers);
        QFETCH(int, levelAfter);
        QFETCH(int, spent);
        GymSetup setup;
        setup.money = money;
        (gym ? setup.gymLevel : setup.heavyBag) = level;
        QVERIFY(loadGym(setup));
        openTraining();
        QAbstractButton *button = gym ? screenButton("Upgrade Gym") : group("upgradeButtons")->button(HeavyBag);
        QTEST(shown(press(button, answers)), "dialogs");
        const Entity_Gym after = GameManager::instance().gymRecord();
        QCOMPARE(gym ? after.value(Entity_Gym::GymLevel) : after.equipmentLevel(HeavyBag), levelAfter);
        QCOMPARE(after.money(), money - spent);
    }

private:
    QTemporaryDir root;
};

QTEST_MAIN(tst_Training)
#include "tst_training.moc"
