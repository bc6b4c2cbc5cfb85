// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/edittable.h"

#include "account/sentences.h"
#include "cli/changelist.h"
#include "cli/designedits.h"
#include "cli/opendesign.h"
#include "cli/reportcell.h"
#include "cli/spreadsheetchange.h"
#include "cli/texts.h"
#include "core/part.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"
#include "standalone/loadeddesign.h"
#include "views/report/spreadsheet.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// Of more cells that a spreadsheet changed, only the number is told.
constexpr qsizetype mostNamedChanges = 10;

QString plainText(const QString &cell, const EditColumn &column)
{
    return column.isField ? withoutAffixes(cell, column.report.field) : cell;
}

/// What a cell holds that is no text, as a sentence; empty for one that can be taken for a text.
QString contentOf(CellKind kind)
{
    switch (kind) {
    case CellKind::Percentage:
        return CommandLine::tr("the cell holds a percentage and no text");
    case CellKind::Date:
        return CommandLine::tr("the cell holds a date or time and no text");
    case CellKind::Truth:
        return CommandLine::tr("the cell holds true or false and no text");
    case CellKind::Formula:
        return CommandLine::tr("the cell holds a formula and no text");
    case CellKind::Error:
        return CommandLine::tr("the cell holds an error and no text");
    case CellKind::Covered:
        return CommandLine::tr("the cell is hidden under a merged one");
    default:
        return {};
    }
}

bool isFilled(const QString &text)
{
    return DesignFields::isFilled(text.toStdString());
}

} // namespace

EditTable::EditTable(const QString &path, OpenDesign &design, DesignEdits &edits,
                     const EditTableOptions &options)
    : m_path(path)
    , m_design(design)
    , m_edits(edits)
    , m_cells(design)
    , m_reader([&edits](const QString &reference) { return edits.isKnown(reference); })
    , m_numbers(HostUi::current().locale())
    , m_options(options)
{
}

QString EditTable::place(int line) const
{
    return m_sheet
               ? CommandLine::tr("%1: sheet %2, row %3").arg(m_path, m_sheet->sheet, QString::number(line))
               : m_path + u':' + QString::number(line);
}

QString EditTable::place(int line, const EditColumn &column) const
{
    return m_sheet ? CommandLine::tr("%1: sheet %2, cell %3")
                         .arg(m_path, m_sheet->sheet, cellAddress(line, column.index))
                   : place(line);
}

void EditTable::refuse(int line, const QString &text)
{
    m_edits.refuse(place(line) + QStringLiteral(": ") + text);
}

void EditTable::refuse(const TableRow &row, const EditColumn &column, const QString &reference,
                       const QString &text)
{
    m_edits.refuse(place(row.line, column) + QStringLiteral(": ") + reference + QStringLiteral(", ") +
                   column.heading + QStringLiteral(": ") + text);
}

void EditTable::compare(const SpreadsheetTable &sheet)
{
    m_sheet = &sheet;
    for (const QString &notice : sheet.notices) {
        m_notices << m_path + QStringLiteral(": ") + notice;
    }
    compare(sheet.table);
    m_sheet = nullptr;
}

void EditTable::compare(const Table &table)
{
    EditColumns found = editColumns(table, m_cells, m_options.headings);
    m_columns = std::move(found.columns);
    m_isFromKicad = found.isFromKicad;
    for (const QString &problem : std::as_const(found.problems)) {
        refuse(table.headingLine, problem);
    }
    if (!found.ignored.isEmpty()) {
        m_notices << CommandLine::tr("%1: columns that hold no properties are left out: %2")
                         .arg(m_path, found.ignored.join(QStringLiteral(", ")));
    }
    if (!isWithinLimit(table)) {
        return;
    }
    for (const TableRow &row : table.rows) {
        compareRow(table, row);
    }
    refuseEmptyCells();
    if (m_spreadsheetChanges > mostNamedChanges) {
        m_edits.refuse(CommandLine::tr("%1 more such changes").arg(m_spreadsheetChanges - mostNamedChanges));
    }
}

/// Counts the references before any of them is made.
bool EditTable::isWithinLimit(const Table &table)
{
    qsizetype count = 0;
    QString error;
    for (const TableRow &row : table.rows) {
        count += m_reader.read(row.cells.value(table.referenceColumn), &error) ? m_reader.count() : 0;
        if (count > ReferenceReader::mostReferences()) {
            refuse(row.line, CommandLine::tr("the table names more than %1 references")
                                 .arg(ReferenceReader::mostReferences()));
            return false;
        }
    }
    return true;
}

void EditTable::compareRow(const Table &table, const TableRow &row)
{
    const bool isTooLong =
        std::any_of(row.cells.cbegin() + std::min(table.headings.size(), row.cells.size()), row.cells.cend(),
                    [](const QString &cell) { return !cell.trimmed().isEmpty(); });
    if (isTooLong) {
        refuse(row.line, CommandLine::tr("there is a text behind the last column"));
        return;
    }
    QString error;
    if (!m_reader.read(row.cells.value(table.referenceColumn), &error)) {
        refuse(row.line, error);
        return;
    }
    const QStringList references = m_reader.references();
    m_kicadLists.clear();
    for (const QString &reference : references) {
        if (!m_edits.isKnown(reference)) {
            m_edits.refuseUnknown(reference, place(row.line));
            continue;
        }
        const TableRow *&first = m_rows[reference];
        if (first && !hasSameTexts(row, *first)) {
            const QString text = m_sheet ? CommandLine::tr("%1 has other texts in row %2")
                                         : CommandLine::tr("%1 has other texts on line %2");
            refuse(row.line, text.arg(reference, QString::number(first->line)));
        } else {
            first = &row;
            for (const EditColumn &column : m_columns) {
                compareCell(reference, references, row, column);
            }
        }
    }
}

void EditTable::compareCell(const QString &reference, const QStringList &references, const TableRow &row,
                            const EditColumn &column)
{
    const QString cell = cellOf(row, column);
    const QStringList shown = shownTexts(reference, references.first(), column);
    const bool isSame = std::any_of(shown.cbegin(), shown.cend(),
                                    [&](const QString &text) { return isUnchanged(cell, text, column); });
    if (isSame || isKicadList(cell, references, column)) {
        return;
    }
    const QString made = m_options.acceptsSpreadsheetChanges
                             ? QString()
                             : spreadsheetChangeOf(cell, shown, column, kindOf(row, column));
    if (column.isFixed) {
        refuse(row, column, reference, CommandLine::tr("this column tells what cannot be changed here"));
    } else if (column.index >= row.cells.size()) {
        refuse(row, column, reference, CommandLine::tr("the row has no cell for it"));
    } else if (const QString problem = kindProblem(row, column); !problem.isEmpty()) {
        refuseSpreadsheetChange(row, column, reference,
                                CommandLine::tr("%1 (--accept-spreadsheet-changes writes it)").arg(problem));
    } else if (const QString name = otherName(reference, column);
               !name.isEmpty() && !isFilled(plainText(cell, column))) {
        EmptyCells &cells = m_emptyCells[column.index];
        if (cells.count++ == 0) {
            cells.line = row.line;
            cells.example =
                CommandLine::tr("%1, %2: the cell is empty and the part has %3 under the name %4")
                    .arg(reference, column.heading, quotedText(plainText(shown.first(), column), {}), name);
        }
    } else if (const QString other = columnOfSameText(reference, row, column); !other.isEmpty()) {
        refuse(row, column, reference,
               CommandLine::tr("the part has this under the name %1; delete one of the two, or take names as "
                               "they are (--exact-names)")
                   .arg(other));
    } else if (!made.isEmpty()) {
        refuseSpreadsheetChange(row, column, reference,
                                CommandLine::tr("%1, as spreadsheets do by themselves "
                                                "(--accept-spreadsheet-changes writes it)")
                                    .arg(made));
    } else if (isNumberLost(cell, shown, column)) {
        refuse(row, column, reference,
               CommandLine::tr("%1 is no number, and the column has totals")
                   .arg(quotedText(plainText(cell, column), {})));
    } else {
        m_edits.add(reference, column.report.field.propertyName, plainText(cell, column),
                    place(row.line, column));
    }
}

bool EditTable::isNumberLost(const QString &cell, const QStringList &shown, const EditColumn &column) const
{
    const auto isNumber = [&](const QString &text) {
        return m_numbers.read(plainText(text, column)).has_value();
    };
    const QString name = column.report.field.propertyName;
    const QList<BOMField> fields = m_design.database().currentTemplate().fields().fields();
    const bool isTotalled = std::any_of(fields.begin(), fields.end(), [&name](const BOMField &field) {
        return field.generateTotals && field.propertyName.compare(name, Qt::CaseInsensitive) == 0;
    });
    return isTotalled && !m_design.database().propertyTypes().type(name) &&
           isFilled(plainText(cell, column)) && !isNumber(cell) &&
           std::any_of(shown.begin(), shown.end(), isNumber);
}

QString EditTable::cellOf(const TableRow &row, const EditColumn &column) const
{
    QString cell = row.cells.value(column.index);
    const bool isShownAsNumber = column.report.isNumeric && kindOf(row, column) == CellKind::Number;
    return isShownAsNumber ? cell.replace(u'.', HostUi::current().locale().decimalPoint()) : cell;
}

QString EditTable::kindProblem(const TableRow &row, const EditColumn &column) const
{
    const CellKind kind = kindOf(row, column);
    // TRUE is a text of such properties.
    const bool isTruth = kind == CellKind::Truth && m_cells.hasTwoStates(column);
    const QString content = contentOf(kind);
    if (m_options.acceptsSpreadsheetChanges || isTruth || content.isEmpty()) {
        return {};
    }
    const QString shown = row.cells.value(column.index);
    return shown.isEmpty() ? content : CommandLine::tr("%1, shown as %2").arg(content, quotedText(shown, {}));
}

bool EditTable::isKicadList(const QString &cell, const QStringList &references, const EditColumn &column)
{
    if (references.size() < 2) {
        return false;
    }
    auto list = m_kicadLists.find(column.index);
    if (list == m_kicadLists.end()) {
        QStringList texts;
        for (const QString &reference : references) {
            texts << componentTexts(reference, column).value(0);
        }
        const QStringList distinct(QSet<QString>(texts.cbegin(), texts.cend()).values());
        // Parts of other tables whose only text is that of one have lost none.
        const bool isList = distinct.size() - (distinct.contains(QString()) ? 1 : 0) > 1 || m_isFromKicad;
        list = m_kicadLists.insert(column.index, isList ? KicadTable::listed(distinct) : QString());
    }
    return !cell.isEmpty() && cell == *list;
}

QString EditTable::otherName(const QString &reference, const EditColumn &column) const
{
    const QString &property = column.report.field.propertyName;
    const QStringList names = m_edits.writtenNames(reference, property);
    const auto other = std::find_if(names.begin(), names.end(), [&property](const QString &name) {
        return name.compare(property, Qt::CaseInsensitive) != 0;
    });
    return other == names.end() ? QString() : *other;
}

/// The table may never have shown the texts: names that mean the same can have become more since.
void EditTable::refuseEmptyCells()
{
    for (const EmptyCells &cells : std::as_const(m_emptyCells)) {
        const qsizetype more = cells.count - 1;
        const QString example = more > 0 ? oneOrMany(more, CommandLine::tr("%1, as %2 more part"),
                                                     CommandLine::tr("%1, as %2 more parts"))
                                               .arg(cells.example, QString::number(more))
                                         : cells.example;
        refuse(cells.line,
               CommandLine::tr("%1; empty cells take away texts only in a column of their own name. A table "
                               "made with --exact-names is applied with --exact-names")
                   .arg(example));
    }
}

QString EditTable::columnOfSameText(const QString &reference, const TableRow &row,
                                    const EditColumn &column) const
{
    const QString &property = column.report.field.propertyName;
    const QString text = plainText(row.cells.value(column.index), column);
    for (const QString &written : m_edits.writtenNames(reference, property)) {
        const auto isOther = [&](const EditColumn &candidate) {
            const QString &name = candidate.report.field.propertyName;
            if (name.compare(property, Qt::CaseInsensitive) == 0) {
                return false;
            }
            return name.compare(written, Qt::CaseInsensitive) == 0 ||
                   (written.compare(property, Qt::CaseInsensitive) != 0 &&
                    plainText(row.cells.value(candidate.index), candidate) != text &&
                    m_edits.writtenNames(reference, name).contains(written, Qt::CaseInsensitive));
        };
        const auto other = std::find_if(m_columns.begin(), m_columns.end(), isOther);
        if (other != m_columns.end()) {
            return other->report.field.propertyName.compare(written, Qt::CaseInsensitive) == 0
                       ? CommandLine::tr("%1, which is a column as well").arg(written)
                       : CommandLine::tr("%1, which the column %2 stands for as well")
                             .arg(written, other->heading);
        }
    }
    return {};
}

bool EditTable::hasSameTexts(const TableRow &row, const TableRow &other) const
{
    return std::all_of(m_columns.begin(), m_columns.end(), [&](const EditColumn &column) {
        return row.cells.value(column.index) == other.cells.value(column.index);
    });
}

QStringList EditTable::shownTexts(const QString &reference, const QString &firstReference,
                                  const EditColumn &column) const
{
    const Part *part = m_design.database().part(reference);
    QStringList shown;
    if (part) {
        shown << m_cells.text(*part, column) << part->storedProperty(column.report.property);
    }
    shown << componentTexts(reference, column);
    // A line of the report shows the texts of its first part.
    const Part *first = m_design.database().part(firstReference);
    if (part && first && part != first && !m_design.database().currentTemplate().caseSensitiveGrouping()) {
        const QString firstText = m_cells.text(*first, column);
        if (shown.first().compare(firstText, Qt::CaseInsensitive) == 0) {
            shown << firstText;
        }
    }
    return shown;
}

bool EditTable::isUnchanged(const QString &cell, const QString &shown, const EditColumn &column) const
{
    if (isReportCell(cell, shown) || (m_sheet && cell == Spreadsheet::cellText(shown)) ||
        (cell.contains(u'{') && KicadTable::withoutBraces(cell) == shown) ||
        (m_isFromKicad && shown.contains(u'\t') && isReportCell(cell, QString(shown).remove(u'\t')))) {
        return true;
    }
    const QString before = plainText(shown, column);
    const QString after = plainText(cell, column);
    // Assembly services take footprints without their libraries.
    const bool isFootprint =
        column.report.field.propertyName.compare(QLatin1String("PACKAGE"), Qt::CaseInsensitive) == 0;
    const bool hasLibraries =
        !m_design.design().design().info().file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    if (isFootprint && hasLibraries && !after.isEmpty() && before.endsWith(u':' + after)) {
        return true;
    }
    if (column.report.isNumeric && isNearNumber(before, after, m_numbers)) {
        return true;
    }
    return isSameNumber(before, after, m_numbers) &&
           (column.report.isNumeric || spreadsheetChange(before, after, m_numbers).isEmpty());
}

QString EditTable::spreadsheetChangeOf(const QString &cell, const QStringList &shown,
                                       const EditColumn &column, CellKind kind) const
{
    // TRUE means the same as True there, and other texts are refused.
    if (m_cells.hasTwoStates(column)) {
        return {};
    }
    for (const QString &text : shown) {
        const QString before = plainText(text, column);
        const QString after = plainText(cell, column);
        const QString made = spreadsheetChange(before, after, m_numbers);
        if (made.isEmpty() && kind == CellKind::Number && isTakenForNumber(before, after.toDouble())) {
            return CommandLine::tr("\"%1\" became the number %2").arg(before, after);
        }
        if (!made.isEmpty()) {
            return CommandLine::tr("\"%1\" became \"%2\": %3").arg(before, after, made);
        }
    }
    return {};
}

void EditTable::refuseSpreadsheetChange(const TableRow &row, const EditColumn &column,
                                        const QString &reference, const QString &text)
{
    if (++m_spreadsheetChanges <= mostNamedChanges) {
        refuse(row, column, reference, text);
    }
}

QStringList EditTable::componentTexts(const QString &reference, const EditColumn &column) const
{
    QStringList shown;
    const LoadedDesign &design = m_design.design();
    for (const std::size_t index : design.references().find(reference.toStdString())) {
        const COMPONENT *component = design.components()[index];
        const Part part(component, &m_design.database(), reference, fromHostText(component->value));
        shown << m_cells.text(part, column) << part.storedProperty(column.report.property);
    }
    return shown;
}
