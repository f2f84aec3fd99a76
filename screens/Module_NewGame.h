#pragma once

#include <QStringList>
#include <QWidget>

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

// Where a game begins: on the first page the user makes his manager and spends his skill points,
// on the second he makes his gym. Nothing reaches the world before the last button, so going back
// to the main menu leaves no trace.
class Module_NewGame : public QWidget
{
    Q_OBJECT

public:
    static constexpr int RegionCount = 8;
    static constexpr int SkillBoxCount = 18;
    static constexpr int StartingSkillPoints = 60;

    explicit Module_NewGame(QWidget *parent = nullptr);

public slots:
    void changeRegion(int index);
    void changeFlagDisplay();
    void calculateSkill();
    void changeColourDisplay();
    void backToMainMenu();
    void aheadToGymInfo();
    void backToManagerInfo();
    void aheadToGame();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *buildManagerPage();
    QWidget *buildGymPage();
    QWidget *buildSkillPanel(int panel);
    void swapPage(QWidget *from, QWidget *to);
    void warnOfMissingNations();

    std::array<QStringList, RegionCount> nations;
    int skillPoints = StartingSkillPoints;

    QVBoxLayout *screenLayout;
    QWidget *managerPage = nullptr;
    QWidget *gymPage = nullptr;

    // the manager page
    QLineEdit *firstNameEdit = nullptr;
    QLineEdit *lastNameEdit = nullptr;
    QComboBox *regionBox = nullptr;
    QComboBox *nationBox = nullptr;
    QLabel *flagLabel = nullptr;
    QLabel *skillPointsLabel = nullptr;
    std::array<QSpinBox *, SkillBoxCount> skillBoxes{};
    QPushButton *mainMenuButton = nullptr;
    QPushButton *gymCreationButton = nullptr;

    // the gym page
    QLineEdit *gymNameEdit = nullptr;
    QComboBox *styleBox = nullptr;
    QComboBox *primaryColourBox = nullptr;
    QComboBox *secondaryColourBox = nullptr;
    QLabel *emblemLabel = nullptr;
    QPushButton *managerCreationButton = nullptr;
    QPushButton *gameButton = nullptr;
};
