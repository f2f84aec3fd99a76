#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Org.h"

#include <QByteArray>
#include <QDataStream>
#include <QDate>
#include <QList>
#include <QMultiMap>
#include <QString>

// The saved world as one value: the eleven fields in the order of a save file. A save is this
// value's bytes and nothing else; the game, the simulator, the invariants and the tests all hold
// the world in this form, and it is written and read in one place only.
struct WorldState {
    // the last id given out; the next man made takes one more
    int nextId = 1058;
    QDate currentDate{2011, 1, 1};
    Entity_Manager manager;
    Entity_Gym gym;
    QList<Entity_Fighter> students;            // in order of arrival
    QList<Entity_GymFighter> fighters;         // in order of promotion, the order of every list of them
    QList<Entity_Org> organisations;           // the order of every job of the day
    QMultiMap<int, Entity_Fighter> freeAgents; // keyed by ranking score
    QList<Entity_Booking> offers;
    QList<Entity_Booking> bookings;          // one for each fighter of the gym
    QMultiMap<int, Entity_Fighter> amateurs; // keyed by ranking score

    void write(QDataStream &out) const;
    // the world as a save file holds it
    QByteArray bytes() const;
    // The world that `data` holds from its first byte to its last, or nothing: data that comes up
    // short, holds nonsense or holds more than a world leaves `world` as it was, gives false and
    // says why in `reason`.
    static bool fromBytes(const QByteArray &data, WorldState &world, QString *reason = nullptr);

    // the organisation of that name; null when there is none
    Entity_Org *organisationNamed(const QString &name);
    const Entity_Org *organisationNamed(const QString &name) const;
    // the place of the gym fighter of that id in `fighters`; -1 when the gym has no such man
    qsizetype fighterIndexOf(int id) const;
};
