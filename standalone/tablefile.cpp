// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/tablefile.h"

#include "designs/csv/csvfile.h"
#include "designs/csv/partlistcolumns.h"
#include "designs/utf8.h"

#include <algorithm>
#include <span>

namespace {

QString cellText(const designs::CsvFile &file, const designs::CsvCell &cell)
{
    designs::TextArena arena;
    return designs::fromUtf8(file.text(cell, arena));
}

QStringList rowTexts(const designs::CsvFile &file, const designs::CsvRow &row)
{
    QStringList texts;
    texts.reserve(qsizetype(row.cellCount));
    for (const designs::CsvCell &cell : file.cells(row)) {
        texts.append(cellText(file, cell));
    }
    return texts;
}

/// Finds the row of headings and, in it, the references.
bool findHeadings(const designs::CsvFile &file, const QString &referenceHeading, std::size_t *headingRow,
                  qsizetype *referenceColumn, designs::Problem *problem)
{
    constexpr std::size_t searchedRows = 20;
    for (std::size_t row = 0; row < std::min(file.rows().size(), searchedRows); ++row) {
        const qsizetype column = rowTexts(file, file.rows()[row]).indexOf(referenceHeading);
        if (column >= 0) {
            *headingRow = row;
            *referenceColumn = column;
            return true;
        }
    }
    std::vector<designs::Problem> warnings;
    const auto columns = designs::findPartListColumns(file, problem, &warnings);
    if (columns) {
        *headingRow = columns->headingRow;
        *referenceColumn = qsizetype(columns->reference);
    }
    return columns.has_value();
}

} // namespace

std::optional<Table> readTable(const QString &path, const QString &referenceHeading, QString *error)
{
    designs::Problem problem;
    const auto fail = [&] {
        problem.file = path;
        *error = problem.message();
        return std::nullopt;
    };
    std::optional<QByteArray> bytes = designs::CsvFile::load(path, &problem);
    if (!bytes) {
        return fail();
    }
    const auto file = designs::CsvFile::parse(std::move(*bytes), &problem);
    std::size_t headingRow = 0;
    Table table;
    if (!file || !findHeadings(*file, referenceHeading, &headingRow, &table.referenceColumn, &problem)) {
        return fail();
    }
    const designs::CsvRow &headings = file->rows()[headingRow];
    table.headings = rowTexts(*file, headings);
    table.headingLine = int(headings.line);
    for (const designs::CsvRow &row : std::span(file->rows()).subspan(headingRow + 1)) {
        if (!file->isBlank(row)) {
            table.rows.push_back({int(row.line), rowTexts(*file, row)});
        }
    }
    return table;
}
