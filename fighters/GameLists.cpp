#include "fighters/GameLists.h"

const QStringList &GameLists::backgrounds()
{
    static const QStringList list = {"Kickboxing", "Shootboxing", "Muay Thai", "Boxing", "Taekwondo", "MMA", "Karate"};
    return list;
}

const QStringList &GameLists::fightingStyles()
{
    static const QStringList list = {"Outfighter", "Infighter", "Clincher", "Puncher",
                                     "Kicker",     "Brawler",   "Tactician"};
    return list;
}

const QStringList &GameLists::kitColours()
{
    static const QStringList list = {"Black",  "Blue",  "Dark Blue",    "Dark Green", "Dark Red",
                                     "Gold",   "Green", "Light Yellow", "Purple",     "Red",
                                     "Silver", "Teal",  "White",        "Yellow"};
    return list;
}

const QStringList &GameLists::hairColours()
{
    static const QStringList list = {"Black", "Blond", "Brown", "Red"};
    return list;
}
