#pragma once

#include "world/GameManager.h"
#include "world/WorldState.h"

#include <QByteArray>

// A world that a test builds field by field and makes the running one through its own save
// form, as a load would make it.
struct SavedWorld : WorldState {
    // false if the world's own bytes were refused
    bool load() const
    {
        WorldState read;
        if (!WorldState::fromBytes(bytes(), read))
            return false;
        GameManager::instance().takeWorld(read);
        return true;
    }

    static const WorldState &running() { return GameManager::instance().state(); }
    // the running world as a save holds it
    static QByteArray runningBytes() { return running().bytes(); }
};
