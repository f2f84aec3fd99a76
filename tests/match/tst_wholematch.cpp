#include "Ring.h"

#include "fighters/GameLists.h"
#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/WholeMatch.h"

#include <QtTest>

using Ring::man;
using Ending = WholeMatch::Ending;
using Verdict = JudgesCards::Verdict;

namespace {

const QStringList &styles = GameLists::fightingStyles();

// a man who cannot hurt and cannot be hurt: his matches go to the judges
Entity_Fighter stayer(int id, const QString &style)
{
    return man(id, style, 0, {{Entity_Fighter::HeadDurability, 1000}, {Entity_Fighter::BodyDurability, 1000}});
}

} // namespace

class tst_WholeMatch : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(20261123); }
    void cleanup() { Random::useRealClock(); }

    // the fight night drives a match a step at a time: under the same clock it is the very match
    // that the day flow fights in one go
    void stepByStepIsTheWholeMatch()
    {
        for (int seed = 1; seed <= 3; ++seed) {
            const Entity_Fighter one = man(1, styles[seed], 55);
            const Entity_Fighter two = seed % 2 ? stayer(2, styles[seed - 1]) : man(2, "Kicker", 50);
            CommentaryBuffer atOnce;
            Random::useTestClock(seed);
            const WholeMatch::Result whole = WholeMatch::fight(one, two, &atOnce);

            CommentaryBuffer stepped;
            Random::useTestClock(seed);
            WholeMatch match(one, two, &stepped);
            int steps = 0, bells = 0;
            while (!match.isOver()) {
                match.beginRound();
                WholeMatch::Moment moment = match.step();
                for (++steps; moment == WholeMatch::Moment::Fighting; ++steps)
                    moment = match.step();
                if (moment == WholeMatch::Moment::Bell) {
                    ++bells;
                    match.bell();
                }
            }
            const WholeMatch::Result &r = match.result();
            QCOMPARE(r.line + r.winnerEntry, whole.line + whole.winnerEntry);
            QCOMPARE(QList<int>({r.steps, r.steps, r.rounds, match.cards().rounds()}),
                     QList<int>({steps, whole.steps, whole.rounds, bells}));
            QCOMPARE(r.statusOne, whole.statusOne);
            QCOMPARE(stepped.paragraphs(), atOnce.paragraphs());
        }
    }

    // From the third bell on the match ends exactly when the cards show a majority, and goes on
    // a round at a time while they don't.
    void theJudgesGoOnUntilAMajority()
    {
        int extended = 0;
        for (int i = 0; i < 120; ++i) {
            WholeMatch match(stayer(1, styles[i % styles.size()]),
                             stayer(2, styles[(i / styles.size()) % styles.size()]));
            bool over = false;
            while (!over) {
                over = match.fightRound();
                const JudgesCards &cards = match.cards();
                QCOMPARE(cards.rounds(), match.result().rounds);
                QCOMPARE(over, cards.verdict() != Verdict::None);
            }
            const WholeMatch::Result &r = match.result();
            const JudgesCards &cards = match.cards();
            QCOMPARE(r.ending, Ending::Decision);
            QCOMPARE(r.verdict, cards.verdict());
            QVERIFY2(r.line.endsWith(" by " + JudgesCards::word(r.verdict) + " in 3:00 of Round " +
                                     QString::number(r.rounds) + "."),
                     qPrintable(r.line));
            // on equal votes after the tenth the first man has it
            QCOMPARE(r.winnerId, cards.votesOne() >= cards.votesTwo() ? 1 : 2);
            extended += r.rounds > JudgesCards::FirstVerdictRound ? 1 : 0;
        }
        QVERIFY2(extended > 0, "no match went beyond the third round");
    }

    // a stoppage ends the match in its round: that round gets no card, and nothing moves after it
    // (what the stoppage reads, the engine's tests show)
    void aStoppageEndsTheMatchAtOnce()
    {
        int stoppages = 0;
        for (int i = 0; i < 40; ++i) {
            WholeMatch match(man(1, styles[i % styles.size()], 85), man(2, styles[(i + 3) % styles.size()], 25));
            const WholeMatch::Result r = match.fightToTheEnd();
            if (r.ending == Ending::Decision)
                continue;
            ++stoppages;
            QCOMPARE(match.cards().rounds(), r.rounds - 1);
            QVERIFY(match.fightRound());
            match.beginRound();
            QCOMPARE(match.step(), WholeMatch::Moment::Over);
            QVERIFY(match.bell());
            QCOMPARE(match.result().steps, r.steps);
            QCOMPARE(match.result().line, r.line);
        }
        QVERIFY2(stoppages >= 30, qPrintable(QString::number(stoppages)));
    }
};

QTEST_GUILESS_MAIN(tst_WholeMatch)
#include "tst_wholematch.moc"
