#pragma once

#include "fighters/PointSpread.h"

#include <QWidget>

#include <array>

class FightNight;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTextEdit;

// The corner between two rounds of the user's match, built anew for each corner: the man's state
// in words and in the body picture, his statistics, one order that he always obeys, and the
// manager's trainer points spread over the four kinds of care.
class CornerPage : public QWidget
{
    Q_OBJECT

public:
    // the four kinds of care, in the order of the spin boxes and of FightNight::tendFighter
    enum Care { HealWounds, ProvideWater, Motivate, DiscussStrategy, CareCount };

    // `stepButton` stands on the page while it is shown, under the observations
    CornerPage(FightNight &night, QPushButton *stepButton, QWidget *parent = nullptr);

    // what the user spread over the four
    int care(Care kind) const;
    int trainerPoints() const { return spread.left(); }

    QSpinBox *careBox(Care kind) const { return careBoxes[kind]; }
    QComboBox *strategyBox() const { return strategy; }
    QTextEdit *observationsBox() const { return observations; }
    QLabel *bodyPicture() const { return picture; }
    QLineEdit *statisticsField(int row) const;

public slots:
    void calculateTrainerPoints();
    void cornerStrategy();

private:
    void fillStrategies();

    FightNight &night;
    PointSpread spread;
    QLabel *picture;
    QTextEdit *observations;
    QComboBox *strategy;
    QLabel *pointsLabel;
    std::array<QSpinBox *, CareCount> careBoxes{};
    QList<QLineEdit *> statistics;
};
