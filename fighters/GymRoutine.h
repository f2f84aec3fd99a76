#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"

#include <QDate>
#include <QList>
#include <QStringList>

class Entity_Gym;
class Entity_Manager;

// The days of the gym's men as a whole: the morning's training, paid out of the gym's money of
// the morning, the birthdays of the fighters and the students, and the monthly cut of the logs.
class GymRoutine
{
public:
    // Every fighter, in list order, trains on his plan; each day's cost comes off the gym at once.
    // All are measured against the money of the morning: none is refused because an earlier one
    // spent the last of it, and the gym may end the day below 0. One report for each fighter.
    static QStringList trainAll(QList<Entity_GymFighter> &fighters, Entity_Gym &gym, const Entity_Manager &manager,
                                const QDate &date);
    // On his birthday a fighter only gets a year older: under the user's roof a man neither grows
    // nor declines by age. A student grows a year's worth. The news gets a line for each.
    static void celebrateBirthdays(QList<Entity_GymFighter> &fighters, QList<Entity_Fighter> &students,
                                   const QDate &date, QStringList &news);
    // the same for one fighter, and for the students alone
    static void celebrateBirthday(Entity_GymFighter &fighter, const QDate &date, QStringList &news);
    static void celebrateStudentBirthdays(QList<Entity_Fighter> &students, const QDate &date, QStringList &news);
    // the second of the month: each fighter's log keeps its last line
    static void trimTrainingLogs(QList<Entity_GymFighter> &fighters);
};
