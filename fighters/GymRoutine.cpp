#include "fighters/GymRoutine.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"

QStringList GymRoutine::trainAll(QList<Entity_GymFighter> &fighters, Entity_Gym &gym, const Entity_Manager &manager,
                                 const QDate &date)
{
    const QList<int> managerValues = manager.values();
    const QList<int> morning = gym.values();
    QStringList reports;
    for (Entity_GymFighter &fighter : fighters) {
        QString report;
        gym.chargeTraining(fighter.dailyTraining(date, managerValues, morning, report));
        reports.append(report);
    }
    return reports;
}

void GymRoutine::celebrateBirthdays(QList<Entity_GymFighter> &fighters, QList<Entity_Fighter> &students,
                                    const QDate &date, QStringList &news)
{
    for (Entity_GymFighter &fighter : fighters)
        celebrateBirthday(fighter, date, news);
    celebrateStudentBirthdays(students, date, news);
}

void GymRoutine::celebrateBirthday(Entity_GymFighter &fighter, const QDate &date, QStringList &news)
{
    if (fighter.advanceAge(date) != fighter.number(Entity_Fighter::Age))
        news.append(fighter.birthdayLine());
}

void GymRoutine::celebrateStudentBirthdays(QList<Entity_Fighter> &students, const QDate &date, QStringList &news)
{
    for (Entity_Fighter &student : students) {
        if (student.ageWithBirthday(date) == student.number(Entity_Fighter::Age))
            continue;
        student.developOneYear();
        news.append("Your student " + student.birthdayLine());
    }
}

void GymRoutine::trimTrainingLogs(QList<Entity_GymFighter> &fighters)
{
    for (Entity_GymFighter &fighter : fighters)
        fighter.trimTrainingLog();
}
