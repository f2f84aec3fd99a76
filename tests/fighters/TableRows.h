#pragma once

#include <QtTest>

#include <cstddef>

// A data-driven test over a table: each row of the table is one QtTest row named by its `name`,
// and the test reads its row back with current().
namespace TableRows {

template <typename Row, std::size_t N> void add(const Row (&rows)[N])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < N; ++i)
        QTest::newRow(rows[i].name) << int(i);
}

template <typename Row, std::size_t N> const Row &current(const Row (&rows)[N])
{
    QFETCH(int, row);
    return rows[row];
}

} // namespace TableRows
