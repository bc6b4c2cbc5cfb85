// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvdialect.h"
#include "designs/textarena.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace designs {

/// What a file of delimited cells may hold at most; beyond it, reading fails with a message.
struct CsvLimits
{
    qint64 fileBytes = qint64(512) * 1024 * 1024;
    quint32 rows = 10'000'000;
    quint32 cells = 100'000'000;
    quint32 cellsPerRow = 4096;
};

/// The bytes of one cell, quotes included, blanks around the quotes not.
struct CsvCell
{
    quint32 begin = 0;
    quint32 size : 30 = 0;
    quint32 quoted : 1 = 0;
    /// Holds doubled quotes.
    quint32 doubled : 1 = 0;
};

/// One record. Its line end reaches from `end` to the next record's `begin`.
struct CsvRow
{
    quint32 begin = 0;
    quint32 end = 0;
    /// The line on which it begins, from 1; line breaks inside quotes count.
    quint32 line = 0;
    quint32 firstCell = 0;
    quint32 cellCount = 0;
};

/// A file of delimited cells: its bytes, untouched, and where the records and cells stand in them.
///
/// A cell is quoted when its first character but blanks is a quote; a quote further on is an ordinary
/// character. Every line feed, carriage return or pair of them outside quotes ends a record; an empty line is
/// a record with one empty cell. Time and memory are linear in the file's size.
class CsvFile final
{
public:
    /// The file's bytes. Nothing, with the reason in `error`, when it is no ordinary file, cannot be read or
    /// is too large.
    [[nodiscard]] static std::optional<QByteArray> load(const QString &path, Problem *error,
                                                        const CsvLimits &limits = {});

    /// Finds the cells. Nothing, with the reason and its line in `error` (the file is left to the caller),
    /// for a quote that is never closed, text behind a closing quote, or more than the limits allow.
    [[nodiscard]] static std::optional<CsvFile> parse(QByteArray bytes, Problem *error,
                                                      const CsvLimits &limits = {});

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }
    [[nodiscard]] const CsvDialect &dialect() const { return m_dialect; }
    [[nodiscard]] const std::vector<CsvRow> &rows() const { return m_rows; }
    [[nodiscard]] std::span<const CsvCell> cells(const CsvRow &row) const
    {
        return std::span(m_cells).subspan(row.firstCell, row.cellCount);
    }

    /// The cell as it stands in the file.
    [[nodiscard]] std::string_view raw(const CsvCell &cell) const
    {
        return {m_bytes.constData() + cell.begin, cell.size};
    }

    /// What the cell says, as UTF-8: a quoted one exactly, an unquoted one without the blanks around it. The
    /// text stands in bytes() or, where it differs from them, in `arena`.
    [[nodiscard]] std::string_view text(const CsvCell &cell, TextArena &arena) const;

    /// True when the cell, or every cell of the record, says nothing.
    [[nodiscard]] bool isBlank(const CsvCell &cell) const
    {
        return content(cell).find_first_not_of(" \t\r\n") == std::string_view::npos;
    }
    [[nodiscard]] bool isBlank(const CsvRow &row) const;

private:
    CsvFile() = default;

    /// What the cell says, doubled quotes and encoding still as in the file.
    [[nodiscard]] std::string_view content(const CsvCell &cell) const;

    QByteArray m_bytes;
    CsvDialect m_dialect;
    std::vector<CsvRow> m_rows;
    std::vector<CsvCell> m_cells;
};

} // namespace designs
