// Reports what it costs to work out all 48 ratings of every man of the default world: the
// organisations' rosters, the free agents and the amateurs, as many men as the database screen
// lists. The ratings are computed on demand and stored nowhere, so each pass does the whole work.
// Then what a morning's training of four fighters costs the day. It must run where the game runs,
// beside the Resources tree.
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"
#include "fighters/GymRoutine.h"
#include "fighters/Random.h"
#include "fighters/Ratings.h"
#include "persistence/DefaultWorld.h"
#include "world/Entity_Org.h"
#include "world/WorldState.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    if (!QDir(QStringLiteral("Resources/Defaults")).exists()) {
        QTextStream(stderr) << "no default world in ./Resources/Defaults: run the benchmark in the game's directory\n";
        return 1;
    }
    const WorldState world = DefaultWorld::read();
    QList<Entity_Fighter> rostered;
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (const Entity_Fighter &man : roster)
            rostered.append(man);
    }
    QList<Entity_Fighter> men = rostered;
    men << world.freeAgents.values() << world.amateurs.values();

    const int passes = 200;
    QList<double> times;
    long long checksum = 0;
    for (int pass = 0; pass < passes; ++pass) {
        QElapsedTimer timer;
        timer.start();
        for (const Entity_Fighter &man : men) {
            const Ratings::Values ratings = Ratings::of(man);
            for (int rating : ratings)
                checksum += rating;
        }
        times.append(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    out << "men: " << men.size() << " (" << rostered.size() << " in rosters, " << world.freeAgents.size()
        << " free agents, " << world.amateurs.size() << " amateurs)\n";
    out << "all 48 ratings of every man, " << passes << " passes: median " << times[passes / 2]
        << " ms, 99th percentile " << times[passes * 99 / 100] << " ms, slowest " << times.last() << " ms\n";
    out << "checksum " << checksum / passes << "\n";

    // four men on four plans, a trainer of 5 and equipment of level 3, day after day
    Random::useTestClock(1);
    QList<Entity_GymFighter> gymFighters;
    for (int i = 0; i < 4; ++i) {
        Entity_GymFighter man(rostered.value(i));
        man.trainingPlan = 1 + 5 * i;
        gymFighters << man;
    }
    QList<int> managerValues(Entity_Manager::ValueCount, 5);
    Entity_Manager manager;
    manager.unpack(manager.strings(), managerValues, {});
    Entity_Gym gym;
    QList<int> gymValues = gym.values();
    for (int e = 0; e < Entity_Gym::EquipmentCount; ++e)
        gymValues[Entity_Gym::FirstEquipment + e] = 3;
    gymValues[Entity_Gym::Money] = 100000000;
    gym.unpack(gym.strings(), gymValues, gym.ledger());
    const int days = 3650;
    QList<double> dayTimes;
    QDate date(2011, 1, 1);
    for (int day = 0; day < days; ++day, date = date.addDays(1)) {
        QElapsedTimer timer;
        timer.start();
        GymRoutine::trainAll(gymFighters, gym, manager, date);
        if (date.day() == 2)
            GymRoutine::trimTrainingLogs(gymFighters);
        dayTimes.append(double(timer.nsecsElapsed()) / 1e3);
    }
    std::sort(dayTimes.begin(), dayTimes.end());
    out << "a morning's training of four fighters, " << days << " days: median " << dayTimes[days / 2]
        << " us, 99th percentile " << dayTimes[days * 99 / 100] << " us, slowest " << dayTimes.last() << " us\n";
    return 0;
}
