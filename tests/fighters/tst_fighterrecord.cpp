#include "TableRows.h"
#include "common/Streamed.h"

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/FighterTraits.h"
#include "fighters/Random.h"

#include <QtTest>

using F = Entity_Fighter;

namespace {

Entity_Fighter sampleFighter()
{
    Entity_Fighter fighter;
    for (int i = 0; i < F::TextCount; ++i)
        fighter.setText(F::Text(i), QString("text %1").arg(i));
    for (int i = 0; i < F::NumberCount; ++i)
        fighter.setNumber(F::Number(i), i * 7 - 50);
    fighter.setBirthDate(QDate(1993, 2, 28));
    fighter.addHistoryEntry(QDate(2011, 3, 5), "Win vs. A");
    fighter.addHistoryEntry(QDate(2011, 3, 5), "Loss vs. B");
    fighter.addHistoryEntry(QDate(2011, 1, 9), "Win vs. C");
    fighter.setTitleList({"G1 World Championship|2011", "Old belt"});
    return fighter;
}

struct Bio {
    const char *name, *traits;
    int seer;
    const char *bio;
};
const Bio bios[] = {
    {"no traits", "", 10, "New Fighter"},
    {"intuition 0 still breaks the line", "Ring General,Tough,Fast Defense", 0, "New Fighter\n"},
    {"attacker from 8", "Natural Attacker", 8, "New Fighter\nNatural Attacker\n"},
    {"attacker hidden at 7", "Natural Attacker", 7, "New Fighter\n"},
};

} // namespace

class tst_FighterRecord : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(7); }

    // The bytes of a version 12 stream, written out by hand: a save that differs by one byte from
    // what the game wrote before cannot be read back.
    void streamsTheOldBytes()
    {
        Entity_Fighter fighter;
        fighter.setText(F::FirstName, "Al");
        fighter.setText(F::LastName, "");
        fighter.setNumber(F::Age, 18);
        fighter.setNumber(F::RankingScore, -2);
        fighter.setBirthDate(QDate(2000, 1, 1));
        fighter.addHistoryEntry(QDate(2000, 1, 1), "A");
        fighter.addHistoryEntry(QDate(2000, 1, 1), "B");
        fighter.addHistoryEntry(QDate(2000, 1, 2), "C");
        fighter.setTitleList({"T"});

        // twelve strings: "Al" in UTF-16 big-endian, "" empty, not null, and ten null ones
        QByteArray expected = QByteArray::fromHex("0000000c"
                                                  "000000040041006c"
                                                  "00000000");
        for (int i = 2; i < F::TextCount; ++i)
            expected += QByteArray::fromHex("ffffffff");
        // 95 integers: age 18 first, the ranking score -2 last; the Julian day of 1 January 2000
        expected += QByteArray::fromHex("0000005f00000012") + QByteArray(93 * 4, '\0') +
                    QByteArray::fromHex("fffffffe00256859");
        // three history lines, the map walked from its end; of two lines of one date the newer
        // stands first in the map, so the older goes out first; the titles: "T"
        expected += QByteArray::fromHex("00000003"
                                        "0025685a000000020043"
                                        "00256859000000020041"
                                        "00256859000000020042"
                                        "00000001000000020054");
        QCOMPARE(streamed(fighter).toHex(), expected.toHex());
    }

    // a gym fighter's record is the plain one, then 7 and 49 integers and the log, and reads back whole
    void gymFighterCarriesItsSecondBlock()
    {
        Entity_GymFighter fighter(sampleFighter());
        fighter.setContract("Genesis", 3, 12000);
        fighter.skillProgress[47] = -149;
        fighter.trainingLog = {"Monday", "Tuesday"};
        const QByteArray bytes = streamed(fighter);
        QVERIFY(bytes.startsWith(streamed(fighter.fighter())));
        QCOMPARE(bytes.mid(streamed(fighter.fighter()).size(), 4), QByteArray::fromHex("00000007"));
        QVERIFY(readBack<Entity_GymFighter>(bytes) == fighter);
        QVERIFY(readBack<Entity_Fighter>(streamed(sampleFighter())) == sampleFighter());
    }

    void shortOrForeignStreamLeavesTheRecord_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = streamed(sampleFighter());
        QTest::newRow("empty") << QByteArray();
        QByteArray elevenStrings = whole;
        elevenStrings[3] = 11;
        QTest::newRow("eleven strings") << elevenStrings;
        QTest::newRow("four billion titles") << whole.left(whole.size() - 62) + QByteArray::fromHex("fffffff0");
    }

    void shortOrForeignStreamLeavesTheRecord()
    {
        QFETCH(QByteArray, bytes);
        QDataStream in(bytes);
        in.setVersion(StreamForm::version);
        Entity_Fighter fighter = sampleFighter();
        in >> fighter;
        QVERIFY(in.status() != QDataStream::Ok);
        QVERIFY(fighter == sampleFighter());
    }

    // only the 83 attributes are held in range
    void clampKeepsAttributesInRange()
    {
        Entity_Fighter fighter;
        const QList<std::pair<F::Number, int>> before{
            {F::JabSpeed, 130}, {F::Discipline, -4}, {F::Composure, 99}, {F::Age, 120}, {F::RankingScore, -30}};
        for (const auto &[number, value] : before)
            fighter.setNumber(number, value);
        fighter.clampAttributes();
        QList<int> after;
        for (const auto &[number, value] : before)
            after.append(fighter.number(number));
        QCOMPARE(after, QList<int>({99, 0, 99, 120, -30}));
    }

    // each trait moves exactly the attributes it names, by 1 to 7, up or down
    void traitMovesItsAttributes_data()
    {
        QTest::addColumn<QString>("trait");
        QTest::addColumn<QList<int>>("raised");
        QTest::addColumn<QList<int>>("lowered");
        QList<int> powers;
        for (int i = 0; i < F::StrikeCount; ++i)
            powers << F::strikePower(i);
        QTest::newRow("Hard Hitter") << "Hard Hitter" << powers << QList<int>{};
        QTest::newRow("Natural Defender is no mirror")
            << "Natural Defender" << QList<int>{F::Awareness, F::Instinct, F::Anticipation} << QList<int>{F::Ferocity};
    }

    void traitMovesItsAttributes()
    {
        QFETCH(QString, trait);
        QFETCH(QList<int>, raised);
        QFETCH(QList<int>, lowered);
        Entity_Fighter fighter;
        for (int i = F::FirstAttribute; i <= F::LastAttribute; ++i)
            fighter.setNumber(F::Number(i), 50);
        FighterTraits::apply(fighter, trait);
        for (int i = F::FirstAttribute; i <= F::LastAttribute; ++i) {
            const int change = fighter.number(F::Number(i)) - 50;
            if (raised.contains(i))
                QVERIFY2(change >= 1 && change <= 7, qPrintable(QString::number(i)));
            else if (lowered.contains(i))
                QVERIFY2(change <= -1 && change >= -7, qPrintable(QString::number(i)));
            else
                QCOMPARE(change, 0);
        }
    }

    void bioShowsWhatTheScoutCanSee_data() { TableRows::add(bios); }
    void bioShowsWhatTheScoutCanSee()
    {
        const Bio &row = TableRows::current(bios);
        QCOMPARE(FighterTraits::bio(QString(row.traits).split(',', Qt::SkipEmptyParts), row.seer), QString(row.bio));
    }

    void drawGivesOddCountsOfDifferentTraits()
    {
        QSet<int> counts;
        for (int i = 0; i < 500; ++i) {
            Random::seedFromClock(i);
            const QStringList traits = FighterTraits::draw();
            QVERIFY(traits.isEmpty() || traits.size() % 2 == 1);
            QCOMPARE(QSet<QString>(traits.cbegin(), traits.cend()).size(), traits.size());
            for (const QString &trait : traits)
                QVERIFY(FighterTraits::drawList().contains(trait));
            counts.insert(traits.size());
        }
        QCOMPARE(counts, (QSet<int>{0, 1, 3, 5, 7}));
    }
};

QTEST_GUILESS_MAIN(tst_FighterRecord)
#include "tst_fighterrecord.moc"
