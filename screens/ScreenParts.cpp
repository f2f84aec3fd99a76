#include "ScreenParts.h"

#include "fighters/MatchStatistics.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

QLabel *ScreenParts::heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("heading", true);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QFrame *ScreenParts::panel()
{
    auto *frame = new QFrame;
    frame->setProperty("panel", true);
    return frame;
}

QGridLayout *ScreenParts::closeGrid(QWidget *panel)
{
    auto *grid = new QGridLayout(panel);
    grid->setSpacing(0);
    grid->setContentsMargins(8, 6, 8, 6);
    return grid;
}

QLineEdit *ScreenParts::readOnlyField(const QString &objectName)
{
    auto *field = new QLineEdit;
    field->setObjectName(objectName);
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    return field;
}

QFrame *ScreenParts::statisticsPanel(const QList<int> &status, QList<QLineEdit *> &fields)
{
    QFrame *box = panel();
    QGridLayout *grid = closeGrid(box);
    grid->addWidget(heading("Fighter Statistics (Landed/Thrown)"), 0, 0, 1, 2);
    fields.clear();
    for (int row = 0; row < MatchStatistics::rowCount(); ++row) {
        QLineEdit *field = readOnlyField();
        field->setText(MatchStatistics::cell(status, row));
        field->setAlignment(Qt::AlignCenter);
        field->setFixedWidth(80);
        fields << field;
        grid->addWidget(new QLabel(MatchStatistics::label(row)), row + 1, 0);
        grid->addWidget(field, row + 1, 1);
    }
    return box;
}
