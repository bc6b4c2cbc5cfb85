// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/kicadtable.h"
#include "standalone/tablefile.h"
#include "views/report/report.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class OpenDesign;

/// A column of a table of edits whose cells are property values.
struct EditColumn
{
    /// Of the table, counted from 0.
    qsizetype index = 0;
    QString heading;
    ReportColumn report;
    /// Cells are as a report writes them under a field of the template; otherwise as stored, shown to people.
    bool isField = false;
    /// What is shown is no property that can be changed.
    bool isFixed = false;
};

/// The cells of a report one by one, also for parts that no report lists.
class ReportCells final
{
public:
    explicit ReportCells(OpenDesign &design);

    /// What a table's column under that heading holds: a field of the template by its title, else a property
    /// by its name. Nothing for an unknown one.
    [[nodiscard]] std::optional<EditColumn> columnOf(const QString &heading) const;
    /// Whether it is the name of a property: one that parts or definitions have or that the template shows.
    [[nodiscard]] bool isProperty(const QString &name) const;
    /// A column whose cells are texts of a property, which need not be one yet.
    [[nodiscard]] EditColumn propertyColumn(const QString &name) const;
    /// Why there is no columnOf() the heading.
    [[nodiscard]] QString refusal(const QString &heading) const;

    /// Whether the column shows a property that only has two states, Yes and No or the like.
    [[nodiscard]] bool hasTwoStates(const EditColumn &column) const;
    /// The text that a report writes, or that people see of a property.
    [[nodiscard]] QString text(const Part &part, const EditColumn &column) const;

    /// Those of the sheet of parts in a spreadsheet.
    [[nodiscard]] QStringList partsHeadings() const;
    /// See Report::headings().
    [[nodiscard]] QStringList columnHeadings(bool withQuantity) const
    {
        return m_report.headings(withQuantity);
    }

private:
    OpenDesign &m_design;
    Report m_report;
};

/// What the headings of a table may mean.
struct HeadingOptions
{
    /// Headings that mean properties which the design does not have yet, letter case ignored.
    QStringList newProperties;
    /// All unknown headings do.
    bool addsProperties = false;
    /// The table is the sheet of parts, whose headings are names of properties.
    bool isPartsSheet = false;
    /// The labels that the design's project has for fields.
    KicadTable kicad;
};

struct EditColumns
{
    std::vector<EditColumn> columns;
    /// Headings that mean nothing, or the same as another; new properties that are no headings.
    QStringList problems;
    /// Headings of columns that hold no properties of parts, and are left out. Those that a report has as its
    /// own are not named.
    QStringList ignored;
    /// KiCad has written the table.
    bool isFromKicad = false;
};

/// The columns of a table that hold values; categories, quantities and references, as a report writes them,
/// are left out.
[[nodiscard]] EditColumns editColumns(const Table &table, const ReportCells &cells,
                                      const HeadingOptions &options);
