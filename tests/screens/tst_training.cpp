#include "screens/ScreenTestKit.h"
#include "world/WorldSamples.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QtTest>

using namespace ScreenTestKit;

namespace {

const QDate Today(2012, 3, 1);
constexpr int HeavyBag = 0; // the first piece of equipment

// Ames (id 1101) on the second plan, Bell (id 1102) on the first
bool loadGym(int money = 10000, int gymLevel = 0, int heavyBag = 0)
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
    gym[Entity_Gym::Money] = money;
    gym[Entity_Gym::GymLevel] = gymLevel;
    gym[Entity_Gym::FighterSlots] = 2;
    gym[Entity_Gym::FirstEquipment + HeavyBag] = heavyBag;
    w.gym.unpack(w.gym.strings(), gym, w.gym.ledger());
    return w.load();
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

void openPlans()
{
    openFromMenu(TopMenuBar::Training);
    click("To Training Plans");
}

} // namespace

class tst_Training : public ScreenTest
{
    Q_OBJECT

private slots:
    // A plan chosen on the training page is stored on the fighter at once: it survives the
    // switching of fighters and the closing of the screen, and touches no other man.
    void aPlanSticksToItsFighter()
    {
        QVERIFY(loadGym());
        openPlans();
        QCOMPARE(checkedPlans(), QList<int>{1});
        QTest::mouseClick(group("planButtons")->button(13), Qt::LeftButton);
        QCOMPARE(GameManager::instance().fighterById(1101).trainingPlan, 13);
        auto *fighters = screenWidget<QComboBox>("fighterBox");
        fighters->setCurrentIndex(1);
        QCOMPARE(checkedPlans(), QList<int>{0});
        fighters->setCurrentIndex(0);
        QCOMPARE(checkedPlans(), QList<int>{13});
        openPlans();
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
        QTest::addColumn<QStringList>("told");
        QTest::addColumn<int>("spent");
        const QStringList accept{"Accept", "Accept"};
        const QString bag = "Are you sure you want to upgrade this equipment? It will cost ";
        const QString gym = "Are you sure you want to upgrade your gym? It will cost ";
        QTest::newRow("the bag upgraded")
            << false << 3500 << 1 << accept << QStringList{bag + "$3,500. ", "Successfully upgraded."} << 3500;
        QTest::newRow("the bag thought better of")
            << false << 500000 << 9 << QStringList{"Cancel"} << QStringList{bag + "$500,000. "} << 0;
        QTest::newRow("the gym a million short of a dollar")
            << true << 999999 << 7 << accept
            << QStringList{gym + "$1,000,000. ", "Could not upgrade. Be sure that you have enough money."} << 0;
        QTest::newRow("the gym at the top")
            << true << 9000000 << 10 << accept << QStringList{"Already at max level."} << 0;
    }

    void upgrades()
    {
        QFETCH(bool, gym);
        QFETCH(int, money);
        QFETCH(int, level);
        QFETCH(QStringList, answers);
        QFETCH(int, spent);
        QVERIFY(loadGym(money, gym ? level : 0, gym ? 0 : level));
        openFromMenu(TopMenuBar::Training);
        const auto seen = press(gym ? screenButton("Upgrade Gym") : group("upgradeButtons")->button(HeavyBag), answers);
        QTEST(texts(seen), "told");
        // the question offers both answers, the outcome Accept alone, the top Cancel alone
        const QStringList question = level == 10 ? QStringList{"Cancel"} : QStringList{"Accept", "Cancel"};
        QCOMPARE(seen[0].buttons, question);
        QCOMPARE(seen.last().buttons, seen.size() == 2 ? QStringList{"Accept"} : question);
        const Entity_Gym after = GameManager::instance().gymRecord();
        QCOMPARE(gym ? after.value(Entity_Gym::GymLevel) : after.equipmentLevel(HeavyBag), level + (spent ? 1 : 0));
        QCOMPARE(after.money(), money - spent);
    }
};

QTEST_MAIN(tst_Training)
#include "tst_training.moc"
