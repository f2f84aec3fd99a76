#include "shell/StyleSheetFile.h"

#include <QFile>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace StyleSheetFile {

bool read(const QString &fileName, QString &sheet)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    const qsizetype end = bytes.indexOf('\0');
    sheet = QString::fromLatin1(end < 0 ? bytes : bytes.left(end));
    return true;
}

void apply(QWidget *widget, const QString &fileName)
{
    QString sheet;
    if (read(fileName, sheet))
        widget->setStyleSheet(sheet);
}

void paintBackground(QWidget *widget)
{
    QStyleOption option;
    option.initFrom(widget);
    QPainter painter(widget);
    widget->style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, widget);
}

} // namespace StyleSheetFile
