// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <map>
#include <utility>

/// How many columns and rows a cell takes.
struct CellSpan
{
    int columns = 1;
    int rows = 1;
};

/// Counts the places of a table row by row, those included that cells leave empty or cover.
class TableSize final
{
public:
    void addRow()
    {
        ++m_rows;
        m_columns = 0;
        m_covered += std::exchange(m_coming, 0);
        while (!m_ends.empty() && m_ends.begin()->first <= m_rows) {
            m_covered -= m_ends.begin()->second;
            m_ends.erase(m_ends.begin());
        }
    }
    void addCell(int columns, int rows)
    {
        m_columns += columns;
        if (rows > 1) {
            m_ends[m_rows + rows] += columns;
            m_coming += columns;
        }
        m_widest = std::max(m_widest, m_columns + m_covered);
    }
    [[nodiscard]] qint64 cells() const { return m_rows * m_widest; }

private:
    qint64 m_rows = 0;
    qint64 m_columns = 0;
    /// By cells of the rows above.
    qint64 m_covered = 0;
    /// By cells of this row in the next one.
    qint64 m_coming = 0;
    qint64 m_widest = 0;
    /// How many columns are free again in a row.
    std::map<qint64, qint64> m_ends;
};
