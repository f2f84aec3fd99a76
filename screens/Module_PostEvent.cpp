#include "screens/Module_PostEvent.h"

#include "screens/GamePictures.h"
#include "screens/ScreenParts.h"
#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "world/GameManager.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr QSize PortraitSize(220, 352);
// the manager's sheet stands in blocks of three skills, two blocks to a row
constexpr int SkillsPerBlock = 3;

// a page whose block stays in the middle of the screen
QGridLayout *centredPage(QWidget *page)
{
    auto *grid = new QGridLayout(page);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(10, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(10, 1);
    grid->setHorizontalSpacing(24);
    return grid;
}

} // namespace

Module_PostEvent::Module_PostEvent(const QList<int> &statistics, int fighterId, const QString &careerEntry,
                                   QWidget *parent)
    : QWidget(parent)
    , statistics(statistics)
    , fighterId(fighterId)
    , careerEntry(careerEntry)
{
    ModuleManager::instance().hideTopMenu();
    // the fight's money, reputation and lessons count the moment the summary stands
    levelUpDue = GameManager::instance().applyMatchOutcome(statistics, fighterId, careerEntry);

    auto *layout = new QVBoxLayout(this);
    summary = buildSummary();
    layout->addWidget(summary);
    proceedButton = new QPushButton("Proceed");
    proceedButton->setMinimumSize(220, 36);
    layout->addWidget(proceedButton, 0, Qt::AlignHCenter);
    layout->addSpacing(10);
    connect(proceedButton, &QPushButton::clicked, this, &Module_PostEvent::checkManagerLevel);
}

void Module_PostEvent::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

QWidget *Module_PostEvent::buildSummary()
{
    auto *page = new QWidget;
    page->setObjectName("summaryPage");
    QGridLayout *grid = centredPage(page);

    QStringList colours;
    QList<int> images;
    GameManager::instance().fighterLook(fighterId, colours, images);
    auto *portrait = new QLabel;
    portrait->setObjectName("portrait");
    portrait->setFixedSize(PortraitSize);
    portrait->setScaledContents(true);
    portrait->setPixmap(GamePictures::portrait(colours, images));
    auto *entry = new QLabel(careerEntry.section('|', 0, 0));
    entry->setObjectName("careerEntry");
    entry->setWordWrap(true);
    entry->setAlignment(Qt::AlignCenter);
    entry->setMinimumHeight(40);
    grid->addWidget(ScreenParts::heading("Match Summary"), 1, 1, 1, 2);
    grid->addWidget(entry, 2, 1, 1, 2);
    grid->addWidget(portrait, 3, 1, Qt::AlignCenter);

    grid->addWidget(ScreenParts::statisticsPanel(statistics, statisticsFields), 3, 2, Qt::AlignCenter);
    return page;
}

QWidget *Module_PostEvent::buildLevelUp()
{
    auto *page = new QWidget;
    page->setObjectName("levelUpPage");
    QGridLayout *grid = centredPage(page);
    grid->addWidget(ScreenParts::heading("Reputation Level Up!"), 1, 1);

    // the manager's sheet, each skill in a box that starts at his value and cannot go below it
    QFrame *sheetPanel = ScreenParts::panel();
    auto *sheet = new QGridLayout(sheetPanel);
    sheet->setContentsMargins(12, 8, 12, 8);
    sheet->setHorizontalSpacing(12);
    const QList<int> values = GameManager::instance().managerValues();
    QList<int> start;
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill) {
        const int block = skill / SkillsPerBlock;
        const int top = block / 2 * (SkillsPerBlock + 1);
        const int left = block % 2 * 3;
        const QString blockHeading = Entity_Manager::skillHeading(skill);
        // a block that goes on from the one before it (the abilities) shows no second heading
        if (skill % SkillsPerBlock == 0 && blockHeading != Entity_Manager::skillHeading(skill - 1)) {
            auto *label = new QLabel(blockHeading);
            label->setProperty("heading", true);
            sheet->addWidget(label, top, left, 1, 2);
        }
        const int value = values.value(Entity_Manager::Punch + skill);
        start << value;
        auto *box = new QSpinBox;
        box->setObjectName(Entity_Manager::skillLabel(skill));
        box->setRange(value, qMax(value, int(PointSpread::Ceiling)));
        box->setValue(value);
        skillBoxes[skill] = box;
        const int row = top + 1 + skill % SkillsPerBlock;
        sheet->addWidget(new QLabel(Entity_Manager::skillLabel(skill)), row, left);
        sheet->addWidget(box, row, left + 1);
    }
    sheet->setColumnMinimumWidth(2, 40);
    spread = std::make_unique<PointSpread>(LevelUpPoints, start);
    grid->addWidget(sheetPanel, 2, 1);

    skillPointsLabel = new QLabel;
    skillPointsLabel->setObjectName("skillPoints");
    skillPointsLabel->setAlignment(Qt::AlignCenter);
    grid->addWidget(skillPointsLabel, 3, 1);
    for (QSpinBox *box : skillBoxes)
        connect(box, &QSpinBox::valueChanged, this, &Module_PostEvent::calculateSkill);
    return page;
}

QLineEdit *Module_PostEvent::statisticsField(int row) const
{
    return statisticsFields.value(row);
}

void Module_PostEvent::checkManagerLevel()
{
    if (levelUpDue)
        switchToLevelUp();
    else
        backToGame();
}

void Module_PostEvent::backToGame()
{
    ModuleManager::instance().startNextDay();
}

void Module_PostEvent::switchToLevelUp()
{
    if (levelUp)
        return;
    summary->hide();
    levelUp = buildLevelUp();
    auto *layout = static_cast<QVBoxLayout *>(this->layout());
    layout->insertWidget(0, levelUp);
    levelUp->show();
    calculateSkill();
    disconnect(proceedButton, nullptr, this, nullptr);
    connect(proceedButton, &QPushButton::clicked, this, &Module_PostEvent::completeLevelUp);
}

void Module_PostEvent::calculateSkill()
{
    if (!spread)
        return;
    const int changed = int(std::find(skillBoxes.begin(), skillBoxes.end(), sender()) - skillBoxes.begin());
    if (changed < Entity_Manager::SkillCount)
        spread->set(changed, skillBoxes[changed]->value());
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill) {
        const QSignalBlocker quiet(skillBoxes[skill]);
        skillBoxes[skill]->setMaximum(spread->maximum(skill));
        skillBoxes[skill]->setValue(spread->value(skill));
    }
    skillPoints = spread->left();
    skillPointsLabel->setText("Skill Points: " + QString::number(skillPoints));
}

void Module_PostEvent::completeLevelUp()
{
    if (skillPoints > 0) {
        GameDialog(this).tell("Please use all skill points before proceeding.", QStringLiteral("Back"));
        return;
    }
    if (!GameDialog(this).ask("Are you sure you want to proceed?"))
        return;
    GameManager::instance().setManagerSkills(spread->allValues());
    backToGame();
}
