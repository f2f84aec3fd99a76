#include "world/GymOffice.h"

#include "world/WorldState.h"

GymOffice::GymOffice(WorldState &world)
    : world(world)
{
}

Entity_Gym GymOffice::gymRecord() const
{
    return world.gym;
}

Entity_Manager GymOffice::managerRecord() const
{
    return world.manager;
}

void GymOffice::gymPack(QStringList &strings, QList<int> &values, QList<int> &ledger) const
{
    world.gym.pack(strings, values, ledger);
}

void GymOffice::managerPack(QStringList &strings, QList<int> &values, QStringList &titles) const
{
    world.manager.pack(strings, values, titles);
}

void GymOffice::setGym(const QStringList &strings, const QList<int> &values, const QList<int> &ledger)
{
    world.gym.unpack(strings, values, ledger);
}

void GymOffice::setManager(const QStringList &strings, const QList<int> &values, const QStringList &titles)
{
    world.manager.unpack(strings, values, titles);
}

QList<int> GymOffice::gymValues() const
{
    return world.gym.values();
}

QList<int> GymOffice::managerValues() const
{
    return world.manager.values();
}

void GymOffice::rollGymMonth()
{
    world.gym.rollMonth();
}

void GymOffice::collectStudentFees()
{
    const int fee = world.gym.studentFee();
    for (qsizetype i = 0; i < world.students.size(); ++i)
        world.gym.addIncome(fee, false);
}

bool GymOffice::upgradeEquipment(int equipment)
{
    return world.gym.upgradeEquipment(equipment);
}

bool GymOffice::upgradeGym()
{
    return world.gym.upgradeGym();
}

void GymOffice::setManagerSkills(const QList<int> &skills)
{
    world.manager.setSkills(skills);
}
