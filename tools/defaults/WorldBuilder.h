#pragma once

#include "SourceData.h"

#include "fighters/Entity_Fighter.h"
#include "fighters/FighterGenerator.h"
#include "persistence/DefaultWorld.h"
#include "world/Entity_Org.h"

#include <QList>
#include <QMap>
#include <QSet>
#include <QStringList>

// Makes the men of the first world and their promotions from the sources: every man comes out of
// the game's own generator of persons, the promotions' men then fight out the years before the
// first day, and the free agents and amateurs are made as the lists ask. The same sources and
// seed give the same world.
class WorldBuilder
{
public:
    explicit WorldBuilder(const SourceData &source);
    // false, with the faults, when the sources can't be turned into a sound world
    bool build(QStringList &faults);

    QList<Entity_Org> organisations;                 // in the table's order
    QList<DefaultWorld::FighterList> freeAgentLists; // lists 1 to 4
    QList<DefaultWorld::FighterList> amateurLists;   // lists 1 to 6
    int highestId() const { return nextId - 1; }

    // the average of the 83 attributes, as the promotions judge a man
    static int skillLevel(const Entity_Fighter &man);

private:
    FighterGenerator::Origin originFrom(const SourceData::Weights &origins) const;
    // a new man of that origin with a free name and the next id; false when no name is left
    bool newMan(const FighterGenerator::Origin &origin, int grade, Entity_Fighter &man, QStringList &faults);
    // born so that he is `age` on the first day, on a day of his own
    void setAge(Entity_Fighter &man, int age) const;
    void buildOrganisation(const SourceData::Organisation &org, QStringList &faults);
    DefaultWorld::FighterList newMen(const SourceData::FighterList &list, QStringList &faults);

    const SourceData &source;
    int nextId = 0;
    QSet<QString> taken;
    QMap<QString, QList<Entity_Fighter>> releasedByPrestige;
};
