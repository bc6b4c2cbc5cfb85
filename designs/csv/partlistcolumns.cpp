// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/partlistcolumns.h"

#include "designs/texts.h"
#include "designs/utf8.h"

#include <QByteArrayView>
#include <QStringList>

#include <algorithm>
#include <array>
#include <span>
#include <unordered_map>
#include <unordered_set>

namespace designs {

namespace {

constexpr std::size_t searchedRows = 20;

// Headings without blanks and punctuation, the surest first.
constexpr std::array<std::string_view, 19> referenceHeadings = {"refdes",
                                                                "refdess",
                                                                "referencedesignator",
                                                                "referencedesignators",
                                                                "refdesignator",
                                                                "refdesignators",
                                                                "designator",
                                                                "designators",
                                                                "references",
                                                                "reference",
                                                                "refs",
                                                                "ref",
                                                                "partreferences",
                                                                "partreference",
                                                                "partrefs",
                                                                "partref",
                                                                "partdesignators",
                                                                "partdesignator",
                                                                "parts"};
constexpr std::array<std::string_view, 7> valueHeadings = {
    "value", "values", "val", "partvalue", "componentvalue", "comment", "designation"};
constexpr std::array<std::string_view, 8> footprintHeadings = {"footprint",    "footprints", "footprintname",
                                                               "pcbfootprint", "package",    "packagecase",
                                                               "casepackage",  "pattern"};
constexpr std::array<std::string_view, 9> quantityHeadings = {
    "quantity", "quantities", "qty", "qnty", "quant", "count", "amount", "quantityperboard", "qtyperboard"};

/// The heading in small letters, letters and digits alone.
std::string compact(std::string_view heading)
{
    std::string result;
    for (const char c : heading) {
        if (c >= 'A' && c <= 'Z') {
            result += char(c - 'A' + 'a');
        } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
                   static_cast<unsigned char>(c) >= 0x80) {
            result += c;
        }
    }
    return result;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first);
}

std::vector<std::string> headingsOf(const CsvFile &file, const CsvRow &row)
{
    TextArena arena;
    std::vector<std::string> headings;
    for (const CsvCell &cell : file.cells(row)) {
        headings.emplace_back(trimmed(file.text(cell, arena)));
    }
    return headings;
}

/// The columns with one of the headings, the surest first.
struct Matches
{
    std::vector<std::size_t> columns;
    /// The second column has the same heading as the first.
    bool tied = false;
};

Matches match(const std::vector<std::string> &headings, std::span<const std::string_view> known)
{
    std::vector<std::pair<std::size_t, std::size_t>> found;
    for (std::size_t column = 0; column < headings.size(); ++column) {
        const auto at = std::ranges::find(known, compact(headings[column]));
        if (at != known.end()) {
            found.emplace_back(std::size_t(at - known.begin()), column);
        }
    }
    std::ranges::sort(found);
    Matches matches;
    matches.tied = found.size() > 1 && found[0].first == found[1].first;
    for (const auto &[rank, column] : found) {
        matches.columns.push_back(column);
    }
    return matches;
}

class Finder
{
public:
    Finder(const CsvFile &file, Problem *error, std::vector<Problem> *warnings)
        : m_file(file)
        , m_error(error)
        , m_warnings(warnings)
    {
    }

    std::optional<PartListColumns> run()
    {
        if (!findHeadingRow() || !findRoles()) {
            return std::nullopt;
        }
        nameColumns();
        return std::move(m_columns);
    }

private:
    [[nodiscard]] int headingLine() const { return int(m_file.rows()[m_columns.headingRow].line); }

    bool findHeadingRow()
    {
        const std::vector<CsvRow> &rows = m_file.rows();
        std::size_t most = 0;
        for (std::size_t row = 0; row < std::min(rows.size(), searchedRows); ++row) {
            std::vector<std::string> headings = headingsOf(m_file, rows[row]);
            if (const std::size_t roles = rolesIn(headings); roles > most) {
                most = roles;
                m_columns.headingRow = row;
                m_headings = std::move(headings);
            }
        }
        if (most == 0) {
            *m_error = noHeadingRow();
        }
        return most > 0;
    }

    /// For how many of references, value, footprint and quantity the row has a heading; none without
    /// references.
    static std::size_t rolesIn(const std::vector<std::string> &headings)
    {
        const auto has = [&headings](std::span<const std::string_view> known) {
            return match(headings, known).columns.empty() ? 0U : 1U;
        };
        return has(referenceHeadings) == 0
                   ? 0
                   : 1 + has(valueHeadings) + has(footprintHeadings) + has(quantityHeadings);
    }

    [[nodiscard]] Problem noHeadingRow() const
    {
        const auto first =
            std::ranges::find_if(m_file.rows(), [this](const CsvRow &r) { return !m_file.isBlank(r); });
        if (first == m_file.rows().end()) {
            return {
                {},
                0,
                PartListTexts::tr("the file is empty: a part list has a row of headings and a row per part")};
        }
        QStringList shown;
        for (const std::string &heading : headingsOf(m_file, *first)) {
            shown << quotedForMessage(heading);
        }
        if (shown.size() > 10) {
            shown = shown.first(10) << QStringLiteral("…");
        }
        return {{},
                int(first->line),
                PartListTexts::tr(
                    "there is no reference column: call one Reference, Designator or RefDes (the headings "
                    "here are %1)")
                    .arg(shown.join(QStringLiteral(", ")))};
    }

    bool findRoles()
    {
        const Matches references = match(m_headings, referenceHeadings);
        m_columns.reference = references.columns.front();
        if (references.tied) {
            return refuseTwins(references);
        }
        if (references.columns.size() > 1) {
            warn(PartListTexts::tr("the columns %1 can both hold the references: the first named is taken")
                     .arg(bothOf(references)));
        }
        return findRole(valueHeadings, &m_columns.value) &&
               findRole(footprintHeadings, &m_columns.footprint) &&
               findRole(quantityHeadings, &m_columns.quantity);
    }

    bool findRole(std::span<const std::string_view> known, std::optional<std::size_t> *column)
    {
        const Matches matches = match(m_headings, known);
        if (!matches.columns.empty()) {
            *column = matches.columns.front();
        }
        return !matches.tied || refuseTwins(matches);
    }

    bool refuseTwins(const Matches &matches)
    {
        *m_error = {{},
                    headingLine(),
                    PartListTexts::tr("the columns %1 have the same meaning: rename or delete one of them")
                        .arg(bothOf(matches))};
        return false;
    }

    [[nodiscard]] QString bothOf(const Matches &matches) const
    {
        const auto shown = [this](std::size_t column) {
            return QString::number(column + 1) + u' ' + quotedForMessage(m_headings[column]);
        };
        return PartListTexts::tr("%1 and %2").arg(shown(matches.columns[0]), shown(matches.columns[1]));
    }

    void nameColumns()
    {
        const std::vector<bool> used = usedWithoutHeading();
        std::unordered_set<std::string> taken(m_headings.begin(), m_headings.end());
        std::unordered_set<std::string> seen;
        std::unordered_map<std::string, int> numbers;
        for (std::size_t column = 0; column < m_headings.size(); ++column) {
            std::string name = m_headings[column];
            if (name.empty() && used[column]) {
                name = freeName("Column " + std::to_string(column + 1), &taken, &numbers);
                warn(PartListTexts::tr("column %1 has no heading: it is read as %2")
                         .arg(QString::number(column + 1), quotedForMessage(name)));
            } else if (!name.empty() && !seen.insert(name).second) {
                name = freeName(name, &taken, &numbers);
                warn(PartListTexts::tr("column %1 repeats the heading %2: it is read as %3")
                         .arg(QString::number(column + 1), quotedForMessage(m_headings[column]),
                              quotedForMessage(name)));
            }
            m_columns.names.push_back(std::move(name));
        }
    }

    /// The name, or "name (2)", "name (3)" and so on when it is taken.
    static std::string freeName(const std::string &wanted, std::unordered_set<std::string> *taken,
                                std::unordered_map<std::string, int> *numbers)
    {
        std::string name = wanted;
        int &number = numbers->try_emplace(wanted, 1).first->second;
        while (!taken->insert(name).second) {
            name = wanted + " (" + std::to_string(++number) + ')';
        }
        return name;
    }

    [[nodiscard]] std::vector<bool> usedWithoutHeading() const
    {
        std::vector<bool> used(m_headings.size(), false);
        std::vector<std::size_t> bare;
        for (std::size_t column = 0; column < m_headings.size(); ++column) {
            if (m_headings[column].empty()) {
                bare.push_back(column);
            }
        }
        if (bare.empty()) {
            return used;
        }
        for (const CsvRow &row : std::span(m_file.rows()).subspan(m_columns.headingRow + 1)) {
            const std::span<const CsvCell> cells = m_file.cells(row);
            for (const std::size_t column : bare) {
                used[column] = used[column] || (column < cells.size() && !m_file.isBlank(cells[column]));
            }
        }
        return used;
    }

    void warn(const QString &text) { m_warnings->push_back({{}, headingLine(), text}); }

    const CsvFile &m_file;
    Problem *m_error;
    std::vector<Problem> *m_warnings;
    std::vector<std::string> m_headings;
    PartListColumns m_columns;
};

} // namespace

std::optional<PartListColumns> findPartListColumns(const CsvFile &file, Problem *error,
                                                   std::vector<Problem> *warnings)
{
    return Finder(file, error, warnings).run();
}

bool isRoleHeading(std::string_view heading)
{
    const auto has = [form = compact(heading)](std::span<const std::string_view> known) {
        return std::ranges::find(known, form) != known.end();
    };
    return has(referenceHeadings) || has(valueHeadings) || has(footprintHeadings) || has(quantityHeadings);
}

bool isValueHeading(std::string_view heading)
{
    return std::ranges::find(valueHeadings, compact(heading)) != valueHeadings.end();
}

bool isFootprintHeading(std::string_view heading)
{
    return std::ranges::find(footprintHeadings, compact(heading)) != footprintHeadings.end();
}

bool isMarkerHeading(std::string_view heading)
{
    const auto is = [](std::string_view text, std::string_view known) {
        return QByteArrayView(text.data(), qsizetype(text.size()))
                   .compare(QByteArrayView(known.data(), qsizetype(known.size())), Qt::CaseInsensitive) == 0;
    };
    return is(heading, "BOMSKIP") || is(heading, "BOMLINKS") || is(heading.substr(0, 7), "BOMPART");
}

} // namespace designs
