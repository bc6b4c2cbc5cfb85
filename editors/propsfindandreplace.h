// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/cellsearch.h"
#include "host/widgets/applndialog.h"

#include <QPointer>

#include <functional>
#include <memory>

class QTableWidget;

namespace Ui {
class PropsFindAndReplace;
}

/// Finds cells of a table by their whole text and replaces it through the cells' own editors, while the table
/// stays usable. What the table hides, for instance by a filter, is neither found nor replaced; the dialog
/// says so. The first two columns of the table name the parts and are never replaced. Rows keep their places
/// while it is shown: the table's sorting is off then.
class PropsFindAndReplace final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// What runs something as one action of the user.
    using ActionRunner = std::function<void(const std::function<void()> &)>;

    /// The table is not owned. Without it, and once it is gone, nothing is found.
    explicit PropsFindAndReplace(QTableWidget *table, QWidget *parent = nullptr);
    ~PropsFindAndReplace() override;

    /// Replacements are run by it, all those of one command together.
    void setActionRunner(ActionRunner runner) { m_runner = std::move(runner); }

public Q_SLOTS:
    /// Show the dialog, or bring it to the front, with the text of the table's current cell to be found. The
    /// keyboard is then in the field of that text, or of the one that replaces it.
    void showFind();
    void showReplace();

    /// Goes to the next cell with the text.
    void findNext();
    /// Replaces the text of the current cell, if it is the one to be found, and goes on to the next.
    void replace();
    /// The same for the current cell and all others.
    void replaceAll();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectWidgets();
    /// What the dialog shows for the table as it is now.
    void prepare();
    void bringUp(QWidget *field);
    /// What each command begins with.
    void begin();
    void startSearch();
    [[nodiscard]] CellCriteria criteria() const;
    [[nodiscard]] TableCell currentCell() const;
    void makeCurrent(const TableCell &cell);
    void goToNextCell();
    /// The next cell; nothing, and the end is told, when there is none.
    [[nodiscard]] std::optional<TableCell> nextCell();
    /// Nothing happens to a cell without the text.
    void replaceCell(const TableCell &cell);
    void replaceAllCells();
    void remember(const QString &text);
    void runAsAction(const std::function<void()> &replacement);
    void report();
    void updateHiddenNote();

    std::unique_ptr<Ui::PropsFindAndReplace> m_ui;
    QPointer<QTableWidget> m_table;
    CellSearch m_search;
    /// What was looked for last.
    CellCriteria m_criteria;
    ActionRunner m_runner;
    /// A cell with the text could not be given the other one.
    bool m_isIncompatible = false;
};
