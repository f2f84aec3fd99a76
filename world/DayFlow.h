#pragma once

#include "fighters/FighterGenerator.h"

#include <QString>
#include <QStringList>

#include <functional>

class Entity_Event;
class GameManager;

// One day of the world, as the Next Day button runs it after the user's own fight nights: the
// gym trains, the world's events of today are fought, the date moves on, and everybody's news
// for the new day is worked out. The screen prints the news; the simulator runs the same day.
class DayFlow
{
public:
    // one paragraph of the news; an empty one is an empty line
    using Print = std::function<void(const QString &paragraph)>;
    // the day's progress, 1 to 6
    using Progress = std::function<void(int step)>;

    static constexpr int LastProgressStep = 6;

    // new students are drawn from the nations and names of the book
    DayFlow(GameManager &world, FighterGenerator::NameBook names, Print print, Progress progress = {});

    // runs the whole day in one go; it has no failures of its own
    void run();

    // what the day fought: events, matches and how they ended
    struct Tally {
        int events = 0;
        int matches = 0;
        int knockouts = 0;
        int technicalKnockouts = 0;
        int decisions = 0;
        int titleChanges = 0;
        // how the pools of men moved
        int signings = 0;
        int renewals = 0;
        int releases = 0;
        int retirements = 0;
        int newProfessionals = 0;
        int newTalent = 0;
    };
    const Tally &tally() const { return dayTally; }

private:
    void printLines(const QString &heading, const QStringList &lines);
    void setProgress(int step);

    void trainAllFighters();
    void welcomeANewStudent();
    void fightTodaysEvents();
    void fightEvent(Entity_Event event);
    void fighterNews();
    void contractNews();
    void removeExpiredOffers();
    void bookingNews();
    void makeOffers();
    void calendarJobs();
    void trimTrainingLogs();

    GameManager &world;
    FighterGenerator::NameBook names;
    Print print;
    Progress progress;
    Tally dayTally;
};
