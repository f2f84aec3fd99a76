#include "screens/Module_Training.h"

#include "fighters/Entity_Gym.h"
#include "fighters/Entity_GymFighter.h"
#include "fighters/Entity_Manager.h"
#include "fighters/Ratings.h"
#include "fighters/TrainingPlan.h"
#include "screens/GamePictures.h"
#include "screens/ScreenParts.h"
#include "shell/GameDialog.h"
#include "shell/StyleSheetFile.h"
#include "world/GameManager.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int EquipmentColumns = 3;
constexpr int SkillGroupColumns = 3;
constexpr int EquipmentIconSize = 44;
constexpr int PlanIconSize = 20;

// what a skill's name says on the page about the plan of the fighter shown
const QString WorkedSkillStyle = QStringLiteral("color: #F4C868;");
const QString FadingSkillStyle = QStringLiteral("color: #D88A70;");
const QString SmallText = QStringLiteral("font-size: 8pt;");
const QString PlainSmallText = QStringLiteral("font-size: 8pt; font-weight: normal;");

QString dollars(int amount)
{
    return "$" + QLocale(QLocale::English).toString(amount);
}

QPixmap trainingIcon(int plan, int size)
{
    const QPixmap icon("./Resources/Training Icons/" + TrainingPlan::iconFile(plan));
    return icon.isNull() ? icon : icon.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

// "Heavy Bag - Level 2", a line break, what the equipment improves
QString equipmentText(int plan, int level)
{
    return TrainingPlan::name(plan) + " - Level " + QString::number(level) + "\n" + TrainingPlan::text(plan);
}

} // namespace

Module_Training::Module_Training(QWidget *parent)
    : QWidget(parent)
    , screenLayout(new QVBoxLayout(this))
    , dialog(new GameDialog(this))
{
    gymPage = buildGymPage();
    trainingPage = buildTrainingPage();
    // the top menu opens the gym page; the training page waits beside it
    screenLayout->addWidget(gymPage);
    trainingPage->setParent(this);
    trainingPage->hide();
    screenLayout->setContentsMargins(12, 8, 12, 12);
    refreshGymPage();

    GameManager &world = GameManager::instance();
    connect(fighterBox, &QComboBox::currentIndexChanged, this, &Module_Training::switchFighterShown);
    fighterBox->addItems(world.fighterNames());
    if (fighterBox->count() == 0)
        switchFighterShown(-1);
}

void Module_Training::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

// --- The gym page -----------------------------------------------------------------------------

QWidget *Module_Training::buildGymPage()
{
    auto *page = new QWidget;
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);

    QFrame *facts = ScreenParts::panel();
    facts->setFixedWidth(290);
    auto *grid = new QGridLayout(facts);
    grid->setVerticalSpacing(6);
    gymNameField = ScreenParts::readOnlyField();
    gymStyleField = ScreenParts::readOnlyField();
    gymPrestigeField = ScreenParts::readOnlyField();
    moneyField = ScreenParts::readOnlyField();
    moneyField->setObjectName("moneyField");
    const QList<QPair<QString, QLineEdit *>> fields{{"Gym Name:", gymNameField},
                                                    {"Gym Style:", gymStyleField},
                                                    {"Gym Prestige:", gymPrestigeField},
                                                    {"Money:", moneyField}};
    int row = 0;
    for (const auto &[text, field] : fields) {
        grid->addWidget(new QLabel(text), row, 0);
        grid->addWidget(field, row++, 1);
    }
    emblemLabel = new QLabel;
    emblemLabel->setAlignment(Qt::AlignCenter);
    emblemLabel->setFixedHeight(120);
    grid->addWidget(emblemLabel, row++, 0, 1, 2);
    gymLevelLabel = new QLabel;
    gymLevelLabel->setObjectName("gymLevelLabel");
    auto *upgradeGymButton = new QPushButton("Upgrade Gym");
    grid->addWidget(gymLevelLabel, row, 0);
    grid->addWidget(upgradeGymButton, row++, 1);
    studentSlotsLabel = new QLabel;
    studentSlotsLabel->setObjectName("studentSlotsLabel");
    fighterSlotsLabel = new QLabel;
    fighterSlotsLabel->setObjectName("fighterSlotsLabel");
    grid->addWidget(studentSlotsLabel, row, 0);
    grid->addWidget(fighterSlotsLabel, row++, 1);
    grid->addWidget(new QLabel("Current Fighters:"), row++, 0, 1, 2);
    fighterList = new QListWidget;
    fighterList->setSelectionMode(QAbstractItemView::NoSelection);
    fighterList->setFocusPolicy(Qt::NoFocus);
    grid->addWidget(fighterList, row++, 0, 1, 2);
    grid->setRowStretch(row - 1, 1);
    auto *toPlansButton = new QPushButton("To Training Plans");
    toPlansButton->setMinimumHeight(36);
    grid->addWidget(toPlansButton, row++, 0, 1, 2);

    layout->addWidget(facts);
    layout->addWidget(buildEquipmentPanel(), 1);

    connect(upgradeGymButton, &QPushButton::clicked, this, &Module_Training::upgradeGym);
    connect(toPlansButton, &QPushButton::clicked, this, &Module_Training::switchToTrainingInfoScreen);
    return page;
}

QWidget *Module_Training::buildEquipmentPanel()
{
    QFrame *equipment = ScreenParts::panel();
    auto *grid = new QGridLayout(equipment);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(4);
    upgradeButtons = new QButtonGroup(this);
    upgradeButtons->setObjectName("upgradeButtons");
    for (int plan = TrainingPlan::First; plan <= TrainingPlan::Last; ++plan) {
        const int item = plan - TrainingPlan::First;
        auto *icon = new QLabel;
        icon->setPixmap(trainingIcon(plan, EquipmentIconSize));
        icon->setFixedSize(EquipmentIconSize, EquipmentIconSize);
        auto *text = new QLabel;
        text->setWordWrap(true);
        text->setStyleSheet(SmallText);
        text->setObjectName("equipment" + QString::number(item));
        equipmentLabels[item] = text;
        auto *button = new QPushButton(TrainingPlan::upgradeButtonText(plan));
        button->setStyleSheet(SmallText);
        upgradeButtons->addButton(button, item);

        auto *cell = new QGridLayout;
        cell->setSpacing(2);
        cell->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
        cell->addWidget(text, 0, 1);
        cell->addWidget(button, 1, 1);
        grid->addLayout(cell, item / EquipmentColumns, item % EquipmentColumns);
    }
    for (int column = 0; column < EquipmentColumns; ++column)
        grid->setColumnStretch(column, 1);
    connect(upgradeButtons, &QButtonGroup::idClicked, this, &Module_Training::upgradeSelectedEquipment);
    return equipment;
}

void Module_Training::refreshGymPage()
{
    const GameManager &world = GameManager::instance();
    const Entity_Gym gym = world.gymRecord();
    gymNameField->setText(gym.text(Entity_Gym::GymName));
    gymStyleField->setText(gym.text(Entity_Gym::GymStyle));
    gymPrestigeField->setText(gym.text(Entity_Gym::GymPrestige));
    moneyField->setText(QString::number(gym.money()));
    const QPixmap emblem =
        GamePictures::gymEmblem(gym.text(Entity_Gym::GymShortsColour), gym.text(Entity_Gym::GymTrimColour));
    if (emblem.isNull())
        emblemLabel->clear();
    else
        emblemLabel->setPixmap(emblem.scaled(116, 116, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    gymLevelLabel->setText("Gym Level: " + QString::number(gym.value(Entity_Gym::GymLevel)));
    studentSlotsLabel->setText("Student Slots: " + QString::number(gym.value(Entity_Gym::StudentSlots)));
    fighterSlotsLabel->setText("Fighter Slots: " + QString::number(gym.value(Entity_Gym::FighterSlots)));
    fighterList->clear();
    fighterList->addItems(world.fighterNames());
    for (int plan = TrainingPlan::First; plan <= TrainingPlan::Last; ++plan) {
        const int item = plan - TrainingPlan::First;
        equipmentLabels[item]->setText(equipmentText(plan, gym.equipmentLevel(item)));
    }
}

void Module_Training::upgradeSelectedEquipment(int equipment)
{
    const int level = GameManager::instance().gymRecord().equipmentLevel(equipment);
    offerUpgrade(level, "this equipment", Entity_Gym::equipmentPrice(level),
                 [equipment] { return GameManager::instance().upgradeEquipment(equipment); });
}

void Module_Training::upgradeGym()
{
    const int level = GameManager::instance().gymRecord().value(Entity_Gym::GymLevel);
    offerUpgrade(level, "your gym", Entity_Gym::gymUpgradePrice(level),
                 [] { return GameManager::instance().upgradeGym(); });
}

void Module_Training::offerUpgrade(int level, const QString &what, int price, const std::function<bool()> &buy)
{
    if (level >= Entity_Gym::TopLevel) {
        dialog->tell("Already at max level.", GameDialog::CancelButton);
        return;
    }
    if (!dialog->ask("Are you sure you want to upgrade " + what + "? It will cost " + dollars(price) + ". "))
        return;
    if (!buy()) {
        dialog->tell("Could not upgrade. Be sure that you have enough money.", GameDialog::AcceptButton);
        return;
    }
    // the page shows the new level behind the message
    refreshGymPage();
    dialog->tell("Successfully upgraded.", GameDialog::AcceptButton);
}

// --- The training page ------------------------------------------------------------------------

QWidget *Module_Training::buildTrainingPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(10);

    QFrame *fighter = ScreenParts::panel();
    fighter->setFixedWidth(220);
    auto *fighterLayout = new QGridLayout(fighter);
    fighterLayout->setVerticalSpacing(5);
    fighterBox = new QComboBox;
    fighterBox->setObjectName("fighterBox");
    fighterLayout->addWidget(fighterBox, 0, 0, 1, 2);
    fighterNameField = ScreenParts::readOnlyField();
    fightingStyleField = ScreenParts::readOnlyField();
    learningSpeedField = ScreenParts::readOnlyField();
    fatigueField = ScreenParts::readOnlyField();
    fighterNameField->setObjectName("fighterNameField");
    learningSpeedField->setObjectName("learningSpeedField");
    fatigueField->setObjectName("fatigueField");
    const QList<QPair<QString, QLineEdit *>> fields{{"Fighter Name:", fighterNameField},
                                                    {"Fighting Style:", fightingStyleField},
                                                    {"Learning Speed:", learningSpeedField},
                                                    {"Fatigue Level:", fatigueField}};
    int row = 1;
    for (const auto &[text, field] : fields) {
        fighterLayout->addWidget(new QLabel(text), row++, 0, 1, 2);
        fighterLayout->addWidget(field, row++, 0, 1, 2);
    }
    portraitLabel = new QLabel;
    portraitLabel->setAlignment(Qt::AlignCenter);
    portraitLabel->setFixedHeight(200);
    fighterLayout->addWidget(portraitLabel, row++, 0, 1, 2);
    fighterLayout->setRowStretch(row++, 1);
    auto *backButton = new QPushButton("Back to Gym Info");
    backButton->setMinimumHeight(36);
    fighterLayout->addWidget(backButton, row++, 0, 1, 2);

    QFrame *log = ScreenParts::panel();
    auto *logLayout = new QVBoxLayout(log);
    logLayout->addWidget(new QLabel("Training This Month:"));
    logText = new QTextEdit;
    logText->setObjectName("logText");
    logText->setReadOnly(true);
    logText->setStyleSheet(SmallText);
    logLayout->addWidget(logText);

    grid->addWidget(fighter, 0, 0, 2, 1);
    grid->addWidget(log, 0, 1);
    grid->addWidget(buildSkillPanel(), 1, 1);
    grid->addWidget(buildPlanPanel(), 0, 2, 2, 1);
    grid->setColumnStretch(1, 5);
    grid->setColumnStretch(2, 6);
    grid->setRowStretch(0, 1);

    connect(backButton, &QPushButton::clicked, this, &Module_Training::switchToGymInfoScreen);
    return page;
}

QWidget *Module_Training::buildPlanPanel()
{
    QFrame *plans = ScreenParts::panel();
    auto *layout = new QVBoxLayout(plans);
    layout->setSpacing(4);
    layout->addWidget(new QLabel("Today's Training Plan:"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    planButtons = new QButtonGroup(this);
    planButtons->setObjectName("planButtons");
    for (int plan = TrainingPlan::Rest; plan < TrainingPlan::Count; ++plan) {
        auto *button = new QPushButton;
        button->setCheckable(true);
        button->setIcon(trainingIcon(plan, PlanIconSize));
        button->setIconSize(QSize(PlanIconSize, PlanIconSize));
        button->setFixedSize(PlanIconSize + 12, PlanIconSize + 4);
        // the plan of the fighter shown stands pressed, with a gold edge
        button->setStyleSheet("QPushButton { padding: 0px; border-width: 2px; border-radius: 5px; }"
                              "QPushButton:checked { border: 2px solid #F4C868; }");
        planButtons->addButton(button, plan);
        auto *label = new QLabel(TrainingPlan::name(plan) + " - " + TrainingPlan::text(plan));
        label->setWordWrap(true);
        label->setStyleSheet(PlainSmallText);
        grid->addWidget(button, plan, 0);
        grid->addWidget(label, plan, 1);
    }
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);
    connect(planButtons, &QButtonGroup::buttonClicked, this, &Module_Training::setButtonDown);
    connect(planButtons, &QButtonGroup::idClicked, this, &Module_Training::changeTrainingPlan);
    return plans;
}

QWidget *Module_Training::buildSkillPanel()
{
    QFrame *skills = ScreenParts::panel();
    auto *grid = new QGridLayout(skills);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(0);
    constexpr int RowsPerGroup = Ratings::GroupSize + 1;
    for (int group = 0; group < Ratings::GroupCount; ++group) {
        const int top = (group / SkillGroupColumns) * RowsPerGroup;
        const int left = (group % SkillGroupColumns) * 2;
        auto *title = new QLabel(Ratings::groupHeading(group));
        title->setStyleSheet("color: #F4C868; font-size: 8pt; padding-top: 3px;");
        grid->addWidget(title, top, left, 1, 2);
        for (int i = 0; i < Ratings::GroupSize; ++i) {
            const int skill = group * Ratings::GroupSize + i;
            skillLabels[skill] = new QLabel(Ratings::label(skill));
            ratingLabels[skill] = new QLabel;
            ratingLabels[skill]->setObjectName("rating" + QString::number(skill));
            ratingLabels[skill]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            grid->addWidget(skillLabels[skill], top + 1 + i, left);
            grid->addWidget(ratingLabels[skill], top + 1 + i, left + 1);
        }
    }
    return skills;
}

void Module_Training::switchFighterShown(int index)
{
    GameManager &world = GameManager::instance();
    fighterShown = world.fighterIdAt(index);
    const Entity_GymFighter fighter = world.fighterById(fighterShown);
    const Entity_Manager manager = world.managerRecord();
    if (QAbstractButton *button = planButtons->button(fighter.trainingPlan))
        setButtonDown(button);
    const bool nobody = index < 0 || fighterShown == 0;
    fighterNameField->setText(nobody ? QString() : fighter.fullName());
    fightingStyleField->setText(fighter.text(Entity_Fighter::FightingBackground));
    learningSpeedField->setText(nobody ? QString() : manager.learningSpeedText(fighter.learningSpeed));
    fatigueField->setText(nobody ? QString() : manager.fatigueText(fighter.fatigueBand));
    // each day of the log starts on a line of its own
    QString log = fighter.trainingLog.join(QString());
    if (log.startsWith('\n'))
        log.remove(0, 1);
    logText->setPlainText(log);
    logText->verticalScrollBar()->setValue(logText->verticalScrollBar()->maximum());

    QStringList colours;
    QList<int> images;
    world.fighterLook(index, colours, images);
    const QPixmap portrait = nobody ? QPixmap() : GamePictures::portrait(colours, images);
    if (portrait.isNull())
        portraitLabel->clear();
    else
        portraitLabel->setPixmap(portrait.scaledToHeight(portraitLabel->height(), Qt::SmoothTransformation));
    refreshSkills();
}

void Module_Training::refreshSkills()
{
    const Entity_GymFighter fighter = GameManager::instance().fighterById(fighterShown);
    const bool nobody = fighterShown == 0;
    const Ratings::Values ratings = Ratings::of(fighter);
    const int plan = fighter.trainingPlan;
    const QList<int> worked = TrainingPlan::mainSkills(plan) + TrainingPlan::sideSkills(plan);
    const QList<int> fading = TrainingPlan::fadingSkills(plan);
    for (int skill = 0; skill < SkillCount; ++skill) {
        ratingLabels[skill]->setText(nobody ? QString() : QString::number(ratings[skill]));
        const QString style = worked.contains(skill)   ? WorkedSkillStyle
                              : fading.contains(skill) ? FadingSkillStyle
                                                       : QString();
        skillLabels[skill]->setStyleSheet(style + SmallText);
        ratingLabels[skill]->setStyleSheet(style + SmallText);
    }
}

void Module_Training::changeTrainingPlan(int plan)
{
    // with no fighter shown the id finds nobody and nothing is stored
    GameManager::instance().setTrainingPlan(fighterShown, plan);
    refreshSkills();
}

void Module_Training::setButtonDown(QAbstractButton *button)
{
    for (QAbstractButton *each : planButtons->buttons())
        each->setChecked(false);
    button->setChecked(true);
}

void Module_Training::switchToTrainingInfoScreen()
{
    swapPage(gymPage, trainingPage);
}

void Module_Training::switchToGymInfoScreen()
{
    refreshGymPage();
    swapPage(trainingPage, gymPage);
}

void Module_Training::swapPage(QWidget *from, QWidget *to)
{
    from->hide();
    screenLayout->removeWidget(from);
    screenLayout->addWidget(to);
    to->show();
}
