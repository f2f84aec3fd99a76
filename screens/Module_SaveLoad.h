#pragma once

#include <QWidget>

class GameDialog;
class QGridLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

// Saving, loading and deleting games in the saves folder; a game's name is its file's name. In a
// running game (the top menu shown) the screen saves too; from the main menu it only loads and
// deletes, and leads back.
class Module_SaveLoad : public QWidget
{
    Q_OBJECT

public:
    explicit Module_SaveLoad(QWidget *parent = nullptr);

public slots:
    void saveData();
    void loadData();
    void deleteData();
    void setFileName(const QString &name);
    void backToMainMenu();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refreshList();
    // the list's current game, or an empty name with no games
    QString chosenName() const;

    QLineEdit *nameEdit;
    QPushButton *saveButton;
    QListWidget *saveList;
    QPushButton *loadButton;
    QPushButton *deleteButton;
    QPushButton *mainMenuButton;
    GameDialog *message;
    QGridLayout *grid;
};
