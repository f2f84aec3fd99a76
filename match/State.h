#pragma once

// One state of a finite state machine that belongs to an entity: entered, run, left, and told
// of events with or without a value.
template <typename Entity> class State
{
public:
    virtual void enter(Entity &entity) = 0;
    virtual void execute(Entity &entity) = 0;
    virtual void exit(Entity &entity) = 0;
    virtual void onEvent(Entity &entity, int code) = 0;
    virtual void onEvent(Entity &entity, int code, int value) = 0;
    virtual ~State() = default;
};
