// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class BOMTableWidget;
class PartsTable;
class QMenu;

/// The context menu of the column headings: which columns are seen, and which fields are required.
class ColumnMenu final : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive the object.
    ColumnMenu(BOMTableWidget *view, PartsTable *table);

    [[nodiscard]] bool isOpen() const;

Q_SIGNALS:
    void closed();

private:
    void open(const QPoint &position);
    void addColumns(QMenu *menu);
    void showAll();

    BOMTableWidget *m_view;
    PartsTable *m_table;
    QPointer<QMenu> m_menu;
};
