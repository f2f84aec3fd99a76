#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/Random.h"
#include "fighters/StreamForm.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Event.h"
#include "world/Entity_Match.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"

#include "common/SavedWorld.h"
#include "common/Streamed.h"
#include "world/WorldInvariants.h"

// Small records of the world for the tests: men, cards, nights and promotions.
namespace WorldSamples {

inline Entity_Fighter fighter(int id, const QString &first, const QString &last, int score,
                              const QString &organisation = "Free Agent", int fightsLeft = 4)
{
    Entity_Fighter f;
    f.setText(Entity_Fighter::FirstName, first);
    f.setText(Entity_Fighter::LastName, last);
    f.setText(Entity_Fighter::Reputation, "Unknown");
    f.setContract(organisation, fightsLeft);
    f.setId(id);
    f.setNumber(Entity_Fighter::RankingScore, score);
    f.setNumber(Entity_Fighter::Age, 25);
    f.setBirthDate(QDate(1986, 6, 15));
    return f;
}

inline Entity_GymFighter gymFighter(int id, const QString &first, const QString &last, int score,
                                    const QString &organisation = "Free Agent", int fightsLeft = 0, int purse = 0)
{
    Entity_GymFighter f(fighter(id, first, last, score));
    // the same man every time: average learner, marketability 2
    f.unpackExtras({1, 0, 2, 0, 0, 0, 0}, QList<int>(Entity_GymFighter::ProgressCount, 0), {});
    f.setContract(organisation, fightsLeft, purse);
    return f;
}

inline Entity_Match slot(const QString &type, const QString &one = "TBA", int oneId = 0, const QString &two = "TBA",
                         int twoId = 0, bool gymBooked = false)
{
    Entity_Match m(type);
    m.unpack({one, two, type, "TBA"}, oneId, twoId, gymBooked);
    return m;
}

inline Entity_Event makeEvent(const QString &name, const QString &organisation, const QDate &date,
                              const QList<Entity_Match> &card, const QString &title = "No Title")
{
    return Entity_Event({name, organisation, "Tokyo", "Elite", "Fight Night", title}, date, card);
}

inline Entity_Event bookedEvent(const Entity_Event &night, bool userBooked)
{
    QStringList strings;
    QDate date;
    QList<Entity_Match> card;
    QStringList results;
    bool booked = false;
    night.pack(strings, date, card, results, booked);
    Entity_Event copy;
    copy.unpack(strings, date, card, results, userBooked);
    return copy;
}

inline Entity_Org organisation(const QString &name, const QList<Entity_Event> &calendar,
                               const QList<Entity_Fighter> &men, const Entity_Org::Titles &titles = {},
                               const QString &prestige = "Elite")
{
    Entity_Org::Roster roster;
    for (const Entity_Fighter &man : men)
        roster.insert(man.getRankingScore(), man);
    Entity_Org org;
    org.unpack({name, "Chief", "Japan", "note", prestige, "A promotion.", "Tentative"}, calendar, {}, roster, titles);
    return org;
}

// every attribute of the man at `value`
template <typename Man> void setAll(Man &man, int value)
{
    for (int a = Entity_Fighter::FirstAttribute; a <= Entity_Fighter::LastAttribute; ++a)
        man.setNumber(Entity_Fighter::Number(a), value);
}

// A whole world of the first of March, to be made the running one.
struct World : SavedWorld {
    World()
    {
        nextId = 1100;
        currentDate = QDate(2011, 3, 1);
    }
    // the user's men, each free to be booked
    void addGym(const QList<Entity_GymFighter> &men)
    {
        for (const Entity_GymFighter &man : men) {
            fighters.append(man);
            bookings.append(Entity_Booking::emptyFor(man.getId(), man.fullName(), QDate(1999, 1, 1)));
        }
    }
    // every student place taken, so that nobody new comes to the gym
    void fillStudentPlaces()
    {
        for (int i = 0; i < 3; ++i)
            students.append(fighter(2000, "Stu", "Dent" + QString::number(i), 0));
    }
};

inline GameManager &game()
{
    return GameManager::instance();
}

// what is wrong with the running world, empty when sound
inline QString faults()
{
    return WorldInvariants::check(game().state()).join('\n');
}

inline Entity_Org::Titles titlesOf(const QString &organisation)
{
    Entity_Org::Titles titles;
    game().organisation(organisation).titlesCopy(titles);
    return titles;
}

inline Entity_Event eventNamed(const QString &organisation, const QString &name)
{
    QList<Entity_Event> calendar;
    game().organisation(organisation).events(calendar);
    for (const Entity_Event &event : std::as_const(calendar))
        if (event.name() == name)
            return event;
    return {};
}

inline QByteArray savedWorld()
{
    return SavedWorld::runningBytes();
}

} // namespace WorldSamples
