#include "fighters/Random.h"
#include "match/MatchManager.h"
#include "screens/TextEditCommentary.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QtTest>

namespace {

Entity_Fighter man(int id, const QString &lastName)
{
    Entity_Fighter fighter;
    fighter.setId(id);
    fighter.setText(Entity_Fighter::FirstName, QStringLiteral("Test"));
    fighter.setText(Entity_Fighter::LastName, lastName);
    fighter.setText(Entity_Fighter::FightingStyle, QStringLiteral("Tactician"));
    for (int field = Entity_Fighter::FirstAttribute; field <= Entity_Fighter::LastAttribute; ++field)
        fighter.setNumber(Entity_Fighter::Number(field), 55);
    fighter.setNumber(Entity_Fighter::HeadDurability, 55);
    fighter.setNumber(Entity_Fighter::BodyDurability, 55);
    return fighter;
}

} // namespace

class tst_TextCommentary : public QObject
{
    Q_OBJECT

private slots:
    // the fight night steps a match into its text box: both comments of each step, empty ones as
    // empty paragraphs
    void stepsLandInTheTextBox()
    {
        Random::useTestClock(5);
        QTextEdit box;
        TextEditCommentary commentary(&box);
        MatchManager &match = MatchManager::instance();
        match.startMatch(man(1, "Alder"), man(2, "Birch"), &commentary);
        match.beginRound();
        const int steps = 20;
        int taken = 0;
        while (taken < steps) {
            ++taken;
            if (match.step())
                break;
            match.tickClock();
        }
        QCOMPARE(taken, steps);
        QTextDocument *document = box.document();
        QVERIFY2(document->blockCount() >= 2 * steps, qPrintable(QString::number(document->blockCount())));
        int empty = 0;
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
            empty += block.text().isEmpty() ? 1 : 0;
        QVERIFY(empty > 0);
        QVERIFY(box.toPlainText().contains(QStringLiteral("Alder")));
        Random::useRealClock();
    }
};

QTEST_MAIN(tst_TextCommentary)
#include "tst_textcommentary.moc"
