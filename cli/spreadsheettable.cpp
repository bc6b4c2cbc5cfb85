// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/spreadsheettable.h"

#include "account/sentences.h"
#include "cli/texts.h"
#include "files/regularfile.h"
#include "sheets/spreadsheetreader.h"
#include "views/report/partssheet.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// A file may have any number; of these the headings are looked at.
constexpr qsizetype mostSearched = 20;
/// In a message.
constexpr qsizetype mostNamed = 10;

std::optional<QByteArray> bytesOf(const QString &path, QString *error)
{
    if (!QFileInfo::exists(path)) {
        *error = CommandLine::tr("there is no such file");
        return std::nullopt;
    }
    const qint64 most = SheetLimits().fileBytes;
    QString reason;
    auto bytes = contentOfRegularFile(path, most, &reason);
    if (!bytes) {
        *error = CommandLine::tr("the file cannot be read: %1").arg(reason);
    } else if (bytes->size() > most) {
        *error = CommandLine::tr("the file is larger than %1 MiB, the most that a spreadsheet may have")
                     .arg(most / (1024 * 1024));
        bytes.reset();
    }
    return bytes;
}

bool isBlank(const QString &cell)
{
    return cell.trimmed().isEmpty();
}

std::optional<SpreadsheetTable> tableOfSheet(Sheet sheet, const QStringList &referenceHeadings)
{
    SpreadsheetTable read;
    std::vector<TableRow> rows;
    for (SheetRow &row : sheet.rows) {
        if (std::all_of(row.cells.begin(), row.cells.end(), isBlank)) {
            continue;
        }
        if (!row.kinds.isEmpty()) {
            read.kinds.insert(row.number, row.kinds);
        }
        rows.push_back({row.number, std::move(row.cells)});
    }
    auto table = tableOf(std::move(rows), referenceHeadings);
    if (!table) {
        return std::nullopt;
    }
    for (TableRow &row : table->rows) {
        row.cells.resize(std::max(row.cells.size(), table->headings.size()));
    }
    joinBillRows(*table, referenceHeadings.front());
    read.table = std::move(*table);
    if (sheet.hiddenRows > 0) {
        read.notices << oneOrMany(sheet.hiddenRows,
                                  CommandLine::tr("%1 row is hidden and is read like the others"),
                                  CommandLine::tr("%1 rows are hidden and are read like the others"))
                            .arg(sheet.hiddenRows);
    }
    return read;
}

QString quotedNames(const QStringList &names)
{
    QStringList quoted;
    for (const QString &name : names.first(std::min(names.size(), mostNamed))) {
        quoted << u'"' + name + u'"';
    }
    const QString text = quoted.join(QStringLiteral(", "));
    const qsizetype more = names.size() - mostNamed;
    return more > 0 ? CommandLine::tr("%1 and %2 more").arg(text, QString::number(more)) : text;
}

/// The sheets that may be meant, in the order in which they are tried.
QList<qsizetype> candidates(const QStringList &names, const QString &wanted)
{
    const QString name = wanted.isEmpty() ? partsSheetName() : wanted;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0) {
            return {i};
        }
    }
    QList<qsizetype> all;
    for (qsizetype i = 0; i < names.size() && i < mostSearched && wanted.isEmpty(); ++i) {
        all << i;
    }
    return all;
}

} // namespace

void joinBillRows(Table &table, const QString &referenceHeading)
{
    const qsizetype references = table.referenceColumn;
    const bool hasTitle = table.headingLine > 1;
    if (!hasTitle || references != 2 || table.headings.value(references) != referenceHeading) {
        return;
    }
    std::vector<TableRow> rows;
    for (TableRow &row : table.rows) {
        const bool hasCategory = !isBlank(row.cells.value(0));
        const bool hasReferences = !isBlank(row.cells.value(references));
        const bool hasMore = std::count_if(row.cells.begin(), row.cells.end(),
                                           [](const QString &cell) { return !isBlank(cell); }) > 1;
        // Headings of categories and totals have no quantity; a line that lost its references is told.
        if (!hasReferences && hasCategory && isBlank(row.cells.value(1))) {
            continue;
        }
        if (hasReferences && !hasMore && !rows.empty()) {
            rows.back().cells[references] += row.cells.at(references);
        } else {
            rows.push_back(std::move(row));
        }
    }
    table.rows = std::move(rows);
}

bool isPartsSheet(const QString &name)
{
    return name.compare(partsSheetName(), Qt::CaseInsensitive) == 0;
}

bool isSpreadsheetFile(const QString &path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (QStringList{QStringLiteral("xlsx"), QStringLiteral("xlsm"), QStringLiteral("ods")}.contains(ending)) {
        return true;
    }
    constexpr qint64 markSize = 8;
    QString reason;
    const auto begin = contentOfRegularFile(path, markSize, &reason);
    return begin && isSpreadsheet(*begin);
}

std::optional<SpreadsheetTable> readSpreadsheetTable(const QString &path, const QString &sheet,
                                                     const QStringList &referenceHeadings, QString *error)
{
    const auto fail = [&](const QString &text) {
        *error = path + QStringLiteral(": ") + text;
        return std::nullopt;
    };
    QString problem;
    auto bytes = bytesOf(path, &problem);
    const auto file = bytes ? openSpreadsheet(std::move(*bytes), &problem) : nullptr;
    if (!file) {
        return fail(problem);
    }
    const QStringList &names = file->sheetNames();
    const QList<qsizetype> tried = candidates(names, sheet);
    for (const qsizetype index : tried) {
        auto read = file->sheet(index, &problem);
        if (!read) {
            return fail(CommandLine::tr("sheet %1: %2").arg(names.at(index), problem));
        }
        auto table = tableOfSheet(std::move(*read), referenceHeadings);
        if (!table) {
            continue;
        }
        table->sheet = names.at(index);
        if (sheet.isEmpty() && isPartsSheet(table->sheet)) {
            table->otherSheet = names.value(index == 0 ? 1 : 0);
        }
        if (sheet.isEmpty() && names.size() > 1) {
            table->notices.prepend(CommandLine::tr("of %1 sheets \"%2\" is read (--sheet takes another)")
                                       .arg(QString::number(names.size()), table->sheet));
        }
        return table;
    }
    return fail(
        tried.isEmpty() && !names.isEmpty()
            ? CommandLine::tr("there is no sheet \"%1\"; the file has %2").arg(sheet, quotedNames(names))
            : CommandLine::tr("no sheet has a heading for references, such as Reference or Designator"));
}
