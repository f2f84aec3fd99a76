// orvane-defaults: makes Resources/Defaults from the readable sources in data/.
//   orvane-defaults --data <data folder> --out <Resources/Defaults folder> [--summary]
// The same sources give the same bytes: all chance runs under the test clock with the seed of
// data/world.json.

#include "DefaultsOutput.h"
#include "SourceData.h"
#include "WorldBuilder.h"

#include "fighters/Random.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace {

// the default files use ids up to this one; the first man of a running game gets the next
constexpr int HighestDefaultId = 1058;

int fail(const QStringList &faults)
{
    QTextStream err(stderr);
    for (const QString &fault : faults)
        err << "orvane-defaults: " << fault << "\n";
    return 1;
}

void printSummary(const WorldBuilder &world)
{
    QTextStream out(stdout);
    for (const Entity_Org &org : world.organisations) {
        Entity_Org::Roster roster;
        org.rosterCopy(roster);
        Entity_Org::Titles titles;
        org.titlesCopy(titles);
        QList<Entity_Event> calendar;
        org.events(calendar);
        int low = 100;
        int high = 0;
        for (const Entity_Fighter &man : std::as_const(roster)) {
            low = std::min(low, WorldBuilder::skillLevel(man));
            high = std::max(high, WorldBuilder::skillLevel(man));
        }
        out << org.name() << " (" << org.prestige() << "): " << roster.size() << " men, skill " << low << "-" << high
            << ", ranking " << roster.firstKey() << "-" << roster.lastKey() << ", " << calendar.size() << " nights";
        for (auto it = titles.cbegin(); it != titles.cend(); ++it)
            out << "; " << it.key() << ": " << it.value();
        out << "\n";
    }
    for (int n = 0; n < world.freeAgentLists.size(); ++n)
        out << "FreeAgent" << n + 1 << ": " << world.freeAgentLists[n].size() << " men\n";
    for (int n = 0; n < world.amateurLists.size(); ++n)
        out << "Amateur" << n + 1 << ": " << world.amateurLists[n].size() << " boys\n";
    out << "highest id: " << world.highestId() << "\n";
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption({"data", "The folder of the readable sources.", "folder"});
    parser.addOption({"out", "The folder that takes the default files.", "folder"});
    parser.addOption({"summary", "Tell what was made."});
    parser.process(app);
    if (!parser.isSet("data") || !parser.isSet("out"))
        return fail({"--data and --out are needed"});

    SourceData source;
    if (!source.load(parser.value("data")))
        return fail(source.faults());

    Random::useTestClock(source.world.seed);
    WorldBuilder world(source);
    QStringList faults;
    if (!world.build(faults))
        return fail(faults);
    if (world.highestId() > HighestDefaultId)
        return fail(
            {QString("the default men need ids up to %1, more than %2").arg(world.highestId()).arg(HighestDefaultId)});
    if (!DefaultsOutput::write(parser.value("out"), source, world, faults))
        return fail(faults);
    if (parser.isSet("summary"))
        printSummary(world);
    return 0;
}
