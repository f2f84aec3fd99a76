#include "screens/CornerPage.h"

#include "screens/GamePictures.h"
#include "screens/ScreenParts.h"
#include "world/FightNight.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTextEdit>

namespace {

constexpr std::array<const char *, CornerPage::CareCount> careLabels{"Heal Wounds", "Provide Water", "Motivate",
                                                                     "Discuss Strategy"};
constexpr QSize PictureSize(220, 352);

} // namespace

CornerPage::CornerPage(FightNight &night, QPushButton *stepButton, QWidget *parent)
    : QWidget(parent)
    , night(night)
    , spread(night.trainerPoints(), QList<int>(CareCount, 0))
    , picture(new QLabel)
    , observations(new QTextEdit)
    , strategy(new QComboBox)
    , pointsLabel(new QLabel)
{
    setObjectName("cornerPage");
    auto *grid = new QGridLayout(this);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(7, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(7, 1);
    grid->setHorizontalSpacing(14);

    // how he stands: the words of his corner and the picture of his body
    QStringList texts;
    QList<int> codes;
    night.observations(texts, codes);
    picture->setFixedSize(PictureSize);
    picture->setScaledContents(true);
    // the codes of the stamina, then of head, body, arms and legs
    picture->setPixmap(GamePictures::bodyStatus(codes.value(1), codes.value(2), codes.value(3), codes.value(4)));
    auto *status = new QVBoxLayout;
    status->addWidget(ScreenParts::heading("Current Status"));
    status->addWidget(picture);
    status->addStretch(1);
    grid->addLayout(status, 1, 1, 5, 2);

    observations->setReadOnly(true);
    observations->setObjectName("observations");
    for (const QString &line : texts)
        observations->append(line);
    auto *seen = new QVBoxLayout;
    seen->addWidget(ScreenParts::heading("Observations"));
    seen->addWidget(observations, 1);
    grid->addLayout(seen, 1, 3, 5, 2);

    // what he landed of what he threw
    grid->addWidget(ScreenParts::statisticsPanel(night.userStatus(), statistics), 1, 5, 3, 2);

    // the order of the corner and the care
    QFrame *carePanel = ScreenParts::panel();
    QGridLayout *careGrid = ScreenParts::closeGrid(carePanel);
    strategy->setObjectName("strategyBox");
    careGrid->addWidget(strategy, 0, 0, 1, 2);
    careGrid->addWidget(pointsLabel, 1, 0, 1, 2);
    for (int kind = 0; kind < CareCount; ++kind) {
        auto *box = new QSpinBox;
        box->setRange(0, PointSpread::Ceiling);
        box->setObjectName(careLabels[kind]);
        box->setFixedWidth(64);
        careBoxes[kind] = box;
        careGrid->addWidget(new QLabel(careLabels[kind]), kind + 2, 0);
        careGrid->addWidget(box, kind + 2, 1);
    }
    grid->addWidget(carePanel, 4, 5, 2, 2);

    grid->addWidget(stepButton, 6, 3, 1, 2);
    stepButton->show();

    fillStrategies();
    connect(strategy, &QComboBox::activated, this, &CornerPage::cornerStrategy);
    for (QSpinBox *box : careBoxes)
        connect(box, &QSpinBox::valueChanged, this, &CornerPage::calculateTrainerPoints);
    calculateTrainerPoints();
}

int CornerPage::care(Care kind) const
{
    return spread.value(kind);
}

QLineEdit *CornerPage::statisticsField(int row) const
{
    return statistics.value(row);
}

void CornerPage::fillStrategies()
{
    strategy->clear();
    strategy->addItems(night.instructions());
}

void CornerPage::calculateTrainerPoints()
{
    const int changed = int(std::find(careBoxes.begin(), careBoxes.end(), sender()) - careBoxes.begin());
    if (changed < CareCount)
        spread.set(changed, careBoxes[changed]->value());
    // the boxes show what the points allow
    for (int kind = 0; kind < CareCount; ++kind) {
        const QSignalBlocker quiet(careBoxes[kind]);
        careBoxes[kind]->setMaximum(spread.maximum(kind));
        careBoxes[kind]->setValue(spread.value(kind));
    }
    pointsLabel->setText("Trainer Points: " + QString::number(spread.left()));
}

void CornerPage::cornerStrategy()
{
    night.cornerStrategy(strategy->currentText());
    fillStrategies();
}
