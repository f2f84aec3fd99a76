#include "world/GameManager.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_Manager.h"

GameManager &GameManager::instance()
{
    static GameManager world;
    return world;
}

GameManager::GameManager()
{
    resetWorld();
}

GameManager::~GameManager() = default;

void GameManager::resetWorld()
{
    manager = std::make_unique<Entity_Manager>();
    gym = std::make_unique<Entity_Gym>();
    nextId = 1058;
    currentDate = QDate(2011, 1, 1);
}
