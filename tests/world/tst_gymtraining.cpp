#include "WorldSamples.h"

#include "world/DayFlow.h"

#include <QtTest>

using namespace WorldSamples;

namespace {

// the day that ends on the second of the month, when the logs are cut
const QDate Today(2012, 3, 1);

// Ames (id 1101) on the heavy bag, Bell (id 1102) resting; Ames has his birthday tomorrow. The
// gym's three student places are taken, so that no new student comes.
World gymWorld()
{
    World w;
    w.currentDate = Today;
    w.fillStudentPlaces();
    Entity_GymFighter ames = gymFighter(1101, "Al", "Ames", 5000);
    ames.setBirthDate(QDate(1987, 3, 2));
    ames.trainingPlan = 1;
    ames.trainingLog = {"\nWed Feb 29 2012 - Ran today."};
    Entity_GymFighter bell = gymFighter(1102, "Bo", "Bell", 5100);
    bell.trainingLog = {"\nWed Feb 29 2012 - Rested today."};
    w.addGym({ames, bell});
    QList<int> gym = w.gym.values();
    gym[Entity_Gym::FighterSlots] = 2;
    gym[Entity_Gym::FirstEquipment] = 3; // the heavy bag
    w.gym.unpack(w.gym.strings(), gym, w.gym.ledger());
    return w;
}

} // namespace

class tst_GymTraining : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(12); }
    void cleanup() { game().resetWorld(); }

    // The gym trains before the world fights, pays for it at once, and the news of the new day
    // holds the birthdays; on the second of the month each log keeps only its last line.
    void aDayOfTheGym()
    {
        QVERIFY(gymWorld().load());
        GameManager &world = game();
        QStringList paragraphs;
        DayFlow(world, {}, [&](const QString &paragraph) { paragraphs << paragraph; }).run();

        const qsizetype gymInfo = paragraphs.indexOf("Gym Info: ");
        QVERIFY2(paragraphs.value(gymInfo + 1).startsWith("Al Ames trained on the heavy bag.\nCross +"),
                 qPrintable(paragraphs.value(gymInfo + 1)));
        QCOMPARE(paragraphs.mid(gymInfo + 2, 2), QStringList({"Bo Bell rested today.", ""}));

        const qsizetype fighterNews = paragraphs.indexOf("Fighter News: ");
        QCOMPARE(paragraphs.mid(fighterNews + 1, 2), QStringList({"Al Ames has turned 26 years old.", ""}));

        QCOMPARE(world.gymRecord().money(), 10000 - 150);
        QCOMPARE(world.gymRecord().ledgerEntry(Entity_Gym::TrainingCosts), 150);
        QCOMPARE(world.fighterById(1101).trainingLog, QStringList{"\nThu Mar 1 2012 - Trained on the heavy bag."});
        QCOMPARE(world.fighterById(1102).trainingLog, QStringList{"\nThu Mar 1 2012 - Rested today."});
        QCOMPARE(world.fighterById(1101).fatigue, 2);
    }
};

QTEST_GUILESS_MAIN(tst_GymTraining)
#include "tst_gymtraining.moc"
