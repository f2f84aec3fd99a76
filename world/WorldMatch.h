#pragma once

#include "match/WholeMatch.h"

#include <QString>

class Entity_Event;
class Entity_Fighter;
class Entity_Match;
class GameManager;

// One match of the world, fought through the match engine with nobody watching, and written
// into the world at once: both careers, the rank move, the title of a championship or of a
// tournament final. What the night's results need comes back. A match fought in front of the
// user goes into the world by the same writing, his own man through the gym's books.
class WorldMatch
{
public:
    struct Outcome {
        // None when the match was not fought
        WholeMatch::Ending ending = WholeMatch::Ending::None;
        // the match type, " - " and the result line
        QString line;
        int winnerId = 0;
        int loserId = 0;
        // the two career entries as they went into the careers
        QString winnerEntry;
        QString loserEntry;
        // the winner of a tournament round who fights on; 0 for every other match
        int advancingId = 0;
        bool titleChanged = false;
    };

    // A slot with an open place, or naming a man whom the roster no longer holds, is not fought
    // and changes nothing.
    static Outcome fight(GameManager &world, const Entity_Event &event, const Entity_Match &match);

    // The men of a slot as the night finds them, copies for the engine: the user's man from the
    // gym, the others from the roster, both men of a fantasy night from the amateurs. `gymSide`
    // says which of the two is the user's: 0 the first, 1 the second, 2 neither. False, and
    // nobody to fight, for an open place or a man who is no longer where the slot says.
    static bool findMen(const GameManager &world, const Entity_Event &event, const Entity_Match &match,
                        Entity_Fighter &first, Entity_Fighter &second, int &gymSide);

    // A fought match written into the world. `first` and `second` are the men as they stood
    // before it, `gymFighterId` the user's man among them or 0. His career goes through the gym
    // (his record and the manager's), his ranking score moves and his booking is cleared; a man
    // of the world goes through his roster. A fantasy night writes nothing, and only the texts
    // come back.
    static Outcome record(GameManager &world, const Entity_Event &event, const Entity_Match &match,
                          const Entity_Fighter &first, const Entity_Fighter &second, const WholeMatch::Result &fought,
                          int gymFighterId = 0);
};
