#include "fighters/Entity_GymFighter.h"

#include "fighters/ResultEntry.h"

#include "fighters/Random.h"
#include "fighters/StreamForm.h"

#include <algorithm>

Entity_GymFighter::Entity_GymFighter()
    : learningSpeed(qrand() % 3)
    , reserveRoll(qrand() % 3)
    , marketability(qrand() % 5)
{
}

Entity_GymFighter::Entity_GymFighter(const Entity_Fighter &fighter)
    : Entity_GymFighter()
{
    static_cast<Entity_Fighter &>(*this) = fighter;
}

void Entity_GymFighter::setContract(const QString &organisation, int fightsLeft, int purse)
{
    Entity_Fighter::setContract(organisation, fightsLeft);
    fightPurse = purse;
}

void Entity_GymFighter::contract(QString &organisation, int &fightsLeft, int &purse) const
{
    organisation = text(Organisation);
    fightsLeft = number(ContractFightsLeft);
    purse = fightPurse;
}

int Entity_GymFighter::advanceAge(const QDate &date)
{
    int oldAge = 0;
    setNumber(Age, ageWithBirthday(date, &oldAge));
    return oldAge;
}

QList<int> Entity_GymFighter::extras() const
{
    return {learningSpeed, reserveRoll, marketability, fatigueBand, fatigue, reputationPoints, fightPurse};
}

QList<int> Entity_GymFighter::progress() const
{
    QList<int> list(skillProgress.cbegin(), skillProgress.cend());
    list.append(trainingPlan);
    return list;
}

void Entity_GymFighter::unpackExtras(const QList<int> &seven, const QList<int> &fortyNine, const QStringList &log)
{
    learningSpeed = seven[0];
    reserveRoll = seven[1];
    marketability = seven[2];
    fatigueBand = seven[3];
    fatigue = seven[4];
    reputationPoints = seven[5];
    fightPurse = seven[6];
    std::copy_n(fortyNine.cbegin(), SkillCount, skillProgress.begin());
    trainingPlan = fortyNine[SkillCount];
    trainingLog = log;
}

bool Entity_GymFighter::operator==(const Entity_GymFighter &other) const
{
    return Entity_Fighter::operator==(other) && extras() == other.extras() && progress() == other.progress() &&
           trainingLog == other.trainingLog;
}

QDataStream &operator<<(QDataStream &out, const Entity_GymFighter &fighter)
{
    out << static_cast<const Entity_Fighter &>(fighter);
    StreamForm::writeList(out, fighter.extras());
    StreamForm::writeList(out, fighter.progress());
    StreamForm::writeStringList(out, fighter.trainingLog);
    return out;
}

QDataStream &operator>>(QDataStream &in, Entity_GymFighter &fighter)
{
    Entity_Fighter base = fighter;
    QList<int> seven;
    QList<int> fortyNine;
    QStringList log;
    in >> base;
    StreamForm::readFixedList(in, seven, Entity_GymFighter::ExtraCount);
    StreamForm::readFixedList(in, fortyNine, Entity_GymFighter::ProgressCount);
    StreamForm::readStringList(in, log);
    if (in.status() == QDataStream::Ok) {
        static_cast<Entity_Fighter &>(fighter) = base;
        fighter.unpackExtras(seven, fortyNine, log);
    }
    return in;
}

// --- Skill levels, match experience and reputation --------------------------------------------

#include "fighters/MatchStatus.h"
#include "fighters/ReputationScale.h"
#include "fighters/SkillTable.h"

namespace {

// what a match adds to a skill's counter: a statistic of the engine, whole or halved
struct MatchLesson {
    SkillTable::Skill skill;
    MatchStatus::Position statistic;
    bool halved;
};

// strikes landed, blocks of head and body, dodges of head and body, counters of head and body
constexpr MatchLesson matchLessons[] = {
    {SkillTable::Jab, MatchStatus::JabLanded, false},
    {SkillTable::Hook, MatchStatus::HookLanded, false},
    {SkillTable::Cross, MatchStatus::CrossLanded, false},
    {SkillTable::Uppercut, MatchStatus::UppercutLanded, false},
    {SkillTable::LowKick, MatchStatus::LowKickLanded, false},
    {SkillTable::MidKick, MatchStatus::MidKickLanded, false},
    {SkillTable::HighKick, MatchStatus::HighKickLanded, false},
    {SkillTable::FrontKick, MatchStatus::FrontKickLanded, false},
    {SkillTable::Knee, MatchStatus::KneeLanded, false},
    {SkillTable::Elbow, MatchStatus::ElbowLanded, false},
    {SkillTable::DirtyBoxing, MatchStatus::DirtyBoxingLanded, false},
    {SkillTable::BodyPunch, MatchStatus::BodyPunchLanded, false},
    {SkillTable::HeadGuard, MatchStatus::HighBlocksMade, false},
    {SkillTable::BodyGuard, MatchStatus::BodyAndLegBlocksMade, false},
    {SkillTable::LegGuard, MatchStatus::BodyAndLegBlocksMade, true},
    {SkillTable::DazedGuard, MatchStatus::HighBlocksMade, true},
    {SkillTable::HeadMovement, MatchStatus::HighDodgesMade, false},
    {SkillTable::BodyMovement, MatchStatus::OtherDodgesMade, false},
    {SkillTable::Dodge, MatchStatus::HighDodgesMade, true},
    {SkillTable::Agility, MatchStatus::OtherDodgesMade, true},
    {SkillTable::Counter, MatchStatus::HighCountersMade, false},
    {SkillTable::DefensiveAwareness, MatchStatus::MidCountersMade, false},
    {SkillTable::Focus, MatchStatus::HighCountersMade, true},
    {SkillTable::Reaction, MatchStatus::MidCountersMade, true},
};

bool onSkillTable(int skill)
{
    return skill >= 0 && skill < SkillTable::Count;
}

} // namespace

QString Entity_GymFighter::levelUp(int skill)
{
    if (!onSkillTable(skill))
        return {};
    moveSkillAttributes(skill, 1);
    skillProgress[skill] = 0;
    return SkillTable::name(skill) + " level up!";
}

QString Entity_GymFighter::levelDown(int skill)
{
    if (!onSkillTable(skill))
        return {};
    moveSkillAttributes(skill, -1);
    skillProgress[skill] = 0;
    return SkillTable::name(skill) + " level down.";
}

bool Entity_GymFighter::checkLevelUp(int skill, QStringList &report)
{
    if (!onSkillTable(skill) || skillProgress[skill] < SkillTable::LevelUpAt)
        return false;
    report.append(levelUp(skill));
    return true;
}

bool Entity_GymFighter::checkLevelDown(int skill, QStringList &report)
{
    if (!onSkillTable(skill) || skillProgress[skill] > SkillTable::LevelDownAt)
        return false;
    report.append(levelDown(skill));
    return true;
}

void Entity_GymFighter::addMatchExperience(const QList<int> &statistics, const QString &result)
{
    int base = statistics.value(MatchStatus::KnockdownsScored) - statistics.value(MatchStatus::KnockdownsTaken);
    const ResultEntry entry(result);
    if (entry.isWin()) {
        base += 5;
        reputationPoints += 15 + 2 * marketability;
    } else if (entry.isLoss()) {
        base += 1;
        reputationPoints -= 2 * (5 - marketability) + 1;
    }
    reputationPoints = std::clamp(reputationPoints, 0, 1000);
    updateReputationLabel();

    for (const MatchLesson &lesson : matchLessons) {
        const int landed = statistics.value(lesson.statistic);
        skillProgress[lesson.skill] += (lesson.halved ? landed / 2 : landed) + base;
        // the match levels up in silence; a counter below the floor waits for training
        if (skillProgress[lesson.skill] >= SkillTable::LevelUpAt)
            levelUp(lesson.skill);
    }
    clampAttributes();
}

void Entity_GymFighter::updateReputationLabel()
{
    setText(Reputation, ReputationScale::label(ReputationScale::Fighter, reputationPoints));
}

// --- Daily training ---------------------------------------------------------------------------

#include "fighters/Entity_Gym.h"
#include "fighters/TrainingPlan.h"

namespace {

// the highest fatigue of each band: "Peak", "Great", "Normal", "Tired"; above them "Exhausted"
constexpr int fatigueBandTops[] = {20, 40, 60, 80};

// what a day of work and a day of rest do to fatigue
constexpr int DailyFatigue = 2;
constexpr int RestRecovery = 10;
// from here a day of work leaves him at the most
constexpr int FatigueCeilingFrom = 99;

// a fresh man rolls his gains below 20; every 10 points of fatigue take one off the range
constexpr int GainRange = 20;
constexpr int FatiguePerGainStep = 10;
// the roll of a skill that wears away, at any fatigue
constexpr int FadeRange = 11;

const QString LackOfFundsLog = "Rested today due to lack of funds.";
const QString LackOfFundsNews = " rested today due to lack of funds.";

// one roll of a plan; the generator is then seeded afresh as many times as the roll came up
int planRoll(int range)
{
    const int roll = Random::u(range);
    Random::stir(roll);
    return roll;
}

} // namespace

int Entity_GymFighter::fatigueBandOf(int fatigue)
{
    int band = 0;
    for (int top : fatigueBandTops) {
        if (fatigue > top)
            ++band;
    }
    return band;
}

void Entity_GymFighter::rest()
{
    fatigue = fatigue < RestRecovery ? 0 : fatigue - RestRecovery;
    fatigueBand = fatigueBandOf(fatigue);
}

void Entity_GymFighter::trimTrainingLog()
{
    if (trainingLog.size() > 1)
        trainingLog = QStringList{trainingLog.constLast()};
}

int Entity_GymFighter::dailyTraining(const QDate &date, const QList<int> &managerValues, const QList<int> &gymValues,
                                     QString &report)
{
    QString logLine = '\n' + date.toString(Qt::TextDate) + " - ";
    int cost = 0;
    if (!TrainingPlan::isTraining(trainingPlan)) {
        rest();
        logLine += TrainingPlan::logLine(TrainingPlan::Rest);
        report = fullName() + TrainingPlan::newsLine(TrainingPlan::Rest);
    } else {
        const int equipment = gymValues.value(TrainingPlan::equipmentSlot(trainingPlan));
        cost = TrainingPlan::CostPerLevel * equipment;
        // a gym in debt cannot pay even for bare equipment: 0 is above its money
        if (gymValues.value(Entity_Gym::Money) < cost) {
            rest();
            cost = 0;
            logLine += LackOfFundsLog;
            report = fullName() + LackOfFundsNews;
        } else {
            QStringList lines;
            trainOnPlan(trainingPlan, managerValues.value(TrainingPlan::managerSkillSlot(trainingPlan)), equipment,
                        lines);
            logLine += TrainingPlan::logLine(trainingPlan);
            report = fullName() + TrainingPlan::newsLine(trainingPlan);
            // the skills' lines go to the news only
            for (const QString &line : lines)
                report += '\n' + line;
        }
    }
    // every day tires him, rest and the day without money included
    fatigue = fatigue >= FatigueCeilingFrom ? MostFatigue : fatigue + DailyFatigue;
    fatigueBand = fatigueBandOf(fatigue);
    trainingLog.append(logLine);
    clampAttributes();
    return cost;
}

void Entity_GymFighter::trainOnPlan(int plan, int skill, int equipment, QStringList &lines)
{
    Random::seedFromClock();
    // a tired man gains less; the wearing away of the neglected skills does not tire
    const int gainRange = GainRange - fatigue / FatiguePerGainStep;
    const QList<int> mainSkills = TrainingPlan::mainSkills(plan);
    const QList<int> sideSkills = TrainingPlan::sideSkills(plan);
    const QList<int> fadingSkills = TrainingPlan::fadingSkills(plan);

    for (int s : mainSkills) {
        const int amount = learningSpeed + skill * planRoll(gainRange) / 10 + equipment;
        skillProgress[s] += amount;
        lines.append(SkillTable::name(s) + " +" + QString::number(amount));
    }
    for (int s : mainSkills)
        checkLevelUp(s, lines);

    // the side skills owe nothing to the equipment, and only a fine trainer's show in the news
    for (int s : sideSkills) {
        const int amount = learningSpeed + skill * planRoll(gainRange) / 20;
        skillProgress[s] += amount;
        if (skill > 7)
            lines.append(SkillTable::name(s) + " +" + QString::number(amount));
    }
    for (int s : sideSkills)
        checkLevelUp(s, lines);

    // good trainers and good equipment slow the wearing away; only a trainer of some skill sees it
    for (int s : fadingSkills) {
        const int loss = (11 - skill) * planRoll(FadeRange) / 20 + 6 - equipment / 2;
        skillProgress[s] -= loss;
        if (skill > 3)
            lines.append(SkillTable::name(s) + " -" + QString::number(loss));
    }
    for (int s : fadingSkills)
        checkLevelDown(s, lines);
}
