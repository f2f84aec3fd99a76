#pragma once

// The user's manager.
class Entity_Manager
{
public:
    Entity_Manager() = default;
};
