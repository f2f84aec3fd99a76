// orvane-profilebench [--entries N] [--runs R] [--save NAME]
//
// Starts a new game on the default world, promotes a student to a fighter and gives him N career
// entries (100 unless told) and a few belts, then opens the profile R times (20 unless told) in
// the game's own window on the offscreen platform: the manager's page as a new game shows it, and
// the fighter's page behind its button. It prints the slowest and the median opening of each.
// With --save the world goes to ./Resources/Saves/NAME.dat, a game with a fighter to play from.
// It must run where the game runs, beside the Resources tree and the style sheets.

#include "fighters/Entity_Manager.h"
#include "fighters/Random.h"
#include "persistence/DefaultWorld.h"
#include "persistence/NameFiles.h"
#include "persistence/SaveFile.h"
#include "screens/Module_Profile.h"
#include "screens/ScreenFactory.h"
#include "shell/ModuleManager.h"
#include "world/GameManager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <ctime>

namespace {

const QStringList methods{"KO(Jab)", "Decision", "TKO(Low Kick)", "Split Decision", "KO(High Kick)"};

// a new game with one fighter of the gym whose career holds `entries` nights
bool buildWorld(int entries, QTextStream &err)
{
    GameManager &world = GameManager::instance();
    GameManager::NewGame choices;
    choices.firstName = "Rowan";
    choices.lastName = "Hale";
    choices.region = "Western Europe";
    choices.nation = "Ireland";
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill)
        choices.skills << 3 + skill % 4;
    // a manager who reads the style behind a man's background
    choices.skills.last() = 10;
    choices.gymName = "Iron Lotus";
    choices.gymStyle = "Muay Thai";
    choices.primaryColour = "Dark Red";
    choices.secondaryColour = "Gold";
    world.startNewGame(choices, DefaultWorld::read());
    QString name;
    world.generateFighter(NameFiles::book(), name, true);
    if (!world.promoteStudent(0)) {
        err << "no student could be promoted: is the default world beside the binary?\n";
        return false;
    }
    const int id = world.fighterIdAt(0);
    for (int night = 0; night < entries; ++night) {
        const bool win = night % 3 != 2;
        QString entry = QString("%1: Opponent %2 - %3 - Rd. %4(1:%5) - GKO: Night %6")
                            .arg(win ? "Win" : "Loss")
                            .arg(night)
                            .arg(methods[night % methods.size()])
                            .arg(1 + night % 3)
                            .arg(10 + night % 50)
                            .arg(night);
        if (night % 25 == 10)
            entry += "|GKO World Championship";
        world.recordGymResult(id, entry, "Single Match");
        for (int day = 0; day < 9; ++day)
            world.advanceDate();
    }
    world.setFighterBio(0, "New Fighter\nHard Hitter\nA man of a hundred nights.");
    return true;
}

// The machine may be shared, so the processor time of the process is measured beside the wall
// clock: it counts the work of the opening alone.
struct Stopwatch {
    QElapsedTimer wall;
    std::clock_t cpu = 0;
    void start()
    {
        wall.start();
        cpu = std::clock();
    }
    double wallMs() const { return wall.nsecsElapsed() / 1e6; }
    double cpuMs() const { return double(std::clock() - cpu) * 1000.0 / CLOCKS_PER_SEC; }
};

// the median and the slowest of the times in milliseconds
QString summary(QList<double> times)
{
    std::sort(times.begin(), times.end());
    return QString("median %1 ms, slowest %2 ms").arg(times[times.size() / 2], 0, 'f', 2).arg(times.last(), 0, 'f', 2);
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    int entries = 100;
    int runs = 20;
    QString save;
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == "--entries" && i + 1 < args.size())
            entries = args[++i].toInt();
        else if (args[i] == "--runs" && i + 1 < args.size())
            runs = std::max(1, args[++i].toInt());
        else if (args[i] == "--save" && i + 1 < args.size())
            save = args[++i];
        else {
            err << "usage: orvane-profilebench [--entries N] [--runs R] [--save NAME]\n";
            return 2;
        }
    }
    Random::useTestClock(1);
    if (!buildWorld(entries, err))
        return 1;

    ModuleManager &shell = ModuleManager::instance();
    shell.initialize(ScreenFactory::builders());
    shell.showTopMenu();
    QList<double> managerWall, managerCpu, fighterWall, fighterCpu;
    for (int run = 0; run < runs; ++run) {
        // as the top menu's button does it: the screen built, styled and shown
        Stopwatch clock;
        clock.start();
        shell.changeModule(ScreenFactory::build(0));
        QApplication::processEvents();
        managerWall << clock.wallMs();
        managerCpu << clock.cpuMs();

        auto *profile = qobject_cast<Module_Profile *>(shell.currentModule());
        clock.start();
        profile->changeToFighterScreen();
        QApplication::processEvents();
        fighterWall << clock.wallMs();
        fighterCpu << clock.cpuMs();
    }
    const int careerLength =
        int(GameManager::instance().fighterById(GameManager::instance().fighterIdAt(0)).history().size());
    out << "profile of a fighter with " << careerLength << " career entries, " << runs << " openings\n";
    out << "  manager page, as a new game opens it:  wall " << summary(managerWall) << "; processor "
        << summary(managerCpu) << "\n";
    out << "  fighter page, behind Current Fighters: wall " << summary(fighterWall) << "; processor "
        << summary(fighterCpu) << "\n";
    out.flush();
    if (!save.isEmpty()) {
        QString reason;
        if (!SaveFile::save(save, &reason)) {
            err << "could not save: " << reason << "\n";
            return 1;
        }
        out << "saved as " << SaveFile::files().pathOf(save) << "\n";
    }
    shell.shutdown();
    return 0;
}
