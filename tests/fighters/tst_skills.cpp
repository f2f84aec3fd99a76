#include "TableRows.h"

#include "fighters/Entity_GymFighter.h"
#include "fighters/SkillTable.h"

#include <QtTest>

using F = Entity_Fighter;

namespace {

Entity_GymFighter manWithAll(int value)
{
    Entity_GymFighter man;
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        man.setNumber(F::Number(a), value);
    return man;
}

struct Change {
    const char *name;
    int skill, counter, attributeMove;
    const char *line;
};
const Change changes[] = {
    {"200 levels up", SkillTable::AttackSpeed, 200, 1, "Attack Speed level up!"},
    {"beyond 200 is lost", SkillTable::Jab, 231, 1, "Jab level up!"},
    {"199 doesn't", SkillTable::Jab, 199, 0, ""},
    {"-150 levels down", SkillTable::LowKick, -150, -1, "Low Kick level down."},
    {"-149 doesn't", SkillTable::LowKick, -149, 0, ""},
};

} // namespace

class tst_Skills : public QObject
{
    Q_OBJECT

private slots:
    // the counter's limits and the lines of the day's report
    void levelChanges_data() { TableRows::add(changes); }
    void levelChanges()
    {
        const Change &row = TableRows::current(changes);
        const int skill = row.skill, counter = row.counter, attributeMove = row.attributeMove;
        const QStringList report = *row.line ? QStringList{row.line} : QStringList{};
        Entity_GymFighter man = manWithAll(50);
        man.skillProgress[skill] = counter;
        QStringList lines;
        QCOMPARE(man.checkLevelUp(skill, lines) || man.checkLevelDown(skill, lines), attributeMove != 0);
        QCOMPARE(lines, report);
        QCOMPARE(man.skillProgress[skill], attributeMove != 0 ? 0 : counter);
        const QList<F::Number> set = SkillTable::attributes(skill);
        for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
            QCOMPARE(man.number(F::Number(a)), 50 + (set.contains(F::Number(a)) ? attributeMove : 0));
    }

    void levelsStayInRange()
    {
        Entity_GymFighter top = manWithAll(99);
        top.skillProgress[SkillTable::Hook] = 250;
        QStringList lines;
        QVERIFY(top.checkLevelUp(SkillTable::Hook, lines));
        QCOMPARE(top.number(F::HookPower), 100); // the clamp belongs to the operation that called it
        top.clampAttributes();
        QCOMPARE(top.number(F::HookPower), 99);
        QCOMPARE(top.skillProgress[SkillTable::Hook], 0);

        Entity_GymFighter bottom = manWithAll(0);
        QCOMPARE(bottom.levelDown(SkillTable::Cross), QString("Cross level down."));
        bottom.clampAttributes();
        QCOMPARE(bottom.number(F::CrossPower), 0);
    }

    // Hook and Cross share punchPower: both levels raise it
    void sharedAttributesMoveTwice()
    {
        Entity_GymFighter man = manWithAll(40);
        man.levelUp(SkillTable::Hook);
        man.levelUp(SkillTable::Cross);
        QCOMPARE(man.number(F::PunchPower), 42);
        QCOMPARE(man.number(F::Torque), 41);
        QCOMPARE(man.number(F::Balance), 41);
        QCOMPARE(man.levelUp(48), QString());
    }
};

QTEST_GUILESS_MAIN(tst_Skills)
#include "tst_skills.moc"
