#include "screens/Module_Placeholder.h"

#include "shell/StyleSheetFile.h"

#include <QLabel>
#include <QVBoxLayout>

Module_Placeholder::Module_Placeholder(const QString &title, QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(title + "\n\nThis screen opens in a coming version of the game.");
    label->setAlignment(Qt::AlignCenter);
    layout->addStretch(1);
    layout->addWidget(label, 0, Qt::AlignCenter);
    layout->addStretch(1);
}

void Module_Placeholder::paintEvent(QPaintEvent *)
{
    StyleSheetFile::paintBackground(this);
}
