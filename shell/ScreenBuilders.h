#pragma once

#include <functional>

class Entity_Event;
class QWidget;

// What the shell asks of the screens, each a new screen to show: the game's entry hands them in,
// so the shell knows no screen by name.
struct ScreenBuilders {
    std::function<QWidget *()> mainMenu;
    // the screen of a plain button of the top menu (TopMenuBar::ButtonID)
    std::function<QWidget *(int buttonId)> button;
    // the rest of the day, once the user's own events of today are fought
    std::function<QWidget *()> nextDay;
    // the fight night of one of the user's events of today
    std::function<QWidget *(const Entity_Event &event)> fightNight;
};
