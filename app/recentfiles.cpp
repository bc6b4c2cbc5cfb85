// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/recentfiles.h"

#include "host/framework/hostsettings.h"

#include <QFileInfo>
#include <QUrl>

namespace {

QString group()
{
    return QStringLiteral("Viewer");
}

QString key()
{
    return QStringLiteral("RecentFiles");
}

QString folderKey()
{
    return QStringLiteral("LastFolder");
}

} // namespace

QStringList RecentFiles::list()
{
    QStringList paths;
    const QString stored = HostSettings::current().value(group(), key()).value_or(QString());
    for (const QString &entry : stored.split(u' ', Qt::SkipEmptyParts)) {
        paths << QUrl::fromPercentEncoding(entry.toUtf8());
    }
    return paths.mid(0, Most);
}

void RecentFiles::add(const QString &path)
{
    QStringList paths = list();
    paths.removeAll(path);
    paths.prepend(path);
    store(paths.mid(0, Most));
    HostSettings::current().setValue(group(), folderKey(), QFileInfo(path).path());
}

QString RecentFiles::lastFolder()
{
    return HostSettings::current().value(group(), folderKey()).value_or(QString());
}

void RecentFiles::remove(const QString &path)
{
    QStringList paths = list();
    paths.removeAll(path);
    store(paths);
}

void RecentFiles::clear()
{
    store({});
}

void RecentFiles::store(const QStringList &paths)
{
    QStringList entries;
    for (const QString &path : paths) {
        entries << QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    }
    HostSettings::current().setValue(group(), key(), entries.join(u' '));
}
