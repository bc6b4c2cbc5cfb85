// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// F6 takes the focus from one pane of a window to the next, Shift+F6 to the one before: also out of a table
/// that keeps the Tab key for its cells.
class PaneKeys final : public QObject
{
    Q_OBJECT

public:
    /// The keys work in the window that `owner` is in. The panes, in their order, are not owned; hidden ones
    /// are passed over.
    PaneKeys(QWidget *owner, const QList<QWidget *> &panes);

private:
    void go(qsizetype step);
    [[nodiscard]] qsizetype current() const;

    QList<QPointer<QWidget>> m_panes;
};
