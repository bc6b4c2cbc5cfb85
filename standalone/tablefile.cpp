// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/tablefile.h"

#include "designs/csv/csvfile.h"
#include "designs/csv/partlistcolumns.h"
#include "designs/utf8.h"

#include <algorithm>
#include <span>
#include <utility>

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

constexpr std::size_t searchedRows = 20;
/// Of a sheet.
constexpr qsizetype searchedColumns = 1000;

/// Finds the row of headings and, in it, the references.
bool findHeadings(const designs::CsvFile &file, const QStringList &referenceHeadings, std::size_t *headingRow,
                  qsizetype *referenceColumn, designs::Problem *problem)
{
    for (const QString &heading : referenceHeadings) {
        for (std::size_t row = 0; row < std::min(file.rows().size(), searchedRows); ++row) {
            const qsizetype column = rowTexts(file, file.rows()[row]).indexOf(heading);
            if (column >= 0) {
                *headingRow = row;
                *referenceColumn = column;
                return true;
            }
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

/// The first rows as a file of delimited cells, in which headings are looked for.
std::optional<designs::CsvFile> firstRows(const std::vector<TableRow> &rows)
{
    QByteArray bytes;
    for (const TableRow &row : std::span(rows).first(std::min(rows.size(), searchedRows))) {
        QStringList cells;
        for (const QString &cell : row.cells.first(std::min(row.cells.size(), searchedColumns))) {
            cells << u'"' + QString(cell).replace(u'"', QLatin1String("\"\"")) + u'"';
        }
        bytes += cells.join(u',').toUtf8() + '\n';
    }
    designs::Problem problem;
    return designs::CsvFile::parse(std::move(bytes), &problem);
}

} // namespace

std::optional<Table> readTable(const QString &path, const QStringList &referenceHeadings, QString *error)
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
    if (!file || !findHeadings(*file, referenceHeadings, &headingRow, &table.referenceColumn, &problem)) {
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

std::optional<Table> tableOf(std::vector<TableRow> rows, const QStringList &referenceHeadings)
{
    const auto file = firstRows(rows);
    std::size_t headingRow = 0;
    Table table;
    designs::Problem problem;
    if (!file || !findHeadings(*file, referenceHeadings, &headingRow, &table.referenceColumn, &problem)) {
        return std::nullopt;
    }
    table.headings = rows[headingRow].cells;
    table.headingLine = rows[headingRow].line;
    rows.erase(rows.begin(), rows.begin() + std::ptrdiff_t(headingRow) + 1);
    table.rows = std::move(rows);
    return table;
}
