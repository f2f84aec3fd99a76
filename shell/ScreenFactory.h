#pragma once

class QWidget;

// Builds the screen behind each button of the top menu, anew each time it is shown.
class ScreenFactory
{
public:
    // the screen of a plain button (TopMenuBar::ButtonID); anything else builds the profile
    static QWidget *build(int buttonId);
    // the day flow, or the fight night of an unplayed event of the user today
    static QWidget *buildNextDay();
};
