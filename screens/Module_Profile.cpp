#include "screens/Module_Profile.h"

#include "fighters/Entity_Fighter.h"
#include "persistence/FighterExport.h"
#include "screens/GamePictures.h"
#include "screens/ScreenParts.h"
#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "world/Entity_Event.h"
#include "world/GameManager.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

using F = Entity_Fighter;

// the labels of the two pages' fields, in the order of their enums
constexpr std::array<const char *, Module_Profile::FieldCount> fighterLabels{
    "Name: ", "Nationality", "Region", "Fighting Background:", "Reputation:", "Birthday:", "Age:",
    "Wins:",  "Losses:",     "KOs:"};
constexpr std::array<const char *, Module_Profile::ManagerFieldCount> managerLabels{
    "First Name", "Last Name", "Nationality", "Reputation", "Overall Record", "Active Record"};

// the portrait stands at three quarters of its pictures' size
constexpr QSize PortraitSize(165, 264);
constexpr QSize ManagerFlagSize(160, 100);
constexpr QSize FighterFlagSize(96, 60);
// the Intuition at which a manager reads the style behind a man's background
constexpr int StyleReadFrom = 10;

const QString noFighterYet = QStringLiteral("To get a fighter, you need to pick one of your students to train.");

QLabel *subheading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("subheading", true);
    return label;
}

QPushButton *pushButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setMinimumHeight(36);
    return button;
}

QHBoxLayout *buttonRow(std::initializer_list<QPushButton *> buttons)
{
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton *button : buttons) {
        button->setMinimumWidth(200);
        row->addWidget(button);
    }
    row->addStretch(1);
    row->setSpacing(24);
    return row;
}

QString record(int wins, int losses)
{
    return QString::number(wins) + " - " + QString::number(losses);
}

void showFlag(QLabel *label, const QString &nation)
{
    const QPixmap flag("./Resources/Flags/flag_" + nation + ".png");
    if (flag.isNull())
        label->clear();
    else
        label->setPixmap(flag.scaled(label->size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QString errorOpening(const QString &name)
{
    return "Error opening file " + FighterExport::files().pathOf(name);
}

} // namespace

Module_Profile::Module_Profile(QWidget *parent)
    : QWidget(parent)
    , screenLayout(new QVBoxLayout(this))
    , dialog(new GameDialog(this))
{
    screenLayout->setContentsMargins(12, 6, 12, 10);
    changeToManagerScreen();
}

void Module_Profile::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

bool Module_Profile::showsFighterPage() const
{
    return fighterPage && fighterPage->isVisibleTo(this);
}

int Module_Profile::shownFighter() const
{
    return fighterBox ? fighterBox->currentIndex() : -1;
}

QString Module_Profile::shownFighterName() const
{
    return fighterBox ? fighterBox->currentText() : QString();
}

void Module_Profile::showPage(QWidget *page)
{
    for (QWidget *other : {managerPage, fighterPage}) {
        if (other && other != page) {
            other->hide();
            screenLayout->removeWidget(other);
        }
    }
    if (screenLayout->indexOf(page) < 0)
        screenLayout->addWidget(page);
    page->show();
}

// --- The manager page ------------------------------------------------------------------------------

QWidget *Module_Profile::buildManagerPage()
{
    auto *page = new QWidget(this);
    page->setObjectName("managerPage");

    // who he is and what his fighters did under him
    QFrame *person = ScreenParts::panel();
    auto *personGrid = new QGridLayout(person);
    for (int field = 0; field < ManagerFieldCount; ++field) {
        managerFields[field] = ScreenParts::readOnlyField(QString("managerField%1").arg(field));
        personGrid->addWidget(new QLabel(managerLabels[field]), field, 0);
        personGrid->addWidget(managerFields[field], field, 1);
    }
    managerFlag = new QLabel;
    managerFlag->setObjectName("managerFlag");
    managerFlag->setFixedSize(ManagerFlagSize);
    personGrid->setRowMinimumHeight(ManagerFieldCount, 16);
    personGrid->addWidget(managerFlag, ManagerFieldCount + 1, 0, 1, 2, Qt::AlignCenter);
    personGrid->setRowStretch(ManagerFieldCount + 2, 1);
    personGrid->setColumnMinimumWidth(1, 180);
    personGrid->setVerticalSpacing(10);

    // the skills in blocks of three, two blocks to a row; a block that goes on from the one before
    // (the abilities) shows no second heading
    QFrame *skills = ScreenParts::panel();
    auto *skillGrid = new QGridLayout(skills);
    constexpr int SkillsPerBlock = 3;
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill) {
        const int block = skill / SkillsPerBlock;
        const int top = block / 2 * (SkillsPerBlock + 1);
        const int left = block % 2 * 2;
        const QString heading = Entity_Manager::skillHeading(skill);
        if (skill % SkillsPerBlock == 0 && heading != Entity_Manager::skillHeading(skill - 1))
            skillGrid->addWidget(subheading(heading), top, left, 1, 2, Qt::AlignLeft | Qt::AlignBottom);
        skillFields[skill] = ScreenParts::readOnlyField(QString("skillField%1").arg(skill));
        skillFields[skill]->setFixedWidth(44);
        skillFields[skill]->setAlignment(Qt::AlignCenter);
        const int row = top + 1 + skill % SkillsPerBlock;
        skillGrid->addWidget(new QLabel(Entity_Manager::skillLabel(skill)), row, left);
        skillGrid->addWidget(skillFields[skill], row, left + 1);
    }
    skillGrid->setColumnMinimumWidth(2, 120);
    skillGrid->setHorizontalSpacing(12);
    skillGrid->setVerticalSpacing(8);
    // a little air above each heading but the first, the rest of the panel below the skills
    for (int blockRow = 1; blockRow < Entity_Manager::SkillCount / (2 * SkillsPerBlock); ++blockRow)
        skillGrid->setRowMinimumHeight(blockRow * (SkillsPerBlock + 1), 44);
    skillGrid->setRowStretch(skillGrid->rowCount(), 1);

    QFrame *titles = ScreenParts::panel();
    auto *titleColumn = new QVBoxLayout(titles);
    managerTitles = new QListWidget;
    managerTitles->setObjectName("managerTitles");
    managerTitles->setUniformItemSizes(true);
    titleColumn->addWidget(subheading("Manager Titles:"));
    titleColumn->addWidget(managerTitles);

    auto *panels = new QHBoxLayout;
    panels->addWidget(person, 0);
    panels->addWidget(skills, 0);
    panels->addWidget(titles, 1);
    panels->setSpacing(14);

    auto *importButton = pushButton("Import Fighter Into Database");
    auto *fightersButton = pushButton("Current Fighters");
    connect(importButton, &QPushButton::clicked, this, &Module_Profile::importIntoDatabase);
    connect(fightersButton, &QPushButton::clicked, this, &Module_Profile::changeToFighterScreen);

    auto *heading = new QLabel("Manager Profile");
    heading->setProperty("heading", true);
    heading->setAlignment(Qt::AlignCenter);

    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(heading);
    column->addLayout(panels, 1);
    column->addSpacing(8);
    column->addLayout(buttonRow({importButton, fightersButton}));
    return page;
}

void Module_Profile::changeToManagerScreen()
{
    if (!managerPage)
        managerPage = buildManagerPage();
    QStringList strings;
    QList<int> values;
    QStringList titles;
    GameManager::instance().managerPack(strings, values, titles);

    const std::array<QString, ManagerFieldCount> texts{
        strings.value(Entity_Manager::FirstName),
        strings.value(Entity_Manager::LastName),
        strings.value(Entity_Manager::Nationality),
        strings.value(Entity_Manager::ManagerReputation),
        record(values.value(Entity_Manager::OverallWins), values.value(Entity_Manager::OverallLosses)),
        record(values.value(Entity_Manager::ActiveWins), values.value(Entity_Manager::ActiveLosses)),
    };
    for (int field = 0; field < ManagerFieldCount; ++field)
        managerFields[field]->setText(texts[field]);
    for (int skill = 0; skill < Entity_Manager::SkillCount; ++skill)
        skillFields[skill]->setText(QString::number(values.value(Entity_Manager::Punch + skill)));
    showFlag(managerFlag, strings.value(Entity_Manager::Nationality));
    managerTitles->clear();
    managerTitles->addItems(titles);
    showPage(managerPage);
}

// --- The fighter page ------------------------------------------------------------------------------

QWidget *Module_Profile::buildRatingsPanel()
{
    QFrame *ratings = ScreenParts::panel();
    ratings->setObjectName("ratingsPanel");
    auto *grid = new QGridLayout(ratings);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(1);
    grid->setContentsMargins(8, 6, 8, 6);
    // twelve groups of four, three groups to a row
    constexpr int GroupsPerRow = 3;
    // a heading, four ratings and a gap before the next row of groups
    constexpr int RowsPerGroup = Ratings::GroupSize + 2;
    for (int rating = 0; rating < Ratings::Count; ++rating) {
        const int group = rating / Ratings::GroupSize;
        const int top = group / GroupsPerRow * RowsPerGroup;
        if (top > 0)
            grid->setRowMinimumHeight(top - 1, 10);
        const int left = group % GroupsPerRow * 2;
        if (rating % Ratings::GroupSize == 0)
            grid->addWidget(subheading(Ratings::groupHeading(group)), top, left, 1, 2);
        QLineEdit *field = ScreenParts::readOnlyField(QString("ratingField%1").arg(rating));
        field->setFixedWidth(36);
        field->setAlignment(Qt::AlignCenter);
        ratingFields[rating] = field;
        grid->addWidget(new QLabel(Ratings::label(rating)), top + 1 + rating % Ratings::GroupSize, left);
        grid->addWidget(field, top + 1 + rating % Ratings::GroupSize, left + 1);
    }
    for (int column = 0; column < GroupsPerRow; ++column)
        grid->setColumnStretch(column * 2, 1);
    return ratings;
}

QWidget *Module_Profile::buildFighterPage()
{
    auto *page = new QWidget(this);
    page->setObjectName("fighterPage");

    fighterBox = new QComboBox;
    fighterBox->setObjectName("fighterBox");
    portraitLabel = new QLabel;
    portraitLabel->setObjectName("portraitLabel");
    portraitLabel->setFixedSize(PortraitSize);
    fighterFlag = new QLabel;
    fighterFlag->setObjectName("fighterFlag");
    fighterFlag->setFixedSize(FighterFlagSize);
    auto *looks = new QVBoxLayout;
    looks->addWidget(fighterBox);
    looks->addWidget(portraitLabel, 0, Qt::AlignHCenter);
    looks->addSpacing(8);
    looks->addWidget(fighterFlag, 0, Qt::AlignHCenter);
    looks->addStretch(1);

    // who he is, his record, and his bio
    QFrame *person = ScreenParts::panel();
    auto *personGrid = new QGridLayout(person);
    personGrid->setVerticalSpacing(3);
    personGrid->setContentsMargins(8, 6, 8, 6);
    for (int field = 0; field < FieldCount; ++field) {
        fighterFields[field] = ScreenParts::readOnlyField(QString("fighterField%1").arg(field));
        // the three numbers of his record stand side by side
        if (field >= Wins)
            continue;
        personGrid->addWidget(new QLabel(fighterLabels[field]), field, 0);
        personGrid->addWidget(fighterFields[field], field, 1, 1, 5);
    }
    auto *recordRow = new QHBoxLayout;
    for (int field = Wins; field < FieldCount; ++field) {
        fighterFields[field]->setAlignment(Qt::AlignCenter);
        recordRow->addWidget(new QLabel(fighterLabels[field]));
        recordRow->addWidget(fighterFields[field]);
    }
    personGrid->addLayout(recordRow, Wins, 0, 1, 6);
    bioEdit = new QTextEdit;
    bioEdit->setObjectName("bioEdit");
    bioEdit->setAcceptRichText(false);
    auto *bioButton = pushButton("Update Fighter Bio");
    personGrid->addWidget(bioEdit, Wins + 1, 0, 1, 6);
    personGrid->addWidget(bioButton, Wins + 2, 0, 1, 6);
    personGrid->setColumnStretch(1, 1);
    personGrid->setRowStretch(Wins + 1, 1);
    person->setFixedWidth(310);

    auto *top = new QHBoxLayout;
    top->addLayout(looks);
    top->addWidget(person);
    top->addWidget(buildRatingsPanel(), 1);
    top->setSpacing(10);

    // his career, oldest first, and his belts
    // one line each: the list measures one entry, not a hundred
    careerList = new QListWidget;
    careerList->setObjectName("careerList");
    careerList->setUniformItemSizes(true);
    titleList = new QListWidget;
    titleList->setObjectName("titleList");
    titleList->setUniformItemSizes(true);
    auto *lists = new QHBoxLayout;
    lists->addWidget(careerList, 3);
    lists->addWidget(titleList, 2);

    auto *exportButton = pushButton("Export Fighter");
    auto *fantasyButton = pushButton("Import Fantasy Match");
    auto *retireButton = pushButton("Retire Fighter");
    auto *managerButton = pushButton("Manager Profile");

    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(top, 1);
    column->addLayout(lists, 0);
    column->addLayout(buttonRow({exportButton, fantasyButton, retireButton, managerButton}));
    careerList->setFixedHeight(118);
    titleList->setFixedHeight(118);

    connect(fighterBox, &QComboBox::currentIndexChanged, this, &Module_Profile::switchFighterShown);
    connect(bioButton, &QPushButton::clicked, this, &Module_Profile::updateFighterBio);
    connect(exportButton, &QPushButton::clicked, this, &Module_Profile::exportFighter);
    connect(fantasyButton, &QPushButton::clicked, this, &Module_Profile::importFantasyMatch);
    connect(retireButton, &QPushButton::clicked, this, &Module_Profile::retireFighter);
    connect(managerButton, &QPushButton::clicked, this, &Module_Profile::changeToManagerScreen);
    return page;
}

void Module_Profile::changeToFighterScreen()
{
    if (!fighterPage)
        fighterPage = buildFighterPage();
    refillFighterBox();
    showPage(fighterPage);
}

void Module_Profile::refillFighterBox()
{
    const QSignalBlocker quiet(fighterBox);
    fighterBox->clear();
    fighterBox->addItems(GameManager::instance().fighterNames());
    fighterBox->setCurrentIndex(fighterBox->count() > 0 ? 0 : -1);
    switchFighterShown(fighterBox->currentIndex());
}

void Module_Profile::switchFighterShown(int index)
{
    const GameManager &world = GameManager::instance();
    QStringList strings;
    QList<int> integers;
    QDate birth;
    F::History history;
    QStringList titles;
    // with nobody at that position the sheet shows the empty record
    world.fighterPack(index, strings, integers, birth, history, titles);
    Entity_Fighter man;
    man.unpack(strings, integers, birth, history, titles);

    QString background = man.text(F::FightingBackground);
    if (world.managerValues().value(Entity_Manager::Intuition) >= StyleReadFrom)
        background += "/" + man.text(F::FightingStyle);
    const std::array<QString, FieldCount> texts{
        man.fullName(),
        man.text(F::Nationality),
        man.text(F::Region),
        background,
        man.text(F::Reputation),
        man.getBirthDate().toString("dd-MM-yyyy"),
        QString::number(man.number(F::Age)),
        QString::number(man.number(F::Wins)),
        QString::number(man.number(F::Losses)),
        QString::number(man.number(F::Kos)),
    };
    for (int field = 0; field < FieldCount; ++field) {
        fighterFields[field]->setText(texts[field]);
        fighterFields[field]->setCursorPosition(0);
    }
    bioEdit->setPlainText(man.text(F::Bio));
    showFlag(fighterFlag, man.text(F::Nationality));

    QStringList career;
    career.reserve(history.size());
    for (auto entry = history.cbegin(); entry != history.cend(); ++entry)
        career.append(entry.value() + " - " + entry.key().toString(Qt::TextDate));
    careerList->clear();
    careerList->addItems(career);
    titleList->clear();
    titleList->addItems(titles);

    const Ratings::Values ratings = Ratings::of(man);
    for (int rating = 0; rating < Ratings::Count; ++rating)
        ratingFields[rating]->setText(QString::number(ratings[rating]));

    QStringList colours;
    QList<int> images;
    world.fighterLook(index, colours, images);
    const QPixmap portrait = GamePictures::portrait(colours, images);
    if (portrait.isNull())
        portraitLabel->clear();
    else
        portraitLabel->setPixmap(portrait.scaled(PortraitSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

// --- The fighter as a person -----------------------------------------------------------------------

void Module_Profile::updateFighterBio()
{
    const int index = shownFighter();
    if (index < 0) {
        dialog->tell("You have no fighters selected.");
        return;
    }
    if (!dialog->ask("Are you sure you want to update this fighter's bio?"))
        return;
    GameManager::instance().setFighterBio(index, bioEdit->toPlainText());
}

void Module_Profile::retireFighter()
{
    const int index = shownFighter();
    if (index < 0) {
        dialog->tell("You have no fighters to retire.\n" + noFighterYet);
        return;
    }
    if (!dialog->ask("Are you sure you want " + shownFighterName() + " to retire?"))
        return;
    if (!GameManager::instance().retireFighter(index)) {
        dialog->tell("The promotion your fighter is signed to has an event today.\n"
                     "Please wait until after the event to make any retirement decisions.");
        return;
    }
    refillFighterBox();
}

void Module_Profile::exportFighter()
{
    const int index = shownFighter();
    if (index < 0) {
        dialog->tell("You have no fighters to export.\n" + noFighterYet);
        return;
    }
    const QString name = shownFighterName();
    QString reason;
    if (!FighterExport::files().isValidName(name, &reason)) {
        dialog->tell(reason);
        return;
    }
    // the man is written whole to a side file that takes his name only at the end, so a question
    // answered with Cancel, or a failed write, leaves an old file of his name as it was
    const bool overwrite = FighterExport::files().exists(name);
    if (!dialog->ask(overwrite ? "This fighter already exists. Overwrite?"
                               : "Are you sure you want to export " + name + "?"))
        return;
    if (!FighterExport::write(index, &reason)) {
        dialog->tell(errorOpening(name));
        return;
    }
    dialog->tell("Fighter exported to " + FighterExport::files().pathOf(name) + ".");
}

bool Module_Profile::chooseExportFile(QString &name)
{
    if (!dialog->choose("Choose fighter to import:", FighterExport::files().names(), "Import", name))
        return false;
    if (name.isEmpty()) {
        dialog->tell("No import file selected.");
        return false;
    }
    return true;
}

bool Module_Profile::confirmImport(const QString &name, const QString &consequence)
{
    if (!dialog->ask("Import " + name + "? \n" + consequence))
        return false;
    if (!FighterExport::files().canOpen(name)) {
        dialog->tell(errorOpening(name));
        return false;
    }
    return true;
}

void Module_Profile::importIntoDatabase()
{
    QString name;
    if (!chooseExportFile(name) || !confirmImport(name, "He will appear as a Free Agent."))
        return;
    QString reason;
    if (!FighterExport::importFreeAgent(name, &reason)) {
        dialog->tell("The file " + FighterExport::files().pathOf(name) + " could not be read.\n" + reason);
        return;
    }
    dialog->tell("Imported " + name + " into the Free Agents list.");
}

void Module_Profile::importFantasyMatch()
{
    QString name;
    if (!chooseExportFile(name))
        return;
    const int index = shownFighter();
    if (index < 0) {
        dialog->tell("No user fighter selected.");
        return;
    }
    if (!confirmImport(name, "He will immediately fight a fantasy match with " + shownFighterName() + "."))
        return;
    QString reason;
    Entity_Event night;
    if (!FighterExport::importFantasyMatch(name, index, night, &reason)) {
        dialog->tell("The file " + FighterExport::files().pathOf(name) + " could not be read.\n" + reason);
        return;
    }
    dialog->tell("Imported " + name + " into a fantasy match.", "Go!");
    ModuleManager &shell = ModuleManager::instance();
    shell.hideTopMenu();
    shell.changeModule(shell.screens().fightNight(night));
}
