// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QUndoStack>

class PropertyAssignments;
class QAction;

/// Undo and redo of pending edits, one step for each action of the user. The design is not touched: once
/// edits are written, or another design is open, the steps of before are gone.
class PendingUndo final : public QObject
{
    Q_OBJECT

public:
    /// The store must outlive it.
    explicit PendingUndo(PropertyAssignments *assignments, QObject *parent = nullptr);

    /// The actions of menus and shortcuts, which say what they would undo and redo; owned by `parent`. While
    /// the keyboard is in a text field they are about its text, as everywhere.
    [[nodiscard]] QAction *createUndoAction(QObject *parent);
    [[nodiscard]] QAction *createRedoAction(QObject *parent);

    [[nodiscard]] QUndoStack &stack() { return m_stack; }

private:
    QUndoStack m_stack;
};
