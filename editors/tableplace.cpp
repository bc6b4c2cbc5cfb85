// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/tableplace.h"

#include <QHash>
#include <QItemSelection>
#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>

namespace {

QString referenceOf(const QTableWidget &table, int row)
{
    const QTableWidgetItem *item = table.item(row, 0);
    return item ? item->data(Qt::UserRole).toString() : QString();
}

QString headingOf(const QTableWidget &table, int column)
{
    const QTableWidgetItem *item = table.horizontalHeaderItem(column);
    return item ? item->text() : QString();
}

/// Numbers that follow each other.
struct Run
{
    int first = 0;
    int last = 0;
};

/// Without those below 0.
QList<Run> runsOf(QList<int> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    QList<Run> runs;
    for (const int number : numbers) {
        if (number >= 0 && !runs.isEmpty() && number <= runs.last().last + 1) {
            runs.last().last = number;
        } else if (number >= 0) {
            runs.append({number, number});
        }
    }
    return runs;
}

} // namespace

TablePlace::TablePlace(const QTableWidget &table)
    : m_topReference(referenceOf(table, table.rowAt(0)))
    , m_horizontal(table.horizontalScrollBar()->value())
{
    if (table.currentRow() >= 0) {
        m_current = {referenceOf(table, table.currentRow()), headingOf(table, table.currentColumn())};
    }
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        Block block;
        for (int row = range.top(); row <= range.bottom(); ++row) {
            block.references.append(referenceOf(table, row));
        }
        for (int column = range.left(); column <= range.right(); ++column) {
            block.headings.append(headingOf(table, column));
        }
        m_selection.append(block);
    }
}

void TablePlace::restore(QTableWidget *table, const std::function<int(const QString &)> &rowOf) const
{
    QHash<QString, int> columns;
    for (int column = table->columnCount() - 1; column >= 0; --column) {
        columns.insert(headingOf(*table, column), column);
    }
    if (m_current && rowOf(m_current->reference) >= 0 && columns.contains(m_current->heading)) {
        table->setCurrentCell(rowOf(m_current->reference), columns.value(m_current->heading),
                              QItemSelectionModel::NoUpdate);
    }
    QItemSelection selection;
    for (const Block &block : m_selection) {
        QList<int> rows;
        for (const QString &reference : block.references) {
            rows.append(rowOf(reference));
        }
        QList<int> blockColumns;
        for (const QString &heading : block.headings) {
            blockColumns.append(columns.value(heading, -1));
        }
        for (const Run &row : runsOf(std::move(rows))) {
            for (const Run &column : runsOf(blockColumns)) {
                selection.append({table->model()->index(row.first, column.first),
                                  table->model()->index(row.last, column.last)});
            }
        }
    }
    table->selectionModel()->select(selection, QItemSelectionModel::Select);
    if (const int top = rowOf(m_topReference); top >= 0) {
        table->scrollTo(table->model()->index(top, 0), QAbstractItemView::PositionAtTop);
    }
    table->horizontalScrollBar()->setValue(m_horizontal);
}
