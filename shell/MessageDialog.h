#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QVBoxLayout;

// The one message box of a screen, built once and used again for every message and question:
// each use sets the text and shows only the buttons that this message needs.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    enum Button { AcceptButton, CancelButton };

    explicit MessageDialog(QWidget *parent = nullptr);

    // a question with "Accept" and "Cancel"; true when accepted
    bool ask(const QString &question);
    // a message with one button; what the user presses changes nothing
    void tell(const QString &message, Button button);

    QString text() const;

private:
    int run(const QString &text, bool withAccept, bool withCancel);

    QVBoxLayout *layout;
    QLabel *label;
    QPushButton *acceptButton;
    QPushButton *cancelButton;
};
