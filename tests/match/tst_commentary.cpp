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

    void pickWrapsByRemainder_data()
    {
        QTest::addColumn<CommentaryList>("list");
        QTest::addColumn<int>("pick");
        QTest::addColumn<int>("index");
        QTest::newRow("five wraps to the first of five") << CommentaryList::AtkOut_ToIn << 5 << 0;
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
};

QTEST_GUILESS_MAIN(tst_Commentary)
#include "tst_commentary.moc"
