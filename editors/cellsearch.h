// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class QTableWidget;

/// Both count from 0; -1 for none.
struct TableCell
{
    int row = -1;
    int column = -1;

    bool operator==(const TableCell &) const = default;
};

/// What is looked for in cells.
struct CellCriteria
{
    /// The whole text of a cell; an empty one finds empty cells.
    QString text;
    bool isCaseSensitive = false;
    bool isOneColumn = false;

    bool operator==(const CellCriteria &) const = default;
};

/// Goes once over the cells of a table that people see: down the column of the starting point from the row
/// below it, around to its own row, then down each further column as they stand on the screen, around to the
/// first. Rows and columns that are hidden are passed over, as they are by the eye.
class CellSearch final
{
public:
    /// The table must outlive the search.
    explicit CellSearch(const QTableWidget *table);

    void start(const TableCell &from);
    /// The starting point, or the cell that was found last.
    [[nodiscard]] const TableCell &place() const { return m_place; }
    /// The next cell that matches; nothing at the end. The table must have the size that it had at the start.
    [[nodiscard]] std::optional<TableCell> next(const CellCriteria &criteria);
    /// Whether the table is not the one that the search was started in, as after it was filled again.
    [[nodiscard]] bool isOutdated() const;

    [[nodiscard]] bool matches(const TableCell &cell, const CellCriteria &criteria) const;

private:
    [[nodiscard]] std::optional<int> rowOfNext(const CellCriteria &criteria);
    /// False when all columns were visited.
    [[nodiscard]] bool goToNextColumn();

    const QTableWidget *m_table;
    TableCell m_place;
    int m_rows = 0;
    int m_columns = 0;
    /// Of the column at hand.
    int m_visitedRows = 0;
    int m_visitedColumns = 0;
};
