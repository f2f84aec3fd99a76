#pragma once

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

// Answers the next modal dialog by pressing the button with the given text, and keeps the
// question it showed, so a test can drive a slot that asks before it acts.
class DialogAnswer
{
public:
    explicit DialogAnswer(const QString &buttonText)
    {
        QTimer::singleShot(0, [this, buttonText] { answer(buttonText); });
    }

    QString question;
    bool answered = false;

private:
    void answer(const QString &buttonText)
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            QTimer::singleShot(10, [this, buttonText] { answer(buttonText); });
            return;
        }
        if (auto *label = dialog->findChild<QLabel *>())
            question = label->text();
        for (QPushButton *button : dialog->findChildren<QPushButton *>())
            if (button->text() == buttonText) {
                answered = true;
                button->click();
                return;
            }
        dialog->reject();
    }
};
