#include "match/Commentary.h"

#include <QRegularExpression>
#include <QtTest>

Q_DECLARE_METATYPE(CommentaryList)

namespace {

const QString last = QStringLiteral("Kovac");
const QString full = QStringLiteral("Arjan Kovac");

QList<CommentaryList> allLists()
{
    QList<CommentaryList> lists;
    for (int i = 0; i < int(CommentaryList::Count); ++i)
        lists.append(CommentaryList(i));
    return lists;
}

} // namespace

class tst_Commentary : public QObject
{
    Q_OBJECT

private slots:
    void listSizes_data()
    {
        QTest::addColumn<CommentaryList>("list");
        QTest::addColumn<int>("size");
        QTest::newRow("first range decision has five") << CommentaryList::AtkOut_ToIn << 5;
        QTest::newRow("forced out of the pocket has three") << CommentaryList::AtkIn_OnEvOut << 3;
        QTest::newRow("stuck in the clinch has three") << CommentaryList::AtkIn_OnEvClinch << 3;
        QTest::newRow("pushed out of the clinch has three") << CommentaryList::AtkClinch_OnEvIn << 3;
        QTest::newRow("drawn into the pocket has three") << CommentaryList::AtkOut_OnEvIn << 3;
        QTest::newRow("first strike announcement has five") << CommentaryList::AtkOutAttack_Jab << 5;
        QTest::newRow("defender follows has five") << CommentaryList::DefClinch << 5;
        QTest::newRow("knockout, the last list, has five") << CommentaryList::GenKO << 5;
        QTest::newRow("no such list has none") << CommentaryList::Count << 0;
    }

    void listSizes()
    {
        QFETCH(CommentaryList, list);
        QFETCH(int, size);
        QCOMPARE(Commentary::size(list), size);
    }

    // a dropped or doubled line anywhere shows up in the total
    void everyListHasThreeOrFiveLines()
    {
        int threes = 0;
        int lines = 0;
        for (CommentaryList list : allLists()) {
            const int size = Commentary::size(list);
            QVERIFY2(size == 3 || size == 5, qPrintable(QString::number(int(list))));
            threes += size == 3 ? 1 : 0;
            lines += size;
        }
        QCOMPARE(threes, 4);
        QCOMPARE(lines, 72 * 5 + 4 * 3);
    }

    // Each line names the acting man once, as a word of its own, runs on (a closing blank or
    // "...") and differs from the other lines of its list.
    void everyLineNamesTheActingManOnce()
    {
        const QString l = QStringLiteral("<L>");
        const QString f = QStringLiteral("<F>");
        const QRegularExpression nameAsWord(QStringLiteral("(^| )<[LF]>($|[ '!])"));
        for (CommentaryList list : allLists()) {
            QSet<QString> seen;
            for (int pick = 0; pick < Commentary::size(list); ++pick) {
                const QString text = Commentary::line(list, pick, l, f);
                const QByteArray where =
                    QStringLiteral("list %1 line %2: %3").arg(int(list)).arg(pick).arg(text).toUtf8();
                QVERIFY2(text.count(l) + text.count(f) == 1, where.constData());
                QVERIFY2(text.contains(nameAsWord), where.constData());
                QVERIFY2(text.endsWith(QLatin1Char(' ')) || text.endsWith(QStringLiteral("...")), where.constData());
                QVERIFY2(!text.contains(QStringLiteral("  ")), where.constData());
                QVERIFY2(!seen.contains(text), where.constData());
                seen.insert(text);
            }
        }
    }

    void linesAsWritten_data()
    {
        QTest::addColumn<CommentaryList>("list");
        QTest::addColumn<int>("pick");
        QTest::addColumn<QString>("text");
        QTest::newRow("dots run on without a blank")
            << CommentaryList::AtkOut_ToIn << 0 << "Kovac looks like he's trying to work his way in...";
        QTest::newRow("last line of a list ends in dots")
            << CommentaryList::AtkOut_ToIn << 4 << "Kovac wades in, trying to apply a bit of pressure...";
        QTest::newRow("literal before the name")
            << CommentaryList::AtkIn_ToClinch << 4
            << "It appears Kovac wants to close in and turn this into a clinching match! ";
        QTest::newRow("possessive after a leading literal")
            << CommentaryList::AtkOut_OnEvIn << 0 << "That seems to have disrupted Kovac's plans a bit. ";
        QTest::newRow("last of a list of three")
            << CommentaryList::AtkIn_OnEvClinch << 2
            << "Kovac appears firmly stuck in the clinch, and can't seem to escape. ";
        QTest::newRow("full name closed by an exclamation")
            << CommentaryList::AtkOutAttack_HighKick << 2 << "Whoa! A ferocious high kick, courtesy of Arjan Kovac! ";
        QTest::newRow("full name with a possessive")
            << CommentaryList::AtkClinchAttack_Hook << 4
            << "Arjan Kovac's clinch skills are on display here, as he manages to force an opening and throw a hook. ";
        QTest::newRow("stray stop kept as written")
            << CommentaryList::AtkClinch_ToClinchAttack << 2 << "Kovac makes some sudden movements!. ";
        QTest::newRow("defender's odd possessive kept")
            << CommentaryList::DefClinch << 2
            << "Kovac's his arms with his opponent's, and they are firmly in the clinch. ";
        QTest::newRow("dots with a blank after them")
            << CommentaryList::GenReturnDmg_HitLetThrough << 4 << "Kovac stands right in front of his opponent... ";
        QTest::newRow("last line of the last defence")
            << CommentaryList::DefCounterMid_Works << 4 << "Kovac throws a counter attack. ";
        QTest::newRow("counted out with the full name")
            << CommentaryList::GenKD_CountedOut << 4
            << "Arjan Kovac won't be getting up any time soon, and the bell rings to end the match. ";
        QTest::newRow("knockout, a literal then the last name")
            << CommentaryList::GenKO << 3 << "Oh! Kovac falls to the ground! It's a knockout! ";
        QTest::newRow("no such list gives nothing") << CommentaryList::Count << 0 << "";
    }

    void linesAsWritten()
    {
        QFETCH(CommentaryList, list);
        QFETCH(int, pick);
        QFETCH(QString, text);
        QCOMPARE(Commentary::line(list, pick, last, full), text);
    }

    void pickWrapsByRemainder_data()
    {
        QTest::addColumn<CommentaryList>("list");
        QTest::addColumn<int>("pick");
        QTest::addColumn<int>("index");
        QTest::newRow("five wraps to the first of five") << CommentaryList::AtkOut_ToIn << 5 << 0;
        QTest::newRow("d100 of 99 is the fifth line") << CommentaryList::GenKO << 99 << 4;
        QTest::newRow("d100 of 100 is the first line") << CommentaryList::GenKO << 100 << 0;
        QTest::newRow("three wraps to the first of three") << CommentaryList::AtkIn_OnEvOut << 3 << 0;
        QTest::newRow("d100 of 100 is the second of three") << CommentaryList::AtkIn_OnEvOut << 100 << 1;
        QTest::newRow("a negative pick wraps backwards") << CommentaryList::AtkOut_OnEvIn << -1 << 2;
    }

    void pickWrapsByRemainder()
    {
        QFETCH(CommentaryList, list);
        QFETCH(int, pick);
        QFETCH(int, index);
        const QString expected = Commentary::line(list, index, last, full);
        QCOMPARE(Commentary::line(list, pick, last, full), expected);
        QCOMPARE(Commentary::pickLine(list, pick, last, full), expected);
    }

    void countStepRunsOn()
    {
        QCOMPARE(Commentary::countStep(3), QStringLiteral("3..... "));
        QCOMPARE(Commentary::countStep(1) + Commentary::countStep(2), QStringLiteral("1..... 2..... "));
    }
};

QTEST_GUILESS_MAIN(tst_Commentary)
#include "tst_commentary.moc"
