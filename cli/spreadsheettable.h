// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "sheets/sheet.h"
#include "standalone/tablefile.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

/// A sheet of a spreadsheet file, read as a table of edits.
struct SpreadsheetTable
{
    Table table;
    QString sheet;
    /// Where the sheet of parts was taken without being asked for, the first other one; empty otherwise.
    QString otherSheet;
    /// Of the cells that hold no text, by row from 1 and column from 0.
    QHash<int, QMap<qsizetype, CellKind>> kinds;
    /// What the user should know of the choice of the sheet, one sentence each.
    QStringList notices;

    [[nodiscard]] CellKind kind(int row, qsizetype column) const
    {
        return kinds.value(row).value(column, CellKind::Text);
    }
};

/// Whether a sheet has the name of the one of parts that a report writes.
[[nodiscard]] bool isPartsSheet(const QString &name);

/// The bill itself as a table: without its title block, sections and totals, and with the rows joined in
/// which the references of a line go on. Other tables stay as they are.
void joinBillRows(Table &table, const QString &referenceHeading);

/// Whether a file is to be read as a spreadsheet: it begins as one or its name says so.
[[nodiscard]] bool isSpreadsheetFile(const QString &path);

/// Reads the sheet of that name or, without a name, the one of parts that a report writes, else the first
/// with a row of headings. Nothing, with "FILE: reason" in `error`, when there is none or the file cannot be
/// read.
[[nodiscard]] std::optional<SpreadsheetTable> readSpreadsheetTable(const QString &path, const QString &sheet,
                                                                   const QStringList &referenceHeadings,
                                                                   QString *error);
