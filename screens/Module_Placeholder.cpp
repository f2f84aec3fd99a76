#include "screens/Module_Placeholder.h"

#include "screens/Module_MainMenu.h"
#include "shell/ModuleManager.h"
#include "shell/StyleSheetFile.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Module_Placeholder::Module_Placeholder(const QString &title, Back back, QWidget *parent)
    : QWidget(parent)
    , back(back)
{
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(title + "\n\nThis screen opens in a coming version of the game.");
    label->setAlignment(Qt::AlignCenter);
    auto *backButton = new QPushButton(back == BackToMainMenu ? "Back to Main Menu" : "Back");
    backButton->setMinimumSize(160, 40);
    connect(backButton, &QPushButton::clicked, this, &Module_Placeholder::goBack);
    layout->addStretch(1);
    layout->addWidget(label, 0, Qt::AlignCenter);
    layout->addSpacing(20);
    layout->addWidget(backButton, 0, Qt::AlignCenter);
    layout->addStretch(1);
}

void Module_Placeholder::goBack()
{
    ModuleManager &shell = ModuleManager::instance();
    if (back == BackToMainMenu) {
        shell.changeModule(new Module_MainMenu);
        return;
    }
    shell.showTopMenu();
    shell.returnToCurrentScreen();
}

void Module_Placeholder::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}
