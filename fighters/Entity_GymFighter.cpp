#include "fighters/Entity_GymFighter.h"

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
    return Entity_Fighter::operator==(other) && extras() == other.extras() && progress() == other.progress()
        && trainingLog == other.trainingLog;
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
