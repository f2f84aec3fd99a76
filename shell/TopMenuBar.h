#pragma once

#include <QWidget>

#include <array>

class QPushButton;

// The row of ten icon buttons above every screen of a running game. It lives from start to quit
// and is only hidden and shown; its one rule is the Next Day button.
class TopMenuBar : public QWidget
{
    Q_OBJECT

public:
    enum ButtonID {
        Profile,
        Training,
        Management,
        Events,
        Database,
        Orgs,
        NextDay,
        SaveLoad,
        Help,
        MainMenu,
        ButtonCount
    };

    explicit TopMenuBar(QWidget *parent = nullptr);

    // rebuilds the screen last chosen here; the day flow ends with it
    void returnToCurrentScreen();
    int currentScreen() const { return screen; }
    QPushButton *button(ButtonID id) const { return buttons[id]; }

public slots:
    void changeScreenProfile();
    void changeScreenTraining();
    void changeScreenManagement();
    void changeScreenEvents();
    void changeScreenDatabase();
    void changeScreenOrgs();
    void changeScreenNextDay();
    void changeScreenSaveLoad();
    void changeScreenHelp();
    void changeScreenMainMenu();
    void flattenButtons(int id);
    void unflattenButtons();
    void setDefaultStyleSheet();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // the eight plain buttons: mark the button, remember the screen, show it
    void changeScreen(ButtonID id);

    int screen = 0;
    std::array<QPushButton *, ButtonCount> buttons{};
};
