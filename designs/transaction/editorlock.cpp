// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/editorlock.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace designs {

namespace {

/// A name from the lock file as it can stand in a message.
QString named(const QJsonObject &lock, QLatin1String key)
{
    return lock.value(key).toString().simplified().left(60);
}

} // namespace

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
