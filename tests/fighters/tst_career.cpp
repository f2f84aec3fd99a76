#include "fighters/Entity_GymFighter.h"
#include "fighters/MatchStatus.h"
#include "fighters/Random.h"
#include "fighters/ReputationScale.h"
#include "fighters/SkillTable.h"

#include <QtTest>

using F = Entity_Fighter;

namespace {

const QString WorldTitle = "G-1 World Championship";
const QDate spring(2011, 4, 2);
const QDate summer(2011, 7, 9);
const QDate autumn(2011, 10, 1);

Entity_Fighter contracted(int fightsLeft, const QStringList &titles = {})
{
    Entity_Fighter man;
    man.setText(F::FirstName, "Al");
    man.setText(F::LastName, "Ames");
    man.setContract("G-1", fightsLeft);
    man.setTitleList(titles);
    return man;
}

// the entry of a fight as the result flows write it
QString entry(const QString &outcome, const QString &title = {})
{
    QString line = outcome + ": Bo Bell - KO(Hook) - Rd. 2(1:10) - G-1: G-1 Summer 2011";
    if (outcome.endsWith("by decision"))
        line = outcome.left(outcome.indexOf(' ')) + ": Bo Bell - Unanimous Decision - Rd. 3(3:00) - G-1: Night";
    return title.isEmpty() ? line : line + "|" + title;
}

QList<int> statistics(int landed, int knockdownsGiven = 0, int knockdownsTaken = 0)
{
    QList<int> stats(MatchStatus::Count, 0);
    for (int strike = 0; strike < MatchStatus::StrikeCount; ++strike)
        stats[MatchStatus::landed(strike)] = landed;
    for (int defence = 0; defence < MatchStatus::DefenceCount; ++defence)
        stats[MatchStatus::made(defence)] = landed;
    stats[MatchStatus::KnockdownsScored] = knockdownsGiven;
    stats[MatchStatus::KnockdownsTaken] = knockdownsTaken;
    return stats;
}

} // namespace

class tst_Career : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(11); }

    // a challenger wins the belt, defends it and loses it
    void aTitleReign()
    {
        Entity_Fighter man = contracted(10);
        QString won = entry("Win", WorldTitle);
        man.addResult(spring, won, "Championship Match");
        QVERIFY(won.endsWith("G-1 Summer 2011 - Won G-1 World Championship"));
        QVERIFY(!won.contains('|'));
        QCOMPARE(man.titleList(), QStringList{"G-1 World Championship - from Sat Apr 2 2011"});

        QString defended = entry("Win by decision", WorldTitle);
        man.addResult(summer, defended, "Championship Match");
        QVERIFY(defended.endsWith(" - Retained G-1 World Championship"));
        QCOMPARE(man.titleList().size(), 1);

        QString lost = entry("Loss", WorldTitle);
        man.addResult(autumn, lost, "Championship Match");
        QVERIFY(lost.endsWith(" - Lost G-1 World Championship"));
        QCOMPARE(man.titleList(), QStringList{"G-1 World Championship - from Sat Apr 2 2011 until Sat Oct 1 2011"});

        // the next win of that belt is a new reign
        QString again = entry("Win", WorldTitle);
        man.addResult(QDate(2012, 1, 7), again, "Championship Match");
        QVERIFY(again.endsWith(" - Won G-1 World Championship"));
        QCOMPARE(man.titleList().size(), 2);

        QCOMPARE(man.number(F::Wins), 3);
        QCOMPARE(man.number(F::Kos), 2);
        QCOMPARE(man.number(F::Losses), 1);
        QCOMPARE(man.number(F::ContractFightsLeft), 6);
        QCOMPARE(man.history().size(), 4);
        QCOMPARE(man.history().value(summer), defended);
    }

    // a loser without a reign on that title gets no title text
    void aChallengerWhoLosesGetsNoTitleText()
    {
        Entity_Fighter man = contracted(5);
        QString line = entry("Loss", WorldTitle);
        man.addResult(spring, line, "Championship Match");
        QCOMPARE(line, entry("Loss"));
        QVERIFY(man.titleList().isEmpty());
    }

    // a tournament title carries its year and no reign; each year makes its own entry
    void tournamentTitles()
    {
        Entity_Fighter man = contracted(5);
        QString first = entry("Win", "G-1 Grand Prix 2011");
        man.addResult(spring, first, "Tournament Final");
        QString second = entry("Win", "G-1 Grand Prix 2012");
        man.addResult(QDate(2012, 4, 7), second, "Tournament Final");
        QCOMPARE(man.titleList(), QStringList({"G-1 Grand Prix 2011", "G-1 Grand Prix 2012"}));
        QVERIFY(!man.titleList().join("").contains(" - from"));
    }

    // which fights come off the contract, and what its end does
    void contractCount_data()
    {
        QTest::addColumn<int>("fightsLeft");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QString>("matchType");
        QTest::addColumn<int>("fightsAfter");
        QTest::addColumn<QString>("organisation");

        QTest::newRow("a won single match") << 3 << "Win"
                                            << "Single Match" << 2 << "G-1";
        QTest::newRow("a won final") << 3 << "Win"
                                     << "Tournament Final" << 2 << "G-1";
        QTest::newRow("a won qualifier costs nothing") << 1 << "Win"
                                                       << "Tournament Qualifier" << 1 << "G-1";
        QTest::newRow("a won semifinal on the last fight") << 1 << "Win"
                                                           << "Tournament Semifinal" << 1 << "G-1";
        QTest::newRow("a lost quarterfinal counts") << 3 << "Loss"
                                                    << "Tournament Quarterfinal" << 2 << "G-1";
        QTest::newRow("a loss on the last fight") << 1 << "Loss"
                                                  << "Single Match" << 0 << "Free Agent";
        QTest::newRow("a draw counts nothing") << 1 << "Draw"
                                               << "Single Match" << 1 << "G-1";
    }

    void contractCount()
    {
        QFETCH(int, fightsLeft);
        QFETCH(QString, outcome);
        QFETCH(QString, matchType);
        QFETCH(int, fightsAfter);
        QFETCH(QString, organisation);
        Entity_Fighter man = contracted(fightsLeft);
        QString line = entry(outcome);
        man.addResult(spring, line, matchType);
        QCOMPARE(man.number(F::ContractFightsLeft), fightsAfter);
        QCOMPARE(man.text(F::Organisation), organisation);
        QCOMPARE(man.history().size(), 1);
        QCOMPARE(man.number(F::Wins) + man.number(F::Losses), outcome == "Draw" ? 0 : 1);
    }

    // a champion whose contract ends gives up his world title, not his tournament titles
    void aContractEndClosesTheWorldReign()
    {
        Entity_Fighter man = contracted(1, {"G-1 Grand Prix 2011", "G-1 World Championship - from Sat Apr 2 2011"});
        QString line = entry("Win");
        man.addResult(autumn, line, "Single Match");
        QCOMPARE(man.text(F::Organisation), QString("Free Agent"));
        QCOMPARE(man.titleList(), QStringList({"G-1 Grand Prix 2011",
                                               "G-1 World Championship - from Sat Apr 2 2011 until Sat Oct 1 2011"}));
    }

    void reputationFromPoints_data()
    {
        QTest::addColumn<int>("marketability");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<int>("pointsAfter");
        QTest::addColumn<QString>("label");

        QTest::newRow("marketability 4 wins 23") << 4 << 90 << "Win" << 113 << "Local Fighter";
        QTest::newRow("marketability 4 loses 3") << 4 << 102 << "Loss" << 99 << "Unknown";
        QTest::newRow("marketability 0 wins 15") << 0 << 0 << "Win" << 15 << "Unknown";
        QTest::newRow("marketability 0 loses 11") << 0 << 311 << "Loss" << 300 << "Rising Star";
        QTest::newRow("995 stops at 1000") << 4 << 995 << "Win" << 1000 << "Legendary";
        QTest::newRow("5 stops at 0") << 0 << 5 << "Loss" << 0 << "Unknown";
        QTest::newRow("a draw moves nothing") << 2 << 850 << "Draw" << 850 << "International Superstar";
    }

    void reputationFromPoints()
    {
        QFETCH(int, marketability);
        QFETCH(int, points);
        QFETCH(QString, outcome);
        QFETCH(int, pointsAfter);
        QFETCH(QString, label);
        Entity_GymFighter man;
        man.marketability = marketability;
        man.reputationPoints = points;
        man.addMatchExperience(statistics(0), entry(outcome));
        QCOMPARE(man.reputationPoints, pointsAfter);
        QCOMPARE(man.text(F::Reputation), label);
    }

    void reputationFromRanking_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("label");

        QTest::newRow("50") << 50 << "Legendary";
        QTest::newRow("51") << 51 << "World Class";
        QTest::newRow("10500") << 10500 << "Rising Star";
        QTest::newRow("10501 keeps the label") << 10501 << "";
        QTest::newRow("12000 keeps the label") << 12000 << "";
        QTest::newRow("12001") << 12001 << "Local Fighter";
        QTest::newRow("13501") << 13501 << "Unknown";
    }

    void reputationFromRanking()
    {
        QFETCH(int, value);
        QFETCH(QString, label);
        QCOMPARE(ReputationScale::fromRanking(value), label);
    }

    // the label is read within 50 below and 70 above the score
    void aLooseReadingOfTheRanking()
    {
        Entity_Fighter man = contracted(3);
        man.setText(F::Reputation, "Contender");
        for (int i = 0; i < 200; ++i) {
            man.setNumber(F::RankingScore, 3050);
            man.updateReputationFromRanking();
            QCOMPARE(man.text(F::Reputation), QString("Championship Caliber"));
            man.setNumber(F::RankingScore, 11000);
            man.updateReputationFromRanking();
            QCOMPARE(man.text(F::Reputation), QString("Championship Caliber"));
        }
        QSet<QString> nearBorder;
        for (int i = 0; i < 400; ++i) {
            man.setNumber(F::RankingScore, 1500);
            man.updateReputationFromRanking();
            nearBorder.insert(man.text(F::Reputation));
        }
        QCOMPARE(nearBorder, QSet<QString>({"World Class", "International Superstar"}));
    }

    // knockdowns, the outcome and the landed counts fill the 24 counters of the match
    void matchExperience_data()
    {
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<int>("landed");
        QTest::addColumn<int>("given");
        QTest::addColumn<int>("taken");
        QTest::addColumn<int>("jabGain");
        QTest::addColumn<int>("dodgeGain");

        QTest::newRow("a loss without knockdowns") << "Loss" << 10 << 0 << 0 << 11 << 6;
        QTest::newRow("a win with two knockdowns") << "Win" << 10 << 2 << 0 << 17 << 12;
        QTest::newRow("a loss after three knockdowns") << "Loss" << 0 << 0 << 3 << -2 << -2;
        QTest::newRow("odd counts are halved down") << "Draw" << 7 << 0 << 0 << 7 << 3;
    }

    void matchExperience()
    {
        QFETCH(QString, outcome);
        QFETCH(int, landed);
        QFETCH(int, given);
        QFETCH(int, taken);
        QFETCH(int, jabGain);
        QFETCH(int, dodgeGain);
        Entity_GymFighter man;
        man.skillProgress.fill(100);
        man.addMatchExperience(statistics(landed, given, taken), entry(outcome));
        QCOMPARE(man.skillProgress[SkillTable::Jab], 100 + jabGain);
        QCOMPARE(man.skillProgress[SkillTable::Dodge], 100 + dodgeGain);
        QCOMPARE(man.skillProgress[SkillTable::Reaction], 100 + dodgeGain);
        // the skills that a match doesn't teach
        QCOMPARE(man.skillProgress[SkillTable::Footwork], 100);
        QCOMPARE(man.skillProgress[SkillTable::Strength], 100);
        int taught = 0;
        for (int counter : man.skillProgress)
            taught += counter != 100 ? 1 : 0;
        QCOMPARE(taught, jabGain == 0 ? 0 : 24);
    }

    // a full counter levels up in silence and returns to 0; the attributes stay in range
    void aMatchLevelsUp()
    {
        Entity_GymFighter man;
        for (int a = F::FirstAttribute; a <= F::LastAttribute; ++a)
            man.setNumber(F::Number(a), 99);
        man.setNumber(F::JabSpeed, 50);
        man.skillProgress[SkillTable::Jab] = 195;
        man.skillProgress[SkillTable::Hook] = 150;
        man.addMatchExperience(statistics(10), entry("Loss"));
        QCOMPARE(man.skillProgress[SkillTable::Jab], 0);
        QCOMPARE(man.number(F::JabSpeed), 51);
        QCOMPARE(man.number(F::HandSpeed), 99);
        QCOMPARE(man.skillProgress[SkillTable::Hook], 161);
    }
};

QTEST_GUILESS_MAIN(tst_Career)
#include "tst_career.moc"
