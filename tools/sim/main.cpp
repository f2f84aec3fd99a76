// orvane-sim world --days N [--seed S] [--load FILE] [--save FILE] [--check] [--news] [--no-times]
//                  [--train PLAN[,PLAN...]]
// orvane-sim matches --count N [--seed S | --real-clock]
// orvane-sim booked --save FILE [--seed S] [--load FILE] [--days N] [--level L]
//
// Starts a new game with a plain manager and gym on the default world, or loads a saved game,
// and runs N days of the game's own day flow without a screen. It prints the figures of each game
// year and writes the world to FILE at the end. With --seed the test clock makes every run with
// the same arguments the same (the lines with timings aside; --no-times leaves them out). With
// --check the world invariants are checked after every day, and the first fault stops the run.
// With --news the news of every day is printed as the Next Day screen shows it. With --train the
// gym takes a fighter for each plan (1 is the heavy bag) and the yearly report tells what training
// did to him (TrainingReport).
//
// The matches mode draws N pairs from the rosters of the new game's world, each man against
// another of his organisation, fights them as the day flow does, and prints how they ended, the
// rounds and steps of a match and the matches per second; --seed makes the draws repeat, the
// real clock is the game's own.
//
// The booked mode makes a game in which a man of the user fights tonight, and saves it to FILE.
// All modes must run where the game runs, beside the Resources tree.

#include "BookedNight.h"
#include "MatchesRun.h"
#include "TrainingReport.h"
#include "WorldReport.h"

#include "fighters/Random.h"
#include "persistence/DefaultWorld.h"
#include "persistence/NameFiles.h"
#include "persistence/SaveFile.h"
#include "world/DayFlow.h"
#include "world/GameManager.h"
#include "world/WorldInvariants.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

#include <optional>

namespace {

struct Options {
    int days = 0;
    bool seeded = false;
    quint32 seed = 0;
    QString load;
    QString save;
    bool check = false;
    bool news = false;
    bool times = true;
    QList<int> trainingPlans;
};

const char *usage = "usage: orvane-sim world --days N [--seed S] [--load FILE] [--save FILE] [--check] [--news] "
                    "[--no-times] [--train PLAN[,PLAN...]]\n";

void printUsage()
{
    QTextStream(stderr) << usage << MatchesRun::usage << BookedNight::usage;
}

bool parse(const QStringList &args, Options &options)
{
    if (args.value(1) != QLatin1String("world"))
        return false;
    bool daysGiven = false;
    for (int i = 2; i < args.size(); ++i) {
        const QString &arg = args[i];
        const bool hasValue = i + 1 < args.size();
        bool ok = true;
        if (arg == "--days" && hasValue) {
            options.days = args[++i].toInt(&ok);
            ok = ok && options.days >= 0;
            daysGiven = true;
        } else if (arg == "--seed" && hasValue) {
            options.seed = args[++i].toUInt(&ok);
            options.seeded = true;
        } else if (arg == "--load" && hasValue) {
            options.load = args[++i];
        } else if (arg == "--save" && hasValue) {
            options.save = args[++i];
        } else if (arg == "--check") {
            options.check = true;
        } else if (arg == "--news") {
            options.news = true;
        } else if (arg == "--train" && hasValue) {
            ok = TrainingReport::parsePlans(args[++i], options.trainingPlans);
        } else if (arg == "--no-times") {
            options.times = false;
        } else {
            ok = false;
        }
        if (!ok)
            return false;
    }
    return daysGiven;
}

// A mode's options from the command line, the test clock set when they give a seed; none when
// they make no sense, and then the usage is printed.
template <typename ModeOptions>
std::optional<ModeOptions> readOptions(const QStringList &args, bool (*parse)(const QStringList &, ModeOptions &))
{
    ModeOptions options;
    if (!parse(args, options)) {
        printUsage();
        return std::nullopt;
    }
    if (options.seeded)
        Random::useTestClock(options.seed);
    return options;
}

// the default files lie beside the game, in ./Resources/Defaults
bool defaultWorldHere()
{
    if (QDir(QStringLiteral("Resources/Defaults")).exists())
        return true;
    QTextStream(stderr) << "no default world in ./Resources/Defaults: run the simulator from the "
                           "directory of the game (build/bin)\n";
    return false;
}

// a plain new game on the default world, or the saved game at `load`
bool openWorld(const QString &load)
{
    if (load.isEmpty()) {
        if (!defaultWorldHere())
            return false;
        DefaultWorld::startPlainGame();
        return true;
    }
    QString reason;
    if (SaveFile::loadFrom(load, &reason))
        return true;
    QTextStream(stderr) << "cannot load " << load << ": " << reason << '\n';
    return false;
}

int fightMatches(const QStringList &args)
{
    const std::optional<MatchesRun::Options> read = readOptions<MatchesRun::Options>(args, &MatchesRun::parse);
    if (!read)
        return 2;
    const MatchesRun::Options &options = *read;
    if (!openWorld({}))
        return 1;
    GameManager &world = GameManager::instance();
    MatchesRun run(world);
    if (!run.hasPairs()) {
        QTextStream(stderr) << "no roster of the default world holds two men\n";
        return 1;
    }
    QTextStream out(stdout);
    out << "Matches of the world's rosters: " << options.count
        << (options.seeded ? QString(", seed %1").arg(options.seed) : QString(", real clock")) << '\n';
    out << run.run(options.count).join('\n') << '\n';
    return 0;
}

// a save in which a man of the user fights tonight
int bookANight(const QStringList &args)
{
    const std::optional<BookedNight::Options> read = readOptions<BookedNight::Options>(args, &BookedNight::parse);
    if (!read)
        return 2;
    const BookedNight::Options &options = *read;
    if (!openWorld(options.load))
        return 1;
    GameManager &world = GameManager::instance();
    QStringList report;
    const bool booked = BookedNight(world).run(options, NameFiles::book(), report);
    QTextStream(stdout) << report.join('\n') << '\n';
    if (!booked)
        return 1;
    if (QString reason; !SaveFile::saveTo(options.save, &reason)) {
        QTextStream(stderr) << "cannot save " << options.save << ": " << reason << '\n';
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (app.arguments().value(1) == QLatin1String("matches"))
        return fightMatches(app.arguments());
    if (app.arguments().value(1) == QLatin1String("booked"))
        return bookANight(app.arguments());
    QTextStream out(stdout);
    const std::optional<Options> read = readOptions<Options>(app.arguments(), &parse);
    if (!read)
        return 2;
    const Options &options = *read;

    if (!openWorld(options.load))
        return 1;
    GameManager &world = GameManager::instance();
    out << "World of " << world.getCurrentDate().toString(Qt::TextDate) << ", " << options.days << " days"
        << (options.seeded ? QString(", seed %1").arg(options.seed) : QString()) << '\n';

    const FighterGenerator::NameBook names = NameFiles::book();
    TrainingReport training;
    if (!options.trainingPlans.isEmpty()) {
        QString reason;
        if (!training.start(world, names, options.trainingPlans, reason)) {
            QTextStream(stderr) << "cannot train: " << reason << '\n';
            return 1;
        }
    }
    WorldReport report(options.times);
    DayFlow::Print print = [&](const QString &paragraph) {
        if (options.news)
            out << paragraph << '\n';
        training.readNews(paragraph);
    };
    const auto finishYear = [&] {
        QStringList lines = report.finishYear(world);
        if (training.isActive())
            lines << training.finishYear(world);
        out << lines.join('\n') << '\n';
    };
    int result = 0;
    for (int day = 0; day < options.days; ++day) {
        const QDate today = world.getCurrentDate();
        if (report.hasDays() && today.year() != report.year())
            finishYear();
        DayFlow flow(world, names, print);
        training.beforeDay(world);
        QElapsedTimer clock;
        clock.start();
        flow.run();
        report.addDay(today, flow.tally(), clock.nsecsElapsed() / 1000, world);
        training.afterDay(world);
        if (options.check) {
            const QStringList faults = WorldInvariants::check(world.state());
            if (!faults.isEmpty()) {
                out << "The world broke on " << today.toString(Qt::TextDate) << ":\n" << faults.join('\n') << '\n';
                result = 1;
                break;
            }
        }
    }
    if (report.hasDays())
        finishYear();
    if (options.times)
        out << "  time: peak memory " << WorldReport::peakMemoryKb() / 1024 << " MB\n";

    if (!options.save.isEmpty()) {
        QString reason;
        if (!SaveFile::saveTo(options.save, &reason)) {
            QTextStream(stderr) << "cannot save " << options.save << ": " << reason << '\n';
            return 1;
        }
    }
    return result;
}
