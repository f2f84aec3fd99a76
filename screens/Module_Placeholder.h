#pragma once

#include <QWidget>

// Stands in for a screen of the game that is not built yet, with a way back.
class Module_Placeholder : public QWidget
{
    Q_OBJECT

public:
    // where its button leads: the main menu, or the screen last chosen in a running game
    enum Back { BackToMainMenu, BackToGame };

    Module_Placeholder(const QString &title, Back back, QWidget *parent = nullptr);

private slots:
    void goBack();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Back back;
};
