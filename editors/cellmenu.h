// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QPointer>

class BOMTableWidget;
class CellBlocks;
class PartMenu;
class PartsTable;
class PropertyAssignments;
class QPoint;

/// The menu of a cell of the property editor.
class CellMenu final : public QObject
{
    Q_OBJECT

public:
    /// None is owned; all must outlive the object.
    CellMenu(BOMTableWidget *view, PartsTable *table, CellBlocks *blocks, PartMenu *parts);

    /// Not owned; null for none.
    void setAssignments(PropertyAssignments *assignments) { m_assignments = assignments; }

    /// Shows the menu without waiting for it.
    void open(int row, int column, const QPoint &position);

private:
    /// Ends the edits of the selected cells.
    void retractSelected();

    BOMTableWidget *m_view;
    PartsTable *m_table;
    CellBlocks *m_blocks;
    PartMenu *m_parts;
    QPointer<PropertyAssignments> m_assignments;
};
