// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/passedoverrows.h"

#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <array>

namespace designs {

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool isAsciiLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

std::string lowered(std::string_view text)
{
    std::string small;
    std::ranges::transform(text, std::back_inserter(small), lower);
    return small;
}

/// Whether the text has no other words than those that stand beside the numbers of a sum: "12 parts", "5.00
/// EUR".
bool isAmount(std::string_view text)
{
    static constexpr std::array<std::string_view, 16> known = {
        "part",  "parts",  "components", "items", "pcs", "qty", "quantity", "cost",
        "price", "amount", "eur",        "usd",   "gbp", "chf", "jpy",      "cny"};
    const std::string small = lowered(text);
    for (auto at = small.begin(); at != small.end();) {
        const auto begin = std::find_if(at, small.end(), isAsciiLetter);
        at = std::find_if_not(begin, small.end(), isAsciiLetter);
        if (begin != at && std::ranges::find(known, std::string_view(begin, at)) == known.end()) {
            return false;
        }
    }
    return true;
}

/// Whether the text is "Total", "Grand total", "Sum:", "Sub-total (12 parts)".
bool sumsUp(std::string_view text)
{
    static constexpr std::array<std::string_view, 10> starts = {
        "subtotals", "subtotal", "sub-total", "sub total", "grand total",
        "totals",    "total",    "summe",     "sum",       "gesamt"};
    const std::string small = lowered(text);
    const auto start =
        std::ranges::find_if(starts, [&small](std::string_view known) { return small.starts_with(known); });
    if (start == starts.end()) {
        return false;
    }
    const std::string_view rest = std::string_view(small).substr(start->size());
    // "TOTAL1" and "Total-A" are names.
    static constexpr std::string_view goOn = "0123456789_-./";
    return rest.empty() || (!isAsciiLetter(rest.front()) && static_cast<unsigned char>(rest.front()) < 0x80 &&
                            goOn.find(rest.front()) == std::string_view::npos && isAmount(rest));
}

} // namespace

PassedOverRows::PassedOverRows(const CsvFile &file, std::size_t headingRow, std::size_t referenceColumn)
    : m_file(file)
    , m_referenceColumn(referenceColumn)
{
    const CsvRow &row = file.rows()[headingRow];
    for (std::size_t column = 0; column < row.cellCount; ++column) {
        m_headings.push_back(text(row, column));
    }
}

QString PassedOverRows::reason(const CsvRow &row) const
{
    std::string said = text(row, m_referenceColumn);
    if (!said.empty() && said == m_headings[m_referenceColumn] && repeatsHeadings(row)) {
        return PartListTexts::tr("the row repeats the headings and names no parts: it is left out");
    }
    const std::span<const CsvCell> cells = m_file.cells(row);
    std::size_t column = m_referenceColumn;
    if (said.empty()) {
        const auto first =
            std::ranges::find_if(cells, [this](const CsvCell &cell) { return !m_file.isBlank(cell); });
        column = std::size_t(first - cells.begin());
        said = text(row, column);
    }
    constexpr std::string_view firstLetters = "TtSsGg";
    return !said.empty() && firstLetters.find(said.front()) != std::string_view::npos && sumsUp(said) &&
                   hasOnlyAmountsBeside(row, column)
               ? PartListTexts::tr("the row sums up (%1) and names no parts: it is left out")
                     .arg(quotedForMessage(said))
               : QString();
}

/// A part that is called "Sum" has texts in its row.
bool PassedOverRows::hasOnlyAmountsBeside(const CsvRow &row, std::size_t said) const
{
    for (std::size_t column = 0; column < row.cellCount; ++column) {
        if (column != said && !isAmount(text(row, column))) {
            return false;
        }
    }
    return true;
}

bool PassedOverRows::repeatsHeadings(const CsvRow &row) const
{
    for (std::size_t column = 0; column < row.cellCount; ++column) {
        const std::string said = text(row, column);
        if (!said.empty() && (column >= m_headings.size() || said != m_headings[column])) {
            return false;
        }
    }
    return true;
}

/// Without the blanks around it.
std::string PassedOverRows::text(const CsvRow &row, std::size_t column) const
{
    if (column >= row.cellCount) {
        return {};
    }
    TextArena arena;
    const std::string_view whole = m_file.text(m_file.cells(row)[column], arena);
    const std::size_t first = whole.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos
               ? std::string()
               : std::string(whole.substr(first, whole.find_last_not_of(" \t\r\n") + 1 - first));
}

} // namespace designs
