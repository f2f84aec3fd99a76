#pragma once

#include <QList>
#include <QStringList>

// A tab-separated table of the art sources: one row a line; blank lines and lines that start
// with '#' are left out. A missing file or a row with too few cells is an error, so a broken
// source stops the build instead of drawing a picture with holes in it.
class TsvTable
{
public:
    bool read(const QString &path, int minimumCells);

    const QList<QStringList> &rows() const { return tableRows; }
    const QString &error() const { return problem; }

private:
    QList<QStringList> tableRows;
    QString problem;
};
