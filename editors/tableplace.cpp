// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/tableplace.h"

#include <QHash>
#include <QItemSelection>
#include <QScrollBar>
#include <QTableWidget>

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
        for (const QString &reference : block.references) {
            const int row = rowOf(reference);
            for (const QString &heading : row >= 0 ? block.headings : QList<QString>()) {
                const QModelIndex index = table->model()->index(row, columns.value(heading, -1));
                // Neighbours become one range: many thousand of one cell would be slow.
                if (!selection.isEmpty() && selection.last().right() + 1 == index.column() &&
                    selection.last().top() == row && index.isValid()) {
                    selection.last() = {selection.last().topLeft(), index};
                } else if (index.isValid()) {
                    selection.append({index, index});
                }
            }
        }
    }
    QItemSelection joined;
    for (const QItemSelectionRange &range : selection) {
        if (!joined.isEmpty() && joined.last().left() == range.left() &&
            joined.last().right() == range.right() && joined.last().bottom() + 1 == range.top()) {
            joined.last() = {joined.last().topLeft(), range.bottomRight()};
        } else {
            joined.append(range);
        }
    }
    table->selectionModel()->select(joined, QItemSelectionModel::Select);
    if (const int top = rowOf(m_topReference); top >= 0) {
        table->scrollTo(table->model()->index(top, 0), QAbstractItemView::PositionAtTop);
    }
    table->horizontalScrollBar()->setValue(m_horizontal);
}
