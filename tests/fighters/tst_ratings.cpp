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
    // the weights of each row add up to 100 but in Positioning (95) and Counter (105); the fraction
    // is dropped (99 * 105 / 100 is 103), and a man fresh from the generator, not yet clamped,
    // truncates towards 0: -950 / 100 is -9, not -10
    void evenAttributes()
    {
        const int rows[][4] = {{0, 0, 0, 0}, {99, 99, 94, 103}, {-10, -10, -9, -10}};
        for (const auto &[value, usual, positioning, counter] : rows) {
            const Ratings::Values ratings = Ratings::of(manWithAll(value));
            for (int r = 0; r < Ratings::Count; ++r) {
                const int expected = r == ratingNamed("Positioning") ? positioning
                                     : r == ratingNamed("Counter")   ? counter
                                                                     : usual;
                QVERIFY2(ratings[r] == expected, qPrintable(Ratings::label(r) + ": " + QString::number(ratings[r])));
            }
        }
    }

    // Seen from the other side: an attribute alone at 100 shows in exactly the ratings that it feeds,
    // with its weight there; one general attribute of many ratings, one strike's.
    void whatEachAttributeFeeds_data()
    {
        QTest::addColumn<int>("attribute");
        QTest::addColumn<QString>("feeds");

        QTest::newRow("durability") << int(F::Durability)
                                    << "Toughness 45, Pressuring 30, Perseverance 25, Dirty Box Def. 20, Stamina 20, "
                                       "Strength 15, Body Guard 10, Leg Guard 10, Dazed Guard 10";
        // the strikes and defences that feed more than their own rating
        QTest::newRow("headMoveSpeed") << int(F::HeadMoveSpeed) << "Head Movement 35, Dodge 15";
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
