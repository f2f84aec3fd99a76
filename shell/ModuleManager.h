#pragma once

#include "shell/ScreenBuilders.h"

#include <QWidget>

class QVBoxLayout;
class TopMenuBar;

// Owns the one window of the game and swaps the screens in it: the top menu above, exactly one
// module below. A module is built anew each time it is shown and keeps nothing between showings.
class ModuleManager : public QWidget
{
    Q_OBJECT

public:
    static ModuleManager &instance();

    // the window with the main menu; the screens come from `screenBuilders`
    void initialize(const ScreenBuilders &screenBuilders);
    const ScreenBuilders &screens() const { return builders; }
    // destroys the current module and shows `module`, taking it over
    void changeModule(QWidget *module);
    void applyStyleSheet();
    void hideTopMenu();
    void showTopMenu();
    bool isTopMenuVisible() const;
    void returnToCurrentScreen();
    void startNextDay();
    void shutdown();

    QWidget *mainWindow() const { return window; }
    QWidget *currentModule() const { return module; }
    TopMenuBar *topMenu() const { return menu; }

private:
    ModuleManager() = default;
    void retire(QWidget *oldModule);

    QWidget *window = nullptr;
    QVBoxLayout *layout = nullptr;
    QWidget *module = nullptr;
    TopMenuBar *menu = nullptr;
    ScreenBuilders builders;
};
