// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/panekeys.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>

namespace {

/// What is to get the focus in a pane: what had it last, else what comes first.
QWidget *target(QWidget *pane)
{
    if (QWidget *last = pane->focusWidget(); last && last->isVisible() && last->isEnabled()) {
        return last;
    }
    QWidget *widget = pane;
    do {
        const bool isInside = widget == pane || pane->isAncestorOf(widget);
        if (isInside && (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() &&
            widget->isEnabled()) {
            return widget;
        }
        widget = widget->nextInFocusChain();
    } while (widget != pane);
    return nullptr;
}

} // namespace

PaneKeys::PaneKeys(QWidget *owner, const QList<QWidget *> &panes)
    : QObject(owner)
{
    for (QWidget *pane : panes) {
        m_panes.append(pane);
    }
    const auto *next = new QShortcut(QKeySequence(Qt::Key_F6), owner);
    connect(next, &QShortcut::activated, this, [this] { go(1); });
    const auto *previous = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6), owner);
    connect(previous, &QShortcut::activated, this, [this] { go(-1); });
}

/// The number of the pane with the focus, or -1.
qsizetype PaneKeys::current() const
{
    QWidget *focused = QApplication::focusWidget();
    // Panes may stand in each other; the inner one counts.
    for (QWidget *widget = focused; widget; widget = widget->parentWidget()) {
        const qsizetype pane = m_panes.indexOf(widget);
        if (pane >= 0) {
            return pane;
        }
    }
    return -1;
}

void PaneKeys::go(qsizetype step)
{
    const qsizetype count = m_panes.size();
    qsizetype pane = current();
    if (pane < 0 && step < 0) {
        pane = 0;
    }
    for (qsizetype i = 0; i < count; ++i) {
        pane = (pane + step + count) % count;
        QWidget *widget = m_panes[pane] && m_panes[pane]->isVisible() ? target(m_panes[pane]) : nullptr;
        if (widget) {
            widget->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}
