// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/sheet.h"
#include "sheets/texts.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

QString cellAddress(int row, qsizetype column)
{
    QString letters;
    for (qsizetype rest = column + 1; rest > 0; rest = (rest - 1) / 26) {
        letters.prepend(QChar(u'A' + char16_t((rest - 1) % 26)));
    }
    return letters + QString::number(row);
}

QString shortestText(double number)
{
    constexpr double leastPlain = 1e-6;
    constexpr double mostPlain = 1e21;
    const double size = std::abs(number);
    const bool isPlain = size == 0 || (size >= leastPlain && size < mostPlain);
    return QString::number(number, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

void SheetBuilder::beginRow(int number, bool isHidden)
{
    m_row = number;
    m_isHidden = isHidden;
    m_hasRow = false;
}

bool SheetBuilder::fail(const QString &problem)
{
    m_problem = problem;
    return false;
}

bool SheetBuilder::count(qsizetype cells, qsizetype characters)
{
    m_cells += cells;
    m_characters += characters;
    return (m_cells <= m_limits.cells && m_characters <= m_limits.characters) ||
           fail(
               SpreadsheetTexts::tr("the sheet is too large: at most %1 cells are read").arg(m_limits.cells));
}

bool SheetBuilder::add(qsizetype column, const QString &text, CellKind kind)
{
    if (text.isEmpty() && kind == CellKind::Text) {
        return true;
    }
    if (m_row > MostRows || column >= MostColumns) {
        return fail(SpreadsheetTexts::tr("%1 lies outside of a sheet").arg(cellAddress(m_row, column)));
    }
    if (!m_hasRow) {
        if (!m_sheet.rows.empty() && m_sheet.rows.back().number >= m_row) {
            return fail(SpreadsheetTexts::tr("row %1 stands twice or in front of another").arg(m_row));
        }
        m_sheet.rows.push_back({m_row, {}, {}});
        m_sheet.hiddenRows += m_isHidden ? 1 : 0;
        m_hasRow = true;
    }
    SheetRow &row = m_sheet.rows.back();
    if (row.cells.size() > column) {
        return fail(
            SpreadsheetTexts::tr("%1 stands twice or behind another cell").arg(cellAddress(m_row, column)));
    }
    if (!count(column + 1 - row.cells.size(), text.size())) {
        return false;
    }
    row.cells.resize(column);
    row.cells.append(text);
    m_columns = std::max(m_columns, row.cells.size());
    if (kind != CellKind::Text) {
        row.kinds.insert(column, kind);
    }
    return true;
}

bool SheetBuilder::repeatRow(int times)
{
    const SheetRow row = m_sheet.rows.back();
    for (int i = 0; i < times; ++i) {
        if (!count(row.cells.size(), 0) || row.number + i >= MostRows) {
            return fail(SpreadsheetTexts::tr("the sheet is too large"));
        }
        m_sheet.rows.push_back({row.number + i + 1, row.cells, row.kinds});
        m_sheet.hiddenRows += m_isHidden ? 1 : 0;
    }
    return true;
}

bool SheetBuilder::merge(int firstRow, qsizetype firstColumn, int lastRow, qsizetype lastColumn)
{
    // Only where there are rows and columns: a merged block may reach to the end of the sheet.
    auto row = std::lower_bound(m_sheet.rows.begin(), m_sheet.rows.end(), firstRow,
                                [](const SheetRow &other, int number) { return other.number < number; });
    for (; row != m_sheet.rows.end() && row->number <= lastRow; ++row) {
        const qsizetype last = std::min(lastColumn, m_columns - 1);
        if (!count(1 + std::max<qsizetype>(0, last - firstColumn), 0)) {
            return false;
        }
        for (qsizetype column = firstColumn; column <= last; ++column) {
            if ((row->number != firstRow || column != firstColumn) && row->cells.value(column).isEmpty()) {
                row->kinds.insert(column, CellKind::Covered);
            }
        }
    }
    return true;
}
