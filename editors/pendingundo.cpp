// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/pendingundo.h"

#include "core/propertyassignments.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QUndoCommand>

#include <algorithm>

namespace {

using Edits = QList<PendingEdit>;

/// "MPN of R1", "12 values of MPN", "12 values of R1", "12 values".
QString subjectOf(const Edits &edits)
{
    const PendingEdit &first = edits.constFirst();
    if (edits.size() == 1) {
        return PendingUndo::tr("%1 of %2").arg(first.property, first.reference);
    }
    const QString values = PendingUndo::tr("%1 values").arg(edits.size());
    const auto isOfProperty = [&first](const PendingEdit &edit) { return edit.property == first.property; };
    const auto isOfPart = [&first](const PendingEdit &edit) { return edit.part == first.part; };
    if (std::ranges::all_of(edits, isOfProperty)) {
        return PendingUndo::tr("%1 of %2").arg(values, first.property);
    }
    return std::ranges::all_of(edits, isOfPart) ? PendingUndo::tr("%1 of %2").arg(values, first.reference)
                                                : values;
}

/// Whether the edits differ in nothing but what the user says about conflicts.
bool haveSameValues(const Edits &before, const Edits &after)
{
    return std::ranges::equal(before, after, [](const PendingEdit &one, const PendingEdit &other) {
        return one.part == other.part && one.property == other.property && one.value == other.value;
    });
}

QString textOf(const Edits &before, const Edits &after, bool isNothingLeft)
{
    if (after.isEmpty()) {
        return isNothingLeft && before.size() > 1 ? PendingUndo::tr("Clear pending changes")
                                                  : PendingUndo::tr("Drop %1").arg(subjectOf(before));
    }
    return haveSameValues(before, after) ? PendingUndo::tr("Decide on %1").arg(subjectOf(after))
                                         : PendingUndo::tr("Edit %1").arg(subjectOf(after));
}

class EditCommand final : public QUndoCommand
{
public:
    EditCommand(PropertyAssignments *assignments, Edits before, Edits after)
        : QUndoCommand(textOf(before, after, assignments->isEmpty()))
        , m_assignments(assignments)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }

    void undo() override
    {
        m_assignments->restore(m_after, m_before);
        m_isDone = false;
    }
    /// The stack calls it first when the user has done it.
    void redo() override
    {
        if (!m_isDone) {
            m_assignments->restore(m_before, m_after);
            m_isDone = true;
        }
    }

private:
    PropertyAssignments *m_assignments;
    Edits m_before;
    Edits m_after;
    bool m_isDone = true;
};

/// Calls a function of the text field that has the keyboard; false when none has.
bool callTextField(const char *function)
{
    QWidget *focus = QApplication::focusWidget();
    const bool isTextField = qobject_cast<QLineEdit *>(focus) || qobject_cast<QTextEdit *>(focus) ||
                             qobject_cast<QPlainTextEdit *>(focus);
    return isTextField && QMetaObject::invokeMethod(focus, function);
}

/// A single "&" would mark a letter.
QString menuText(const QString &command)
{
    return QString(command).replace(u'&', QStringLiteral("&&"));
}

} // namespace

PendingUndo::PendingUndo(PropertyAssignments *assignments, QObject *parent)
    : QObject(parent)
{
    connect(assignments, &PropertyAssignments::edited, this,
            [this, assignments](const Edits &before, const Edits &after) {
                m_stack.push(new EditCommand(assignments, before, after));
            });
    connect(assignments, &PropertyAssignments::historyEnded, &m_stack, &QUndoStack::clear);
}

QAction *PendingUndo::createUndoAction(QObject *parent)
{
    auto *action = new QAction(tr("&Undo"), parent);
    action->setObjectName(QStringLiteral("undoEditAction"));
    action->setShortcuts(QKeySequence::Undo);
    action->setEnabled(m_stack.canUndo());
    connect(&m_stack, &QUndoStack::canUndoChanged, action, &QAction::setEnabled);
    connect(&m_stack, &QUndoStack::undoTextChanged, action, [action](const QString &text) {
        action->setText(text.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(menuText(text)));
    });
    connect(action, &QAction::triggered, &m_stack, [this] {
        if (!callTextField("undo")) {
            m_stack.undo();
        }
    });
    return action;
}

QAction *PendingUndo::createRedoAction(QObject *parent)
{
    auto *action = new QAction(tr("R&edo"), parent);
    action->setObjectName(QStringLiteral("redoEditAction"));
    // Not all platforms have both.
    action->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    action->setEnabled(m_stack.canRedo());
    connect(&m_stack, &QUndoStack::canRedoChanged, action, &QAction::setEnabled);
    connect(&m_stack, &QUndoStack::redoTextChanged, action, [action](const QString &text) {
        action->setText(text.isEmpty() ? tr("R&edo") : tr("R&edo %1").arg(menuText(text)));
    });
    connect(action, &QAction::triggered, &m_stack, [this] {
        if (!callTextField("redo")) {
            m_stack.redo();
        }
    });
    return action;
}
