#include "shell/GameDialog.h"

#include "shell/ModuleManager.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

QString GameDialog::styleSheet()
{
    return "QDialog {\tbackground: url(./Resources/Backgrounds/MainBackground.jpg);\t\tbackground-repeat:no-repeat; }"
           "QPushButton{ border: 3px outset #704018;     min-width: 50px;\tborder-radius: 10px;     "
           "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, stop: 0 #E0B687, stop: 1 #704018); "
           "font-weight:bold;  color:Black;}"
           "QLabel {border: 3px groove #885038; \tbackground-color: #E0B687; \tfont-weight:bold; color:Black; }"
           "QPushButton:pressed{ min-width: 50px;\tbackground-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, "
           "stop: 0 #986848, stop: 1 #F8D0A0); }"
           // a list inside a dialog in the same parchment as the screens'
           "QListWidget { background-color: #F6E7CB; color: Black; border: 2px solid #885038; }";
}

GameDialog::GameDialog(QWidget *parent)
    : QDialog(parent)
    , label(new QLabel)
    , list(new QListWidget)
    , acceptButton(new QPushButton(AcceptText))
    , cancelButton(new QPushButton("Cancel"))
{
    setModal(true);
    setWindowTitle("Orvane");
    setStyleSheet(styleSheet());
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(320);
    label->setMargin(6);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list);
    list->hide();
    list->setMinimumHeight(200);
    layout->addWidget(acceptButton);
    layout->addWidget(cancelButton);
    connect(acceptButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

int GameDialog::run(const QString &message, bool withAccept, bool withCancel, const QString &acceptText)
{
    label->setText(message);
    acceptButton->setText(acceptText);
    acceptButton->setVisible(withAccept);
    cancelButton->setVisible(withCancel);
    adjustSize();
    centreOverGame();
    const int answer = exec();
    // the keys go back to the game's window, as a desktop's window manager would hand them back
    if (QWidget *window = ModuleManager::instance().mainWindow())
        window->activateWindow();
    return answer;
}

void GameDialog::centreOverGame()
{
    const QWidget *window = ModuleManager::instance().mainWindow();
    if (window && window->isVisible())
        move(window->geometry().center() - rect().center());
}

bool GameDialog::ask(const QString &question)
{
    return run(question, true, true) == QDialog::Accepted;
}

void GameDialog::tell(const QString &message, Button button)
{
    run(message, button == AcceptButton, button == CancelButton);
}

void GameDialog::tell(const QString &message, const QString &buttonText)
{
    run(message, true, false, buttonText);
}

bool GameDialog::choose(const QString &text, const QStringList &items, const QString &chooseText, QString &chosen)
{
    list->clear();
    list->addItems(items);
    list->show();
    const bool accepted = run(text, true, true, chooseText) == QDialog::Accepted;
    // the list's focus marks a row without choosing it: only a chosen row counts
    const QListWidgetItem *item = list->selectedItems().value(0);
    chosen = accepted && item ? item->text() : QString();
    list->hide();
    return accepted;
}

QString GameDialog::text() const
{
    return label->text();
}

bool GameDialog::confirm(const QString &question)
{
    return GameDialog().ask(question);
}

void GameDialog::inform(const QString &message, Button button)
{
    GameDialog().tell(message, button);
}
