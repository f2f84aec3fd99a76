#include "screens/ScreenFactory.h"

#include "screens/Module_MainMenu.h"
#include "screens/Module_NextDay.h"
#include "screens/Module_Placeholder.h"
#include "screens/Module_Profile.h"
#include "screens/Module_SaveLoad.h"
#include "screens/Module_Training.h"
#include "screens/Module_UserEvents.h"
#include "shell/TopMenuBar.h"
#include "world/Entity_Event.h"

#include <array>

namespace {

// screens of the game that are still being built show their name and a way back
constexpr std::array<const char *, TopMenuBar::ButtonCount> screenNames{
    "Profile",       "Training", "Management", "Events",      "Database",
    "Organizations", "Next Day", "Save/Load",  "How To Play", "Main Menu"};

} // namespace

ScreenBuilders ScreenFactory::builders()
{
    return {&ScreenFactory::buildMainMenu, &ScreenFactory::build, &ScreenFactory::buildNextDay,
            &ScreenFactory::buildFightNight};
}

QWidget *ScreenFactory::build(int buttonId)
{
    if (buttonId < 0 || buttonId >= TopMenuBar::ButtonCount)
        buttonId = TopMenuBar::Profile;
    if (buttonId == TopMenuBar::Profile)
        return new Module_Profile;
    if (buttonId == TopMenuBar::SaveLoad)
        return new Module_SaveLoad;
    if (buttonId == TopMenuBar::Training)
        return new Module_Training;
    return new Module_Placeholder(screenNames[buttonId], Module_Placeholder::BackToGame);
}

QWidget *ScreenFactory::buildMainMenu()
{
    return new Module_MainMenu;
}

QWidget *ScreenFactory::buildNextDay()
{
    return new Module_NextDay;
}

QWidget *ScreenFactory::buildFightNight(const Entity_Event &event)
{
    return new Module_UserEvents(event);
}
