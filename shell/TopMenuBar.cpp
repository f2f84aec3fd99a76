#include "shell/TopMenuBar.h"

#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "world/GameManager.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {

struct ButtonRow {
    const char *objectName;
    const char *toolTip;
    void (TopMenuBar::*slot)();
};

constexpr std::array<ButtonRow, TopMenuBar::ButtonCount> buttonTable{{
    {"profile_module_btn", "Profile", &TopMenuBar::changeScreenProfile},
    {"training_module_btn", "Training", &TopMenuBar::changeScreenTraining},
    {"management_module_btn", "Management", &TopMenuBar::changeScreenManagement},
    {"events_module_btn", "Events", &TopMenuBar::changeScreenEvents},
    {"fighterdb_module_btn", "Database", &TopMenuBar::changeScreenDatabase},
    {"org_module_btn", "Organizations", &TopMenuBar::changeScreenOrgs},
    {"next_day_btn", "Next Day", &TopMenuBar::changeScreenNextDay},
    {"save_module_btn", "Save/Load", &TopMenuBar::changeScreenSaveLoad},
    {"help_module_btn", "How To Play", &TopMenuBar::changeScreenHelp},
    {"back_mainmenu_btn", "Back To Main Menu", &TopMenuBar::changeScreenMainMenu},
}};

} // namespace

TopMenuBar::TopMenuBar(QWidget *parent)
    : QWidget(parent)
{
    for (int id = 0; id < ButtonCount; ++id) {
        buttons[id] = new QPushButton(this);
        buttons[id]->setToolTip(buttonTable[id].toolTip);
        buttons[id]->setObjectName(buttonTable[id].objectName);
    }
    setDefaultStyleSheet();
    auto *row = new QHBoxLayout(this);
    row->addStretch(30);
    for (int id = 0; id < ButtonCount; ++id) {
        buttons[id]->setFixedSize(70, 70);
        connect(buttons[id], &QPushButton::clicked, this, buttonTable[id].slot);
        row->addWidget(buttons[id]);
    }
    row->addStretch(30);
    row->setSpacing(15);
}

void TopMenuBar::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

void TopMenuBar::setDefaultStyleSheet()
{
    StyleSheetFile::apply(this, "TopMenuStyle.css");
}

void TopMenuBar::flattenButtons(int id)
{
    unflattenButtons();
    if (id >= 0 && id < ButtonCount)
        buttons[id]->setFlat(true);
}

void TopMenuBar::unflattenButtons()
{
    for (QPushButton *button : buttons)
        button->setFlat(false);
}

void TopMenuBar::changeScreen(ButtonID id)
{
    flattenButtons(id);
    screen = id;
    ModuleManager &shell = ModuleManager::instance();
    shell.changeModule(shell.screens().button(id));
}

void TopMenuBar::changeScreenProfile()
{
    changeScreen(Profile);
}
void TopMenuBar::changeScreenTraining()
{
    changeScreen(Training);
}
void TopMenuBar::changeScreenManagement()
{
    changeScreen(Management);
}
void TopMenuBar::changeScreenEvents()
{
    changeScreen(Events);
}
void TopMenuBar::changeScreenDatabase()
{
    changeScreen(Database);
}
void TopMenuBar::changeScreenOrgs()
{
    changeScreen(Orgs);
}
void TopMenuBar::changeScreenSaveLoad()
{
    changeScreen(SaveLoad);
}
void TopMenuBar::changeScreenHelp()
{
    changeScreen(Help);
}

void TopMenuBar::changeScreenNextDay()
{
    // the current screen stays as it was, so that the end of the day returns to it
    ModuleManager::instance().hideTopMenu();
    // a day never passes while one of the user's events of today stands unplayed: each fight
    // night comes back here when it is over, until none is left and the rest of the day runs
    const QList<Entity_Event> userEvents = GameManager::instance().todaysUserEvents();
    const ScreenBuilders &screens = ModuleManager::instance().screens();
    ModuleManager::instance().changeModule(userEvents.isEmpty() ? screens.nextDay()
                                                                : screens.fightNight(userEvents.first()));
}

void TopMenuBar::changeScreenMainMenu()
{
    if (!GameDialog::confirm("Are you sure you want to return to the main menu? \nAny unsaved progress will be lost."))
        return;
    ModuleManager::instance().hideTopMenu();
    GameManager::instance().resetWorld();
    ModuleManager::instance().changeModule(ModuleManager::instance().screens().mainMenu());
}

void TopMenuBar::returnToCurrentScreen()
{
    const bool plainScreen = screen >= Profile && screen <= Help && screen != NextDay;
    ModuleManager &shell = ModuleManager::instance();
    shell.changeModule(shell.screens().button(plainScreen ? ButtonID(screen) : Profile));
}
