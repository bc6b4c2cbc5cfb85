// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designclaim.h"

#include "standalone/environment.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

QString lockPath(const QString &file)
{
    const QByteArray hash =
        QCryptographicHash::hash(designOf(file).toUtf8(), QCryptographicHash::Sha1).toHex();
    return userDataFolder(QStringLiteral("BOM")) + QStringLiteral("/open/") + QString::fromLatin1(hash) +
           QStringLiteral(".lock");
}

} // namespace

QString designOf(const QString &file)
{
    const QFileInfo info(file);
    const QString canonical = info.canonicalFilePath();
    const QString design = canonical.isEmpty() ? info.absoluteFilePath() : canonical;
    const QString project = QStringLiteral(".kicad_pro");
    return design.endsWith(project, Qt::CaseInsensitive)
               ? design.chopped(project.size()) + QStringLiteral(".kicad_sch")
               : design;
}

bool DesignClaim::take(const QString &file)
{
    const QString path = lockPath(file);
    (void)QDir().mkpath(QFileInfo(path).path());
    auto lock = std::make_unique<QLockFile>(path);
    // Only the end of its process makes it stale.
    lock->setStaleLockTime(0);
    if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError) {
        return false;
    }
    m_lock = std::move(lock);
    m_path = path;
    return true;
}

bool DesignClaim::holds(const QString &file) const
{
    return m_lock && m_path == lockPath(file);
}
