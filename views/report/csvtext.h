// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QChar>
#include <QLocale>
#include <QStringView>

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

/// What becomes of the double quotes in cells.
enum class CsvQuotes
{
    Dropped,
    Doubled
};

/// A growing CSV text in UTF-8: cells, each ended by a separator, and the ends of rows. Line breaks are
/// dropped from the cells.
class CsvText final
{
public:
    explicit CsvText(const CsvDialect &dialect, CsvQuotes quotes = CsvQuotes::Dropped);

    void addCell(QStringView text, bool alwaysQuote = false);
    /// After at least one cell.
    void endRow() { m_bytes.back() = '\n'; }

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    QChar m_separator;
    CsvQuotes m_quotes;
    QByteArray m_bytes;
};
