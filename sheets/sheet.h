// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/ziparchive.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// What a cell holds. All but texts and numbers are shown in another form than they are stored in.
enum class CellKind
{
    Text,
    Number,
    Percentage,
    Date,
    Truth,
    Formula,
    Error,
    /// Under a cell that was merged with it.
    Covered
};

struct SheetRow
{
    /// From 1.
    int number = 0;
    /// From the first column on. Numbers are in the form of C, as short as they can be without loss.
    QStringList cells;
    /// Of the cells that hold no text, by column from 0.
    QMap<qsizetype, CellKind> kinds;

    bool operator==(const SheetRow &) const = default;
};

struct Sheet
{
    /// Those that hold something, in their order.
    std::vector<SheetRow> rows;
    qsizetype hiddenRows = 0;

    bool operator==(const Sheet &) const = default;
};

/// "AB12": how people name a cell; the column counts from 0, the row from 1.
[[nodiscard]] QString cellAddress(int row, qsizetype column);

/// A number as short as it can be without loss, in the form of C.
[[nodiscard]] QString shortestText(double number);

/// Collects the cells of a sheet from the top down and from left to right, within the limits.
class SheetBuilder final
{
public:
    static constexpr int MostRows = 1'048'576;
    static constexpr qsizetype MostColumns = 16'384;

    explicit SheetBuilder(const SheetLimits &limits)
        : m_limits(limits)
    {
    }

    /// The row of the cells that follow; counts from 1.
    void beginRow(int number, bool isHidden);
    /// False, with the reason in problem(), for a cell that cannot be.
    [[nodiscard]] bool add(qsizetype column, const QString &text, CellKind kind);
    /// The row that was added last, again on the rows that follow.
    [[nodiscard]] bool repeatRow(int times);
    /// Whether the current row holds something.
    [[nodiscard]] bool hasCells() const { return m_hasRow; }
    /// Marks the cells under a merged one; columns count from 0, rows from 1.
    [[nodiscard]] bool merge(int firstRow, qsizetype firstColumn, int lastRow, qsizetype lastColumn);

    [[nodiscard]] const QString &problem() const { return m_problem; }
    [[nodiscard]] Sheet take() { return std::move(m_sheet); }

private:
    [[nodiscard]] bool fail(const QString &problem);
    [[nodiscard]] bool count(qsizetype cells, qsizetype characters);

    const SheetLimits &m_limits;
    Sheet m_sheet;
    int m_row = 0;
    bool m_isHidden = false;
    bool m_hasRow = false;
    /// Of the widest row.
    qsizetype m_columns = 0;
    qsizetype m_cells = 0;
    qsizetype m_characters = 0;
    QString m_problem;
};
