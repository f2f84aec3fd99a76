#pragma once

#include "world/WorldState.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Damaged saves against a running world. Each input starts from the same world, a full one, so
// that a refusal that emptied the world can't pass for one that left it alone: the game must
// refuse the input and keep that world byte for byte, or take a world that saves, and loads
// again, to the very same bytes.
class SaveReplay
{
public:
    explicit SaveReplay(const WorldState &start);

    struct Result {
        bool taken = false;
        QString fault; // empty when the game did right
    };
    Result replay(const QByteArray &input) const;

    // the world of a new game on the default files, with a plain manager and gym
    static WorldState defaultWorld();
    // a small world with a record of every kind: a student, a gym fighter, an organisation with a
    // card, last year's night, a roster with careers and titles, free agents, an offer, a booking
    // and an amateur
    static WorldState smallWorld();

    // Damaged copies of a save: cuts at every one of its first `headCuts` bytes and at `spreadCuts`
    // places spread over the whole, `flips` single bytes changed at random places (with the test
    // clock at `seed`), counts made huge, and the whole save followed by more.
    static QList<QByteArray> damagedCopies(const QByteArray &save, int headCuts, int spreadCuts, int flips,
                                           quint32 seed);

private:
    WorldState start;
    QByteArray startBytes;
};
