#pragma once

#include "fighters/Entity_Manager.h"
#include "fighters/Ratings.h"

#include <QWidget>

#include <array>

class GameDialog;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTextEdit;
class QVBoxLayout;

// The first screen of a running game, in two pages: the manager's, on which it opens, with his
// abilities, record and titles; and the sheet of one of the user's fighters, with his ratings,
// portrait, career and bio. Everything that deals with a fighter as a person starts here:
// exporting him, editing his bio, sending him into retirement, and importing other men.
class Module_Profile : public QWidget
{
    Q_OBJECT

public:
    // the texts of the fighter page, in the order in which it shows them
    enum FighterField {
        Name,
        Nationality,
        Region,
        Background,
        Reputation,
        Birthday,
        Age,
        Wins,
        Losses,
        Kos,
        FieldCount
    };
    // the texts of the manager page beside his skills
    enum ManagerField {
        FirstName,
        LastName,
        ManagerNation,
        ManagerReputation,
        OverallRecord,
        ActiveRecord,
        ManagerFieldCount
    };

    explicit Module_Profile(QWidget *parent = nullptr);

    bool showsFighterPage() const;
    // the position of the fighter shown, -1 with none
    int shownFighter() const;

public slots:
    void importIntoDatabase();
    void exportFighter();
    void importFantasyMatch();
    void changeToFighterScreen();
    void changeToManagerScreen();
    void switchFighterShown(int index);
    void retireFighter();
    void updateFighterBio();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *buildManagerPage();
    QWidget *buildFighterPage();
    QWidget *buildRatingsPanel();
    void showPage(QWidget *page);
    // the combo box anew from the user's fighters, the first one shown
    void refillFighterBox();
    // the export file that the user picks in the list, or false when he picks none
    bool chooseExportFile(QString &name);
    // the question before a man comes in, with what follows on its second line; true when the
    // user agreed and the file can be opened
    bool confirmImport(const QString &name, const QString &consequence);
    QString shownFighterName() const;

    QVBoxLayout *screenLayout;
    GameDialog *dialog;
    QWidget *managerPage = nullptr;
    QWidget *fighterPage = nullptr;

    // the manager page
    std::array<QLineEdit *, ManagerFieldCount> managerFields{};
    std::array<QLineEdit *, Entity_Manager::SkillCount> skillFields{};
    QLabel *managerFlag = nullptr;
    QListWidget *managerTitles = nullptr;

    // the fighter page
    QComboBox *fighterBox = nullptr;
    QLabel *portraitLabel = nullptr;
    QLabel *fighterFlag = nullptr;
    std::array<QLineEdit *, FieldCount> fighterFields{};
    QTextEdit *bioEdit = nullptr;
    QListWidget *careerList = nullptr;
    QListWidget *titleList = nullptr;
    std::array<QLineEdit *, Ratings::Count> ratingFields{};
};
