#include "persistence/DefaultWorld.h"

#include "fighters/StreamForm.h"
#include "persistence/DataFile.h"
#include "persistence/DefaultFiles.h"
#include "world/GameManager.h"
#include "world/OrgTable.h"

Entity_Org DefaultWorld::readOrganisation(const QString &path, const QString &name)
{
    Entity_Org organisation;
    if (DataFile::read(path, [&organisation](QDataStream &in) { in >> organisation; }))
        return organisation;
    Entity_Org empty;
    empty.unpack({name, QString(), QString(), QString(), QString(), QString(), "Willing"}, {}, {}, {}, {});
    return empty;
}

DefaultWorld::FighterList DefaultWorld::readFighterList(const QString &path)
{
    FighterList list;
    if (!DataFile::read(path, [&list](QDataStream &in) { StreamForm::readMultiMap(in, list); }))
        list.clear();
    return list;
}

void DefaultWorld::addFighters(FighterList &into, const FighterList &list)
{
    // a new entry goes before its equals, so the last one goes in first
    auto it = list.constEnd();
    while (it != list.constBegin()) {
        --it;
        into.insert(it.key(), it.value());
    }
}

WorldState DefaultWorld::read()
{
    WorldState world;
    for (int i = 0; i < OrgTable::Count; ++i)
        world.organisations.append(
            readOrganisation(DefaultFiles::path(DefaultFiles::organisationFile(OrgTable::key(i))), OrgTable::name(i)));
    for (int n = 1; n <= DefaultFiles::FreeAgentLists; ++n)
        addFighters(world.freeAgents, readFighterList(DefaultFiles::path(DefaultFiles::freeAgentFile(n))));
    for (int n = 1; n <= DefaultFiles::AmateurLists; ++n)
        addFighters(world.amateurs, readFighterList(DefaultFiles::path(DefaultFiles::amateurFile(n))));
    return world;
}

void DefaultWorld::startPlainGame()
{
    GameManager::NewGame choices;
    choices.firstName = "Ken";
    choices.lastName = "Saito";
    choices.region = "East Asia";
    choices.nation = "Japan";
    choices.gymName = "Tiger Den";
    choices.gymStyle = "Muay Thai";
    choices.primaryColour = "Gold";
    choices.secondaryColour = "Black";
    GameManager::instance().startNewGame(choices, read());
}
