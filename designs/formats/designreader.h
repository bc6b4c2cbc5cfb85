// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <QString>

namespace designs {

/// Reads a design file: a KiCad schematic (.kicad_sch) or project (.kicad_pro), or a CSV part list (any other
/// name).
[[nodiscard]] ReadResult readDesign(const QString &path, const ReadOptions &options = {});

} // namespace designs
