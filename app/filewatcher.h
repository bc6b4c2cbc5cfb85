// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Emits touched() when files may have changed: once for changes that follow one another, when no more come
/// or they have gone on for long. Files that are replaced, or removed and made anew, stay watched through
/// their folders.
class FileWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(QObject *parent = nullptr);

    /// Watches these instead of those before. They need not exist. Emits touched() once afterwards, because
    /// they may have changed before they were watched.
    void setFiles(const QStringList &files);
    [[nodiscard]] const QStringList &files() const { return m_files; }

    /// How long no change must have come before touched() is emitted.
    void setDelay(int milliseconds) { m_settled.setInterval(milliseconds); }
    /// How long changes may go on before touched() is emitted nevertheless.
    void setLongest(int milliseconds) { m_longest.setInterval(milliseconds); }

    /// Emits touched() after the delay.
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
