#include "world/GameManager.h"

#include "fighters/GameLists.h"
#include "fighters/Random.h"
#include "fighters/ReputationScale.h"

#include <QSet>

#include <algorithm>

namespace {

// a student has no id of his own until he turns professional
constexpr int StudentId = 2000;
// every id below this marks a copy of a fantasy night
constexpr int FantasyIdLimit = -100;

// the full names of every man of the world and the gym
QSet<QString> takenNames(const WorldState &world)
{
    QSet<QString> names;
    for (const Entity_Fighter &man : world.students)
        names.insert(man.fullName());
    for (const Entity_GymFighter &man : world.fighters)
        names.insert(man.fullName());
    for (const Entity_Fighter &man : world.freeAgents)
        names.insert(man.fullName());
    for (const Entity_Fighter &man : world.amateurs)
        names.insert(man.fullName());
    for (const Entity_Org &organisation : world.organisations) {
        Entity_Org::Roster roster;
        organisation.rosterCopy(roster);
        for (const Entity_Fighter &man : std::as_const(roster))
            names.insert(man.fullName());
    }
    return names;
}

} // namespace

GameManager &GameManager::instance()
{
    static GameManager world;
    return world;
}

GameManager::GameManager()
    : WorldCalendar(saved)
    , WorldRosters(saved)
    , WorldContracts(saved)
    , GymPeople(saved)
    , GymOffice(saved)
{
}

void GameManager::resetWorld()
{
    saved = WorldState();
}

void GameManager::takeWorld(WorldState world)
{
    saved = std::move(world);
}

void GameManager::startNewGame(const NewGame &choices, const WorldState &defaultWorld)
{
    WorldState world;
    world.manager.unpack({choices.firstName, choices.lastName, choices.region, choices.nation,
                          world.manager.text(Entity_Manager::ManagerReputation)},
                         world.manager.values(), {});
    world.manager.setSkills(choices.skills);
    // a new gym starts with the money and the places of the first day
    world.gym.unpack({choices.gymName, choices.gymStyle, choices.primaryColour, choices.secondaryColour,
                      world.gym.text(Entity_Gym::GymPrestige)},
                     world.gym.values(), world.gym.ledger());
    world.organisations = defaultWorld.organisations;
    world.freeAgents = defaultWorld.freeAgents;
    world.amateurs = defaultWorld.amateurs;
    saved = std::move(world);
}

bool GameManager::generateFighter(const FighterGenerator::NameBook &book, QString &nameOut, bool forGym)
{
    if (forGym && saved.students.size() >= saved.gym.value(Entity_Gym::StudentSlots))
        return false;

    Random::seedFromClock();
    const NationTable::Lists nations = FighterGenerator::nationsOf(book);
    const FighterGenerator::Origin origin = FighterGenerator::chooseOrigin(
        nations, forGym, saved.manager.text(Entity_Manager::Nationality), saved.manager.text(Entity_Manager::Region));
    const QString family = NationTable::familyOf(nations, origin.region, origin.nation);
    const FighterGenerator::Names names = FighterGenerator::namesOf(book, family);
    QString first;
    QString last;
    // with every name of the family in use nobody is made, and no id is spent
    if (!FighterGenerator::drawName(names, takenNames(saved), first, last))
        return false;

    FighterGenerator::Recipe recipe;
    recipe.forGym = forGym;
    recipe.today = saved.currentDate;
    if (forGym) {
        recipe.gymStyle = saved.gym.text(Entity_Gym::GymStyle);
        recipe.gymShorts = saved.gym.text(Entity_Gym::GymShortsColour);
        recipe.gymTrim = saved.gym.text(Entity_Gym::GymTrimColour);
        // a better known gym and manager draw better students
        recipe.grade =
            std::max(0, ReputationScale::bandOfLabel(ReputationScale::Gym, saved.gym.text(Entity_Gym::GymPrestige))) +
            std::max(0, ReputationScale::bandOfLabel(ReputationScale::Manager,
                                                     saved.manager.text(Entity_Manager::ManagerReputation)));
        recipe.seer = saved.manager.value(Entity_Manager::Intuition);
    }
    Entity_Fighter man = FighterGenerator::makePerson(origin, first, last, recipe);
    nameOut = man.fullName();
    if (forGym) {
        man.setId(StudentId);
        saved.students.append(man);
        return true;
    }
    man.setId(++saved.nextId);
    saved.freeAgents.insert(man.getRankingScore(), man);
    return false;
}

int GameManager::importFighter(const Entity_Fighter &man)
{
    Entity_Fighter newcomer = man;
    newcomer.setId(++saved.nextId);
    // his wins and losses stand, but the nights and belts of another world mean nothing here
    newcomer.unpack(newcomer.stringList(), newcomer.integerList(), newcomer.getBirthDate(), {}, {});
    newcomer.setContract(GameLists::FreeAgent, 0);
    saved.freeAgents.insert(newcomer.getRankingScore(), newcomer);
    return saved.nextId;
}

Entity_Event GameManager::makeFantasyEvent(const Entity_Fighter &visitor, int index)
{
    Entity_Fighter home = fighterById(fighterIdAt(index)).fighter();
    Entity_Fighter guest = visitor;
    // both stand at the top of no ranking, under ids that no man of the world can hold
    home.setId(FantasyGymFighterId);
    home.addToRankingScore(-home.getRankingScore());
    guest.setId(FantasyVisitorId);
    guest.addToRankingScore(-guest.getRankingScore());
    saved.amateurs.insert(0, home);
    saved.amateurs.insert(0, guest);

    Entity_Match bout(GameLists::SingleMatch);
    bout.unpack({home.fullName(), guest.fullName(), GameLists::SingleMatch, Entity_Match::OpenPlace},
                FantasyGymFighterId, FantasyVisitorId, false);
    Entity_Event night;
    night.unpack({"Fantasy Match: " + home.fullName() + " vs. " + guest.fullName(), Entity_Event::FantasyOrganisation,
                  "Fantasy Land", "Elite", "Single Event", "No Title"},
                 QDate(2011, 1, 1), {bout}, {}, true);
    return night;
}

void GameManager::removeFantasyFighters()
{
    saved.amateurs.removeIf([](const auto &entry) { return entry.value().getId() < FantasyIdLimit; });
}
