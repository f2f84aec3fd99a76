#include "TableRows.h"

#include "fighters/ResultEntry.h"

#include <QtTest>

// The rules of a career read the result word, the method and the title of an entry, never a
// word that a man's or a night's name happens to hold.
namespace {

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

class TestResultEntry : public QObject
{
    Q_OBJECT

private slots:
    void fields_data() { TableRows::add(entries); }
    void fields()
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

QTEST_GUILESS_MAIN(TestResultEntry)
#include "tst_resultentry.moc"
