// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/clipboardblock.h"

#include <QAction>
#include <QObject>

#include <functional>

class BOMTableWidget;
class PropertyItem;
class PartsTable;
class QTableWidgetItem;

/// The commands that work on the selected cells: copy, cut, paste and clear, with their keys. Each changes
/// all that it is to change, or nothing and says why. Rows and columns that are not seen are left out.
class CellBlocks final : public QObject
{
    Q_OBJECT

public:
    /// Why a cell cannot have a text; empty when it can.
    using Check = std::function<QString(const PropertyItem &, const QString &)>;

    /// Neither is owned; both must outlive the object. The keys work while the table has the focus.
    CellBlocks(BOMTableWidget *view, PartsTable *table, Check check);

    [[nodiscard]] QAction *copyAction() const { return m_copy; }
    [[nodiscard]] QAction *cutAction() const { return m_cut; }
    [[nodiscard]] QAction *pasteAction() const { return m_paste; }
    [[nodiscard]] QAction *clearAction() const { return m_clear; }

    void copy();
    void cut();
    void paste();
    /// Empties the cells. One whose parts differ only when it is selected alone: among others it was hardly
    /// meant.
    void clear();

Q_SIGNALS:
    /// Around the changes of one command.
    void started();
    void ended();
    void statusMessage(const QString &text);

private:
    struct CellText
    {
        PropertyItem *item = nullptr;
        QString text;
    };
    /// What a command is going to write.
    struct Plan
    {
        QList<CellText> texts;
        QString problem = {};
    };

    QAction *addCommand(const QString &text, const QKeySequence &key, void (CellBlocks::*slot)());
    [[nodiscard]] ClipboardBlock selectedBlock() const;
    [[nodiscard]] Plan clearPlan() const;
    [[nodiscard]] Plan fillPlan(const QString &text) const;
    [[nodiscard]] Plan pastePlan(const ClipboardBlock &block) const;
    void add(Plan *plan, int row, int column, const QString &text) const;
    void carryOut(const Plan &plan);

    BOMTableWidget *m_view;
    PartsTable *m_table;
    Check m_check;
    QAction *m_copy;
    QAction *m_cut;
    QAction *m_paste;
    QAction *m_clear;
};
