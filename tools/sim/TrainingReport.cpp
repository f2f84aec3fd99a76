#include "TrainingReport.h"

#include "fighters/Entity_Gym.h"
#include "fighters/TrainingPlan.h"
#include "world/GameManager.h"

#include <algorithm>

namespace {

const QString LevelUp = " level up!";
const QString LevelDown = " level down.";
const QString WithoutMoney = " rested today due to lack of funds.";

// "Cross 2, Jab 1"
QString counted(const QMap<QString, int> &levels, int &total)
{
    QStringList parts;
    total = 0;
    for (auto it = levels.cbegin(); it != levels.cend(); ++it) {
        parts << QString("%1 %2").arg(it.key()).arg(it.value());
        total += it.value();
    }
    return parts.join(", ");
}

} // namespace

bool TrainingReport::parsePlans(const QString &text, QList<int> &plans)
{
    plans.clear();
    for (const QString &part : text.split(',')) {
        bool ok = false;
        const int plan = part.toInt(&ok);
        if (!ok || plan < TrainingPlan::Rest || plan > TrainingPlan::Last)
            return false;
        plans << plan;
    }
    return !plans.isEmpty();
}

bool TrainingReport::start(GameManager &world, const FighterGenerator::NameBook &names, const QList<int> &plans,
                           QString &reason)
{
    // room for as many fighters as there are plans
    QStringList strings;
    QList<int> values;
    QList<int> ledger;
    world.gymPack(strings, values, ledger);
    values[Entity_Gym::FighterSlots] = std::max(values[Entity_Gym::FighterSlots], int(plans.size()));
    world.setGym(strings, values, ledger);

    for (int i = 0; i < plans.size(); ++i) {
        if (i >= world.fighterIds().size()) {
            QString name;
            if (world.studentNames().isEmpty() && !world.generateFighter(names, name, true)) {
                reason = "the gym has no room for a student to turn professional";
                return false;
            }
            if (!world.promoteStudent(0)) {
                reason = "the gym could not turn its student professional";
                return false;
            }
        }
        const int id = world.fighterIdAt(i);
        world.setTrainingPlan(id, plans[i]);
        if (TrainingPlan::isTraining(plans[i]) && world.gymValues()[TrainingPlan::equipmentSlot(plans[i])] == 0)
            world.upgradeEquipment(plans[i] - TrainingPlan::First);
        Trainee trainee;
        trainee.id = id;
        trainee.name = world.fighterById(id).fullName();
        trainee.plan = plans[i];
        trainees << trainee;
    }
    return true;
}

void TrainingReport::readNews(const QString &paragraph)
{
    for (Trainee &trainee : trainees) {
        if (!paragraph.startsWith(trainee.name + ' '))
            continue;
        const QStringList lines = paragraph.split('\n');
        if (lines.first() == trainee.name + WithoutMoney)
            ++trainee.daysWithoutMoney;
        for (const QString &line : lines) {
            if (line.endsWith(LevelUp))
                ++trainee.levelsUp[line.chopped(LevelUp.size())];
            else if (line.endsWith(LevelDown))
                ++trainee.levelsDown[line.chopped(LevelDown.size())];
        }
    }
}

void TrainingReport::beforeDay(const GameManager &world)
{
    costsThisMonth = world.gymRecord().ledgerEntry(Entity_Gym::TrainingCosts);
}

void TrainingReport::afterDay(const GameManager &world)
{
    const Entity_Gym gym = world.gymRecord();
    // on the first of a month the day's costs went into the month that has just closed
    if (world.getCurrentDate().day() == 1)
        spentThisYear += gym.ledgerEntry(Entity_Gym::LastTrainingCosts) - costsThisMonth;
    else
        spentThisYear += gym.ledgerEntry(Entity_Gym::TrainingCosts) - costsThisMonth;
}

QStringList TrainingReport::finishYear(const GameManager &world)
{
    QStringList lines;
    for (Trainee &trainee : trainees) {
        const Entity_GymFighter man = world.fighterById(trainee.id);
        int ups = 0;
        int downs = 0;
        const QString up = counted(trainee.levelsUp, ups);
        const QString down = counted(trainee.levelsDown, downs);
        lines << QString("  training: %1 on %2, fatigue %3")
                     .arg(trainee.name, TrainingPlan::name(trainee.plan))
                     .arg(man.fatigue);
        lines << QString("    levels up %1%2").arg(ups).arg(up.isEmpty() ? QString() : " (" + up + ")");
        lines << QString("    levels down %1%2").arg(downs).arg(down.isEmpty() ? QString() : " (" + down + ")");
        lines << QString("    days rested for lack of funds %1").arg(trainee.daysWithoutMoney);
        trainee.levelsUp.clear();
        trainee.levelsDown.clear();
        trainee.daysWithoutMoney = 0;
    }
    lines << QString("  training: the gym spent $%1 on training; money at the end $%2")
                 .arg(spentThisYear)
                 .arg(world.gymRecord().money());
    spentThisYear = 0;
    return lines;
}
