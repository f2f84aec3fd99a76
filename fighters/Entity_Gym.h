#pragma once

// The user's gym.
class Entity_Gym
{
public:
    Entity_Gym() = default;
};
