// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/bomsettings.h"
#include "designs/design.h"
#include "designs/problem.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <string>
#include <unordered_map>
#include <vector>

namespace designs::kicad {

/// What a KiCad project file (.kicad_pro, JSON) says that concerns a bill of materials.
struct ProjectFile
{
    struct TopLevelSheet
    {
        QString fileName;
        QString uuid;
        QString name;
    };

    QString path;
    QHash<QString, QString> textVariables;
    QStringList variants;
    /// Version 10 and later; empty for a project with the one root that is named as itself.
    std::vector<TopLevelSheet> topLevelSheets;
    ProjectBom bom;
};

/// Reads a project file; false fills `problem`. A missing file is a problem too.
[[nodiscard]] bool readProjectFile(const QString &path, ProjectFile *project, Problem *problem);

/// The sides of the footprints on a board, by reference.
using BoardSides = std::unordered_map<std::string, Side>;

/// Reads a KiCad board (.kicad_pcb); false fills `problem`.
[[nodiscard]] bool readBoardSides(const QString &path, BoardSides *sides, Problem *problem);

} // namespace designs::kicad
