// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Tells when files may have changed: once for changes that follow one another, after they have settled or
/// have gone on for long.
/// Files that are replaced, removed and made anew stay watched, through their folders.
class FileWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(QObject *parent = nullptr);

    /// Watches these instead of those before. They need not exist. What changed before they were watched is
    /// told as well, for it tells it once more.
    void setFiles(const QStringList &files);
    [[nodiscard]] const QStringList &files() const { return m_files; }

    /// For how long nothing must have happened.
    void setDelay(int milliseconds) { m_settled.setInterval(milliseconds); }
    /// How long changes may go on before it is told nevertheless.
    void setLongest(int milliseconds) { m_longest.setInterval(milliseconds); }

    /// Tells it once more, after the delay.
    void touchLater();

Q_SIGNALS:
    void touched();

private:
    void watchAgain();
    void settle();

    QFileSystemWatcher m_watcher;
    QTimer m_settled;
    QTimer m_longest;
    QStringList m_files;
};
