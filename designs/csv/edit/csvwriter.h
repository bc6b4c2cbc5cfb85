// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvfile.h"

#include <string>
#include <vector>

namespace designs {

/// What a cell is to say.
struct CellText
{
    std::size_t column = 0;
    /// UTF-8, to be carried by the file's encoding.
    std::string text;

    bool operator==(const CellText &) const = default;
};

/// Writes records of a file anew, in the manner of the file. Bytes of other cells stay as they are.
class CsvWriter final
{
public:
    explicit CsvWriter(const CsvFile &file)
        : m_file(file)
    {
    }

    /// Appends the record, without line end. `cells` are sorted by column; cells behind the record's end are
    /// appended to it, and empty ones until it has `leastCells`.
    void appendRow(std::string *out, const CsvRow &row, const std::vector<CellText> &cells,
                   std::size_t leastCells = 0) const;

private:
    [[nodiscard]] std::string replaced(const CsvCell &cell, std::string_view text) const;
    [[nodiscard]] std::string written(std::string_view text, bool quoted) const;

    const CsvFile &m_file;
};

} // namespace designs
