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
    void theTableOfSkills()
    {
        QCOMPARE(int(SkillTable::Count), Entity_GymFighter::SkillCount);
        QSet<QString> names;
        for (int skill = 0; skill < SkillTable::Count; ++skill) {
            const QList<F::Number> set = SkillTable::attributes(skill);
            QVERIFY2(set.size() >= 4 && set.size() <= 6, qPrintable(SkillTable::name(skill)));
            QCOMPARE(QSet<F::Number>(set.cbegin(), set.cend()).size(), set.size());
            for (F::Number attribute : set)
                QVERIFY(attribute >= F::FirstAttribute && attribute <= F::LastAttribute);
            names.insert(SkillTable::name(skill));
            QCOMPARE(SkillTable::indexOf(SkillTable::name(skill)), skill);
        }
        QCOMPARE(names.size(), 48);
        QCOMPARE(SkillTable::indexOf("Body Punching"), -1); // the screens' label, not the training name
        QCOMPARE(SkillTable::label(SkillTable::BodyPunch), QString("Body Punching"));
        QCOMPARE(SkillTable::label(SkillTable::DirtyBoxingDefense), QString("Dirty Box Def."));
        QCOMPARE(SkillTable::name(SkillTable::OffensiveAwareness), QString("Offensive Awareness"));
        QCOMPARE(SkillTable::label(SkillTable::DefensiveAwareness), QString("Def. Awareness"));
        QVERIFY(SkillTable::attributes(48).isEmpty());
    }

    // rows that a typo would break: first, last, and those of four and five attributes
    void attributeSets_data()
    {
        QTest::addColumn<int>("skill");
        QTest::addColumn<QList<F::Number>>("set");

        QTest::newRow("Jab") << int(SkillTable::Jab) << QList<F::Number>{F::JabSpeed,  F::JabTechnique, F::JabPower,
                                                                         F::HandSpeed, F::Coordination, F::Precision};
        QTest::newRow("Footwork") << int(SkillTable::Footwork)
                                  << QList<F::Number>{F::FootSpeed, F::MoveSpeed, F::Balance, F::Coordination};
        QTest::newRow("Dazed Guard") << int(SkillTable::DazedGuard)
                                     << QList<F::Number>{F::Snap,       F::PunchGuardTechnique,
                                                         F::Durability, F::Willpower,
                                                         F::Balance,    F::FootSpeed};
        QTest::newRow("Killer Instinct") << int(SkillTable::KillerInstinct)
                                         << QList<F::Number>{F::Ferocity, F::Discipline, F::Aggression, F::Willpower,
                                                             F::PunchPower};
        QTest::newRow("Perseverance") << int(SkillTable::Perseverance)
                                      << QList<F::Number>{F::Aggression, F::Willpower,    F::Durability,
                                                          F::Discipline, F::Conditioning, F::Endurance};
    }

    void attributeSets()
    {
        QFETCH(int, skill);
        QFETCH(QList<F::Number>, set);
        QCOMPARE(SkillTable::attributes(skill), set);
    }

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
