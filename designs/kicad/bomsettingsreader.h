// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/bomsettings.h"

#include <QJsonObject>

namespace designs::kicad {

/// Reads `bom_settings` and `bom_presets` of the object `schematic` of a project file, `path` is its name in
/// problems. Projects of version 7 and before have none.
[[nodiscard]] ProjectBom readProjectBom(const QJsonObject &schematic, const QString &path);

} // namespace designs::kicad
