// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/csvwriter.h"

#include <algorithm>

namespace designs {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Whether the text could be read as something else without quotes.
bool needsQuotes(std::string_view text, char delimiter)
{
    return !text.empty() && (isBlank(text.front()) || isBlank(text.back()) ||
                             text.find_first_of("\"\r\n") != std::string_view::npos ||
                             text.find(delimiter) != std::string_view::npos);
}

} // namespace

void CsvWriter::appendRow(std::string *out, const CsvRow &row, const std::vector<CellText> &cells,
                          std::size_t leastCells) const
{
    const std::span<const CsvCell> present = m_file.cells(row);
    const CsvDialect &dialect = m_file.dialect();
    const QByteArray &bytes = m_file.bytes();
    std::size_t at = row.begin;
    std::size_t count = present.size();
    const auto pad = [&](std::size_t columns) {
        for (; count < columns; ++count) {
            *out += dialect.delimiter;
            *out += dialect.quotesAll ? "\"\"" : "";
        }
    };
    const auto firstBehind =
        std::ranges::find_if(cells, [&](const CellText &c) { return c.column >= present.size(); });
    for (auto cell = cells.begin(); cell != firstBehind; ++cell) {
        const CsvCell &old = present[cell->column];
        out->append(bytes.constData() + at, old.begin - at);
        *out += replaced(old, cell->text);
        at = old.begin + old.size;
    }
    out->append(bytes.constData() + at, row.end - at);
    for (auto cell = firstBehind; cell != cells.end(); ++cell, ++count) {
        pad(cell->column);
        *out += dialect.delimiter;
        *out += written(cell->text, dialect.quotesAll);
    }
    pad(leastCells);
}

/// Keeps quotes and the spaces around a text without them.
std::string CsvWriter::replaced(const CsvCell &cell, std::string_view text) const
{
    if (cell.quoted) {
        return written(text, true);
    }
    const std::string_view raw = m_file.raw(cell);
    const std::size_t first = std::min(raw.find_first_not_of(' '), raw.size());
    const std::size_t last = first == raw.size() ? raw.size() : raw.find_last_not_of(' ') + 1;
    return std::string(raw.substr(0, first)) + written(text, m_file.dialect().quotesAll) +
           std::string(raw.substr(last));
}

std::string CsvWriter::written(std::string_view text, bool quoted) const
{
    const bool recode = m_file.dialect().encoding == CsvDialect::Encoding::Windows1252;
    const std::string encoded =
        recode ? windows1252FromUtf8(text).value_or(std::string()) : std::string(text);
    if (!quoted && !needsQuotes(encoded, m_file.dialect().delimiter)) {
        return encoded;
    }
    std::string result = "\"";
    for (const char c : encoded) {
        result.append(c == '"' ? 2 : 1, c);
    }
    return result + '"';
}

} // namespace designs
