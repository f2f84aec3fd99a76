#include "shell/ModuleManager.h"

#include "shell/StyleSheetFile.h"
#include "shell/TopMenuBar.h"

#include <QTimer>
#include <QVBoxLayout>

ModuleManager &ModuleManager::instance()
{
    static ModuleManager *manager = new ModuleManager;
    return *manager;
}

void ModuleManager::initialize(const ScreenBuilders &screenBuilders)
{
    builders = screenBuilders;
    window = new QWidget;
    layout = new QVBoxLayout;
    window->setFixedSize(1100, 700);
    window->setWindowTitle("Orvane - by Quillan Dray");
    window->setVisible(true);

    module = builders.mainMenu();
    menu = new TopMenuBar;
    applyStyleSheet();
    hideTopMenu();

    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(menu, 0);
    layout->addWidget(module, 0);
    window->setLayout(layout);
}

// A module is nearly always replaced from inside one of its own slots, with the button's signal
// still on the stack: it vanishes and its timers stop at once, and Qt frees it when that is over.
void ModuleManager::retire(QWidget *oldModule)
{
    if (!oldModule)
        return;
    for (QTimer *timer : oldModule->findChildren<QTimer *>())
        timer->stop();
    oldModule->hide();
    layout->removeWidget(oldModule);
    // it stays the window's hidden child until then: taking it out of the window would restyle
    // every widget of it once more just before they go
    oldModule->deleteLater();
}

void ModuleManager::changeModule(QWidget *newModule)
{
    retire(module);
    module = newModule;
    applyStyleSheet();
    layout->addWidget(module, 0);
    window->setLayout(layout);
    module->show();
}

void ModuleManager::applyStyleSheet()
{
    StyleSheetFile::apply(module, "StyleSheet.css");
}

void ModuleManager::hideTopMenu()
{
    menu->setVisible(false);
}

void ModuleManager::showTopMenu()
{
    menu->unflattenButtons();
    menu->setVisible(true);
}

bool ModuleManager::isTopMenuVisible() const
{
    return menu && !menu->isHidden();
}

void ModuleManager::returnToCurrentScreen()
{
    menu->returnToCurrentScreen();
}

void ModuleManager::startNextDay()
{
    menu->changeScreenNextDay();
}

void ModuleManager::shutdown()
{
    module->close();
    retire(module);
    module = nullptr;
    menu->hide();
    menu->deleteLater();
    menu = nullptr;
    // closing the last window ends the event loop
    window->close();
    window->deleteLater();
    window = nullptr;
    layout = nullptr;
    close();
}
