#include "TableRows.h"

#include "fighters/Entity_GymFighter.h"
#include "fighters/MatchStatus.h"
#include "fighters/Random.h"
#include "fighters/ReputationScale.h"
#include "fighters/ResultEntry.h"
#include "fighters/SkillTable.h"

#include <QtTest>

#include <algorithm>

using F = Entity_Fighter;

namespace {

const QString WorldTitle = "G-1 World Championship";
const QDate spring(2011, 4, 2);
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

// the entry of a fight as the result flows write it; "Decision" is a win on the cards
QString entry(const QString &outcome, const QString &title = {})
{
    const QString line = outcome == "Decision" ? "Win: Bo Bell - Unanimous Decision - Rd. 3(3:00) - G-1: Night"
                                               : outcome + ": Bo Bell - KO(Hook) - Rd. 2(1:10) - G-1: G-1 Summer 2011";
    return title.isEmpty() ? line : line + "|" + title;
}

// the entry after the fight's date and type went into his career
QString recorded(Entity_Fighter &man, const QDate &date, const QString &outcome, const QString &type,
                 const QString &title = {})
{
    QString line = entry(outcome, title);
    man.addResult(date, line, type);
    return line;
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

// which fights come off the contract, and what its end does
struct Count {
    const char *name;
    int fightsLeft;
    const char *outcome, *type;
    int fightsAfter;
    const char *organisation;
};
const Count counts[] = {
    {"a won final", 3, "Win", "Tournament Final", 2, "G-1"},
    {"a won qualifier costs nothing", 1, "Win", "Tournament Qualifier", 1, "G-1"},
    {"a won semifinal on the last fight", 1, "Win", "Tournament Semifinal", 1, "G-1"},
    {"a lost quarterfinal counts", 3, "Loss", "Tournament Quarterfinal", 2, "G-1"},
    {"a loss on the last fight", 1, "Loss", "Single Match", 0, "Free Agent"},
    {"a draw counts nothing", 1, "Draw", "Single Match", 1, "G-1"},
};

struct Points {
    const char *name;
    int marketability, points;
    const char *outcome;
    int pointsAfter;
    const char *label;
};
const Points pointRows[] = {
    {"marketability 4 wins 23", 4, 90, "Win", 113, "Local Fighter"},
    {"marketability 0 loses 11", 0, 311, "Loss", 300, "Rising Star"},
    {"995 stops at 1000", 4, 995, "Win", 1000, "Legendary"},
    {"5 stops at 0", 0, 5, "Loss", 0, "Unknown"},
    {"a draw moves nothing", 2, 850, "Draw", 850, "International Superstar"},
};

// an empty label keeps the one he has
struct Ranking {
    const char *name;
    int value;
    const char *label;
};
const Ranking rankings[] = {
    {"51", 51, "World Class"},
    {"10500", 10500, "Rising Star"},
    {"10501 keeps the label", 10501, ""},
    {"12000 keeps the label", 12000, ""},
    {"12001", 12001, "Local Fighter"},
};

// the knockdowns, the outcome and the landed counts fill the 24 counters of the match
struct Experience {
    const char *name, *outcome;
    int landed, given, taken, jabGain, dodgeGain;
};
const Experience experiences[] = {
    {"a loss without knockdowns", "Loss", 10, 0, 0, 11, 6},
    {"a win with two knockdowns", "Win", 10, 2, 0, 17, 12},
    {"a loss after three knockdowns", "Loss", 0, 0, 3, -2, -2},
    {"odd counts are halved down", "Draw", 7, 0, 0, 7, 3},
};

using O = ResultEntry::Outcome;
struct Field {
    const char *name, *entry;
    O outcome;
    bool knockout, decision;
    const char *title;
};
const Field entries[] = {
    {"a knockout win", "Win: Al Ames - KO(Hook) - Rd. 2(1:20) - EPIC: EPIC Event", O::Win, true, false, ""},
    {"a technical knockout counts", "Loss: Al Ames - TKO(Low Kick) - Rd. 3(0:41) - G-1: Night", O::Loss, true, false,
     ""},
    {"a decision at GKO is no knockout", "Win: Bo Bell - Unanimous Decision - Rd. 3(3:00) - GKO: GKO Winter Warriors",
     O::Win, false, true, ""},
    {"a loss at a winter night is no win",
     "Loss: Cy Cole - Split Decision - Rd. 3(3:00) - Red Storm Global: Red Storm Winter Storm", O::Loss, false, true,
     ""},
    {"an opponent named Winston", "Loss: Winston Koenig - KO(Jab) - Rd. 1(0:12) - Valhalla: Vinter", O::Loss, true,
     false, ""},
    {"a title behind the bar",
     "Win: Dee Dunn - Majority Decision - Rd. 3(3:00) - GKO: GKO Fight Night|GKO Heavyweight World Championship",
     O::Win, false, true, "GKO Heavyweight World Championship"},
    {"a knockout name in the title only", "Win: Ed Egan - Decision - Rd. 5(3:00) - G-1: Night|KO Cup 2011", O::Win,
     false, true, "KO Cup 2011"},
    {"no result word is a draw of the record", "Draw: Fin Ford - Rd. 3(3:00)", O::Draw, false, false, ""},
};

} // namespace

class tst_Career : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Random::useTestClock(11); }

    // a challenger wins the belt, defends it and loses it; the next win of it is a new reign
    void aTitleReign()
    {
        Entity_Fighter man = contracted(10);
        QCOMPARE(recorded(man, spring, "Win", "Championship Match", WorldTitle),
                 entry("Win") + " - Won G-1 World Championship");
        QCOMPARE(man.titleList(), QStringList{"G-1 World Championship - from Sat Apr 2 2011"});
        const QDate summer(2011, 7, 9);
        const QString defended = recorded(man, summer, "Decision", "Championship Match", WorldTitle);
        QVERIFY(defended.endsWith(" - Retained G-1 World Championship"));
        QCOMPARE(man.titleList().size(), 1);
        QVERIFY(recorded(man, autumn, "Loss", "Championship Match", WorldTitle).endsWith(" - Lost " + WorldTitle));
        QCOMPARE(man.titleList(), QStringList{"G-1 World Championship - from Sat Apr 2 2011 until Sat Oct 1 2011"});
        QVERIFY(
            recorded(man, QDate(2012, 1, 7), "Win", "Championship Match", WorldTitle).endsWith(" - Won " + WorldTitle));
        QCOMPARE(man.titleList().size(), 2);

        QCOMPARE(man.number(F::Wins), 3);
        QCOMPARE(man.number(F::Kos), 2);
        QCOMPARE(man.number(F::Losses), 1);
        QCOMPARE(man.number(F::ContractFightsLeft), 6);
        // a loser without a reign on that title gets no title text
        Entity_Fighter challenger = contracted(5);
        QCOMPARE(recorded(challenger, spring, "Loss", "Championship Match", WorldTitle), entry("Loss"));
        QVERIFY(challenger.titleList().isEmpty());
    }

    // a tournament title carries its year and no reign; each year makes its own entry
    void tournamentTitles()
    {
        Entity_Fighter man = contracted(5);
        recorded(man, spring, "Win", "Tournament Final", "G-1 Grand Prix 2011");
        recorded(man, QDate(2012, 4, 7), "Win", "Tournament Final", "G-1 Grand Prix 2012");
        QCOMPARE(man.titleList(), QStringList({"G-1 Grand Prix 2011", "G-1 Grand Prix 2012"}));
    }

    void contractCount_data() { TableRows::add(counts); }
    void contractCount()
    {
        const Count &row = TableRows::current(counts);
        Entity_Fighter man = contracted(row.fightsLeft);
        recorded(man, spring, row.outcome, row.type);
        QCOMPARE(man.number(F::ContractFightsLeft), row.fightsAfter);
        QCOMPARE(man.text(F::Organisation), QString(row.organisation));
        QCOMPARE(man.number(F::Wins) + man.number(F::Losses), QString(row.outcome) == "Draw" ? 0 : 1);
    }

    // a champion whose contract ends gives up his world title, not his tournament titles
    void aContractEndClosesTheWorldReign()
    {
        Entity_Fighter man = contracted(1, {"G-1 Grand Prix 2011", "G-1 World Championship - from Sat Apr 2 2011"});
        recorded(man, autumn, "Win", "Single Match");
        QCOMPARE(man.text(F::Organisation), QString("Free Agent"));
        QCOMPARE(man.titleList(), QStringList({"G-1 Grand Prix 2011",
                                               "G-1 World Championship - from Sat Apr 2 2011 until Sat Oct 1 2011"}));
    }

    void reputationFromPoints_data() { TableRows::add(pointRows); }
    void reputationFromPoints()
    {
        const Points &row = TableRows::current(pointRows);
        Entity_GymFighter man;
        man.marketability = row.marketability;
        man.reputationPoints = row.points;
        man.addMatchExperience(statistics(0), entry(row.outcome));
        QCOMPARE(man.reputationPoints, row.pointsAfter);
        QCOMPARE(man.text(F::Reputation), QString(row.label));
    }

    void reputationFromRanking_data() { TableRows::add(rankings); }
    void reputationFromRanking()
    {
        const Ranking &row = TableRows::current(rankings);
        QCOMPARE(ReputationScale::fromRanking(row.value), QString(row.label));
    }

    // the label is read within 50 below and 70 above the score
    void aLooseReadingOfTheRanking()
    {
        Entity_Fighter man = contracted(3);
        man.setText(F::Reputation, "Contender");
        QSet<QString> labels;
        for (int i = 0; i < 200; ++i) {
            for (int score : {3050, 11000}) {
                man.setNumber(F::RankingScore, score);
                man.updateReputationFromRanking();
                QCOMPARE(man.text(F::Reputation), QString("Championship Caliber"));
            }
            man.setNumber(F::RankingScore, 1500);
            man.updateReputationFromRanking();
            labels.insert(man.text(F::Reputation));
        }
        QCOMPARE(labels, QSet<QString>({"World Class", "International Superstar"}));
    }

    void matchExperience_data() { TableRows::add(experiences); }
    void matchExperience()
    {
        const Experience &row = TableRows::current(experiences);
        Entity_GymFighter man;
        man.skillProgress.fill(100);
        man.addMatchExperience(statistics(row.landed, row.given, row.taken), entry(row.outcome));
        QCOMPARE(man.skillProgress[SkillTable::Jab], 100 + row.jabGain);
        QCOMPARE(man.skillProgress[SkillTable::Dodge], 100 + row.dodgeGain);
        QCOMPARE(man.skillProgress[SkillTable::Reaction], 100 + row.dodgeGain);
        // the skills that a match doesn't teach
        QCOMPARE(man.skillProgress[SkillTable::Footwork], 100);
        QCOMPARE(man.skillProgress[SkillTable::Strength], 100);
        QCOMPARE(std::count(man.skillProgress.cbegin(), man.skillProgress.cend(), 100), 48 - 24);
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

    // The rules of a career read the result word, the method and the title of an entry, never a
    // word that a man's or a night's name happens to hold.
    void entryFields_data() { TableRows::add(entries); }
    void entryFields()
    {
        const Field &row = TableRows::current(entries);
        const QString entry = row.entry, title = row.title;
        const int outcome = int(row.outcome);
        const bool knockout = row.knockout, decision = row.decision;
        const ResultEntry read(entry);
        QCOMPARE(int(read.outcome()), outcome);
        QCOMPARE(read.byKnockout(), knockout);
        QCOMPARE(read.byDecision(), decision);
        QCOMPARE(read.title(), title);
        QCOMPARE(read.isTitleFight(), !title.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_Career)
#include "tst_career.moc"
