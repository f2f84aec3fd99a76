#include "fighters/ResultEntry.h"

#include <QTest>

// The rules of a career read the result word, the method and the title of an entry, never a
// word that a man's or a night's name happens to hold.
class TestResultEntry : public QObject
{
    Q_OBJECT

private slots:
    void fields_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<bool>("knockout");
        QTest::addColumn<bool>("decision");
        QTest::addColumn<QString>("title");
        const int win = int(ResultEntry::Outcome::Win);
        const int loss = int(ResultEntry::Outcome::Loss);
        const int draw = int(ResultEntry::Outcome::Draw);
        QTest::newRow("a knockout win") << "Win: Al Ames - KO(Hook) - Rd. 2(1:20) - EPIC: EPIC Event" << win << true
                                        << false << "";
        QTest::newRow("a technical knockout counts")
            << "Loss: Al Ames - TKO(Low Kick) - Rd. 3(0:41) - G-1: Night" << loss << true << false << "";
        QTest::newRow("a decision at GKO is no knockout")
            << "Win: Bo Bell - Unanimous Decision - Rd. 3(3:00) - GKO: GKO Winter Warriors" << win << false << true
            << "";
        QTest::newRow("a loss at a winter night is no win")
            << "Loss: Cy Cole - Split Decision - Rd. 3(3:00) - Red Storm Global: Red Storm Winter Storm" << loss
            << false << true << "";
        QTest::newRow("an opponent named Winston")
            << "Loss: Winston Koenig - KO(Jab) - Rd. 1(0:12) - Valhalla: Vinter" << loss << true << false << "";
        QTest::newRow("a title behind the bar") << "Win: Dee Dunn - Majority Decision - Rd. 3(3:00) - GKO: GKO Fight "
                                                   "Night|GKO Heavyweight World Championship"
                                                << win << false << true << "GKO Heavyweight World Championship";
        QTest::newRow("a knockout name in the title only")
            << "Win: Ed Egan - Decision - Rd. 5(3:00) - G-1: Night|KO Cup 2011" << win << false << true
            << "KO Cup 2011";
        QTest::newRow("no result word is a draw of the record")
            << "Draw: Fin Ford - Rd. 3(3:00)" << draw << false << false << "";
    }
    void fields()
    {
        QFETCH(QString, entry);
        QFETCH(int, outcome);
        QFETCH(bool, knockout);
        QFETCH(bool, decision);
        QFETCH(QString, title);
        const ResultEntry read(entry);
        QCOMPARE(int(read.outcome()), outcome);
        QCOMPARE(read.byKnockout(), knockout);
        QCOMPARE(read.byDecision(), decision);
        QCOMPARE(read.title(), title);
        QCOMPARE(read.isTitleFight(), !title.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestResultEntry)
#include "tst_resultentry.moc"
