// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designpaths.h"

#include "designs/filefingerprint.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace designs {

namespace {

const QString journalEnd = QStringLiteral(".bom-journal");

/// What most file systems take for a name.
constexpr qsizetype longestName = 255;

QString withoutLinks(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : real;
}

} // namespace

QString folderOf(const QString &path)
{
    return QFileInfo(path).path();
}

DesignPaths::DesignPaths(const QString &design, const QStringList &members)
    : m_named(QFileInfo(design).absoluteFilePath())
    , m_design(withoutLinks(design))
    , m_folder(folderOf(m_design))
    , m_name(QFileInfo(m_design).fileName())
    , m_members(members)
{
}

QString DesignPaths::journal() const
{
    return m_folder + QStringLiteral("/.") + m_name + journalEnd;
}

QStringList DesignPaths::designsWithJournals(const QString &folder)
{
    QStringList designs;
    // Nothing is asked about the single files: a folder may hold many.
    QDirIterator names(folder, {QStringLiteral(".*") + journalEnd},
                       QDir::AllEntries | QDir::Hidden | QDir::System);
    while (names.hasNext()) {
        names.next();
        designs << folder + u'/' + names.fileName().sliced(1).chopped(journalEnd.size());
    }
    designs.sort();
    return designs;
}

QString DesignPaths::newJournal() const
{
    return journal() + QStringLiteral(".new");
}

QString DesignPaths::lock() const
{
    return m_folder + QStringLiteral("/.") + m_name + QStringLiteral(".bom-lock");
}

QString DesignPaths::backupFolder() const
{
    return m_folder + u'/' + QFileInfo(m_design).completeBaseName() + QStringLiteral("-backup");
}

QString DesignPaths::record() const
{
    return backupFolder() + u'/' + m_name + QStringLiteral(".undo");
}

QString DesignPaths::backupOf(const QString &target) const
{
    QString name = relative(target);
    name.replace(u'%', QStringLiteral("%25")).replace(u'/', QStringLiteral("%2F"));
    name += QStringLiteral(".bak");
    if (QFile::encodeName(name).size() > longestName) {
        name = fingerprintOf(name.toStdString()).toString() + QStringLiteral(".bak");
    }
    return backupFolder() + u'/' + name;
}

QString DesignPaths::relative(const QString &path) const
{
    return QDir(m_folder).relativeFilePath(path);
}

QString DesignPaths::resolved(const QString &path) const
{
    if (path.isEmpty() || path.contains(QChar(0)) || QDir::isAbsolutePath(path)) {
        return {};
    }
    const QString full = QDir::cleanPath(m_folder + u'/' + path);
    const QString folder = folderOf(full);
    return relative(full) == path && QFileInfo(folder).canonicalFilePath() == folder ? full : QString();
}

bool DesignPaths::mayHold(const QString &target) const
{
    const QString inside = m_folder.endsWith(u'/') ? m_folder : m_folder + u'/';
    return target.startsWith(inside) ||
           QFileInfo(target).suffix().compare(QFileInfo(m_design).suffix(), Qt::CaseInsensitive) == 0;
}

bool DesignPaths::isMember(const QString &target) const
{
    std::call_once(m_hasTargets, [this] {
        m_targets.insert(m_design);
        for (const QString &member : m_members) {
            m_targets.insert(withoutLinks(member));
        }
    });
    return m_targets.contains(target);
}

} // namespace designs
