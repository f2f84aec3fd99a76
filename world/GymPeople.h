#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

struct WorldState;

// The people of the user's gym: the students and the fighters, their records and looks as the
// screens show them, a student's promotion, and what a fight brings them. Training, and the
// ageing and retiring of the gym's men, join this room.
//
// Lookups by position give the defaults of an empty record when the position holds nobody:
// 11 (pack: 12) times "N/A", 94 (pack: 95) zeros, 7 zeros, 49 zeros, 1 January 2000.
class GymPeople
{
public:
    explicit GymPeople(WorldState &world);

    QStringList fighterNames() const;
    QStringList studentNames() const;
    QList<int> fighterIds() const;
    QStringList fighterStrings(int index) const;
    QList<int> fighterInts(int index) const;
    QList<int> fighterExtras(int index) const;
    // the 48 counters and the plan, and the month's training log
    void fighterTraining(int index, QList<int> &progress, QStringList &log) const;
    void fighterPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                     Entity_Fighter::History &history, QStringList &titles) const;
    void studentPack(int index, QStringList &strings, QList<int> &integers, QDate &birth,
                     Entity_Fighter::History &history, QStringList &titles) const;
    // a copy; an empty record for an id that the gym doesn't hold
    Entity_GymFighter fighterById(int id) const;
    int fighterIdAt(int index) const;
    void setFighterBio(int index, const QString &text);
    // shorts, trim, hair, and body, head, face; "Red", "Black", "Brown" and 1, 1, 1 for nobody.
    // A number up to 9 is a position in the fighter list, any other an id.
    void fighterLook(int indexOrId, QStringList &colours, QList<int> &images) const;
    void studentLook(int index, QStringList &colours, QList<int> &images) const;

    // the student becomes a gym fighter with a new id and an empty booking; false without a
    // free fighter place or without that student
    bool promoteStudent(int index);
    void addUserRankingScore(int id, int delta);
    // a result entry into a gym fighter's career, with the manager's record and titles
    void recordGymResult(int id, const QString &entry, const QString &matchType);
    // after a fight night: the lesson of the match, the purse and prestige of the gym and the
    // manager's reputation; true when the manager's label rose, which is his level up
    bool applyMatchOutcome(const QList<int> &statistics, int id, const QString &entry);

    // the morning's training of every fighter, paid from the gym's money of the morning; one
    // report for each fighter, in list order
    QStringList trainAllFighters();
    // the fighter of that id works on `plan` from the next day on; an unknown id changes nothing
    void setTrainingPlan(int fighterId, int plan);
    // the second of the month: every fighter's log keeps its last line
    void trimTrainingLogs();
    // The birthdays of the gym's fighters and students tonight, with a news line for each; an old
    // fighter may retire by age, unless his organisation holds a show today. Students never do.
    // The fighters retired are counted.
    int ageUserFighters(QStringList &news);

    // The gym fighter at that position as a plain fighter, in the form of an export file: what
    // only the gym's own men have stays behind. Without him nothing is written.
    void exportFighter(QDataStream &out, int index) const;
    // The user sends the man at that position into retirement: false, and nothing changes, when
    // his organisation holds a show today. With nobody at that position there is nothing to do.
    bool retireFighter(int index);

private:
    bool isFighterIndex(int index) const;
    bool isStudentIndex(int index) const;
    // he leaves the gym: his record comes off the manager's running totals, his booking goes
    void removeGymFighter(qsizetype index);
    // his organisation lets him go, unless it holds a show today; a free agent, or a contract that
    // names no organisation, has nothing to ask
    bool releasedForRetirement(const Entity_GymFighter &man);

    WorldState &world;
};
