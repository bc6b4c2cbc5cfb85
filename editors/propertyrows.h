// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"
#include "core/propertyquery.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

class BOMPartsDatabase;
class PropertyAssignments;

/// A column of the property editor that shows a field of the template.
struct PropertyColumn
{
    QString heading;
    QString property;
    /// The name under which its edits are recorded.
    QString key;
    bool isEditable = true;
    bool isNumeric = false;
    /// Cells without a text stand out.
    bool isRequired = false;

    [[nodiscard]] bool isFootprint() const
    {
        return key.compare(u"PACKAGE", Qt::CaseInsensitive) == 0 ||
               key.compare(u"FOOTPRINT", Qt::CaseInsensitive) == 0;
    }
    /// Whether what is shown in it is the same, however it looks.
    [[nodiscard]] bool isSameField(const PropertyColumn &other) const
    {
        return heading == other.heading && property == other.property;
    }
};

/// What a cell says about the parts of its row.
struct PropertyCell
{
    /// Empty where the parts differ.
    QString text;
    /// The text by which the row is sorted: that of the last time when the user sorted or the table was
    /// filled, so that rows stay where they are while they are edited.
    QString sortText = {};
    bool isPending = false;
    bool isInConflict = false;
    bool isDifferent = false;

    /// With what stands in a cell whose parts differ.
    [[nodiscard]] QString shownText() const;

    bool operator==(const PropertyCell &) const = default;
};

/// A part, or a line of parts.
struct PropertyRow
{
    QStringList references;
    QString category;
    /// The references as the template lists them.
    QString referenceText;
    /// Links of all parts.
    qsizetype links = 0;
    /// All of them are.
    bool isBOMOnly = false;
    /// Its place when the rows were read; tells rows apart that sort alike.
    int number = 0;
    std::vector<PropertyCell> cells;

    [[nodiscard]] const QString &firstReference() const { return references.first(); }
    bool operator==(const PropertyRow &) const = default;
};

/// The headings of the two columns in front of the fields.
[[nodiscard]] QString referencesHeading();
[[nodiscard]] QString categoryHeading();

/// What the property editor shows: texts as they were when they were read, so that rows outlive the parts.
class PropertyRows final
{
public:
    /// Which parts, and how.
    struct Choice
    {
        /// Empty for all.
        QString category;
        bool isGrouped = false;
    };

    /// Reads the columns of the template and the rows. `assignments` may be null.
    [[nodiscard]] static PropertyRows read(const BOMPartsDatabase &database,
                                           const PropertyAssignments *assignments, const Choice &choice);

    /// Takes the texts of other rows out of them; addresses of rows stay. False, and neither changes, when
    /// they have other columns or stand for other parts.
    [[nodiscard]] bool takeTexts(PropertyRows &other);
    /// Reads the cells of a row again; gives the columns whose cell changed.
    QList<int> refresh(PropertyRow *row, const BOMPartsDatabase &database,
                       const PropertyAssignments *assignments);
    /// From now on rows are sorted by the texts that they show now.
    void takeSortTexts();

    [[nodiscard]] const std::vector<PropertyColumn> &columns() const { return m_columns; }
    [[nodiscard]] std::vector<PropertyColumn> &columns() { return m_columns; }
    [[nodiscard]] const std::vector<PropertyRow> &rows() const { return m_rows; }
    [[nodiscard]] std::vector<PropertyRow> &rows() { return m_rows; }
    /// Null for a part that has none.
    [[nodiscard]] PropertyRow *rowOf(const QString &reference);
    /// Whether a cell without a text is to stand out.
    [[nodiscard]] bool isMissing(const PropertyRow &row, size_t column) const;
    /// Whether one row comes before another one in that column.
    [[nodiscard]] bool isBefore(const PropertyRow &left, const PropertyRow &right, size_t column) const;

private:
    /// Where cells are read from.
    struct Source
    {
        const BOMPartsDatabase *database = nullptr;
        /// Null where nothing is pending.
        const PropertyAssignments *assignments = nullptr;
    };

    void readColumns(const BOMPartsDatabase &database);
    void openSource(const BOMPartsDatabase &database, const PropertyAssignments *assignments);
    void addRow(const QString &category, BomLine parts);
    void finish();
    [[nodiscard]] PropertyCell readCell(const PropertyRow &row, size_t column) const;
    [[nodiscard]] PropertyCell readCell(const QString &reference, size_t column) const;

    std::vector<PropertyColumn> m_columns;
    std::vector<PropertyRow> m_rows;
    QHash<QString, int> m_rowOf;
    Source m_source;
    /// For the columns; they serve until the rows are read anew.
    std::vector<PropertyQuery> m_queries;
};
