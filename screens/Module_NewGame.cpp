#include "screens/Module_NewGame.h"

#include "fighters/GameLists.h"
#include "fighters/NationTable.h"
#include "persistence/DefaultFiles.h"
#include "persistence/DefaultWorld.h"
#include "persistence/NameFiles.h"
#include "screens/GamePictures.h"
#include "screens/Module_MainMenu.h"
#include "screens/ScreenFactory.h"
#include "screens/ScreenParts.h"
#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "shell/TopMenuBar.h"
#include "world/GameManager.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// the three panels hold two columns of three skills each, in the order of the manager's skills
constexpr int SkillsPerGroup = 3;
constexpr int GroupsPerPanel = 2;
constexpr int PanelCount = Entity_Manager::SkillCount / (SkillsPerGroup * GroupsPerPanel);
constexpr int TopSkillLevel = 10;

// the signature styles as the box offers them: places in the list of backgrounds
constexpr std::array<int, 7> signatureStyleOrder{1, 0, 3, 4, 2, 5, 6};

QStringList signatureStyles()
{
    QStringList styles;
    for (int place : signatureStyleOrder)
        styles << GameLists::backgrounds().at(place);
    return styles;
}

const QString nationFileName = QStringLiteral("./Resources/Defaults/default_nations.dat");

QComboBox *comboBox(const QString &name, const QStringList &items = {})
{
    auto *box = new QComboBox;
    box->setObjectName(name);
    box->addItems(items);
    return box;
}

QLineEdit *lineEdit(const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    return edit;
}

QPushButton *pushButton(const QString &text, int width)
{
    auto *button = new QPushButton(text);
    button->setFixedWidth(width);
    button->setMinimumHeight(40);
    return button;
}

// a row of buttons held in the middle of the page
QHBoxLayout *buttonRow(std::initializer_list<QPushButton *> buttons)
{
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton *button : buttons)
        row->addWidget(button);
    row->addStretch(1);
    row->setSpacing(40);
    return row;
}

} // namespace

Module_NewGame::Module_NewGame(QWidget *parent)
    : QWidget(parent)
    , screenLayout(new QVBoxLayout(this))
{
    QList<QStringList> lists;
    if (!NameFiles::readNations(lists, DefaultFiles::path(DefaultFiles::nationsFile())))
        // shown over the screen once it stands; the screen goes on with empty nation lists
        QMetaObject::invokeMethod(this, &Module_NewGame::warnOfMissingNations, Qt::QueuedConnection);
    for (int region = 0; region < RegionCount; ++region)
        nations[region] = lists.value(region);

    managerPage = buildManagerPage();
    gymPage = buildGymPage();
    gymPage->hide();
    screenLayout->addWidget(managerPage);

    regionBox->addItems(NationTable::regions());
    regionBox->setCurrentIndex(0);
    changeRegion(0);
    connect(regionBox, &QComboBox::currentIndexChanged, this, &Module_NewGame::changeRegion);
    connect(nationBox, &QComboBox::activated, this, &Module_NewGame::changeFlagDisplay);
    for (QSpinBox *box : skillBoxes)
        connect(box, &QSpinBox::valueChanged, this, &Module_NewGame::calculateSkill);
    connect(primaryColourBox, &QComboBox::activated, this, &Module_NewGame::changeColourDisplay);
    connect(secondaryColourBox, &QComboBox::activated, this, &Module_NewGame::changeColourDisplay);
    changeColourDisplay();

    connect(mainMenuButton, &QPushButton::clicked, this, &Module_NewGame::backToMainMenu);
    connect(gymCreationButton, &QPushButton::clicked, this, &Module_NewGame::aheadToGymInfo);
    connect(managerCreationButton, &QPushButton::clicked, this, &Module_NewGame::backToManagerInfo);
    connect(gameButton, &QPushButton::clicked, this, &Module_NewGame::aheadToGame);
}

QWidget *Module_NewGame::buildManagerPage()
{
    auto *page = new QWidget(this);
    page->setObjectName("managerPage");
    auto *column = new QVBoxLayout(page);

    firstNameEdit = lineEdit("firstNameEdit");
    lastNameEdit = lineEdit("lastNameEdit");
    regionBox = comboBox("regionBox");
    nationBox = comboBox("nationBox");
    flagLabel = new QLabel;
    flagLabel->setObjectName("flagLabel");
    flagLabel->setFixedSize(160, 100);

    auto *person = new QGridLayout;
    person->addWidget(new QLabel("First Name:"), 0, 0);
    person->addWidget(firstNameEdit, 0, 1);
    person->addWidget(new QLabel("Last Name:"), 1, 0);
    person->addWidget(lastNameEdit, 1, 1);
    person->addWidget(new QLabel("Region:"), 0, 3);
    person->addWidget(regionBox, 0, 4);
    person->addWidget(new QLabel("Nationality:"), 1, 3);
    person->addWidget(nationBox, 1, 4);
    person->addWidget(flagLabel, 0, 6, 2, 1);
    person->setColumnMinimumWidth(1, 200);
    person->setColumnMinimumWidth(2, 30);
    person->setColumnMinimumWidth(4, 200);
    person->setColumnMinimumWidth(5, 30);
    person->setVerticalSpacing(20);
    auto *personRow = new QHBoxLayout;
    personRow->addStretch(1);
    personRow->addLayout(person);
    personRow->addStretch(1);

    skillPointsLabel = ScreenParts::heading("Skill Points: " + QString::number(skillPoints));
    skillPointsLabel->setObjectName("skillPointsLabel");

    auto *panels = new QHBoxLayout;
    panels->addStretch(1);
    for (int panel = 0; panel < PanelCount; ++panel)
        panels->addWidget(buildSkillPanel(panel));
    panels->addStretch(1);
    panels->setSpacing(30);

    mainMenuButton = pushButton("Back to Main Menu", 280);
    gymCreationButton = pushButton("Advance to Gym Creation", 280);

    column->addStretch(1);
    column->addWidget(ScreenParts::heading("Create Your Manager"));
    column->addSpacing(15);
    column->addLayout(personRow);
    column->addSpacing(15);
    column->addWidget(skillPointsLabel);
    column->addLayout(panels);
    column->addSpacing(25);
    column->addLayout(buttonRow({mainMenuButton, gymCreationButton}));
    column->addStretch(1);
    return page;
}

QWidget *Module_NewGame::buildSkillPanel(int panel)
{
    auto *frame = new QFrame;
    frame->setProperty("panel", true);
    frame->setFixedSize(200, 250);
    auto *grid = new QGridLayout(frame);
    int row = 0;
    for (int group = panel * GroupsPerPanel; group < (panel + 1) * GroupsPerPanel; ++group) {
        // a block that goes on from the group before shows no second heading
        const int first = group * SkillsPerGroup;
        const QString heading = Entity_Manager::skillHeading(first);
        auto *header = new QLabel(heading != Entity_Manager::skillHeading(first - 1) ? heading : QString());
        header->setStyleSheet("color: #F4C868;");
        grid->addWidget(header, row++, 0, 1, 2);
        for (int skill = 0; skill < SkillsPerGroup; ++skill) {
            const int index = first + skill;
            auto *box = new QSpinBox;
            box->setObjectName(QString("skillBox%1").arg(index));
            box->setRange(0, TopSkillLevel);
            box->setValue(0);
            box->setFixedWidth(60);
            skillBoxes[index] = box;
            grid->addWidget(new QLabel(Entity_Manager::skillLabel(index)), row, 0);
            grid->addWidget(box, row++, 1);
        }
    }
    return frame;
}

QWidget *Module_NewGame::buildGymPage()
{
    auto *page = new QWidget(this);
    page->setObjectName("gymPage");
    auto *column = new QVBoxLayout(page);

    gymNameEdit = lineEdit("gymNameEdit");
    styleBox = comboBox("styleBox", signatureStyles());
    primaryColourBox = comboBox("primaryColourBox", GameLists::kitColours());
    secondaryColourBox = comboBox("secondaryColourBox", GameLists::kitColours());
    emblemLabel = new QLabel;
    emblemLabel->setObjectName("emblemLabel");
    emblemLabel->setFixedSize(250, 250);

    auto *form = new QGridLayout;
    const std::array<std::pair<const char *, QWidget *>, 4> fields{{
        {"Gym Name", gymNameEdit},
        {"Signature Style", styleBox},
        {"Primary Colour", primaryColourBox},
        {"Secondary Colour", secondaryColourBox},
    }};
    for (int row = 0; row < int(fields.size()); ++row) {
        form->addWidget(new QLabel(fields[row].first), row, 0);
        form->addWidget(fields[row].second, row, 1);
    }
    form->setColumnMinimumWidth(1, 220);
    form->setVerticalSpacing(20);
    form->setHorizontalSpacing(15);

    auto *gymRow = new QHBoxLayout;
    gymRow->addStretch(1);
    gymRow->addLayout(form);
    gymRow->addSpacing(50);
    gymRow->addWidget(emblemLabel);
    gymRow->addStretch(1);

    managerCreationButton = pushButton("Back to Manager Creation", 280);
    gameButton = pushButton("Advance to Game", 280);

    column->addStretch(1);
    column->addWidget(ScreenParts::heading("Create Your Gym"));
    column->addSpacing(30);
    column->addLayout(gymRow);
    column->addSpacing(40);
    column->addLayout(buttonRow({managerCreationButton, gameButton}));
    column->addStretch(1);
    return page;
}

void Module_NewGame::warnOfMissingNations()
{
    // a screen already left behind has nobody to warn
    if (!isVisible())
        return;
    GameDialog::inform("Warning: " + nationFileName + " - File not found. Proceeding may cause errors with the game.");
}

void Module_NewGame::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

void Module_NewGame::changeRegion(int index)
{
    nationBox->clear();
    if (index >= 0 && index < RegionCount)
        nationBox->addItems(nations[index]);
    changeFlagDisplay();
}

void Module_NewGame::changeFlagDisplay()
{
    const QPixmap flag("./Resources/Flags/flag_" + nationBox->currentText() + ".png");
    if (flag.isNull())
        flagLabel->clear();
    else
        flagLabel->setPixmap(flag.scaled(flagLabel->size()));
}

// The sum of the boxes never passes the points at hand: a box raised past them steps back, and it
// stays capped where it stands until points are free again. Stepping back sends valueChanged, so
// this runs again inside itself, and that inner run keeps the count up to date.
void Module_NewGame::calculateSkill()
{
    int sum = 0;
    for (const QSpinBox *box : skillBoxes)
        sum += box->value();
    skillPoints = StartingSkillPoints - sum;
    auto *raised = qobject_cast<QSpinBox *>(sender());
    while (skillPoints < 0 && raised) {
        raised->setValue(raised->value() - 1);
        raised->setMaximum(raised->value());
    }
    if (skillPoints != 0)
        for (QSpinBox *box : skillBoxes)
            box->setMaximum(TopSkillLevel);
    skillPointsLabel->setText("Skill Points: " + QString::number(skillPoints));
}

void Module_NewGame::changeColourDisplay()
{
    const QPixmap emblem = GamePictures::gymEmblem(primaryColourBox->currentText(), secondaryColourBox->currentText());
    if (emblem.isNull())
        emblemLabel->clear();
    else
        emblemLabel->setPixmap(emblem);
}

void Module_NewGame::backToMainMenu()
{
    ModuleManager::instance().changeModule(new Module_MainMenu);
}

void Module_NewGame::swapPage(QWidget *from, QWidget *to)
{
    from->hide();
    screenLayout->removeWidget(from);
    screenLayout->addWidget(to);
    to->show();
}

void Module_NewGame::aheadToGymInfo()
{
    swapPage(managerPage, gymPage);
}

void Module_NewGame::backToManagerInfo()
{
    swapPage(gymPage, managerPage);
}

void Module_NewGame::aheadToGame()
{
    GameManager::NewGame choices;
    choices.firstName = firstNameEdit->text();
    choices.lastName = lastNameEdit->text();
    choices.region = regionBox->currentText();
    choices.nation = nationBox->currentText();
    for (const QSpinBox *box : skillBoxes)
        choices.skills.append(box->value());
    choices.gymName = gymNameEdit->text();
    choices.gymStyle = styleBox->currentText();
    choices.primaryColour = primaryColourBox->currentText();
    choices.secondaryColour = secondaryColourBox->currentText();
    GameManager::instance().startNewGame(choices, DefaultWorld::read());
    ModuleManager::instance().showTopMenu();
    ModuleManager::instance().changeModule(ScreenFactory::build(TopMenuBar::Profile));
}
