// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatepaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

// A static library's resources are dropped by the linker unless something refers to them. The macro declares
// a function, which may not happen inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(bom);
}

namespace {
void registerResources()
{
    [[maybe_unused]] static const bool isRegistered = (initResources(), true);
}

QStringList &paths()
{
    static QStringList list;
    return list;
}

bool isForbidden(QChar character)
{
    if (character.category() == QChar::Other_Control || character == u'/' || character == u'\\')
        return true;
#ifdef Q_OS_WIN
    return QStringLiteral("<>:\"|?*").contains(character);
#else
    return false;
#endif
}

// The device names keep their meaning with an extension: "con.old" is the console too.
bool isDeviceName(const QString &name)
{
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    if (base.size() == 4 && (base.startsWith(QLatin1String("COM")) || base.startsWith(QLatin1String("LPT"))))
        return base.at(3) >= u'1' && base.at(3) <= u'9';
    return base == QLatin1String("CON") || base == QLatin1String("PRN") || base == QLatin1String("AUX") ||
           base == QLatin1String("NUL");
}
} // namespace

void setTemplatePaths(const QStringList &list)
{
    paths() = list;
}

QStringList hostTemplatePaths(const QString &pathList, const QString &dataFolder)
{
    QStringList candidates;
    const QStringList named = QStringList(pathList.split(u';')) << dataFolder;
    for (const QString &path : named) {
        if (!path.trimmed().isEmpty())
            candidates.append(QDir(QDir::fromNativeSeparators(path.trimmed())).absolutePath());
    }
    candidates.removeDuplicates();
    const auto primary = std::find_if(candidates.begin(), candidates.end(), [](const QString &path) {
        return !isShippedTemplateFile(path) && QDir().mkpath(path);
    });
    if (primary != candidates.end())
        std::rotate(candidates.begin(), primary, std::next(primary));
    candidates.removeOne(shippedTemplateFolder());
    return candidates << shippedTemplateFolder();
}

QString shippedTemplateFolder()
{
    registerResources();
    return QStringLiteral(":/bom/templates");
}

bool isShippedTemplateFile(const QString &path)
{
    return path.startsWith(QLatin1String(":/"));
}

QString defaultStyleSheet()
{
    registerResources();
    QFile file(QStringLiteral(":/bom/html/userstyle.css"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<TemplateFile> templateFiles()
{
    QList<TemplateFile> files;
    QSet<QString> taken;
    for (const QString &path : std::as_const(paths())) {
        const QDir folder(path, QStringLiteral("*.bomt"), QDir::Name, QDir::Files);
        QFileInfoList entries = folder.entryInfoList();
        // A template that was read from NAME.BOMT is written to NAME.bomt, which counts from then on.
        std::stable_partition(entries.begin(), entries.end(),
                              [](const QFileInfo &file) { return file.suffix() == QLatin1String("bomt"); });
        for (const QFileInfo &file : std::as_const(entries)) {
            const QString name = file.completeBaseName();
            if (const QString key = name.toCaseFolded(); !taken.contains(key)) {
                taken.insert(key);
                files.append({name, file.absoluteFilePath()});
            }
        }
    }
    return files;
}

QString primaryTemplateFolder()
{
    return QDir(paths().value(0, QDir::currentPath())).absolutePath();
}

QString legacyTemplatesFile()
{
    return QDir(primaryTemplateFolder()).filePath(QStringLiteral("BOMTemplates.ini"));
}

bool isTemplateFileName(const QString &name)
{
    if (name.isEmpty() || name.startsWith(u'.') || isDeviceName(name))
        return false;
    return std::none_of(name.cbegin(), name.cend(), isForbidden);
}

QString templateFilePath(const QString &name)
{
    if (!isTemplateFileName(name))
        return {};
    return QDir(primaryTemplateFolder()).absoluteFilePath(name + QLatin1String(".bomt"));
}
