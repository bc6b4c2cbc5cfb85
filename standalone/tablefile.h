// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A row of a table under its headings.
struct TableRow
{
    /// In the file, or of the row in a sheet, from 1.
    int line = 0;
    QStringList cells;
};

/// A file of delimited cells, or a sheet, with a row of headings and a column of references.
struct Table
{
    QStringList headings;
    int headingLine = 0;
    qsizetype referenceColumn = 0;
    /// Without blank rows.
    std::vector<TableRow> rows;
};

/// Reads such a file. The heading row is the first that has one of `referenceHeadings` or, when there is
/// none, the one by which part lists are recognised. Nothing, with "FILE:LINE: reason" in `error`, when the
/// file cannot be read or is no such table.
[[nodiscard]] std::optional<Table> readTable(const QString &path, const QStringList &referenceHeadings,
                                             QString *error);

/// The same for the rows of a sheet; nothing when none of them is a row of headings.
[[nodiscard]] std::optional<Table> tableOf(std::vector<TableRow> rows, const QStringList &referenceHeadings);
