// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/recentfiles.h"

#include "app/designclaim.h"
#include "host/framework/hostsettings.h"

#include <QFileInfo>
#include <QUrl>

#include <functional>

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

QStringList pathsOf(const QString &stored)
{
    QStringList paths;
    for (const QString &entry : stored.split(u' ', Qt::SkipEmptyParts)) {
        paths << QUrl::fromPercentEncoding(entry.toUtf8());
    }
    return paths.mid(0, RecentFiles::Most);
}

QString stored(const QStringList &paths)
{
    QStringList entries;
    for (const QString &path : paths.mid(0, RecentFiles::Most)) {
        entries << QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    }
    return entries.join(u' ');
}

/// Other windows, which are other processes, change the same list.
void change(const std::function<void(QStringList &)> &edit)
{
    HostSettings::current().change(group(), key(), [&edit](const QString &text) {
        QStringList paths = pathsOf(text);
        edit(paths);
        return stored(paths);
    });
}

} // namespace

QStringList RecentFiles::list()
{
    HostSettings::current().reload();
    return pathsOf(HostSettings::current().value(group(), key()).value_or(QString()));
}

void RecentFiles::add(const QString &path)
{
    change([&path](QStringList &paths) {
        paths.removeIf([design = designOf(path)](const QString &known) { return designOf(known) == design; });
        paths.prepend(path);
    });
    HostSettings::current().setValue(group(), folderKey(), QFileInfo(path).path());
}

QString RecentFiles::lastFolder()
{
    return HostSettings::current().value(group(), folderKey()).value_or(QString());
}

void RecentFiles::remove(const QString &path)
{
    change([&path](QStringList &paths) { paths.removeAll(path); });
}

void RecentFiles::clear()
{
    change([](QStringList &paths) { paths.clear(); });
}
