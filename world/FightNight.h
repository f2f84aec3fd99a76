#pragma once

#include "fighters/Entity_Fighter.h"
#include "match/WholeMatch.h"
#include "world/Entity_Event.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class CommentarySink;
class GameManager;

// One of the user's fight nights, played in front of him: the card in its order, each match
// through the engine a step at a time with the announcer's words between the steps, the judges'
// cards read out, rounds beyond the third while the judges have no majority, and each result
// written into the world as the day flow writes the world's matches, the user's own man through
// the gym's books. A fantasy night writes nothing. The screen drives it stage by stage, shows what
// it says and lets the user work his man's corner through it.
class FightNight
{
public:
    // where the user's man stands in the running match, or in the last one
    enum Side { UserFirst = 0, UserSecond = 1, NoUser = 2 };
    // what follows the end of a match
    enum class MatchEnd { ExtensionRound, NextMatch, CardDone };

    // the night's words and the engine's commentary both go to `commentary`
    FightNight(GameManager &world, const Entity_Event &event, CommentarySink *commentary);
    ~FightNight();
    FightNight(const FightNight &) = delete;
    FightNight &operator=(const FightNight &) = delete;

    // --- the stages of the night, in their order -------------------------------------------------
    void welcome();
    // The next match of the card: announced, its men fetched and handed to the engine. A slot
    // that cannot be fought (an open place, a man gone) is passed by; false when the card is done.
    bool startNextMatch();
    // the first round or the next one, with the referee's words
    void beginRound();
    // One step and the clock. At the bell the round is told and scored, the round number moves
    // on and the clock stands at 3:00 again; a stoppage ends the match at once.
    WholeMatch::Moment step();
    // after the bell of the third round or a later one the judges tally their cards
    bool tallyDue() const;
    void tally();
    // The match is over: the cards are read out after a decision and a decision without a
    // majority goes on into an extension round; otherwise the result is told and written into the
    // world, a tournament's winner placed and the card read again.
    MatchEnd endMatch();
    // the night's last words, and its results stored, so that it counts as fought
    void conclude();

    // --- the corner ---------------------------------------------------------------------------------
    // the instructions on offer to the user's man now; none in a match that is not his
    QStringList instructions() const;
    // A line shouted during a round, obeyed or not as the roll says; at most one goes out between
    // two steps. True when he obeyed.
    bool callInstruction(const QString &text);
    // between rounds the man always obeys; the last order of a corner stands
    void cornerStrategy(const QString &text);
    // the four kinds of care of a corner: heal, water, motivate, strategy
    void tendFighter(int heal, int water, int motivate, int strategy);
    // the man's state in words: his stamina first, then head, body, arms and legs; each line
    // with its code (the band, then 4 for a sound part down to 0 for a spent one)
    void observations(QStringList &texts, QList<int> &codes) const;
    // the 44 numbers of the user's man now
    QList<int> userStatus() const;
    // the manager's points to spread in each corner
    int trainerPoints() const;

    // --- what the screen shows ----------------------------------------------------------------------
    const Entity_Event &event() const { return night; }
    // one line for each match: type, " - ", first man, " vs. ", second man
    QStringList cardLines() const;
    int matchCursor() const { return cursor; }
    int matchNumber() const { return matchesStarted; }
    int roundNumber() const { return round; }
    int clockSeconds() const { return clock; }
    // "3:00", "0:07"
    QString clockText() const;
    bool isMatchOver() const { return matchOver; }
    int userSide() const { return side; }
    bool isUserMatch() const { return side != NoUser; }
    const Entity_Fighter &fighterOne() const { return one; }
    const Entity_Fighter &fighterTwo() const { return two; }
    // name, age, nationality, background and record of one of the two men
    static QStringList tapeLines(const Entity_Fighter &man);
    QStringList resultLines() const { return results; }
    // the user's man on this card, his 44 numbers at the end of his match and his career entry
    int userFighterId() const { return userId; }
    QList<int> userFighterStats() const { return userStats; }
    QString userCareerEntry() const { return userEntry; }

private:
    void print(const QString &paragraph);
    void readTheCards();
    int userManId() const;
    // the event as the world holds it now, found by its name among today's nights of the user
    void rereadCard();

    GameManager &world;
    Entity_Event night;
    CommentarySink *commentary;
    std::unique_ptr<WholeMatch> match;
    int cursor = 0;
    int matchesStarted = 0;
    int round = 1;
    int clock = 180;
    bool matchOver = false;
    bool instructionGiven = false;
    int side = NoUser;
    Entity_Fighter one;
    Entity_Fighter two;
    QStringList results;
    int userId = 0;
    QList<int> userStats;
    QString userEntry;
};
