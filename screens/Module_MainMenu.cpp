#include "screens/Module_MainMenu.h"

#include "screens/Module_NewGame.h"
#include "screens/Module_Placeholder.h"
#include "screens/Module_SaveLoad.h"
#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

Module_MainMenu::Module_MainMenu(QWidget *parent)
    : QWidget(parent)
    , titlePicture(new QLabel)
    , newGameButton(new QPushButton("New Game"))
    , loadGameButton(new QPushButton("Load Game"))
    , howToPlayButton(new QPushButton("How To Play"))
    , exitGameButton(new QPushButton("Exit Game"))
    , buttonRow(new QWidget)
    , buttonLayout(new QHBoxLayout(buttonRow))
    , grid(new QGridLayout(this))
{
    titlePicture->setPixmap(QPixmap("./Resources/Backgrounds/MainMenuTitlePic.jpg"));
    titlePicture->setScaledContents(true);

    const std::array<std::pair<QPushButton *, void (Module_MainMenu::*)()>, 4> buttons{{
        {newGameButton, &Module_MainMenu::beginNewGame},
        {loadGameButton, &Module_MainMenu::loadGame},
        {howToPlayButton, &Module_MainMenu::showHelpScreen},
        {exitGameButton, &Module_MainMenu::quitGame},
    }};
    for (const auto &[button, slot] : buttons) {
        button->setMinimumSize(50, 110);
        buttonLayout->addWidget(button);
        connect(button, &QPushButton::clicked, this, slot);
    }

    grid->addWidget(titlePicture, 1, 1, 1, 3);
    grid->addWidget(buttonRow, 2, 1, 1, 3);
    // the block stays in the middle of the window
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(3, 1);
}

void Module_MainMenu::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

void Module_MainMenu::beginNewGame()
{
    ModuleManager::instance().changeModule(new Module_NewGame);
}

void Module_MainMenu::loadGame()
{
    ModuleManager::instance().changeModule(new Module_SaveLoad);
}

void Module_MainMenu::showHelpScreen()
{
    ModuleManager::instance().changeModule(new Module_Placeholder("How To Play", Module_Placeholder::BackToMainMenu));
}

void Module_MainMenu::quitGame()
{
    if (GameDialog::confirm("Are you sure you want to quit the game?"))
        ModuleManager::instance().shutdown();
}
