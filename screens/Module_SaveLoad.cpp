#include "screens/Module_SaveLoad.h"

#include "persistence/SaveFile.h"
#include "screens/Module_MainMenu.h"
#include "screens/ScreenFactory.h"
#include "shell/GameDialog.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"
#include "shell/TopMenuBar.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

QPushButton *pushButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setMinimumHeight(40);
    return button;
}

QString quoted(const QString &name)
{
    return '"' + name + '"';
}

QString errorOpening(const QString &name)
{
    return "Error opening file " + SaveFile::files().pathOf(name);
}

} // namespace

Module_SaveLoad::Module_SaveLoad(QWidget *parent)
    : QWidget(parent)
    , nameEdit(new QLineEdit(this))
    , saveButton(pushButton("Save"))
    , saveList(new QListWidget(this))
    , loadButton(pushButton("Load"))
    , deleteButton(pushButton("Delete"))
    , mainMenuButton(pushButton("Back to Main Menu"))
    , message(new GameDialog(this))
    , grid(new QGridLayout(this))
{
    nameEdit->setObjectName("nameEdit");
    saveList->setObjectName("saveList");
    nameEdit->setMinimumSize(420, 34);
    saveList->setMinimumSize(420, 300);

    if (ModuleManager::instance().isTopMenuVisible()) {
        grid->addWidget(nameEdit, 1, 1, 1, 2);
        grid->addWidget(saveButton, 2, 1, 1, 2);
        grid->addWidget(saveList, 4, 1, 3, 2);
        grid->addWidget(loadButton, 7, 1);
        grid->addWidget(deleteButton, 7, 2);
        grid->setRowStretch(3, 1);
        mainMenuButton->setParent(this);
        mainMenuButton->hide();
    } else {
        grid->addWidget(saveList, 1, 1, 4, 2);
        grid->addWidget(loadButton, 5, 1);
        grid->addWidget(deleteButton, 5, 2);
        grid->addWidget(mainMenuButton, 7, 1, 1, 2);
        grid->setRowMinimumHeight(6, 20);
        nameEdit->hide();
        saveButton->setParent(this);
        saveButton->hide();
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(8, 1);
    grid->setSpacing(0);

    connect(saveButton, &QPushButton::clicked, this, &Module_SaveLoad::saveData);
    connect(loadButton, &QPushButton::clicked, this, &Module_SaveLoad::loadData);
    connect(deleteButton, &QPushButton::clicked, this, &Module_SaveLoad::deleteData);
    connect(mainMenuButton, &QPushButton::clicked, this, &Module_SaveLoad::backToMainMenu);
    connect(saveList, &QListWidget::currentTextChanged, this, &Module_SaveLoad::setFileName);
    // the first game stands chosen with the name field empty; a click on it fills the field too
    connect(saveList, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) { setFileName(item->text()); });

    refreshList();
    nameEdit->clear();
}

void Module_SaveLoad::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}

void Module_SaveLoad::refreshList()
{
    saveList->hide();
    saveList->clear();
    saveList->addItems(SaveFile::files().names());
    saveList->setCurrentRow(0);
    saveList->show();
}

QString Module_SaveLoad::chosenName() const
{
    const QListWidgetItem *item = saveList->currentItem();
    return item ? item->text() : QString();
}

void Module_SaveLoad::setFileName(const QString &name)
{
    nameEdit->setText(name);
}

void Module_SaveLoad::saveData()
{
    const QString name = nameEdit->text();
    if (name.isEmpty()) {
        message->tell("Please specify a file name for your save.", GameDialog::CancelButton);
        return;
    }
    QString refusal;
    if (!SaveFile::files().isValidName(name, &refusal)) {
        message->tell(refusal, GameDialog::CancelButton);
        return;
    }
    // the game is written whole to a side file and only then takes the name, so a question
    // answered with Cancel, or a failed write, leaves the folder as it was
    const bool overwrite = SaveFile::files().exists(name);
    if (!message->ask(overwrite ? "That file already exists. Overwrite?" : "Save as " + quoted(name) + "?"))
        return;
    if (!SaveFile::save(name, &refusal)) {
        message->tell(errorOpening(name) + '\n' + refusal, GameDialog::CancelButton);
        return;
    }
    refreshList();
    nameEdit->clear();
    message->tell("File saved successfully.", GameDialog::AcceptButton);
}

void Module_SaveLoad::loadData()
{
    const QString name = chosenName();
    if (saveList->count() == 0) {
        message->tell("Please specify a file to load.", GameDialog::CancelButton);
        return;
    }
    if (!SaveFile::files().canOpen(name)) {
        message->tell(errorOpening(name), GameDialog::CancelButton);
        return;
    }
    if (!message->ask("Load " + quoted(name) + "?"))
        return;
    // a file that the reader refuses leaves the running game as it was
    QString refusal;
    if (!SaveFile::load(name, &refusal)) {
        message->tell("The file " + SaveFile::files().pathOf(name) + " could not be read.\n" + refusal,
                      GameDialog::CancelButton);
        return;
    }
    message->tell("File loaded successfully.", GameDialog::AcceptButton);
    ModuleManager::instance().showTopMenu();
    ModuleManager::instance().changeModule(ScreenFactory::build(TopMenuBar::Profile));
}

void Module_SaveLoad::deleteData()
{
    const QString name = chosenName();
    if (saveList->count() == 0) {
        message->tell("Please specify a file to delete.", GameDialog::CancelButton);
        return;
    }
    if (!message->ask("Are you sure you want to delete " + quoted(name) + "?"))
        return;
    QString refusal;
    if (!SaveFile::remove(name, &refusal)) {
        message->tell("The file " + SaveFile::files().pathOf(name) + " could not be deleted.\n" + refusal,
                      GameDialog::CancelButton);
        return;
    }
    refreshList();
    nameEdit->clear();
    message->tell("File deleted successfully.", GameDialog::AcceptButton);
}

void Module_SaveLoad::backToMainMenu()
{
    ModuleManager::instance().changeModule(new Module_MainMenu);
}
