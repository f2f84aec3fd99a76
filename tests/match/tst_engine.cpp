#include "MatchKit.h"

#include "fighters/Random.h"
#include "match/CommentaryBuffer.h"
#include "match/Dice.h"
#include "match/MatchEvent.h"
#include "match/MatchManager.h"
#include "match/RankedPick.h"

#include <QtTest>

using MatchKit::fighter;

class tst_Engine : public QObject
{
    Q_OBJECT

    MatchManager &match = MatchManager::instance();

    void startPlainMatch(int levelOne = 50, int levelTwo = 50, CommentarySink *sink = nullptr)
    {
        match.startMatch(fighter(1, "Alder", "Puncher", levelOne), fighter(2, "Birch", "Kicker", levelTwo), sink);
    }

private slots:
    void init() { Random::useTestClock(4711); }
    void cleanup() { Random::useRealClock(); }

    void aNewManStandsAtLongRangeUnhurt()
    {
        const Entity_MatchFighter man;
        QCOMPARE(man.stateName(), QStringLiteral("State_Def_Out"));
        QCOMPARE(man.getTactic(), 0);
        QCOMPARE(man.getStaminaBand(), 1);
        QCOMPARE(man.getActionCode(), 1);
        const QList<int> status = man.statusVector();
        QCOMPARE(status.size(), int(MatchStatus::Count));
        for (MatchStatus::Position health :
             {MatchStatus::HeadHealth, MatchStatus::BodyHealth, MatchStatus::ArmsHealth, MatchStatus::LegsHealth})
            QCOMPARE(status[health], 1000);
    }

    void preparingSetsTheCeilings()
    {
        Entity_Fighter record = fighter(1, "Alder", "Puncher", 10);
        record.setNumber(Entity_Fighter::HeadDurability, 70);
        record.setNumber(Entity_Fighter::BodyDurability, 40);
        record.setNumber(Entity_Fighter::Willpower, 30);
        record.setNumber(Entity_Fighter::Endurance, 20);
        Entity_MatchFighter man(record);
        man.prepareForMatch();
        QCOMPARE(man.getHeadHealth(), 70 + 30 + 10);
        QCOMPARE(man.getBodyHealth(), 40 + 30 + 10);
        QCOMPARE(man.getArmsHealth(), 10 + 10);
        QCOMPARE(man.getLegsHealth(), 10 + 10);
        QCOMPARE(man.getMaxStamina(), 2 * (30 + 20 + 10 + 10));
    }

    // the best of two comes up two times in three, of three one in two, of four 7 in 15, of six 2 in 7
    void rankedPickFavoursTheBest_data()
    {
        QTest::addColumn<QList<int>>("scores");
        QTest::addColumn<double>("bestShare");
        QTest::newRow("two, best tested last") << QList<int>{10, 40} << 8.0 / 12;
        QTest::newRow("three") << QList<int>{30, 70, 50} << 9.0 / 18;
        QTest::newRow("four defences") << QList<int>{1, 2, 9, 3} << 7.0 / 15;
        QTest::newRow("six strikes") << QList<int>{5, 4, 3, 2, 1, 6} << 6.0 / 21;
        QTest::newRow("negative scores rank like any") << QList<int>{-30, -5} << 8.0 / 12;
    }

    void rankedPickFavoursTheBest()
    {
        QFETCH(QList<int>, scores);
        QFETCH(double, bestShare);
        const int best = int(scores.indexOf(*std::max_element(scores.begin(), scores.end())));
        const int draws = 21000;
        int bestCount = 0;
        for (int i = 0; i < draws; ++i) {
            Dice dice(50);
            bestCount += RankedPick::choose(scores, dice) == best ? 1 : 0;
        }
        QVERIFY2(qAbs(bestCount / double(draws) - bestShare) < 0.02, qPrintable(QString::number(bestCount)));
    }

    void equalScoresGoToTheOptionTestedFirst()
    {
        for (int i = 0; i < 200; ++i) {
            Dice dice(50);
            QCOMPARE(RankedPick::choose({7, 3, 7}, dice) == 2, false);
        }
    }

    void equalInitiativeLetsFighterOneAttack()
    {
        // men without attributes both roll an initiative of 0
        startPlainMatch(0, 0);
        match.beginRound();
        QCOMPARE(match.getAttacker(), match.getFighterOne());
        QCOMPARE(match.getAttacker()->stateName(), QStringLiteral("State_Atk_Out"));
        QCOMPARE(match.getDefender()->stateName(), QStringLiteral("State_Def_Out"));
    }

    void theBetterManTakesTheInitiative()
    {
        startPlainMatch(0, 90);
        match.beginRound();
        QCOMPARE(match.getAttacker(), match.getFighterTwo());
    }

    // setting the states at a round's start says nothing and sends nothing
    void beginningARoundIsSilent()
    {
        CommentaryBuffer commentary;
        startPlainMatch(50, 50, &commentary);
        match.beginRound();
        QVERIFY(commentary.paragraphs().isEmpty());
        QVERIFY(match.getFighterOne()->comment().isEmpty());
        QVERIFY(match.getFighterTwo()->comment().isEmpty());
    }

    void theClockLosesOneToFourSecondsAStep()
    {
        startPlainMatch();
        match.beginRound();
        int before = match.getRoundClock();
        QCOMPARE(before, 180);
        while (before > 0) {
            const int after = match.tickClock();
            QVERIFY(before - after >= 1 && before - after <= 4);
            before = after;
        }
        match.nextRound();
        QCOMPARE(match.getRoundClock(), 180);
        QCOMPARE(match.getRoundNumber(), 2);
    }

    void eachStepFlushesBothComments()
    {
        CommentaryBuffer commentary;
        startPlainMatch(50, 50, &commentary);
        match.beginRound();
        match.step();
        // the decision is written at once, then the attacker's and the defender's comments follow
        QVERIFY(commentary.paragraphs().size() >= 2);
        QVERIFY(!commentary.paragraphs().first().isEmpty());
    }

    void instructions_data()
    {
        QTest::addColumn<int>("tactic");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("newTactic");
        QTest::newRow("normal to pressing") << 0 << "Press forward and punish him when you can." << 7;
        QTest::newRow("normal, the first line keeps it") << 0 << "Keep doing what you're doing." << 0;
        QTest::newRow("cautious opens up") << 1 << "Keep it slow, but open up when you can." << 0;
        QTest::newRow("turtling to cautious") << 2 << "Don't turtle up, do something!" << 1;
        QTest::newRow("dazed hands up") << 5 << "Put your hands up and watch it out there!" << 2;
        QTest::newRow("stunned hands up") << 6 << "Put your hands up and watch it out there!" << 2;
        QTest::newRow("all out eases to pressing") << 8 << "Keep the pressure on, but don't hunt for the KO." << 7;
        QTest::newRow("outside without the full stop") << 9 << "Keep him away and pick him apart from outside" << 0;
        QTest::newRow("clinch crushes") << 11 << "You've got him, now crush him." << 7;
        QTest::newRow("a line of another tactic gives normal") << 7 << "Finish him!" << 0;
    }

    void instructions()
    {
        QFETCH(int, tactic);
        QFETCH(QString, text);
        QFETCH(int, newTactic);
        startPlainMatch();
        match.getFighterOne()->setTactic(tactic);
        if (tactic != 7 || newTactic != 0)
            QVERIFY(match.instructionsFor(1).contains(text));
        QVERIFY(match.giveInstruction(1, text, 0, true));
        QCOMPARE(match.getFighterOne()->getTactic(), newTactic);
    }

    void instructionListsFollowTheTactic()
    {
        startPlainMatch();
        QCOMPARE(match.instructionsFor(1).size(), 7);
        QCOMPARE(match.instructionsFor(1).first(), QStringLiteral("Keep doing what you're doing."));
        for (int noOrders : {3, 4, 12}) {
            match.getFighterOne()->setTactic(noOrders);
            QVERIFY(match.instructionsFor(1).isEmpty());
        }
        // a man who isn't in the ring hears the lines of a normal fight
        QCOMPARE(match.instructionsFor(99).size(), 7);
        QVERIFY(!match.giveInstruction(99, "Finish him!", 10, true));
    }

    void aManWithoutSenseIgnoresOrdersUnlessForced()
    {
        startPlainMatch(0, 0);
        for (int i = 0; i < 50; ++i)
            QVERIFY(!match.giveInstruction(1, "Knock his head off and let's go home!", 0, false));
        QCOMPARE(match.getFighterOne()->getTactic(), 0);
        QVERIFY(match.giveInstruction(1, "Knock his head off and let's go home!", 0, true));
        QCOMPARE(match.getFighterOne()->getTactic(), 8);
    }

    // heal work of 4 can't heal (4 + 1 + u10 is at most 14), work of 5 sometimes can
    void healingNeedsFivePoints()
    {
        startPlainMatch();
        Entity_MatchFighter &man = *match.getFighterOne();
        int healedWithFive = 0;
        for (int i = 0; i < 400; ++i) {
            man.setHealths(10, 10, 10, 10);
            match.tendFighter(4, 0, 0, 0, 1);
            QCOMPARE(man.getHeadHealth(), 10);
            match.tendFighter(5, 0, 0, 0, 1);
            healedWithFive += man.getHeadHealth() > 10 ? 1 : 0;
            QCOMPARE(man.getBodyHealth(), man.getHeadHealth());
        }
        QVERIFY(healedWithFive > 10 && healedWithFive < 80);
        const int stamina = man.getStamina();
        match.tendFighter(0, 10, 0, 0, 1);
        QVERIFY(man.getStamina() > stamina);
    }

    // the first row that fits sets the band; a roll against resilience decides most rows
    void staminaBands_data()
    {
        QTest::addColumn<int>("resilience");
        QTest::addColumn<int>("staminaShare"); // in sixtieths of the ceiling
        QTest::addColumn<int>("band");
        // a resilience of -1 loses every roll, one of 100 wins every roll
        QTest::newRow("spent, tiring man") << -1 << 5 << 5;
        QTest::newRow("a fifth left") << -1 << 12 << 4;
        QTest::newRow("a third left") << -1 << 20 << 3;
        QTest::newRow("half left") << -1 << 30 << 2;
        QTest::newRow("two thirds left") << -1 << 40 << 1;
        QTest::newRow("spent, tough man") << 100 << 5 << 1;
        QTest::newRow("watered beyond twice the ceiling") << 100 << 125 << 0;
        QTest::newRow("beyond twice the ceiling, weak roll keeps the band") << -1 << 125 << 3;
    }

    void staminaBands()
    {
        QFETCH(int, resilience);
        QFETCH(int, staminaShare);
        QFETCH(int, band);
        Entity_Fighter record = fighter(1, "Alder", "Puncher", 60);
        record.setNumber(Entity_Fighter::Resilience, resilience);
        Entity_MatchFighter man(record);
        man.prepareForMatch();
        man.setStaminaBand(3);
        man.setStamina(man.getMaxStamina() * staminaShare / 60 + 1);
        man.changeStamina(-1);
        QCOMPARE(man.getStaminaBand(), band);
    }

    void staminaNeverFallsBelowZero()
    {
        Entity_MatchFighter man(fighter(1, "Alder", "Puncher", 60));
        man.prepareForMatch();
        man.changeStamina(-100000);
        QCOMPARE(man.getStamina(), 0);
    }

    void spentPartsBringAManDown()
    {
        Entity_MatchFighter man(fighter(1, "Alder", "Puncher", 50));
        man.prepareForMatch();
        // arms and legs with health left never drop him
        QCOMPARE(man.hitArms(30), 3);
        QCOMPARE(man.hitLegs(30), 3);
        // a beaten body goes down even from a touch
        man.setHealths(man.getHeadHealth(), -1000, -1000, -1000);
        QCOMPARE(man.hitBody(0), 4);
        QCOMPARE(man.hitArms(0), 4);
        QCOMPARE(man.hitLegs(0), 4);
        // a negative blow is never checked
        QCOMPARE(man.hitBody(-1), 3);
        QCOMPARE(man.hitHead(-1), 3);
    }

    void aHeavyBlowToAnEmptyHeadDropsHim()
    {
        Entity_MatchFighter man(fighter(1, "Alder", "Puncher", 50));
        man.prepareForMatch();
        man.setHealths(-500, 100, 100, 100);
        QVERIFY(man.hitHead(400) >= 4);
        man.setHealths(10000, 100, 100, 100);
        QCOMPARE(man.hitHead(5), 3);
    }

    void observationsReadTheBody()
    {
        startPlainMatch();
        Entity_MatchFighter &man = *match.getFighterOne();
        const int head = man.getHeadHealth();
        // ceilings: head and body 150, arms and legs 100
        man.setHealths(head, head / 3, 20, -1);
        QStringList texts;
        QList<int> codes;
        match.observationsOf(texts, codes, 1);
        QCOMPARE(texts.size(), 5);
        QCOMPARE(codes, QList<int>({1, 4, 3, 2, 0}));
        QCOMPARE(texts.first(), QStringLiteral("He's not tired at all."));
        QCOMPARE(texts.last(), QStringLiteral("He's on the verge of collapsing on those wobbly legs."));
    }

    void threeKnockdownsInARoundEndTheMatch()
    {
        startPlainMatch();
        match.beginRound();
        Entity_MatchFighter &man = *match.getFighterTwo();
        match.registerKnockdown(man);
        QCOMPARE(man.takeComment(), QStringLiteral("Birch has gone down! Will he be able to get up?"));
        match.registerKnockdown(man);
        QCOMPARE(man.takeComment(), QStringLiteral("That's knockdown number two! One more and Birch is done!"));
        QVERIFY(!match.isMatchOver());
        match.registerKnockdown(man);
        QCOMPARE(man.takeComment(),
                 QStringLiteral("That's the third time this round that Test Birch has gone down! This match is over!"));
        QVERIFY(match.isMatchOver());
        QCOMPARE(match.getLoser(), &man);
        QCOMPARE(match.endRoundScores().mid(6), QList<int>({0, 3}));
        QCOMPARE(match.endRoundScores().mid(6), QList<int>({0, 0}));
    }

    void judgesScoreBelowThePoints()
    {
        startPlainMatch();
        match.beginRound();
        for (int i = 0; i < 100; ++i)
            match.addScore(*match.getFighterOne(), 10);
        const QList<int> scores = match.endRoundScores();
        for (int judge = 0; judge < 3; ++judge) {
            QVERIFY(scores[judge] > 200 && scores[judge] <= 900);
            QCOMPARE(scores[3 + judge], 0);
        }
        QVERIFY(scores[0] != scores[1] || scores[1] != scores[2]);
    }

    void theBellAnnouncesTheRound()
    {
        CommentaryBuffer commentary;
        startPlainMatch(50, 50, &commentary);
        match.beginRound();
        match.announceRoundEnd();
        QCOMPARE(commentary.paragraphs(),
                 QStringList({"The bell rings to end the round, and the fighters move to their corners...",
                              "Pretty even round.\n\n"}));
        commentary.clear();
        for (int i = 0; i < 10; ++i)
            match.addScore(*match.getFighterTwo(), 35);
        match.announceRoundEnd();
        QCOMPARE(commentary.paragraphs().last(), QStringLiteral("That was definitely Test Birch's round.\n\n"));
    }

    void equalVotesGoToFighterOne()
    {
        startPlainMatch();
        match.beginRound();
        match.decide(1, 1);
        QCOMPARE(match.getWinner(), match.getFighterOne());
        match.decide(1, 2);
        QCOMPARE(match.getWinner(), match.getFighterTwo());
    }

    void stoppageTexts_data()
    {
        QTest::addColumn<int>("strike");
        QTest::addColumn<QString>("method");
        QTest::newRow("jab") << int(EvJab) << "KO(Jab)";
        QTest::newRow("low kick is technical") << int(EvLowKick) << "TKO(Low Kick)";
        QTest::newRow("high kick") << int(EvHighKick) << "KO(High Kick)";
        QTest::newRow("dirty boxing reads as an uppercut") << int(EvDirtyBox) << "KO(Uppercut)";
        QTest::newRow("body punch") << int(EvBodyPunch) << "TKO(Body Punch)";
    }

    void stoppageTexts()
    {
        QFETCH(int, strike);
        QFETCH(QString, method);
        startPlainMatch();
        match.beginRound();
        match.tickClock();
        const int elapsed = 180 - match.getRoundClock();
        match.getFighterOne()->setActionCode(strike);
        match.getFighterTwo()->setActionCode(5);
        match.endMatch(*match.getFighterTwo());
        int winnerId = 0, loserId = 0;
        QString winnerEntry, loserEntry;
        const QString line = match.resultText(winnerId, winnerEntry, loserId, loserEntry);
        const QString time = QStringLiteral("0:0%1").arg(elapsed);
        QCOMPARE(line, QStringLiteral("Test Alder defeated Test Birch by %1 in %2 of Round 1.").arg(method, time));
        QCOMPARE(winnerEntry, QStringLiteral("Win: Test Birch - %1 - Rd. 1(%2)").arg(method, time));
        QCOMPARE(loserEntry, QStringLiteral("Loss: Test Alder - %1 - Rd. 1(%2)").arg(method, time));
        QCOMPARE(winnerId, 1);
        QCOMPARE(loserId, 2);
    }

    void decisionTexts()
    {
        startPlainMatch();
        match.beginRound();
        match.nextRound();
        match.nextRound();
        match.decide(0, 3);
        int winnerId = 0, loserId = 0;
        QString winnerEntry = "x ", loserEntry;
        QCOMPARE(match.resultText(winnerId, winnerEntry, loserId, loserEntry),
                 QStringLiteral("Test Birch defeated Test Alder by Decision in 3:00 of Round 3."));
        QCOMPARE(winnerEntry, QStringLiteral("x Win: Test Alder - Decision - Rd. 3(3:00)"));
        QCOMPARE(loserEntry, QStringLiteral("Loss: Test Birch - Decision - Rd. 3(3:00)"));
    }
};

QTEST_GUILESS_MAIN(tst_Engine)
#include "tst_engine.moc"
