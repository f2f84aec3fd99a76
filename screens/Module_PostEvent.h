#pragma once

#include "fighters/Entity_Manager.h"
#include "fighters/PointSpread.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <array>
#include <memory>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

// After a fight night of the user's man: how he did, and what the fight earned, settled the
// moment the screen appears. When the manager's reputation label rose with it, a second page
// lets the user spend the 10 skill points of his level up before the day goes on.
class Module_PostEvent : public QWidget
{
    Q_OBJECT

public:
    static constexpr int LevelUpPoints = 10;

    // the man's 44 numbers at the end of his match, his id, and his career entry of the fight
    Module_PostEvent(const QList<int> &statistics, int fighterId, const QString &careerEntry,
                     QWidget *parent = nullptr);

    bool isLevelUpDue() const { return levelUpDue; }
    int skillPointsLeft() const { return skillPoints; }
    QWidget *summaryPage() const { return summary; }
    QWidget *levelUpPage() const { return levelUp; }
    QSpinBox *skillBox(int skill) const { return skillBoxes[skill]; }
    QLineEdit *statisticsField(int row) const;

public slots:
    void backToGame();
    void calculateSkill();
    void completeLevelUp();
    void checkManagerLevel();
    void switchToLevelUp();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *buildSummary();
    QWidget *buildLevelUp();

    QList<int> statistics;
    int fighterId;
    QString careerEntry;
    bool levelUpDue = false;
    QWidget *summary = nullptr;
    QWidget *levelUp = nullptr;
    QList<QLineEdit *> statisticsFields;
    std::array<QSpinBox *, Entity_Manager::SkillCount> skillBoxes{};
    std::unique_ptr<PointSpread> spread;
    int skillPoints = LevelUpPoints;
    QLabel *skillPointsLabel = nullptr;
    QPushButton *proceedButton = nullptr;
};
