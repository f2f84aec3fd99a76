// orvane-fightbench [--matches N] [--sims N] [--seed S]
//
// Plays matches of the default world's men on the fight night's screen, offscreen, as a player
// would: each press of "Next Step" is timed together with the drawing of the window that follows
// it, and the slowest press of a step of a match is reported, beside the slowest press of all
// (the tale of the tape draws two portraits). Then "Sim to End" runs whole matches on its 1 ms
// timer with the commentary drawn, and the time of each is told with its steps.
#include "fighters/Random.h"
#include "persistence/DefaultWorld.h"
#include "screens/Module_UserEvents.h"
#include "screens/ScreenFactory.h"
#include "shell/ModuleManager.h"
#include "world/Entity_Match.h"
#include "world/GameManager.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTextEdit>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

namespace {

struct Options {
    int matches = 100;
    int sims = 10;
    quint32 seed = 1;
};

bool parse(const QStringList &args, Options &options)
{
    for (int i = 1; i < args.size(); ++i) {
        bool ok = i + 1 < args.size();
        if (args[i] == "--matches" && ok)
            options.matches = args[++i].toInt(&ok);
        else if (args[i] == "--sims" && ok)
            options.sims = args[++i].toInt(&ok);
        else if (args[i] == "--seed" && ok)
            options.seed = args[++i].toUInt(&ok);
        else
            ok = false;
        if (!ok)
            return false;
    }
    return true;
}

// the men of every roster of two or more, by organisation
QList<std::pair<QString, QList<Entity_Fighter>>> rosters(const GameManager &world)
{
    QList<std::pair<QString, QList<Entity_Fighter>>> all;
    for (const QString &name : world.organisationNames()) {
        Entity_Org::Roster roster;
        world.organisation(name).rosterCopy(roster);
        if (roster.size() >= 2)
            all.append({name, roster.values()});
    }
    return all;
}

// a night of one match between two men of one roster, for a screen of its own
Entity_Event oneMatchNight(const QString &organisation, const Entity_Fighter &one, const Entity_Fighter &two, int n)
{
    Entity_Match match(Entity_Match::SingleMatch);
    match.unpack({one.fullName(), two.fullName(), Entity_Match::SingleMatch, Entity_Match::OpenPlace}, one.getId(),
                 two.getId(), false);
    Entity_Event night;
    night.unpack({"Bench Night " + QString::number(n), organisation, "Tokyo", "Elite", "Fight Night", "No Title"},
                 GameManager::instance().getCurrentDate(), {match}, {}, true);
    return night;
}

QPushButton *button(QWidget *screen, const QString &text)
{
    for (QPushButton *b : screen->findChildren<QPushButton *>())
        if (b->text() == text && b->isVisibleTo(screen))
            return b;
    return nullptr;
}

// the screen of a night of one match, up to the first step of the first round
Module_UserEvents *openNight(const Entity_Event &night, int pressesBefore, QList<QList<qint64>> *times = nullptr)
{
    ModuleManager &shell = ModuleManager::instance();
    auto *screen = new Module_UserEvents(night);
    shell.changeModule(screen);
    for (int i = 0; i < pressesBefore; ++i) {
        QElapsedTimer clock;
        clock.start();
        button(screen, "Next Step")->click();
        shell.mainWindow()->repaint();
        if (times)
            (*times)[i] << clock.nsecsElapsed();
    }
    return screen;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream out(stdout);
    Options options;
    if (!parse(app.arguments(), options)) {
        QTextStream(stderr) << "usage: orvane-fightbench [--matches N] [--sims N] [--seed S]\n";
        return 2;
    }
    if (!QDir(QStringLiteral("Resources/Defaults")).exists()) {
        QTextStream(stderr) << "no default world in ./Resources/Defaults: run the benchmark in the game's directory\n";
        return 1;
    }
    Random::useTestClock(options.seed);
    GameManager &world = GameManager::instance();
    DefaultWorld::startPlainGame();
    ModuleManager::instance().initialize(ScreenFactory::builders());
    const auto all = rosters(world);
    if (all.isEmpty()) {
        QTextStream(stderr) << "no roster of the default world holds two men\n";
        return 1;
    }
    const auto drawNight = [&](int n) {
        const auto &[organisation, men] = all[qrand() % all.size()];
        const int a = qrand() % men.size();
        const int b = (a + 1 + qrand() % (men.size() - 1)) % men.size();
        return oneMatchNight(organisation, men[a], men[b], n);
    };

    // the welcome, the announcement, the tale of the tape, the ring, and the first round begins
    constexpr int PressesToTheFirstStep = 5;
    qint64 slowestStep = 0;
    // every press before the first step: welcome, announcement, tape, ring, round
    QList<QList<qint64>> pressTimes(PressesToTheFirstStep);
    qint64 allSteps = 0;
    int steps = 0;
    for (int n = 0; n < options.matches; ++n) {
        Module_UserEvents *screen = openNight(drawNight(n), PressesToTheFirstStep, &pressTimes);
        while (screen->fightNight().resultLines().isEmpty()) {
            QElapsedTimer clock;
            clock.start();
            button(screen, "Next Step")->click();
            ModuleManager::instance().mainWindow()->repaint();
            const qint64 took = clock.nsecsElapsed();
            slowestStep = std::max(slowestStep, took);
            allSteps += took;
            ++steps;
        }
    }
    out << "Steps of " << options.matches << " matches on the screen, each press drawn: " << steps << " steps, mean "
        << QString::number(allSteps / 1e6 / std::max(steps, 1), 'f', 2) << " ms, slowest "
        << QString::number(slowestStep / 1e6, 'f', 2) << " ms\n";
    const char *stages[PressesToTheFirstStep] = {"welcome", "announcement", "tale of the tape", "ring", "round"};
    out << "Presses before the steps, median / slowest:";
    for (int i = 0; i < PressesToTheFirstStep; ++i) {
        QList<qint64> &times = pressTimes[i];
        std::sort(times.begin(), times.end());
        out << ' ' << stages[i] << ' ' << QString::number(times.value(times.size() / 2) / 1e6, 'f', 2) << " / "
            << QString::number(times.value(times.size() - 1) / 1e6, 'f', 2) << " ms"
            << (i + 1 < PressesToTheFirstStep ? ',' : '\n');
    }

    out << "Sim to End, the commentary drawn as it runs:\n";
    for (int n = 0; n < options.sims; ++n) {
        Module_UserEvents *screen = openNight(drawNight(options.matches + n), PressesToTheFirstStep);
        int ticks = 0;
        QObject::connect(screen->stageTimer(), &QTimer::timeout, [&ticks] { ++ticks; });
        QElapsedTimer clock;
        clock.start();
        button(screen, "Sim to End")->click();
        while (screen->stageTimer()->isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const qint64 took = clock.nsecsElapsed();
        // a tick is a step, but for the tally's after the last bell
        out << "  " << ticks << " ticks in " << QString::number(took / 1e6, 'f', 1) << " ms, "
            << QString::number(took / 1e6 / std::max(ticks, 1), 'f', 2) << " ms a tick\n";
    }
    return 0;
}
