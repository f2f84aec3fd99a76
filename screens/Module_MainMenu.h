#pragma once

#include <QWidget>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;

// The first screen, and the one every way out of a game leads to.
class Module_MainMenu : public QWidget
{
    Q_OBJECT

public:
    explicit Module_MainMenu(QWidget *parent = nullptr);

public slots:
    void beginNewGame();
    void loadGame();
    void showHelpScreen();
    void quitGame();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *titlePicture;
    QPushButton *newGameButton;
    QPushButton *loadGameButton;
    QPushButton *howToPlayButton;
    QPushButton *exitGameButton;
    QWidget *buttonRow;
    QHBoxLayout *buttonLayout;
    QGridLayout *grid;
};
