// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"

#include <QStringList>

namespace designs::kicad {

/// Counts the symbols of a schematic a second time, with a reader of its own that shares no code and no data
/// with the one that makes the components: placed symbols of every file times the uses of the file. False
/// fills `problem`.
[[nodiscard]] bool recountSymbols(const QStringList &roots, SymbolCount *count, Problem *problem);

} // namespace designs::kicad
