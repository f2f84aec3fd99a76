#pragma once

#include <QDate>

#include <memory>

class Entity_Gym;
class Entity_Manager;

// The whole saved world, one for the process.
class GameManager
{
public:
    static GameManager &instance();

    // a new empty gym and manager, the first id and the first day
    void resetWorld();

    int getNextId() const { return nextId; }
    QDate getCurrentDate() const { return currentDate; }

private:
    GameManager();
    ~GameManager();

    int nextId = 1058;
    QDate currentDate{2011, 1, 1};
    std::unique_ptr<Entity_Manager> manager;
    std::unique_ptr<Entity_Gym> gym;
};
