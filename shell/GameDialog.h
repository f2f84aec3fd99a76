#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

// Every question and message of the game: a modal dialog in the game's brown and tan, its text
// centred in a framed label above the buttons, held over the middle of the game's window. A
// screen may keep one and use it again; each use sets the text and shows only the buttons that
// this message needs.
class GameDialog : public QDialog
{
    Q_OBJECT

public:
    enum Button { AcceptButton, CancelButton };

    explicit GameDialog(QWidget *parent = nullptr);

    // a question with "Accept" and "Cancel"; true when accepted
    bool ask(const QString &question);
    // a message with one button; what the user presses changes nothing
    void tell(const QString &message, Button button = AcceptButton);
    // a message whose one button reads `buttonText`
    void tell(const QString &message, const QString &buttonText);
    // A list to choose from under the text, with the buttons `chooseText` and "Cancel": true
    // when the first was pressed, `chosen` then holding the item picked, or nothing.
    bool choose(const QString &text, const QStringList &items, const QString &chooseText, QString &chosen);
    QString text() const;

    // the same, with a dialog of their own
    static bool confirm(const QString &question);
    static void inform(const QString &message, Button button = AcceptButton);

    // the sheet every dialog of the game shares
    static QString styleSheet();

private:
    int run(const QString &text, bool withAccept, bool withCancel, const QString &acceptText = AcceptText);
    void centreOverGame();

    static constexpr const char *AcceptText = "Accept";

    QLabel *label;
    QListWidget *list;
    QPushButton *acceptButton;
    QPushButton *cancelButton;
};
