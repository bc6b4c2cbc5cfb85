// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/editcolumns.h"

#include "cli/newproperties.h"
#include "cli/opendesign.h"
#include "cli/texts.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "standalone/loadeddesign.h"
#include "views/report/partssheet.h"

#include <QSet>

#include <algorithm>
#include <utility>

ReportCells::ReportCells(OpenDesign &design)
    : m_design(design)
    , m_report(design.database(), design.database().columns())
{
}

std::optional<EditColumn> ReportCells::columnOf(const QString &heading) const
{
    for (const Qt::CaseSensitivity rule : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const ReportColumn &field : m_report.columns()) {
            if (field.field.fieldName.compare(heading, rule) == 0) {
                const QString &property = field.field.propertyName;
                return EditColumn{0, heading, field, true,
                                  property == placedProperty() || property == nameProperty()};
            }
        }
    }
    return isProperty(heading) ? std::optional(propertyColumn(heading)) : std::nullopt;
}

EditColumn ReportCells::propertyColumn(const QString &name) const
{
    BOMField field;
    field.fieldName = name;
    field.propertyName = name;
    const PropertyTypes &types = m_design.database().propertyTypes();
    const bool isFixed = name == placedProperty() || name == nameProperty();
    return EditColumn{0, name, {field, PropertyQuery(name, &types), types.isNumeric(name)}, false, isFixed};
}

QString ReportCells::refusal(const QString &heading) const
{
    const QStringList similar = similarProperties(m_design, heading);
    QString text = CommandLine::tr("is neither a field of the template nor a property");
    if (!similar.isEmpty()) {
        text = CommandLine::tr("%1; the design has %2").arg(text, similar.join(QStringLiteral(", ")));
    }
    return heading.isEmpty() ? text
                             : CommandLine::tr("%1 (--new-property \"%2\" makes it one)").arg(text, heading);
}

QString ReportCells::text(const Part &part, const EditColumn &column) const
{
    return column.isField ? m_report.text(part, column.report) : part.property(column.report.property);
}

QStringList ReportCells::partsHeadings() const
{
    const BOMTemplate &settings = m_design.database().currentTemplate();
    return partsSheetHeadings(Report(m_design.database(), dataFields(settings.fields(), settings)));
}

bool ReportCells::hasTwoStates(const EditColumn &column) const
{
    const auto type = m_design.database().propertyTypes().type(column.report.field.propertyName);
    return type && ::hasTwoStates(*type);
}

bool ReportCells::isProperty(const QString &name) const
{
    const auto &fields = m_report.columns();
    return standardPropertyNames().contains(name, Qt::CaseInsensitive) ||
           m_design.database().propertyTypes().type(name) || hasProperty(m_design, name) ||
           std::any_of(fields.begin(), fields.end(), [&name](const ReportColumn &field) {
               return field.field.propertyName.compare(name, Qt::CaseInsensitive) == 0;
           });
}

namespace {

enum class Meaning
{
    Values,
    /// Category or quantity, as a report writes them.
    Own,
    Unclear
};

/// A report has its own columns in front of the references, but people move columns.
Meaning meaningOf(const QString &heading, qsizetype index, const Table &table, const ReportCells &cells,
                  const std::optional<EditColumn> &column)
{
    const QStringList own = cells.columnHeadings(true);
    if (!own.first(2).contains(heading, Qt::CaseInsensitive)) {
        return Meaning::Values;
    }
    if (index < table.referenceColumn || !column) {
        return Meaning::Own;
    }
    const bool isOfReport = table.headings.value(table.referenceColumn) == own.at(2);
    const bool isMoved =
        std::none_of(table.headings.begin(), table.headings.begin() + table.referenceColumn,
                     [&heading](const QString &other) { return other.trimmed() == heading; });
    return isOfReport && isMoved && !column->isField ? Meaning::Unclear : Meaning::Values;
}

class ColumnFinder
{
public:
    ColumnFinder(const Table &table, const ReportCells &cells, const HeadingOptions &options)
        : m_table(table)
        , m_cells(cells)
        , m_options(options)
    {
        for (const QString &heading : table.headings) {
            m_headings << heading.trimmed();
        }
        m_fields = options.kicad.fieldsOf(m_headings);
        m_found.isFromKicad = m_fields.has_value();
        // Also where it was saved as a file of delimited cells.
        m_isPartsSheet = options.isPartsSheet || m_headings == cells.partsHeadings();
    }

    EditColumns run()
    {
        for (qsizetype index = 0; index < m_headings.size(); ++index) {
            if (index != m_table.referenceColumn) {
                take(index);
            }
        }
        for (const QString &name : m_options.newProperties) {
            if (!m_headings.contains(name, Qt::CaseInsensitive)) {
                refuse(CommandLine::tr("there is no column \"%1\", which --new-property names").arg(name));
            }
        }
        return std::move(m_found);
    }

private:
    void refuse(const QString &problem) { m_found.problems << problem; }
    void ignore(qsizetype index) { m_found.ignored << m_headings.at(index); }

    void take(qsizetype index)
    {
        const QString &heading = m_headings.at(index);
        std::optional<EditColumn> column = columnOf(index);
        const Meaning meaning =
            m_fields ? Meaning::Values : meaningOf(heading, index, m_table, m_cells, column);
        if (meaning == Meaning::Own) {
            if (m_headings.value(m_table.referenceColumn) != m_cells.columnHeadings(true).at(2)) {
                ignore(index);
            }
        } else if (meaning == Meaning::Unclear) {
            refuse(CommandLine::tr("column %1 \"%2\" may be the report's own or the property: delete it, or "
                                   "put it in front of the references if it is the report's")
                       .arg(QString::number(index + 1), heading));
        } else if (isIgnored(index, column)) {
            ignore(index);
        } else if (!column && isBlank(index) && (heading.isEmpty() || m_isPartsSheet)) {
            return;
        } else if (column || (m_options.addsProperties && !heading.isEmpty())) {
            add(index, column ? *column : m_cells.propertyColumn(heading));
        } else {
            refuse(CommandLine::tr("column %1 \"%2\" %3", "and what is wrong with it")
                       .arg(QString::number(index + 1), heading, m_cells.refusal(heading)));
        }
    }

    void add(qsizetype index, EditColumn column)
    {
        column.index = index;
        column.heading = m_headings.at(index);
        const QString name = column.isField ? u'f' + column.report.field.fieldName
                                            : u'p' + column.report.field.propertyName.toCaseFolded();
        if (m_met.contains(name)) {
            refuse(CommandLine::tr("the heading \"%1\" stands over two columns").arg(column.heading));
            return;
        }
        m_met.insert(name);
        m_found.columns.push_back(std::move(column));
    }

    [[nodiscard]] std::optional<EditColumn> columnOf(qsizetype index) const
    {
        const QString &heading = m_headings.at(index);
        if (m_fields) {
            const QString &field = m_fields->at(index);
            return KicadTable::isOwnField(field) ? std::nullopt
                                                 : std::optional(m_cells.propertyColumn(field));
        }
        if (m_isPartsSheet && m_cells.isProperty(heading)) {
            return m_cells.propertyColumn(heading);
        }
        if (const auto column = m_cells.columnOf(heading)) {
            return column;
        }
        if (m_options.newProperties.contains(heading, Qt::CaseInsensitive)) {
            return m_cells.propertyColumn(heading);
        }
        const QString field = m_options.kicad.fieldOf(heading);
        return field.isEmpty() || KicadTable::isOwnField(field)
                   ? std::nullopt
                   : std::optional(m_cells.propertyColumn(field));
    }

    /// Whether the column holds what KiCad knows of its own, and no property. What is known as a property
    /// stays one, unless it only has the marks of parts that are not fitted.
    [[nodiscard]] bool isIgnored(qsizetype index, const std::optional<EditColumn> &column) const
    {
        const QString &heading = m_headings.at(index);
        if (column) {
            return KicadTable::isNotFittedField(column->report.field.propertyName) &&
                   m_cells.hasTwoStates(*column) && hasMarks(index) && !isBlank(index);
        }
        if (m_fields || KicadTable::isOwnField(m_options.kicad.fieldOf(heading))) {
            return true;
        }
        return KicadTable::isOwnHeading(heading) &&
               (!KicadTable::isNotFittedField(heading) || hasMarks(index));
    }

    [[nodiscard]] bool isBlank(qsizetype index) const
    {
        return std::all_of(m_table.rows.begin(), m_table.rows.end(), [index](const TableRow &row) {
            return row.cells.value(index).trimmed().isEmpty();
        });
    }

    [[nodiscard]] bool hasMarks(qsizetype index) const
    {
        const auto isMark = [index](const TableRow &row) {
            const QString cell = row.cells.value(index).trimmed();
            return cell.isEmpty() || cell == KicadTable::notFittedMark();
        };
        return std::all_of(m_table.rows.begin(), m_table.rows.end(), isMark);
    }

    const Table &m_table;
    const ReportCells &m_cells;
    const HeadingOptions &m_options;
    QStringList m_headings;
    /// Under the headings of a table that KiCad has written.
    std::optional<QStringList> m_fields;
    bool m_isPartsSheet = false;
    QSet<QString> m_met;
    EditColumns m_found;
};

} // namespace

EditColumns editColumns(const Table &table, const ReportCells &cells, const HeadingOptions &options)
{
    return ColumnFinder(table, cells, options).run();
}
