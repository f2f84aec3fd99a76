#include "WorldReport.h"

#include "world/Entity_Match.h"
#include "world/GameManager.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

// the sizes below which the report counts a roster and the free agents as short
constexpr int ShortRoster = 30;
constexpr int ShortPool = 20;

QString share(int part, int whole)
{
    return QString::number(whole ? 100.0 * part / whole : 0.0, 'f', 1) + '%';
}

QString milliseconds(qint64 microseconds)
{
    return QString::number(microseconds / 1000.0, 'f', 1) + " ms";
}

} // namespace

WorldReport::WorldReport(bool withTimes)
    : withTimes(withTimes)
{
}

void WorldReport::addDay(const QDate &day, const DayFlow::Tally &tally, qint64 microseconds, const GameManager &world)
{
    if (days.isEmpty()) {
        currentYear = day.year();
        smallestRoster = INT_MAX;
        largestRoster = 0;
        fewestFreeAgents = INT_MAX;
    }
    days.append({day, tally.matches, microseconds});
    yearTally.events += tally.events;
    yearTally.matches += tally.matches;
    yearTally.knockouts += tally.knockouts;
    yearTally.technicalKnockouts += tally.technicalKnockouts;
    yearTally.decisions += tally.decisions;
    yearTally.titleChanges += tally.titleChanges;
    yearTally.signings += tally.signings;
    yearTally.renewals += tally.renewals;
    yearTally.releases += tally.releases;
    yearTally.retirements += tally.retirements;
    yearTally.newProfessionals += tally.newProfessionals;
    yearTally.newTalent += tally.newTalent;
    fewestFreeAgents = std::min(fewestFreeAgents, world.freeAgentCount());
    shortPoolDays += world.freeAgentCount() < ShortPool;
    for (const QString &name : world.organisationNames()) {
        const int size = world.organisation(name).rosterSize();
        smallestRoster = std::min(smallestRoster, size);
        largestRoster = std::max(largestRoster, size);
        int &run = shortRun[name];
        run = size < ShortRoster ? run + 1 : 0;
        shortRosterDays += run > 0;
        longestShortRun = std::max(longestShortRun, run);
    }
}

QStringList WorldReport::finishYear(const GameManager &world)
{
    const int freeAgents = world.freeAgentCount();
    const int amateurs = world.amateurCount();
    const DayFlow::Tally &t = yearTally;
    QStringList lines;
    lines << QString("Year %1: %2 days, %3 events, %4 matches")
                 .arg(currentYear)
                 .arg(days.size())
                 .arg(t.events)
                 .arg(t.matches);
    lines << QString("  endings: KO %1, TKO %2, decisions %3")
                 .arg(share(t.knockouts, t.matches), share(t.technicalKnockouts, t.matches),
                      share(t.decisions, t.matches));
    lines << QString("  title changes: %1").arg(t.titleChanges);
    int finals = 0;
    const QStringList winners = tournamentWinners(world, currentYear, finals);
    lines << QString("  tournaments: %1 finals, %2 winners").arg(finals).arg(winners.size());
    for (const QString &winner : winners)
        lines << "    " + winner;
    lines << QString("  rosters: smallest %1, largest %2; below %3 on %4 nights, at most %5 in a row")
                 .arg(smallestRoster)
                 .arg(largestRoster)
                 .arg(ShortRoster)
                 .arg(shortRosterDays)
                 .arg(longestShortRun);
    double meanAge = 0;
    double ageSpread = 0;
    rosterAges(world, meanAge, ageSpread);
    lines << QString("  roster ages: mean %1, spread %2")
                 .arg(QString::number(meanAge, 'f', 1), QString::number(ageSpread, 'f', 1));
    lines << QString("  contracts: %1 signings, %2 renewals, %3 releases")
                 .arg(t.signings)
                 .arg(t.renewals)
                 .arg(t.releases);
    lines << QString("  ageing: %1 retirements, %2 new professionals, %3 new talent")
                 .arg(t.retirements)
                 .arg(t.newProfessionals)
                 .arg(t.newTalent);
    lines << QString("  at the end: %1 free agents (fewest %2, below %3 on %4 nights), %5 amateurs")
                 .arg(freeAgents)
                 .arg(fewestFreeAgents)
                 .arg(ShortPool)
                 .arg(shortPoolDays)
                 .arg(amateurs);
    if (withTimes) {
        QList<Day> byTime = days;
        std::sort(byTime.begin(), byTime.end(),
                  [](const Day &a, const Day &b) { return a.microseconds < b.microseconds; });
        const Day &slowest = byTime.last();
        qint64 total = 0;
        for (const Day &day : days)
            total += day.microseconds;
        lines << QString("  time: slowest day %1 on %2 (%3 matches), median day %4, the year %5 s")
                     .arg(milliseconds(slowest.microseconds), slowest.date.toString(Qt::TextDate))
                     .arg(slowest.matches)
                     .arg(milliseconds(byTime[byTime.size() / 2].microseconds))
                     .arg(QString::number(total / 1e6, 'f', 2));
    }
    days.clear();
    yearTally = DayFlow::Tally();
    shortRosterDays = 0;
    longestShortRun = 0;
    shortPoolDays = 0;
    return lines;
}

QStringList WorldReport::tournamentWinners(const GameManager &world, int year, int &finals)
{
    QStringList winners;
    finals = 0;
    for (const QString &name : world.organisationNames()) {
        const Entity_Org organisation = world.organisation(name);
        QList<Entity_Event> nights;
        organisation.pastEvents(nights);
        organisation.events(nights);
        Entity_Org::Titles titles;
        organisation.titlesCopy(titles);
        for (const Entity_Event &night : std::as_const(nights)) {
            const QList<Entity_Match> card = night.matches();
            const bool finalsNight = std::any_of(card.cbegin(), card.cend(), [](const Entity_Match &match) {
                return match.matchType() == QLatin1String(Entity_Match::TournamentFinal);
            });
            if (!finalsNight || night.date().year() != year || night.results().isEmpty())
                continue;
            ++finals;
            const QString holder = titles.value(night.title());
            if (!holder.isEmpty() && holder != QLatin1String(Entity_Org::VacantTitle))
                winners << night.title() + " to " + holder;
        }
    }
    return winners;
}

void WorldReport::rosterAges(const GameManager &world, double &mean, double &spread)
{
    QList<int> ages;
    for (const QString &name : world.organisationNames()) {
        Entity_Org::Roster roster;
        world.organisation(name).rosterCopy(roster);
        for (const Entity_Fighter &man : std::as_const(roster))
            ages.append(man.number(Entity_Fighter::Age));
    }
    mean = 0;
    spread = 0;
    if (ages.isEmpty())
        return;
    for (int age : ages)
        mean += age;
    mean /= ages.size();
    for (int age : ages)
        spread += (age - mean) * (age - mean);
    spread = std::sqrt(spread / ages.size());
}

qint64 WorldReport::peakMemoryKb()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    return 0;
}
