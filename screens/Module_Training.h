#pragma once

#include <QWidget>

#include <array>
#include <functional>

class GameDialog;
class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QTextEdit;
class QVBoxLayout;

// The gym's screen, with two pages. The gym page shows the gym's facts and upgrades the gym and
// its 21 pieces of equipment; the training page shows a fighter of the gym, his fatigue, this
// month's training and his skills, and sets the plan that he trains on from the next day on.
class Module_Training : public QWidget
{
    Q_OBJECT

public:
    explicit Module_Training(QWidget *parent = nullptr);

    static constexpr int SkillCount = 48;

public slots:
    void upgradeSelectedEquipment(int equipment);
    void upgradeGym();
    void switchFighterShown(int index);
    void changeTrainingPlan(int plan);
    void setButtonDown(QAbstractButton *button);
    void switchToTrainingInfoScreen();
    void switchToGymInfoScreen();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // every upgrade the same way: the top level, the question with its price, the purchase
    void offerUpgrade(int level, const QString &what, int price, const std::function<bool()> &buy);
    QWidget *buildGymPage();
    QWidget *buildTrainingPage();
    QWidget *buildEquipmentPanel();
    QWidget *buildPlanPanel();
    QWidget *buildSkillPanel();
    // the money, the levels and the slots as the gym stands now
    void refreshGymPage();
    // the skills of the fighter shown, marked by what his plan does to them
    void refreshSkills();
    void swapPage(QWidget *from, QWidget *to);

    QVBoxLayout *screenLayout;
    QWidget *gymPage;
    QWidget *trainingPage;
    GameDialog *dialog;

    // the gym page
    QLineEdit *gymNameField;
    QLineEdit *gymStyleField;
    QLineEdit *gymPrestigeField;
    QLineEdit *moneyField;
    QLabel *emblemLabel;
    QLabel *gymLevelLabel;
    QLabel *studentSlotsLabel;
    QLabel *fighterSlotsLabel;
    QListWidget *fighterList;
    QButtonGroup *upgradeButtons;
    std::array<QLabel *, 21> equipmentLabels{};

    // the training page
    QComboBox *fighterBox;
    QLineEdit *fighterNameField;
    QLineEdit *fightingStyleField;
    QLineEdit *learningSpeedField;
    QLineEdit *fatigueField;
    QLabel *portraitLabel;
    QTextEdit *logText;
    QButtonGroup *planButtons;
    std::array<QLabel *, SkillCount> skillLabels{};
    std::array<QLabel *, SkillCount> ratingLabels{};

    int fighterShown = 0; // the id of the fighter on the training page; 0 for nobody
};
