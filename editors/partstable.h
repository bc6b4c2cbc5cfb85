// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/propertycells.h"
#include "editors/rowfilter.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <vector>

class BOMTableWidget;

/// Fills the table of the property editor and keeps it up to date: one row for each of PropertyRows, between
/// a column of references, one of categories and, if wanted, one of links.
class PartsTable final : public QObject
{
    Q_OBJECT

public:
    enum FixedColumn
    {
        ReferenceColumn = 0,
        CategoryColumn = 1,
        FirstField = 2,
    };

    struct Content
    {
        PropertyRows::Choice parts;
        bool hasLinks = false;
    };

    /// The table is not owned and must outlive the object.
    explicit PartsTable(BOMTableWidget *table);

    /// Neither is owned; both may be null.
    void setSource(const BOMPartsDatabase *database, const PropertyAssignments *assignments);

    /// Shows the parts as they are now. Where the table shows the same parts already only their texts change;
    /// otherwise it is filled anew, and current cell, selection and scroll place go back to the parts and
    /// columns where they were. Sorting and filter stay.
    void fill(const Content &content);
    /// Reads a row again and paints what changed.
    void refresh(PropertyRow *row);
    /// The same for all rows in which something is pending, or was.
    void refreshPending();
    /// Takes colours and fonts from the table again.
    void updateLook();

    void setFilter(const RowFilter &filter);
    [[nodiscard]] int shownRows() const { return m_shownRows; }
    [[nodiscard]] int allRows() const { return int(m_context.rows.rows().size()); }

    [[nodiscard]] PropertyRows &rows() { return m_context.rows; }
    /// The row of the table's row; null outside.
    [[nodiscard]] PropertyRow *rowAt(int row) const;
    /// The cell of a field; null for any other.
    [[nodiscard]] PropertyItem *fieldAt(int row, int column) const;
    [[nodiscard]] int linksColumn() const { return m_hasLinks ? fieldEnd() : -1; }

    /// Keeps widths, order and hidden columns for the next time.
    void rememberLayout() const;
    void setRequired(int column, bool isRequired);

Q_SIGNALS:
    void shownRowsChanged();

private:
    [[nodiscard]] int fieldEnd() const { return FirstField + int(m_context.rows.columns().size()); }
    void fillAnew(PropertyRows rows);
    void makeColumns();
    void makeRows();
    void setSortColumn(const QString &heading, Qt::SortOrder order);
    void restoreLayout();
    /// Of all rows, with the margins of a cell.
    [[nodiscard]] int widestText(int column) const;
    void takeRequired();
    void freezeSorting();
    void applyFilter();
    void showRows(const RowFilter &filter);

    BOMTableWidget *m_table;
    CellContext m_context;
    /// By the numbers of the rows.
    std::vector<ReferenceItem *> m_references;
    RowFilter m_filter;
    bool m_hasLinks = false;
    /// The widths that nobody chose, by the name of the column: they follow what the columns hold.
    QHash<QString, int> m_measured;
    bool m_isFilling = false;
    int m_shownRows = 0;
};
