// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatepaths.h"

#include <QDir>

#include <algorithm>

namespace {
QStringList &paths()
{
    static QStringList list;
    return list;
}

bool isForbidden(QChar character)
{
    if (character.unicode() < 0x20 || character == u'/' || character == u'\\')
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

QStringList templatePaths()
{
    return paths();
}

void setTemplatePaths(const QStringList &list)
{
    paths() = list;
}

QString primaryTemplateFolder()
{
    return QDir(paths().value(0, QDir::currentPath())).absolutePath();
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
