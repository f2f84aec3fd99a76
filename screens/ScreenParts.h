#pragma once

#include <QList>
#include <QString>

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

// The pieces that every screen of the game builds alike, so that one look holds everywhere: the
// style sheet dresses them by their properties.
class ScreenParts
{
public:
    // a centred title in the heading's gold
    static QLabel *heading(const QString &text);
    // a framed tan block that holds a group of fields
    static QFrame *panel();
    // a grid on a panel whose rows stand close together
    static QGridLayout *closeGrid(QWidget *panel);
    // a field the user reads but cannot change or reach with the tab key
    static QLineEdit *readOnlyField(const QString &objectName = {});
    // "Fighter Statistics (Landed/Thrown)" over the fourteen rows of a man's match; the fields
    // go into `fields` in their order
    static QFrame *statisticsPanel(const QList<int> &status, QList<QLineEdit *> &fields);
};
