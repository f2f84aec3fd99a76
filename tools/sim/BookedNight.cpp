#include "BookedNight.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/FighterGenerator.h"
#include "world/DayFlow.h"
#include "world/GameManager.h"

const char *const BookedNight::usage =
    "       orvane-sim booked --save FILE [--seed S] [--load FILE] [--days N] [--level L]\n";

namespace {

// the manager's 18 skills: some work in the corner and a little charisma
constexpr int Motivating = 6;
constexpr int Cornering = 7;
constexpr int Charisma = 2;
// one win short of his first new label
constexpr int ReputationBeforeTheNight = 95;
// the man's contract
constexpr int FightsLeft = 4;
constexpr int Purse = 1500;

} // namespace

bool BookedNight::parse(const QStringList &args, Options &options)
{
    if (args.value(1) != QLatin1String("booked"))
        return false;
    for (int i = 2; i < args.size(); ++i) {
        const QString &arg = args[i];
        const bool hasValue = i + 1 < args.size();
        bool ok = hasValue;
        if (arg == "--seed" && hasValue) {
            options.seed = args[++i].toUInt(&ok);
            options.seeded = true;
        } else if (arg == "--load" && hasValue) {
            options.load = args[++i];
        } else if (arg == "--save" && hasValue) {
            options.save = args[++i];
        } else if (arg == "--level" && hasValue) {
            options.level = args[++i].toInt(&ok);
            ok = ok && options.level >= 0 && options.level <= 99;
        } else if (arg == "--days" && hasValue) {
            options.maxDays = args[++i].toInt(&ok);
        } else {
            ok = false;
        }
        if (!ok)
            return false;
    }
    return !options.save.isEmpty();
}

bool BookedNight::run(const Options &options, const FighterGenerator::NameBook &names, QStringList &report)
{
    const int id = firstFighter(names, report);
    if (!id) {
        report << "the gym has no fighter and no student to promote";
        return false;
    }
    const QString organisation = organisationWithTheNextNight();
    prepare(id, organisation, options.level);
    const QString name = world.fighterById(id).fullName();
    report << name + " signs with " + organisation + " for " + QString::number(FightsLeft) + " fights";
    for (int day = 0; day < options.maxDays; ++day) {
        if (!world.todaysUserEvents().isEmpty()) {
            report << name + " fights tonight, " + world.getCurrentDate().toString(Qt::TextDate) + ", on " +
                          world.todaysUserEvents().first().name();
            return true;
        }
        DayFlow(world, names, [](const QString &) {}).run();
    }
    report << "no night of " + name + " within " + QString::number(options.maxDays) + " days";
    return false;
}

int BookedNight::firstFighter(const FighterGenerator::NameBook &names, QStringList &report)
{
    if (!world.fighterIds().isEmpty())
        return world.fighterIds().first();
    QString name;
    if (world.studentNames().isEmpty() && !world.generateFighter(names, name, true))
        return 0;
    report << world.studentNames().first() + " is promoted from the students";
    return world.promoteStudent(0) ? world.fighterIds().first() : 0;
}

QString BookedNight::organisationWithTheNextNight() const
{
    QString first;
    QDate soonest;
    for (const QString &name : world.organisationNames()) {
        QList<Entity_Event> calendar;
        world.organisation(name).events(calendar);
        for (const Entity_Event &event : std::as_const(calendar)) {
            if (event.date() > world.getCurrentDate() && (soonest.isNull() || event.date() < soonest)) {
                soonest = event.date();
                first = name;
            }
        }
    }
    return first;
}

void BookedNight::prepare(int fighterId, const QString &organisation, int level)
{
    // a tool may set what no screen of the game sets yet: the world value is changed whole
    WorldState saved = world.state();
    // a fresh student would be knocked out in his first minute: he has trained for years, and
    // stands with the average man of the organisation in every attribute, or at the level asked
    Entity_Org::Roster roster;
    world.organisation(organisation).rosterCopy(roster);
    for (Entity_GymFighter &man : saved.fighters) {
        if (man.getId() != fighterId)
            continue;
        man.setContract(organisation, FightsLeft, Purse);
        // the attributes and, right after them, the two durabilities
        for (int field = Entity_Fighter::FirstAttribute; field <= Entity_Fighter::BodyDurability && !roster.isEmpty();
             ++field) {
            int sum = 0;
            for (const Entity_Fighter &other : std::as_const(roster))
                sum += other.number(Entity_Fighter::Number(field));
            man.setNumber(Entity_Fighter::Number(field), level >= 0 ? level : sum / int(roster.size()));
        }
    }
    QList<int> values = saved.manager.values();
    values[Entity_Manager::ReputationValue] = ReputationBeforeTheNight;
    values[Entity_Manager::Motivating] = Motivating;
    values[Entity_Manager::Cornering] = Cornering;
    values[Entity_Manager::Charisma] = Charisma;
    saved.manager.unpack(saved.manager.strings(), values, saved.manager.titleList());
    world.takeWorld(saved);
}
