// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/kicadlock.h"

#include "designs/texts.h"
#include "files/regularfile.h"

#include <QByteArrayMatcher>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace designs {

namespace {

/// Larger ones are not read as designs.
constexpr qint64 largestSchematic = qint64(2) * 1024 * 1024 * 1024 - 2;

/// A name from the lock file as it can stand in a message.
QString named(const QJsonObject &lock, QLatin1String key)
{
    return lock.value(key).toString().simplified().left(60);
}

/// The files that a schematic's text names as its sheets. Only looks for quoted names: what a comment or
/// another property names counts as well, which at most refuses a write too many.
QStringList sheetFilesIn(const QString &schematic, const QString &projectFolder)
{
    static const QByteArrayMatcher end(".kicad_sch\"");
    QString reason;
    const QByteArray text = contentOfRegularFile(schematic, largestSchematic, &reason).value_or(QByteArray());
    QStringList found;
    for (qsizetype at = end.indexIn(text); at >= 0; at = end.indexIn(text, at + 1)) {
        const qsizetype start = text.lastIndexOf('"', at) + 1;
        QString name = QString::fromUtf8(text.sliced(start, at + end.pattern().size() - 1 - start));
        name.replace(QLatin1String("${KIPRJMOD}"), projectFolder).replace(u'\\', u'/');
        found << QFileInfo(QFileInfo(schematic).absoluteDir(), name).canonicalFilePath();
    }
    found.removeAll(QString());
    return found;
}

/// Whether the hierarchy below a schematic holds one of these files, given without symbolic links.
bool mayHold(const QString &root, const QSet<QString> &files)
{
    const QString folder = QFileInfo(root).absolutePath();
    QStringList open{QFileInfo(root).canonicalFilePath()};
    QSet<QString> seen(open.cbegin(), open.cend());
    while (!open.isEmpty()) {
        const QStringList named = sheetFilesIn(open.takeLast(), folder);
        for (const QString &sheet : named) {
            if (files.contains(sheet)) {
                return true;
            }
            if (!seen.contains(sheet)) {
                seen.insert(sheet);
                open << sheet;
            }
        }
    }
    return false;
}

QStringList foldersAround(const QStringList &files)
{
    QStringList folders;
    for (const QString &file : files) {
        QDir folder = QFileInfo(file).absoluteDir();
        for (int level = 0; level < 3; ++level) {
            folders << folder.path();
            folder.setPath(QFileInfo(folder.path()).path());
        }
    }
    folders.removeDuplicates();
    return folders;
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
    QString reason;
    const QByteArray text = contentOfRegularFile(lockPath, 4096, &reason).value_or(QByteArray());
    const QJsonObject lock = QJsonDocument::fromJson(text).object();
    const QString user = named(lock, QLatin1String("username"));
    const QString host = named(lock, QLatin1String("hostname"));
    const QString name = user.isEmpty() ? WriteTexts::tr("somebody") : user;
    const QString who = host.isEmpty() ? name : WriteTexts::tr("%1 on %2").arg(name, host);
    return WriteTexts::tr("is open in KiCad (%1): close it there; if it is open nowhere, delete %2")
        .arg(who, lockPath);
}

std::optional<Problem> openFromAbove(const QStringList &files)
{
    QSet<QString> targets;
    for (const QString &file : files) {
        targets.insert(QFileInfo(file).canonicalFilePath());
    }
    for (const QString &folder : foldersAround(files)) {
        const QStringList locks = QDir(folder).entryList({QStringLiteral("~*.kicad_sch.lck")},
                                                         QDir::AllEntries | QDir::Hidden | QDir::System);
        for (const QString &lock : locks) {
            const QString root = folder + u'/' + lock.sliced(1).chopped(4);
            const auto who = openElsewhere(root);
            if (who && mayHold(root, targets)) {
                return Problem{files.front(), 0, WriteTexts::tr("belongs to %1, which %2").arg(root, *who)};
            }
        }
    }
    return std::nullopt;
}

} // namespace designs
