#include "WorldReport.h"

#include "world/GameManager.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <climits>

namespace {

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
    }
    days.append({day, tally.matches, microseconds});
    yearTally.events += tally.events;
    yearTally.matches += tally.matches;
    yearTally.knockouts += tally.knockouts;
    yearTally.technicalKnockouts += tally.technicalKnockouts;
    yearTally.decisions += tally.decisions;
    yearTally.titleChanges += tally.titleChanges;
    for (const QString &name : world.organisationNames()) {
        const int size = world.organisation(name).rosterSize();
        smallestRoster = std::min(smallestRoster, size);
        largestRoster = std::max(largestRoster, size);
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
    lines << QString("  rosters: smallest %1, largest %2").arg(smallestRoster).arg(largestRoster);
    lines << QString("  at the end: %1 free agents, %2 amateurs").arg(freeAgents).arg(amateurs);
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
    return lines;
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
