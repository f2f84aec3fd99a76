#include "common/NightWorld.h"

#include "fighters/MatchStatus.h"
#include "fighters/ResultEntry.h"
#include "match/CommentaryBuffer.h"
#include "world/FightNight.h"
#include "world/WorldMatch.h"

#include <QRegularExpression>
#include <QtTest>

#include <functional>
#include <memory>

using namespace NightWorld;
using WorldSamples::game;
using Moment = WholeMatch::Moment;
using MatchEnd = FightNight::MatchEnd;

namespace {

const QString MainEvent = QStringLiteral("This is it! The main event! Who will reign supreme?\n");

Entity_Event tonight()
{
    return game().todaysUserEvents().value(0);
}

Moment fightRound(FightNight &night)
{
    night.beginRound();
    Moment moment = night.step();
    while (moment == Moment::Fighting)
        moment = night.step();
    return moment;
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
            if (fightRound(night) == Moment::Over) {
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

// the user's match alone on tonight's card, begun; none if the night would not load
std::unique_ptr<FightNight> usersMatch(Setup setup, CommentaryBuffer *words = nullptr)
{
    setup.strangersFirst = false;
    if (!load(setup))
        return {};
    auto night = std::make_unique<FightNight>(game(), tonight(), words);
    night->welcome();
    return night->startNextMatch() ? std::move(night) : nullptr;
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
        game().resetWorld();
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
        const Entity_Fighter gymMan = game().fighterById(GymId).fighter();
        const Entity_Fighter opponent = game().rosterFighter(Org, OpponentId);
        const Entity_Fighter &winner = gymManWins ? gymMan : opponent;
        const Entity_Fighter &loser = gymManWins ? opponent : gymMan;
        const int moneyBefore = game().gymRecord().value(Entity_Gym::Money);
        // the winner stopped the loser in round 2
        WholeMatch::Result fought;
        fought.ending = WholeMatch::Ending::Knockout;
        fought.winnerId = winner.getId();
        fought.loserId = loser.getId();
        fought.line = winner.fullName() + " defeated " + loser.fullName() + " by KO(Hook) in 1:10 of Round 2.";
        fought.winnerEntry = "Win: " + loser.fullName() + " - KO(Hook) - Rd. 2(1:10)";
        fought.loserEntry = "Loss: " + winner.fullName() + " - KO(Hook) - Rd. 2(1:10)";
        fought.rounds = 2;
        const Entity_Event event = tonight();
        const auto outcome = WorldMatch::record(game(), event, event.matchAt(1), gymMan, opponent, fought, GymId);

        const bool title = matchType == QLatin1String(Entity_Match::ChampionshipMatch);

        // his record goes through the gym's books, the other man's through his roster
        const Entity_GymFighter after = game().fighterById(GymId);
        QCOMPARE(after.number(Entity_Fighter::Wins), gymManWins ? 1 : 0);
        QCOMPARE(after.number(Entity_Fighter::Losses), gymManWins ? 0 : 1);
        const Entity_Fighter rosterAfter = game().rosterFighter(Org, OpponentId);
        QCOMPARE(rosterAfter.number(Entity_Fighter::Wins), gymManWins ? 0 : 1);
        QCOMPARE(rosterAfter.history().size(), 1);

        // one move, the winner's score down and the loser's up by it
        const int gymMove = after.getRankingScore() - gymMan.getRankingScore();
        QCOMPARE(gymMove, opponent.getRankingScore() - rosterAfter.getRankingScore());
        QCOMPARE(gymMove < 0, gymManWins);

        // he is free to be booked again, the belt has its holder, and the money comes with the summary
        QCOMPARE(game().bookingsByFighter().value(gymMan.fullName()), QString("N/A - N/A"));
        QCOMPARE(WorldSamples::titlesOf(Org).value(Title), title ? winner.fullName() : QString("Vacant"));
        QCOMPARE(outcome.titleChanged, title);
        QCOMPARE(game().gymRecord().value(Entity_Gym::Money), moneyBefore);
    }

    void aFantasyMatchLeavesTheWorldAlone()
    {
        QVERIFY(load());
        const QByteArray before = SavedWorld::runningBytes();
        const Entity_Event fantasy = game().makeFantasyEvent(rosterMan(999, "Visitor", 500, 70, false), 0);
        CommentaryBuffer words;
        FightNight night(game(), fantasy, &words);
        QCOMPARE(playNight(night), 0);
        // a card of one match: it is the main event
        QVERIFY(words.paragraphs().contains(MainEvent));
        QCOMPARE(night.resultLines().size(), 1);
        QVERIFY(night.userFighterStats().isEmpty());
        game().removeFantasyFighters();
        QCOMPARE(SavedWorld::runningBytes(), before);
    }

    // The whole night: the stranger's match has no corner, the user's man has one at every bell,
    // the announcer speaks of the title, and the results stand in the world.
    void aNightIsFoughtToItsResults()
    {
        QVERIFY(load());
        CommentaryBuffer words;
        FightNight night(game(), tonight(), &words);
        const auto corner = [](FightNight &n) {
            QVERIFY(n.isUserMatch());
            n.tendFighter(2, 2, 2, 1);
        };
        QVERIFY(playNight(night, corner) > 0);

        const QStringList &lines = words.paragraphs();
        QCOMPARE(lines.value(0), "Good evening, and welcome to " + NightName + "!");
        QVERIFY(lines.contains("Tonight, the " + Org + " World Championship is on the line!"));
        QVERIFY(lines.contains("This is the championship match! The " + Org + " World Championship is at stake!\n"));
        // the title fight closes the card, so no match is called the main event
        QVERIFY(!lines.contains(MainEvent));
        QVERIFY(
            lines.contains("Ladies and gentlemen, this concludes " + NightName + ". I hope you enjoyed the event. \n"));
        QVERIFY(night.resultLines().value(0).startsWith("Single Match - "));
        QVERIFY(night.resultLines().value(1).startsWith("Championship Match - "));
        QCOMPARE(storedResults(), night.resultLines());
        QVERIFY(game().todaysUserEvents().isEmpty());
        // his statistics and his entry go on to the summary
        QCOMPARE(night.userFighterId(), GymId);
        QCOMPARE(night.userFighterStats().size(), int(MatchStatus::Count));
        QCOMPARE(ResultEntry(night.userCareerEntry()).title(), Title);
        QCOMPARE(game().fighterById(GymId).history().size(), 1);
    }

    // After three rounds that one man clearly won, each judge's card is read for him, the higher
    // total first, whichever corner he fought from.
    void theCardsAreReadForTheirMan_data()
    {
        QTest::addColumn<int>("gymLevel");
        QTest::addColumn<int>("opponentLevel");
        QTest::addColumn<QString>("winner");
        QTest::newRow("the user's man, the first named") << 90 << 10 << "Gym Cedar";
        QTest::newRow("his opponent, the second named") << 10 << 90 << "Roster Dunn";
    }
    void theCardsAreReadForTheirMan()
    {
        QFETCH(int, gymLevel);
        QFETCH(int, opponentLevel);
        QFETCH(QString, winner);
        Setup setup;
        setup.unbreakable = true;
        setup.gymLevel = gymLevel;
        setup.opponentLevel = opponentLevel;
        CommentaryBuffer words;
        const auto night = usersMatch(setup, &words);
        QVERIFY(night);
        for (int round = 1; round <= 3; ++round) {
            QCOMPARE(fightRound(*night), Moment::Bell);
            // the bell sets the clock for the next round
            QCOMPARE(night->clockSeconds(), 180);
        }
        night->tally();
        const qsizetype readOut = words.paragraphs().size();
        QCOMPARE(night->endMatch(), MatchEnd::CardDone);
        const QStringList cards = words.paragraphs().mid(readOut, 3);
        const QStringList judges{"first", "second", "final"};
        const QRegularExpression card("^The (\\w+) judge scores the fight (\\d+)-(\\d+) for (.+)$");
        for (int judge = 0; judge < 3; ++judge) {
            const QRegularExpressionMatch read = card.match(cards.value(judge));
            QVERIFY2(read.hasMatch(), qPrintable(cards.value(judge)));
            QCOMPARE(read.captured(1), judges[judge]);
            QVERIFY(read.captured(2).toInt() > read.captured(3).toInt());
            QCOMPARE(read.captured(4), winner);
        }
    }

    // From the third bell on the judges tally; one card for each man and one even card is no
    // majority, and the match goes on into a fourth round.
    void aSplitOfOneAndOneGoesToAFourthRound()
    {
        for (quint32 seed = 1; seed <= 400; ++seed) {
            Random::useTestClock(seed);
            Setup setup;
            setup.stayers = true;
            CommentaryBuffer words;
            const auto night = usersMatch(setup, &words);
            QVERIFY(night);
            for (int round = 1; round <= 3; ++round) {
                QCOMPARE(fightRound(*night), Moment::Bell);
                QCOMPARE(night->tallyDue(), round == 3);
            }
            night->tally();
            const qsizetype readOut = words.paragraphs().size();
            const MatchEnd end = night->endMatch();
            const QStringList cards = words.paragraphs().mid(readOut, 3);
            if (cards.filter(" draw.").size() != 1 || cards.filter(" for Gym Cedar").size() != 1)
                continue;
            QCOMPARE(end, MatchEnd::ExtensionRound);
            QCOMPARE(words.paragraphs().value(readOut + 3), "It's a draw! We are going to an extension round!\n");
            QVERIFY(!night->isMatchOver());
            QCOMPARE(night->roundNumber(), 4);
            night->beginRound();
            QVERIFY(words.paragraphs().contains("Round 4!"));
            QVERIFY(night->resultLines().isEmpty());
            return;
        }
        QFAIL("no seed gave one card to each man and one even after three rounds");
    }

    // A stoppage ends the match at the step that brings it: the clock does not move after it.
    void aKnockoutStopsTheClock()
    {
        Setup setup;
        setup.gymLevel = 95;
        setup.opponentLevel = 5;
        const auto night = usersMatch(setup);
        QVERIFY(night);
        night->beginRound();
        int clock = night->clockSeconds();
        Moment moment = night->step();
        while (moment == Moment::Fighting) {
            QVERIFY(night->clockSeconds() < clock);
            clock = night->clockSeconds();
            moment = night->step();
        }
        QCOMPARE(moment, Moment::Over);
        QCOMPARE(night->clockSeconds(), clock);
        QCOMPARE(night->roundNumber(), 1);
        QCOMPARE(night->endMatch(), MatchEnd::CardDone);
        QVERIFY(night->resultLines().value(0).contains("KO("));
    }

    // One shout between two steps, and only in his own match; a man of 99 in every attribute
    // always obeys.
    void oneInstructionAStep()
    {
        QVERIFY(load());
        FightNight strangers(game(), tonight(), nullptr);
        QVERIFY(strangers.startNextMatch());
        strangers.beginRound();
        QVERIFY(!strangers.callInstruction("Knock his head off and let's go home!"));

        Setup setup;
        setup.gymLevel = 99;
        const auto night = usersMatch(setup);
        QVERIFY(night);
        night->beginRound();
        const auto tactic = [&] { return night->userStatus().value(MatchStatus::Tactic); };
        QVERIFY(night->callInstruction("Press forward and punish him when you can."));
        QCOMPARE(tactic(), 7);
        QVERIFY(!night->callInstruction("Knock him out already!"));
        QCOMPARE(night->step(), Moment::Fighting);
        QVERIFY(night->callInstruction(night->instructions().last()));
        QVERIFY(tactic() != 7);
    }
};

QTEST_GUILESS_MAIN(tst_FightNight)
#include "tst_fightnight.moc"
