// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/design.h"
#include "designs/problem.h"

#include <string>
#include <unordered_map>

namespace designs::kicad {

/// The sides of the footprints on a board, by reference.
using BoardSides = std::unordered_map<std::string, Side>;

/// Reads a KiCad board (.kicad_pcb); false fills `problem`.
[[nodiscard]] bool readBoardSides(const QString &path, BoardSides *sides, Problem *problem);

} // namespace designs::kicad
