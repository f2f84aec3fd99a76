#include "world/DayFlow.h"

#include "fighters/Random.h"
#include "world/Entity_Event.h"
#include "world/GameManager.h"
#include "world/WorldMatch.h"

#include <utility>

namespace {

// the day's first seed: the clock, plus a number of its own
constexpr int DaySeedOffset = 17;

} // namespace

DayFlow::DayFlow(GameManager &world, FighterGenerator::NameBook names, Print print, Progress progress)
    : world(world)
    , names(std::move(names))
    , print(std::move(print))
    , progress(std::move(progress))
{
}

void DayFlow::run()
{
    dayTally = Tally();
    Random::seedFromClock(DaySeedOffset);
    // the date of the day that is ending
    print("News for " + world.getCurrentDate().toString(Qt::TextDate));
    trainAllFighters();
    welcomeANewStudent();
    setProgress(1);
    print(QString());
    fightTodaysEvents();
    setProgress(2);
    // everything from here on sees the new day
    world.advanceDate();
    fighterNews();
    setProgress(3);
    contractNews();
    removeExpiredOffers();
    setProgress(4);
    bookingNews();
    setProgress(5);
    makeOffers();
    setProgress(6);
    calendarJobs();
}

void DayFlow::printLines(const QString &heading, const QStringList &lines)
{
    print(heading);
    for (const QString &line : lines)
        print(line);
    print(QString());
}

void DayFlow::setProgress(int step)
{
    if (progress)
        progress(step);
}

void DayFlow::trainAllFighters()
{
    const QStringList reports = world.trainAllFighters();
    print("Gym Info: ");
    for (const QString &report : reports)
        print(report);
}

void DayFlow::welcomeANewStudent()
{
    if (qrand() % 2 != 0)
        return;
    QString name;
    // the gym turns him away when every place for a student is taken
    if (world.generateFighter(names, name, true))
        print(name + " has begun to take lessons at your gym.");
}

void DayFlow::fightTodaysEvents()
{
    for (const Entity_Event &event : world.todaysWorldEvents())
        fightEvent(event);
}

void DayFlow::fightEvent(Entity_Event event)
{
    const QString eventName = event.name();
    const QString orgName = event.organisationName();
    QStringList lines;
    for (int index = 0; index < event.matchCount(); ++index) {
        const WorldMatch::Outcome outcome = WorldMatch::fight(world, event, event.matchAt(index));
        if (outcome.ending == WholeMatch::Ending::None)
            continue;
        ++dayTally.matches;
        dayTally.knockouts += outcome.ending == WholeMatch::Ending::Knockout;
        dayTally.technicalKnockouts += outcome.ending == WholeMatch::Ending::TechnicalKnockout;
        dayTally.decisions += outcome.ending == WholeMatch::Ending::Decision;
        dayTally.titleChanges += outcome.titleChanged;
        if (!outcome.advancingId) {
            lines << outcome.line + '\n';
            continue;
        }
        lines << outcome.line;
        lines << world.advanceTournamentWinner(outcome.advancingId, orgName) + '\n';
        // the winner's new place may fill a later slot of this very card
        for (const Entity_Event &reread : world.todaysWorldEvents())
            if (reread.name() == eventName) {
                event = reread;
                break;
            }
    }
    ++dayTally.events;
    printLines(eventName + " event results: ", lines);
    world.storeEventResults(lines, eventName, orgName);
    world.refreshReputations(orgName);
}

void DayFlow::fighterNews()
{
    QStringList news;
    const WorldRosters::Ageing moves = world.ageWorld(news, [this] {
        QString name;
        world.generateFighter(names, name, false);
        return name;
    });
    dayTally.retirements += moves.retirements + world.ageUserFighters(news);
    dayTally.newProfessionals += moves.newProfessionals;
    dayTally.newTalent += moves.newTalent;
    printLines("Fighter News: ", news);
}

void DayFlow::contractNews()
{
    QStringList signings;
    dayTally.signings += world.signFreeAgents(signings);
    QStringList contracts;
    const WorldContracts::Moves moves = world.processContracts(contracts);
    dayTally.renewals += moves.renewals;
    dayTally.releases += moves.releases;
    printLines("Free Agent News: ", signings);
    printLines("Contract News: ", contracts);
}

void DayFlow::removeExpiredOffers()
{
    world.removeExpiredOffers();
}

void DayFlow::bookingNews()
{
    printLines("Event booking news: ", world.bookEvents());
}

void DayFlow::makeOffers()
{
    world.makeOffers();
}

void DayFlow::calendarJobs()
{
    const QDate today = world.getCurrentDate();
    if (today.day() == 1) {
        world.rollGymMonth();
        world.collectStudentFees();
    }
    if (today.day() == 2)
        trimTrainingLogs();
    if (today.dayOfYear() == 1) {
        world.dropOldTitles();
        world.rollOverEvents();
    }
}

void DayFlow::trimTrainingLogs()
{
    world.trimTrainingLogs();
}
