#include "shell/MessageDialog.h"

#include "shell/ConfirmDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MessageDialog::MessageDialog(QWidget *parent)
    : QDialog(parent)
    , layout(new QVBoxLayout(this))
    , label(new QLabel)
    , acceptButton(new QPushButton("Accept"))
    , cancelButton(new QPushButton("Cancel"))
{
    setModal(true);
    // the palette of every dialog of the game, and a list in the same parchment as the screens'
    setStyleSheet(ConfirmDialog::styleSheet()
                  + "QListWidget { background-color: #F6E7CB; color: Black; border: 2px solid #885038; }");
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(320);
    label->setMargin(6);
    layout->addWidget(label);
    layout->addWidget(acceptButton);
    layout->addWidget(cancelButton);
    connect(acceptButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

int MessageDialog::run(const QString &message, bool withAccept, bool withCancel)
{
    label->setText(message);
    acceptButton->setVisible(withAccept);
    cancelButton->setVisible(withCancel);
    adjustSize();
    return exec();
}

bool MessageDialog::ask(const QString &question)
{
    return run(question, true, true) == QDialog::Accepted;
}

void MessageDialog::tell(const QString &message, Button button)
{
    run(message, button == AcceptButton, button == CancelButton);
}

QString MessageDialog::text() const
{
    return label->text();
}
