#include "shell/ConfirmDialog.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

QString ConfirmDialog::styleSheet()
{
    return "QDialog {\tbackground: url(./Resources/Backgrounds/MainBackground.jpg);\t\tbackground-repeat:no-repeat; }"
           "QPushButton{ border: 3px outset #704018;     min-width: 50px;\tborder-radius: 10px;     "
           "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, stop: 0 #E0B687, stop: 1 #704018); "
           "font-weight:bold;  color:Black;}"
           "QLabel {border: 3px groove #885038; \tbackground-color: #E0B687; \tfont-weight:bold; color:Black; }"
           "QPushButton:pressed{ min-width: 50px;\tbackground-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 1, "
           "stop: 0 #986848, stop: 1 #F8D0A0); }";
}

bool ConfirmDialog::ask(const QString &question)
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.setStyleSheet(styleSheet());
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(question));
    auto *accept = new QPushButton("Accept");
    auto *cancel = new QPushButton("Cancel");
    layout->addWidget(accept);
    layout->addWidget(cancel);
    QObject::connect(accept, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    dialog.exec();
    return dialog.result() == QDialog::Accepted;
}
