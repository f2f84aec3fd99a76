#pragma once

#include "fighters/StreamForm.h"
#include "persistence/PersistenceKit.h"
#include "screens/ScreenFactory.h"
#include "shell/ModuleManager.h"
#include "shell/TopMenuBar.h"
#include "world/GameManager.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

// Drives the game's screens as a player would, with nobody at the keyboard.
namespace ScreenTestKit {

// two worlds are equal when they save to the same bytes
using PersistenceKit::fileBytes;
using PersistenceKit::worldBytes;

// Answers the modal dialogs that come up by pressing the given buttons in turn, and keeps the
// text and the offered buttons of each; a dialog beyond the script is cancelled and kept too. A
// dialog that offers a list gets the next of `picks` chosen in it first (an empty pick chooses
// nothing), and keeps what the list offered.
class DialogScript : public QObject
{
public:
    struct Seen {
        QString text;
        QStringList buttons;
        QStringList listed;
    };
    QList<Seen> seen;

    explicit DialogScript(const QStringList &presses = {}, const QStringList &picks = {})
        : presses(presses)
        , picks(picks)
    {
        poll();
    }

private:
    void poll()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible())
            answer(dialog);
        QTimer::singleShot(5, this, [this] { poll(); });
    }

    void answer(QDialog *dialog)
    {
        Seen shown;
        shown.text = dialog->findChild<QLabel *>()->text();
        auto *list = dialog->findChild<QListWidget *>();
        if (list && list->isVisibleTo(dialog)) {
            for (int row = 0; row < list->count(); ++row)
                shown.listed << list->item(row)->text();
            const QString pick = picks.isEmpty() ? QString() : picks.takeFirst();
            list->setCurrentItem(list->findItems(pick, Qt::MatchExactly).value(0));
        }
        const QString wanted = presses.isEmpty() ? QString() : presses.takeFirst();
        QPushButton *pressed = nullptr;
        for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
            if (!button->isVisibleTo(dialog))
                continue;
            shown.buttons << button->text();
            if (button->text() == wanted)
                pressed = button;
        }
        seen << shown;
        if (pressed)
            pressed->click();
        else
            dialog->reject();
    }

    QStringList presses;
    QStringList picks;
};

// clicks the button, answers the dialogs that follow as given, and gives back what they showed
inline QList<DialogScript::Seen> press(QAbstractButton *button, const QStringList &answers,
                                       const QStringList &picks = {})
{
    DialogScript script(answers, picks);
    if (button)
        QTest::mouseClick(button, Qt::LeftButton);
    return script.seen;
}

inline QStringList texts(const QList<DialogScript::Seen> &seen)
{
    QStringList all;
    for (const DialogScript::Seen &dialog : seen)
        all << dialog.text;
    return all;
}

// the shown button of the current screen that reads `text`
inline QPushButton *screenButton(const QString &text)
{
    QWidget *screen = ModuleManager::instance().currentModule();
    for (QPushButton *button : screen->findChildren<QPushButton *>())
        if (button->text() == text && button->isVisibleTo(screen))
            return button;
    return nullptr;
}

// clicks the shown button of the current screen that reads `text`
inline void click(const QString &text)
{
    QPushButton *button = screenButton(text);
    QVERIFY2(button, qPrintable("no button " + text));
    QTest::mouseClick(button, Qt::LeftButton);
}

// the screen of the top menu's button, as a player opens it in a running game
inline void openFromMenu(TopMenuBar::ButtonID screen)
{
    ModuleManager::instance().showTopMenu();
    QTest::mouseClick(ModuleManager::instance().topMenu()->button(screen), Qt::LeftButton);
}

template <typename T> T *screenWidget(const QString &name)
{
    return ModuleManager::instance().currentModule()->findChild<T *>(name);
}

// a nations file of the default data: one list for each of the eight regions
inline void writeNations(const QList<QStringList> &regions)
{
    QDir().mkpath("Resources/Defaults");
    QFile file("Resources/Defaults/default_nations.dat");
    file.open(QIODevice::WriteOnly);
    QDataStream out(&file);
    out.setVersion(StreamForm::version);
    for (const QStringList &nations : regions)
        out << nations;
}

// The frame of a screen test: the game runs in a folder of its own, and each test leaves the
// world empty and the top menu hidden.
class ScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(root.isValid());
        QDir::setCurrent(root.path());
        ModuleManager::instance().initialize(ScreenFactory::builders());
    }

    void cleanup()
    {
        GameManager::instance().resetWorld();
        ModuleManager::instance().hideTopMenu();
    }

private:
    QTemporaryDir root;
};

} // namespace ScreenTestKit
