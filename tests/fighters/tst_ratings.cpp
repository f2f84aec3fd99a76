#include "fighters/Entity_Fighter.h"
#include "fighters/Ratings.h"

#include <QtTest>

using F = Entity_Fighter;

namespace {

Entity_Fighter manWithAll(int value)
{
    Entity_Fighter man;
    for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
        man.setNumber(F::Number(a), value);
    return man;
}

int ratingNamed(const QString &label)
{
    for (int r = 0; r < Ratings::Count; ++r) {
        if (Ratings::label(r) == label)
            return r;
    }
    return -1;
}

using Feeds = QMap<int, int>; // rating to weight

// "Toughness 45, Pressuring 30": the ratings that one attribute feeds, with their weights
Feeds feedsFrom(const QString &text)
{
    Feeds feeds;
    for (const QString &part : text.split(", ", Qt::SkipEmptyParts)) {
        const qsizetype blank = part.lastIndexOf(' ');
        feeds.insert(ratingNamed(part.left(blank)), part.mid(blank + 1).toInt());
    }
    return feeds;
}

} // namespace

class tst_Ratings : public QObject
{
    Q_OBJECT

private slots:
    // the weights of each row add up to 100 but in Positioning (95) and Counter (105)
    void evenAttributes_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("usual");
        QTest::addColumn<int>("positioning");
        QTest::addColumn<int>("counter");

        QTest::newRow("all 0 shows 0") << 0 << 0 << 0 << 0;
        QTest::newRow("all 99 shows 99, Positioning 94, Counter 103") << 99 << 99 << 94 << 103;
        QTest::newRow("all 50") << 50 << 50 << 47 << 52;
        // a man fresh from the generator, not yet clamped: -950 / 100 is -9, not -10
        QTest::newRow("all -10 truncates towards 0") << -10 << -10 << -9 << -10;
        QTest::newRow("all 120, unclamped") << 120 << 120 << 114 << 126;
    }

    void evenAttributes()
    {
        QFETCH(int, value);
        QFETCH(int, usual);
        QFETCH(int, positioning);
        QFETCH(int, counter);
        const Ratings::Values ratings = Ratings::of(manWithAll(value));
        for (int r = 0; r < Ratings::Count; ++r) {
            const int expected = r == ratingNamed("Positioning") ? positioning
                                 : r == ratingNamed("Counter")   ? counter
                                                                 : usual;
            QVERIFY2(ratings[r] == expected, qPrintable(Ratings::label(r) + ": " + QString::number(ratings[r])));
        }
    }

    void fractionIsDropped()
    {
        Entity_Fighter man = manWithAll(0);
        man.setNumber(F::JabSpeed, 50);
        man.setNumber(F::JabTechnique, 51);
        man.setNumber(F::JabPower, 52);
        man.setNumber(F::HandSpeed, 53);
        // (1250 + 1275 + 1300 + 1325) / 100 = 51.5
        QCOMPARE(Ratings::of(man)[0], 51);
    }

    // Seen from the other side: each attribute, alone at 100, shows in exactly the ratings that
    // it feeds, with its weight there. The general attributes list their ratings on their own.
    void whatEachAttributeFeeds_data()
    {
        QTest::addColumn<int>("attribute");
        QTest::addColumn<QString>("feeds");

        QTest::newRow("clinchControl") << int(F::ClinchControl) << "Clinch Positioning 40";
        QTest::newRow("clinchEscape") << int(F::ClinchEscape) << "Clinch Positioning 40";
        QTest::newRow("resilience") << int(F::Resilience) << "Recovery 35, Strength 20, Stamina 20, Toughness 10";
        QTest::newRow("endurance") << int(F::Endurance) << "Stamina 30, Cardio 25";
        QTest::newRow("conditioning") << int(F::Conditioning) << "Stamina 30, Pressuring 25, Recovery 25, Toughness 10";
        QTest::newRow("lungCapacity") << int(F::LungCapacity) << "Cardio 40";
        QTest::newRow("durability") << int(F::Durability)
                                    << "Toughness 45, Pressuring 30, Perseverance 25, Dirty Box Def. 20, Stamina 20, "
                                       "Strength 15, Body Guard 10, Leg Guard 10, Dazed Guard 10";
        QTest::newRow("balance") << int(F::Balance)
                                 << "Clinch Footwork 30, Footwork 20, Positioning 20, Clinch Grappling 15";
        QTest::newRow("footSpeed") << int(F::FootSpeed) << "Footwork 35, Clinch Footwork 30, Movement 25";
        QTest::newRow("reflexes") << int(F::Reflexes)
                                  << "Reaction 40, Dodge 35, Counter 30, Explosiveness 25, Head Movement 20, "
                                     "Dirty Box Def. 5";
        QTest::newRow("burst") << int(F::Burst)
                               << "Explosiveness 30, Movement 25, Attack Speed 25, Recovery 25, Cardio 10, "
                                  "Combinations 10";
        QTest::newRow("handSpeed") << int(F::HandSpeed) << "Jab 25, Attack Speed 25";
        QTest::newRow("moveSpeed") << int(F::MoveSpeed) << "Movement 40, Footwork 25";
        QTest::newRow("evasionSpeed") << int(F::EvasionSpeed)
                                      << "Dodge 35, Head Movement 20, Body Movement 20, Movement 10";
        QTest::newRow("kickSpeed") << int(F::KickSpeed) << "High Kick 25, Attack Speed 25, Footwork 20";
        QTest::newRow("strength") << int(F::Strength) << "Strength 45, Clinch Grappling 25, Pressuring 20, Recovery 15";
        QTest::newRow("punchPower") << int(F::PunchPower) << "Attack Power 45, Cross 25, Uppercut 25";
        QTest::newRow("coordination") << int(F::Coordination)
                                      << "Reaction 25, Focus 25, Body Movement 20, Combinations 20, Accuracy 15, "
                                         "Agility 15";
        QTest::newRow("grappling") << int(F::Grappling)
                                   << "Clinch Grappling 45, Clinch Footwork 30, Clinch Positioning 10";
        QTest::newRow("torque") << int(F::Torque)
                                << "Hook 25, Low Kick 25, Mid Kick 25, Knee 25, Strength 20, Attack Power 20";
        QTest::newRow("snap") << int(F::Snap)
                              << "Dazed Guard 45, Explosiveness 25, Attack Speed 25, Focus 25, Attack Power 20, "
                                 "Clinch Positioning 10";
        QTest::newRow("fightIQ") << int(F::FightIQ)
                                 << "Off. Awareness 35, Def. Awareness 35, Strategizing 35, Positioning 25, "
                                    "Adaptability 25, Self Control 20";
        QTest::newRow("awareness") << int(F::Awareness)
                                   << "Off. Awareness 35, Def. Awareness 35, Accuracy 25, Counter 20, Positioning 15, "
                                      "Agility 15, Reaction 10";
        QTest::newRow("willpower") << int(F::Willpower)
                                   << "Toughness 35, Cardio 25, Adaptability 25, Perseverance 25, Self Control 20, "
                                      "Killer Instinct 15, Body Guard 10, Leg Guard 10, Dazed Guard 10";
        QTest::newRow("composure") << int(F::Composure) << "Adaptability 35, Strategizing 25, Def. Awareness 15";
        QTest::newRow("instinct") << int(F::Instinct)
                                  << "Elbow 25, Dirty Boxing 25, Clinch Grappling 15, Strategizing 15, "
                                     "Adaptability 15, Clinch Footwork 10";
        QTest::newRow("aggression") << int(F::Aggression) << "Killer Instinct 25, Perseverance 25";
        QTest::newRow("ferocity") << int(F::Ferocity) << "Killer Instinct 40, Body Punching 25, Combinations 25";
        QTest::newRow("anticipation") << int(F::Anticipation)
                                      << "Counter 45, Agility 35, Reaction 25, Dodge 15, Def. Awareness 15";
        QTest::newRow("precision") << int(F::Precision)
                                   << "Combinations 45, Accuracy 35, Agility 35, Front Kick 25, Explosiveness 20, "
                                      "Attack Power 15, Off. Awareness 15";
        QTest::newRow("concentration") << int(F::Concentration) << "Accuracy 25, Self Control 25, Focus 25";
        QTest::newRow("ringSense") << int(F::RingSense) << "Positioning 35, Off. Awareness 15, Counter 10";
        QTest::newRow("discipline") << int(F::Discipline)
                                    << "Self Control 35, Strategizing 25, Focus 25, Perseverance 25, "
                                       "Killer Instinct 20";
        // the strikes and defences that feed more than their own rating
        QTest::newRow("headMoveSpeed") << int(F::HeadMoveSpeed) << "Head Movement 35, Dodge 15";
        QTest::newRow("bodyMoveTechnique") << int(F::BodyMoveTechnique) << "Body Movement 25, Pressuring 25";
        QTest::newRow("punchGuardTechnique") << int(F::PunchGuardTechnique) << "Head Guard 25, Dazed Guard 35";
        QTest::newRow("clinchGuardTechnique") << int(F::ClinchGuardTechnique) << "Dirty Box Def. 45";
        QTest::newRow("bodyPunchPower") << int(F::BodyPunchPower) << "Body Punching 25";
    }

    void whatEachAttributeFeeds()
    {
        QFETCH(int, attribute);
        QFETCH(QString, feeds);
        const Feeds expected = feedsFrom(feeds);
        QVERIFY(!expected.contains(-1));
        Entity_Fighter man = manWithAll(0);
        man.setNumber(F::Number(attribute), 100);
        const Ratings::Values ratings = Ratings::of(man);
        for (int r = 0; r < Ratings::Count; ++r)
            QVERIFY2(ratings[r] == expected.value(r), qPrintable(Ratings::label(r)));
    }

    // the numbers beyond the attributes never count
    void recordAndLooksDontCount()
    {
        Entity_Fighter man = manWithAll(30);
        const Ratings::Values before = Ratings::of(man);
        for (F::Number n : {F::Age, F::Wins, F::Kos, F::HeadDurability, F::BodyDurability, F::RankingScore, F::Id})
            man.setNumber(n, 5000);
        QVERIFY(Ratings::of(man) == before);
    }
};

QTEST_GUILESS_MAIN(tst_Ratings)
#include "tst_ratings.moc"
