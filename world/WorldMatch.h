#pragma once

#include "match/WholeMatch.h"

#include <QString>

class Entity_Event;
class Entity_Match;
class GameManager;

// One match of the world, fought through the match engine with nobody watching, and written
// into the world at once: both careers, the rank move, the title of a championship or of a
// tournament final. What the night's results need comes back.
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
};
