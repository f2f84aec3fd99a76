#pragma once

#include "shell/ScreenBuilders.h"

class Entity_Event;
class QWidget;

// Builds each screen of the game, anew each time it is shown.
class ScreenFactory
{
public:
    // all of them, for the shell
    static ScreenBuilders builders();

    // the screen of a plain button (TopMenuBar::ButtonID); anything else builds the profile
    static QWidget *build(int buttonId);
    static QWidget *buildMainMenu();
    static QWidget *buildNextDay();
    static QWidget *buildFightNight(const Entity_Event &event);
};
