// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designlock.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

namespace designs {

namespace {

/// With FileSystem::pause() between them, some ten seconds.
constexpr int attempts = 500;

/// A name from the lock file as it can stand in a message.
QString named(const QJsonObject &lock, QLatin1String key)
{
    return lock.value(key).toString().simplified().left(60);
}

} // namespace

DesignLock::DesignLock(FileOperations &files, const DesignPaths &paths)
    : m_files(files)
    , m_design(paths.design())
    , m_path(paths.lock())
{
}

DesignLock::~DesignLock()
{
    if (m_file >= 0) {
        // A file that stays locks nothing; whoever locks next removes it.
        static_cast<void>(m_files.system().unlock(m_path, m_file));
    }
}

bool DesignLock::take()
{
    int failure = m_files.system().lock(m_path, &m_file);
    for (int attempt = 1; failure == EWOULDBLOCK && attempt < attempts; ++attempt) {
        m_files.system().pause();
        failure = m_files.system().lock(m_path, &m_file);
    }
    if (failure == EWOULDBLOCK) {
        return m_files.fail(m_path, QStringLiteral("another program is just writing this design: try again "
                                                   "when it has finished"));
    }
    return failure == 0 ||
           m_files.fail(m_design, QStringLiteral("cannot be written: ") + m_path +
                                      QStringLiteral(" cannot be created: ") + qt_error_string(failure));
}

std::optional<QString> openElsewhere(const QString &path)
{
    const QFileInfo info(path);
    const QString lockPath =
        info.absolutePath() + QStringLiteral("/~") + info.fileName() + QStringLiteral(".lck");
    const QFileInfo lockInfo(lockPath);
    if (!lockInfo.exists() && !lockInfo.isSymLink()) {
        return std::nullopt;
    }
    QJsonObject lock;
    QFile file(lockPath);
    if (lockInfo.isFile() && file.open(QIODevice::ReadOnly)) {
        lock = QJsonDocument::fromJson(file.read(4096)).object();
    }
    const QString user = named(lock, QLatin1String("username"));
    const QString host = named(lock, QLatin1String("hostname"));
    QString who = user.isEmpty() ? QStringLiteral("somebody") : user;
    who += host.isEmpty() ? QString() : QStringLiteral(" on ") + host;
    return QStringLiteral("is open in KiCad (") + who +
           QStringLiteral("): close it there; if it is open nowhere, delete ") + lockPath;
}

} // namespace designs
