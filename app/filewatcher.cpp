// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/filewatcher.h"

#include <QFileInfo>

namespace {

/// Editors write several files of a design within this time.
constexpr int settleMilliseconds = 300;
/// Something else in the folder, such as a log, may never settle.
constexpr int longestMilliseconds = 3000;

} // namespace

FileWatcher::FileWatcher(QObject *parent)
    : QObject(parent)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settleMilliseconds);
    m_longest.setSingleShot(true);
    m_longest.setInterval(longestMilliseconds);
    connect(&m_settled, &QTimer::timeout, this, &FileWatcher::settle);
    connect(&m_longest, &QTimer::timeout, this, &FileWatcher::settle);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatcher::touchLater);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatcher::touchLater);
}

void FileWatcher::setFiles(const QStringList &files)
{
    m_files = files;
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty()) {
        m_watcher.removePaths(before);
    }
    watchAgain();
    touchLater();
}

void FileWatcher::touchLater()
{
    m_settled.start();
    if (!m_longest.isActive()) {
        m_longest.start();
    }
}

void FileWatcher::watchAgain()
{
    // QFileSystemWatcher stops watching a file that is replaced.
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList missing;
    for (const QString &file : std::as_const(m_files)) {
        const QString folder = QFileInfo(file).absolutePath();
        for (const QString &path : {file, folder}) {
            if (QFileInfo::exists(path) && !watched.contains(path) && !missing.contains(path)) {
                missing << path;
            }
        }
    }
    if (!missing.isEmpty()) {
        m_watcher.addPaths(missing);
    }
}

void FileWatcher::settle()
{
    m_settled.stop();
    m_longest.stop();
    watchAgain();
    Q_EMIT touched();
}
