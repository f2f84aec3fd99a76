#pragma once

class Entity_Event;
class QWidget;

// Builds the screen behind each button of the top menu, anew each time it is shown.
class ScreenFactory
{
public:
    // the screen of a plain button (TopMenuBar::ButtonID); anything else builds the profile
    static QWidget *build(int buttonId);
    // the rest of the day, once the user's own events of today are fought
    static QWidget *buildNextDay();
    // the fight night of one of the user's events of today
    static QWidget *buildFightNight(const Entity_Event &event);
};
