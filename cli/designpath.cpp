// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designpath.h"

#include "cli/console.h"
#include "cli/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace {

/// KiCad saves an unfinished schematic under a name that begins so.
constexpr QLatin1String autosavePrefix("_autosave-");

/// The designs of the first kind that the folder has any of.
QStringList designsIn(const QString &folder)
{
    for (const char *pattern : {"*.kicad_pro", "*.kicad_sch", "*.csv"}) {
        QStringList names = QDir(folder).entryList({QString::fromLatin1(pattern)}, QDir::Files);
        names.removeIf([](const QString &name) { return name.startsWith(autosavePrefix); });
        if (!names.isEmpty()) {
            return names;
        }
    }
    return {};
}

/// The folder of the design in front, as the longer path.
void showRelative(const QString &path)
{
    const QFileInfo file(path);
    const QString shown = file.path() == QStringLiteral(".") ? QString() : file.path() + u'/';
    console::showFolderAs(file.absolutePath(), shown);
    console::showFolderAs(file.absoluteDir().canonicalPath(), shown);
    console::showFolderAs(QDir::currentPath(), {});
}

} // namespace

std::optional<QString> designPath(const QString &named)
{
    constexpr qsizetype mostNames = 10;
    QString path = named;
    if (QFileInfo(named).isDir()) {
        const QStringList designs = designsIn(named);
        if (designs.size() > 1) {
            console::message(
                CommandLine::tr("%1: this folder has several designs, name one of them: %2")
                    .arg(named, designs.mid(0, mostNames).join(QStringLiteral(", ")) +
                                    (designs.size() > mostNames ? QStringLiteral(", ...") : QString())));
            return std::nullopt;
        }
        path = designs.isEmpty() ? named : QDir::cleanPath(named + u'/' + designs.constFirst());
    }
    if (QFileInfo(path).isRelative()) {
        showRelative(path);
    }
    return path;
}
