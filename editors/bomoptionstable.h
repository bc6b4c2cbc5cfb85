// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <memory>

class QAction;
class QTableWidget;
class QTableWidgetItem;
class QToolButton;

namespace Ui {
class BOMOptionsTable;
}

/// A table of records in an order that the user sets, with buttons that add, edit, delete and move them. What
/// a record is, and how it is edited, is up to the class that derives from it.
class BOMOptionsTable : public QWidget
{
    Q_OBJECT

public:
    explicit BOMOptionsTable(QWidget *parent = nullptr);
    ~BOMOptionsTable() override;

    /// Empties the table and gives it these columns. A click on a heading orders the rows by its column.
    void setHeaders(const QStringList &labels);

Q_SIGNALS:
    void addClicked();
    void editClicked();
    void deleteClicked();
    /// The user moved a row or sorted the rows.
    void orderChanged();

public Q_SLOTS:
    void moveUp();
    void moveDown();
    /// Enables what can be done with the current row, -1 for none.
    virtual void updateBtns(int row);

protected:
    /// What the rows are, for people who hear it.
    void setTitle(const QString &title);

    struct Row
    {
        /// One per column.
        QStringList texts;
        /// Kept with the row, see rowData().
        QVariant data = {};
    };

    void showRows(const QList<Row> &rows, int current);
    /// Makes room for a new record and shows it as the current row.
    void insertEmptyRow(int row);
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QVariant rowData(int row) const;
    /// The buttons that edit and delete do nothing until the next updateBtns().
    void protectRow();
    /// Adds a command to the table's menu.
    QAction *addCommand(const QString &text, const QList<QKeySequence> &shortcuts = {});

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpButtons();
    void setUpCommands();
    void moveRow(int from, int to);
    void sortRows();
    /// The rows stand as the user put them, not sorted by a column.
    void endSorting();
    void fitColumns();

    std::unique_ptr<Ui::BOMOptionsTable> m_ui;
    QTableWidget *m_table;
    QList<QAction *> m_rowCommands;
};
