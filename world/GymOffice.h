#pragma once

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"

#include <QList>
#include <QStringList>

struct WorldState;

// The user's gym and manager: their records, the money and the month's books, the equipment, and
// the manager's skills.
class GymOffice
{
public:
    explicit GymOffice(WorldState &world);

    Entity_Gym gymRecord() const;
    Entity_Manager managerRecord() const;
    void gymPack(QStringList &strings, QList<int> &values, QList<int> &ledger) const;
    void managerPack(QStringList &strings, QList<int> &values, QStringList &titles) const;
    void setGym(const QStringList &strings, const QList<int> &values, const QList<int> &ledger);
    void setManager(const QStringList &strings, const QList<int> &values, const QStringList &titles);
    QList<int> gymValues() const;
    QList<int> managerValues() const;
    // the first of the month: this month's books become last month's ...
    void rollGymMonth();
    // ... and every student pays his fee
    void collectStudentFees();
    bool upgradeEquipment(int equipment);
    bool upgradeGym();
    // the 18 skills and abilities after a level up
    void setManagerSkills(const QList<int> &skills);

private:
    WorldState &world;
};
