#include "TsvTable.h"

#include <QFile>
#include <QTextStream>

bool TsvTable::read(const QString &path, int minimumCells)
{
    tableRows.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        problem = "cannot open " + path;
        return false;
    }
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    int lineNumber = 0;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        ++lineNumber;
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const QStringList cells = line.split('\t');
        if (cells.size() < minimumCells) {
            problem = QString("%1:%2: %3 cells where %4 are needed")
                          .arg(path)
                          .arg(lineNumber)
                          .arg(cells.size())
                          .arg(minimumCells);
            return false;
        }
        tableRows.append(cells);
    }
    return true;
}
