#pragma once

#include "fighters/Entity_Fighter.h"
#include "world/Entity_Org.h"
#include "world/WorldState.h"

#include <QMultiMap>
#include <QString>

// The world of a new game, read from the default files: the eighteen organisations in their
// order, then the free agents and the amateurs, in a world of the first day.
class DefaultWorld
{
public:
    using FighterList = QMultiMap<int, Entity_Fighter>; // ranking score to fighter

    static WorldState read();
    // A new game on the default world for the tools and tests that choose nothing: a manager
    // from East Asia with every skill at its lowest, and his gym.
    static void startPlainGame();

    // One organisation's file. A file that can't be read gives an organisation with the table's
    // name and nothing else, so the world keeps its eighteen places.
    static Entity_Org readOrganisation(const QString &path, const QString &name);
    // One list of men; empty when the file can't be read whole.
    static FighterList readFighterList(const QString &path);
    // the men of `list` join `into` under their keys, men with equal keys kept in their order
    static void addFighters(FighterList &into, const FighterList &list);
};
