#pragma once

#include "fighters/FighterGenerator.h"
#include "world/Entity_Event.h"
#include "world/GymOffice.h"
#include "world/GymPeople.h"
#include "world/WorldCalendar.h"
#include "world/WorldContracts.h"
#include "world/WorldRosters.h"
#include "world/WorldState.h"

#include <QList>
#include <QString>

// The world value of the one GameManager, in a base of its own so that it stands before the
// rooms that work on it.
struct GameManagerWorld {
    WorldState saved;
};

// The whole saved world, one for the process. Every screen and every job of the day reads and
// changes the world through these operations; records come out as copies and are found again by
// id or name, and a name or id that no list holds gives a default value or changes nothing.
//
// The operations stand in rooms by subject, each a class of its own that works on the one world
// value, and GameManager is all of them at once:
//   WorldCalendar   the date and the nights: today's events, their results, booking, a new year
//   WorldRosters    the organisations and the men of the world: rosters, rankings, titles
//   WorldContracts  the ties of the user's men to the organisations: bookings and offers
//   GymPeople       the gym's students and fighters: records, looks, promotion, fight results
//   GymOffice       the gym and the manager: records, money, equipment, the month
// Here stand the ways into the world: a new game, a loaded one, and a new man.
class GameManager : private GameManagerWorld,
                    public WorldCalendar,
                    public WorldRosters,
                    public WorldContracts,
                    public GymPeople,
                    public GymOffice
{
public:
    static GameManager &instance();

    GameManager(const GameManager &) = delete;
    GameManager &operator=(const GameManager &) = delete;

    // a new empty gym and manager, the first id, the first day and empty lists
    void resetWorld();
    // the whole world as a save holds it
    const WorldState &state() const { return saved; }
    // a loaded world replaces the running one whole
    void takeWorld(WorldState world);

    // what the user chose on the two pages of a new game
    struct NewGame {
        QString firstName;
        QString lastName;
        QString region;
        QString nation;
        QList<int> skills; // the 18 skills and abilities in the manager's order; missing ones are 0
        QString gymName;
        QString gymStyle;
        QString primaryColour;
        QString secondaryColour;
    };
    // A new game on the first day with the first id: an unknown manager and a new gym as chosen,
    // and the organisations, free agents and amateurs of `defaultWorld`.
    void startNewGame(const NewGame &choices, const WorldState &defaultWorld);

    int getNextId() const { return saved.nextId; }
    // Makes one person from the book's nations and names. With `forGym` a student joins the gym,
    // unless it is full or no free name is left, and the result is true; without it a free agent
    // takes the next id, and the result is false. `nameOut` gets the full name of the man made.
    bool generateFighter(const FighterGenerator::NameBook &book, QString &nameOut, bool forGym);

    // A man of another game joins the free agents as a new man of this world: a fresh id, no
    // history, no belts and no contract; his record, looks and ranking score come with him.
    // Gives his new id.
    int importFighter(const Entity_Fighter &man);
    // A one-night bout of the gym fighter at `index` against a man of another game, which the
    // world never sees: copies of both stand among the amateurs under ids of their own until
    // removeFantasyFighters(). The event stands in no calendar.
    Entity_Event makeFantasyEvent(const Entity_Fighter &visitor, int index);
    void removeFantasyFighters();
    // the two fantasy copies, the gym's man and his guest
    static constexpr int FantasyGymFighterId = -116;
    static constexpr int FantasyVisitorId = -117;

private:
    GameManager();
};
