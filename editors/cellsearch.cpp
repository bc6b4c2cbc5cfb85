// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cellsearch.h"

#include <QHeaderView>
#include <QTableWidget>

CellSearch::CellSearch(const QTableWidget *table)
    : m_table(table)
{
}

void CellSearch::start(const TableCell &from)
{
    m_rows = m_table->rowCount();
    m_columns = m_table->columnCount();
    m_place = from;
    if (m_place.column < 0) {
        m_place.column = m_table->horizontalHeader()->logicalIndex(0);
    }
    m_visitedRows = 0;
    m_visitedColumns = 0;
}

std::optional<TableCell> CellSearch::next(const CellCriteria &criteria)
{
    if (m_rows == 0 || m_columns == 0) {
        return std::nullopt;
    }
    do {
        if (const auto row = rowOfNext(criteria)) {
            m_place.row = *row;
            return m_place;
        }
    } while (!criteria.isOneColumn && goToNextColumn());
    return std::nullopt;
}

bool CellSearch::isOutdated() const
{
    return m_table->rowCount() != m_rows || m_table->columnCount() != m_columns;
}

std::optional<int> CellSearch::rowOfNext(const CellCriteria &criteria)
{
    if (m_table->isColumnHidden(m_place.column)) {
        return std::nullopt;
    }
    int row = m_place.row;
    while (m_visitedRows < m_rows) {
        ++m_visitedRows;
        row = row + 1 < m_rows ? row + 1 : 0;
        // Texts differ nearly always, hidden rows are few or have the text seldom.
        if (matches({row, m_place.column}, criteria) && !m_table->isRowHidden(row)) {
            return row;
        }
    }
    return std::nullopt;
}

bool CellSearch::goToNextColumn()
{
    if (++m_visitedColumns >= m_columns) {
        return false;
    }
    const QHeaderView &header = *m_table->horizontalHeader();
    m_place = {-1, header.logicalIndex((header.visualIndex(m_place.column) + 1) % m_columns)};
    m_visitedRows = 0;
    return true;
}

bool CellSearch::matches(const TableCell &cell, const CellCriteria &criteria) const
{
    const QTableWidgetItem *item = m_table->item(cell.row, cell.column);
    const Qt::CaseSensitivity sensitivity =
        criteria.isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return (item ? item->text() : QString()).compare(criteria.text, sensitivity) == 0;
}
