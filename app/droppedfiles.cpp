// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/droppedfiles.h"

#include "app/designclaim.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DroppedFiles)
};

bool isDesignName(const QString &path)
{
    static constexpr const char *suffixes[] = {".kicad_sch", ".kicad_pro", ".csv"};
    return std::any_of(std::begin(suffixes), std::end(suffixes), [&path](const char *suffix) {
        return path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    });
}

/// The designs of a folder: its projects, else its schematics, else its part lists.
QStringList designsIn(const QString &folder)
{
    for (const char *pattern : {"*.kicad_pro", "*.kicad_sch", "*.csv"}) {
        QStringList paths;
        for (const QFileInfo &file :
             QDir(folder).entryInfoList({QLatin1String(pattern)}, QDir::Files, QDir::Name)) {
            paths << file.absoluteFilePath();
        }
        if (!paths.isEmpty()) {
            return paths;
        }
    }
    return {};
}

} // namespace

DroppedFiles droppedFiles(const QStringList &paths)
{
    DroppedFiles dropped;
    QStringList known;
    for (const QString &path : paths) {
        // Names "." and what ends in a slash, too.
        const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
        const QStringList found = info.isDir() ? designsIn(path) : QStringList(path);
        if (found.size() > 1) {
            dropped.problem = Texts::tr("The folder %1 holds %2 designs: choose one of them.")
                                  .arg(info.fileName())
                                  .arg(found.size());
        } else if (found.isEmpty()) {
            dropped.problem = Texts::tr("There is no design in the folder %1.").arg(info.fileName());
        } else if (!isDesignName(found.constFirst())) {
            dropped.problem = Texts::tr("%1 is no design: drop a .kicad_sch, .kicad_pro or .csv file.")
                                  .arg(info.fileName());
        } else if (!known.contains(designOf(found.constFirst()))) {
            known << designOf(found.constFirst());
            dropped.designs << found.constFirst();
        }
    }
    return dropped;
}
