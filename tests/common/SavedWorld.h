#pragma once

#include "fighters/Entity_Fighter.h"
#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/StreamForm.h"
#include "world/Entity_Booking.h"
#include "world/Entity_Org.h"
#include "world/GameManager.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

// The eleven fields of a world in the order of a save file, written by hand so that a test can
// build any world (or any damaged one) and hand it to GameManager::readFrom.
struct SavedWorld {
    qint32 nextId = 1058;
    QDate date{2011, 1, 1};
    Entity_Manager manager;
    Entity_Gym gym;
    QList<Entity_Fighter> students;
    QList<Entity_GymFighter> fighters;
    QList<Entity_Org> organisations;
    QMultiMap<int, Entity_Fighter> freeAgents;
    QList<Entity_Booking> offers;
    QList<Entity_Booking> bookings;
    QMultiMap<int, Entity_Fighter> amateurs;

    QByteArray bytes() const
    {
        QByteArray data;
        QDataStream out(&data, QIODevice::WriteOnly);
        out.setVersion(StreamForm::version);
        out << nextId << date << manager << gym;
        StreamForm::writeList(out, students);
        StreamForm::writeList(out, fighters);
        StreamForm::writeList(out, organisations);
        StreamForm::writeMap(out, freeAgents);
        StreamForm::writeList(out, offers);
        StreamForm::writeList(out, bookings);
        StreamForm::writeMap(out, amateurs);
        return data;
    }

    // makes this the running world; false if the world refused it
    bool load() const
    {
        QDataStream in(bytes());
        in.setVersion(StreamForm::version);
        return GameManager::instance().readFrom(in);
    }

    // the fields read back from a save's bytes
    void read(const QByteArray &data)
    {
        QDataStream in(data);
        in.setVersion(StreamForm::version);
        in >> nextId >> date >> manager >> gym;
        StreamForm::readList(in, students);
        StreamForm::readList(in, fighters);
        StreamForm::readList(in, organisations);
        StreamForm::readMultiMap(in, freeAgents);
        StreamForm::readList(in, offers);
        StreamForm::readList(in, bookings);
        StreamForm::readMultiMap(in, amateurs);
    }

    // the running world as a save holds it
    static QByteArray runningBytes()
    {
        QByteArray data;
        QDataStream out(&data, QIODevice::WriteOnly);
        out.setVersion(StreamForm::version);
        GameManager::instance().writeTo(out);
        return data;
    }
};
