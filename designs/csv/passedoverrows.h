// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvfile.h"

#include <QString>

#include <string>
#include <vector>

namespace designs {

/// Recognises the rows below the headings of a table that name no parts: those that repeat the headings, as
/// spreadsheets do on each page, and those that sum up ("Total,5").
class PassedOverRows final
{
public:
    PassedOverRows(const CsvFile &file, std::size_t headingRow, std::size_t referenceColumn);

    /// The warning why the row is left out; empty for one that may name parts.
    [[nodiscard]] QString reason(const CsvRow &row) const;

private:
    [[nodiscard]] std::string text(const CsvRow &row, std::size_t column) const;
    [[nodiscard]] bool hasOnlyAmountsBeside(const CsvRow &row, std::size_t said) const;
    [[nodiscard]] bool repeatsHeadings(const CsvRow &row) const;

    const CsvFile &m_file;
    std::size_t m_referenceColumn;
    std::vector<std::string> m_headings;
};

} // namespace designs
