// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/editcolumns.h"

#include "cli/newproperties.h"
#include "cli/opendesign.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "standalone/loadeddesign.h"

#include <QSet>

#include <algorithm>

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
    return QStringLiteral("is neither a field of the template nor a property") +
           (similar.isEmpty() ? QString()
                              : QStringLiteral("; the design has ") + similar.join(QStringLiteral(", "))) +
           (heading.isEmpty()
                ? QString()
                : QStringLiteral(" (--new-property \"") + heading + QStringLiteral("\" makes it one)"));
}

QString ReportCells::text(const Part &part, const EditColumn &column) const
{
    return column.isField ? m_report.text(part, column.report) : part.property(column.report.property);
}

bool ReportCells::isProperty(const QString &name) const
{
    return standardPropertyNames().contains(name, Qt::CaseInsensitive) ||
           m_design.database().propertyTypes().type(name) || hasProperty(m_design, name);
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

} // namespace

std::vector<EditColumn> editColumns(const Table &table, const ReportCells &cells,
                                    const QStringList &newProperties, QStringList *problems)
{
    std::vector<EditColumn> found;
    QSet<QString> met;
    for (qsizetype index = 0; index < table.headings.size(); ++index) {
        const QString heading = table.headings.at(index).trimmed();
        auto column = cells.columnOf(heading);
        if (!column && newProperties.contains(heading, Qt::CaseInsensitive)) {
            column = cells.propertyColumn(heading);
        }
        const Meaning meaning = meaningOf(heading, index, table, cells, column);
        if (index == table.referenceColumn || meaning == Meaning::Own) {
            continue;
        }
        if (meaning == Meaning::Unclear) {
            problems->append(
                QStringLiteral("column %1 \"").arg(index + 1) + heading +
                QStringLiteral("\" may be the report's own or the property: delete it, or put it "
                               "in front of the references if it is the report's"));
            continue;
        }
        const bool isBlank = std::all_of(table.rows.begin(), table.rows.end(), [index](const TableRow &row) {
            return row.cells.value(index).trimmed().isEmpty();
        });
        if (heading.isEmpty() && isBlank) {
            continue;
        }
        if (!column) {
            problems->append(QStringLiteral("column %1 \"").arg(index + 1) + heading + QStringLiteral("\" ") +
                             cells.refusal(heading));
            continue;
        }
        const QString name = (column->isField ? QStringLiteral("f") : QStringLiteral("p")) +
                             (column->isField ? column->report.field.fieldName : heading.toCaseFolded());
        if (met.contains(name)) {
            problems->append(QStringLiteral("the heading \"") + heading +
                             QStringLiteral("\" stands over two columns"));
            continue;
        }
        met.insert(name);
        column->index = index;
        found.push_back(*column);
    }
    for (const QString &name : newProperties) {
        const bool isHeading =
            std::any_of(table.headings.begin(), table.headings.end(), [&name](const QString &heading) {
                return heading.trimmed().compare(name, Qt::CaseInsensitive) == 0;
            });
        if (!isHeading) {
            problems->append(QStringLiteral("there is no column \"") + name +
                             QStringLiteral("\", which --new-property names"));
        }
    }
    return found;
}
