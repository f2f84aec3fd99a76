#include "MatchesRun.h"

#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/WholeMatch.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"

#include <QElapsedTimer>

#include <array>
#include <iterator>

namespace {

using Ending = WholeMatch::Ending;
using Verdict = JudgesCards::Verdict;

// the ways a match ends, in the order of the report; a decision is named by the judges' word
struct OutcomeRow {
    Ending ending;
    Verdict verdict;
    const char *label;
};

constexpr OutcomeRow outcomes[] = {
    {Ending::Knockout, Verdict::None, "KO"},         {Ending::TechnicalKnockout, Verdict::None, "TKO"},
    {Ending::Decision, Verdict::Unanimous, nullptr}, {Ending::Decision, Verdict::Majority, nullptr},
    {Ending::Decision, Verdict::Split, nullptr},
};
constexpr int OutcomeCount = int(std::size(outcomes));

int outcomeOf(const WholeMatch::Result &result)
{
    for (int row = 0; row < OutcomeCount; ++row)
        if (outcomes[row].ending == result.ending && outcomes[row].verdict == result.verdict)
            return row;
    return -1;
}

QString labelOf(const OutcomeRow &row)
{
    return row.label ? QString::fromLatin1(row.label) : JudgesCards::word(row.verdict);
}

} // namespace

const char *const MatchesRun::usage = "       orvane-sim matches --count N [--seed S | --real-clock]\n";

bool MatchesRun::parse(const QStringList &args, Options &options)
{
    if (args.value(1) != QLatin1String("matches"))
        return false;
    bool countGiven = false;
    bool realClock = false;
    for (int i = 2; i < args.size(); ++i) {
        const QString &arg = args[i];
        const bool hasValue = i + 1 < args.size();
        bool ok = true;
        if (arg == "--count" && hasValue) {
            options.count = args[++i].toInt(&ok);
            ok = ok && options.count > 0;
            countGiven = true;
        } else if (arg == "--seed" && hasValue) {
            options.seed = args[++i].toUInt(&ok);
            options.seeded = true;
        } else if (arg == "--real-clock") {
            realClock = true;
        } else {
            ok = false;
        }
        if (!ok)
            return false;
    }
    return countGiven && !(realClock && options.seeded);
}

MatchesRun::MatchesRun(const GameManager &world)
{
    for (const QString &name : world.organisationNames()) {
        Entity_Org::Roster roster;
        world.organisation(name).rosterCopy(roster);
        if (roster.size() < 2)
            continue;
        rosters.append(roster.values());
        men += int(roster.size());
    }
}

std::pair<const Entity_Fighter *, const Entity_Fighter *> MatchesRun::drawPair() const
{
    Random::seedFromClock();
    int man = qrand() % men;
    int roster = 0;
    while (man >= rosters[roster].size())
        man -= int(rosters[roster++].size());
    const QList<Entity_Fighter> &his = rosters[roster];
    int other = qrand() % int(his.size() - 1);
    if (other >= man)
        ++other;
    return {&his[man], &his[other]};
}

QStringList MatchesRun::run(int count) const
{
    std::array<int, OutcomeCount> tally{};
    qint64 rounds = 0;
    qint64 steps = 0;
    QElapsedTimer clock;
    clock.start();
    for (int match = 0; match < count; ++match) {
        const auto [one, two] = drawPair();
        CommentaryBuffer commentary;
        const WholeMatch::Result result = WholeMatch::fight(*one, *two, &commentary);
        const int outcome = outcomeOf(result);
        if (outcome >= 0)
            ++tally[outcome];
        rounds += result.rounds;
        steps += result.steps;
    }
    const double seconds = double(clock.nsecsElapsed()) / 1e9;

    QStringList lines;
    for (int row = 0; row < OutcomeCount; ++row)
        lines << QStringLiteral("  %1 %2 %3 %")
                     .arg(labelOf(outcomes[row]), -20)
                     .arg(tally[row], 8)
                     .arg(100.0 * tally[row] / count, 6, 'f', 2);
    lines << QStringLiteral("  mean rounds %1, steps per match %2")
                 .arg(double(rounds) / count, 0, 'f', 3)
                 .arg(double(steps) / count, 0, 'f', 1);
    lines << QStringLiteral("  time %1 s, %2 matches per second")
                 .arg(seconds, 0, 'f', 2)
                 .arg(seconds > 0 ? count / seconds : 0.0, 0, 'f', 0);
    return lines;
}
