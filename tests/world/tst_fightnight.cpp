#include "common/NightWorld.h"

#include "fighters/MatchStatus.h"
#include "fighters/ResultEntry.h"
#include "match/CommentaryBuffer.h"
#include "match/MatchManager.h"
#include "world/FightNight.h"
#include "world/WorldMatch.h"

#include <QtTest>

#include <functional>

using namespace NightWorld;
using Moment = WholeMatch::Moment;
using MatchEnd = FightNight::MatchEnd;

namespace {

GameManager &world()
{
    return GameManager::instance();
}

Entity_Event tonight()
{
    return world().todaysUserEvents().value(0);
}

// What the screen does, stage by stage, with a corner of the test's own at each bell of the
// user's match. Gives the number of corners.
int playNight(FightNight &night, const std::function<void(FightNight &)> &corner = {})
{
    int corners = 0;
    night.welcome();
    while (night.startNextMatch()) {
        MatchEnd end = MatchEnd::ExtensionRound;
        while (end == MatchEnd::ExtensionRound) {
            night.beginRound();
            Moment moment = night.step();
            while (moment == Moment::Fighting)
                moment = night.step();
            if (moment == Moment::Over) {
                end = night.endMatch();
                break;
            }
            if (night.isUserMatch()) {
                ++corners;
                if (corner)
                    corner(night);
            }
            if (night.tallyDue()) {
                night.tally();
                end = night.endMatch();
            }
        }
    }
    night.conclude();
    return corners;
}

Entity_Fighter rosterFighter(int id)
{
    return world().rosterFighter(Org, id);
}

// a fought match as the engine hands it back: the winner stopped the loser in round 2
WholeMatch::Result stoppage(const Entity_Fighter &winner, const Entity_Fighter &loser)
{
    WholeMatch::Result r;
    r.ending = WholeMatch::Ending::Knockout;
    r.winnerId = winner.getId();
    r.loserId = loser.getId();
    r.line = winner.fullName() + " defeated " + loser.fullName() + " by KO(Hook) in 1:10 of Round 2.";
    r.winnerEntry = "Win: " + loser.fullName() + " - KO(Hook) - Rd. 2(1:10)";
    r.loserEntry = "Loss: " + winner.fullName() + " - KO(Hook) - Rd. 2(1:10)";
    r.rounds = 2;
    return r;
}

} // namespace

class tst_FightNight : public QObject
{
    Q_OBJECT

private slots:
    void init() { Random::useTestClock(4711); }
    void cleanup()
    {
        Random::useRealClock();
        world().resetWorld();
    }

    // The night writes a fought match into the world by the gym's books for the user's man and by
    // the rosters for everybody else: careers and records, the rank move, the booking, the belt.
    void aFoughtMatchGoesIntoTheWorld_data()
    {
        QTest::addColumn<bool>("gymManWins");
        QTest::addColumn<QString>("matchType");
        QTest::newRow("his man takes the vacant world title") << true << QString(Entity_Match::ChampionshipMatch);
        QTest::newRow("his man loses a title fight") << false << QString(Entity_Match::ChampionshipMatch);
        QTest::newRow("his man wins a single match") << true << QString(Entity_Match::SingleMatch);
    }
    void aFoughtMatchGoesIntoTheWorld()
    {
        QFETCH(bool, gymManWins);
        QFETCH(QString, matchType);
        Setup setup;
        setup.userMatchType = matchType;
        QVERIFY(load(setup));
        const Entity_Event event = tonight();
        const Entity_Match match = event.matchAt(1);
        const Entity_Fighter gymMan = world().fighterById(GymId).fighter();
        const Entity_Fighter opponent = rosterFighter(OpponentId);
        const int moneyBefore = world().gymRecord().value(Entity_Gym::Money);

        const WholeMatch::Result fought = gymManWins ? stoppage(gymMan, opponent) : stoppage(opponent, gymMan);
        const WorldMatch::Outcome outcome = WorldMatch::record(world(), event, match, gymMan, opponent, fought, GymId);

        const bool title = matchType == QLatin1String(Entity_Match::ChampionshipMatch);
        const QString mark = title ? '|' + Title : QString();
        QCOMPARE(outcome.line, matchType + " - " + fought.line);
        QCOMPARE(outcome.winnerEntry, fought.winnerEntry + " - " + Org + ": " + NightName + mark);
        QCOMPARE(outcome.loserEntry, fought.loserEntry + " - " + Org + ": " + NightName + mark);

        // his record and his manager's
        const Entity_GymFighter after = world().fighterById(GymId);
        QCOMPARE(after.number(Entity_Fighter::Wins), gymManWins ? 1 : 0);
        QCOMPARE(after.number(Entity_Fighter::Losses), gymManWins ? 0 : 1);
        const Entity_Manager manager = world().managerRecord();
        QCOMPARE(manager.value(Entity_Manager::OverallWins), gymManWins ? 1 : 0);
        QCOMPARE(manager.value(Entity_Manager::OverallLosses), gymManWins ? 0 : 1);
        QCOMPARE(manager.titleList().size(), gymManWins && title ? 1 : 0);
        // the other man's career goes through his roster
        const Entity_Fighter rosterAfter = rosterFighter(OpponentId);
        QCOMPARE(rosterAfter.number(Entity_Fighter::Wins), gymManWins ? 0 : 1);
        QCOMPARE(rosterAfter.history().size(), 1);

        // one move, the winner's score down and the loser's up by it
        const int gymMove = after.getRankingScore() - gymMan.getRankingScore();
        const int rosterMove = rosterAfter.getRankingScore() - opponent.getRankingScore();
        QVERIFY(gymMove != 0);
        QCOMPARE(gymMove, -rosterMove);
        QCOMPARE(gymMove < 0, gymManWins);

        // he is free to be booked again, and the belt has its holder
        QCOMPARE(world().bookingsByFighter().value(gymMan.fullName()), QString("N/A - N/A"));
        Entity_Org::Titles titles;
        world().organisation(Org).titlesCopy(titles);
        QCOMPARE(titles.value(Title), title ? (gymManWins ? gymMan : opponent).fullName() : QString("Vacant"));
        QCOMPARE(outcome.titleChanged, title);
        // the money comes with the summary, not here
        QCOMPARE(world().gymRecord().value(Entity_Gym::Money), moneyBefore);
    }

    // A fantasy night writes nothing anywhere, whoever wins.
    void aFantasyMatchLeavesTheWorldAlone()
    {
        QVERIFY(load());
        const QByteArray before = SavedWorld::runningBytes();
        Entity_Fighter visitor = rosterMan(999, "Visitor", 500, 70, false);
        const Entity_Event fantasy = world().makeFantasyEvent(visitor, 0);
        QVERIFY(fantasy.isFantasyMatch());
        CommentaryBuffer words;
        FightNight night(world(), fantasy, &words);
        QCOMPARE(playNight(night), 0);
        QCOMPARE(night.resultLines().size(), 1);
        QVERIFY(night.userFighterStats().isEmpty());
        world().removeFantasyFighters();
        QCOMPARE(SavedWorld::runningBytes(), before);
    }

    // The whole night: the stranger's match has no corner, the user's man has one at every bell,
    // the announcer speaks of the title, and the results stand in the world, so that the night
    // counts as fought.
    void aNightIsFoughtToItsResults()
    {
        QVERIFY(load());
        CommentaryBuffer words;
        FightNight night(world(), tonight(), &words);
        int bellsOfTheUser = 0;
        const int corners = playNight(night, [&](FightNight &n) {
            QVERIFY(n.isUserMatch());
            ++bellsOfTheUser;
            QStringList texts;
            QList<int> codes;
            n.observations(texts, codes);
            QCOMPARE(texts.size(), 5);
            QCOMPARE(n.userStatus().size(), int(MatchStatus::Count));
            n.tendFighter(2, 2, 2, 1);
        });
        QCOMPARE(corners, bellsOfTheUser);

        const QStringList &lines = words.paragraphs();
        QCOMPARE(lines.value(0), "Good evening, and welcome to " + NightName + "!");
        QVERIFY(lines.contains("Tonight, the " + Org + " World Championship is on the line!"));
        QVERIFY(lines.contains("This is the championship match! The " + Org + " World Championship is at stake!\n"));
        QVERIFY(
            lines.contains("Ladies and gentlemen, this concludes " + NightName + ". I hope you enjoyed the event. \n"));

        QCOMPARE(night.resultLines().size(), 2);
        QVERIFY(night.resultLines()[0].startsWith("Single Match - "));
        QVERIFY(night.resultLines()[1].startsWith("Championship Match - "));
        QCOMPARE(storedResults(), night.resultLines());
        QVERIFY(world().todaysUserEvents().isEmpty());

        // his statistics and his entry go on to the summary
        QCOMPARE(night.userFighterId(), GymId);
        QCOMPARE(night.userFighterStats().size(), int(MatchStatus::Count));
        const ResultEntry entry(night.userCareerEntry());
        QVERIFY(entry.isWin() || entry.isLoss());
        QCOMPARE(entry.title(), Title);
        QCOMPARE(world().fighterById(GymId).history().size(), 1);
    }

    // From the third bell on the judges tally; one for each man and one even card is no
    // majority, and the match goes on into a fourth round.
    void aSplitOfOneAndOneGoesToAFourthRound()
    {
        bool seen = false;
        for (quint32 seed = 1; seed <= 400 && !seen; ++seed) {
            Random::useTestClock(seed);
            Setup setup;
            setup.stayers = true;
            setup.strangersFirst = false;
            QVERIFY(load(setup));
            CommentaryBuffer words;
            FightNight night(world(), tonight(), &words);
            night.welcome();
            QVERIFY(night.startNextMatch());
            for (int round = 1; round <= 3; ++round) {
                night.beginRound();
                Moment moment = night.step();
                while (moment == Moment::Fighting)
                    moment = night.step();
                QCOMPARE(moment, Moment::Bell);
            }
            QVERIFY(night.tallyDue());
            night.tally();
            QVERIFY(night.isMatchOver());
            const qsizetype readOut = words.paragraphs().size();
            const MatchEnd end = night.endMatch();
            const QStringList cards = words.paragraphs().mid(readOut, 3);
            const int even = int(cards.filter(" draw.").size());
            const int forOne = int(cards.filter(" for Gym Cedar").size());
            if (even != 1 || forOne != 1)
                continue;
            seen = true;
            QCOMPARE(end, MatchEnd::ExtensionRound);
            QCOMPARE(words.paragraphs().value(readOut + 3), "It's a draw! We are going to an extension round!\n");
            QVERIFY(!night.isMatchOver());
            QCOMPARE(night.roundNumber(), 4);
            night.beginRound();
            QVERIFY(words.paragraphs().contains("Round 4!"));
            QVERIFY(night.resultLines().isEmpty());
        }
        QVERIFY2(seen, "no seed gave one card to each man and one even after three rounds");
    }

    // A round that ends while a man is down: the bell saves him, and he comes out for the next
    // round as if he had never gone down.
    void theBellSavesAManFromTheCount()
    {
        bool seen = false;
        for (quint32 seed = 1; seed <= 300 && !seen; ++seed) {
            Random::useTestClock(seed);
            Setup setup;
            setup.gymLevel = 70;
            setup.opponentLevel = 40;
            setup.strangersFirst = false;
            QVERIFY(load(setup));
            FightNight night(world(), tonight(), nullptr);
            night.welcome();
            QVERIFY(night.startNextMatch());
            night.beginRound();
            Moment moment = night.step();
            while (moment == Moment::Fighting)
                moment = night.step();
            MatchManager &engine = MatchManager::instance();
            if (moment != Moment::Bell || engine.getFighterTwo()->stateName() != QLatin1String("State_Gen_KD"))
                continue;
            seen = true;
            QVERIFY(!night.isMatchOver());
            QCOMPARE(night.roundNumber(), 2);
            QCOMPARE(night.clockSeconds(), 180);
            night.tendFighter(0, 0, 0, 0);
            night.beginRound();
            QVERIFY(engine.getFighterTwo()->stateName() != QLatin1String("State_Gen_KD"));
            QVERIFY(night.step() != Moment::Over || engine.getWinner());
        }
        QVERIFY2(seen, "no seed ended a round in the middle of a count");
    }

    // A stoppage ends the match at the step that brings it: the clock does not move after it.
    void aKnockoutStopsTheClock()
    {
        Setup setup;
        setup.gymLevel = 95;
        setup.opponentLevel = 5;
        setup.strangersFirst = false;
        QVERIFY(load(setup));
        FightNight night(world(), tonight(), nullptr);
        night.welcome();
        QVERIFY(night.startNextMatch());
        night.beginRound();
        int clock = night.clockSeconds();
        Moment moment = night.step();
        while (moment == Moment::Fighting) {
            QVERIFY(night.clockSeconds() < clock);
            clock = night.clockSeconds();
            moment = night.step();
        }
        QCOMPARE(moment, Moment::Over);
        QCOMPARE(night.clockSeconds(), clock);
        QCOMPARE(night.roundNumber(), 1);
        QVERIFY(night.isMatchOver());
        QCOMPARE(night.endMatch(), MatchEnd::CardDone);
        QVERIFY(night.resultLines().value(0).contains(" by KO(") || night.resultLines().value(0).contains(" by TKO("));
    }

    // One shout between two steps, and only in his own match; the corner's order is obeyed
    // whatever the roll says. A man of 99 in every attribute always obeys a shout as well.
    void oneInstructionAStep()
    {
        QVERIFY(load());
        FightNight strangers(world(), tonight(), nullptr);
        QVERIFY(strangers.startNextMatch());
        strangers.beginRound();
        QVERIFY(!strangers.isUserMatch());
        QVERIFY(strangers.instructions().isEmpty());
        QVERIFY(!strangers.callInstruction("Knock his head off and let's go home!"));

        Setup setup;
        setup.strangersFirst = false;
        setup.gymLevel = 99;
        QVERIFY(load(setup));
        FightNight night(world(), tonight(), nullptr);
        QVERIFY(night.startNextMatch());
        QVERIFY(night.isUserMatch());
        night.beginRound();
        const auto tactic = [&] { return night.userStatus().value(MatchStatus::Tactic); };
        QCOMPARE(night.instructions().value(0), QString("Keep doing what you're doing."));
        QVERIFY(night.callInstruction("Press forward and punish him when you can."));
        QCOMPARE(tactic(), 7);
        // a second line in the same step is not sent
        QVERIFY(!night.callInstruction("Knock him out already!"));
        QCOMPARE(tactic(), 7);
        // after a step he may be told again; the last line on offer always changes his tactic
        QCOMPARE(night.step(), Moment::Fighting);
        const int before = tactic();
        QVERIFY(night.callInstruction(night.instructions().last()));
        QVERIFY(tactic() != before);
        // the corner is obeyed, order after order
        night.cornerStrategy("Keep doing what you're doing.");
        night.cornerStrategy(night.instructions().value(3));
        QVERIFY(tactic() != 0);
    }
};

QTEST_GUILESS_MAIN(tst_FightNight)
#include "tst_fightnight.moc"
