// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QVBoxLayout;

/// What the window shows while no design is open: what can be opened, and what was open last.
class EmptyPage final : public QWidget
{
    Q_OBJECT

public:
    /// The button triggers the action.
    explicit EmptyPage(QAction *open, QWidget *parent = nullptr);

    /// Of these the first few are offered.
    void setRecentFiles(const QStringList &paths);

Q_SIGNALS:
    void recentChosen(const QString &path);

private:
    QWidget *m_recent = nullptr;
    QVBoxLayout *m_recentLayout = nullptr;
};
