#pragma once

#include <QDataStream>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>

// The user's manager: twelve training skills, six abilities, a reputation, the record of all his
// fighters and the titles that they won under him.
class Entity_Manager
{
public:
    enum Text : int { FirstName, LastName, Region, Nationality, ManagerReputation, TextCount };

    // clang-format off
    enum Value : int {
        ReputationValue,
        // the training skills, in three of offence, defence, physical and mental work
        Punch, Kick, ClinchOffense,
        Movement, Guard, ClinchDefense,
        Power, Speed, Conditioning,
        Timing, Intelligence, Discipline,
        // the abilities
        Scouting, Motivating, Cornering,
        Negotiating, Charisma, Intuition,
        OverallWins,
        OverallLosses,
        ActiveWins,
        ActiveLosses,
        ValueCount
    };
    // clang-format on
    static constexpr int SkillCount = Intuition - Punch + 1; // the 18 that points are spent on

    // an unknown manager with no skills
    Entity_Manager();

    // the screens' name of skill n of the 18, from "Punch" to "Intuition"; empty off the list
    static QString skillLabel(int skill);
    // the block that skill stands in on the screens, from "Training - Offense" to "Abilities"
    static QString skillHeading(int skill);

    void pack(QStringList &strings, QList<int> &values, QStringList &titles) const;
    // missing entries count as empty
    void unpack(const QStringList &strings, const QList<int> &values, const QStringList &titles);
    QStringList strings() const;
    QList<int> values() const;
    QStringList titleList() const { return titles; }

    QString text(Text field) const { return texts[field]; }
    int value(Value field) const { return numbers[field]; }
    QString fullName() const { return texts[FirstName] + " " + texts[LastName]; }

    // the 18 skills and abilities of a level up, in their order
    void setSkills(const QList<int> &skills);
    void addWin();
    void addLoss();
    // a fighter leaves the gym and his career record comes off the running totals
    void removeFromActiveRecord(int wins, int losses);

    // the reign of a title that one of his fighters won; a title with its year has no reign
    void addTitle(const QDate &date, const QString &title);
    // a world title's reign ends; tournament titles have none to end
    void closeTitle(const QDate &date, const QString &title);

    // a win raises his reputation, a title fight more; true when that reached a new label,
    // which is the manager's level up
    bool gainReputation(bool bigWin);

    // what his Intuition lets him read of his own men
    QString learningSpeedText(int value) const;
    QString fatigueText(int band) const;

    bool operator==(const Entity_Manager &other) const;

private:
    std::array<QString, TextCount> texts;
    std::array<int, ValueCount> numbers{};
    QStringList titles;
};

QDataStream &operator<<(QDataStream &out, const Entity_Manager &manager);
QDataStream &operator>>(QDataStream &in, Entity_Manager &manager);
