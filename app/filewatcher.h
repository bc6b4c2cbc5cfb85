// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Tells when files may have changed: once for changes that follow one another, after they have settled.
/// Files that are replaced, removed and made anew stay watched, through their folders.
class FileWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(QObject *parent = nullptr);

    /// Watches these instead of those before. They need not exist.
    void setFiles(const QStringList &files);
    [[nodiscard]] const QStringList &files() const { return m_files; }

    /// For how long nothing must have happened.
    void setDelay(int milliseconds) { m_settled.setInterval(milliseconds); }

    /// Tells it once more, after the delay.
    void touchLater() { m_settled.start(); }

Q_SIGNALS:
    void touched();

private:
    void watchAgain();
    void settle();

    QFileSystemWatcher m_watcher;
    QTimer m_settled;
    QStringList m_files;
};
