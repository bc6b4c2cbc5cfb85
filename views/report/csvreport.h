// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QChar>
#include <QLocale>

class Report;

/// What a row of the CSV report is.
enum class CsvRows
{
    /// A line of the bill, with its quantity.
    Lines,
    /// A single part.
    Parts
};

/// What the programs that read CSV differ in.
struct CsvDialect
{
    QChar separator = u',';
    bool hasByteOrderMark = false;

    bool operator==(const CsvDialect &) const = default;
};

/// Of the spreadsheet programs that open a file by a double click in that locale: they take the separator of
/// the system's lists, a semicolon where the comma is in numbers and in Switzerland, and UTF-8 by a byte
/// order mark only.
[[nodiscard]] CsvDialect spreadsheetDialect(const QLocale &locale);

/// The report as comma-separated text in UTF-8, a row of headings in front, rows ended by line feeds. Double
/// quotes and line breaks are dropped from the cells; cells with a comma stand in double quotes. Another
/// dialect may say another separator.
[[nodiscard]] QByteArray csvReport(const Report &report, CsvRows rows, const CsvDialect &dialect = {});
