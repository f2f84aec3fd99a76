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

} // namespace

class tst_Skills : public QObject
{
    Q_OBJECT

private slots:
    // the counter's limits and the lines of the day's report
    void levelChanges_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<int>("counter");
        QTest::addColumn<int>("attributeMove");
        QTest::addColumn<QStringList>("report");

        QTest::newRow("200 levels up") << int(SkillTable::AttackSpeed) << 200 << 1
                                       << QStringList{"Attack Speed level up!"};
        QTest::newRow("beyond 200 is lost") << int(SkillTable::Jab) << 231 << 1 << QStringList{"Jab level up!"};
        QTest::newRow("199 doesn't") << int(SkillTable::Jab) << 199 << 0 << QStringList{};
        QTest::newRow("-150 levels down")
            << int(SkillTable::LowKick) << -150 << -1 << QStringList{"Low Kick level down."};
        QTest::newRow("-149 doesn't") << int(SkillTable::LowKick) << -149 << 0 << QStringList{};
        QTest::newRow("between the limits") << int(SkillTable::Focus) << 0 << 0 << QStringList{};
    }

    void levelChanges()
    {
        QFETCH(int, skill);
        QFETCH(int, counter);
        QFETCH(int, attributeMove);
        QFETCH(QStringList, report);
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
