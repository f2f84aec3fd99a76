#pragma once

#include "world/DayFlow.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class GameManager;

// The figures of one game year of a run: what was fought, how it ended, the titles and the
// tournaments, the sizes and ages of the rosters and pools, how the men moved between them, and
// how long the days took.
class WorldReport
{
public:
    // `withTimes`: the lines with the day timings, which differ from run to run, are left out
    explicit WorldReport(bool withTimes);

    // the day that ended on `day`, its tally, its time, and the world after it
    void addDay(const QDate &day, const DayFlow::Tally &tally, qint64 microseconds, const GameManager &world);
    bool hasDays() const { return !days.isEmpty(); }
    int year() const { return currentYear; }
    // the year's lines; the report starts on a new year
    QStringList finishYear(const GameManager &world);

    // the peak memory of the process in kilobytes, 0 where the system doesn't tell
    static qint64 peakMemoryKb();
    // the finals of the year fought so far, "<title> to <holder>" each, or "<title> to nobody"
    static QStringList tournamentWinners(const GameManager &world, int year, int &finals);
    // the mean and the standard deviation of the roster men's ages
    static void rosterAges(const GameManager &world, double &mean, double &spread);

private:
    struct Day {
        QDate date;
        int matches = 0;
        qint64 microseconds = 0;
    };

    bool withTimes;
    int currentYear = 0;
    QList<Day> days;
    DayFlow::Tally yearTally;
    int smallestRoster = 0;
    int largestRoster = 0;
    int fewestFreeAgents = 0;
    int shortPoolDays = 0;
    // the nights that ended with a roster below the short roster, and the most of them in a row
    // for one organisation
    int shortRosterDays = 0;
    int longestShortRun = 0;
    QHash<QString, int> shortRun;
};
